// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The check run in this process on the simulator, and what it leaves behind.
#pragma once

#include "check.h"
#include "veltrix_simulator/simulator.h"

#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

/// What an operation answers: its result, then what it fills.
using Answer = std::vector<veltrix_simulator::Value>;

Q_DECLARE_METATYPE(veltrix_simulator::Fault)

/// A whole number of an answer, whatever its type in the source.
constexpr std::int64_t number(std::int64_t value)
{
    return value;
}

/// The lines that begin with "not ok", without that.
QStringList notOkLines(const QStringList &lines);

/// What a run of the check said and how it ended.
struct CheckRun
{
    sdk_check::ExitStatus status;
    QString output;
    QStringList lines;

    QStringList notOk() const; ///< Its notOkLines().
    /// The lines that begin with "skip", without that.
    QStringList skipped() const;
};

/// Runs the check on the port SIM1, or on the one that the options name.
CheckRun runCheck(
    sdk_check::Options options, const sdk_check::Interrupted &interrupted = [] { return false; });

/// Every value of the simulator by its key.
QMap<QString, QString> wholeState();

/// The calls of the journal as text.
QStringList journal();

/// Names of the operations in the journal, each once, sorted.
QStringList calledOperations();
