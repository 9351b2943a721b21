// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the texts of calls in the journal say.
#pragma once

#include "veltrix_simulator/simulator.h"

#include <QLatin1Char>
#include <QString>

inline QString textOf(const veltrix_simulator::Call &call)
{
    return QString::fromStdString(call.text);
}

/// The text of a record, from `log(2, "text")`.
inline QString recordIn(const veltrix_simulator::Call &call)
{
    const QString quoted{textOf(call).section(QLatin1Char{'"'}, 1).chopped(2)};
    QString text;
    for (int place{0}; place < quoted.size(); ++place) {
        if (quoted[place] != QLatin1Char{'\\'}) {
            text += quoted[place];
        } else if (++place < quoted.size()) {
            text += quoted[place] == QLatin1Char{'n'} ? QLatin1Char{'\n'} : quoted[place];
        }
    }
    return text;
}
