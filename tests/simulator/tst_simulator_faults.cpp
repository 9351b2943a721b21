// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Faults: what they hit, when, and what the operation then does.
#include "everyoperation.h"
#include "simulatedcamera.h"
#include "testclass.h"

#include <QMetaType>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QTest>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

using namespace veltrix_sdk;
using veltrix_simulator::Fault;
using veltrix_simulator::Value;

namespace
{

using Values = std::vector<Value>;

std::int64_t number(std::int64_t value)
{
    return value;
}

/// The results of so many calls of getPolarity(), which is true, with T for true and f for false.
QString polarities(const SimulatedCamera &c, int calls)
{
    QString results;
    for (int call{0}; call < calls; ++call) {
        results += c.device->getPolarity() ? 'T' : 'f';
    }
    return results;
}

} // namespace

Q_DECLARE_METATYPE(Fault)

class SimulatorFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyOperationCanBeRefused_data();
    void everyOperationCanBeRefused();
    void refusedCommandChangesNothing();
    void hitsTheCallsItIsFor_data();
    void hitsTheCallsItIsFor();
    void lastAddedWins();
    void countsFromWhenItWasAdded();
    void everyDeviceOperationCanBeHit();
    void answerReplacesTheWork();
    void answerOfOpening();
    void answerOfAText();
    void floatingAnswersTakeEverything();
    void answerForMissingMemoryIsRefused();
    void closedDeviceIsNotHit();
    void wrongFaultIsNamed_data();
    void wrongFaultIsNamed();
    void wrongFaultIsNotAdded();
};

void SimulatorFaultsTest::everyOperationCanBeRefused_data()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < everyOperation().size(); ++place) {
        QTest::addRow("%s", everyOperation()[place].name) << place;
    }
}

void SimulatorFaultsTest::everyOperationCanBeRefused()
{
    QFETCH(const std::size_t, place);
    const OperationCall &operation = everyOperation()[place];
    SimulatedCamera c;
    c.simulator.addFault({operation.name});
    operation.call(c);
    // Whatever comes out is zero: "", "-> false", "-> null", "-> 0 {identity=0}", "-> {type=0, gain=0}".
    static const QRegularExpression zeros{
        QStringLiteral(R"re(\)( -> (false|0|null|"")?( ?\{\w+=0(, \w+=0)*\})?)?$)re")};
    QVERIFY2(zeros.match(c.lastCall()).hasMatch(), qPrintable(c.lastCall()));
}

void SimulatorFaultsTest::refusedCommandChangesNothing()
{
    const SimulatedCamera c;
    for (const char *const name : {"setGamma", "setTarget", "closeDevice", "setBaudRate", "configureZoom"}) {
        c.simulator.addFault({name});
    }
    QVERIFY(!c.device->setGamma(144179));
    QCOMPARE(c.device->getGamma(), 65536U);
    QVERIFY(!c.device->setTarget(blendUnitTarget));
    QCOMPARE(c.device->getSerialNumber(), 10417U);
    const ZoomConfig zoom{2, 1, 1, 1};
    QVERIFY(!c.device->configureZoom(&zoom));
    ZoomConfig read{};
    QVERIFY(c.device->getZoomConfig(&read));
    QCOMPARE(read.factor, 1.0F);
    c.configuration.setBaudRate(9600);
    QCOMPARE(toText(c.simulator.get("configuration.baudRate")), QStringLiteral("115200"));
    c.manager->closeDevice(c.device);
    QVERIFY(c.simulator.isDeviceOpen());
    c.simulator.clearFaults();
    QVERIFY(c.device->setGamma(144179));
    c.manager->closeDevice(c.device);
    QVERIFY(!c.simulator.isDeviceOpen());
}

void SimulatorFaultsTest::hitsTheCallsItIsFor_data()
{
    QTest::addColumn<std::size_t>("from");
    QTest::addColumn<std::size_t>("times");
    QTest::addColumn<QString>("results");
    const auto row = [](const char *name, std::size_t from, std::size_t times, const char *results) {
        QTest::addRow("%s", name) << from << times << QString{results};
    };
    row("always", 1, 0, "ffffff");
    row("from the first, said as 0", 0, 1, "fTTTTT");
    row("once", 1, 1, "fTTTTT");
    row("twice", 1, 2, "ffTTTT");
    row("the third", 3, 1, "TTfTTT");
    row("from the third on", 3, 0, "TTffff");
    row("two from the fourth", 4, 2, "TTTffT");
    row("later than all", 7, 0, "TTTTTT");
    row("as often as can be", 2, std::numeric_limits<std::size_t>::max(), "Tfffff");
    row("never", std::numeric_limits<std::size_t>::max(), 0, "TTTTTT");
}

void SimulatorFaultsTest::hitsTheCallsItIsFor()
{
    QFETCH(const std::size_t, from);
    QFETCH(const std::size_t, times);
    QFETCH(const QString, results);
    const SimulatedCamera c;
    QVERIFY(c.device->setPolarity(true));
    c.simulator.addFault({"getPolarity", from, times});
    c.device->getGamma();
    QCOMPARE(polarities(c, 6), results);
}

void SimulatorFaultsTest::lastAddedWins()
{
    const SimulatedCamera c;
    c.simulator.addFault({"getColorLut", 1, 0, Values{number(5)}});
    c.simulator.addFault({"getColorLut", 2, 1, Values{number(6)}});
    c.simulator.addFault({"", 4, 1});
    QCOMPARE(int{c.device->getColorLut()}, 5);
    QCOMPARE(int{c.device->getColorLut()}, 6);
    QCOMPARE(int{c.device->getColorLut()}, 5);
    QCOMPARE(int{c.device->getColorLut()}, 0);
    QCOMPARE(int{c.device->getColorLut()}, 5);
}

void SimulatorFaultsTest::countsFromWhenItWasAdded()
{
    const SimulatedCamera c;
    QVERIFY(c.device->setPolarity(true));
    QCOMPARE(polarities(c, 3), QStringLiteral("TTT"));
    c.simulator.addFault({"getPolarity", 2, 1});
    QCOMPARE(polarities(c, 3), QStringLiteral("TfT"));
    c.simulator.addFault({"getPolarity", 2, 1});
    QCOMPARE(polarities(c, 3), QStringLiteral("TfT"));
}

void SimulatorFaultsTest::everyDeviceOperationCanBeHit()
{
    const SimulatedCamera c;
    c.simulator.addFault({"", 2, 2});
    QCOMPARE(c.device->getSerialNumber(), 10417U);
    QVERIFY(c.configuration.isExpertMode());
    QVERIFY(!c.device->setGamma(65536));
    QVERIFY(c.sdk.initialize());
    QCOMPARE(c.device->getClhe(), 0U);
    QCOMPARE(c.device->getClhe(), 2000U);
}

void SimulatorFaultsTest::answerReplacesTheWork()
{
    const SimulatedCamera c;
    c.simulator.addFault({"setGamma", 1, 0, Values{true}});
    QVERIFY(c.device->setGamma(144179));
    QCOMPARE(c.device->getGamma(), 65536U);

    c.simulator.addFault({"connect", 1, 0, Values{number(2), number(22)}});
    std::uint8_t identity{0};
    QCOMPARE(int{c.device->connect(&identity)}, 2);
    QCOMPARE(int{identity}, 22);

    c.simulator.addFault({"getVideoMode", 1, 0, Values{true, number(3)}});
    std::uint8_t mode{0};
    QVERIFY(c.device->getVideoMode(&mode));
    QCOMPARE(c.lastCall(), QStringLiteral("getVideoMode() -> true {mode=3}"));

    c.simulator.addFault(
        {"getEdgeCorrection", 1, 0, Values{number(255), number(4294967295), number(1), number(2)}});
    c.device->getEdgeCorrection();
    QCOMPARE(c.lastCall(),
             QStringLiteral(
                 "getEdgeCorrection() -> {type=255, gain=4294967295, firstThreshold=1, secondThreshold=2}"));

    c.simulator.addFault({"getWarp", 1, 0, Values{false, 1.5, number(2), 3.0, 4.0, 5.0, 6.0}});
    Warp warp{};
    warp.stream = 2;
    QVERIFY(!c.device->getWarp(&warp));
    QCOMPARE(int{warp.stream}, 2);
    QCOMPARE(c.lastCall(),
             QStringLiteral("getWarp(2) -> false {a11=1.5, a21=2, a12=3, a22=4, a13=5, a23=6}"));

    c.simulator.addFault({"setBaudRate", 1, 0, Values{}});
    c.configuration.setBaudRate(9600);
    QCOMPARE(toText(c.simulator.get("configuration.baudRate")), QStringLiteral("115200"));
}

void SimulatorFaultsTest::answerOfOpening()
{
    const SimulatedCamera c;
    c.manager->closeDevice(c.device);
    c.simulator.addFault({"openDevice", 1, 1, Values{true}});
    QCOMPARE(c.manager->openDevice("COM3"), c.device);
    QVERIFY(!c.simulator.isDeviceOpen());
    c.simulator.addFault({"openDevice", 1, 1, Values{false}});
    QCOMPARE(c.manager->openDevice("SIM1"), nullptr);
    QCOMPARE(c.manager->openDevice("SIM1"), c.device);
    QVERIFY(c.simulator.isDeviceOpen());
}

void SimulatorFaultsTest::answerOfAText()
{
    const SimulatedCamera c;
    c.simulator.addFault({"getCommunicationType", 1, 1, Values{"USB"}});
    const char *const type{c.configuration.getCommunicationType()};
    c.simulator.clearFaults();
    QCOMPARE(type, "USB");
    c.simulator.addFault({"getCommunicationType", 1, 1});
    QCOMPARE(c.configuration.getCommunicationType(), "");
    QCOMPARE(c.configuration.getCommunicationType(), "UART");
}

void SimulatorFaultsTest::floatingAnswersTakeEverything()
{
    const SimulatedCamera c;
    c.simulator.addFault(
        {"getTemperatures", 1, 1,
         Values{true, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}});
    Temperatures temperatures{};
    QVERIFY(c.device->getTemperatures(&temperatures));
    QVERIFY(std::isnan(temperatures.sensorMillikelvin));
    QVERIFY(std::isinf(temperatures.fpgaMillikelvin));
    c.simulator.addFault({"getDefaultGamma", 1, 1, Values{number(-3)}});
    QCOMPARE(c.configuration.getDefaultGamma(), -3.0);
}

void SimulatorFaultsTest::answerForMissingMemoryIsRefused()
{
    const SimulatedCamera c;
    c.simulator.addFault({"getVideoMode", 1, 1, Values{true, number(1)}});
    QVERIFY(!c.device->getVideoMode(nullptr));
    std::uint8_t mode{99};
    QVERIFY(c.device->getVideoMode(&mode));
    QCOMPARE(int{mode}, 0);
}

void SimulatorFaultsTest::closedDeviceIsNotHit()
{
    const SimulatedCamera c;
    c.simulator.addFault({"getGamma", 1, 1, Values{number(7)}});
    c.manager->closeDevice(c.device);
    QCOMPARE(c.device->getGamma(), 0U);
    c.manager->openDevice("SIM1");
    QCOMPARE(c.device->getGamma(), 7U);
    QCOMPARE(c.device->getGamma(), 65536U);
}

void SimulatorFaultsTest::wrongFaultIsNamed_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *operation, const std::optional<Values> &answer, const char *message) {
        QTest::addRow("%s", message) << Fault{operation, 1, 0, answer} << QString{message};
    };
    row("getGama", std::nullopt, "the contract has no operation \"getGama\"");
    row("", Values{true}, "an answer belongs to one operation; every operation can only be refused");
    row("getGamma", Values{}, "an answer of \"getGamma\" has 1 values, not 0");
    row("getGamma", Values{number(1), number(2)}, "an answer of \"getGamma\" has 1 values, not 2");
    row("getWarp", Values{true}, "an answer of \"getWarp\" has 7 values, not 1");
    row("setBaudRate", Values{true}, "an answer of \"setBaudRate\" has 0 values, not 1");
    row("getGamma", Values{number(-1)},
        "value 1 of an answer of \"getGamma\" is an integer from 0 to 4294967295");
    row("getGamma", Values{1.0}, "value 1 of an answer of \"getGamma\" is an integer from 0 to 4294967295");
    row("getVideoMode", Values{true, number(256)},
        "value 2 of an answer of \"getVideoMode\" is an integer from 0 to 255");
    row("getVideoMode", Values{number(2), number(1)},
        "value 1 of an answer of \"getVideoMode\" is true or false");
    row("connect", Values{true, number(21)},
        "value 1 of an answer of \"connect\" is an integer from 0 to 255");
    row("getTemperatures", Values{true, 1e39, 1.0},
        "value 2 of an answer of \"getTemperatures\" is a number in single precision");
    row("getCommunicationType", Values{number(1)},
        "value 1 of an answer of \"getCommunicationType\" is a text");
    row("openDevice", Values{"SIM1"},
        "value 1 of an answer of \"openDevice\" is true for the object or false for null");
}

void SimulatorFaultsTest::wrongFaultIsNamed()
{
    QFETCH(const Fault, fault);
    QFETCH(const QString, message);
    const SimulatedCamera c;
    QCOMPARE(refusalOf([&] { c.simulator.addFault(fault); }), message);
}

void SimulatorFaultsTest::wrongFaultIsNotAdded()
{
    const SimulatedCamera c;
    QVERIFY(!refusalOf([&] { c.simulator.addFault({"getGamma", 1, 0, Values{true}}); }).isEmpty());
    QCOMPARE(c.device->getGamma(), 65536U);
}

PILOTEL_TEST_CLASS(SimulatorFaultsTest)
#include "tst_simulator_faults.moc"
