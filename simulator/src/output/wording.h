// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How messages name what stands in a file that somebody else may have written.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace veltrix_simulator
{

/// Whether a byte is a control character of ASCII, whatever the locale.
bool isControl(char character);

/// The text fit for one line: control characters become question marks, and of a longer text only the
/// beginning is there.
std::string oneLine(std::string_view text, std::size_t longest);

/// The beginning of a text between quotes, fit for one line.
std::string inQuotes(std::string_view text);

/// The names as an author reads them: `"a"`, `"a" or "b"`, `"a", "b" or "c"`; the same with "and".
std::string alternatives(const std::vector<std::string> &names);
std::string enumeration(const std::vector<std::string> &names);

/// Whether the name is one of these.
bool isOneOf(std::string_view name, const std::vector<std::string> &names);

/// The known name that is most like the wrong one; empty when none is like it.
std::string nearest(std::string_view wrong, const std::vector<std::string> &known);

/// How to go on from a wrong name: `; did you mean "onCall"?`, and where no name is
/// like it, all of them or where to find them.
std::string suggestion(std::string_view wrong, const std::vector<std::string> &known);

} // namespace veltrix_simulator
