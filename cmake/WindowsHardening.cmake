# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# 64-bit Windows alone, and with mingw-w64 what the system and the compiler offer against attacks on memory.
if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    message(FATAL_ERROR "The maker's library for Windows is a 64-bit one, and so must the program be: "
                        "configure with a compiler for 64-bit Windows (with Visual Studio: -A x64).")
endif()

if(MINGW)
    add_compile_options(-fstack-protector-strong)
    # Everything in another place at each start, from all 64 bits of addresses; data is never run.
    add_link_options(-fstack-protector-strong -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
endif()
