// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The trace: what a line of it looks like, and that it outlives the program.
#include "contents.h"
#include "simulatedcamera.h"
#include "testclass.h"

#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <cstdint>
#include <limits>
#include <map>
#include <string>

using namespace veltrix_sdk;

namespace
{

constexpr const char *variable{"VELTRIX_SIMULATOR_TRACE"};

/// The lines without their times, which are checked; a line that is no JSON or has no times comes whole.
QStringList linesOf(const QString &name)
{
    static const QRegularExpression call{QStringLiteral(
        R"re(^\{"time":"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3})\d{3}Z","microseconds":\d+,)re")};
    static const QRegularExpression header{
        QStringLiteral(R"re(,"time":"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3})\d{3}Z"\}$)re")};
    QStringList lines;
    QByteArray content = contentOf(name);
    if (!content.endsWith('\n')) {
        return {QStringLiteral("the last line is not whole")};
    }
    content.chop(1);
    for (const QByteArray &line : content.split('\n')) {
        QString text = QString::fromUtf8(line);
        const bool isHeader{text.startsWith(QStringLiteral("{\"trace\":"))};
        const QRegularExpressionMatch match = (isHeader ? header : call).match(text);
        const QDateTime time = QDateTime::fromString(match.captured(1) + 'Z', Qt::ISODateWithMs);
        const bool isNow{time.isValid() && qAbs(time.secsTo(QDateTime::currentDateTimeUtc())) < 60};
        if (isNow && QJsonDocument::fromJson(line).isObject()) {
            text.replace(match.capturedStart(), match.capturedLength(), isHeader ? "}" : "{");
        }
        lines.append(text);
    }
    return lines;
}

const QString defaultHeader{QStringLiteral(R"({"trace":1,"scenario":"default","seed":0})")};

/// Runs the trace writer with these variables set.
struct Run
{
    explicit Run(const std::map<QString, QString> &variables, const QStringList &arguments = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(variable);
        for (const auto &[name, value] : variables) {
            environment.insert(name, value);
        }
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(TRACE_WRITER), arguments);
        process.waitForFinished();
    }

    bool hasSucceeded() const
    {
        return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    QProcess process;
};

/// The program of jq that the README gives for comparing two traces.
QString documentedFilter()
{
    static const QRegularExpression command{QStringLiteral("jq -c '([^']+)'")};
    return command.match(QString::fromUtf8(contentOf(QStringLiteral(SIMULATOR_README)))).captured(1);
}

} // namespace

class SimulatorTraceTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void callReads_data();
    void callReads();
    void durationIsThatOfTheCall();
    void powerOnIsAHeader();
    void fileIsReplaced();
    void otherFileIsLeftAlone_data();
    void otherFileIsLeftAlone();
    void nothingIsWrittenUnasked();
    void unwritableFileIsNamedOnce_data();
    void unwritableFileIsNamedOnce();
    void isWholeAfterACrash();
    void sameCallsMakeTheSameTrace();
    void documentedFilterComparesTraces();
};

void SimulatorTraceTest::cleanup()
{
    qunsetenv(variable);
    veltrix_simulator::Simulator::instance().reset();
}

void SimulatorTraceTest::callReads_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Action>("action");
    const auto row = [](const char *name, const char *line, Action action) {
        QTest::addRow("%s", name) << QString{line} << action;
    };
    using C = SimulatedCamera;

    row("object as result",
        R"({"interface":"root","target":1,"operation":"get_instance","arguments":[],"result":"sdk"})",
        [](C &) { VeltrixSdk::get_instance(); });
    row("object as argument, no result",
        R"({"interface":"root","target":1,"operation":"releaseDeviceManager","arguments":["manager"]})",
        [](C &c) { c.sdk.releaseDeviceManager(&c.manager); });
    row("null as argument and as result",
        R"({"interface":"manager","target":1,"operation":"openDevice","arguments":[null],"result":null})",
        [](C &c) { c.manager->openDevice(nullptr); });
    row("text as result",
        R"({"interface":"configuration","target":1,"operation":"getCommunicationType","arguments":[],)"
        R"("result":"UART"})",
        [](C &c) { c.configuration.getCommunicationType(); });
    row("text with a quote, a line feed and a NUL",
        R"({"interface":"log","target":1,"operation":"log","arguments":[2,"\"a\"\n\u0000"]})",
        [](C &) { SDKLogger{severity_info}.GetILogger() << std::string("\"a\"\n\0", 5); });
    row("text that is no UTF-8",
        "{\"interface\":\"manager\",\"target\":1,\"operation\":\"openDevice\","
        "\"arguments\":[\"a\xEF\xBF\xBDz\xEF\xBF\xBD\"],\"result\":null}",
        [](C &c) { c.manager->openDevice("a\xFFz\xC3"); });
    row("truth as argument and as result",
        R"({"interface":"device","target":1,"operation":"setPolarity","arguments":[true],"result":true})",
        [](C &c) { c.device->setPolarity(true); });
    row("largest number, refused",
        R"({"interface":"device","target":1,"operation":"setGamma","arguments":[4294967295],"result":false})",
        [](C &c) { c.device->setGamma(0xFFFFFFFF); });
    row("negative numbers",
        R"({"interface":"device","target":1,"operation":"setWarp","arguments":[0,1,-2147483648,3,4,5,6],)"
        R"("result":false})",
        [](C &c) { c.device->setWarp(0, 1, std::numeric_limits<std::int32_t>::min(), 3, 4, 5, 6); });
    row("number as output",
        R"({"interface":"device","target":1,"operation":"connect","arguments":[],"result":1,)"
        R"("outputs":{"identity":21}})",
        [](C &c) {
            std::uint8_t identity{0};
            c.device->connect(&identity);
        });
    row("missing output",
        R"({"interface":"device","target":1,"operation":"connect","arguments":[null],"result":0})",
        [](C &c) { c.device->connect(nullptr); });
    row("record as output, with an argument in it",
        R"({"interface":"device","target":1,"operation":"getWarp","arguments":[1],"result":true,)"
        R"("outputs":{"a11":1,"a21":0,"a12":0,"a22":1,"a13":0.1,"a23":1e+300}})",
        [](C &c) {
            c.simulator.set("camera.warp1.a13", 0.1);
            c.simulator.set("camera.warp1.a23", 1e300);
            Warp warp{};
            warp.stream = 1;
            c.device->getWarp(&warp);
        });
    row("record as result",
        R"({"interface":"device","target":1,"operation":"getEdgeCorrection","arguments":[],)"
        R"("result":{"type":0,"gain":64,"firstThreshold":20,"secondThreshold":60}})",
        [](C &c) { c.device->getEdgeCorrection(); });
    row("record as argument",
        R"({"interface":"device","target":1,"operation":"configureZoom",)"
        R"("arguments":[{"factor":0.1,"xCenter":1,"yCenter":2,"method":255}],"result":false})",
        [](C &c) {
            const ZoomConfig zoom{0.1F, 1, 2, 255};
            c.device->configureZoom(&zoom);
        });
    row("NaN and an infinity",
        R"({"interface":"device","target":1,"operation":"getTemperatures","arguments":[],"result":true,)"
        R"("outputs":{"sensorMillikelvin":"nan","fpgaMillikelvin":"-inf"}})",
        [](C &c) {
            c.simulator.set("camera.temperatures.sensorMillikelvin",
                            -std::numeric_limits<double>::quiet_NaN());
            c.simulator.set("camera.temperatures.fpgaMillikelvin", -std::numeric_limits<double>::infinity());
            Temperatures temperatures{};
            c.device->getTemperatures(&temperatures);
        });
    row("the other infinity",
        R"({"interface":"configuration","target":1,"operation":"getDefaultGamma","arguments":[],)"
        R"("result":"inf"})",
        [](C &c) {
            c.simulator.set("configuration.defaultGamma", std::numeric_limits<double>::infinity());
            c.configuration.getDefaultGamma();
        });
    row("not open",
        R"({"interface":"device","target":1,"operation":"setGamma","notOpen":true,"arguments":[65536],)"
        R"("result":false})",
        [](C &c) {
            c.manager->closeDevice(c.device);
            c.device->setGamma(65536);
        });
    row("not held",
        R"({"interface":"manager","target":1,"operation":"openDevice","notHeld":true,"arguments":["SIM1"],)"
        R"("result":null})",
        [](C &c) {
            c.sdk.releaseDeviceManager(&c.manager);
            c.manager->openDevice("SIM1");
        });
}

void SimulatorTraceTest::callReads()
{
    QFETCH(const QString, line);
    QFETCH(const Action, action);
    const QTemporaryDir directory;
    const QString name = directory.filePath("calls.trace");
    qputenv(variable, name.toLocal8Bit());
    SimulatedCamera c;
    action(c);
    QCOMPARE(linesOf(name).last(), line);
    QCOMPARE(linesOf(name).first(), defaultHeader);
}

void SimulatorTraceTest::durationIsThatOfTheCall()
{
    const QTemporaryDir directory;
    const QString name = directory.filePath("calls.trace");
    qputenv(variable, name.toLocal8Bit());
    QElapsedTimer timer;
    SimulatedCamera c;
    timer.start();
    c.device->getGamma();
    const double longest{static_cast<double>(timer.nsecsElapsed()) / 1000.0};
    const QByteArray line = contentOf(name).trimmed().split('\n').last();
    const double microseconds = QJsonDocument::fromJson(line).object()["microseconds"].toDouble(-1.0);
    QVERIFY2(microseconds >= 0.0 && microseconds <= longest, line.constData());
}

void SimulatorTraceTest::powerOnIsAHeader()
{
    const QTemporaryDir directory;
    const QString name = directory.filePath("calls.trace");
    qputenv(variable, name.toLocal8Bit());
    auto &simulator = veltrix_simulator::Simulator::instance();
    simulator.reset();
    VeltrixSdk::get_instance();
    simulator.setJournalEnabled(false);
    VeltrixSdk::get_instance();
    simulator.reset();
    const QString call{
        R"({"interface":"root","target":0,"operation":"get_instance","arguments":[],"result":"sdk"})"};
    QCOMPARE(linesOf(name), (QStringList{defaultHeader, call, call, defaultHeader}));
}

void SimulatorTraceTest::fileIsReplaced()
{
    const QTemporaryDir directory;
    const QString name = directory.filePath("calls.trace");
    QVERIFY(Run({{variable, name}}).hasSucceeded());
    const QStringList first = linesOf(name);
    QVERIFY(Run({{variable, name}}).hasSucceeded());
    QCOMPARE(linesOf(name), first);
}

void SimulatorTraceTest::otherFileIsLeftAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addRow("a scenario") << "mixed-up.toml";
#if defined(Q_OS_LINUX)
    // The beginning of a program's memory cannot be read by anybody.
    QTest::addRow("cannot be read") << "/proc/self/mem";
#endif
}

void SimulatorTraceTest::otherFileIsLeftAlone()
{
    const QTemporaryDir directory;
    QFETCH(QString, name);
    name = QDir{directory.path()}.filePath(name);
    const QString scenario = directory.filePath("mixed-up.toml");
    QFile file{scenario};
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("seed = 7\n");
    file.close();
    Run run{{{variable, name}}};
    QVERIFY(run.hasSucceeded());
    QCOMPARE(contentOf(scenario), QByteArray{"seed = 7\n"});
    QCOMPARE(
        QString::fromLocal8Bit(run.process.readAllStandardError()),
        "veltrix.sdk: \"" + name +
            "\" is no trace, and is left as it is; set VELTRIX_SIMULATOR_TRACE to another file, or delete "
            "this one. The program goes on without a trace.\n");
}

void SimulatorTraceTest::nothingIsWrittenUnasked()
{
    Run without{{}};
    QVERIFY(without.hasSucceeded());
    QCOMPARE(without.process.readAllStandardError(), QByteArray{});
    Run empty{{{variable, QString{""}}}};
    QVERIFY(empty.hasSucceeded());
    QCOMPARE(empty.process.readAllStandardError(), QByteArray{});
}

void SimulatorTraceTest::unwritableFileIsNamedOnce_data()
{
    QTest::addColumn<QString>("name");
    QTest::addRow("in no folder") << QStringLiteral("missing/calls.trace");
    if (QFile::exists(QStringLiteral("/dev/full"))) {
        QTest::addRow("on a full disk") << QStringLiteral("/dev/full");
    }
}

void SimulatorTraceTest::unwritableFileIsNamedOnce()
{
    QFETCH(const QString, name);
    Run run{{{variable, name}}};
    QVERIFY(run.hasSucceeded());
    QCOMPARE(QString::fromLocal8Bit(run.process.readAllStandardError()),
             "veltrix.sdk: cannot write the trace file \"" + name +
                 "\"; set VELTRIX_SIMULATOR_TRACE to a file that can be written. The program goes on without "
                 "a trace.\n");
}

void SimulatorTraceTest::isWholeAfterACrash()
{
    const QTemporaryDir directory;
    const QString name = directory.filePath("calls.trace");
    const Run run{{{variable, name}}, {QStringLiteral("abort")}};
#if defined(Q_OS_WIN)
    // There abort() is an exit with this code.
    QCOMPARE(run.process.exitCode(), 3);
#else
    QCOMPARE(run.process.exitStatus(), QProcess::CrashExit);
#endif
    const QStringList lines = linesOf(name);
    // The header, nine calls, a hundred times the gamma and the log record.
    QCOMPARE(lines.size(), 1 + 9 + 100 + 1);
    QCOMPARE(lines.last(), QString{R"({"interface":"log","target":1,"operation":"log",)"
                                   R"("arguments":[2,"the last call"]})"});
}

void SimulatorTraceTest::sameCallsMakeTheSameTrace()
{
    const QTemporaryDir directory;
    const QString first = directory.filePath("first.trace");
    const QString second = directory.filePath("second.trace");
    QVERIFY(Run({{variable, first}}).hasSucceeded());
    QVERIFY(Run({{variable, second}}).hasSucceeded());
    QCOMPARE(linesOf(first).size(), 1 + 9 + 100 + 1 + 2);
    QCOMPARE(linesOf(first).filter(QRegularExpression{QStringLiteral(R"("time")")}), QStringList{});
    QCOMPARE(linesOf(second), linesOf(first));
}

void SimulatorTraceTest::documentedFilterComparesTraces()
{
#if defined(Q_OS_WIN)
    QSKIP("The documented filter is a command for the shell of another system.");
#endif
    const QTemporaryDir directory;
    const QString first = directory.filePath("first.trace");
    const QString second = directory.filePath("second.trace");
    QVERIFY(Run({{variable, first}}).hasSucceeded());
    QVERIFY(Run({{variable, second}}).hasSucceeded());
    const auto filtered = [](const QString &name) {
        return outputOf(QStringLiteral("jq"), {QStringLiteral("-c"), documentedFilter(), name});
    };
    QVERIFY(contentOf(first) != contentOf(second));
    QCOMPARE(filtered(first), linesOf(first).join('\n').toUtf8() + '\n');
    QCOMPARE(filtered(second), filtered(first));
}

PILOTEL_TEST_CLASS(SimulatorTraceTest)
#include "tst_simulator_trace.moc"
