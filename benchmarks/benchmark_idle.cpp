// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Whether the program sleeps while nobody touches it: how often its threads wake up and what the processor
// works, without a device, connected, and with the caret in a text box. benchmark_idle [SECONDS] looks so
// long at each, 20 if not told. Its status is 1 when the program woke up without a caret.
#include "operatedwindow.h"
#include "programwindow.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <QThread>
#include <QTimer>

namespace
{

/// What is looked at, each in a process of its own with this word as its argument.
const QStringList states{QStringLiteral("unconnected"), QStringLiteral("connected"), QStringLiteral("caret")};

/// What a process has done since it was started.
struct Work
{
    long wakeUps{0};        ///< How often one of its threads has gone to sleep, and so woken up before.
    long processorTicks{0}; ///< In hundredths of a second.
    int threads{0};
};

Work workOf(qint64 process)
{
    const QString folder{QStringLiteral("/proc/%1/task").arg(process)};
    Work work;
    for (const QString &thread : QDir{folder}.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile status{folder + '/' + thread + "/status"};
        QFile sizes{folder + '/' + thread + "/stat"};
        if (!status.open(QIODevice::ReadOnly) || !sizes.open(QIODevice::ReadOnly)) {
            qFatal("/proc cannot be read");
        }
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("voluntary_ctxt_switches:")) {
                work.wakeUps += line.mid(line.indexOf(':') + 1).trimmed().toLong();
            }
        }
        // Behind the name in brackets, which may hold anything, times in user and kernel mode are fields 12
        // and 13.
        const QByteArray all{sizes.readAll()};
        const auto fields = all.mid(all.lastIndexOf(')') + 2).split(' ');
        work.processorTicks += fields.at(11).toLong() + fields.at(12).toLong();
        ++work.threads;
    }
    return work;
}

/// The program as it starts, in the state of that name, until it is ended from outside.
int beIdle(int argc, char *argv[])
{
    bringUpProgram();
    const QApplication application{argc, argv};
    const QString state{argv[1]};
    ProgramWindow program;
    program.window.show();
    QTimer::singleShot(0, &program.window, [&program, &state] {
        const OperatedWindow operated{program.window};
        if (state != states[0]) {
            operated.connectDevice();
        }
        if (state == states[2]) {
            operated.child<QAbstractSpinBox>("FusionZoomFactorSB").setFocus();
        }
        QTextStream{stdout} << "ready\n";
    });
    return QApplication::exec();
}

Work watch(const QString &state, int seconds)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {state});
    if (!process.waitForReadyRead(30'000) || process.readAllStandardOutput() != "ready\n") {
        qFatal("the program did not start");
    }
    // What is left to be painted.
    QThread::sleep(2);
    const Work before{workOf(process.processId())};
    QThread::sleep(static_cast<unsigned long>(seconds));
    const Work after{workOf(process.processId())};
    process.kill();
    process.waitForFinished();
    return {after.wakeUps - before.wakeUps, after.processorTicks - before.processorTicks, after.threads};
}

} // namespace

int main(int argc, char *argv[])
{
    const QString argument{argc > 1 ? argv[1] : "20"};
    if (states.contains(argument)) {
        return beIdle(argc, argv);
    }
    const QCoreApplication application{argc, argv};
    const int seconds{argument.toInt()};
    if (seconds <= 0) {
        qFatal("%s is no number of seconds", argv[1]);
    }
    QTextStream out{stdout};
    out << "in " << seconds << " s     wake-ups   processor, ms   threads" << Qt::endl;
    bool wokeUp{false};
    for (const QString &state : states) {
        const Work work{watch(state, seconds)};
        wokeUp = wokeUp || (state != states[2] && work.wakeUps > 0);
        out << qSetFieldWidth(12) << Qt::left << state << Qt::right << qSetFieldWidth(9) << work.wakeUps
            << qSetFieldWidth(16) << work.processorTicks * 10 << qSetFieldWidth(10) << work.threads
            << qSetFieldWidth(0) << Qt::endl;
    }
    return wokeUp ? 1 : 0;
}
