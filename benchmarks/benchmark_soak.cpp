// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the program holds on to: thousands of connections, hours of an operator's work, a log of a million
// lines. Its status is 1 when memory, descriptors or threads grow from the second row of a table to the
// third.
#include "appearance.h"
#include "mainwindow.h"
#include "operatorinput.h"
#include "veltrix_simulator/simulator.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QByteArray>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSlider>
#include <QString>
#include <QTabWidget>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <functional>

namespace
{

/// What the process holds at a moment.
struct Holdings
{
    long kilobytes{0};
    int descriptors{0};
    int threads{0};

    static Holdings now()
    {
        constexpr long kilobytesAPage{4};
        QFile sizes{QStringLiteral("/proc/self/statm")};
        if (!sizes.open(QIODevice::ReadOnly)) {
            qFatal("/proc cannot be read");
        }
        const auto entries = [](const char *folder) {
            return QDir{QLatin1String{folder}}
                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                .size();
        };
        return {sizes.readAll().split(' ').at(1).toLong() * kilobytesAPage, entries("/proc/self/fd"),
                entries("/proc/self/task")};
    }
    /// Whether more is held than before. The allocator of memory keeps a little now and then.
    bool exceed(const Holdings &before) const
    {
        constexpr long kilobytesKept{512};
        return kilobytes > before.kilobytes + kilobytesKept || descriptors > before.descriptors ||
               threads > before.threads;
    }
};

class Soak
{
public:
    explicit Soak(MainWindow &itsWindow) : window{itsWindow}, log{child<QPlainTextEdit>("logView")}
    {
        out.setRealNumberNotation(QTextStream::FixedNotation);
        out.setRealNumberPrecision(2);
    }

    /// Repeats it, and tells what the process holds after so many times, and how long the latest ones took.
    void repeat(const char *what, const std::array<int, 3> &places,
                const std::function<void(int turn)> &action)
    {
        const int latest{std::min(100, places.front())};
        out << '\n' << what << "\n     times   memory, kB   descriptors   threads   ms each\n";
        Holdings before;
        QElapsedTimer timer;
        for (int turn{1}; turn <= places.back(); ++turn) {
            if (std::any_of(places.begin(), places.end(),
                            [=](int place) { return turn == place - latest + 1; })) {
                timer.start();
            }
            action(turn);
            QCoreApplication::processEvents();
            const auto *const place = std::find(places.begin(), places.end(), turn);
            if (place == places.end()) {
                continue;
            }
            const double milliseconds{static_cast<double>(timer.nsecsElapsed()) / 1e6 / latest};
            const Holdings holdings{Holdings::now()};
            out << qSetFieldWidth(10) << turn << qSetFieldWidth(13) << holdings.kilobytes
                << qSetFieldWidth(14) << holdings.descriptors << qSetFieldWidth(10) << holdings.threads
                << milliseconds << qSetFieldWidth(0) << Qt::endl;
            if (turn == places.back() && holdings.exceed(before)) {
                out << "it grows" << Qt::endl;
                grown = true;
            }
            before = holdings;
        }
    }

    void connectReadDisconnect()
    {
        connectDevice();
        press("readParamButtonUser");
        press("disconnectDeviceButton");
        press("clearLogButton");
    }

    void connectDevice()
    {
        press("scanDeviceButton");
        child<QComboBox>("selectDeviceComboBox").setCurrentText(QStringLiteral("SIM1"));
        press("connectDeviceButton");
    }

    /// What an operator does next, in turn: a page, sliders, boxes, choices, buttons, now and then a read, a
    /// save, a reset. The log is emptied once an hour.
    void work(int turn)
    {
        switch (turn % 12) {
        case 0: {
            auto &pages = child<QTabWidget>("Principal_tab");
            pages.setCurrentIndex((pages.currentIndex() + 1) % pages.count());
            break;
        }
        case 1:
            slide("gammaSlider", turn);
            break;
        case 2:
            edit("clheEdit", turn % 9000);
            break;
        case 3:
            choose("lutColorEdit", turn);
            break;
        case 4:
            press("polarityButton");
            break;
        case 5:
            slide("sharpeningGainSlider", turn);
            break;
        case 6:
            edit("Roi0IncX1", turn % 20);
            break;
        case 7: {
            auto &enable = child<QCheckBox>("roi1IncEnable");
            enable.setChecked(!enable.isChecked());
            break;
        }
        case 8:
            press(turn % 24 == 8 ? "BU_IR_MODE_PB" : "BU_FUSION_MODE_PB");
            break;
        case 9:
            edit("VisAgcTargetSB", turn % 100);
            break;
        case 10:
            press("FusionConfigureZoomPB");
            break;
        default:
            press(turn % 60 == 11 ? "readParamButtonUser"
                                  : (turn % 60 == 23 ? "saveParamButtonUser" : "resetParamButtonUser"));
        }
        if (turn % actionsAnHour == 0) {
            press("clearLogButton");
        }
    }
    /// One in three seconds.
    static constexpr int actionsAnHour{1200};

    void refillTheLog()
    {
        constexpr int lines{100'000};
        fillTheLog(lines);
        press("clearLogButton");
    }

    void fillAndEmptyTheLog()
    {
        constexpr int lines{1'000'000};
        constexpr int looks{200};
        out << "\na log of " << lines << " lines" << Qt::endl;
        fillTheLog(lines);
        out << "memory " << Holdings::now().kilobytes << " kB" << Qt::endl;
        QScrollBar &bar{*log.verticalScrollBar()};
        double slowest{0};
        QElapsedTimer timer;
        for (int look{0}; look < looks; ++look) {
            timer.start();
            // Far apart, so that nothing is on the screen already.
            bar.setValue(
                static_cast<int>(static_cast<long long>(bar.maximum()) * (look * 73 % looks) / looks));
            log.viewport()->repaint();
            slowest = std::max(slowest, static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
        out << "the slowest of " << looks << " scrolls to another place, painted: " << slowest << " ms"
            << Qt::endl;
        timer.start();
        press("saveParamButtonUser");
        log.viewport()->repaint();
        out << "one more line at its end, painted: " << static_cast<double>(timer.nsecsElapsed()) / 1e6
            << " ms" << Qt::endl;
        timer.start();
        press("clearLogButton");
        QCoreApplication::processEvents();
        out << "emptied in " << static_cast<double>(timer.nsecsElapsed()) / 1e6 << " ms, memory "
            << Holdings::now().kilobytes << " kB" << Qt::endl;
        if (log.blockCount() != 1) {
            qFatal("the log was not emptied");
        }
    }

    void fillTheLog(int lines)
    {
        while (log.blockCount() <= lines) {
            press("addBadPixelLineButton");
        }
    }

    bool hasGrown() const { return grown; }

private:
    template <typename Widget>
    Widget &child(const char *name) const
    {
        auto *const found = window.findChild<Widget *>(QLatin1String{name});
        if (found == nullptr) {
            qFatal("the window has no %s", name);
        }
        return *found;
    }
    void press(const char *name) const
    {
        auto &button = child<QAbstractButton>(name);
        if (!button.isEnabled()) {
            qFatal("%s is disabled; the figures would mean nothing", name);
        }
        button.click();
    }
    void slide(const char *name, int turn) const
    {
        auto &slider = child<QSlider>(name);
        slider.setSliderDown(true);
        slider.setSliderPosition(turn % (slider.maximum() + 1));
        slider.setSliderDown(false);
    }
    void edit(const char *name, int value) const
    {
        auto &box = child<QAbstractSpinBox>(name);
        box.setProperty("value", value);
        emit box.editingFinished();
    }
    void choose(const char *name, int turn) const
    {
        auto &box = child<QComboBox>(name);
        box.setCurrentIndex(turn % box.count());
    }

    MainWindow &window;
    QPlainTextEdit &log;
    QTextStream out{stdout};
    bool grown{false};
};

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application{argc, argv};
    setAppearance();
    OperatorInput operatorInput;
    MainWindow window;
    window.setSequenceObserver([&operatorInput](bool running) { operatorInput.sequenceRuns(running); });
    window.show();
    veltrix_simulator::Simulator::instance().setJournalEnabled(false);

    Soak soak{window};
    // Fewer where somebody has less time: benchmark_soak 1000.
    const int connections{argc > 1 ? std::max(100, QByteArray{argv[1]}.toInt()) : 10'000};
    soak.repeat("connect, read, disconnect", {connections / 100, connections / 10, connections},
                [&soak](int /*turn*/) { soak.connectReadDisconnect(); });
    soak.connectDevice();
    constexpr int hour{Soak::actionsAnHour};
    soak.repeat("actions of an operator: one hour, four, eight", {hour, 4 * hour, 8 * hour},
                [&soak](int turn) { soak.work(turn); });
    soak.repeat("a log that is filled with 100,000 lines and emptied", {1, 2, 4},
                [&soak](int /*turn*/) { soak.refillTheLog(); });
    soak.fillAndEmptyTheLog();
    return soak.hasGrown() ? 1 : 0;
}
