// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Files that the commands write.
#pragma once

#include "failure.h"

#include <QByteArray>

#include <string>

namespace ctl
{

/// Makes sure that a file is no recording, which nothing but a recording may take the place of; else a
/// Failure of wrong use.
void refuseRecording(const std::string &file);

/// The same, and that the calls of this program, if they are recorded, go to another file: for a file that is
/// written at the end of a command, before the command calls anything.
void refuseRecording(const std::string &file, const std::string &recordingOfCalls);

/// Makes sure that a file can be written and is no recording, and leaves it as it is; else a Failure of wrong
/// use.
void tryToWrite(const std::string &file);

/// Writes a file as a whole or not at all; one that was there is replaced at the end. What is no plain file,
/// such as a pipe or /dev/null, is written as it is. Throws a Failure with this status, and one of wrong use
/// where a recording is.
void writeWhole(const std::string &file, const QByteArray &bytes, ExitStatus whenItFails);

} // namespace ctl
