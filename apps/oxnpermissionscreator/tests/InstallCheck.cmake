# Installs the build tree into an empty prefix and checks that exactly the
# program, its menu entry and its icons arrive, each where the desktop finds it.
#
#   cmake -DBUILD_DIR=<build tree> -DPREFIX=<scratch directory>
#         -DICON_SIZES=<sizes separated by |> -P InstallCheck.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX}
                RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "cmake --install failed (${code}):\n${out}${err}")
endif()

set(expected bin/oxnpermissionscreator share/applications/oxnpermissionscreator.desktop)
string(REPLACE "|" ";" sizes "${ICON_SIZES}")
foreach(size IN LISTS sizes)
  list(APPEND expected share/icons/hicolor/${size}x${size}/apps/oxnpermissionscreator.png)
endforeach()
file(GLOB_RECURSE installed RELATIVE ${PREFIX} ${PREFIX}/*)
list(FILTER installed EXCLUDE REGEX "^share/icons/hicolor/scalable/apps/oxnpermissionscreator\\.svg$")
list(SORT installed)
list(SORT expected)
if(NOT installed STREQUAL expected)
  message(FATAL_ERROR "installed:\n  ${installed}\nexpected:\n  ${expected}")
endif()

execute_process(COMMAND ${PREFIX}/bin/oxnpermissionscreator -help
                RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT code EQUAL 0 OR NOT out MATCHES "^Ostrand Permissions Creator ")
  message(FATAL_ERROR "the installed program's help failed (${code}):\n${out}${err}")
endif()
file(STRINGS ${PREFIX}/share/applications/oxnpermissionscreator.desktop entry)
if(NOT "Exec=oxnpermissionscreator" IN_LIST entry OR NOT "Icon=oxnpermissionscreator" IN_LIST entry)
  message(FATAL_ERROR "the menu entry does not start the program with its icon:\n${entry}")
endif()
