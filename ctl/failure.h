// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How a command ends that did not do what it was asked for.
#pragma once

#include <stdexcept>
#include <string>

namespace ctl
{

/// What the program ends with.
enum ExitStatus
{
    done = 0,
    refused = 1,  ///< The device refused something or differs, or the command was interrupted.
    wrongUse = 2, ///< The command line or a file that it names; nothing was sent.
    noDevice = 3, ///< None is there, or it does not answer any more.
};

/// Ends a command. Its text is one or several lines for whoever typed it, without a last line feed.
class Failure : public std::runtime_error
{
public:
    Failure(ExitStatus itsStatus, const std::string &text) : std::runtime_error{text}, exitStatus{itsStatus}
    {}

    ExitStatus status() const { return exitStatus; }

private:
    ExitStatus exitStatus;
};

} // namespace ctl
