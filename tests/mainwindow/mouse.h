// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A mouse press on a widget that may be disabled, through the window system.
#pragma once

#include "testwindow.h"

#include <QString>
#include <QTest>
#include <QWidget>
#include <QWindow>

/// Presses and releases the mouse in the middle of a widget, by way of the window system: a widget that is
/// disabled, or a window behind a modal box, does not get it.
inline void pressMouseOn(TestWindow &test, const QString &name)
{
    const auto &widget = test.child<QWidget>(name);
    QTest::mouseClick(test.window().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget.mapTo(&test.window(), widget.rect().center()));
}
