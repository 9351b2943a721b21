// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Parses a TOML text into values of our own. The parser's headers take seconds to compile, so only
// tomltext.cpp sees them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veltrix_simulator
{

/// A place in a text, counted from 1.
struct TomlPosition
{
    std::size_t line{1};
    std::size_t column{1};
};

struct TomlMember;

/// A value of a TOML text, and where it stands.
struct TomlNode
{
    using List = std::vector<TomlNode>;
    /// Sorted by key.
    using Table = std::vector<TomlMember>;

    /// The value when it is of this type, else null.
    template <typename Type>
    const Type *as() const
    {
        return std::get_if<Type>(&value);
    }

    /// Dates and times are of no use here and have no value.
    std::variant<std::monostate, bool, std::int64_t, double, std::string, List, Table> value;
    TomlPosition position;
};

/// One key of a table with its value.
struct TomlMember
{
    std::string key;
    TomlPosition keyPosition;
    TomlNode node;
};

/// Why a text is not TOML, and where.
struct TomlError
{
    TomlPosition position;
    std::string reason;
};

/// The table that is the whole text. No text can crash it.
std::variant<TomlNode, TomlError> parseToml(std::string_view text);

} // namespace veltrix_simulator
