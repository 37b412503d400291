# Runs vistrel-check on one file of tests/data/inventory-check:
#   cmake -DTOOL=<vistrel-check> -DDIR=<data folder> -DNAME=<case> -P RunCheckTest.cmake
#
#   NAME.txt        the inventory file, given to the tool by its bare name
#   NAME.expected   the tool's standard output, byte for byte
#   NAME.exitcode   optional: its exit status (0 when absent)
#   NAME.args       optional: options in front of the file name

foreach(var TOOL DIR NAME)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "RunCheckTest.cmake: -D${var}=... is missing")
    endif()
endforeach()

set(args "")
if(EXISTS ${DIR}/${NAME}.args)
    file(STRINGS ${DIR}/${NAME}.args args LIMIT_COUNT 1)
    separate_arguments(args UNIX_COMMAND "${args}")
endif()
set(expected_exit 0)
if(EXISTS ${DIR}/${NAME}.exitcode)
    file(STRINGS ${DIR}/${NAME}.exitcode expected_exit LIMIT_COUNT 1)
    string(STRIP "${expected_exit}" expected_exit)
endif()

execute_process(COMMAND ${TOOL} ${args} ${NAME}.txt
    WORKING_DIRECTORY ${DIR}
    INPUT_FILE /dev/null
    OUTPUT_VARIABLE actual
    ERROR_VARIABLE errors
    RESULT_VARIABLE exit_code)
file(READ ${DIR}/${NAME}.expected expected)

set(failures "")
if(NOT "${exit_code}" STREQUAL "${expected_exit}")
    set(failures "${failures}\nexit status ${exit_code}, expected ${expected_exit}; stderr:\n${errors}")
endif()
if(NOT actual STREQUAL expected)
    set(failures "${failures}\nstdout differs from ${NAME}.expected:\n--- expected\n${expected}--- actual\n${actual}")
endif()
if(failures)
    message("${failures}\n")
    message(FATAL_ERROR "inventory check ${NAME} failed")
endif()
