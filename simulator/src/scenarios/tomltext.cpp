// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The TOML parser, set up so that no text can crash it.
#include "scenarios/tomltext.h"

#include <algorithm>
#include <vector>

namespace veltrix_simulator
{
namespace
{

/// Thrown from inside the parser; it does not say in which line.
struct GivenUp
{
};

/// Whether the parser gives up on the text, rather than taking or refusing it.
bool isGivenUp(std::string_view text)
{
    try {
        static_cast<void>(toml::parse(text));
    } catch (const toml::parse_error &) {
        return false;
    } catch (const GivenUp &) {
        return true;
    }
    return false;
}

/// The line, counted from 1, in which the parser gives up on the text. It reads from the start, so it gives
/// up on every beginning of the text that contains this line.
std::size_t lineOfGivingUp(std::string_view text)
{
    std::vector<std::size_t> ends;
    for (std::size_t end{text.find('\n')}; end != std::string_view::npos; end = text.find('\n', end + 1)) {
        ends.push_back(end + 1);
    }
    const auto line = std::partition_point(ends.begin(), ends.end(),
                                           [&](std::size_t end) { return !isGivenUp(text.substr(0, end)); });
    return static_cast<std::size_t>(line - ends.begin()) + 1;
}

} // namespace

void giveUpParsing()
{
    throw GivenUp{};
}

std::variant<toml::table, TomlError> parseToml(std::string_view text)
{
    try {
        return toml::parse(text);
    } catch (const toml::parse_error &error) {
        const toml::source_position &position = error.source().begin;
        return TomlError{position.line, position.column, std::string{error.description()}};
    } catch (const GivenUp &) {
        return TomlError{lineOfGivingUp(text), 1, "this line has a character that needs quotes"};
    }
}

} // namespace veltrix_simulator
