// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the bulk commands of the camera's settings: what an apply and a reset send and tell, in order.
#include "camerapage.h"
#include "testclass.h"

#include <QByteArray>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QObject>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstdint>
#include <map>
#include <string>

using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

namespace
{

/// Puts the settings of an apply, all different from those of the power-on state, into their controls.
void chooseSettings(TestWindow &test)
{
    test.child<QComboBox>("frameRateCB").setCurrentIndex(2);
    test.child<QComboBox>("VideoOutputCB").setCurrentIndex(3);
    test.child<QDoubleSpinBox>("gammaEdit").setValue(2.2);
    test.child<QComboBox>("contrastTypeEdit").setCurrentIndex(1);
    test.child<QComboBox>("lutColorEdit").setCurrentIndex(7);
    test.child<QDoubleSpinBox>("clheEdit").setValue(4321);
    test.child<QSpinBox>("TempoFilterSpin").setValue(8);
    test.child<QSpinBox>("AhcBlackGainLimSpin").setValue(13);
    test.child<QSpinBox>("AhcWhiteGainLimSpin").setValue(97);
    test.child<QComboBox>("EdgeCorrectionCB").setCurrentIndex(2);
    test.child<QDoubleSpinBox>("sharpeningGainEdit").setValue(2.9);
    test.child<QDoubleSpinBox>("SharpeningTHEdit").setValue(33.3);
    test.takeLog();
    test.simulator.clearJournal();
}

QStringList appliedLines(const char *outcome)
{
    QStringList lines;
    for (const char *const action :
         {"Set FRAME RATE value", "Set VIDEO OUTPUT value", "Set GAMMA value", "Configure contrast type",
          "Set COLOR LUT value", "Set CLHE value", "Set LUT TEMPORAL FILTER value",
          "Set AHC GAINS LIMITATION values", "Configure EDGE CORRECTION"}) {
        lines.append(QStringLiteral("%1 %2").arg(action, outcome));
    }
    return QStringList{"Start applying camera parameters"} + lines +
           QStringList{"End applying camera parameters"};
}

/// The calls without the reads of the configuration's defaults.
QStringList withoutDefaults(const QStringList &calls)
{
    QStringList rest;
    for (const QString &call : calls) {
        if (!call.startsWith("getDefault")) {
            rest.append(call);
        }
    }
    return rest;
}

/// Defaults that all differ from the camera's power-on state, all boxes and buttons included.
void changeDefaults(Simulator &simulator)
{
    const std::map<std::string, Value> defaults{
        {"FrameRate", std::int64_t{30}},
        {"Gamma", 2.2},
        {"Clhe", 3000.5},
        {"SharpeningGain", 123.5},
        {"Roi0IncX1", 10.9},
        {"Roi0IncY1", 20.9},
        {"Roi0IncX2", 600.9},
        {"Roi0IncY2", 400.9},
        {"Roi0ExcEnable", true},
        {"Roi0ExcX1", 11.9},
        {"Roi0ExcY1", 21.9},
        {"Roi0ExcX2", 601.9},
        {"Roi0ExcY2", 401.9},
        {"Roi1IncEnable", true},
        {"Roi1IncX1", 12.9},
        {"Roi1IncY1", 22.9},
        {"Roi1IncX2", 602.9},
        {"Roi1IncY2", 402.9},
        {"Roi1ExcEnable", true},
        {"Roi1ExcX1", 13.9},
        {"Roi1ExcY1", 23.9},
        {"Roi1ExcX2", 603.9},
        {"Roi1ExcY2", 403.9},
        {"Polarity", true},
        {"ContrastType", std::int64_t{1}},
        {"ColorLut", std::int64_t{4}},
        {"HorizontalFlip", true},
        {"VerticalFlip", true},
        {"VignettingCorrection", false},
        {"ColumnCorrection", false},
        {"EdgeCorrectionType", std::int64_t{2}},
        {"SharpeningGainValue", std::int64_t{100}},
        {"SharpeningThreshold", std::int64_t{50}},
        {"VideoOutput", std::int64_t{3}},
        {"SdiOutput", false},
        {"ParallelOutput", true},
        {"MipiOutput", false},
        {"TempoFilter", std::int64_t{7}},
        {"AhcBlackGainLimit", std::int64_t{11}},
        {"AhcWhiteGainLimit", std::int64_t{66}},
    };
    for (const auto &[name, value] : defaults) {
        simulator.set("configuration.default" + name, value);
    }
}

/// The commands and lines of a reset to the changed defaults, all answered alike.
QStringList resetToChangedDefaults(const QString &result, const QString &outcome)
{
    const QString calls{R"(get_instance() -> sdk
getConfiguration() -> configuration
getFrameRate() -> @60
setFrameRate(30) -> $
log(2, "Set FRAME RATE value #")
setRoiX1(11, 2, false, true, false) -> $
setRoiX2(601, 2, false, true, false) -> $
setRoiY1(21, 2, false, true, false) -> $
setRoiY2(401, 2, false, true, false) -> $
setRoiX1(12, 1, true, true, false) -> $
setRoiX2(602, 1, true, true, false) -> $
setRoiY1(22, 1, true, true, false) -> $
setRoiY2(402, 1, true, true, false) -> $
setRoiX1(13, 3, true, true, true) -> $
setRoiX2(603, 3, true, true, true) -> $
setRoiY1(23, 3, true, true, true) -> $
setRoiY2(403, 3, true, true, true) -> $
configureContrastType(1) -> $
log(2, "Configure contrast type #")
configureContrastType(0) -> $
log(2, "Configure contrast type #")
setColorLut(4) -> $
log(2, "Set COLOR LUT value #")
configureEdgeCorrection(2, 12, 20) -> $
log(2, "Configure EDGE CORRECTION #")
setVideoOutput(3) -> $
log(2, "Set VIDEO OUTPUT value #")
log(2, "Start applying camera parameters")
getFrameRate() -> @30
setVideoOutput(3) -> $
log(2, "Set VIDEO OUTPUT value #")
setGamma(144179) -> $
log(2, "Set GAMMA value #")
configureContrastType(0) -> $
log(2, "Configure contrast type #")
setColorLut(4) -> $
log(2, "Set COLOR LUT value #")
setClhe(3001) -> $
log(2, "Set CLHE value #")
setLutTemporalFilter(7) -> $
log(2, "Set LUT TEMPORAL FILTER value #")
setAhcGainLimitation(11, 66) -> $
log(2, "Set AHC GAINS LIMITATION values #")
configureEdgeCorrection(2, 100, 50) -> $
log(2, "Configure EDGE CORRECTION #")
get_instance() -> sdk
getConfiguration() -> configuration
log(2, "End applying camera parameters"))"};
    QString answered{calls};
    answered.replace('$', result).replace('#', outcome);
    if (outcome == "OK") {
        answered.remove('@');
    } else {
        // A refused read answers zero, so the rate is sent once more with the apply.
        answered.replace("@60", "0");
        answered.replace("@30", "0\nsetFrameRate(30) -> false\nlog(2, \"Set FRAME RATE value KO\")");
    }
    return answered.split('\n');
}

} // namespace

class ApplyAndResetTest : public QObject
{
    Q_OBJECT

private slots:
    void applySendsEverySettingInOrder();
    void applyLeavesOutTheRateThatTheCameraRunsAt();
    void applySendsNoSelectionAs255();
    void applyGoesOnAfterEveryRefusal();
    void applyRemembersTheLastResult_data();
    void applyRemembersTheLastResult();
    void resetLoadsTheDefaultsAndApplies();
    void resetGoesOnAfterEveryRefusal();
    void resetToWhatIsShownOnlyApplies();
    void resetSendsZerosForTheRegionsThatAreOffByDefault();
};

void ApplyAndResetTest::applySendsEverySettingInOrder()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    chooseSettings(test);
    test.simulator.set("camera.frameRate", std::int64_t{50});

    test.invoke("ApplyParamsUser");
    QCOMPARE(test.takeCallsAndRecords(), (QStringList{
                                             "log(2, \"Start applying camera parameters\")",
                                             "getFrameRate() -> 50",
                                             "setFrameRate(30) -> true",
                                             "log(2, \"Set FRAME RATE value OK\")",
                                             "setVideoOutput(3) -> true",
                                             "log(2, \"Set VIDEO OUTPUT value OK\")",
                                             "setGamma(144179) -> true",
                                             "log(2, \"Set GAMMA value OK\")",
                                             "configureContrastType(1) -> true",
                                             "log(2, \"Configure contrast type OK\")",
                                             "setColorLut(7) -> true",
                                             "log(2, \"Set COLOR LUT value OK\")",
                                             "setClhe(4321) -> true",
                                             "log(2, \"Set CLHE value OK\")",
                                             "setLutTemporalFilter(8) -> true",
                                             "log(2, \"Set LUT TEMPORAL FILTER value OK\")",
                                             "setAhcGainLimitation(13, 97) -> true",
                                             "log(2, \"Set AHC GAINS LIMITATION values OK\")",
                                             "configureEdgeCorrection(2, 2, 33) -> true",
                                             "log(2, \"Configure EDGE CORRECTION OK\")",
                                             "get_instance() -> sdk",
                                             "getConfiguration() -> configuration",
                                             "log(2, \"End applying camera parameters\")",
                                         }));
    QCOMPARE(test.takeLog(), appliedLines("OK"));
    QVERIFY(test.lastCommandOk());
}

void ApplyAndResetTest::applyLeavesOutTheRateThatTheCameraRunsAt()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    chooseSettings(test);

    test.invoke("ApplyParamsUser");
    const QStringList calls{test.takeCalls()};
    QCOMPARE(calls.mid(0, 2), (QStringList{"getFrameRate() -> 30", "setVideoOutput(3) -> true"}));
    QCOMPARE(calls.size(), 11);
    QStringList lines{appliedLines("OK")};
    lines.removeAt(1);
    QCOMPARE(test.takeLog(), lines);
}

void ApplyAndResetTest::applySendsNoSelectionAs255()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    for (const char *const name :
         {"frameRateCB", "VideoOutputCB", "contrastTypeEdit", "lutColorEdit", "EdgeCorrectionCB"}) {
        test.child<QComboBox>(name).setCurrentIndex(-1);
    }
    test.takeCalls();

    test.invoke("ApplyParamsUser");
    QCOMPARE(commandsOf(test.takeCalls()),
             (QStringList{"setFrameRate(0) -> false", "setVideoOutput(255) -> false",
                          "setGamma(65536) -> true", "configureContrastType(255) -> false",
                          "setColorLut(255) -> false", "setClhe(2000) -> true",
                          "setLutTemporalFilter(2) -> true", "setAhcGainLimitation(20, 80) -> true",
                          "configureEdgeCorrection(255, 64, 20) -> false"}));
}

void ApplyAndResetTest::applyGoesOnAfterEveryRefusal()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    chooseSettings(test);
    test.simulator.addFault({""});

    test.invoke("ApplyParamsUser");
    QCOMPARE(
        test.takeCalls(),
        (QStringList{"getFrameRate() -> 0", "setFrameRate(30) -> false", "setVideoOutput(3) -> false",
                     "setGamma(144179) -> false", "configureContrastType(1) -> false",
                     "setColorLut(7) -> false", "setClhe(4321) -> false", "setLutTemporalFilter(8) -> false",
                     "setAhcGainLimitation(13, 97) -> false", "configureEdgeCorrection(2, 2, 33) -> false",
                     "get_instance() -> sdk", "getConfiguration() -> configuration"}));
    QCOMPARE(test.takeLog(), appliedLines("KO"));
    QVERIFY(!test.lastCommandOk());
}

void ApplyAndResetTest::applyRemembersTheLastResult_data()
{
    QTest::addColumn<QByteArray>("refused");
    QTest::addColumn<bool>("remembered");
    QTest::newRow("the last command refused") << QByteArray{"configureEdgeCorrection"} << false;
    QTest::newRow("an earlier command refused") << QByteArray{"setAhcGainLimitation"} << true;
}

void ApplyAndResetTest::applyRemembersTheLastResult()
{
    QFETCH(const QByteArray, refused);
    QFETCH(const bool, remembered);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.addFault({refused.toStdString()});
    test.invoke("ApplyParamsUser");
    QCOMPARE(test.lastCommandOk(), remembered);
}

void ApplyAndResetTest::resetLoadsTheDefaultsAndApplies()
{
    TestWindow test{changeDefaults};
    openCameraPage(test, "LutSection");

    test.click("resetParamButtonUser");
    QCOMPARE(withoutDefaults(test.takeCallsAndRecords()), resetToChangedDefaults("true", "OK"));
    QCOMPARE(
        test.takeLog(),
        (QStringList{"Set FRAME RATE value OK", "Configure contrast type OK", "Configure contrast type OK",
                     "Set COLOR LUT value OK", "Configure EDGE CORRECTION OK", "Set VIDEO OUTPUT value OK",
                     "Start applying camera parameters", "Set VIDEO OUTPUT value OK", "Set GAMMA value OK",
                     "Configure contrast type OK", "Set COLOR LUT value OK", "Set CLHE value OK",
                     "Set LUT TEMPORAL FILTER value OK", "Set AHC GAINS LIMITATION values OK",
                     "Configure EDGE CORRECTION OK", "End applying camera parameters"}));
    QVERIFY(test.lastCommandOk());
}

void ApplyAndResetTest::resetGoesOnAfterEveryRefusal()
{
    TestWindow test{changeDefaults};
    openCameraPage(test, "LutSection");
    test.simulator.addFault({""});

    test.click("resetParamButtonUser");
    QCOMPARE(withoutDefaults(test.takeCallsAndRecords()), resetToChangedDefaults("false", "KO"));
    QCOMPARE(test.takeLog(), (QStringList{"Set FRAME RATE value KO", "Configure contrast type KO",
                                          "Configure contrast type KO", "Set COLOR LUT value KO",
                                          "Configure EDGE CORRECTION KO", "Set VIDEO OUTPUT value KO"} +
                              appliedLines("KO")));
    QVERIFY(!test.lastCommandOk());
}

void ApplyAndResetTest::resetToWhatIsShownOnlyApplies()
{
    TestWindow test;
    openCameraPage(test, "LutSection");

    test.click("resetParamButtonUser");
    QCOMPARE(withoutDefaults(test.takeCalls()),
             (QStringList{
                 "get_instance() -> sdk", "getConfiguration() -> configuration", "getFrameRate() -> 60",
                 "setVideoOutput(8) -> true", "setGamma(65536) -> true", "configureContrastType(0) -> true",
                 "setColorLut(0) -> true", "setClhe(2000) -> true", "setLutTemporalFilter(2) -> true",
                 "setAhcGainLimitation(20, 80) -> true", "configureEdgeCorrection(0, 64, 20) -> true",
                 "get_instance() -> sdk", "getConfiguration() -> configuration"}));
    QStringList lines{appliedLines("OK")};
    lines.removeAt(1);
    QCOMPARE(test.takeLog(), lines);
}

void ApplyAndResetTest::resetSendsZerosForTheRegionsThatAreOffByDefault()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    for (const char *const box : {"roi1IncEnable", "roi0ExcEnable", "roi1ExcEnable"}) {
        test.click(box);
    }
    test.takeCalls();

    test.click("resetParamButtonUser");
    QCOMPARE(
        test.takeCalls().filter("setRoi"),
        (QStringList{
            "setRoiX1(0, 2, true, false, true) -> true", "setRoiX2(0, 2, true, false, true) -> true",
            "setRoiY1(0, 2, true, false, true) -> true", "setRoiY2(0, 2, true, false, true) -> true",
            "setRoiX1(0, 1, false, false, true) -> true", "setRoiX2(0, 1, false, false, true) -> true",
            "setRoiY1(0, 1, false, false, true) -> true", "setRoiY2(0, 1, false, false, true) -> true",
            "setRoiX1(0, 3, false, false, false) -> true", "setRoiX2(0, 3, false, false, false) -> true",
            "setRoiY1(0, 3, false, false, false) -> true", "setRoiY2(0, 3, false, false, false) -> true"}));
    QCOMPARE(test.enabledOf({"Roi1IncX1", "Roi0ExcX1", "Roi1ExcX1"}), QStringList{});
}

PILOTEL_TEST_CLASS(ApplyAndResetTest)
#include "tst_apply_and_reset.moc"
