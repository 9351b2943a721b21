// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Whether a command carries what the window showed when it was sent.
#include "sentcommand.h"

#include "calltexts.h"
#include "controls.h"
#include "oracle.h"
#include "tables.h"

#include <QLatin1Char>
#include <QLatin1String>
#include <QStringList>

#include <algorithm>

using veltrix_simulator::Call;

namespace
{

/// The control that an operation sends, in the oracle's words; empty for the others.
QString controlOf(const QString &operation)
{
    for (const Pair &pair : pairs) {
        if (operation == QString{pair.call}.section('(', 0, 0)) {
            return QString{pair.box};
        }
    }
    for (const ChoiceRow &row : choiceRows) {
        if (operation == QLatin1String{row.operation}) {
            return QString{row.comboBox};
        }
    }
    if (operation == QStringLiteral("setVisibleAgc")) {
        return QStringLiteral("VisAgcTargetSB");
    }
    return operation == QStringLiteral("setVisibleClhe") ? QStringLiteral("VisClheTHSB") : QString{};
}

} // namespace

QString wronglySent(const SentCommand &sent, const std::vector<Call> &journal, bool boxesWereShown)
{
    const Call &call{journal[sent.place]};
    const QString operation{QString::fromStdString(call.operation)};
    const auto isOn = [&](const char *button) {
        return boolText(sent.panel.value(named(button) + QStringLiteral(".checked")).toBool());
    };
    const auto unless = [&](const QString &promised) {
        return textOf(call).startsWith(promised + QStringLiteral(" -> "))
                   ? QString{}
                   : QStringLiteral("%1 was promised, there came %2").arg(promised, textOf(call));
    };
    for (const ToggleRow &row : toggleRows) {
        if (operation == QStringLiteral("set") + named(row.operation)) {
            return unless(QStringLiteral("%1(%2)").arg(operation, isOn(row.button)));
        }
    }
    if (operation.startsWith(QStringLiteral("setRoi"))) {
        const QStringList arguments{textOf(call).section(QLatin1Char{'('}, 1).split(QStringLiteral(", "))};
        const int number{arguments.value(1).toInt()};
        // Only an edit has a line of its own; what a region sends when it is switched on or off has none. And
        // what raised the box about the order is sent as the operator left it.
        const bool isEdit{sent.place + 1 < journal.size() &&
                          recordIn(journal[sent.place + 1]).startsWith(QStringLiteral("Set ROI "))};
        if (!isEdit || boxesWereShown || number < 0 || number > 3) {
            return {};
        }
        const QString box{named(regionOf(number).boxes) + operation.right(2)};
        return unless(QStringLiteral("%1(%2, %3, %4, %5, %6)")
                          .arg(operation)
                          .arg(sent.panel.value(box + QStringLiteral(".value")).toInt())
                          .arg(number)
                          .arg(isOn("roi1IncEnable"), isOn("roi0ExcEnable"), isOn("roi1ExcEnable")));
    }

    std::vector<Call> steps;
    // The rate that the camera has is asked for before another one is sent.
    const std::size_t from{operation == QStringLiteral("setFrameRate") && sent.place > 0 ? sent.place - 1
                                                                                         : sent.place};
    for (std::size_t place{from}; place < std::min(sent.place + 2, journal.size()); ++place) {
        steps.push_back(journal[place]);
    }
    Oracle oracle{steps, sent.panel, Session{}};
    if (operation == QStringLiteral("setWarp")) {
        oracle.setWarp();
    } else if (operation == QStringLiteral("setStartingMode")) {
        oracle.setStartingMode();
    } else if (!controlOf(operation).isEmpty()) {
        oracle.send(controlOf(operation));
    } else {
        return {};
    }
    return oracle.divergence();
}
