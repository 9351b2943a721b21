// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The commands over one open connection, typed or from a file or a pipe.
#pragma once

#include "failure.h"
#include "session.h"

#include <string>
#include <vector>

namespace ctl
{

/// The words of a line: apart by blanks, kept together by quotes. What follows a # at the beginning of a word
/// is a comment. Throws a Failure for a quote without an end.
std::vector<std::string> wordsOf(const std::string &line);

/// Runs each line of a file, or of standard input where none is named. A line that fails ends it, except
/// where somebody types; the status is that of the last line that was run.
ExitStatus runShell(Session &session, const std::string &file);

} // namespace ctl
