// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What each control and each handler sends.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QWidget>

/// What may be sent, and how often.
struct Asked
{
    /// By the name of the operation, or by the whole call where its numbers are known: `setTarget(1)`.
    QMap<QString, int> commands{};
    bool reads{false}; ///< A read or a reset; it may switch regions on or off.
    bool all{false};   ///< Nobody can tell beforehand.

    Asked &operator+=(const Asked &other);
    bool isEmpty() const { return commands.isEmpty() && !reads && !all; }
    /// Whether the operation is among them, with whatever numbers.
    bool has(const QString &operation) const;
    /// The first of these calls that was not asked for, or not so often; empty when all were.
    QString notAsked(const QStringList &calls) const;
};

Asked times(Asked asked, int count);

/// Stands among the commands for a log that is cleared.
inline const QString logCleared{QStringLiteral("the log is cleared")};

/// What a control with that name sends when it is clicked, chosen, let go or left.
Asked askedFrom(const QString &control);

/// What a handler sends when it is run once, by its name without arguments, with that number where it takes
/// one.
Asked askedFromHandler(const QString &handler, int number);

/// The handlers that askedFromHandler() has something of.
QStringList sendingHandlers();

/// The control around a widget that sends something, or is a page's tab; empty when there is none.
QString sendingControl(const QWidget *widget);

/// Whether the operation may change something in the device.
bool isCommand(const QString &operation);
