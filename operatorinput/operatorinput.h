// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the operator's mouse, wheel and keys reach any control of the program.
#pragma once

#include "sliderhand.h"

#include <QEvent>
#include <QObject>

/// While it lives, the wheel changes nothing by accident, and a slider that was moved by a key, by the wheel
/// or by a press beside its handle is released. It sees every event of the application, and knows no window.
class OperatorInput : public QObject
{
public:
    /// After the application object.
    OperatorInput();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    SliderHand sliderHand;
};
