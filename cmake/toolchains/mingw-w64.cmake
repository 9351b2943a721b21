# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# 64-bit Windows from Debian: mingw-w64 with POSIX threads, and a Qt 5 that was built with it. Its folder is named by
# -DQT_WIN64 or by the environment variable QT_WIN64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# What an operator gets has a size that is held; functions that nobody calls stay out of it.
set(CMAKE_CXX_FLAGS_INIT "-ffunction-sections -fdata-sections")
set(CMAKE_EXE_LINKER_FLAGS_INIT -Wl,--gc-sections)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -Wl,--gc-sections)

if(NOT QT_WIN64)
    set(QT_WIN64 "$ENV{QT_WIN64}")
endif()
get_filename_component(QT_WIN64 "${QT_WIN64}" ABSOLUTE BASE_DIR ${CMAKE_SOURCE_DIR})
if(NOT EXISTS "${QT_WIN64}/lib/cmake/Qt5/Qt5Config.cmake")
    message(FATAL_ERROR "QT_WIN64 (\"${QT_WIN64}\") holds no Qt 5 for Windows: name its folder in the environment or "
                        "with -DQT_WIN64, or let scripts/windows build one.")
endif()
set(QT_WIN64 "${QT_WIN64}" CACHE PATH "Qt 5, built with mingw-w64 for 64-bit Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QT_WIN64)

# Libraries that are headers alone are taken from the machine that builds, each by a link: its folder of headers as a
# whole would bring its C library.
get_property(is_try_compile GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT is_try_compile)
    set(header_libraries ${CMAKE_BINARY_DIR}/header-libraries)
    file(MAKE_DIRECTORY ${header_libraries}/include ${header_libraries}/share/cmake)
    foreach(item include/CLI include/nlohmann include/toml++ share/cmake/CLI11 share/cmake/nlohmann_json)
        file(CREATE_LINK /usr/${item} ${header_libraries}/${item} SYMBOLIC)
    endforeach()
endif()

set(CMAKE_FIND_ROOT_PATH ${QT_WIN64} ${header_libraries} /usr/x86_64-w64-mingw32)
set(CMAKE_PREFIX_PATH ${QT_WIN64})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
find_program(WINE_PROGRAM NAMES wine wine64)
if(WINE_PROGRAM)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE_PROGRAM})
endif()
