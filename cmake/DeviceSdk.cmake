# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# Finds the library behind the device SDK contract: the maker's, where PILOTEL_DEVICE_SDK names it, else
# the simulated one of this project.
#
# The program is linked against pilotel::device_sdk only. Whichever library is linked here, another one with
# the same contract and file name can take its place at run time.
set(PILOTEL_DEVICE_SDK "" CACHE FILEPATH "The maker's veltrix.sdk (with Visual Studio its import library); empty: the simulated SDK")

if(PILOTEL_DEVICE_SDK AND NOT EXISTS "${PILOTEL_DEVICE_SDK}")
    message(FATAL_ERROR "PILOTEL_DEVICE_SDK: ${PILOTEL_DEVICE_SDK} does not exist. "
        "Name the maker's library, or leave the variable empty to build against the simulated SDK.")
endif()

if(UNIX AND NOT APPLE)
    # The programs find the maker's library as in an installation: through the folder for what an administrator adds.
    set(folder ${PROJECT_BINARY_DIR}/local/lib/pilotel)
    file(REMOVE_RECURSE ${folder})
    if(PILOTEL_DEVICE_SDK)
        file(MAKE_DIRECTORY ${folder})
        cmake_path(GET PILOTEL_DEVICE_SDK FILENAME name)
        cmake_path(ABSOLUTE_PATH PILOTEL_DEVICE_SDK BASE_DIRECTORY ${CMAKE_BINARY_DIR} OUTPUT_VARIABLE library)
        file(CREATE_LINK ${library} ${folder}/${name} SYMBOLIC)
    endif()
endif()

if(MINGW)
    include(MicrosoftImports)
elseif(PILOTEL_DEVICE_SDK)
    add_library(pilotel_device_sdk UNKNOWN IMPORTED GLOBAL)
    set_target_properties(pilotel_device_sdk PROPERTIES
        IMPORTED_LOCATION "${PILOTEL_DEVICE_SDK}"
        INTERFACE_LINK_LIBRARIES pilotel::sdk)
    add_library(pilotel::device_sdk ALIAS pilotel_device_sdk)
else()
    # LINK_ONLY: what links this sees the contract, never the simulator's own headers.
    add_library(pilotel_device_sdk INTERFACE)
    target_link_libraries(pilotel_device_sdk INTERFACE pilotel::sdk $<LINK_ONLY:veltrix_simulator>)
    add_library(pilotel::device_sdk ALIAS pilotel_device_sdk)
endif()
