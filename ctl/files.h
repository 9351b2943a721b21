// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Files that the commands write.
#pragma once

#include "failure.h"

#include <QByteArray>

#include <string>

namespace ctl
{

/// Makes sure that a file can be written, and leaves it as it is; else a Failure of wrong use.
void tryToWrite(const std::string &file);

/// Writes a file as a whole or not at all; one that was there is replaced at the end. What is no plain file,
/// such as a pipe or /dev/null, is written as it is. Throws a Failure with this status.
void writeWhole(const std::string &file, const QByteArray &bytes, ExitStatus whenItFails);

} // namespace ctl
