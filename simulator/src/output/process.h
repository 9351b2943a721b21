// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the process has from outside: its environment and standard error.
#pragma once

#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// A variable of the environment in UTF-8 (on other systems than Windows its bytes); empty when it is not
/// set.
std::string environmentVariable(const char *name);

/// Writes a text in UTF-8 to standard error at once, with its line feeds as they are. On Windows a program
/// without a console tells a debugger as well.
void writeToStandardError(std::string_view text);

} // namespace veltrix_simulator
