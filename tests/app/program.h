// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program as a process of its own.
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// What a process said and how it ended.
struct Outcome
{
    bool exited;
    int status;
    QString output;
    QString errors;
};

/// Environment of the program: off screen, with the tests' plugins within reach, and with nothing that
/// decides which SDK library is loaded.
QProcessEnvironment programEnvironment();

/// A program that finds the SDK library of a folder first: itself with another environment; on Windows, where
/// a program looks beside itself, a copy in the directory with a copy of the library.
QString withLibrary(const QString &program, const QString &folder, const QString &directory,
                    QProcessEnvironment &environment);

/// Runs a program to its end, in the directory of this process or in another; gives up after half a minute.
Outcome run(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment,
            const QString &directory = {});

/// The lines of a text file; none when there is no such file.
QStringList linesOf(const QString &fileName);
