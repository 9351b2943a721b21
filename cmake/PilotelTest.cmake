# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# One test program and its entries in CTest.
include_guard(GLOBAL)

# pilotel_add_test(NAME <name> SOURCES <file>... [LIBRARIES <target>...] [FUNCTIONS <function>...] [TIMEOUT <seconds>])
# Runs off screen, in Fusion style, in a working directory of its own. With FUNCTIONS each of these test functions is
# an entry of its own, so that several processors share a long program.
function(pilotel_add_test)
    cmake_parse_arguments(TEST "" "NAME;TIMEOUT" "SOURCES;LIBRARIES;FUNCTIONS" ${ARGN})
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 300)
    endif()
    add_executable(${TEST_NAME} ${TEST_SOURCES})
    set_target_properties(${TEST_NAME} PROPERTIES AUTOMOC ON)
    target_link_libraries(${TEST_NAME} PRIVATE ${TEST_LIBRARIES} Qt5::Test pilotel::warnings)
    if(TEST_FUNCTIONS)
        foreach(function IN LISTS TEST_FUNCTIONS)
            pilotel_add_test_entry(${TEST_NAME}.${function} ${TEST_TIMEOUT} ${TEST_NAME} ${function})
        endforeach()
    else()
        pilotel_add_test_entry(${TEST_NAME} ${TEST_TIMEOUT} ${TEST_NAME})
    endif()
endfunction()

function(pilotel_add_test_entry name timeout)
    set(directory ${CMAKE_BINARY_DIR}/test-directories/${name})
    file(MAKE_DIRECTORY ${directory})
    add_test(NAME ${name} COMMAND ${ARGN} WORKING_DIRECTORY ${directory})
    set_tests_properties(
        ${name} PROPERTIES
        TIMEOUT ${timeout}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_STYLE_OVERRIDE=fusion;LANG=C.UTF-8;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/leaks.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1"
    )
endfunction()
