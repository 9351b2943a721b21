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
    explicit Monkey(quint32 seed) : random{seed}, turn{static_cast<int>(seed % 10'000) * dueOfAKind} {}

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
    /// What is due in this session: handlers and controls by turns, so that following seeds leave none out.
    Action due(OperatorWindow &test);

    /// Plans an edit that something ends.
    void planEdit(OperatorWindow &test);
    /// Plans two edits of a region, with its first limit behind its second one.
    void planContradiction(OperatorWindow &test);
    void plan(const QString &verb, const QString &target, const QString &text = {});
    /// Plans what leaves or finishes the edit; it may also end the window.
    void planEnd(OperatorWindow &test, bool mayEndWindow);

    static constexpr int dueOfAKind{4};

    QRandomGenerator random;
    int turn; ///< Place of the first handler and of the first control that are due.
    int dueDone{0};
    std::deque<Action> planned;
};
