// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the commands read while it comes: from pipes, with and without a name, and what ends the waiting.
#include "ctlrun.h"
#include "terminal.h"
#include "testclass.h"

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace
{

/// The program with a standard input that stays open.
class Reading : public QProcess
{
public:
    Reading(const CtlFolder &folder, const QStringList &arguments)
    {
        setProcessEnvironment(folder.environment);
        setWorkingDirectory(folder.path({}));
        start(CTL, arguments);
        // Until then it is still a copy of the test, which has handlers of its own.
        waitForStarted();
    }

    /// Whether it heeds a signal by now, instead of being ended by it.
    bool heeds(int signal) const
    {
        QFile status{QStringLiteral("/proc/%1/status").arg(processId())};
        if (!status.open(QIODevice::ReadOnly)) {
            return false;
        }
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("SigCgt:")) {
                return (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (signal - 1) & 1U) != 0;
            }
        }
        return false;
    }

    /// One that has ended gets none: its number is 0 then, which stands for the test and all beside it.
    void send(int signal) const
    {
        if (processId() > 0) {
            ::kill(static_cast<pid_t>(processId()), signal);
        }
    }

    /// Waits until it has written so much.
    bool writes(const QByteArray &text)
    {
        while (!written.endsWith(text) && waitForReadyRead(30000)) {
            written += readAllStandardOutput();
        }
        return written.endsWith(text);
    }

private:
    QByteArray written;
};

/// Long enough for a process that has nothing else to do to begin to wait.
void letItWait()
{
    QTest::qWait(300);
}

void makePipe(const CtlFolder &folder, const char *name)
{
    QCOMPARE(::mkfifo(QFile::encodeName(folder.path(name)).constData(), S_IRUSR | S_IWUSR), 0);
}

} // namespace

class CtlInputTest : public QObject
{
    Q_OBJECT

private slots:
    void aSignalEndsTheWaiting_data();
    void aSignalEndsTheWaiting();
    void aSignalEndsTheShellBetweenItsLines();
    void theShellRunsEachLineAsItComes();
    void aPipeWithANameMayBeWrittenLater();
    void otherSignalsEndNothing();
    void tellsWhatCannotBeRead();
    void aPipeHasNoProgressOnATerminal();
};

void CtlInputTest::aSignalEndsTheWaiting_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("isWritten"); ///< The pipe with a name, by somebody who says nothing.
    const auto row = [](const QStringList &arguments, int signal, bool isWritten = false) {
        QTest::addRow("%s, signal %d%s", qPrintable(arguments.join(' ')), signal,
                      isWritten ? ", with a writer" : "")
            << arguments << signal << isWritten;
    };
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        row({"shell"}, signal);
    }
    row({"shell", "pipe"}, SIGINT);
    row({"shell", "pipe"}, SIGINT, true);
    row({"profile", "apply", "-"}, SIGINT);
    row({"profile", "diff", "pipe"}, SIGINT);
    row({"recording", "show", "-"}, SIGINT);
    row({"recording", "profile", "pipe"}, SIGINT, true);
}

void CtlInputTest::aSignalEndsTheWaiting()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, signal);
    QFETCH(const bool, isWritten);
    const CtlFolder folder;
    makePipe(folder, "pipe");
    // For both directions, so that it does not wait for the other one.
    const int writer{isWritten ? ::open(QFile::encodeName(folder.path("pipe")).constData(), O_RDWR) : -1};
    Reading process{folder, arguments};
    QTRY_VERIFY_WITH_TIMEOUT(process.heeds(signal), 30000);
    letItWait();
    process.send(signal);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.readAllStandardError(), QByteArray{"pilotel-ctl: Interrupted.\n"});
    QCOMPARE(process.readAllStandardOutput(), QByteArray{});
    QCOMPARE(process.exitCode(), 1);
    if (writer >= 0) {
        ::close(writer);
    }
}

void CtlInputTest::aSignalEndsTheShellBetweenItsLines()
{
    const CtlFolder folder;
    Reading process{folder, {"shell"}};
    process.write("get camera.clhe\n");
    QVERIFY(process.writes("camera.clhe = 2000\n"));
    letItWait();
    process.send(SIGINT);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray{"pilotel-ctl: Interrupted.\n"});
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(folder.calls().contains("closeDevice(\"device\")"));
}

void CtlInputTest::theShellRunsEachLineAsItComes()
{
    const CtlFolder folder;
    Reading process{folder, {"shell"}};
    process.write("get camera.cl");
    QVERIFY(process.waitForBytesWritten());
    letItWait();
    process.write("he\nget camera.tint\nget");
    QVERIFY(process.writes("camera.clhe = 2000\ncamera.tint = 10\n"));
    process.write(" camera.gamma");
    process.closeWriteChannel();
    QVERIFY(process.writes("camera.gamma = 65536  # 1\n"));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray{});
    QCOMPARE(process.exitCode(), 0);
}

void CtlInputTest::aPipeWithANameMayBeWrittenLater()
{
    const CtlFolder folder;
    makePipe(folder, "pipe");
    Reading process{folder, {"shell", "pipe"}};
    QTRY_VERIFY_WITH_TIMEOUT(process.heeds(SIGINT), 30000);
    letItWait();
    folder.write("pipe", "get camera.clhe\nget camera.nothing\n");
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput(), QByteArray{"camera.clhe = 2000\n"});
    QCOMPARE(
        process.readAllStandardError(),
        QByteArray{
            "pilotel-ctl: pipe:2: There is no setting \"camera.nothing\"; did you mean \"camera.tint\"?\n"});
    QCOMPARE(process.exitCode(), 2);
}

void CtlInputTest::otherSignalsEndNothing()
{
    const CtlFolder folder;
    Reading process{folder, {"shell"}};
    QTRY_VERIFY_WITH_TIMEOUT(process.heeds(SIGINT), 30000);
    letItWait();
    // Ctrl-Z and `fg`.
    process.send(SIGSTOP);
    process.send(SIGCONT);
    process.send(SIGWINCH);
    letItWait();
    process.write("get camera.clhe\n");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput(), QByteArray{"camera.clhe = 2000\n"});
    QCOMPARE(process.exitCode(), 0);
}

void CtlInputTest::tellsWhatCannotBeRead()
{
    CtlFolder folder;
    for (const QStringList &arguments : {QStringList{"shell"}, QStringList{"profile", "apply", "-"},
                                         QStringList{"recording", "show", "-"}}) {
        // A folder opens as standard input, and cannot be read.
        const Outcome outcome{
            ::run("/bin/sh", {"-c", QString{CTL} + ' ' + arguments.join(' ') + " < /"}, folder.environment)};
        QCOMPARE(outcome.errors, QString{"pilotel-ctl: standard input: Is a directory\n"});
        QCOMPARE(outcome.status, 2);
    }
    for (const QStringList &arguments :
         {QStringList{"shell", "nowhere"}, QStringList{"profile", "apply", "nowhere"},
          QStringList{"recording", "show", "nowhere"}}) {
        const Outcome outcome{folder.run(arguments)};
        QCOMPARE(outcome.errors, QString{"pilotel-ctl: nowhere: No such file or directory\n"});
        QCOMPARE(outcome.status, 2);
    }
}

void CtlInputTest::aPipeHasNoProgressOnATerminal()
{
    CtlFolder folder;
    folder.run({"info"});
    // More than a megabyte, for longer than a second: then a file would show how far it is.
    const QByteArray session{folder.read("trace.json")};
    folder.write("part", session.repeated(1'500'000 / session.size() + 1));
    Terminal terminal{"/bin/sh",
                      {"-c", "cd " + folder.path({}) + " && { cat part; sleep 1.2; cat part; } | " + CTL +
                                 " recording profile -"},
                      folder.environment};
    QVERIFY2(terminal.waitFor("the recording shows no setting of either unit"), terminal.seen());
    QCOMPARE(terminal.end(), 2);
    QVERIFY2(!terminal.seen().contains("Reading megabytes"), terminal.seen());
}

PILOTEL_TEST_CLASS(CtlInputTest)
#include "tst_ctl_input.moc"
