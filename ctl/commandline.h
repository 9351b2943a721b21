// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The command line: which command with what, for the program and for each line of its shell.
#pragma once

#include "badpixels.h"
#include "commands.h"
#include "completion.h"
#include "watch.h"

#include <functional>
#include <string>
#include <vector>

namespace CLI
{
class App;
} // namespace CLI

namespace ctl
{

/// What stands on a command line.
struct Arguments
{
    Link link{};
    std::vector<std::string> names{}; ///< Of settings, with or without values.
    std::string file{};
    std::string profile{"-"};
    bool json{false};
    bool dryRun{false};
    std::string set{};
    std::vector<std::string> units{};
    Watch watch{};
    Pixels pixels{};
    std::string picture{};
};

using Command = std::function<ExitStatus(Session &)>;

/// Adds options and subcommands to a parser; in our own shell without the device and without another shell.
/// It puts the command that it finds where the caller says; both outlive it, and the arguments outlive the
/// command too.
void addCommands(CLI::App &parser, Arguments &arguments, Command &command, TypedIn where);

/// Parses the words behind the name of the program. Throws a Failure for wrong ones. What --help and
/// --version write is written, and no command is left then.
Command parse(const std::vector<std::string> &words, Arguments &arguments, TypedIn where);

} // namespace ctl
