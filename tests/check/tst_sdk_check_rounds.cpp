// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The check of an SDK library round after round: what deviates, what counts on which unit, when one is lost.
#include "checkrun.h"
#include "testclass.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstddef>

using veltrix_simulator::Fault;
using veltrix_simulator::Value;

namespace
{

const sdk_check::Options twoRounds{"SIM1", false, 2};
const sdk_check::Options fiveRounds{"SIM1", false, 5};

} // namespace

class SdkCheckRoundsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void comparesRepeatedReads_data();
    void comparesRepeatedReads();
    void skipsWhatNobodyAsksAUnitFor_data();
    void skipsWhatNobodyAsksAUnitFor();
    void saysSinceWhenAUnitIsSilent_data();
    void saysSinceWhenAUnitIsSilent();
    void takesRegionsThatAreOffForNoSilence();
    void takesARefusedSelectionForSilence();
};

void SdkCheckRoundsTest::init()
{
    veltrix_simulator::Simulator::instance().reset();
}

void SdkCheckRoundsTest::comparesRepeatedReads_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QStringList>("notOk");
    const auto row = [](const char *name, const Fault &fault, const QStringList &notOk) {
        QTest::addRow("%s", name) << fault << notOk;
    };
    // Each round asks the Blend Unit first, then the camera.
    row("another answer", {"getGamma", 4, 1, Answer{number(65537)}},
        {"getGamma (camera): answers 65537 in round 2; the first answer was 65536",
         "repeated reads (camera): 187 of 188 answers as before"});
    row("said once", {"getBprEnable", 4, 3, Answer{false}},
        {"getBprEnable (camera): answers false in round 2; the first answer was true",
         "repeated reads (camera): 186 of 188 answers as before"});
    row("a counter may move", {"getOperatingInfo", 4, 1, Answer{true, number(73416), number(412)}}, {});
    row("a temperature may move", {"getTemperatures", 4, 2, Answer{true, 300000.0, 300000.0}}, {});
    row("a temperature out of range", {"getTemperatures", 4, 1, Answer{true, 300000.0, 0.0}},
        {"getTemperatures (camera): fpga answers 0; 200000 to 400000 is allowed in round 2",
         "repeated reads (camera): 187 of 188 answers as before"});
    row("a refusal", {"getVideoMode", 9, 1},
        {"getVideoMode (Blend Unit): answers false in round 5; the first answer was 2",
         "repeated reads (Blend Unit): 55 of 56 answers as before"});
}

void SdkCheckRoundsTest::comparesRepeatedReads()
{
    QFETCH(const Fault, fault);
    QFETCH(const QStringList, notOk);
    veltrix_simulator::Simulator::instance().addFault(fault);
    QCOMPARE(runCheck(fiveRounds).notOk(), notOk);
}

void SdkCheckRoundsTest::skipsWhatNobodyAsksAUnitFor_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QString>("skipped");
    const auto row = [](const Fault &fault, const char *skipped) {
        QTest::addRow("%s", skipped) << fault << QString{skipped};
    };
    row({"getGamma", 1, 1, Answer{number(5)}},
        "getGamma (Blend Unit): answers 5; 32768 to 163840 is allowed; the program does not ask this unit for it");
    row({"getGamma", 3, 1, Answer{number(65537)}},
        "getGamma (Blend Unit): answers 65537 in round 2; the first answer was 65536; the program does not ask this unit for it");
    row({"getOperatingInfo", 3, 1, Answer{true, number(1), number(0)}},
        "getOperatingInfo (Blend Unit): startupCount answers 0; 1 or more is allowed in round 2; the program does not ask this unit for it");
    row({"getAhcGainLimitation", 1, 1, Answer{number(2), number(1), number(1)}},
        "getAhcGainLimitation (Blend Unit): answers 2; only 1 is success; the program does not ask this unit for it");
    row({"getVideoMode", 2, 1},
        "getVideoMode (camera): answers false; the program does not ask this unit for it");
    row({"getWarp", 5, 1}, "getWarp(1) (camera): answers false; the program does not ask this unit for it");
    row({"getZoomResolution", 2, 1, Answer{true, number(720), number(0)}},
        "getZoomResolution (camera): y answers 0; 1 to 10000 is allowed; the program does not ask this unit for it");
}

void SdkCheckRoundsTest::skipsWhatNobodyAsksAUnitFor()
{
    QFETCH(const Fault, fault);
    QFETCH(const QString, skipped);
    veltrix_simulator::Simulator::instance().addFault(fault);
    const CheckRun run = runCheck(twoRounds);
    QCOMPARE(run.skipped(), QStringList{skipped});
    QCOMPARE(run.notOk(), QStringList{});
    QCOMPARE(run.status, sdk_check::allHold);
    QVERIFY(run.lines.contains("ok     repeated reads (Blend Unit): 14 of 14 answers as before"));
    QVERIFY(run.lines.contains("ok     repeated reads (camera): 47 of 47 answers as before"));
}

void SdkCheckRoundsTest::saysSinceWhenAUnitIsSilent_data()
{
    QTest::addColumn<QStringList>("refused"); ///< Operations, by both units.
    QTest::addColumn<QStringList>("notOk");
    const QStringList end{
        "getGsk",   "getGfid",  "getGms",   "getTint", "getAhcGainLimitation", "getEdgeCorrection",
        "getRoiX1", "getRoiY1", "getRoiX2", "getRoiY2"};
    const QStringList wrongAtTheEnd{"getGsk (camera): answers 0; 1 to 3 is allowed",
                                    "getAhcGainLimitation (camera): answers false"};
    QTest::addRow("three faults, then an answer")
        << QStringList{"getOperatingInfo", "getSensorSerialNumber", "getTemperatures"}
        << QStringList{"getTemperatures (Blend Unit): sensor answers 0; 200000 to 400000 is allowed, "
                       "fpga answers 0; 200000 to 400000 is allowed",
                       "getSensorSerialNumber (camera): answers 0; 1 or more is allowed",
                       "getOperatingInfo (camera): startupCount answers 0; 1 or more is allowed",
                       "getTemperatures (camera): sensor answers 0; 200000 to 400000 is allowed, "
                       "fpga answers 0; 200000 to 400000 is allowed"};
    QTest::addRow("two faults at the end") << end << wrongAtTheEnd;
    QTest::addRow("three faults up to the end")
        << QStringList{"getGamma", "getClhe", "getColorLut", "getContrastType", "getLutTemporalFilter"} + end
        << QStringList{"getGamma (camera): answers 0; 32768 to 163840 is allowed"} + wrongAtTheEnd +
               QStringList{"presence (camera): every answer from getGamma in round 2 on is false or 0; "
                           "look at the power and the cable of the unit first"};
}

void SdkCheckRoundsTest::saysSinceWhenAUnitIsSilent()
{
    QFETCH(const QStringList, refused);
    QFETCH(const QStringList, notOk);
    for (const QString &operation : refused) {
        veltrix_simulator::Simulator::instance().addFault({operation.toStdString()});
    }
    const CheckRun run = runCheck(twoRounds);
    QCOMPARE(run.notOk(), notOk);
    QCOMPARE(run.status, sdk_check::somethingFails);
}

void SdkCheckRoundsTest::takesRegionsThatAreOffForNoSilence()
{
    // The first round ends with the zeros of three regions that are off, which are no silence.
    constexpr std::size_t firstCameraReadOfSecondRound{175};
    veltrix_simulator::Simulator::instance().addFault({"", firstCameraReadOfSecondRound});
    const CheckRun run = runCheck(twoRounds);
    QVERIFY(run.lines.contains("ok     getRoiY2(3) (camera): 0"));
    QCOMPARE(run.notOk().last(),
             QString{"presence (camera): every answer from getFirmwareVersions in round 2 on is false or 0; "
                     "look at the power and the cable of the unit first"});
}

void SdkCheckRoundsTest::takesARefusedSelectionForSilence()
{
    // The first selections are that at the opening and those of both units in the first round.
    const QString refused{"answers false, so the unit is not reached"};
    const QString gone{" on is false or 0; look at the power and the cable of the unit first"};
    QStringList expected;
    for (int round{2}; round <= 5; ++round) {
        expected.append("setTarget (Blend Unit): " + refused);
        expected.append("setTarget (camera): " + refused);
    }
    expected.append("presence (Blend Unit): every answer from setTarget in round 2" + gone);
    expected.append("presence (camera): every answer from setTarget in round 2" + gone);
    veltrix_simulator::Simulator::instance().addFault({"setTarget", 4});
    QCOMPARE(runCheck(fiveRounds).notOk(), expected);
}

PILOTEL_TEST_CLASS(SdkCheckRoundsTest)
#include "tst_sdk_check_rounds.moc"
