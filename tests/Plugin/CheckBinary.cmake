# A plug-in exports its entry point only, stays in memory, and brings no toolkit into its host.
#   cmake -DBINARY=<file> -P CheckBinary.cmake
execute_process(COMMAND nm -D --defined-only "${BINARY}" OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "[0-9a-f]+ [A-Za-z] ([^\n]+)\n" "\\1;" names "${symbols}")
if(NOT names STREQUAL "lv2_descriptor;")
  message(FATAL_ERROR "Exported: ${names}")
endif()
execute_process(COMMAND readelf -d "${BINARY}" OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "NODELETE")
  message(FATAL_ERROR "The plug-in can be unloaded:\n${dynamic}")
endif()
if(NOT dynamic MATCHES "libc\\.so" OR dynamic MATCHES "NEEDED[^\n]*(Qt|lilv)")
  message(FATAL_ERROR "Unwanted libraries:\n${dynamic}")
endif()
