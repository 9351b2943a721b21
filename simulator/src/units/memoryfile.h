// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file that saved parameters are kept in.
#pragma once

#include "units/unitfields.h"
#include "units/unitnames.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace veltrix_simulator
{

/// What the units keep without power: by target and field the values of the sets that have been saved, each
/// set with all its values or with none.
struct MemoryImage
{
    std::array<std::array<std::optional<double>, unitFields.size()>, unitCount> units{};
};

/// A larger file is refused.
constexpr std::size_t largestMemoryFile{std::size_t{1} << 20};

/// Whether a memory file can hold the number for a field: the unit accepts it or, where the configuration
/// settles what it accepts, it is of the field's kind.
bool canBeKept(const UnitField &row, double number);

/// The bytes of a file.
std::string formatMemory(const MemoryImage &image);

/// What the bytes of a file hold, or what is wrong with them and where. Takes any bytes.
std::variant<MemoryImage, std::string> parseMemory(std::string_view bytes);

} // namespace veltrix_simulator
