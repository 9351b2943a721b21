# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# One test program and its entry in CTest.
include_guard(GLOBAL)

# pilotel_add_test(NAME <name> SOURCES <file>... [LIBRARIES <target>...])
# Runs off screen, in Fusion style, in a working directory of its own.
function(pilotel_add_test)
    cmake_parse_arguments(TEST "" "NAME" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${TEST_NAME} ${TEST_SOURCES})
    set_target_properties(${TEST_NAME} PROPERTIES AUTOMOC ON)
    target_link_libraries(${TEST_NAME} PRIVATE ${TEST_LIBRARIES} Qt5::Test pilotel::warnings)
    set(directory ${CMAKE_BINARY_DIR}/test-directories/${TEST_NAME})
    file(MAKE_DIRECTORY ${directory})
    add_test(NAME ${TEST_NAME} COMMAND ${TEST_NAME} WORKING_DIRECTORY ${directory})
    set_tests_properties(
        ${TEST_NAME} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_STYLE_OVERRIDE=fusion;LANG=C.UTF-8;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/leaks.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1"
    )
endfunction()
