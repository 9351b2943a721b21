// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The command line of the check.
#pragma once

#include "check.h"

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct CommandLine
{
    sdk_check::Options options; ///< The port is empty where none is named.
    bool help{false};
    QString error; ///< One line about what is wrong; empty when nothing is.
    QString helpText;
};

/// Reads the arguments; one that is not known, or too much, is an error.
CommandLine parseCommandLine(const QStringList &arguments);
