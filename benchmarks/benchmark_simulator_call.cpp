// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Cost of a call of the simulated SDK: with nothing on, with its journal, with its trace.
#include "measuredcall.h"
#include "veltrix_sdk/sdk.h"
#include "veltrix_simulator/simulator.h"

#include <QTemporaryDir>
#include <QTextStream>

namespace
{

using veltrix_sdk::IDeviceControl;

/// Power-on, with or without a trace, and the device that is open then.
IDeviceControl &powerOn(const QByteArray &traceFile, bool journal)
{
    qputenv("VELTRIX_SIMULATOR_TRACE", traceFile);
    auto &simulator = veltrix_simulator::Simulator::instance();
    simulator.reset();
    simulator.setJournalEnabled(journal);
    return *veltrix_sdk::VeltrixSdk::get_instance()->getDeviceManager()->openDevice("SIM1");
}

} // namespace

int main()
{
    const QTemporaryDir directory;
    const QByteArray traceFile = directory.filePath(QStringLiteral("calls.trace")).toLocal8Bit();

    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(3);
    out << "operation         nothing on [us]   journal [us]   trace [us]\n";
    for (const MeasuredCall &measured : deviceCalls) {
        const double bare{microsecondsPerCall(measured, powerOn({}, false))};
        const double journal{microsecondsPerCall(measured, powerOn({}, true))};
        const double trace{microsecondsPerCall(measured, powerOn(traceFile, false))};
        out << Qt::left << qSetFieldWidth(18) << measured.name << Qt::right << qSetFieldWidth(15) << bare
            << journal << qSetFieldWidth(13) << trace << qSetFieldWidth(0) << '\n';
    }
    return 0;
}
