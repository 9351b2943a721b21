# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# Coverage counts no branch that only an exception would take: sources that neither throw nor catch are compiled without
# them. An exception of the simulator's still passes through such a source; what lives there is not destroyed then, so this
# is for coverage alone.
foreach(
    target
    pilotel pilotel_appearance pilotel_check pilotel_ctl pilotel-ctl pilotel-curves pilotel_forms pilotel_mainwindow
    pilotel_operatorinput pilotel_ports pilotel_recording pilotel_screenfit pilotel_settings pilotel-sdk-check
    veltrix_simulator_files veltrix_simulator_objects
)
    get_target_property(directory ${target} SOURCE_DIR)
    get_target_property(sources ${target} SOURCES)
    # What is generated does not count.
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    list(FILTER sources EXCLUDE REGEX "^${CMAKE_BINARY_DIR}/")
    foreach(source IN LISTS sources)
        get_filename_component(source ${source} ABSOLUTE BASE_DIR ${directory})
        file(STRINGS ${source} exceptions REGEX "(^|[^a-z])(throw|try|catch)[ ;(]|<CLI/")
        list(FILTER exceptions EXCLUDE REGEX "^ *//")
        if(NOT exceptions)
            set_source_files_properties(
                ${source} TARGET_DIRECTORY ${target} PROPERTIES COMPILE_OPTIONS -fno-exceptions
            )
        endif()
    endforeach()
endforeach()
