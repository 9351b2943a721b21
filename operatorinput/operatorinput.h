// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the operator's mouse, wheel and keys reach any control of the program.
#pragma once

#include "sliderhand.h"
#include "staleinput.h"

#include <QEvent>
#include <QObject>

/// While it lives, the wheel changes nothing by accident, a slider that was moved by a key, by the wheel or
/// by a press beside its handle is released, a menu finishes no edit of a spin box, Enter counts once however
/// long it is held, and what is clicked or typed during a sequence of commands is dropped. It sees every
/// event of the application, and knows no window.
class OperatorInput : public QObject
{
public:
    /// After the application object.
    OperatorInput();

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// For MainWindow::setSequenceObserver: while a sequence of commands runs, the pointer says that the
    /// program is busy, except while a box is shown. What the operator has done meanwhile is dropped at its
    /// end, before anything else happens.
    void sequenceRuns(bool running) { staleInput.sequenceRuns(running); }

private:
    bool filterForWindow(QObject &window, QEvent &event);
    bool filterForWidget(QObject &widget, QEvent &event);

    StaleInput staleInput;
    SliderHand sliderHand;
};
