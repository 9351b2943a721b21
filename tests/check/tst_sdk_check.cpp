// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The check of an SDK library on a simulator in order: what holds, what it calls, what it leaves behind.
#include "checkrun.h"
#include "everyoperation.h"
#include "simulatedcamera.h"
#include "testclass.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>
#include <QMap>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstddef>
#include <cstdint>

using sdk_check::Options;

namespace
{

constexpr int threeRounds{3};

/// Options on the port SIM1.
Options options(bool write, int rounds = threeRounds, bool json = false)
{
    return {"SIM1", write, rounds, json};
}

} // namespace

class SdkCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void everythingHolds_data();
    void everythingHolds();
    void goesThroughTheProgramsSteps();
    void callsEveryOperationButTheLastingOnes();
    void readsOnlyWithoutWriting();
    void writesOtherValuesAndPutsThemBack();
    void startsFromWhateverIsSet();
    void endsWithTimesAndSummary();
    void writesOneJsonDocument();
    void interruptionPutsEverythingBack();
    void interruptionBeforeTheStartOpensNothing();
};

void SdkCheckTest::init()
{
    veltrix_simulator::Simulator::instance().reset();
}

void SdkCheckTest::everythingHolds_data()
{
    QTest::addColumn<bool>("write");
    QTest::addColumn<int>("rounds");
    QTest::addColumn<QString>("summary");
    QTest::newRow("read once") << false << 1 << "183 checks: 183 ok, 0 not ok, 0 skipped";
    QTest::newRow("read three times") << false << 3 << "185 checks: 185 ok, 0 not ok, 0 skipped";
    QTest::newRow("read and written") << true << 3 << "257 checks: 257 ok, 0 not ok, 0 skipped";
    QTest::newRow("read often and written") << true << 50 << "257 checks: 257 ok, 0 not ok, 0 skipped";
}

void SdkCheckTest::everythingHolds()
{
    QFETCH(const bool, write);
    QFETCH(const int, rounds);
    QFETCH(const QString, summary);
    const auto before = wholeState();
    const CheckRun run = runCheck(options(write, rounds));
    QCOMPARE(run.notOk(), QStringList{});
    QCOMPARE(run.skipped(), QStringList{});
    QCOMPARE(run.lines.last(), summary);
    QCOMPARE(run.status, sdk_check::allHold);

    QCOMPARE(wholeState(), before);
    QVERIFY(!veltrix_simulator::Simulator::instance().isDeviceOpen());
    QCOMPARE(veltrix_simulator::Simulator::instance().callsWhileNotOpen(), std::size_t{0});
}

void SdkCheckTest::goesThroughTheProgramsSteps()
{
    runCheck(options(false, 1));
    const QStringList calls{journal()};
    const QStringList steps{
        "get_instance() -> sdk",
        R"(log(2, "Check of the SDK library on a port"))",
        "initialize() -> true",
        "getConfiguration() -> configuration",
        R"(getCommunicationType() -> "UART")",
        "setBaudRate(115200)",
        "getDeviceManager() -> manager",
        R"(openDevice("SIM1") -> device)",
        "setTarget(0) -> true",
        "connect() -> 1 {identity=21}",
        "getFirmwareVersions() -> true {processor=4866, fpga=8452}",
        "startReading() -> true",
        "getGamma() -> 65536",
        "setTarget(1) -> true",
        "getFirmwareVersions() -> true {processor=532, fpga=8966}",
        "getVideoMode() -> true {mode=0}",
        "closeDevice(device)",
        "releaseDeviceManager(manager)",
    };
    int place{-1};
    for (const QString &step : steps) {
        const int found{calls.indexOf(step, place + 1)};
        QVERIFY2(found > place, qPrintable(step));
        place = found;
    }
    QCOMPARE(place, calls.size() - 1);
}

void SdkCheckTest::callsEveryOperationButTheLastingOnes()
{
    QStringList expected;
    for (const OperationCall &operation : everyOperation()) {
        expected.append(operation.name);
    }
    for (const char *const lasting : {"saveBlendUnitParameters", "setMavlinkBaudRate", "processNucRequest",
                                      "readBprTable", "writeBprTable", "addBadPixel", "removeBadPixel"}) {
        QCOMPARE(expected.removeAll(lasting), 1);
    }
    expected.sort();
    runCheck(options(true));
    QCOMPARE(calledOperations(), expected);
}

void SdkCheckTest::readsOnlyWithoutWriting()
{
    runCheck(options(false));
    const QStringList operations{calledOperations()};
    const QStringList commands{operations.filter(QRegularExpression{"^(set|configure)"})};
    const QStringList withoutEffect{"setBaudRate", "setTarget"};
    QCOMPARE(commands, withoutEffect);
}

void SdkCheckTest::writesOtherValuesAndPutsThemBack()
{
    const CheckRun run = runCheck(options(true, 1));
    for (const char *const line : {
             "ok     setVideoMode (Blend Unit): 0 and back to 2",
             "ok     configureZoom factor (Blend Unit): 8 and back to 1",
             "ok     configureZoom method (camera): 1 and back to 0",
             "ok     setWarp(2) a23 (Blend Unit): 2 and back to 0",
             "ok     setPolarity (camera): true and back to false",
             "ok     setFrameRate (camera): 9 and back to 60",
             "ok     setGamma (camera): 32768 and back to 65536",
             "ok     setAhcGainLimitation white (camera): 0 and back to 80",
             "ok     configureEdgeCorrection firstThreshold (camera): 0 and back to 20",
             "ok     setRoiX2(0) (camera): 634 and back to 635",
         }) {
        QVERIFY2(run.lines.contains(line), line);
    }
    const QStringList calls{journal()};
    const int changed{calls.indexOf("setGamma(32768) -> true")};
    const QStringList aroundIt{calls.mid(changed - 1, 5)};
    const QStringList expected{"getGamma() -> 65536", "setGamma(32768) -> true", "getGamma() -> 32768",
                               "setGamma(65536) -> true", "getGamma() -> 65536"};
    QCOMPARE(aroundIt, expected);
}

void SdkCheckTest::startsFromWhateverIsSet()
{
    auto &simulator = veltrix_simulator::Simulator::instance();
    simulator.set("camera.gamma", std::int64_t{32768});
    simulator.set("camera.frameRate", std::int64_t{9});
    simulator.set("blendUnit.zoom.factor", 3.25);
    simulator.set("blendUnit.zoom.xCenter", std::int64_t{1280});
    simulator.set("blendUnit.zoom.yCenter", std::int64_t{1024});
    simulator.set("blendUnit.warp1.a13", -32768.0);
    // A region that is on, by its number for the setters.
    simulator.set("camera.roi2.x1", std::int64_t{17});
    simulator.set("camera.roi0ExcEnabled", true);
    const auto before = wholeState();
    const CheckRun run = runCheck(options(true));
    QCOMPARE(run.notOk(), QStringList{});
    QVERIFY(run.lines.contains("ok     setGamma (camera): 163840 and back to 32768"));
    QVERIFY(run.lines.contains("ok     setFrameRate (camera): 60 and back to 9"));
    QVERIFY(run.lines.contains("ok     configureZoom factor (Blend Unit): 1 and back to 3.25"));
    QVERIFY(run.lines.contains("ok     setRoiX1(2) (camera): 6 and back to 17"));
    QVERIFY(journal().contains("setRoiX1(6, 2, false, true, false) -> true"));
    QCOMPARE(wholeState(), before);
}

void SdkCheckTest::endsWithTimesAndSummary()
{
    const CheckRun run = runCheck(options(false, 5));
    const int heading{run.lines.indexOf(QRegularExpression{R"(^time in ms +count +median +99 % +worst$)"})};
    QVERIFY(heading > 0);
    const QString number{R"( +\d+\.\d{3})"};
    const QRegularExpression row{"^(.+?) +(\\d+)" + number + number + number + "$"};
    QMap<QString, int> counts;
    for (int line{heading + 1}; line < run.lines.size() - 1; ++line) {
        const auto match = row.match(run.lines.at(line));
        QVERIFY2(match.hasMatch(), qPrintable(run.lines.at(line)));
        counts.insert(match.captured(1), match.captured(2).toInt());
    }
    QCOMPARE(counts.value("connect"), 1);
    QCOMPARE(counts.value("getGamma (camera)"), 5);
    QCOMPARE(counts.value("getGamma (Blend Unit)"), 5);
    QCOMPARE(counts.value("getVideoMode (camera)"), 5);
    QCOMPARE(counts.value("getRoiX1 (camera)"), 20);
    QCOMPARE(counts.value("getWarp (Blend Unit)"), 15);
    QCOMPARE(counts.value("closeDevice"), 1);
    QVERIFY(!counts.contains("gskMinimum"));
}

void SdkCheckTest::writesOneJsonDocument()
{
    veltrix_simulator::Simulator::instance().set("camera.gamma", std::int64_t{1});
    const CheckRun run = runCheck(options(false, 2, true));
    QCOMPARE(run.status, sdk_check::somethingFails);
    QJsonParseError error{};
    const QJsonObject document{QJsonDocument::fromJson(run.output.toUtf8(), &error).object()};
    QCOMPARE(error.error, QJsonParseError::NoError);
    const QStringList keys{"allHold", "checks", "counts", "interrupted", "port", "repeat", "times", "write"};
    QCOMPARE(document.keys(), keys);
    QCOMPARE(document["port"].toString(), QString{"SIM1"});
    QCOMPARE(document["write"], QJsonValue{false});
    QCOMPARE(document["repeat"], QJsonValue{2});
    QCOMPARE(document["interrupted"], QJsonValue{false});
    QCOMPARE(document["allHold"], QJsonValue{false});
    const QJsonObject counts{{"ok", 184}, {"notOk", 1}, {"skipped", 0}};
    QCOMPARE(document["counts"].toObject(), counts);

    const QJsonObject failed{{"outcome", "notOk"},
                             {"operation", "getGamma"},
                             {"unit", "camera"},
                             {"text", "answers 1; 32768 to 163840 is allowed"}};
    QVERIFY(document["checks"].toArray().contains(failed));
    QCOMPARE(document["checks"].toArray().size(), 185);
    const QJsonObject time{document["times"].toArray().last().toObject()};
    const QStringList timeKeys{"count", "medianMs", "operation", "percentile99Ms", "unit", "worstMs"};
    QCOMPARE(time.keys(), timeKeys);
    QCOMPARE(time["operation"].toString(), QString{"releaseDeviceManager"});
    QCOMPARE(time["count"], QJsonValue{1});
    QVERIFY(time["worstMs"].toDouble() > 0.0);
}

void SdkCheckTest::interruptionPutsEverythingBack()
{
    auto &simulator = veltrix_simulator::Simulator::instance();
    const auto before = wholeState();
    bool cameToTheEnd{false};
    for (int asked{0}; !cameToTheEnd; ++asked) {
        simulator.reset();
        int left{asked};
        const CheckRun run = runCheck(options(true, 1), [&] { return --left < 0; });
        cameToTheEnd = left >= 0;
        if (!cameToTheEnd) {
            QCOMPARE(run.status, sdk_check::somethingFails);
            QVERIFY2(run.lines.last().startsWith("Interrupted before the end: "),
                     qPrintable(run.lines.last()));
        }
        QCOMPARE(run.notOk(), QStringList{});
        QCOMPARE(wholeState(), before);
        QVERIFY(!simulator.isDeviceOpen());
        QCOMPARE(simulator.callsWhileNotOpen(), std::size_t{0});
        const QStringList calls{journal()};
        QCOMPARE(calls.filter("openDevice(").size(), calls.filter("closeDevice(device)").size());
        QCOMPARE(calls.filter("getDeviceManager()").size(),
                 calls.filter("releaseDeviceManager(manager)").size());
    }
    QVERIFY(journal().contains("setGamma(32768) -> true"));
}

void SdkCheckTest::interruptionBeforeTheStartOpensNothing()
{
    const CheckRun run = runCheck(options(true), [] { return true; });
    QCOMPARE(run.status, sdk_check::somethingFails);
    QCOMPARE(journal().filter("openDevice("), QStringList{});
}

PILOTEL_TEST_CLASS(SdkCheckTest)
#include "tst_sdk_check.moc"
