// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Cost of a call of the simulated SDK: with nothing on, with its journal, with its trace.
#include "veltrix_sdk/sdk.h"
#include "veltrix_simulator/simulator.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <limits>

namespace
{

constexpr int measuredCalls{10'000};
constexpr int timedBatches{20};

using veltrix_sdk::IDeviceControl;

struct Measured
{
    const char *name;
    std::function<bool(IDeviceControl &device)> call; ///< True: the device did it.
};

/// Microseconds per call of the quickest batch.
double microsecondsPerCall(const Measured &measured, IDeviceControl &device)
{
    auto &simulator = veltrix_simulator::Simulator::instance();
    double quickest{std::numeric_limits<double>::max()};
    for (int batch{0}; batch < timedBatches; ++batch) {
        int done{0};
        QElapsedTimer timer;
        timer.start();
        for (int call{0}; call < measuredCalls; ++call) {
            done += measured.call(device) ? 1 : 0;
        }
        quickest = std::min(quickest, static_cast<double>(timer.nsecsElapsed()) / 1000.0 / measuredCalls);
        simulator.clearJournal();
        if (done != measuredCalls) {
            qFatal("the device refused calls; the figures would mean nothing");
        }
    }
    return quickest;
}

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
    const Measured calls[]{
        {"getGamma",
         [](IDeviceControl &device) {
             return device.getGamma() != 0;
         }},
        {"setGamma",
         [](IDeviceControl &device) {
             return device.setGamma(65'536);
         }},
        {"setWarp",
         [](IDeviceControl &device) {
             return device.setWarp(0, 1, 0, 0, 1, 2, 3);
         }},
        {"getTemperatures",
         [](IDeviceControl &device) {
             veltrix_sdk::Temperatures temperatures{};
             return device.getTemperatures(&temperatures);
         }},
    };
    const QTemporaryDir directory;
    const QByteArray traceFile = directory.filePath(QStringLiteral("calls.trace")).toLocal8Bit();

    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(3);
    out << "operation         nothing on [us]   journal [us]   trace [us]\n";
    for (const Measured &measured : calls) {
        const double bare{microsecondsPerCall(measured, powerOn({}, false))};
        const double journal{microsecondsPerCall(measured, powerOn({}, true))};
        const double trace{microsecondsPerCall(measured, powerOn(traceFile, false))};
        out << Qt::left << qSetFieldWidth(18) << measured.name << Qt::right << qSetFieldWidth(15) << bare
            << journal << qSetFieldWidth(13) << trace << qSetFieldWidth(0) << '\n';
    }
    return 0;
}
