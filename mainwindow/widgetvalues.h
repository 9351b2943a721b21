// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How a value read from the device is shown in a widget, whatever it is.
#pragma once

#include <QAbstractSlider>
#include <QDoubleSpinBox>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QString>

#include <cstdint>

/// Shows an unsigned number; beyond the spin box's range its nearest limit.
void showNumber(QSpinBox &spinBox, std::uint64_t value);

/// Shows a number; beyond the spin box's range its nearest limit, NaN its minimum.
void showNumber(QDoubleSpinBox &spinBox, double value);

/// Replaces the whole text of a box.
void showText(QPlainTextEdit &box, const QString &text);

/// Sets a slider only when it holds another value.
void setIfDifferent(QAbstractSlider &slider, int value);

/// Sets a spin box only when it holds another value.
void setIfDifferent(QSpinBox &spinBox, int value);

/// Sets a spin box only when it holds another value, compared exactly.
void setIfDifferent(QDoubleSpinBox &spinBox, double value);
