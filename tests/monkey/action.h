// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One thing that the monkey does, and the list of what it did in a session.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// One thing that the monkey does. It means the same in every session, so that a list can be replayed and
/// shortened; what cannot be done, such as a click on what is not in view, is left out then.
struct Action
{
    QString verb;      ///< What is done, such as `click`.
    QString target{};  ///< Name of a control, or the signature of a handler; empty where the focus decides.
    double x{0.5};     ///< Where in the control, from 0 at its left to 1.
    double y{0.5};     ///< From 0 at its top to 1.
    QString text{};    ///< What is typed, which key, how far, the number for a handler.
    QString box{"ok"}; ///< How a box that opens meanwhile is closed.

    /// As one line of printable ASCII.
    QString toLine() const;
    /// From such a line.
    static Action fromLine(const QString &line);
};

/// A session: the scenario, as `shipped NAME` or `generated SEED`, and what was done in it.
struct Story
{
    QString scenario;
    std::vector<Action> actions;

    QStringList toLines() const;
    /// From the lines of a list; an empty scenario when it is none. Lines with a # in front are left out.
    static Story fromLines(const QStringList &lines);
    /// Reads a list from a file.
    static Story fromFile(const QString &name);
};
