# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# Writes OUTPUT: for the interfaces of configuration and device a class that hands every operation on to another
# object, from the headers in SDK.
set(text "")
foreach(header configuration device_control)
    file(READ ${SDK}/veltrix_sdk/${header}.h content)
    string(REGEX REPLACE "//[^\n]*" "" content "${content}")
    string(REGEX REPLACE "[ \n]+" " " content "${content}")
    string(REGEX MATCH "class (I[A-Za-z]+) {" ignored "${content}")
    set(interface ${CMAKE_MATCH_1})
    # What Microsoft's compiler does not see.
    string(REGEX REPLACE "#else [^#]*#endif" "" content "${content}")
    string(APPEND text "struct Forward${interface} final : ${interface}\n{\n    ${interface} *inner;\n")
    string(REGEX MATCHALL "virtual [^();]*[ *&][A-Za-z0-9_]+\\([^)]*\\) = 0" operations "${content}")
    foreach(operation IN LISTS operations)
        string(REGEX MATCH "virtual ([^();]*[ *&])([A-Za-z0-9_]+)\\(([^)]*)\\)" ignored "${operation}")
        set(result "${CMAKE_MATCH_1}")
        set(name "${CMAKE_MATCH_2}")
        set(parameters "${CMAKE_MATCH_3}")
        string(REGEX REPLACE "[^,]*[ *&]([A-Za-z0-9_]+)(,|$)" "\\1\\2 " arguments "${parameters}")
        string(APPEND text
               "    ${result}${name}(${parameters}) override { return inner->${name}(${arguments}); }\n")
    endforeach()
    string(APPEND text "};\n")
endforeach()
file(WRITE ${OUTPUT} "${text}")
