// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How a run of the monkey goes: where it begins, how far it goes, and what a seed makes of a session.
#include "course.h"

#include "misbehaviour.h"

#include <QRegularExpression>
#include <QStringList>

std::optional<quint32> plainNumberIn(const QString &text)
{
    static const QRegularExpression digits{QStringLiteral("\\A[0-9]+\\z")};
    bool fits{false};
    const quint32 number{text.toUInt(&fits)};
    return fits && digits.match(text).hasMatch() ? std::optional{number} : std::nullopt;
}

Course Course::fromEnvironment(QString &wrong)
{
    const auto numberFrom = [&](const char *variable, quint32 otherwise) {
        if (!qEnvironmentVariableIsSet(variable)) {
            return otherwise;
        }
        const QString text{qEnvironmentVariable(variable)};
        const std::optional<quint32> number{plainNumberIn(text)};
        if (!number) {
            wrong = QStringLiteral("%1 is \"%2\", and not a whole number from 0 to 4294967295")
                        .arg(QString::fromLatin1(variable), text);
        }
        return number.value_or(otherwise);
    };
    const char *const secondsVariable{"PILOTEL_MONKEY_SECONDS"};
    Course course;
    course.seed = numberFrom("PILOTEL_MONKEY_SEED", course.seed);
    course.seconds = numberFrom(secondsVariable, course.seconds);
    course.actions = numberFrom("PILOTEL_MONKEY_ACTIONS", qEnvironmentVariableIsSet(secondsVariable)
                                                              ? std::numeric_limits<quint32>::max()
                                                              : course.actions);
    return course;
}

QString scenarioOf(quint32 seed)
{
    if (seed % 3 != 0) {
        return QStringLiteral("generated %1").arg(seed);
    }
    const QStringList names{shippedScenarios()};
    return QStringLiteral("shipped ") + names.at(static_cast<int>(seed / 3) % names.size());
}

int actionsIn(const QString &scenario)
{
    // A read takes seconds there.
    return scenario == QStringLiteral("shipped slow-link") ? 12 : 120;
}
