// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a console program tells on standard error.
#pragma once

#include <string>

namespace sdk_check
{

/// Whether standard error is a terminal, at which somebody may watch.
bool errorsAreWatched();

/// What became of standard output.
enum class Output
{
    Written,
    WithoutReader, ///< Who read it has gone, such as head.
    Lost,          ///< It could not be written, such as on a full disc.
};

/// Writes out what waits, and looks whether all was written up to now.
Output outputUntilNow();

/// Tells what went wrong, each line behind the name of the program, after all that stands on standard output.
void tell(const std::string &program, const std::string &text);

} // namespace sdk_check
