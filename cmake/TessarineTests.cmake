# Functions for tests. Included by tests/CMakeLists.txt.

# What test programs are compiled with. Nobody waits for what a test computes but everybody for its
# compilation: without optimisation and with lines alone for the debugger it takes half the time.
add_library(tessarine_test_build INTERFACE)
target_link_libraries(tessarine_test_build INTERFACE tessarine_build)
target_include_directories(tessarine_test_build INTERFACE ${PROJECT_SOURCE_DIR}/tests)
if(NOT TESSARINE_SANITIZE)
    target_compile_options(tessarine_test_build INTERFACE -O0 -g1)
endif()

# Several sources of a test program compiled as one take a third of the time.
set(CMAKE_UNITY_BUILD ON)

# Of the headers that nearly all tests include, those of the test framework are the largest.
tessarine_precompiled_headers(tessarine_test_headers tessarine_test_build "Qt6::Core;GTest::gmock"
                              ${tessarineCoreHeaders} <gmock/gmock.h> <gtest/gtest.h>)
tessarine_precompiled_headers(tessarine_view_test_headers tessarine_test_build "Qt6::Quick;GTest::gmock"
                              ${tessarineViewHeaders} <gmock/gmock.h> <gtest/gtest.h>)

# A library of what several test programs share.
function(tessarine_test_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS}
                          PRIVATE tessarine_test_build ${ARG_PRIVATE_LINKS})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/tests)
endfunction()

# The target tests-LABEL builds what the tests of a label run.
function(tessarine_tests_need target)
    foreach(label IN LISTS ARGN)
        if(NOT TARGET tests-${label})
            add_custom_target(tests-${label})
        endif()
        add_dependencies(tests-${label} ${target})
    endforeach()
endfunction()

# The label of all tests in a folder of tests: its name.
function(tessarine_folder_label result)
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
    string(REGEX MATCH "^[^/]+" folder "${folder}")
    set(${result} ${folder} PARENT_SCOPE)
endfunction()

# One GoogleTest program, which is one test for CTest: a process for each case would spend far more on
# starting under the sanitizers than on testing. Its label is "view" if it draws windows, which it
# says, otherwise "unit"; "threads" comes on top for what threads share, which ThreadSanitizer watches
# too. SECONDS is about how long it takes, if long: CTest starts those first. PARTS is in how many tests
# of about the same length a long one is split, which run beside each other.
function(tessarine_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT;SECONDS;PARTS" "SOURCES;LINKS;LABELS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE tessarine_test_build ${ARG_LINKS} GTest::gmock)
    if(NOT tessarine_gui_test_support IN_LIST ARG_LINKS) # which has a main function of its own
        target_link_libraries(${name} PRIVATE tessarine_test_main)
        tessarine_use_precompiled(${name} tessarine_test_headers)
    else()
        tessarine_use_precompiled(${name} tessarine_view_test_headers)
    endif()
    if(NOT view IN_LIST ARG_LABELS)
        list(APPEND ARG_LABELS unit)
    endif()
    tessarine_tests_need(${name} ${ARG_LABELS})
    tessarine_folder_label(folder)
    if(NOT ARG_PARTS)
        set(ARG_PARTS 1)
    endif()
    foreach(part RANGE 1 ${ARG_PARTS})
        set(test ${name})
        if(ARG_PARTS GREATER 1)
            set(test ${name}_${part})
            math(EXPR index "${part} - 1")
            set(shard GTEST_TOTAL_SHARDS=${ARG_PARTS} GTEST_SHARD_INDEX=${index})
        endif()
        add_test(NAME ${test} COMMAND ${name} --gtest_brief=1)
        tessarine_test_properties(${test} "${ARG_TIMEOUT}" "${ARG_SECONDS}")
        set_tests_properties(${test} PROPERTIES LABELS "${ARG_LABELS};${folder}"
                             ENVIRONMENT "${ARG_ENVIRONMENT};${shard}")
    endforeach()
endfunction()

# tessarine_view_again(NAME PROGRAM FILTER): some tests of a program once more, as a display of double
# density shows them. What draws is the same code, which sanitizers have watched by then.
function(tessarine_view_again name program filter)
    if(TESSARINE_SANITIZE)
        return()
    endif()
    cmake_parse_arguments(ARG "" "SECONDS" "" ${ARGN})
    add_test(NAME ${name} COMMAND ${program} --gtest_brief=1 --gtest_filter=${filter})
    tessarine_test_properties(${name} "" "${ARG_SECONDS}")
    tessarine_folder_label(folder)
    set_tests_properties(${name} PROPERTIES LABELS "view;double;${folder}"
                         ENVIRONMENT QT_SCALE_FACTOR=2)
endfunction()

# A test in Python that runs a program of ours, or none, and judges what it gave. Python takes the
# time, so sanitizers would watch little for it; unit tests show them the same code.
function(tessarine_judge name script)
    if(TESSARINE_SANITIZE)
        return()
    endif()
    cmake_parse_arguments(ARG "" "SECONDS" "ARGUMENTS" ${ARGN})
    add_test(NAME ${name}
             COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/${script} ${ARG_ARGUMENTS})
    tessarine_test_properties(${name} "" "${ARG_SECONDS}")
    tessarine_folder_label(folder)
    set_tests_properties(${name} PROPERTIES LABELS "unit;${folder}" SKIP_RETURN_CODE 77)
endfunction()

function(tessarine_test_properties name timeout seconds)
    if(NOT timeout)
        set(timeout 900)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${timeout})
    if(seconds)
        set_tests_properties(${name} PROPERTIES COST ${seconds})
    endif()
endfunction()
