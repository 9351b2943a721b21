// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an operator does with one control, and what changes behind the operator's back.
#pragma once

#include "testwindow.h"

#include <QString>
#include <QVariant>

#include <functional>

using Deed = std::function<void(TestWindow &)>;

/// Pages that are never shown have buttons that work all the same.
Deed press(const QString &button);
Deed choose(const QString &comboBox, int index);
Deed turnTo(int page);
Deed releaseSlider(const QString &slider);
Deed finishEdit(const QString &spinBox);
/// Changes a slider or a spin box as moving it or typing does: nothing is sent by that.
Deed setValue(const QString &name, const QVariant &value);
Deed invoke(const char *handler);
Deed both(const Deed &first, const Deed &second);
/// Sets the units to other values than the window shows, so that a read changes nearly every control.
void changeUnits(TestWindow &test);
/// Sets defaults other than what the window shows, so that a reset changes nearly every control.
void changeDefaults(TestWindow &test);
