// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A program at a terminal of its own.
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <sys/types.h>

/// Starts a program whose input and output are a new terminal; ends it at the latest with its own life.
class Terminal
{
public:
    Terminal(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment);
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    void type(const QByteArray &keys) const;
    /// Makes its window so many columns wide; the program is told.
    void resize(int columns) const;
    void send(int signal) const;
    /// Waits until a text appears behind the one that was last waited for; false after ten seconds.
    bool waitFor(const QByteArray &text);
    /// Waits until the program reads key by key: before that Ctrl-D is an end of input, not a key.
    bool waitForKeyByKey();
    /// Everything that the terminal has shown.
    QByteArray seen() const { return shown; }
    /// Waits for the end of the program; its exit status, or -1.
    int end();

private:
    bool read(int milliseconds);

    pid_t process{-1};
    int terminal{-1};
    QByteArray shown;
    int found{0};
};
