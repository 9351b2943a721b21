// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a start costs until the window is painted. First within one process: as the program starts, the window
// alone, and an empty window as Qt shows it. Then, on an X server, the programs themselves beside each other.
// benchmark_start_up [STARTS] starts each so many times, in turn.
#include "mainwindow.h"
#include "programwindow.h"
#if defined(WATCHES_X11)
#include "screenwatch.h"
#endif

#include <QApplication>
#include <QByteArray>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMainWindow>
#include <QObject>
#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <QVector>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#if defined(WATCHES_X11)
#include <sys/resource.h>
#endif

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

/// What is compared, and how one start of it is measured.
struct Candidate
{
    QString name;
    std::function<Start()> start;
};

double residentKilobytes(qint64 process)
{
#if defined(Q_OS_LINUX)
    QFile status{QStringLiteral("/proc/%1/status").arg(process)};
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').first().toDouble();
        }
    }
#else
    Q_UNUSED(process)
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
                        << residentKilobytes(QCoreApplication::applicationPid()) << '\n';
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
    bringUpProgram();
    const QApplication application{argc, argv};
    ProgramWindow program;
    showAndTell(program.window);
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

#if defined(WATCHES_X11)
/// What the processor worked for the processes that have ended.
double processorMilliseconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto milliseconds = [](const timeval &time) {
        return 1000.0 * static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1000.0;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

Start watchStart(ScreenWatch &screen, const QString &program)
{
    const double before{processorMilliseconds()};
    screen.begin();
    QElapsedTimer sinceStart;
    sinceStart.start();
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, QStringList{});
    if (!screen.waitUntilDrawn(process.processId())) {
        qFatal("%s shows no window", qPrintable(program));
    }
    const auto nanoseconds = static_cast<double>(sinceStart.nsecsElapsed());
    const double kilobytes{residentKilobytes(process.processId())};
    process.kill();
    process.waitForFinished();
    return {nanoseconds / 1e6, processorMilliseconds() - before, kilobytes};
}
#endif

double median(QList<Start> all, double Start::*figure)
{
    const auto middle = all.begin() + all.size() / 2;
    std::nth_element(all.begin(), middle, all.end(), [figure](const Start &left, const Start &right) {
        return left.*figure < right.*figure;
    });
    return (*middle).*figure;
}

/// Starts each candidate so many times, in turn and every second time backwards, because what is in the
/// caches is from the one before. The times are told beside those of the last one.
void compare(const QString &title, const QList<Candidate> &candidates, int starts)
{
    const int count{candidates.size()};
    QVector<QList<Start>> taken(count);
    for (int run{0}; run < starts; ++run) {
        for (int place{0}; place < count; ++place) {
            const int each{run % 2 == 0 ? place : count - 1 - place};
            taken[each].append(candidates[each].start());
        }
    }
    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(1);
    out << Qt::left << qSetFieldWidth(14) << title << qSetFieldWidth(0)
        << "painted after [ms]   processor [ms]   memory [kB]   time / that of an empty window\n";
    const double empty{median(taken.last(), &Start::milliseconds)};
    for (int each{0}; each < count; ++each) {
        const QList<Start> &all{taken[each]};
        const double shown{median(all, &Start::milliseconds)};
        out << Qt::left << qSetFieldWidth(14) << candidates[each].name << Qt::right << qSetFieldWidth(18)
            << shown << qSetFieldWidth(17) << median(all, &Start::processorMilliseconds) << qSetFieldWidth(14)
            << qRound(median(all, &Start::kilobytes)) << qSetRealNumberPrecision(2) << qSetFieldWidth(33)
            << shown / empty << qSetRealNumberPrecision(1) << qSetFieldWidth(0) << '\n';
    }
}

/// The processes of this benchmark, each measured by itself.
void compareWithinOneProcess(int starts)
{
    QList<Candidate> candidates;
    for (const QString &kind : kinds) {
        candidates.append({kind, [kind] {
                               return measure(kind);
                           }});
    }
    compare(QStringLiteral("in a process"), candidates, starts);
}

/// Programs as operators start them, each measured by what the X server shows.
void compareOnTheScreen(int starts)
{
#if defined(WATCHES_X11)
    ScreenWatch screen;
    if (!screen.isConnected()) {
        QTextStream{stdout} << "without an X server, the programs are not compared\n";
        return;
    }
    const auto candidate = [&screen](const QString &program) {
        return Candidate{QFileInfo{program}.fileName(), [&screen, program] {
                             return watchStart(screen, program);
                         }};
    };
    const QString here{QCoreApplication::applicationDirPath()};
    QList<Candidate> candidates{candidate(here + "/pilotel")};
    const QString other{QStandardPaths::findExecutable(QStringLiteral("qv4l2"))};
    if (other.isEmpty()) {
        QTextStream{stdout} << "qv4l2 is not installed and left out\n";
    } else {
        candidates.append(candidate(other));
    }
    candidates.append(candidate(here + "/empty_window"));
    compare(QStringLiteral("on the screen"), candidates, starts);
#else
    Q_UNUSED(starts)
#endif
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
    compareWithinOneProcess(starts);
    compareOnTheScreen(starts);
    return 0;
}
