// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines that the program can write into its log, each as a whole.
#pragma once

#include <QString>
#include <QStringList>

/// Texts of the window that the log repeats, each behind a label of its own.
struct LoggedTexts
{
    QStringList ports{};
    QStringList videoOutputs{};
    QStringList frameRates{};
    QStringList colorLuts{};
};

/// Whether the program writes that into its log at once: one line, or the lines that it writes together.
/// Nothing may stand before or behind.
bool isRecordOfTheProgram(const QString &record, const LoggedTexts &texts);
