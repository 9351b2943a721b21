// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a file holds, and what a tool says of it.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QProcess>
#include <QString>
#include <QStringList>

/// The whole file; "no file" when it cannot be read.
inline QByteArray contentOf(const QString &name)
{
    QFile file{name};
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray{"no file"};
}

/// What a tool writes when it is run with the arguments; "failed: " and its errors when it does not succeed.
inline QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool succeeded{process.waitForFinished() && process.exitCode() == 0};
    return succeeded ? process.readAllStandardOutput() : "failed: " + process.readAllStandardError();
}
