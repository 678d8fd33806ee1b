# Runs "msgfmt -c" on .po files, so that translators' own tools open them, and
# fails on any word from it: its warnings (a header field missing) are errors
# here, as the compiler's are.
#
#   cmake -DMSGFMT=<msgfmt> -P XnMsgfmtCheck.cmake <file.po>...
# The files are the arguments after the script's own name, which follows -P.
set(files)
set(first 0)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE 1 ${last})
  if(first AND index GREATER_EQUAL first)
    list(APPEND files ${CMAKE_ARGV${index}})
  elseif(CMAKE_ARGV${index} STREQUAL "-P")
    math(EXPR first "${index} + 2")
  endif()
endforeach()
foreach(file IN LISTS files)
  execute_process(COMMAND ${MSGFMT} --check --output-file=- ${file}
                  RESULT_VARIABLE code OUTPUT_QUIET ERROR_VARIABLE err)
  if(NOT code EQUAL 0 OR NOT err STREQUAL "")
    message(FATAL_ERROR "msgfmt -c refuses ${file}:\n${err}")
  endif()
endforeach()
