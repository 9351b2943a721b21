// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the check must say about a camera in each shipped scenario.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One run of the check in a scenario.
struct ScenarioRun
{
    QString scenario;      ///< Its file in simulator/scenarios, without the ending.
    QStringList arguments; ///< Beside the port.
    QStringList notOk;     ///< The lines that begin so, without that; the exit status is 1 if there are any.
    QStringList errors{};  ///< The lines of standard error: faults that the run did not meet.
};

/// At least one run of every scenario.
QVector<ScenarioRun> scenarioRuns();
