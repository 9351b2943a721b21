// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines that the program can write into its log, by the texts in its sources.
#pragma once

#include <QString>
#include <QStringList>

/// Whether a line is made of texts of the program, the first of them in words, with numbers and the given
/// values between them.
bool isLineOfTheProgram(const QString &line, const QStringList &values);
