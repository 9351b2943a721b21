// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The command line of the check.
#pragma once

#include "check.h"

#include <string>
#include <vector>

/// What the command line asks for.
struct CommandLine
{
    sdk_check::Options options; ///< The port is empty where none is named.
    std::string recording{};    ///< The file of the recording; empty where none is named.
    std::string help;           ///< What --help shows; empty when it is not asked for.
    std::string error;          ///< Lines about what is wrong; empty when nothing is.
};

/// Reads the words behind the name of the program; one that is not known, or too much, is an error.
CommandLine parseCommandLine(const std::vector<std::string> &words);
