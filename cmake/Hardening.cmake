# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# On Linux what compiler, linker and loader offer against attacks on memory, for everything that is built here. What it has
# come to in the files is checked by scripts/parts/check-elf-files.
if(WIN32 OR APPLE)
    return()
endif()
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fstack-protector-strong)
# Not every processor, or compiler for it, has these.
foreach(flag stack-clash-protection cf-protection)
    string(MAKE_C_IDENTIFIER PILOTEL_HAS_${flag} variable)
    check_cxx_compiler_flag(-f${flag} ${variable})
    if(${variable})
        add_compile_options(-f${flag})
    endif()
endforeach()

# Checked functions need the optimiser, and hide from the sanitizers what these would find.
set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
if(NOT PILOTEL_SANITIZE)
    add_compile_options($<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>)
endif()

# All of a library is looked up before main(), so a device library that lacks something is told before anything is opened,
# and what was looked up is never written again.
add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
