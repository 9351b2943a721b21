// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The check run in this process on the simulator, and what it leaves behind.
#include "checkrun.h"

#include "simulatedcamera.h"
#include "veltrix_sdk/sdk.h"

#include <sstream>
#include <string>
#include <utility>

using veltrix_simulator::Call;
using veltrix_simulator::Simulator;

namespace
{

/// The rest of the lines that begin with the text.
QStringList after(const QStringList &lines, const QString &beginning)
{
    QStringList rests;
    for (const QString &line : lines) {
        if (line.startsWith(beginning)) {
            rests.append(line.mid(beginning.size()));
        }
    }
    return rests;
}

} // namespace

QStringList notOkLines(const QStringList &lines)
{
    return after(lines, "not ok ");
}

QStringList CheckRun::notOk() const
{
    return notOkLines(lines);
}

QStringList CheckRun::skipped() const
{
    return after(lines, "skip   ");
}

CheckRun runCheck(sdk_check::Options options, const sdk_check::Interrupted &interrupted)
{
    if (options.port.empty()) {
        options.port = "SIM1";
    }
    std::ostringstream out;
    const sdk_check::ExitStatus status{
        sdk_check::check(veltrix_sdk::VeltrixSdk::get_instance(), options, out, interrupted)};
    const QString output{QString::fromStdString(out.str())};
    return {status, output, output.split('\n', Qt::SkipEmptyParts)};
}

QMap<QString, QString> wholeState()
{
    QMap<QString, QString> state;
    const Simulator &simulator{Simulator::instance()};
    for (const std::string &key : simulator.keys()) {
        state.insert(QString::fromStdString(key), toText(simulator.get(key)));
    }
    return state;
}

QStringList journal()
{
    QStringList texts;
    for (const Call &call : Simulator::instance().journal()) {
        texts.append(QString::fromStdString(call.text));
    }
    return texts;
}

QStringList calledOperations()
{
    QStringList names;
    for (const Call &call : Simulator::instance().journal()) {
        names.append(QString::fromStdString(call.operation));
    }
    names.removeDuplicates();
    names.sort();
    return names;
}
