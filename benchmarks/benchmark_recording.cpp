// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Cost of a call of the simulated SDK without a recording and with one, and how many bytes it adds to the
// file.
#include "measuredcall.h"
#include "sdkentry.h"
#include "veltrix_simulator/simulator.h"

#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <QTextStream>

#include <vector>

namespace
{

using veltrix_sdk::IDeviceControl;

/// Power-on, and the device that is open then.
IDeviceControl &openedThrough(veltrix_sdk::IVeltrixSdk *(*root)())
{
    auto &simulator = veltrix_simulator::Simulator::instance();
    simulator.reset();
    simulator.setJournalEnabled(false);
    return *root()->getDeviceManager()->openDevice("SIM1");
}

} // namespace

int main()
{
    std::vector<MeasuredCall> calls{deviceCalls.begin(), deviceCalls.end()};
    calls.insert(calls.end(), {
                                  {"getConfiguration",
                                   [](IDeviceControl & /*device*/) {
                                       return recording::sdkRoot()->getConfiguration() != nullptr;
                                   }},
                                  {"log record",
                                   [](IDeviceControl & /*device*/) {
                                       recording::LogRecord{veltrix_sdk::severity_info}.stream()
                                           << "Set GAMMA value OK";
                                       return true;
                                   }},
                              });
    const QTemporaryDir directory;
    const QString file{directory.filePath(QStringLiteral("calls.recording"))};

    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(3);
    out << "operation           library [us]   recording off [us]   on [us]   bytes a call\n";
    for (const MeasuredCall &measured : calls) {
        const double library{
            microsecondsPerCall(measured, openedThrough(veltrix_sdk::VeltrixSdk::get_instance))};
        const double off{microsecondsPerCall(measured, openedThrough(recording::sdkRoot))};
        if (!recording::begin(file.toStdString(), "benchmark_recording").empty()) {
            qFatal("no recording; the figures would mean nothing");
        }
        IDeviceControl &device = openedThrough(recording::sdkRoot);
        const qint64 before{QFileInfo{file}.size()};
        const double on{microsecondsPerCall(measured, device)};
        const qint64 after{QFileInfo{file}.size()};
        recording::end();
        out << Qt::left << qSetFieldWidth(18) << measured.name << Qt::right << qSetFieldWidth(14) << library
            << qSetFieldWidth(21) << off << qSetFieldWidth(10) << on << qSetFieldWidth(15)
            << (after - before) / callsInABatch / batchesOfCalls << qSetFieldWidth(0) << '\n';
    }
    return 0;
}
