// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How a run of the monkey goes: where it begins, how far it goes, and what a seed makes of a session.
#pragma once

#include <QString>
#include <QtGlobal>

#include <limits>
#include <optional>

/// The whole number that a text is, from 0 to 4294967295 in plain digits; nothing when it is none.
std::optional<quint32> plainNumberIn(const QString &text);

/// A run goes from seed to seed, a session for each. A session depends on its seed alone.
struct Course
{
    quint32 seed{20261122};
    quint32 actions{1800};                                ///< At most, of all sessions together.
    quint32 seconds{std::numeric_limits<quint32>::max()}; ///< At most.

    /// From PILOTEL_MONKEY_SEED, PILOTEL_MONKEY_ACTIONS and PILOTEL_MONKEY_SECONDS. Left to itself a run ends
    /// with its actions, so that it is the same on every machine; with seconds alone it ends with these. What
    /// is no number is told in one line.
    static Course fromEnvironment(QString &wrong);
};

/// The scenario of a session, as `shipped NAME` or `generated SEED`.
QString scenarioOf(quint32 seed);

/// How many actions a session of the scenario has.
int actionsIn(const QString &scenario);
