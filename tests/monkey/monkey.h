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

/// Chooses by its seed, by what the window shows, and by what was reached before.
class Monkey
{
public:
    Monkey(quint32 seed, const Reach &itsReach) : random{seed}, reach{itsReach} {}

    Action next(OperatorWindow &test);

private:
    bool oneIn(int count) { return random.bounded(count) == 0; }
    const QString &oneOf(const QStringList &all) { return all.at(random.bounded(all.size())); }
    /// Every other time one of those that were reached least.
    QString seldomOneOf(const QStringList &all) { return oneOf(oneIn(2) ? reach.leastReached(all) : all); }
    QString someControl(OperatorWindow &test);
    QString someNumber();
    QString someBoxAnswer();
    Action mouseAction(OperatorWindow &test);
    Action keyAction();
    Action editing(OperatorWindow &test);
    Action connecting(OperatorWindow &test);
    Action byName(OperatorWindow &test);

    /// Plans an edit that something ends.
    void planEdit(OperatorWindow &test);
    /// Plans two edits of a region, with its first limit behind its second one.
    void planContradiction(OperatorWindow &test);
    void plan(const QString &verb, const QString &target, const QString &text = {});
    /// What leaves or finishes an edit; it may also end the connection or the window.
    Action endingEdit(OperatorWindow &test, bool mayEndMore);

    QRandomGenerator random;
    const Reach &reach;
    std::deque<Action> planned;
};
