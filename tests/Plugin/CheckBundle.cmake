# Validates a bundle with lv2_validate, thus against the installed LV2 vocabularies. FAULT, if given, is put into a
# copy of the bundle first: "<file>|<regular expression>|<replacement>"; then errors are expected, so that a
# validator that accepts everything is noticed.
#   cmake -DBUNDLE=<directory> -DVALIDATOR=<program> -DWORK=<directory> [-DFAULT=<fault>] -P CheckBundle.cmake
cmake_policy(VERSION 3.25)
file(REMOVE_RECURSE "${WORK}")
file(COPY "${BUNDLE}/" DESTINATION "${WORK}" FILES_MATCHING PATTERN "*.ttl")
if(FAULT)
  string(REPLACE "|" ";" fault "${FAULT}")
  list(GET fault 0 name)
  list(GET fault 1 expression)
  list(GET fault 2 replacement)
  file(READ "${WORK}/${name}" before)
  string(REGEX REPLACE "${expression}" "${replacement}" after "${before}")
  if(before STREQUAL after)
    message(FATAL_ERROR "${name} has nothing that matches ${expression}")
  endif()
  file(WRITE "${WORK}/${name}" "${after}")
endif()

file(GLOB files "${WORK}/*.ttl")
execute_process(COMMAND "${VALIDATOR}" ${files}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT output MATCHES "Found ([0-9]+) errors among [0-9]+ files")
  message(FATAL_ERROR "${VALIDATOR} did not finish (${result}):\n${output}")
endif()
if(FAULT AND CMAKE_MATCH_1 EQUAL 0)
  message(FATAL_ERROR "The fault was not found")
elseif(NOT FAULT AND (NOT CMAKE_MATCH_1 EQUAL 0 OR NOT result EQUAL 0))
  message(FATAL_ERROR "${output}")
endif()
