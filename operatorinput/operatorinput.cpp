// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the operator's mouse, wheel and keys reach any control of the program.
#include "operatorinput.h"

#include "wheel.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSlider>
#include <QWheelEvent>
#include <QWindow>

OperatorInput::OperatorInput()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool OperatorInput::eventFilter(QObject *watched, QEvent *event)
{
    // The type first: nearly all events are none of these.
    switch (event->type()) {
    case QEvent::Wheel:
        return watched->isWindowType() &&
               turnWheel(static_cast<QWindow &>(*watched), static_cast<QWheelEvent &>(*event));
    case QEvent::KeyPress:
        if (auto *const slider = qobject_cast<QSlider *>(watched)) {
            sliderHand.keyPressed(*slider);
        }
        return false;
    case QEvent::KeyRelease:
        if (auto *const slider = qobject_cast<QSlider *>(watched)) {
            sliderHand.keyReleased(*slider, static_cast<QKeyEvent &>(*event));
        }
        return false;
    case QEvent::FocusOut:
        if (auto *const slider = qobject_cast<QSlider *>(watched)) {
            sliderHand.left(*slider);
        }
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        auto *const slider = qobject_cast<QSlider *>(watched);
        return slider != nullptr && SliderHand::bringsHandle(*slider, static_cast<QMouseEvent &>(*event));
    }
    default:
        return false;
    }
}
