# Runs one script test:
#   cmake -DDRIVER=<vistrel-script> -DCASE_DIR=<folder> -DNAME=<case>
#         -DWORK=<fresh folder> -DNOW=<frozen time> -P RunScriptTest.cmake
# Needs only cmake and diff. Optional, for a driver built for Windows:
#   -DEMULATOR=<command;args>  runs the driver through it (wine on Linux)
#   -DWINDOWS_PATHS=ON         hands the driver its folders and files as
#                              Windows paths, "Z:\tmp\..." for "/tmp/..."
#   -DUPPER_CASE_NAMES=ON      gives the case's input files their names in
#                              capitals (for a system that folds case)

foreach(var DRIVER CASE_DIR NAME WORK NOW)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "RunScriptTest.cmake: -D${var}=... is missing")
    endif()
endforeach()

set(case ${CASE_DIR}/${NAME})
set(docs ${WORK}/docs)
set(shared ${WORK}/shared)

# A path as the driver takes it: with backslashes on Windows, where wine
# shows the host's root as drive Z:.
function(driver_path out path)
    if(WINDOWS_PATHS)
        if(path MATCHES "^/")
            set(path "Z:${path}")
        endif()
        string(REPLACE "/" "\\" path "${path}")
    endif()
    set(${out} "${path}" PARENT_SCOPE)
endfunction()

# A fresh folder for every run; the driver may have left files read-only.
if(EXISTS ${WORK})
    if(CMAKE_HOST_UNIX)
        execute_process(COMMAND chmod -R u+rwX ${WORK})
    endif()
    file(REMOVE_RECURSE ${WORK})
endif()
file(MAKE_DIRECTORY ${docs} ${shared})
if(IS_DIRECTORY ${case}.docs)
    file(MAKE_DIRECTORY ${docs}/Vistrel)
    file(COPY ${case}.docs/ DESTINATION ${docs}/Vistrel)
endif()
if(IS_DIRECTORY ${case}.shared)
    file(COPY ${case}.shared/ DESTINATION ${shared})
endif()
if(UPPER_CASE_NAMES)
    file(GLOB_RECURSE inputs ${docs}/* ${shared}/*)
    foreach(input ${inputs})
        get_filename_component(folder ${input} DIRECTORY)
        get_filename_component(name ${input} NAME)
        string(TOUPPER "${name}" upper)
        file(RENAME ${input} ${folder}/${upper})
    endforeach()
endif()

driver_path(docs_arg ${docs})
driver_path(shared_arg ${shared})
driver_path(print_arg ${WORK}/print.txt)
driver_path(script_arg ${case}.vs)
set(command ${EMULATOR} ${DRIVER} --documents ${docs_arg} --shared ${shared_arg} --now ${NOW})
if(EXISTS ${case}.print.expected)
    list(APPEND command --print-to ${print_arg})
endif()
list(APPEND command ${script_arg})

execute_process(COMMAND ${command}
    WORKING_DIRECTORY ${WORK}
    INPUT_FILE /dev/null
    OUTPUT_FILE ${WORK}/stdout.txt
    ERROR_FILE ${WORK}/stderr.txt
    RESULT_VARIABLE exit_code)

set(expected_exit 0)
if(EXISTS ${case}.exitcode)
    file(STRINGS ${case}.exitcode expected_exit LIMIT_COUNT 1)
    string(STRIP "${expected_exit}" expected_exit)
endif()

set(failures "")
set(update "$ENV{VISTREL_UPDATE_EXPECTED}")

# Compares actual with expected byte for byte; a difference is told as a
# unified diff.
function(compare what expected actual)
    if(NOT EXISTS ${actual})
        file(TOUCH ${actual})
    endif()
    if(NOT EXISTS ${expected})
        set(failures "${failures}\n${what}: ${expected} is missing" PARENT_SCOPE)
        if(update)
            file(COPY_FILE ${actual} ${expected})
        endif()
        return()
    endif()
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${expected} ${actual}
        RESULT_VARIABLE differs OUTPUT_QUIET ERROR_QUIET)
    if(differs)
        execute_process(COMMAND diff -u --label expected --label actual ${expected} ${actual}
            OUTPUT_VARIABLE diff_text)
        set(failures "${failures}\n${what} differs from ${expected}:\n${diff_text}" PARENT_SCOPE)
        if(update)
            file(COPY_FILE ${actual} ${expected})
        endif()
    endif()
endfunction()

if(NOT "${exit_code}" STREQUAL "${expected_exit}")
    file(READ ${WORK}/stderr.txt stderr_text)
    set(failures "${failures}\nexit code ${exit_code}, expected ${expected_exit}; stderr:\n${stderr_text}")
endif()
compare(stdout ${case}.expected ${WORK}/stdout.txt)
if(EXISTS ${case}.print.expected)
    compare(print ${case}.print.expected ${WORK}/print.txt)
endif()
if(EXISTS ${case}.stderr.expected)
    compare(stderr ${case}.stderr.expected ${WORK}/stderr.txt)
endif()
# Files the station writes: NAME.files/ mirrors the run's folder, so
# NAME.files/docs/Vistrel/DiagnosticFile.txt is compared with that file.
if(IS_DIRECTORY ${case}.files)
    file(GLOB_RECURSE expected_files RELATIVE ${case}.files ${case}.files/*)
    foreach(relative ${expected_files})
        compare("file ${relative}" ${case}.files/${relative} ${WORK}/${relative})
    endforeach()
endif()

if(failures)
    # The details verbatim (FATAL_ERROR would re-wrap the diff), then the verdict.
    message("${failures}\n")
    message(FATAL_ERROR "script ${NAME} (${case}.vs) failed")
endif()
