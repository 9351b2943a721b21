// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the window and the SDK say to each other, as one table of steps.
#include "transcript.h"

#include <QLatin1Char>
#include <QString>

#include <algorithm>
#include <iterator>

Transcript withoutWriteBacks(const Transcript &transcript)
{
    Transcript rest;
    std::copy_if(transcript.begin(), transcript.end(), std::back_inserter(rest),
                 [](const Step &step) { return !step.writtenBack; });
    return rest;
}

QStringList journalOf(const Transcript &transcript)
{
    QStringList journal;
    for (const Step &step : transcript) {
        const QString text{QString::fromUtf8(step.text)};
        if (step.kind == Step::Kind::Call) {
            journal.append(text);
        } else {
            QString record{text};
            record.replace(QLatin1Char{'\n'}, QStringLiteral("\\n"));
            journal.append(QStringLiteral("log(2, \"") + record + QStringLiteral("\")"));
        }
    }
    return journal;
}

QStringList logOf(const Transcript &transcript)
{
    QStringList lines;
    for (const Step &step : transcript) {
        if (step.kind == Step::Kind::Line) {
            lines.append(QString::fromUtf8(step.text).split(QLatin1Char{'\n'}));
        }
    }
    return lines;
}
