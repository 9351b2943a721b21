// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a word of a command line can be, for the shells.
#pragma once

#include "session.h"

#include <string>
#include <vector>

namespace ctl
{

/// Where the command line is typed.
enum class TypedIn
{
    Bash,
    OurShell,
};

/// What a begun word can become behind the words before it, of which the program's name is none: commands,
/// options, ports, names and values of settings. Nothing where a file is wanted. No device is opened.
std::vector<std::string> completions(Session &session, const std::vector<std::string> &before,
                                     const std::string &begun, TypedIn where);

} // namespace ctl
