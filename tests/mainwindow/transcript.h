// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the window and the SDK say to each other, as one table of steps.
#pragma once

#include <QMetaType>
#include <QStringList>
#include <QVector>

/// One step: a call of the SDK, or a line of the operation log, which is a record of the SDK's log as well.
struct Step
{
    enum class Kind
    {
        Call,
        Line,
    };

    Kind kind;
    const char *text;
    /// Happens only while a read changes a control, which then sends the value back.
    bool writtenBack{false};
};

using Transcript = QVector<Step>;

Q_DECLARE_METATYPE(Step)

constexpr Step call(const char *text)
{
    return {Step::Kind::Call, text};
}

constexpr Step line(const char *text)
{
    return {Step::Kind::Line, text};
}

constexpr Step writtenBack(Step step)
{
    step.writtenBack = true;
    return step;
}

/// The transcript of a read that changes no control.
Transcript withoutWriteBacks(const Transcript &transcript);

/// The journal of a transcript, log records included.
QStringList journalOf(const Transcript &transcript);

/// What a transcript leaves in the log view.
QStringList logOf(const Transcript &transcript);
