# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# The warnings that every target of ours compiles with, as errors where PILOTEL_WERROR says so.
add_library(pilotel_warnings INTERFACE)
add_library(pilotel::warnings ALIAS pilotel_warnings)

if(MSVC)
    target_compile_options(pilotel_warnings INTERFACE /W4 /permissive- /utf-8 $<$<BOOL:${PILOTEL_WERROR}>:/WX>)
else()
    target_compile_options(
        pilotel_warnings
        INTERFACE
            -Wall
            -Wextra
            -Wpedantic
            -Wconversion
            -Wsign-conversion
            -Wshadow
            -Wnon-virtual-dtor
            -Wold-style-cast
            -Wcast-align
            -Woverloaded-virtual
            -Wdouble-promotion
            -Wformat=2
            -Wextra-semi
            $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wuseless-cast>
            $<$<BOOL:${PILOTEL_WERROR}>:-Werror>
    )
endif()
