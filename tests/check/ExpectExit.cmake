# Runs a command and checks its exit status and what it writes to stderr:
#   cmake -DEXIT=<status> -DSTDERR=<regex> -DCOMMAND=<tool;arg;...> -P ExpectExit.cmake
foreach(var EXIT STDERR COMMAND)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "ExpectExit.cmake: -D${var}=... is missing")
    endif()
endforeach()
execute_process(COMMAND ${COMMAND} INPUT_FILE /dev/null
    OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
if(NOT "${status}" STREQUAL "${EXIT}")
    message(FATAL_ERROR "exit status ${status}, expected ${EXIT}\nstdout:\n${out}\nstderr:\n${err}")
endif()
if(NOT err MATCHES "${STDERR}")
    message(FATAL_ERROR "stderr doesn't match \"${STDERR}\":\n${err}")
endif()
