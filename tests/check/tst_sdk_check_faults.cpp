// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The check of an SDK library on a simulator with faults: each is named, and nothing is left changed.
#include "checkrun.h"
#include "simulatedcamera.h"
#include "testclass.h"

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstddef>
#include <limits>
#include <optional>
#include <sstream>
#include <string>

using sdk_check::Options;
using veltrix_simulator::Fault;
using veltrix_simulator::Value;

namespace
{

const Options reading{"SIM1", false, 2};
const Options writing{"SIM1", true, 1};

} // namespace

Q_DECLARE_METATYPE(Value)

class SdkCheckFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void namesWhatIsMissing_data();
    void namesWhatIsMissing();
    void namesTheAnswer_data();
    void namesTheAnswer();
    void takesWhatTheContractAllows_data();
    void takesWhatTheContractAllows();
    void namesTheConfiguration_data();
    void namesTheConfiguration();
    void namesTheSetter_data();
    void namesTheSetter();
    void triesToPutBackMoreThanOnce();
    void saysThatPuttingBackWasRefused();
    void saysWhatWasNotPutBack();
    void writesNothingThatItCannotPutBack();
    void writesNothingToAUnitThatIsNotSelected();
    void showsTextOfTheDeviceEscaped();
    void reportsAMissingRoot();
};

void SdkCheckFaultsTest::init()
{
    veltrix_simulator::Simulator::instance().reset();
}

void SdkCheckFaultsTest::namesWhatIsMissing_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QStringList>("notOk");
    const auto row = [](const Fault &fault, const QStringList &notOk) {
        QTest::addRow("%s", qPrintable(notOk.first())) << fault << notOk;
    };
    row({"getConfiguration"}, {"getConfiguration: answers null"});
    row({"getCommunicationType"}, {R"(getCommunicationType: answers ""; "UART" is allowed)"});
    row({"getDeviceManager"}, {"getDeviceManager: answers null"});
    row({"openDevice"}, {"openDevice: answers null for the port SIM1"});
    row({"connect"}, {"connect: answers false"});
    row({"connect", 1, 0, Answer{number(2), number(21)}}, {"connect: answers 2; only 1 is success"});
    row({"connect", 1, 0, Answer{number(1), number(22)}}, {"connect: identity answers 22; 21 is allowed"});
    row({"setTarget"}, {"setTarget (Blend Unit): answers false, so the unit is not reached",
                        "setTarget (Blend Unit): answers false, so the unit is not reached",
                        "setTarget (camera): answers false, so the unit is not reached",
                        "setTarget (Blend Unit): answers false, so the unit is not reached",
                        "setTarget (camera): answers false, so the unit is not reached"});
    row({""},
        {"setTarget (Blend Unit): answers false, so the unit is not reached", "connect: answers false"});
}

void SdkCheckFaultsTest::namesWhatIsMissing()
{
    QFETCH(const Fault, fault);
    QFETCH(const QStringList, notOk);
    auto &simulator = veltrix_simulator::Simulator::instance();
    const auto before = wholeState();
    simulator.addFault(fault);
    const CheckRun run = runCheck(reading);
    QCOMPARE(run.notOk(), notOk);
    QCOMPARE(run.status, sdk_check::somethingFails);
    QCOMPARE(wholeState(), before);
    QVERIFY(!simulator.isDeviceOpen());
    QCOMPARE(simulator.callsWhileNotOpen(), std::size_t{0});
    const bool held{journal().contains("getDeviceManager() -> manager")};
    QCOMPARE(journal().contains("releaseDeviceManager(manager)"), held);
}

void SdkCheckFaultsTest::namesTheAnswer_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QString>("notOk");
    const auto row = [](const char *operation, const std::optional<Answer> &answer, const char *notOk) {
        QTest::addRow("%s%s", notOk, answer ? "" : ", refused")
            << Fault{operation, 1, 0, answer} << QString{notOk};
    };
    constexpr double nan{std::numeric_limits<double>::quiet_NaN()};
    constexpr double infinite{std::numeric_limits<double>::infinity()};
    row("getVideoMode", std::nullopt, "getVideoMode (Blend Unit): answers false");
    row("getVideoMode", Answer{true, number(9)}, "getVideoMode (Blend Unit): answers 9; 0 to 2 is allowed");
    row("getStartingMode", Answer{true, number(4)},
        "getStartingMode (Blend Unit): answers 4; 0 to 3 is allowed");
    row("getFrameRate", Answer{number(15)},
        "getFrameRate (camera): answers 15; 9, 25, 30, 50 or 60 is allowed");
    row("getGamma", std::nullopt, "getGamma (camera): answers 0; 32768 to 163840 is allowed");
    row("getClhe", Answer{number(30001)}, "getClhe (camera): answers 30001; 0 to 30000 is allowed");
    row("getColorLut", Answer{number(8)}, "getColorLut (camera): answers 8; 0 to 7 is allowed");
    row("getContrastType", Answer{number(2)}, "getContrastType (camera): answers 2; 0 to 1 is allowed");
    row("getVideoOutput", Answer{number(9)}, "getVideoOutput (camera): answers 9; 0 to 8 is allowed");
    row("getLutTemporalFilter", Answer{number(9)},
        "getLutTemporalFilter (camera): answers 9; 0 to 8 is allowed");
    row("getGsk", std::nullopt, "getGsk (camera): answers 0; 1 to 3 is allowed");
    row("getTint", Answer{number(4294967295)}, "getTint (camera): answers 4294967295; 0 to 20 is allowed");
    row("getSensorSerialNumber", std::nullopt,
        "getSensorSerialNumber (camera): answers 0; 1 or more is allowed");
    row("getOperatingInfo", Answer{true, number(1), number(0)},
        "getOperatingInfo (camera): startupCount answers 0; 1 or more is allowed");
    row("getAhcGainLimitation", Answer{number(2), number(1), number(1)},
        "getAhcGainLimitation (camera): answers 2; only 1 is success");
    row("getAhcGainLimitation", Answer{number(1), number(101), number(255)},
        "getAhcGainLimitation (camera): black answers 101; 0 to 100 is allowed, white answers 255; 0 to 100 is allowed");
    row("getEdgeCorrection", Answer{number(3), number(1025), number(20), number(39)},
        "getEdgeCorrection (camera): type answers 3; 0 to 2 is allowed, gain answers 1025; 0 to 1024 is allowed");
    row("getZoomResolution", Answer{true, number(0), number(576)},
        "getZoomResolution (Blend Unit): x answers 0; 1 to 10000 is allowed");
    row("getVisibleAgc", Answer{true, number(101), number(0), number(0)},
        "getVisibleAgc (Blend Unit): target answers 101; 0 to 100 is allowed");
    row("getVisibleClhe", Answer{true, number(65536), number(0)},
        "getVisibleClhe (Blend Unit): threshold answers 65536; 0 to 65535 is allowed");
    row("getWarp", Answer{true, nan, 0.0, 0.0, infinite, 0.0, 0.0},
        "getWarp(0) (Blend Unit): a11 answers nan; -32768 to 65536 is allowed, a22 answers inf; -32768 to 65536 is allowed");
    row("getZoomConfig", Answer{true, nan, number(1), number(1), number(0)},
        "getZoomConfig (Blend Unit): factor answers nan; 1 to 8 is allowed");
    row("getZoomConfig", Answer{true, 1.0, number(1281), number(1025), number(0)},
        "getZoomConfig (Blend Unit): xCenter answers 1281; 0 to 1280 is allowed, yCenter answers 1025; 0 to 1024 is allowed");
    row("getTemperatures", Answer{true, 296650.0, -infinite},
        "getTemperatures (Blend Unit): fpga answers -inf; 200000 to 400000 is allowed");
    row("getTemperatures", std::nullopt,
        "getTemperatures (camera): sensor answers 0; 200000 to 400000 is allowed, fpga answers 0; 200000 to 400000 is allowed");
    row("getFirmwareVersions", Answer{true, number(0), number(0)},
        "getFirmwareVersions (camera): both words are 0, which means no answer");
    row("getFirmwareVersions", std::nullopt,
        "getFirmwareVersions (camera): both words are 0, which means no answer");
    row("getOperatingInfo", std::nullopt,
        "getOperatingInfo (camera): startupCount answers 0; 1 or more is allowed");
    row("getSerialNumber", std::nullopt, "getSerialNumber (Blend Unit): answers 0; 1 or more is allowed");
    row("getRoiX1", Answer{number(640)}, "getRoiX1(2) (camera): answers 640; 0 to 639 is allowed");
    row("getRoiY2", Answer{number(480)}, "getRoiY2(3) (camera): answers 480; 0 to 479 is allowed");
}

void SdkCheckFaultsTest::namesTheAnswer()
{
    QFETCH(const Fault, fault);
    QFETCH(const QString, notOk);
    auto &simulator = veltrix_simulator::Simulator::instance();
    simulator.addFault(fault);
    const CheckRun run = runCheck(reading);
    QVERIFY2(run.notOk().contains(notOk), qPrintable(run.notOk().join('\n')));
    for (const QString &line : run.notOk()) {
        QVERIFY2(line.startsWith(QString::fromStdString(fault.operation)), qPrintable(line));
    }
    QCOMPARE(run.status, sdk_check::somethingFails);
    QVERIFY(!simulator.isDeviceOpen());
}

void SdkCheckFaultsTest::takesWhatTheContractAllows_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QString>("line");
    const auto row = [](const Fault &fault, const char *line) {
        QTest::addRow("%s", line) << fault << QString{line};
    };
    row({"initialize"}, "initialize: false, which is not examined");
    row({"startReading"}, "startReading (camera): false, which is not examined");
    row({"startReading"}, "startReading (Blend Unit): false, which is not examined");
    row({"getFirmwareVersions", 1, 1, Answer{false, number(4866), number(8452)}},
        "getFirmwareVersions (Blend Unit): false, which is not examined; processor 4866, fpga 8452");
    row({"getFirmwareVersions", 2, 1, Answer{false, number(532), number(8966)}},
        "getFirmwareVersions (camera): false, which is not examined; processor 532, fpga 8966");
    row({"getFirmwareVersions", 4, 1, Answer{false, number(532), number(8966)}},
        "repeated reads (camera): 47 of 47 answers as before");
    row({"getOperatingInfo", 2, 0, Answer{false, number(73415), number(412)}},
        "getOperatingInfo (camera): false, which is not examined; operatingMinutes 73415, startupCount 412");
    row({"getTemperatures", 1, 0, Answer{false, 296650.0, 314250.0}},
        "getTemperatures (camera): false, which is not examined; sensor 296650, fpga 314250");
    row({"getZoomConfig", 1, 0, Answer{true, 1.0, number(1280), number(1024), number(0)}},
        "getZoomConfig (Blend Unit): factor 1, xCenter 1280, yCenter 1024, method 0");
    row({"getEdgeCorrection", 1, 0, Answer{number(0), number(64), number(20), number(10)}},
        "getEdgeCorrection (camera): type 0, gain 64, firstThreshold 20, secondThreshold 10");
    row({"getEdgeCorrection", 1, 0, Answer{number(0), number(64), number(20), number(0)}},
        "getEdgeCorrection (camera): type 0, gain 64, firstThreshold 20, secondThreshold 0");
    row({"getGms", 1, 0, Answer{number(4096)}}, "getGms (camera): 4096");
    row({"getGms", 1, 0, Answer{number(4294967295)}}, "getGms (camera): 4294967295");
}

void SdkCheckFaultsTest::takesWhatTheContractAllows()
{
    QFETCH(const Fault, fault);
    QFETCH(const QString, line);
    veltrix_simulator::Simulator::instance().addFault(fault);
    const CheckRun run = runCheck(reading);
    QCOMPARE(run.notOk(), QStringList{});
    QCOMPARE(run.status, sdk_check::allHold);
    QVERIFY2(run.lines.contains("ok     " + line), qPrintable(run.output));
}

void SdkCheckFaultsTest::namesTheConfiguration_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<Value>("value");
    QTest::addColumn<QStringList>("notOk");
    const auto row = [](const char *key, const Value &value, const QStringList &notOk) {
        QTest::addRow("%s", qPrintable(notOk.first())) << QString{key} << value << notOk;
    };
    row("defaultBaudRate", number(-1), {"getDefaultBaudRate: answers -1; 9600 or 115200 is allowed"});
    row("defaultGamma", std::numeric_limits<double>::quiet_NaN(),
        {"getDefaultGamma: answers nan; 0.5 to 2.5 is allowed"});
    row("defaultClhe", 1e300, {"getDefaultClhe: answers 1e+300; 0 to 10000 is allowed"});
    row("defaultFrameRate", number(0), {"getDefaultFrameRate: answers 0; 9, 25, 30, 50 or 60 is allowed"});
    row("defaultEdgeCorrectionType", number(3),
        {"getDefaultEdgeCorrectionType: answers 3; 0 to 2 is allowed"});
    row("defaultSharpeningThreshold", number(201),
        {"getDefaultSharpeningThreshold: answers 201; 0 to 200 is allowed"});
    row("defaultRoi0IncX1", 4.0, {"getDefaultRoi0IncX1: answers 4; 5 to 635 is allowed"});
    row("defaultRoi0IncX2", 636.0, {"getDefaultRoi0IncX2: answers 636; 5 to 635 is allowed"});
    row("defaultRoi0ExcY1", 0.0, {"getDefaultRoi0ExcY1: answers 0; 5 to 475 is allowed"});
    row("defaultRoi1IncX2", 639.0, {"getDefaultRoi1IncX2: answers 639; 5 to 635 is allowed"});
    row("defaultRoi1ExcY2", 475.5, {"getDefaultRoi1ExcY2: answers 475.5; 5 to 475 is allowed"});
    row("gskDefault", number(4),
        {"getDefaultGsk: answers 4; 1 to 3 is allowed", "gskDefault: answers 4; 1 to 3 is allowed"});
    row("tintMaximum", number(-1),
        {"getDefaultTint: answers 10; nothing is allowed from 0 to -1",
         "tintMaximum: answers -1; 0 to 2147483647 is allowed",
         "tintDefault: answers 10; nothing is allowed from 0 to -1",
         "getTint (camera): answers 10; nothing is allowed from 0 to -1"});
}

void SdkCheckFaultsTest::namesTheConfiguration()
{
    QFETCH(const QString, key);
    QFETCH(const Value, value);
    QFETCH(const QStringList, notOk);
    veltrix_simulator::Simulator::instance().set("configuration." + key.toStdString(), value);
    const CheckRun run = runCheck(reading);
    QCOMPARE(run.notOk(), notOk);
    QCOMPARE(run.status, sdk_check::somethingFails);
}

void SdkCheckFaultsTest::namesTheSetter_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QStringList>("notOk");
    const auto row = [](const Fault &fault, const QStringList &notOk) {
        QTest::addRow("%s", qPrintable(notOk.first())) << fault << notOk;
    };
    row({"setClhe", 1, 1}, {"setClhe (camera): answers false to 0; back at 2000"});
    row({"setGamma"}, {"setGamma (camera): answers false to 32768; back at 65536"});
    row({"setGamma", 1, 0, Answer{true}},
        {"setGamma (camera): set to 32768, but getGamma answers 65536; back at 65536"});
    row({"setPolarity", 1, 1, Answer{true}},
        {"setPolarity (camera): set to true, but getPolarity answers false; back at false"});
    row({"setAhcGainLimitation", 1, 2, Answer{true}},
        {"setAhcGainLimitation black (camera): set to 0, but getAhcGainLimitation answers black 20, white 80; back at 20"});
    row({"configureZoom", 1, 1}, {"configureZoom factor (Blend Unit): answers false to 8; back at 1"});
    row({"setRoiY1", 1, 1, Answer{true}},
        {"setRoiY1(0) (camera): set to 6, but getRoiY1 answers 5; back at 5"});
    row({"setWarp", 3, 1}, {"setWarp(0) a21 (Blend Unit): answers false to 2; back at 0"});
    row({"getGamma", 4, 1}, {"setGamma (camera): set to 32768, but getGamma answers 0; back at 65536"});
}

void SdkCheckFaultsTest::namesTheSetter()
{
    QFETCH(const Fault, fault);
    QFETCH(const QStringList, notOk);
    auto &simulator = veltrix_simulator::Simulator::instance();
    const auto before = wholeState();
    simulator.addFault(fault);
    const CheckRun run = runCheck(writing);
    QCOMPARE(run.notOk(), notOk);
    QCOMPARE(run.status, sdk_check::somethingFails);
    QCOMPARE(wholeState(), before);
}

void SdkCheckFaultsTest::triesToPutBackMoreThanOnce()
{
    auto &simulator = veltrix_simulator::Simulator::instance();
    const auto before = wholeState();
    simulator.addFault({"setGamma", 2, 2});
    const CheckRun run = runCheck(writing);
    QCOMPARE(run.notOk(), QStringList{});
    QCOMPARE(journal().filter("setGamma(65536) -> false").size(), 2);
    QCOMPARE(wholeState(), before);
}

void SdkCheckFaultsTest::saysThatPuttingBackWasRefused()
{
    // A library that keeps what it was given to itself: it reads right, and the camera has never changed.
    auto &simulator = veltrix_simulator::Simulator::instance();
    const auto before = wholeState();
    simulator.addFault({"setGamma", 2});
    simulator.addFault({"setGamma", 1, 1, Answer{true}});
    simulator.addFault({"getGamma", 4, 1, Answer{number(32768)}});
    const CheckRun run = runCheck(writing);
    QCOMPARE(run.notOk(), QStringList{"setGamma (camera): answers false to 65536; back at 65536"});
    QCOMPARE(run.status, sdk_check::somethingFails);
    QCOMPARE(wholeState(), before);
}

void SdkCheckFaultsTest::saysWhatWasNotPutBack()
{
    auto &simulator = veltrix_simulator::Simulator::instance();
    simulator.addFault({"setGamma", 2});
    const CheckRun run = runCheck(writing);
    const QStringList notOk{
        "setGamma (camera): NOT RESTORED: setGamma answers false and getGamma 32768 instead of 65536"};
    QCOMPARE(run.notOk(), notOk);
    QCOMPARE(run.status, sdk_check::somethingFails);
    QVERIFY(!simulator.isDeviceOpen());
}

void SdkCheckFaultsTest::writesNothingThatItCannotPutBack()
{
    auto &simulator = veltrix_simulator::Simulator::instance();
    simulator.set("blendUnit.warp1.a12", 0.25);
    simulator.set("camera.colorLut", number(9));
    simulator.set("camera.gms", number(5000));
    simulator.set("configuration.gfidMaximum", number(250));
    simulator.set("configuration.gfidMinimum", number(250));
    const auto before = wholeState();
    const CheckRun run = runCheck(writing);
    const QStringList notOk{
        "getColorLut (camera): answers 9; 0 to 7 is allowed",
        "setColorLut (camera): not tried, because getColorLut answers 9; 0 to 7 is allowed"};
    QCOMPARE(run.notOk(), notOk);
    QStringList skipped;
    for (const char *const coefficient : {"a11", "a21", "a12", "a22", "a13", "a23"}) {
        skipped.append(
            QString{"setWarp(1) %1 (Blend Unit): takes whole numbers and could not put back a12 0.25"}.arg(
                coefficient));
    }
    skipped.append("setGfid (camera): no value but 250 is allowed");
    skipped.append("setGms (camera): could not put back 5000; 0 to 4095 is allowed");
    QCOMPARE(run.skipped(), skipped);
    for (const char *const call : {"setWarp(1,", "setColorLut(", "setGfid(", "setGms("}) {
        QCOMPARE(journal().filter(call), QStringList{});
    }
    QCOMPARE(wholeState(), before);
}

void SdkCheckFaultsTest::writesNothingToAUnitThatIsNotSelected()
{
    auto &simulator = veltrix_simulator::Simulator::instance();
    // The fifth selection is that of the camera to write to it.
    simulator.addFault({"setTarget", 5, 1});
    const CheckRun run = runCheck(writing);
    QCOMPARE(run.notOk(), QStringList{"setTarget (camera): answers false, so the unit is not reached"});
    QCOMPARE(journal().filter("setGamma("), QStringList{});
    QVERIFY(!journal().filter("setVideoMode(").isEmpty());
}

void SdkCheckFaultsTest::showsTextOfTheDeviceEscaped()
{
    veltrix_simulator::Simulator::instance().set("configuration.communicationType",
                                                 std::string{"UART\n\x1b[31m\xc3\xa9\\"});
    const CheckRun run = runCheck(reading);
    const QStringList notOk{R"(getCommunicationType: answers "UART\n\x1b[31m\xc3\xa9\\"; "UART" is allowed)"};
    QCOMPARE(run.notOk(), notOk);
    QCOMPARE(journal().filter("getDeviceManager"), QStringList{});
}

void SdkCheckFaultsTest::reportsAMissingRoot()
{
    std::ostringstream out;
    QCOMPARE(sdk_check::check(nullptr, reading, out, [] { return false; }), sdk_check::somethingFails);
    QVERIFY(QString::fromStdString(out.str()).startsWith("not ok get_instance: answers null\n"));
}

PILOTEL_TEST_CLASS(SdkCheckFaultsTest)
#include "tst_sdk_check_faults.moc"
