# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# Writes the scenarios of FOLDER as a source file OUTPUT, each under the name of its file.
file(GLOB files ${FOLDER}/*.toml)
list(SORT files)

set(rows "")
foreach(file IN LISTS files)
    get_filename_component(name ${file} NAME_WLE)
    file(READ ${file} text)
    string(APPEND rows "        {\"${name}\", R\"toml(${text})toml\"},\n")
endforeach()

file(WRITE ${OUTPUT} "// The scenarios of simulator/scenarios; written by cmake/EmbedScenarios.cmake.
#include \"scenarios/scenariolibrary.h\"

namespace veltrix_simulator
{

const std::vector<ShippedScenario> &shippedScenarios()
{
    static const std::vector<ShippedScenario> list{
${rows}    };
    return list;
}

} // namespace veltrix_simulator
")
