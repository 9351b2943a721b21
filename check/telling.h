// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a console program tells on standard error.
#pragma once

#include <string>

namespace sdk_check
{

/// Whether standard error is a terminal, at which somebody may watch.
bool errorsAreWatched();

/// Tells what went wrong, each line behind the name of the program, after all that stands on standard output.
void tell(const std::string &program, const std::string &text);

} // namespace sdk_check
