// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the program holds on to: thousands of connections, hours of an operator's work, a log of a million
// lines. Its status is 1 when memory, descriptors, threads or the time for each grow from the second row of a
// table to the third.
#include "operatedwindow.h"
#include "programwindow.h"
#include "veltrix_simulator/simulator.h"

#include <QApplication>
#include <QByteArray>
#include <QCheckBox>
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
#include <ctime>
#include <functional>
#include <limits>

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
    explicit Soak(MainWindow &window) : operated{window}, log{operated.child<QPlainTextEdit>("logView")}
    {
        out.setRealNumberNotation(QTextStream::FixedNotation);
        out.setRealNumberPrecision(2);
    }

    /// Repeats it, and tells what the process holds after so many times, and what one takes the processor: in
    /// the quickest of the latest batches, at most four of them, of so many each. What does not fill a batch
    /// is done first and not measured.
    void repeat(const char *what, const std::array<int, 3> &rows, int batch,
                const std::function<void(int turn)> &action)
    {
        constexpr int batchesOfRow{4};
        out << '\n' << what << "\n     times   memory, kB   descriptors   threads   ms each\n";
        Holdings before;
        double millisecondsBefore{0};
        int turn{0};
        for (const int row : rows) {
            double quickest{std::numeric_limits<double>::max()};
            while (turn < row) {
                const int left{row - turn};
                const std::clock_t start{std::clock()};
                for (const int end{turn + (left % batch == 0 ? batch : left % batch)}; turn < end;) {
                    action(++turn);
                    QCoreApplication::processEvents();
                }
                if (left % batch == 0 && left <= batchesOfRow * batch) {
                    quickest = std::min(quickest, millisecondsSince(start) / batch);
                }
            }
            const Holdings holdings{Holdings::now()};
            out << qSetFieldWidth(10) << turn << qSetFieldWidth(13) << holdings.kilobytes
                << qSetFieldWidth(14) << holdings.descriptors << qSetFieldWidth(10) << holdings.threads
                << quickest << qSetFieldWidth(0) << Qt::endl;
            if (row == rows.back() && holdings.exceed(before)) {
                out << "it holds more and more" << Qt::endl;
                grown = true;
            }
            // What two runs of the same differ by on a machine with other work stays below that.
            constexpr double slowerAtMost{1.2};
            if (row == rows.back() && quickest > slowerAtMost * millisecondsBefore) {
                out << "it takes longer and longer" << Qt::endl;
                grown = true;
            }
            before = holdings;
            millisecondsBefore = quickest;
        }
    }

    void connectReadDisconnect()
    {
        connectDevice();
        press("readParamButtonUser");
        press("disconnectDeviceButton");
        press("clearLogButton");
    }

    void connectDevice() const { operated.connectDevice(); }

    /// What an operator does next, in turn: a page, sliders, boxes, choices, buttons, now and then a read, a
    /// save, a reset. The log is emptied once an hour.
    void work(int turn)
    {
        switch (turn % 12) {
        case 0: {
            auto &pages = operated.child<QTabWidget>("Principal_tab");
            pages.setCurrentIndex((pages.currentIndex() + 1) % pages.count());
            break;
        }
        case 1:
            slide("gammaSlider", turn);
            break;
        case 2:
            operated.edit("clheEdit", turn % 9000);
            break;
        case 3:
            operated.choose("lutColorEdit", turn);
            break;
        case 4:
            press("polarityButton");
            break;
        case 5:
            slide("sharpeningGainSlider", turn);
            break;
        case 6:
            operated.edit("Roi0IncX1", turn % 20);
            break;
        case 7: {
            auto &enable = operated.child<QCheckBox>("roi1IncEnable");
            enable.setChecked(!enable.isChecked());
            break;
        }
        case 8:
            press(turn % 24 == 8 ? "BU_IR_MODE_PB" : "BU_FUSION_MODE_PB");
            break;
        case 9:
            operated.edit("VisAgcTargetSB", turn % 100);
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
    static double millisecondsSince(std::clock_t start)
    {
        return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    }
    void press(const char *name) const { operated.press(name); }
    /// To all its positions, one after the other.
    void slide(const char *name, int turn) const
    {
        auto &slider = operated.child<QSlider>(name);
        slideTo(slider, turn % (slider.maximum() + 1));
    }

    OperatedWindow operated;
    QPlainTextEdit &log;
    QTextStream out{stdout};
    bool grown{false};
};

} // namespace

int main(int argc, char *argv[])
{
    bringUpProgram();
    const QApplication application{argc, argv};
    ProgramWindow program;
    program.window.show();
    veltrix_simulator::Simulator::instance().setJournalEnabled(false);

    Soak soak{program.window};
    // Fewer where somebody has less time: benchmark_soak 1000.
    const int connections{argc > 1 ? std::max(100, QByteArray{argv[1]}.toInt()) : 10'000};
    soak.repeat("connect, read, disconnect", {connections / 100, connections / 10, connections},
                std::max(1, connections / 400), [&soak](int /*turn*/) { soak.connectReadDisconnect(); });
    soak.connectDevice();
    constexpr int hour{Soak::actionsAnHour};
    soak.repeat("actions of an operator: four hours, eight, sixteen", {4 * hour, 8 * hour, 16 * hour}, hour,
                [&soak](int turn) { soak.work(turn); });
    soak.repeat("a log that is filled with 100,000 lines and emptied", {1, 2, 4}, 1,
                [&soak](int /*turn*/) { soak.refillTheLog(); });
    soak.fillAndEmptyTheLog();
    return soak.hasGrown() ? 1 : 0;
}
