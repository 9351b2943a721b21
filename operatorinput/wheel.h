// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Which control a turn of the wheel reaches.
#pragma once

#include <QWheelEvent>
#include <QWindow>

/// Gives a turn of the wheel to the widget under the pointer. Combo boxes and tab bars never get it, sliders
/// and spin boxes only while they have the keyboard focus; it goes on to what is around them. It moves the
/// focus nowhere, since a spin box that loses the focus sends. A slider that it moves is released after each
/// turn. False while the event goes its usual way: into the list of a combo box that is open.
bool turnWheel(QWindow &window, QWheelEvent &event);
