// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The monkey: chooses what to do next.
#pragma once

#include "action.h"
#include "operatorwindow.h"
#include "reach.h"

#include <QRandomGenerator>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <deque>

/// Chooses by its seed and by what the window shows, so that with the same seed it does the same again.
class Monkey
{
public:
    explicit Monkey(quint32 seed) : random{seed}, turns{seed} {}

    Action next(OperatorWindow &test);

private:
    bool oneIn(int count) { return random.bounded(count) == 0; }
    const QString &oneOf(const QStringList &all) { return all.at(random.bounded(all.size())); }
    /// Every other time the one whose turn it is.
    QString someOf(const QStringList &all) { return oneIn(2) ? turns.next(all) : oneOf(all); }
    QString someControl(OperatorWindow &test);
    QString someNumber();
    QString someBoxAnswer();
    Action mouseAction(const QString &target);
    Action keyAction();
    Action editing(OperatorWindow &test);
    Action connecting(OperatorWindow &test);
    Action byName(OperatorWindow &test);

    /// Plans to turn to the page of the control whose turn it is, and to use the mouse there.
    void planVisit(OperatorWindow &test);
    /// Plans an edit that something ends.
    void planEdit(OperatorWindow &test);
    /// Plans two edits of a region, with its first limit behind its second one.
    void planContradiction(OperatorWindow &test);
    void plan(const QString &verb, const QString &target, const QString &text = {});
    /// What leaves or finishes an edit; it may also end the connection or the window.
    Action endingEdit(OperatorWindow &test, bool mayEndMore);

    QRandomGenerator random;
    Turns turns;
    std::deque<Action> planned;
};
