// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The check of an SDK library as a process: arguments, exit status, signals, and with which library it
// starts.
#include "checkrun.h"
#include "program.h"
#include "scenarioruns.h"
#include "testclass.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSerialPortInfo>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#if defined(Q_OS_UNIX)
#include <csignal>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace
{

QStringList scannedPorts()
{
    QStringList names;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        names.append(port.portName());
    }
    return names;
}

/// The long options in a text, each once, in alphabetical order.
QStringList options(const QString &text)
{
    static const QRegularExpression option{"--[a-z]+"};
    QStringList found;
    for (auto match = option.globalMatch(text); match.hasNext();) {
        found.append(match.next().captured());
    }
    found.sort();
    found.removeDuplicates();
    return found;
}

#if defined(Q_OS_UNIX)
/// A pipe of one page: a process that writes into it waits in the middle of its report until it is read.
class NarrowPipe
{
public:
    NarrowPipe()
    {
        if (::mkfifo(QFile::encodeName(path()).constData(), 0600) == 0) {
            descriptor = ::open(QFile::encodeName(path()).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
            capacity = ::fcntl(descriptor, F_SETPIPE_SZ, 1);
        }
    }
    ~NarrowPipe() { ::close(descriptor); }
    NarrowPipe(const NarrowPipe &) = delete;
    NarrowPipe &operator=(const NarrowPipe &) = delete;

    QString path() const { return directory.filePath("pipe"); }

    /// Whether hardly another line fits in.
    bool isFull() const
    {
        constexpr int longestLine{200};
        int waiting{0};
        return ::ioctl(descriptor, FIONREAD, &waiting) == 0 && waiting > capacity - longestLine;
    }

    /// What is in it.
    QByteArray read() const
    {
        QByteArray all;
        char buffer[4096];
        for (ssize_t size{0}; (size = ::read(descriptor, buffer, sizeof buffer)) > 0;) {
            all.append(buffer, static_cast<int>(size));
        }
        return all;
    }

private:
    QTemporaryDir directory;
    int descriptor{-1};
    int capacity{0};
};
#endif

} // namespace

Q_DECLARE_METATYPE(ScenarioRun)

class SdkCheckProcessTest : public QObject
{
    Q_OBJECT

private slots:
    void findsNothingWrong_data();
    void findsNothingWrong();
    void namesTheFaultOfAScenario_data();
    void namesTheFaultOfAScenario();
    void everyScenarioHasARun();
    void listsPortsWithoutAPort();
    void listsNoPortOfALibraryThatHasNone();
#if !defined(Q_OS_WIN)
    void saysWhatToDoWithThePorts_data();
    void saysWhatToDoWithThePorts();
#endif
    void refusesWrongArguments_data();
    void refusesWrongArguments();
    void helps();
    void hasEveryOptionInItsManualPage();
    void writesJson();
    void namesAPortThatDoesNotOpen();
#if defined(Q_OS_UNIX)
    void endsWellWhenItIsInterrupted_data();
    void endsWellWhenItIsInterrupted();
    void goesOnWithoutAReader();
#endif
    void endsWithTheLoadersMessageWithoutALibrary();
    void endsWithTheLoadersMessageWithAnIncompleteLibrary();
};

void SdkCheckProcessTest::findsNothingWrong_data()
{
    QTest::addColumn<QString>("library"); ///< A variant of the simulator; empty: the one of the build.
    QTest::addColumn<QStringList>("arguments");
    const auto row = [](const char *name, const char *library, const QStringList &arguments) {
        QTest::addRow("%s", name) << QString{library} << arguments;
    };
    row("read", "", {});
    row("read often", "", {"--repeat", "20"});
    row("written", "", {"--write", "--repeat", "1"});
#if !defined(Q_OS_WIN)
    // There the other library is one of Microsoft's ABI, in a test of its own.
    row("another library of the same contract", "contract-only", {"--write"});
#endif
}

void SdkCheckProcessTest::findsNothingWrong()
{
    QFETCH(const QString, library);
    QFETCH(const QStringList, arguments);
    QProcessEnvironment environment{programEnvironment()};
    environment.remove("VELTRIX_SIMULATOR_SCENARIO");
    const QTemporaryDir directory;
    const QString program{library.isEmpty() ? QString{PROGRAM}
                                            : withLibrary(PROGRAM, SDK_VARIANTS_DIRECTORY "/" + library,
                                                          directory.path(), environment)};
    const Outcome outcome{run(program, QStringList{"--port", "SIM1"} + arguments, environment)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(notOkLines(outcome.output.split('\n')), QStringList{});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.errors, QString{});
}

void SdkCheckProcessTest::namesTheFaultOfAScenario_data()
{
    QTest::addColumn<ScenarioRun>("expected");
    for (const ScenarioRun &expected : scenarioRuns()) {
        const QStringList name{QStringList{expected.scenario} + expected.arguments};
        QTest::addRow("%s", qPrintable(name.join(' '))) << expected;
    }
}

void SdkCheckProcessTest::namesTheFaultOfAScenario()
{
    QFETCH(const ScenarioRun, expected);
    QProcessEnvironment environment{programEnvironment()};
    environment.insert("VELTRIX_SIMULATOR_SCENARIO", expected.scenario);
    const Outcome outcome{run(PROGRAM, QStringList{"--port", "SIM1"} + expected.arguments, environment)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(notOkLines(outcome.output.split('\n')), expected.notOk);
    QCOMPARE(outcome.status, expected.notOk.isEmpty() ? 0 : 1);
    QCOMPARE(outcome.errors.split('\n', Qt::SkipEmptyParts), expected.errors);
}

void SdkCheckProcessTest::everyScenarioHasARun()
{
    QStringList shipped;
    for (const QFileInfo &file : QDir{SCENARIOS}.entryInfoList({"*.toml"}, QDir::Files)) {
        shipped.append(file.completeBaseName());
    }
    QStringList expected;
    for (const ScenarioRun &run : scenarioRuns()) {
        expected.append(run.scenario);
    }
    expected.removeDuplicates();
    shipped.sort();
    expected.sort();
    QCOMPARE(expected, shipped);
}

void SdkCheckProcessTest::listsPortsWithoutAPort()
{
    const Outcome outcome{run(PROGRAM, {}, programEnvironment())};
    QStringList lines{"Ports:"};
    for (const QString &port : scannedPorts() + QStringList{"SIM1"}) {
        lines.append("  " + port);
    }
    lines.append({"To check the library on one of them: pilotel-sdk-check --port SIM1",
                  "More: pilotel-sdk-check --help", ""});
    QCOMPARE(outcome.output.split('\n'), lines);
    QCOMPARE(outcome.status, 2);
}

void SdkCheckProcessTest::listsNoPortOfALibraryThatHasNone()
{
#if defined(Q_OS_WIN)
    QSKIP("Every variant of the simulated library names its ports there.");
#endif
    const QTemporaryDir directory;
    QProcessEnvironment environment{programEnvironment()};
    const QString program{
        withLibrary(PROGRAM, SDK_VARIANTS_DIRECTORY "/contract-only", directory.path(), environment)};
    const Outcome outcome{run(program, {}, environment)};
    QCOMPARE(outcome.status, 2);
    QVERIFY(!outcome.output.contains("SIM1"));
    QCOMPARE(outcome.output.contains("No port found. Plug one in, or name one:"), scannedPorts().isEmpty());
}

#if !defined(Q_OS_WIN)
void SdkCheckProcessTest::saysWhatToDoWithThePorts_data()
{
    QTest::addColumn<QString>("ofHost");
    QTest::addColumn<QString>("output");
    const QString more{"\nMore: pilotel-sdk-check --help\n"};
    const QString check{"To check the library on one of them: pilotel-sdk-check --port "};
    QTest::newRow("none") << ""
                          << "No port found. Plug one in, or name one:\n" + check + "NAME" + more;
    QTest::newRow("one") << "ttyS0"
                         << "Ports:\n  ttyS0\n" + check + "ttyS0" + more;
    QTest::newRow("several") << "ttyS0 \x1b[31m"
                             << "Ports:\n  ttyS0\n  \\x1b[31m\n" + check + "\\x1b[31m" + more;
}

void SdkCheckProcessTest::saysWhatToDoWithThePorts()
{
    QFETCH(const QString, ofHost);
    QFETCH(const QString, output);
    QProcessEnvironment environment{programEnvironment()};
    environment.insert("VELTRIX_SIMULATOR_SCENARIO", "no-ports");
    environment.insert("LD_PRELOAD", HOST_PORTS);
    environment.insert("PILOTEL_TEST_HOST_PORTS", ofHost);
    const Outcome outcome{run(PROGRAM, {}, environment)};
    QCOMPARE(outcome.output, output);
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 2);
}
#endif

void SdkCheckProcessTest::refusesWrongArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    const auto row = [](const QStringList &arguments, const char *error) {
        QTest::addRow("%s", qPrintable(arguments.join(' '))) << arguments << QString{error};
    };
    row({"--wirte"}, R"(There is no option "--wirte"; did you mean "--write"?)");
    row({"--frobnicate=yes"}, R"(There is no option "--frobnicate")");
    row({"--port"}, "--port needs a value");
    row({"--port", ""}, "--port: a port has a name");
    row({"--record", ""}, "--record: a file has a name");
    // What lacks a value is said first: it may be what was meant to be one.
    row({"--bogus", "--port"}, "--port needs a value");
    row({"SIM1"}, R"("SIM1" is too much.)");
    row({"x"}, R"("x" is too much.)");
    row({""}, R"("" is too much.)");
    row({"-"}, R"("-" is too much.)");
    row({"--port", "SIM1", "\x1b[31m"}, R"("\x1b[31m" is too much.)");
    row({"--port", "SIM1", "--repeat", "0"}, R"(--repeat: "0" is no number from 1 to 10000)");
    row({"--port", "SIM1", "--repeat", "10001"}, R"(--repeat: "10001" is no number from 1 to 10000)");
    row({"--port", "SIM1", "--repeat", "many"}, R"(--repeat: "many" is no number from 1 to 10000)");
    row({"--port", "SIM1", "--repeat", "3 "}, R"(--repeat: "3 " is no number from 1 to 10000)");
}

void SdkCheckProcessTest::refusesWrongArguments()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, error);
    const Outcome outcome{run(PROGRAM, arguments, programEnvironment())};
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors,
             "pilotel-sdk-check: " + error + "\npilotel-sdk-check: Try \"pilotel-sdk-check --help\".\n");
}

void SdkCheckProcessTest::helps()
{
    const Outcome outcome{run(PROGRAM, {"--help"}, programEnvironment())};
    QCOMPARE(outcome.status, 0);
    for (const char *const text : {"--port NAME", "--write", "--repeat N", "--json", "Exit status: 0",
                                   "saveBlendUnitParameters", "setMavlinkBaudRate", "processNucRequest",
                                   "readBprTable", "writeBprTable", "addBadPixel", "removeBadPixel"}) {
        QVERIFY2(outcome.output.contains(text), text);
    }
}

void SdkCheckProcessTest::hasEveryOptionInItsManualPage()
{
    const Outcome outcome{run(PROGRAM, {"--help"}, programEnvironment())};
    const QStringList known{options(outcome.output)};
    QVERIFY(known.contains("--repeat"));
    const QString page{linesOf(MANUAL_PAGE).join('\n').replace("\\-", "-")};
    QCOMPARE(options(page.section(".SH OPTIONS", 1).section(".SH ", 0, 0)), known);
    QCOMPARE(options(page.section(".SH SYNOPSIS", 1).section(".SH ", 0, 0)), known);
}

void SdkCheckProcessTest::writesJson()
{
    const Outcome outcome{run(PROGRAM, {"--port", "SIM1", "--write", "--json"}, programEnvironment())};
    QCOMPARE(outcome.status, 0);
    const QJsonDocument document{QJsonDocument::fromJson(outcome.output.toUtf8())};
    const QJsonObject counts{{"ok", 257}, {"notOk", 0}, {"skipped", 0}};
    QCOMPARE(document["counts"].toObject(), counts);
    QCOMPARE(document["allHold"], QJsonValue{true});
}

void SdkCheckProcessTest::namesAPortThatDoesNotOpen()
{
    const Outcome outcome{run(PROGRAM, {"--port", "COM\n9"}, programEnvironment())};
    QCOMPARE(outcome.status, 1);
    QCOMPARE(notOkLines(outcome.output.split('\n')),
             QStringList{R"(openDevice: answers null for the port COM\n9)"});
    QVERIFY(outcome.output.contains("\nok     releaseDeviceManager: called\n"));
    QVERIFY(!outcome.output.contains("closeDevice"));
}

#if defined(Q_OS_UNIX)
void SdkCheckProcessTest::endsWellWhenItIsInterrupted_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void SdkCheckProcessTest::endsWellWhenItIsInterrupted()
{
    QFETCH(const int, signal);
    const NarrowPipe pipe;
    QProcess process;
    process.setProcessEnvironment(programEnvironment());
    process.setStandardOutputFile(pipe.path());
    process.start(PROGRAM, {"--port", "SIM1", "--write"});
    QTRY_VERIFY_WITH_TIMEOUT(pipe.isFull(), 30000);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QByteArray output;
    while (process.state() == QProcess::Running) {
        output += pipe.read();
        process.waitForFinished(10);
    }
    output += pipe.read();
    QVERIFY2(!output.contains("(3) (camera)"), output);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QVERIFY2(output.contains("\nok     closeDevice: called\nok     releaseDeviceManager: called\n"), output);
    QVERIFY2(output.contains("\nInterrupted before the end: "), output);
}

void SdkCheckProcessTest::goesOnWithoutAReader()
{
    // A reader that has seen enough must not leave a setting changed behind it.
    const Outcome outcome{
        run("bash", {"-c", R"("$0" --port SIM1 --write | head -n 1; exit "${PIPESTATUS[0]}")", PROGRAM},
            programEnvironment())};
    QCOMPARE(outcome.output, QString{"ok     get_instance: the root\n"});
    QCOMPARE(outcome.status, 0);
}
#endif

void SdkCheckProcessTest::endsWithTheLoadersMessageWithoutALibrary()
{
    QTemporaryDir directory;
    const QString alone{directory.filePath(QFileInfo{PROGRAM}.fileName())};
    QVERIFY(QFile::copy(PROGRAM, alone));
    const Outcome outcome{run(alone, {"--port", "SIM1"}, programEnvironment())};
    QVERIFY(outcome.exited);
    QVERIFY(outcome.status != 0);
    QCOMPARE(outcome.output, QString{});
#if defined(Q_OS_WIN)
    const char *const missing{"veltrix.sdk.dll was not found"};
#else
    const char *const missing{"libveltrix.sdk.so"};
#endif
    QVERIFY2(outcome.errors.contains(missing), qPrintable(outcome.errors));
}

void SdkCheckProcessTest::endsWithTheLoadersMessageWithAnIncompleteLibrary()
{
    const QTemporaryDir directory;
    QProcessEnvironment environment{programEnvironment()};
    const QString program{
        withLibrary(PROGRAM, SDK_VARIANTS_DIRECTORY "/incomplete", directory.path(), environment)};
    const Outcome outcome{run(program, {"--port", "SIM1"}, environment)};
    QVERIFY(outcome.exited);
    QVERIFY(outcome.status != 0);
#if defined(Q_OS_WIN)
    // What is there is found one by one, so that the check has begun.
    QVERIFY2(!outcome.output.contains("openDevice"), qPrintable(outcome.output));
    const char *const lacking{"veltrix.sdk.dll is not a delivery that this program was made for."};
#else
    QCOMPARE(outcome.output, QString{});
    const char *const lacking{"undefined symbol"};
#endif
    QVERIFY2(outcome.errors.contains(lacking), qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains("GetILogger"), qPrintable(outcome.errors));
}

PILOTEL_TEST_CLASS(SdkCheckProcessTest)
#include "tst_sdk_check_process.moc"
