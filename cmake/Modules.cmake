# noteloft_library(<name> SOURCES <...> LINKS <...> PRIVATE_LINKS <...>): a library with the project's habits.
function(noteloft_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS;PRIVATE_LINKS")
  add_library(${name} STATIC ${arg_SOURCES})
  add_library(Noteloft::${name} ALIAS ${name})
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/noteloft>)
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE ${arg_PRIVATE_LINKS})
  noteloft_precompile(${name})
endfunction()

# noteloft_module(<name> ...): a library that other projects use, too.
function(noteloft_module name)
  noteloft_library(${name} ${ARGN})
  install(TARGETS ${name} EXPORT NoteloftTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/" "${NOTELOFT_GENERATED}/${name}/" OPTIONAL
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/noteloft/${name}
    FILES_MATCHING PATTERN "*.h")
endfunction()

# One precompiled header for all targets that use Qt Widgets. Its own target has none of the macros that only
# some modules define, since a compiler refuses a precompiled header made with a macro that is now missing.
function(noteloft_precompile target)
  if(NOT TARGET Precompiled)
    file(WRITE "${CMAKE_BINARY_DIR}/Precompiled.cpp" "")
    add_library(Precompiled OBJECT "${CMAKE_BINARY_DIR}/Precompiled.cpp")
    target_link_libraries(Precompiled PRIVATE Qt6::Widgets)
    target_precompile_headers(Precompiled PRIVATE "${PROJECT_SOURCE_DIR}/cmake/Precompiled.h")
    set_target_properties(Precompiled PROPERTIES AUTOMOC OFF)
  endif()
  target_precompile_headers(${target} REUSE_FROM Precompiled)
endfunction()
