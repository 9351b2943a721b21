// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The console program as a test runs it.
#pragma once

#include "program.h"

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A folder with a camera: what runs in it is told the same scenario.
class CtlFolder
{
public:
    /// Plays a shipped scenario by its name; the default one without.
    explicit CtlFolder(const QString &scenario = {});

    /// Plays the scenario of this text from now on.
    void play(const QString &text);
    /// Writes a file of the folder.
    void write(const QString &file, const QByteArray &text) const;
    /// The bytes of a file of the folder; empty when there is none.
    QByteArray read(const QString &file) const;
    bool has(const QString &file) const;
    QString path(const QString &file) const { return directory.filePath(file); }

    /// Runs the program to its end. What the simulator says of faults that did not happen is left out.
    Outcome run(const QStringList &arguments);
    /// The same with what stands in a file of the folder at its standard input.
    Outcome runReading(const QString &file, const QStringList &arguments);
    /// The calls of the last run, from its trace, that change the device, such as "setGamma(144179)".
    QStringList commands() const;
    /// All its calls.
    QStringList calls() const;

    QProcessEnvironment environment;

private:
    QTemporaryDir directory;
};

/// Joins lines as a program writes them.
QString lines(const QStringList &each);
