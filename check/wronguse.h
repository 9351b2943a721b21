// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a console program says about a command line that it does not understand.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace sdk_check
{

/// What is wrong, with the nearest word that there is, and in a second line how to go on. Without a last line
/// feed; control characters are visible. The parser is the one that threw the error.
std::string wrongUseText(const CLI::App &parser, const CLI::ParseError &error);

} // namespace sdk_check
