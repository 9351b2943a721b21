// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a start costs until the window is painted: as the program starts, the window alone, and an empty
// window as Qt shows it. benchmark_start_up [STARTS] starts each so many times, in turn.
#include "appearance.h"
#include "fittedwindow.h"
#include "mainwindow.h"
#include "operatorinput.h"
#include "scaling.h"

#include <QApplication>
#include <QByteArray>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QList>
#include <QMainWindow>
#include <QMap>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace
{

/// What is started, each as a process of its own with this word as its argument.
const QStringList kinds{QStringLiteral("program"), QStringLiteral("window"), QStringLiteral("empty")};

struct Start
{
    double milliseconds;          ///< From the start of the process until its window has been painted.
    double processorMilliseconds; ///< Of those, what the processor worked.
    double kilobytes;             ///< Of memory that is resident; 0 where the system does not tell.
};

double residentKilobytes()
{
#if defined(Q_OS_LINUX)
    QFile status{QStringLiteral("/proc/self/status")};
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').first().toDouble();
        }
    }
#endif
    return 0;
}

/// Notes the first painting of any window.
class FirstPainting : public QObject
{
public:
    FirstPainting() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        came = came || event->type() == QEvent::Paint;
        return false;
    }

    bool came{false};
};

/// Shows a window and tells what that took until it has been painted.
[[noreturn]] void showAndTell(QWidget &window)
{
    const FirstPainting painting;
    window.show();
    while (!painting.came) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QTextStream{stdout} << 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC << ' '
                        << residentKilobytes() << '\n';
    // What comes after the painting is no part of a start.
    std::_Exit(0);
}

[[noreturn]] void startEmpty(int argc, char *argv[])
{
    const QApplication application{argc, argv};
    QMainWindow window;
    showAndTell(window);
}

[[noreturn]] void startProgram(int argc, char *argv[])
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    followDesktopScaling();
    const QApplication application{argc, argv};
    setAppearance();
    OperatorInput operatorInput;
    MainWindow window{nullptr};
    QApplication::setWindowIcon(window.windowIcon());
    window.setSequenceObserver([&operatorInput](bool running) { operatorInput.sequenceRuns(running); });
    [[maybe_unused]] const auto fitted = fitToScreen(window);
    showAndTell(window);
}

[[noreturn]] void startWindow(int argc, char *argv[])
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    const QApplication application{argc, argv};
    MainWindow window{nullptr};
    showAndTell(window);
}

Start measure(const QString &kind)
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {kind});
    QByteArray told;
    while (!told.contains('\n') && process.waitForReadyRead()) {
        told += process.readAllStandardOutput();
    }
    const auto nanoseconds = static_cast<double>(sinceStart.nsecsElapsed());
    process.waitForFinished();
    told += process.readAllStandardOutput();
    const QStringList figures{QString::fromUtf8(told).trimmed().split('\n').last().split(' ')};
    if (figures.size() != 2) {
        qFatal("a start failed: %s", process.readAllStandardError().constData());
    }
    return {nanoseconds / 1e6, figures.first().toDouble(), figures.last().toDouble()};
}

double median(QList<Start> all, double Start::*figure)
{
    const auto middle = all.begin() + all.size() / 2;
    std::nth_element(all.begin(), middle, all.end(), [figure](const Start &left, const Start &right) {
        return left.*figure < right.*figure;
    });
    return (*middle).*figure;
}

} // namespace

int main(int argc, char *argv[])
{
    const QString kind{argc > 1 ? argv[1] : ""};
    if (kind == kinds[0]) {
        startProgram(argc, argv);
    }
    if (kind == kinds[1]) {
        startWindow(argc, argv);
    }
    if (kind == kinds[2]) {
        startEmpty(argc, argv);
    }
    const QCoreApplication application{argc, argv};
    const int starts{kind.isEmpty() ? 31 : kind.toInt()};
    if (starts <= 0) {
        qFatal("%s is neither a number of starts nor one of: %s", argv[1], qPrintable(kinds.join(' ')));
    }
    QMap<QString, QList<Start>> taken;
    for (int run{0}; run < starts; ++run) {
        for (const QString &each : kinds) {
            taken[each].append(measure(each));
        }
    }
    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(1);
    out << "        painted after [ms]   processor [ms]   memory [kB]   time / that of an empty window\n";
    const double empty{median(taken[kinds[2]], &Start::milliseconds)};
    for (const QString &each : kinds) {
        const QList<Start> &all{taken[each]};
        const double shown{median(all, &Start::milliseconds)};
        out << Qt::left << qSetFieldWidth(10) << each << Qt::right << qSetFieldWidth(16) << shown
            << qSetFieldWidth(17) << median(all, &Start::processorMilliseconds) << qSetFieldWidth(14)
            << qRound(median(all, &Start::kilobytes)) << qSetRealNumberPrecision(2) << qSetFieldWidth(33)
            << shown / empty << qSetRealNumberPrecision(1) << qSetFieldWidth(0) << '\n';
    }
    return 0;
}
