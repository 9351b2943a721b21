# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# What is installed, and where. A component is what one Debian package holds, and has its name; the component "licence" is
# for installations without packages. Everything lies below the prefix and may be moved together.
if(WIN32 OR APPLE)
    # scripts/windows puts together what Windows gets.
    return()
endif()
include(CMakePackageConfigHelpers)

foreach(folder BINDIR LIBDIR LIBEXECDIR)
    if(IS_ABSOLUTE "${CMAKE_INSTALL_${folder}}")
        message(FATAL_ERROR "CMAKE_INSTALL_${folder}: ${CMAKE_INSTALL_${folder}} is not below the prefix. Name it as seen "
            "from there, for the programs find the device library by its place beside their own.")
    endif()
endforeach()

# The device library has a folder of its own, where no other program stumbles over it.
set(device_library_folder ${CMAKE_INSTALL_LIBDIR}/pilotel)
set(contract_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/VeltrixSdkContract)
set(documentation_root ${CMAKE_INSTALL_DATAROOTDIR}/doc)

# pilotel_install_program(<target> <component> <folder> [<place>...])
# Installs a program that finds the device library beside itself, where an administrator puts the maker's, in the folder
# lib next to its own, and last where the simulated one is installed; ARGN are more places, for a build tree. The
# build tree has the same list as the installation: CMake would leave an empty entry at the end of a list that it replaces,
# and that entry is the folder in which the program is started.
function(pilotel_install_program target component folder)
    file(RELATIVE_PATH to_prefix /prefix/${folder} /prefix)
    set(places
        $ORIGIN
        $ORIGIN/${to_prefix}local/lib/pilotel
        $ORIGIN/${to_prefix}lib
        $ORIGIN/${to_prefix}${device_library_folder}
        ${ARGN}
    )
    set_target_properties(${target} PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "${places}")
    install(TARGETS ${target} RUNTIME DESTINATION ${folder} COMPONENT ${component})
endfunction()

pilotel_install_program(pilotel pilotel ${CMAKE_INSTALL_BINDIR})
pilotel_install_program(pilotel-sdk-check pilotel-tools ${CMAKE_INSTALL_BINDIR})
pilotel_install_program(pilotel-ctl pilotel-tools ${CMAKE_INSTALL_BINDIR})
if(TARGET pilotel-tour)
    # Not for operators: it shows on a machine without a display that the window works.
    pilotel_install_program(pilotel-tour pilotel-tools ${CMAKE_INSTALL_LIBEXECDIR}/pilotel $ORIGIN/../local/lib/pilotel
                            $ORIGIN/../lib
    )
endif()
# These load no device library themselves.
set_target_properties(
    pilotel-start pilotel-curves veltrix_simulator PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH ""
)
install(TARGETS pilotel-start RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT pilotel)
# Only pilotel-ctl starts it.
install(TARGETS pilotel-curves RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/pilotel COMPONENT pilotel-tools)
install(TARGETS veltrix_simulator LIBRARY DESTINATION ${device_library_folder} COMPONENT libveltrix-sdk-simulator)
install(
    DIRECTORY simulator/scenarios
    DESTINATION ${CMAKE_INSTALL_DATADIR}/pilotel
    COMPONENT libveltrix-sdk-simulator
    FILES_MATCHING
    PATTERN "*.toml"
)

# What a desktop shows, and the manual pages, each with what it tells of.
install(FILES packaging/linux/pilotel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT pilotel)
install(FILES packaging/linux/com.example.pilotel.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT pilotel)
install(DIRECTORY packaging/linux/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons COMPONENT pilotel)
install(
    FILES packaging/linux/man/pilotel.1 packaging/linux/man/pilotel-start.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
    COMPONENT pilotel
)
install(
    FILES packaging/linux/man/pilotel-ctl.1 packaging/linux/man/pilotel-sdk-check.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
    COMPONENT pilotel-tools
)
# Bash finds it there by the name of the program.
install(
    FILES packaging/linux/bash-completion/pilotel-ctl
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    COMPONENT pilotel-tools
)
install(
    FILES packaging/linux/man/pilotel-scenario.5
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man5
    COMPONENT libveltrix-sdk-simulator
)

install(
    DIRECTORY sdk/veltrix_sdk
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    COMPONENT libveltrix-sdk-dev
    FILES_MATCHING
    PATTERN "*.h"
)
install(TARGETS pilotel_sdk EXPORT VeltrixSdkContract)
install(
    EXPORT VeltrixSdkContract
    NAMESPACE VeltrixSdkContract::
    FILE VeltrixSdkContractTargets.cmake
    DESTINATION ${contract_package_folder}
    COMPONENT libveltrix-sdk-dev
)
configure_package_config_file(
    cmake/VeltrixSdkContractConfig.cmake.in ${PROJECT_BINARY_DIR}/VeltrixSdkContractConfig.cmake
    INSTALL_DESTINATION ${contract_package_folder}
    PATH_VARS device_library_folder
    NO_CHECK_REQUIRED_COMPONENTS_MACRO
)
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/VeltrixSdkContractConfigVersion.cmake COMPATIBILITY SameMajorVersion
)
install(
    FILES ${PROJECT_BINARY_DIR}/VeltrixSdkContractConfig.cmake
          ${PROJECT_BINARY_DIR}/VeltrixSdkContractConfigVersion.cmake
    DESTINATION ${contract_package_folder}
    COMPONENT libveltrix-sdk-dev
)
install(
    DIRECTORY sdk/example/
    DESTINATION ${documentation_root}/libveltrix-sdk-dev/examples/serial-number
    COMPONENT libveltrix-sdk-dev
)

install(
    FILES CHANGELOG.md docs/command-line.md docs/recordings.md docs/sdk-check.md docs/user-guide.md
    DESTINATION ${documentation_root}/pilotel
    COMPONENT pilotel-doc
)
install(
    DIRECTORY docs/pictures
    DESTINATION ${documentation_root}/pilotel
    COMPONENT pilotel-doc
    FILES_MATCHING
    PATTERN "*.png"
)
install(
    FILES simulator/README.md
    DESTINATION ${documentation_root}/pilotel
    RENAME simulator.md
    COMPONENT pilotel-doc
)
install(
    FILES LICENSE
    DESTINATION ${documentation_root}/pilotel
    COMPONENT licence
)
