# Compiles resource folders into bundle directories, in the build tree where an installation has them.
# Debian's own Python, which has the font tools, before any other on the path.
set(Python3_ROOT_DIR /usr)
set(Python3_FIND_STRATEGY LOCATION)
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(GLSLANG glslangValidator REQUIRED)

set(NOTELOFT_RESOURCES "${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_DATADIR}/noteloft/Resources")
set(NOTELOFT_GENERATED "${CMAKE_BINARY_DIR}/generated")
add_custom_target(Resources ALL)

# noteloft_assets(<target> <module> <directory below Resources> <namespace>): the module's bundle, and for the target a
# header <module>/Assets.h with a name for each asset. Fails the build on an asset that the module's code does not read.
function(noteloft_assets target module directory namespace)
  set(tools "${PROJECT_SOURCE_DIR}/tools/assets")
  set(compiler Python3::Interpreter "${tools}/compile.py" --source "${PROJECT_SOURCE_DIR}/Resources/${module}")
  set(header "${NOTELOFT_GENERATED}/${module}/Assets.h")
  add_custom_command(
    OUTPUT "${header}"
    COMMAND ${compiler} --header "${header}" --namespace ${namespace}
    DEPENDS "${PROJECT_SOURCE_DIR}/Resources/${module}/Assets.json" "${tools}/compile.py" "${tools}/names.py"
    COMMENT "Naming the assets of ${module}"
    VERBATIM)
  target_sources(${target} PRIVATE "${header}")
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${NOTELOFT_GENERATED}>)
  set_source_files_properties("${header}" PROPERTIES SKIP_AUTOMOC ON)

  set(bundle "${NOTELOFT_RESOURCES}/${directory}")
  add_custom_command(
    OUTPUT "${bundle}/Assets.json"
    COMMAND ${compiler} --output "${bundle}"
      --code "${PROJECT_SOURCE_DIR}/${module}" --depfile "${CMAKE_BINARY_DIR}/${module}.assets.d"
    DEPFILE "${CMAKE_BINARY_DIR}/${module}.assets.d"
    COMMENT "Compiling the assets of ${module}"
    VERBATIM)
  add_custom_target(${module}Assets DEPENDS "${bundle}/Assets.json")
  add_dependencies(Resources ${module}Assets)
endfunction()

# The display face is generated, too: it goes where the programs that ship it look for fonts.
function(noteloft_display_font)
  set(font "${NOTELOFT_RESOURCES}/Fonts/Rocket.ttf")
  set(sources make_rocket.py glyphs.py kerning.py shapes.py)
  list(TRANSFORM sources PREPEND "${PROJECT_SOURCE_DIR}/tools/rocket/")
  add_custom_command(
    OUTPUT "${font}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${NOTELOFT_RESOURCES}/Fonts"
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tools/rocket/make_rocket.py" "${font}"
    DEPENDS ${sources}
    COMMENT "Generating the Rocket face"
    VERBATIM)
  add_custom_target(RocketFont DEPENDS "${font}")
  add_dependencies(Resources RocketFont)
endfunction()

# The icon that windows and the About panel show; desktops take the drawing itself.
function(noteloft_application_icon)
  set(icon "${NOTELOFT_RESOURCES}/Icons/noteloft.png")
  set(drawing "${PROJECT_SOURCE_DIR}/packaging/icons/noteloft.svg")
  add_custom_command(
    OUTPUT "${icon}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${NOTELOFT_RESOURCES}/Icons"
    COMMAND ${RSVG_CONVERT} --width 256 --height 256 --output "${icon}" "${drawing}"
    DEPENDS "${drawing}"
    COMMENT "Rendering the application's icon"
    VERBATIM)
  add_custom_target(ApplicationIcon DEPENDS "${icon}")
  add_dependencies(Resources ApplicationIcon)
endfunction()
