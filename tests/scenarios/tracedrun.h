// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A process on a scenario, and the trace of all its calls.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Runs a program to its end, on a scenario that is named as VELTRIX_SIMULATOR_SCENARIO takes it; the bytes
/// of its trace, or none when it does not end.
QByteArray traceOf(const QString &program, const QStringList &arguments, const QString &scenario);

/// The same, with what the program itself records of its calls in place of the trace.
QByteArray recordingOf(const QString &program, const QStringList &arguments, const QString &scenario);

/// The trace of a process that calls every operation of the contract that reads or sets something.
QByteArray traceOfCheck(const QString &scenario);

/// A trace without its times.
QByteArray withoutTimes(const QByteArray &trace);
