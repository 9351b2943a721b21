// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Own time of declaring a line of bad pixels, beside its parts and beside the serial link.
#include "mainwindow.h"
#include "operatedwindow.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/sdk.h"
#include "veltrix_simulator/simulator.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTextStream>

#include <algorithm>
#include <cstdint>
#include <functional>

namespace
{

constexpr int linePixels{veltrix_sdk::sensorColumns};
constexpr int repetitions{20};
// A command and its answer, as short as a framed command can be, with a start and a stop bit for each byte.
constexpr double bytesPerCommand{2 * 12.0};
constexpr double bitsPerByte{10.0};
constexpr double linkBaud{115200.0};

/// Milliseconds of the quickest of several runs.
double milliseconds(const std::function<void()> &action)
{
    double quickest{-1.0};
    for (int run{0}; run < repetitions; ++run) {
        QElapsedTimer timer;
        timer.start();
        action();
        const double elapsed{static_cast<double>(timer.nsecsElapsed()) / 1e6};
        quickest = quickest < 0.0 ? elapsed : std::min(quickest, elapsed);
    }
    return quickest;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application{argc, argv};
    auto &simulator = veltrix_simulator::Simulator::instance();
    simulator.setJournalEnabled(false);

    MainWindow window;
    window.show();
    const OperatedWindow operated{window};
    operated.connectDevice();
    const double whole{milliseconds([&] { operated.press("addBadPixelLineButton"); })};
    operated.press("disconnectDeviceButton");

    auto *const device = veltrix_sdk::VeltrixSdk::get_instance()->getDeviceManager()->openDevice("SIM1");
    int accepted{0};
    const double calls{milliseconds([&] {
        for (std::uint32_t column{0}; column < linePixels; ++column) {
            accepted += device->addBadPixel(column, 0) ? 1 : 0;
        }
    })};
    if (accepted != repetitions * linePixels) {
        qFatal("the device refused pixels; the figures would mean nothing");
    }

    const auto &logView = operated.child<QPlainTextEdit>("logView");
    QPlainTextEdit plainView;
    plainView.setReadOnly(true);
    plainView.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    plainView.setFont(logView.font());
    plainView.resize(logView.size());
    plainView.show();
    const double lines{milliseconds([&] {
        for (int line{0}; line < linePixels; ++line) {
            plainView.appendPlainText(QStringLiteral("Pixel X:%1 Y: 0 correctly added.").arg(line));
        }
    })};

    const double link{linePixels * bytesPerCommand * bitsPerByte / linkBaud * 1000.0};
    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(3);
    out << "a line of bad pixels, own time       " << whole << " ms\n"
        << "the " << linePixels << " calls alone                  " << calls << " ms\n"
        << "appending " << linePixels << " lines to a plain view  " << lines << " ms\n"
        << "own time / (calls + lines)           " << whole / (calls + lines) << '\n'
        << "the link at 115200 baud, 24 bytes    " << link << " ms\n"
        << "own time / the link's                " << whole / link << '\n';
    return 0;
}
