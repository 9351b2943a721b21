# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# What the programs and the simulated library bring along on Windows: icon, manifest, version, and what is done before main().
include_guard(GLOBAL)

if(WIN32)
    enable_language(RC)
endif()
set(windows_resources ${PROJECT_SOURCE_DIR}/resources/windows)

# pilotel_write_windows_resource(<output> <name> <file> DESCRIPTION <text> [WINDOW | LIBRARY])
# Writes the resource of a program, or of a library, with the version of the project. WINDOW: with the icon.
function(pilotel_write_windows_resource output name file)
    cmake_parse_arguments(RESOURCE "WINDOW;LIBRARY" "DESCRIPTION" "" ${ARGN})
    set(RESOURCE_NAME ${name})
    set(RESOURCE_FILE ${file})
    set(RESOURCE_TYPE VFT_APP)
    set(RESOURCE_ICON "")
    set(RESOURCE_MANIFEST "CREATEPROCESS_MANIFEST_RESOURCE_ID RT_MANIFEST \"program.manifest\"")
    if(RESOURCE_WINDOW)
        set(RESOURCE_ICON "IDI_ICON1 ICON \"../picture/camera.ico\"")
    elseif(RESOURCE_LIBRARY)
        set(RESOURCE_TYPE VFT_DLL)
        set(RESOURCE_MANIFEST "")
    endif()
    configure_file(${windows_resources}/program.rc.in ${output} @ONLY)
endfunction()

# Gives such a resource to a target.
function(pilotel_windows_resource target file)
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/${file}.rc)
    pilotel_write_windows_resource(${resource} ${target} ${file} ${ARGN})
    target_sources(${target} PRIVATE ${resource})
    set_source_files_properties(
        ${resource} PROPERTIES INCLUDE_DIRECTORIES ${windows_resources}
                               OBJECT_DEPENDS "${windows_resources}/program.manifest;${PROJECT_SOURCE_DIR}/resources/picture/camera.ico"
    )
endfunction()

# pilotel_windows_program(<target> DESCRIPTION <text> [WINDOW])
# Gives a program its resource. With WINDOW it has the icon, and what keeps it from starting is told in a box as well. Does nothing on other
# systems.
function(pilotel_windows_program target)
    if(NOT WIN32)
        return()
    endif()
    pilotel_windows_resource(${target} ${target}.exe ${ARGN})
    set(sources ${PROJECT_SOURCE_DIR}/launcher/standardoutput.cpp)
    if(MSVC)
        # Its linker would write a manifest of its own beside the one of the resource.
        target_link_options(${target} PRIVATE /MANIFEST:NO)
    endif()
    if(MINGW)
        list(APPEND sources ${PROJECT_SOURCE_DIR}/launcher/librarynotice.cpp)
    endif()
    target_sources(${target} PRIVATE ${sources})
    # What Windows declares stays within these files.
    set_source_files_properties(${sources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    if(WINDOW IN_LIST ARGN)
        set_source_files_properties(${sources} PROPERTIES COMPILE_DEFINITIONS TELLS_IN_A_BOX)
    endif()
endfunction()

# pilotel_windows_library(<target> <file> DESCRIPTION <text>)
# Gives a library its resource.
function(pilotel_windows_library target file)
    if(WIN32)
        pilotel_windows_resource(${target} ${file} LIBRARY ${ARGN})
    endif()
endfunction()
