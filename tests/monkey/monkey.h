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

/// Chooses by its seed and by what the window shows.
class Monkey
{
public:
    explicit Monkey(quint32 seed) : random{seed} {}

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

    QRandomGenerator random;
};
