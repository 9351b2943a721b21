# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# pilotel::device_sdk for mingw-w64: programs import the contract under the names that Microsoft's compiler exports.
# The simulated SDK exports them as well, so one and the same program starts with either library. It is loaded by the first
# call, so that a program can tell what is wrong with it (launcher/librarynotice.cpp).
set(definition ${PROJECT_SOURCE_DIR}/sdk/veltrix.sdk.def)
set(import_library ${CMAKE_ARCHIVE_OUTPUT_DIRECTORY}/libveltrix.sdk.contract.a)
file(MAKE_DIRECTORY ${CMAKE_ARCHIVE_OUTPUT_DIRECTORY})
add_custom_command(
    OUTPUT ${import_library}
    COMMAND ${CMAKE_DLLTOOL} --input-def ${definition} --output-delaylib ${import_library}
    DEPENDS ${definition}
    VERBATIM
)
add_custom_target(veltrix_sdk_import_library DEPENDS ${import_library})

add_library(pilotel_device_sdk INTERFACE)
add_dependencies(pilotel_device_sdk veltrix_sdk_import_library)
target_link_libraries(pilotel_device_sdk INTERFACE pilotel::sdk ${import_library})
add_library(pilotel::device_sdk ALIAS pilotel_device_sdk)

if(NOT PILOTEL_DEVICE_SDK)
    add_dependencies(pilotel_device_sdk veltrix_simulator)
    return()
endif()

# What the maker's library exports is known to this file only by the contract, so a difference is told now, with the
# name, and not by Windows when an operator starts the program.
execute_process(
    COMMAND ${CMAKE_OBJDUMP} -p ${PILOTEL_DEVICE_SDK}
    OUTPUT_VARIABLE exports ERROR_VARIABLE error RESULT_VARIABLE status
)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "PILOTEL_DEVICE_SDK: ${PILOTEL_DEVICE_SDK} is no library of Windows: ${error}")
endif()
if(NOT exports MATCHES "pei-x86-64")
    message(FATAL_ERROR "PILOTEL_DEVICE_SDK: ${PILOTEL_DEVICE_SDK} is no library for 64-bit Windows. Name the maker's "
        "veltrix.sdk.dll for it; there is no program for 32-bit Windows.")
endif()
# What it imports itself stands before this.
string(REGEX REPLACE ".*\\[Ordinal/Name Pointer\\] Table" "" exports "${exports}")
file(STRINGS ${definition} imports REGEX "^[^;].* == ")
foreach(import IN LISTS imports)
    string(REGEX REPLACE ".* == " "" name "${import}")
    string(FIND "${exports}" "${name}" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "PILOTEL_DEVICE_SDK: ${PILOTEL_DEVICE_SDK} does not export ${name}. Name the maker's "
            "veltrix.sdk.dll for 64-bit Windows; if it is that one, its names belong into sdk/veltrix.sdk.def.")
    endif()
endforeach()
