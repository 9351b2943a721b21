// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The monkey's hand: does an action on the window, and answers the boxes and menus that come of it.
#pragma once

#include "action.h"
#include "menuhand.h"
#include "operatorwindow.h"

#include <QDialog>
#include <QEvent>
#include <QObject>
#include <QPoint>
#include <QString>

#include <optional>

/// A place of the window inside a control, from its visible part; nothing when it is not in view. The bar of
/// a tab widget is called `NAME/tabs`.
std::optional<QPoint> placeIn(OperatorWindow &test, const QString &target, double x, double y);

/// The number that a text gives a handler or a control of whole numbers: one beyond an int becomes its
/// nearest limit.
int wholeNumberIn(const QString &text);

/// Does actions. One that cannot be done does nothing.
class Hand : public QObject
{
public:
    explicit Hand(OperatorWindow &itsTest);

    /// The desktop makes the window active again when a list or a box is gone; the off-screen platform does
    /// not.
    void comeBack();
    /// Returns once the window is at rest, and says whether the action could be done.
    bool act(const Action &action);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool perform(const Action &action);
    bool useMouse(const Action &action);
    void moveInList();
    bool useKeys(const Action &action);
    bool type(const QString &text);
    bool begin(const Action &action);
    bool edit(const Action &action);
    bool turnTo(const QString &control);
    bool choose(const Action &action);
    bool work(const Action &action);
    bool invoke(const QString &signature, const QString &argument);
    bool isInView() { return test.window().isVisible() && test.window().windowHandle() != nullptr; }
    void answer(QDialog &box);
    void chooseInMenu() const;

    OperatorWindow &test;
    MenuHand menus{[this] {
        chooseInMenu();
    }};
    Action current{};
    int openBoxes{0};
};
