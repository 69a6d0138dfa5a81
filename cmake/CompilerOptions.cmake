# Language level, warnings, sanitizers and ccache for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
# Every program finds its bundles relative to itself, so the build tree has the layout of an installation.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror)
add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
  QT_USE_QSTRINGBUILDER)
add_link_options(LINKER:--as-needed,-O1)
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  add_compile_options(-Og)
endif()

if(NOTELOFT_SANITIZER STREQUAL "address")
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(NOTELOFT_SANITIZER STREQUAL "thread")
  # The fence warning concerns the standard library's own shared_ptr.
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer -Wno-tsan)
  add_link_options(-fsanitize=thread)
elseif(NOT NOTELOFT_SANITIZER STREQUAL "")
  message(FATAL_ERROR "NOTELOFT_SANITIZER is \"${NOTELOFT_SANITIZER}\"; it can be address or thread")
endif()

find_program(CCACHE ccache)
if(CCACHE)
  # ccache reuses precompiled headers only when told that their time stamps do not matter.
  set(sloppiness CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env ${sloppiness} ${CCACHE})
  add_compile_options($<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fpch-preprocess>)
endif()
