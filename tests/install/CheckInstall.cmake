# Installs the build into an empty prefix and checks what people and other projects find there.
# BUILD, SOURCE, STAGE, CONFIG
file(REMOVE_RECURSE "${STAGE}")

# From a folder with something in it that has the program's name.
set(elsewhere "${STAGE}/elsewhere")
file(MAKE_DIRECTORY "${elsewhere}/noteloft")

function(run)
  execute_process(COMMAND ${ARGV} WORKING_DIRECTORY "${elsewhere}" RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV}\nfailed (${result}):\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install "${BUILD}" --prefix "${STAGE}/prefix")
set(share "${STAGE}/prefix/share")
run(desktop-file-validate "${share}/applications/example.quillfen.Noteloft.desktop")
run(appstreamcli validate --no-net "${share}/metainfo/example.quillfen.Noteloft.metainfo.xml")
foreach(file
    bin/noteloft bin/noteloft-validate libexec/noteloft/audio-unit-validator
    share/icons/hicolor/scalable/apps/example.quillfen.Noteloft.svg
    share/noteloft/Info.json share/noteloft/Resources/Fonts/Rocket.ttf
    share/noteloft/Resources/Tidepool_Tidepool.bundle/Assets.json)
  if(NOT EXISTS "${STAGE}/prefix/${file}")
    message(FATAL_ERROR "not installed: ${file}")
  endif()
endforeach()

# The installed programs start by name, from their own prefix.
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{XDG_RUNTIME_DIR} "${STAGE}")
set(path "$ENV{PATH}")
set(ENV{PATH} "${STAGE}/prefix/bin:${path}")
run(noteloft --screenshot "${STAGE}/window.png")
run(noteloft-validate aumi mdfx Quil)
set(ENV{PATH} "${path}")

# Another project builds with the installed modules, and its program finds their bundles.
run(${CMAKE_COMMAND} -S "${SOURCE}/tests/install/consumer" -B "${STAGE}/consumer" -G Ninja
  "-DCMAKE_PREFIX_PATH=${STAGE}/prefix" "-DCMAKE_BUILD_TYPE=${CONFIG}")
run(${CMAKE_COMMAND} --build "${STAGE}/consumer")
run("${STAGE}/consumer/consumer")
file(REMOVE_RECURSE "${STAGE}")
