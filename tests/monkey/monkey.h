// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The monkey: chooses what to do next.
#pragma once

#include "action.h"
#include "operatorwindow.h"

#include <QRandomGenerator>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <deque>

/// Chooses by its seed and by what the window shows.
class Monkey
{
public:
    explicit Monkey(quint32 seed) : random{seed}, turn{static_cast<int>(seed % 10'000) * turnsInASession} {}

    Action next(OperatorWindow &test);

private:
    bool oneIn(int count) { return random.bounded(count) == 0; }
    const QString &oneOf(const QStringList &all) { return all.at(random.bounded(all.size())); }
    QString someControl(OperatorWindow &test);
    QString someNumber();
    QString someBoxAnswer();
    Action mouseAction(OperatorWindow &test);
    Action keyAction();
    Action editing(OperatorWindow &test);
    Action connecting(OperatorWindow &test);
    Action byName(OperatorWindow &test);
    /// The next one of those, or any of them.
    const QString &inTurn(const QStringList &all);

    /// Plans an edit that something ends.
    void planEdit(OperatorWindow &test);
    /// Plans two edits of a region, with its first limit behind its second one.
    void planContradiction(OperatorWindow &test);
    void plan(const QString &verb, const QString &target, const QString &text = {});
    /// Plans what leaves or finishes the edit; it may also end the window.
    void planEnd(OperatorWindow &test, bool mayEndWindow);

    /// A session takes at least as many; the one with the next seed goes on from there.
    static constexpr int turnsInASession{2};

    QRandomGenerator random;
    int turn;
    std::deque<Action> planned;
};
