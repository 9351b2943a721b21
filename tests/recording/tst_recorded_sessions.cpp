// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The programs record: whole sessions as the simulator's trace has them, and what becomes of the file.
#include "program.h"
#include "recordedlines.h"
#include "testclass.h"

#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

namespace
{

/// A folder in which a program records, beside the trace of the simulator.
class Folder
{
public:
    Folder() { environment.insert("VELTRIX_SIMULATOR_TRACE", trace()); }

    QString path(const QString &name) const { return directory.filePath(name); }
    QString recording() const { return path("session.recording"); }
    QString trace() const { return path("session.trace"); }

    Outcome run(const QString &program, const QStringList &arguments) const
    {
        return ::run(program, arguments, environment, directory.path());
    }

    void write(const QString &name, const QByteArray &text) const
    {
        QFile file{path(name)};
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QByteArray read(const QString &name) const
    {
        QFile file{path(name)};
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray{"no file"};
    }

    QProcessEnvironment environment{programEnvironment()};

private:
    const QTemporaryDir directory;
};

const QStringList closing{"-plugin", "closewhenshown"};

} // namespace

class RecordedSessionsTest : public QObject
{
    Q_OBJECT

private slots:
    void sessionIsThatOfTheTrace_data();
    void sessionIsThatOfTheTrace();
    void optionGoesBeforeTheVariable_data();
    void optionGoesBeforeTheVariable();
    void earlierRecordingIsKept();
    void recordingInProgressIsKept();
    void noEarlierRecordingIsKeptTooOften();
    void otherFileIsLeftAlone_data();
    void otherFileIsLeftAlone();
#if defined(Q_OS_UNIX)
    void unreadableFileIsLeftAlone_data();
    void unreadableFileIsLeftAlone();
    void linkStaysALink();
    void linkToNothingIsFollowed();
#endif
    void nothingElseTakesThePlaceOfARecording_data();
    void nothingElseTakesThePlaceOfARecording();
    void noCommandWritesWhereItRecords_data();
    void noCommandWritesWhereItRecords();
    void unwritableFileIsTold_data();
    void unwritableFileIsTold();
    void fullDiskEndsTheRecording();
    void windowGoesOnWithoutARecording();
    void askingAndCompletingRecordNothing();
    void isWholeAfterACrash();
    void portIsNoPath();
    void userMayBeCalledLikeTheLink();
};

void RecordedSessionsTest::sessionIsThatOfTheTrace_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<int>("fewest");
    const auto row = [](const char *name, const char *program, const QStringList &arguments,
                        const char *scenario, int fewest) {
        QTest::addRow("%s", name) << QString{program} << arguments << QString{scenario} << fewest;
    };

    row("start of the window", PROGRAM, closing, "", 7);
    row("guided tour of the window", TOUR, {"."}, "", 500);
    row("check", CHECK, {"--port", "SIM1", "--write"}, "", 700);
    row("check of wrong answers", CHECK, {"--port", "SIM1", "--repeat", "2"}, "wrong-answers", 200);
    row("info", CTL, {"info"}, "", 20);
    row("list", CTL, {"list"}, "", 50);
    row("set", CTL, {"set", "camera.gamma=2.2", "blendUnit.zoom.factor=2"}, "", 10);
    row("set, refused", CTL, {"set", "camera.gamma=2", "blendUnit.warp0.a11=2"}, "refused-warp", 10);
    row("set without a cable", CTL, {"set", "camera.gamma=2.2"}, "cable-pulled", 5);
    row("watch", CTL, {"watch", "temperatures", "--every", "10ms", "--count", "20"}, "", 60);
}

void RecordedSessionsTest::sessionIsThatOfTheTrace()
{
    QFETCH(const QString, program);
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, scenario);
    QFETCH(const int, fewest);
    Folder folder;
    folder.environment.insert("PILOTEL_RECORD", folder.recording());
    folder.environment.insert("VELTRIX_SIMULATOR_SCENARIO", scenario);
    const Outcome outcome{folder.run(program, arguments)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    const QStringList calls{callsIn(folder.recording())};
    QCOMPARE(calls, callsIn(folder.trace()));
    QVERIFY2(calls.size() >= fewest, qPrintable(QString::number(calls.size())));
    QCOMPARE(wordsIn(folder.trace()), QStringList{});
    const QString beginning{R"({"trace":1,"program":"pilotel)"};
    QVERIFY(headerOf(folder.recording()).startsWith(beginning));
    // Nothing else is said or done than without.
    const Folder other;
    folder.environment.remove("PILOTEL_RECORD");
    QCOMPARE(folder.run(program, arguments).status, outcome.status);
    QCOMPARE(callsIn(folder.trace()).size(), calls.size());
}

void RecordedSessionsTest::optionGoesBeforeTheVariable_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addRow("pilotel-ctl") << CTL << QStringList{"info"};
    QTest::addRow("pilotel-sdk-check") << CHECK << QStringList{"--port", "SIM1"};
}

void RecordedSessionsTest::optionGoesBeforeTheVariable()
{
    QFETCH(const QString, program);
    QFETCH(const QStringList, arguments);
    Folder folder;
    folder.environment.insert("PILOTEL_RECORD", folder.path("of the variable"));
    const Outcome outcome{folder.run(program, QStringList{"--record", folder.recording()} + arguments)};
    QCOMPARE(outcome.status, 0);
    QCOMPARE(callsIn(folder.recording()), callsIn(folder.trace()));
    QVERIFY(!QFile::exists(folder.path("of the variable")));
}

void RecordedSessionsTest::earlierRecordingIsKept()
{
    const Folder folder;
    // What happens to have such a name is another's.
    folder.write("session.recording~", "precious\n");
    folder.write("session.recording.~2~", "precious as well\n");
    QCOMPARE(folder.run(CTL, {"--record", folder.recording(), "list"}).status, 0);
    const QStringList first{callsIn(folder.trace())};
    QCOMPARE(folder.run(CTL, {"--record", folder.recording(), "get", "camera.gamma"}).status, 0);
    const QStringList second{callsIn(folder.trace())};
    QCOMPARE(callsIn(folder.recording()), second);
    QCOMPARE(callsIn(folder.recording() + ".~1~"), first);
    QCOMPARE(folder.run(CTL, {"--record", folder.recording(), "info"}).status, 0);
    QCOMPARE(callsIn(folder.recording()), callsIn(folder.trace()));
    QCOMPARE(callsIn(folder.recording() + ".~1~"), first);
    QCOMPARE(callsIn(folder.recording() + ".~3~"), second);
    QCOMPARE(folder.read("session.recording~"), QByteArray{"precious\n"});
    QCOMPARE(folder.read("session.recording.~2~"), QByteArray{"precious as well\n"});
}

void RecordedSessionsTest::recordingInProgressIsKept()
{
#if defined(Q_OS_WIN)
    QSKIP("Windows renames no file that is open.");
#endif
    Folder folder;
    folder.environment.insert("PILOTEL_RECORD", folder.recording());
    folder.environment.remove("VELTRIX_SIMULATOR_TRACE");
    QProcess shell;
    shell.setProcessEnvironment(folder.environment);
    shell.start(CTL, {"shell"});
    shell.write("get camera.gamma\n");
    QTRY_VERIFY(folder.read("session.recording").contains("getGamma"));
    QCOMPARE(folder.run(CTL, {"get", "camera.clhe"}).status, 0);
    QCOMPARE(folder.run(CTL, {"get", "camera.polarity"}).status, 0);
    shell.write("get blendUnit.videoMode\n");
    shell.closeWriteChannel();
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitCode(), 0);
    const auto isIn = [&](const QString &name, const QString &operation) {
        return !callsIn(folder.path(name)).filter(operation).isEmpty();
    };
    // That of the shell was the first that had to give way, and goes on there.
    QVERIFY(isIn("session.recording.~1~", "getGamma"));
    QVERIFY(isIn("session.recording.~1~", "getVideoMode"));
    QVERIFY(isIn("session.recording.~2~", "getClhe"));
    QVERIFY(isIn("session.recording", "getPolarity"));
    QVERIFY(!QFile::exists(folder.path("session.recording.~3~")));
}

void RecordedSessionsTest::noEarlierRecordingIsKeptTooOften()
{
    const Folder folder;
    const QByteArray recording{"{\"trace\":1,\"program\":\"the first one\"}\n"};
    folder.write("session.recording", recording);
    for (int number{1}; number <= 9999; ++number) {
        folder.write(QString{"session.recording.~%1~"}.arg(number), {});
    }
    const Outcome outcome{folder.run(CTL, {"--record", "session.recording", "info"})};
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.errors,
             QString{R"(pilotel-ctl: "session.recording" cannot be kept: "session.recording.~1~" to )"
                     R"("session.recording.~9999~" are there already; delete those that nobody needs, )"
                     "or name another file.\n"});
    QCOMPARE(folder.read("session.recording"), recording);
    QVERIFY(!QFile::exists(folder.trace()));
}

void RecordedSessionsTest::otherFileIsLeftAlone_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("behind");
    QTest::addColumn<int>("status");
    QTest::addRow("pilotel") << PROGRAM << closing << "pilotel: "
                             << ". The program goes on without a recording." << 0;
    QTest::addRow("pilotel-ctl") << CTL << QStringList{"info"} << "pilotel-ctl: "
                                 << "." << 2;
    QTest::addRow("pilotel-sdk-check") << CHECK << QStringList{"--port", "SIM1"} << "pilotel-sdk-check: "
                                       << "." << 2;
}

void RecordedSessionsTest::otherFileIsLeftAlone()
{
    QFETCH(const QString, program);
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, before);
    QFETCH(const QString, behind);
    QFETCH(const int, status);
    Folder folder;
    folder.write("bench.toml", "seed = 7\n");
    folder.environment.insert("PILOTEL_RECORD", "bench.toml");
    const Outcome outcome{folder.run(program, arguments)};
    QCOMPARE(outcome.status, status);
    QCOMPARE(folder.read("bench.toml"), QByteArray{"seed = 7\n"});
    const QString line{before +
                       R"("bench.toml" is no recording, and is left as it is; name another file, or delete )"
                       "this one" +
                       behind + '\n'};
    QVERIFY2(outcome.errors.startsWith(line), qPrintable(outcome.errors));
    // A console program has called nothing.
    QCOMPARE(QFile::exists(folder.trace()), status == 0);
}

#if defined(Q_OS_UNIX)
void RecordedSessionsTest::unreadableFileIsLeftAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("writable");
    QTest::addRow("no permission") << "bench.toml" << false;
    QTest::addRow("may be written only") << "bench.toml" << true;
#if defined(Q_OS_LINUX)
    // The beginning of a program's memory cannot be read by anybody.
    QTest::addRow("cannot be read") << "/proc/self/mem" << true;
#endif
}

void RecordedSessionsTest::unreadableFileIsLeftAlone()
{
    QFETCH(const QString, name);
    QFETCH(const bool, writable);
    const Folder folder;
    folder.write("bench.toml", "seed = 7\n");
    QFile file{folder.path("bench.toml")};
    QVERIFY(file.setPermissions(writable ? QFile::WriteOwner : QFile::Permissions{}));
    if (name == "bench.toml" && file.open(QIODevice::ReadOnly)) {
        // Not QSKIP: clang finds its unused arguments pedantically wrong.
        QTest::qSkip("permissions do not stop this user", __FILE__, __LINE__);
        return;
    }
    const Outcome outcome{folder.run(CTL, {"--record", name, "info"})};
    QCOMPARE(outcome.status, 2);
    QCOMPARE(
        outcome.errors,
        QString{
            R"(pilotel-ctl: "%1" is no recording, and is left as it is; name another file, or delete this one.)"
            "\n"}
            .arg(name));
    QVERIFY(!QFile::exists(folder.path("bench.toml.~1~")));
    QVERIFY(!QFile::exists(folder.trace()));
    QVERIFY(QFile::setPermissions(folder.path("bench.toml"), QFile::ReadOwner));
    QCOMPARE(folder.read("bench.toml"), QByteArray{"seed = 7\n"});
}

void RecordedSessionsTest::linkStaysALink()
{
    const Folder folder;
    QVERIFY(QDir{folder.path({})}.mkdir("elsewhere"));
    QCOMPARE(folder.run(CTL, {"--record", "elsewhere/first", "list"}).status, 0);
    const QStringList first{callsIn(folder.trace())};
    QVERIFY(QFile::link("elsewhere/first", folder.recording()));
    QCOMPARE(folder.run(CTL, {"--record", "session.recording", "info"}).status, 0);
    QCOMPARE(QFile::symLinkTarget(folder.recording()), folder.path("elsewhere/first"));
    QCOMPARE(callsIn(folder.path("elsewhere/first")), callsIn(folder.trace()));
    QCOMPARE(callsIn(folder.path("elsewhere/first.~1~")), first);
    QVERIFY(!QFile::exists(folder.recording() + ".~1~"));
}

void RecordedSessionsTest::linkToNothingIsFollowed()
{
    const Folder folder;
    QVERIFY(QFile::link("first", folder.recording()));
    QCOMPARE(folder.run(CTL, {"--record", "session.recording", "info"}).status, 0);
    QCOMPARE(QFile::symLinkTarget(folder.recording()), folder.path("first"));
    QCOMPARE(callsIn(folder.path("first")), callsIn(folder.trace()));
}
#endif

void RecordedSessionsTest::nothingElseTakesThePlaceOfARecording_data()
{
    QTest::addColumn<QStringList>("arguments");
    const auto row = [](const QStringList &arguments) {
        QTest::addRow("%s", qPrintable(arguments.join(' '))) << arguments;
    };

    row({"recording", "profile", "session.recording", "session.recording"});
    row({"profile", "save", "session.recording"});
    row({"profile", "save", "--record=session.recording", "session.recording"});
    row({"watch", "temperatures", "--count", "1", "--csv", "session.recording"});
    row({"watch", "temperatures", "--count", "1", "--record=session.recording", "--csv",
         "session.recording"});
    row({"bad-pixels", "list", "--picture", "session.recording"});
#if defined(HAS_CURVES)
    row({"watch", "temperatures", "--count", "1", "--plot", "session.recording"});
#endif
}

void RecordedSessionsTest::nothingElseTakesThePlaceOfARecording()
{
    QFETCH(const QStringList, arguments);
    const Folder folder;
    QCOMPARE(folder.run(CTL, {"--record", "session.recording", "list"}).status, 0);
    const QByteArray earlier{folder.read("session.recording")};
    // What the picture shows.
    QCOMPARE(folder.run(CTL, {"bad-pixels", "read"}).status, 0);
    const Outcome outcome{folder.run(CTL, arguments)};
    QCOMPARE(outcome.errors,
             QString{"pilotel-ctl: session.recording: this is a recording, and is left as it is; "
                     "name another file\n"});
    QCOMPARE(outcome.status, 2);
    QCOMPARE(folder.read("session.recording"), earlier);
    QCOMPARE(folder.read("session.recording.~1~"), QByteArray{"no file"});
}

void RecordedSessionsTest::noCommandWritesWhereItRecords_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("recording");
    const auto row = [](const QStringList &arguments, const QString &recording = "x") {
        QTest::addRow("%s in %s", qPrintable(arguments.join(' ')), qPrintable(recording))
            << arguments << recording;
    };
    row({"profile", "save", "x"});
    row({"profile", "save", "x"}, "./x");
    row({"profile", "save", "x"}, "folder/../x");
    row({"watch", "temperatures", "--count", "1", "--csv", "x"});
    row({"bad-pixels", "list", "--picture", "x"});
#if defined(HAS_CURVES)
    row({"watch", "temperatures", "--count", "1", "--plot", "x"});
#endif
}

void RecordedSessionsTest::noCommandWritesWhereItRecords()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, recording);
    Folder folder;
    QVERIFY(QDir{folder.path({})}.mkdir("folder"));
    const auto refuses = [&](const QStringList &words) {
        const Outcome outcome{folder.run(CTL, words)};
        QCOMPARE(outcome.errors,
                 QString{"pilotel-ctl: x: the calls to the library are recorded there; name another file\n"});
        QCOMPARE(outcome.output, QString{});
        QCOMPARE(outcome.status, 2);
        // Nothing was called, so nothing was recorded either.
        QCOMPARE(folder.read("x"), QByteArray{"no file"});
        QVERIFY(!QFile::exists(folder.trace()));
    };
    refuses(QStringList{"--record", recording} + arguments);
    folder.environment.insert("PILOTEL_RECORD", recording);
    refuses(arguments);
    // In a line of the shell as well, which has not called anything before.
    folder.write("commands", arguments.join(' ').toUtf8() + '\n');
    QVERIFY(folder.run(CTL, {"shell", "commands"})
                .errors.contains("commands:1: x: the calls to the library are recorded there"));
    QCOMPARE(folder.read("x"), QByteArray{"no file"});
}

void RecordedSessionsTest::unwritableFileIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::addRow("in no folder") << "missing/session.recording"
                                  << "No such file or directory";
#if !defined(Q_OS_WIN)
    QTest::addRow("a folder") << "."
                              << "Is a directory";
    QTest::addRow("on a full disk") << "/dev/full"
                                    << "No space left on device";
#endif
}

void RecordedSessionsTest::unwritableFileIsTold()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    const Folder folder;
    const QString line{
        QString{R"(Cannot write the recording "%1": %2; name a file that can be written.)"}.arg(name,
                                                                                                reason)};
    const Outcome ctl{folder.run(CTL, {"--record", name, "info"})};
    QCOMPARE(ctl.status, 2);
    QCOMPARE(ctl.errors, "pilotel-ctl: " + line + '\n');
    const Outcome check{folder.run(CHECK, {"--port", "SIM1", "--record", name})};
    QCOMPARE(check.status, 2);
    QCOMPARE(check.errors, "pilotel-sdk-check: " + line + '\n');
    QCOMPARE(check.output, QString{});
    QVERIFY(!QFile::exists(folder.trace()));
}

void RecordedSessionsTest::fullDiskEndsTheRecording()
{
#if defined(Q_OS_WIN)
    QSKIP("Windows limits no file by the shell.");
#endif
    const Folder folder;
    // Blocks of 1024 bytes; without the signal that would end the program. What counts coverage has no room
    // either; its files lie beside the recording, and it says nothing.
    const Outcome outcome{
        folder.run("bash", {"-c", "ulimit -f 1; trap '' XFSZ; unset VELTRIX_SIMULATOR_TRACE; "
                                  "GCOV_PREFIX=. GCOV_ERROR_FILE=/dev/null exec " CTL
                                  " --record session.recording get camera.gamma"})};
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, QString{"camera.gamma = 65536  # 1\n"});
    QCOMPARE(outcome.errors,
             QString{"pilotel: Cannot write the recording \"session.recording\": File too large. "
                     "It ends here, and the program goes on.\n"});
    // Without a part of the line that had no room.
    const QByteArray recorded{folder.read("session.recording")};
    QVERIFY(recorded.size() > 500 && recorded.size() <= 1024);
    QVERIFY(recorded.endsWith("}\n"));
}

void RecordedSessionsTest::windowGoesOnWithoutARecording()
{
    Folder folder;
    folder.environment.insert("PILOTEL_RECORD", "missing/session.recording");
    const Outcome outcome{folder.run(PROGRAM, closing)};
    QVERIFY(outcome.exited);
    QCOMPARE(outcome.status, 0);
    QVERIFY2(
        outcome.errors.startsWith(
            R"(pilotel: Cannot write the recording "missing/session.recording": No such file or directory; )"
            "name a file that can be written. The program goes on without a recording.\n"),
        qPrintable(outcome.errors));
    QVERIFY(callsIn(folder.trace()).size() >= 7);
}

void RecordedSessionsTest::askingAndCompletingRecordNothing()
{
    Folder folder;
    folder.environment.insert("PILOTEL_RECORD", folder.recording());
    for (const QStringList &arguments :
         {QStringList{"--help"}, QStringList{"--version"}, QStringList{"--complete", "get", "camera.g"},
          QStringList{"nothing"}, QStringList{"ports"}}) {
        folder.run(CTL, arguments);
        QVERIFY2(!QFile::exists(folder.recording()), qPrintable(arguments.join(' ')));
    }
    folder.run(CHECK, {"--help"});
    folder.run(CHECK, {});
    QVERIFY(!QFile::exists(folder.recording()));
}

void RecordedSessionsTest::isWholeAfterACrash()
{
    const Folder folder;
    QProcess process;
    process.setProcessEnvironment(folder.environment);
    process.start(RECORDING_WRITER, {folder.recording(), "abort"});
    QVERIFY(process.waitForFinished());
#if defined(Q_OS_WIN)
    // There abort() is an exit with this code.
    QCOMPARE(process.exitCode(), 3);
#else
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
#endif
    const QStringList calls{callsIn(folder.recording())};
    QCOMPARE(calls, callsIn(folder.trace()));
    // Five before the gammas, and the log record.
    QCOMPARE(calls.size(), 5 + 100 + 1);
    QCOMPARE(calls.last(),
             QString{R"({"interface":"log","target":0,"operation":"log","arguments":[2,"the last call"]})"});
    QCOMPARE(wordsIn(folder.recording()).last(),
             QString{R"({"interface":"configuration","operation":"write","arguments":[{"gskDefault":3}]})"});
}

void RecordedSessionsTest::portIsNoPath()
{
    Folder folder;
    folder.environment.insert("HOME", "/home/jane.doe");
    folder.environment.insert("USER", "jdoe");
    const Outcome outcome{
        folder.run(CTL, {"--record", folder.recording(), "--port", "/home/jane.doe/ports/of jdoe", "info"})};
    QCOMPARE(outcome.status, 3);
    QVERIFY(callsIn(folder.trace()).join(' ').contains("/home/jane.doe/ports/of jdoe"));
    const QByteArray recorded{folder.read("session.recording")};
    QVERIFY(recorded.contains(R"("operation":"openDevice","arguments":["of USER"],"result":null)"));
    for (const char *const part : {"jane", "jdoe", "home", "ports"}) {
        QVERIFY2(!recorded.contains(part), part);
    }
}

void RecordedSessionsTest::userMayBeCalledLikeTheLink()
{
    Folder folder;
    folder.environment.insert("HOME", "/home/uart");
    folder.environment.insert("USER", "uart");
    const Outcome recorded{folder.run(CTL, {"--record", folder.recording(), "info"})};
    QCOMPARE(recorded.status, 0);
    QVERIFY(folder.read("session.recording")
                .contains(R"("operation":"getCommunicationType","arguments":[],"result":"UART")"));
    folder.write("played.toml", "recording = \"session.recording\"\n");
    folder.environment.insert("VELTRIX_SIMULATOR_SCENARIO", folder.path("played.toml"));
    const Outcome played{folder.run(CTL, {"info"})};
    QCOMPARE(played.output, recorded.output);
    QCOMPARE(played.status, 0);
}

PILOTEL_TEST_CLASS(RecordedSessionsTest)
#include "tst_recorded_sessions.moc"
