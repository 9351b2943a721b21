// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a part of the window shows, in words.
#pragma once

#include <QRect>
#include <QStringList>
#include <QWidget>

/// One line for each named widget of which that part of a widget shows something: its name and its text,
/// value or choice, and whether it is pressed or cannot be used. In the order of the widget tree. A text of
/// several lines takes as many.
QStringList shownIn(const QWidget &widget, const QRect &part);
