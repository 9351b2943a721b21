// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an action may make the window send.
#pragma once

#include "action.h"
#include "operatorwindow.h"
#include "sentby.h"

#include <QStringList>
#include <QWidget>

/// Where a key goes: into the list that is open, else to the window's focus.
QWidget *focusOf(OperatorWindow &test);

/// What an action may make the window send, as the window is before it.
Asked askedBy(OperatorWindow &test, const Action &action);

/// What else may be sent by the handler that a script ran in each of the boxes that were shown.
Asked askedInBoxes(const Action &action, const QStringList &shownBoxes);
