# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# Test programs and their entries in CTest.
include_guard(GLOBAL)

# pilotel_add_tests(<program> ENTRIES <entry>... [SOURCES <file>...] [LIBRARIES <target>...]
#                   [WINDOW] [OPTIMISED])
#
# A program of several test classes. The entry tst_bad_pixels runs the class that tst_bad_pixels.cpp registers; an entry
# tst_torture.settings runs one function of a class, so that several processors share a long one. Every entry is a
# process of its own, off screen, in Fusion style, in a working directory of its own. With WINDOW the tests get a
# QApplication, else a QCoreApplication. SOURCES are what the tests share. A build with the sanitizers does not optimise
# them, since most tests run for moments and take longer to compile; with OPTIMISED it does, as every build but a debug
# one does.
#
# One more entry, <program>.entries, holds the entries against what the program has to run.
function(pilotel_add_tests program)
    cmake_parse_arguments(TEST "WINDOW;OPTIMISED" "" "ENTRIES;SOURCES;LIBRARIES" ${ARGN})
    set(classes ${TEST_ENTRIES})
    list(TRANSFORM classes REPLACE "\\..*" "")
    list(REMOVE_DUPLICATES classes)
    set(sources ${classes})
    list(TRANSFORM sources APPEND ".cpp")
    set(runner pilotel::testrunner)
    if(TEST_WINDOW)
        set(runner pilotel::windowtestrunner)
    endif()

    add_executable(${program} ${sources} ${TEST_SOURCES})
    set_target_properties(${program} PROPERTIES AUTOMOC ON)
    target_link_libraries(${program} PRIVATE ${TEST_LIBRARIES} ${runner} Qt5::Test pilotel::warnings)
    if(NOT MSVC AND NOT TEST_OPTIMISED)
        target_compile_options(${program} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O0> $<$<CONFIG:RelWithDebInfo>:-U_FORTIFY_SOURCE>)
    endif()
    # Qt's headers are half of what a test compiles; several tests together read them once.
    set_target_properties(${program} PROPERTIES UNITY_BUILD ${PILOTEL_UNITY_TESTS})

    foreach(entry IN LISTS TEST_ENTRIES)
        string(REPLACE "." ";" class_and_function ${entry})
        pilotel_add_test_entry(${entry} ${program} ${class_and_function})
    endforeach()
    pilotel_add_test_entry(${program}.entries ${program} --entries ${TEST_ENTRIES})

    list(TRANSFORM sources PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    set_property(GLOBAL APPEND PROPERTY PILOTEL_TEST_SOURCES ${sources})
endfunction()

# pilotel_add_test_entry(<entry> <command>...)
function(pilotel_add_test_entry entry)
    set(directory ${CMAKE_BINARY_DIR}/test-directories/${entry})
    file(MAKE_DIRECTORY ${directory})
    add_test(NAME ${entry} COMMAND ${ARGN} WORKING_DIRECTORY ${directory})
    set_tests_properties(
        ${entry} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_STYLE_OVERRIDE=fusion;LANG=C.UTF-8;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/leaks.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1"
    )
endfunction()

# pilotel_leave_out_tests(<test>...)
# Says of tests in this folder that this platform cannot run them.
function(pilotel_leave_out_tests)
    set(sources ${ARGN})
    list(TRANSFORM sources PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    list(TRANSFORM sources APPEND ".cpp")
    set_property(GLOBAL APPEND PROPERTY PILOTEL_TEST_SOURCES ${sources})
endfunction()

# Stops the configuration when a source file of a test below this folder is neither in a program nor left out.
function(pilotel_no_test_is_forgotten)
    file(GLOB_RECURSE forgotten CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/tst_*.cpp)
    get_property(known GLOBAL PROPERTY PILOTEL_TEST_SOURCES)
    list(REMOVE_ITEM forgotten ${known})
    if(forgotten)
        message(FATAL_ERROR "These tests belong to no program: ${forgotten}")
    endif()
endfunction()
