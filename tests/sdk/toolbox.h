// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Running a compiler over a few lines of source, and copies of the SDK headers that a test may break.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What a compiler said.
struct Compilation
{
    bool succeeded{false};
    QString output;      ///< Standard output, such as a dump.
    QString diagnostics; ///< Standard error, or why the compiler did not run.
};

/// Compiles a source from standard input and waits for the end.
Compilation compile(const QString &compiler, const QStringList &arguments, const QByteArray &source);

/// Copies the folder `veltrix_sdk` with its headers into another include directory.
bool copyHeaders(const QString &fromDirectory, const QString &toDirectory);

/// Replaces a text that has to stand exactly once in the file; false when it does not.
bool replaceOnce(const QString &fileName, const QByteArray &before, const QByteArray &after);
