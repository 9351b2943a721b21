// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the units keep without power.
#include "units/memory.h"

#include "output/replacefile.h"
#include "veltrix_sdk/logger.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <ios>
#include <system_error>
#include <variant>

namespace veltrix_simulator
{
namespace
{

/// What the file holds, or why that cannot be said.
std::variant<MemoryImage, std::string> load(const std::string &name)
{
    const std::filesystem::path path{std::filesystem::u8path(name)};
    std::error_code error;
    if (std::filesystem::status(path, error).type() == std::filesystem::file_type::not_found) {
        return MemoryImage{};
    }
    std::ifstream file{path, std::ios::binary};
    std::string bytes(largestMemoryFile + 1, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.is_open() || file.bad()) {
        return "it cannot be read";
    }
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return parseMemory(bytes);
}

void apply(const MemoryImage &image, State &state)
{
    for (std::size_t unit{0}; unit < state.units.size(); ++unit) {
        for (std::size_t field{0}; field < unitFields.size(); ++field) {
            double &value = state.units[unit].values[field];
            value = image.units[unit][field].value_or(value);
        }
    }
}

} // namespace

std::optional<std::string> Memory::restore(State &state, const std::string &name)
{
    fileName = name;
    image = {};
    if (name.empty()) {
        return std::nullopt;
    }
    auto loaded = load(name);
    if (const auto *const reason = std::get_if<std::string>(&loaded)) {
        fileName.clear();
        return "the memory file \"" + name + "\" cannot be used: " + *reason +
               "; repair it, or delete it to begin with an empty memory.";
    }
    image = std::get<MemoryImage>(loaded);
    apply(image, state);
    return std::nullopt;
}

bool Memory::save(const State &state, Saved set, LogOutput &log)
{
    if (fileName.empty()) {
        return true;
    }
    const auto refuse = [&](const std::string &reason) {
        log.write(veltrix_sdk::severity_warning, "The parameters are not saved: " + reason);
        return false;
    };
    const auto target = static_cast<std::size_t>(state.target);
    MemoryImage changed{image};
    for (const UnitField &row : unitFields) {
        const double number{state.units[target][row.id]};
        if (row.saved == set && !canBeKept(row, number)) {
            return refuse("the unit accepts no \"" + std::string{row.key} + "\" like its own");
        }
        if (row.saved == set) {
            changed.units[target][static_cast<std::size_t>(row.id)] = number;
        }
    }
    if (const auto problem = replaceFile(fileName, formatMemory(changed))) {
        return refuse(*problem);
    }
    image = changed;
    return true;
}

} // namespace veltrix_simulator
