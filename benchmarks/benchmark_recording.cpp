// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Cost of a call of the simulated SDK without a recording and with one, and how many bytes it adds to the
// file.
#include "sdkentry.h"
#include "veltrix_simulator/simulator.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <limits>

namespace
{

constexpr int recordedCalls{10'000};
constexpr int recordedBatches{20};

using veltrix_sdk::IDeviceControl;

struct RecordedCall
{
    const char *name;
    std::function<bool(IDeviceControl &device)> call; ///< True: the device did it.
};

/// Microseconds per call of the quickest batch.
double microsecondsOf(const RecordedCall &measured, IDeviceControl &device)
{
    double quickest{std::numeric_limits<double>::max()};
    for (int batch{0}; batch < recordedBatches; ++batch) {
        int done{0};
        QElapsedTimer timer;
        timer.start();
        for (int call{0}; call < recordedCalls; ++call) {
            done += measured.call(device) ? 1 : 0;
        }
        quickest = std::min(quickest, static_cast<double>(timer.nsecsElapsed()) / 1000.0 / recordedCalls);
        if (done != recordedCalls) {
            qFatal("the device refused calls; the figures would mean nothing");
        }
    }
    return quickest;
}

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
    const RecordedCall calls[]{
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
        {"getConfiguration",
         [](IDeviceControl & /*device*/) {
             return recording::sdkRoot()->getConfiguration() != nullptr;
         }},
        {"log record",
         [](IDeviceControl & /*device*/) {
             recording::LogRecord{veltrix_sdk::severity_info}.stream() << "Set GAMMA value OK";
             return true;
         }},
    };
    const QTemporaryDir directory;
    const QString file{directory.filePath(QStringLiteral("calls.recording"))};

    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(3);
    out << "operation           library [us]   recording off [us]   on [us]   bytes a call\n";
    for (const RecordedCall &measured : calls) {
        const double library{microsecondsOf(measured, openedThrough(veltrix_sdk::VeltrixSdk::get_instance))};
        const double off{microsecondsOf(measured, openedThrough(recording::sdkRoot))};
        if (!recording::begin(file.toStdString(), "benchmark_recording").empty()) {
            qFatal("no recording; the figures would mean nothing");
        }
        IDeviceControl &device = openedThrough(recording::sdkRoot);
        const qint64 before{QFileInfo{file}.size()};
        const double on{microsecondsOf(measured, device)};
        const qint64 after{QFileInfo{file}.size()};
        recording::end();
        out << Qt::left << qSetFieldWidth(18) << measured.name << Qt::right << qSetFieldWidth(14) << library
            << qSetFieldWidth(21) << off << qSetFieldWidth(10) << on << qSetFieldWidth(15)
            << (after - before) / recordedCalls / recordedBatches << qSetFieldWidth(0) << '\n';
    }
    return 0;
}
