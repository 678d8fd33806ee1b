# Runs the program as a user would and checks what it does.
#
#   cmake -DPROGRAM=<path> -DARGS=<arguments separated by |> -DEXPECT_EXIT=<code>
#         [-DEXPECT_STDOUT=<regex>] [-DEXPECT_STDERR=<regex>]
#         [-DSAVE_STDOUT=<file> -DCHECKER=<program taking the file>]
#         [-DSTATE_HOME=<directory, emptied and made HOME and XDG_STATE_HOME,
#                     with XDG_CONFIG_HOME below it>]
#         [-DEXPECT_FILE=<path> -DEXPECT_FILE_CONTENT=<regex>]
#         [-DENVIRONMENT=<NAME=value settings separated by |>]
#         [-DSETTINGS=<the user's stored settings, lines separated by |>]
#         [-DCLOSER=<e2e/run_closed.py, run by the system's Python: the program
#                    runs on a virtual desktop, and its window is closed once shown>]
#         -P RunProgram.cmake
#
# The locale variables start neutral, so that the program speaks English
# unless the test's ENVIRONMENT or arguments choose otherwise.
string(REPLACE "|" ";" arguments "${ARGS}")
foreach(variable LANGUAGE LC_ALL LC_MESSAGES)
  unset(ENV{${variable}})
endforeach()
set(ENV{LANG} C.UTF-8)
string(REPLACE "|" ";" settings "${ENVIRONMENT}")
foreach(setting IN LISTS settings)
  string(REGEX MATCH "^([^=]+)=(.*)$" matched "${setting}")
  set(ENV{${CMAKE_MATCH_1}} "${CMAKE_MATCH_2}")
endforeach()
if(DEFINED STATE_HOME)
  file(REMOVE_RECURSE ${STATE_HOME})
  file(MAKE_DIRECTORY ${STATE_HOME})
  set(ENV{HOME} ${STATE_HOME})
  set(ENV{XDG_STATE_HOME} ${STATE_HOME})
  set(ENV{XDG_CONFIG_HOME} ${STATE_HOME}/config)
endif()
if(DEFINED SETTINGS)
  string(REPLACE "|" "\n" settings_text "${SETTINGS}")
  file(WRITE ${STATE_HOME}/config/Ostrand/oxnpermissionscreator.conf "${settings_text}\n")
endif()
set(command ${PROGRAM} ${arguments})
if(DEFINED CLOSER)
  list(PREPEND command /usr/bin/python3 ${CLOSER})
endif()
execute_process(COMMAND ${command}
                RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT code STREQUAL EXPECT_EXIT)
  message(FATAL_ERROR "exit code ${code}, expected ${EXPECT_EXIT}\nstdout:\n${out}\nstderr:\n${err}")
endif()
if(DEFINED EXPECT_STDOUT AND NOT out MATCHES "${EXPECT_STDOUT}")
  message(FATAL_ERROR "stdout does not match '${EXPECT_STDOUT}':\n${out}")
endif()
if(DEFINED EXPECT_STDERR AND NOT err MATCHES "${EXPECT_STDERR}")
  message(FATAL_ERROR "stderr does not match '${EXPECT_STDERR}':\n${err}")
endif()
if(DEFINED SAVE_STDOUT)
  file(WRITE ${SAVE_STDOUT} "${out}")
  execute_process(COMMAND ${CHECKER} ${SAVE_STDOUT} RESULT_VARIABLE checked)
  if(NOT checked EQUAL 0)
    message(FATAL_ERROR "${CHECKER} refused ${SAVE_STDOUT}")
  endif()
endif()
if(DEFINED EXPECT_FILE)
  if(NOT EXISTS ${EXPECT_FILE})
    message(FATAL_ERROR "no file ${EXPECT_FILE}\nstderr:\n${err}")
  endif()
  file(READ ${EXPECT_FILE} content)
  if(NOT content MATCHES "${EXPECT_FILE_CONTENT}")
    message(FATAL_ERROR "${EXPECT_FILE} does not match '${EXPECT_FILE_CONTENT}':\n${content}")
  endif()
endif()
