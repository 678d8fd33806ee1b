# Runs the program as a user would and checks what it does.
#
#   cmake -DPROGRAM=<path> -DARGS=<arguments separated by |> -DEXPECT_EXIT=<code>
#         [-DEXPECT_STDOUT=<regex>] [-DEXPECT_STDERR=<regex>]
#         [-DSAVE_STDOUT=<file> -DCHECKER=<program taking the file>]
#         -P RunProgram.cmake
string(REPLACE "|" ";" arguments "${ARGS}")
execute_process(COMMAND ${PROGRAM} ${arguments}
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
