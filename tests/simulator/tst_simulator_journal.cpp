// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The journal: what a call looks like there, literally, and what else it keeps.
#include "everyoperation.h"
#include "simulatedcamera.h"
#include "testclass.h"

#include <QObject>
#include <QString>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

using namespace veltrix_sdk;
using veltrix_simulator::Call;

namespace
{

void log(const char *text)
{
    SDKLogger{severity_info}.GetILogger() << text;
}

} // namespace

class SimulatorJournalTest : public QObject
{
    Q_OBJECT

private slots:
    void callReads_data();
    void callReads();
    void everyOperationIsKeptByItsName_data();
    void everyOperationIsKeptByItsName();
    void targetIsThatOfTheCall();
    void canBeClearedAndTurnedOff();
    void logRecordIsKeptWhenComplete();
    void ofVeryManyCallsTheLatestAreKept();
};

void SimulatorJournalTest::callReads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Action>("action");
    const auto row = [](const char *text, Action action) {
        QTest::addRow("%s", text) << QString{text} << action;
    };
    using C = SimulatedCamera;

    row("get_instance() -> sdk", [](C &) { VeltrixSdk::get_instance(); });
    row("initialize() -> true", [](C &c) { c.sdk.initialize(); });
    row("getConfiguration() -> configuration", [](C &c) { c.sdk.getConfiguration(); });
    row("getDeviceManager() -> manager", [](C &c) { c.sdk.getDeviceManager(); });
    row("releaseDeviceManager(manager)", [](C &c) { c.sdk.releaseDeviceManager(&c.manager); });
    row("releaseDeviceManager(null)", [](C &c) { c.sdk.releaseDeviceManager(nullptr); });
    row(R"(getCommunicationType() -> "UART")", [](C &c) { c.configuration.getCommunicationType(); });
    row("isExpertMode() -> true", [](C &c) { c.configuration.isExpertMode(); });
    row("setBaudRate(9600)", [](C &c) { c.configuration.setBaudRate(9600); });
    row("setBaudRate(-1)", [](C &c) { c.configuration.setBaudRate(-1); });
    row("getDefaultFrameRate() -> 60", [](C &c) { c.configuration.getDefaultFrameRate(); });
    row("getDefaultGamma() -> 1", [](C &c) { c.configuration.getDefaultGamma(); });
    row("openDevice(null) -> null", [](C &c) { c.manager->openDevice(nullptr); });
    row(R"(openDevice("SIM1") -> null)", [](C &c) { c.manager->openDevice("SIM1"); });
    row(R"(openDevice("a\"b\\c\nd") -> null)", [](C &c) { c.manager->openDevice("a\"b\\c\nd"); });
    row(R"(openDevice("SIM1") -> device)", [](C &c) {
        c.manager->closeDevice(c.device);
        c.manager->openDevice("SIM1");
    });
    row("closeDevice(device)", [](C &c) { c.manager->closeDevice(c.device); });
    row("closeDevice(null)", [](C &c) { c.manager->closeDevice(nullptr); });
    row("connect() -> 1 {identity=21}", [](C &c) {
        std::uint8_t identity{0};
        c.device->connect(&identity);
    });
    row("setTarget(1) -> true", [](C &c) { c.device->setTarget(1); });
    row("setTarget(-5) -> false", [](C &c) { c.device->setTarget(-5); });
    row("getGamma() -> 65536", [](C &c) { c.device->getGamma(); });
    row("setGamma(144179) -> true", [](C &c) { c.device->setGamma(144179); });
    row("setGamma(4294967295) -> false", [](C &c) { c.device->setGamma(0xFFFFFFFF); });
    row("setPolarity(true) -> true", [](C &c) { c.device->setPolarity(true); });
    row("getPolarity() -> false", [](C &c) { c.device->getPolarity(); });
    row("setFrameRate(60) -> true", [](C &c) { c.device->setFrameRate(60); });
    row("setMavlinkBaudRate(115200, false) -> true",
        [](C &c) { c.device->setMavlinkBaudRate(115200, false); });
    row("getVideoMode() -> true {mode=0}", [](C &c) {
        std::uint8_t mode{99};
        c.device->getVideoMode(&mode);
    });
    row("getTemperatures() -> true {sensorMillikelvin=296650, fpgaMillikelvin=314250}", [](C &c) {
        Temperatures temperatures{};
        c.device->getTemperatures(&temperatures);
    });
    row("getFirmwareVersions() -> true {processor=532, fpga=8966}", [](C &c) {
        FirmwareVersions versions{};
        c.device->getFirmwareVersions(&versions);
    });
    row("getAhcGainLimitation() -> 1 {black=20, white=80}", [](C &c) {
        AhcGainLimitation limitation{};
        c.device->getAhcGainLimitation(&limitation);
    });
    row("configureEdgeCorrection(1, 3, 5) -> true", [](C &c) { c.device->configureEdgeCorrection(1, 3, 5); });
    row("getEdgeCorrection() -> {type=1, gain=3, firstThreshold=5, secondThreshold=45}", [](C &c) {
        c.device->configureEdgeCorrection(1, 3, 5);
        c.device->getEdgeCorrection();
    });
    row("configureZoom({factor=1.5, xCenter=320, yCenter=240, method=1}) -> true", [](C &c) {
        const ZoomConfig zoom{1.5F, 320, 240, 1};
        c.device->configureZoom(&zoom);
    });
    row("configureZoom({factor=0.1, xCenter=0, yCenter=0, method=255}) -> false", [](C &c) {
        const ZoomConfig zoom{0.1F, 0, 0, 255};
        c.device->configureZoom(&zoom);
    });
    row("configureZoom({factor=nan, xCenter=0, yCenter=0, method=0}) -> false", [](C &c) {
        const ZoomConfig zoom{std::numeric_limits<float>::quiet_NaN(), 0, 0, 0};
        c.device->configureZoom(&zoom);
    });
    row("setWarp(1, 1, -2, 3, -4, 5, 65536) -> true",
        [](C &c) { c.device->setWarp(1, 1, -2, 3, -4, 5, 65536); });
    row("getWarp(1) -> true {a11=1, a21=0, a12=0, a22=1, a13=0.1, a23=0}", [](C &c) {
        c.simulator.set("camera.warp1.a13", 0.1);
        Warp warp{};
        warp.stream = 1;
        c.device->getWarp(&warp);
    });
    row("getWarp(7) -> false {a11=0, a21=0, a12=0, a22=0, a13=0, a23=0}", [](C &c) {
        Warp warp{7, 1, 2, 3, 4, 5, 6};
        c.device->getWarp(&warp);
    });
    row("setRoiY2(300, 2, true, false, true) -> true",
        [](C &c) { c.device->setRoiY2(300, 2, true, false, true); });
    row("getRoiX2(0) -> 635", [](C &c) { c.device->getRoiX2(0); });
    row("processNucRequest() -> true", [](C &c) { c.device->processNucRequest(); });
    row("NOT OPEN: setGamma(65536) -> false", [](C &c) {
        c.manager->closeDevice(c.device);
        c.device->setGamma(65536);
    });
    row(R"(NOT HELD: openDevice("SIM1") -> null)", [](C &c) {
        c.sdk.releaseDeviceManager(&c.manager);
        c.manager->openDevice("SIM1");
    });
    row(R"(log(2, ""))", [](C &) { log(""); });
    row(R"(log(2, "two\nlines"))", [](C &) { log("two\nlines"); });
    row(R"(log(0, "a text, a \"text\""))",
        [](C &) { SDKLogger{severity_trace}.GetILogger() << std::string{"a text, "} << "a \"text\""; });
    row(R"(log(2, "before, after"))", [](C &) {
        SDKLogger{severity_info}.GetILogger() << "before, " << static_cast<const char *>(nullptr) << "after";
    });
}

void SimulatorJournalTest::callReads()
{
    QFETCH(const QString, text);
    QFETCH(const Action, action);
    SimulatedCamera c;
    action(c);
    QCOMPARE(c.lastCall(), text);
}

void SimulatorJournalTest::everyOperationIsKeptByItsName_data()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < everyOperation().size(); ++place) {
        QTest::addRow("%s", everyOperation()[place].name) << place;
    }
}

void SimulatorJournalTest::everyOperationIsKeptByItsName()
{
    QFETCH(const std::size_t, place);
    const OperationCall &operation = everyOperation()[place];
    SimulatedCamera c;
    operation.call(c);
    QCOMPARE(c.simulator.journal().size(), std::size_t{1});
    const Call &call = c.simulator.journal().front();
    QCOMPARE(call.operation, std::string{operation.name});
    QVERIFY(call.interface == operation.interface);
    QVERIFY(c.lastCall().startsWith(QString{operation.name} + '('));
}

void SimulatorJournalTest::targetIsThatOfTheCall()
{
    const SimulatedCamera c{blendUnitTarget};
    c.device->setTarget(1);
    c.device->getGamma();
    c.configuration.isExpertMode();
    c.device->setTarget(0);
    c.device->setTarget(2);
    std::vector<int> targets;
    for (const Call &call : c.simulator.journal()) {
        targets.push_back(call.target);
    }
    QCOMPARE(targets, (std::vector<int>{0, 1, 1, 1, 0}));
}

void SimulatorJournalTest::canBeClearedAndTurnedOff()
{
    const SimulatedCamera c;
    c.device->getGamma();
    c.device->getClhe();
    QCOMPARE(c.simulator.journal().size(), std::size_t{2});
    c.simulator.clearJournal();
    QVERIFY(c.simulator.journal().empty());
    c.simulator.setJournalEnabled(false);
    QVERIFY(c.device->setGamma(32768));
    QVERIFY(c.simulator.journal().empty());
    c.simulator.setJournalEnabled(true);
    QCOMPARE(c.device->getGamma(), 32768U);
    QCOMPARE(c.simulator.journal().size(), std::size_t{1});
}

void SimulatorJournalTest::logRecordIsKeptWhenComplete()
{
    const SimulatedCamera c;
    {
        SDKLogger first{severity_fatal};
        SDKLogger second{severity_warning};
        first.GetILogger() << "first";
        second.GetILogger() << "second";
        QVERIFY(c.simulator.journal().empty());
    }
    QCOMPARE(c.simulator.journal().size(), std::size_t{2});
    QCOMPARE(c.simulator.journal()[0].text, std::string{R"(log(3, "second"))"});
    QCOMPARE(c.simulator.journal()[1].text, std::string{R"(log(5, "first"))"});
}

void SimulatorJournalTest::ofVeryManyCallsTheLatestAreKept()
{
    const SimulatedCamera c;
    c.device->getGamma();
    for (int call{1}; call < 200'000; ++call) {
        c.device->getClhe();
    }
    QCOMPARE(c.simulator.journal().size(), std::size_t{200'000});
    QCOMPARE(c.simulator.journal().front().operation, std::string{"getGamma"});
    c.device->getTint();
    QVERIFY(c.simulator.journal().size() <= 200'000);
    QVERIFY(c.simulator.journal().size() >= 100'000);
    QCOMPARE(c.simulator.journal().front().operation, std::string{"getClhe"});
    QCOMPARE(c.simulator.journal().back().operation, std::string{"getTint"});
}

PILOTEL_TEST_CLASS(SimulatorJournalTest)
#include "tst_simulator_journal.moc"
