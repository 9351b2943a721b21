// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a plugin inside the program tells the test outside.
#pragma once

#include <QFile>
#include <QIODevice>
#include <QString>
#include <QStringList>

/// Appends lines to the file that an environment variable names; does nothing when it names none.
inline void report(const char *variable, const QStringList &lines)
{
    QFile file{qEnvironmentVariable(variable)};
    if (!file.fileName().isEmpty() && file.open(QIODevice::Append)) {
        for (const QString &line : lines) {
            file.write(line.toUtf8() + '\n');
        }
    }
}
