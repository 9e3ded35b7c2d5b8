# Runs a program and compares what it prints with an expected text.
#
#     cmake -DPROGRAM=... -DARGUMENTS=a,b -DEXPECTED=file -DACTUAL=file -P CompareOutput.cmake
cmake_minimum_required(VERSION 3.25)

string(REPLACE "," ";" arguments "${ARGUMENTS}")
execute_process(COMMAND "${PROGRAM}" ${arguments} OUTPUT_FILE "${ACTUAL}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result}")
endif()

execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${ACTUAL}" "${EXPECTED}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    execute_process(COMMAND diff -u "${EXPECTED}" "${ACTUAL}")
    message(FATAL_ERROR "${PROGRAM} printed something else than ${EXPECTED}")
endif()
