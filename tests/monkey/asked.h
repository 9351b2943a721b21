// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an action may make the window send.
#pragma once

#include "action.h"
#include "operatorwindow.h"

#include <QString>
#include <QStringList>
#include <QWidget>

/// What may be sent, and how many commands that are at most.
struct Asked
{
    QStringList operations{};
    int count{0};
    bool anything{
        false}; ///< Reads and resets fill controls, and some of these send what they were filled with.

    Asked &operator+=(const Asked &other)
    {
        operations += other.operations;
        count += other.count;
        anything = anything || other.anything;
        return *this;
    }
};

/// What a control with that name sends when it is clicked, chosen, let go or left.
Asked askedFrom(const QString &control);

/// The control around a widget that sends something, or is a page's tab; empty when there is none.
QString sendingControl(const QWidget *widget);

/// Where a key goes: into the list that is open, else to the window's focus.
QWidget *focusOf(OperatorWindow &test);

/// What an action may make the window send, as the window is before it.
Asked askedBy(OperatorWindow &test, const Action &action);

/// What else may be sent by the handler that a script ran in each of the boxes that were shown.
Asked askedInBoxes(const Action &action, const QStringList &shownBoxes);

/// Whether the operation may change something in the device.
bool isCommand(const QString &operation);
