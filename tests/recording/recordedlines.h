// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines of a recording or of the simulator's trace, as they can be compared.
#pragma once

#include <QString>
#include <QStringList>

/// The calls without their times, which are checked; a line that is not well-formed comes whole. What is told
/// of the words of the configuration is left out, since the simulator's trace does not have it.
QStringList callsIn(const QString &fileName);

/// What is told of the words: the lines of what was written in place, and the outputs of operations.
QStringList wordsIn(const QString &fileName);

/// The first line without its time, which is checked.
QString headerOf(const QString &fileName);
