// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the read of the whole Blend Unit.
#include "filledblendunit.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QByteArray>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QObject>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstdint>

namespace
{

const QStringList &completeLog()
{
    static const QStringList lines{
        "Start reading Fusion parameters",
        "RISC-V version = 1.2.0 Beta4",
        "FPGA version = 2.a.0.1",
        "Serial number = 4000000001",
        "Visible mode activated",
        "Fusion ZOOM factor value = 1.5",
        "Fusion X zoom resolution = 1024",
        "Fusion Y zoom resolution = 768",
        "Fusion X zoom center = 300",
        "Fusion Y zoom center = 200",
        "Visible AGC target = 42",
        "Visible AGC threshold = 11",
        "Visible AGC filter coefficient = 22",
        "Visible CLHE threshold = 1234",
        "Visible filter coefficient = 33",
        "End reading Fusion parameters",
    };
    return lines;
}

QStringList operationsOf(const QStringList &calls)
{
    QStringList names;
    for (const QString &call : calls) {
        names.append(call.section('(', 0, 0));
    }
    return names;
}

} // namespace

class BlendUnitReadingTest : public QObject
{
    Q_OBJECT

private slots:
    void readsEverythingInOrder();
    void showsWhatItReads();
    void builtInTestWord_data();
    void builtInTestWord();
    void temperature_data();
    void temperature();
    void refusedOperationIsToldAndTheReadGoesOn_data();
    void refusedOperationIsToldAndTheReadGoesOn();
    void differentModesAreSentBackWithinTheRead();
};

void BlendUnitReadingTest::readsEverythingInOrder()
{
    TestWindow test;
    test.beConnected();
    fillBlendUnit(test.simulator);

    QVERIFY(readBlendUnit(test));

    const QStringList expected{
        R"(log(2, "Start reading Fusion parameters"))",
        "getFirmwareVersions() -> true {processor=4612, fpga=10753}",
        "startReading() -> true",
        R"(log(2, "RISC-V version = 1.2.0 Beta4\nFPGA version = 2.a.0.1"))",
        "getSerialNumber() -> 4000000001",
        R"(log(2, "Serial number = 4000000001"))",
        "getVideoMode() -> true {mode=1}",
        R"(log(2, "Visible mode activated"))",
        "getZoomConfig() -> true {factor=1.5, xCenter=300, yCenter=200, method=0}",
        "getZoomResolution() -> true {x=1024, y=768}",
        R"(log(2, "Fusion ZOOM factor value = 1.5"))",
        R"(log(2, "Fusion X zoom resolution = 1024"))",
        R"(log(2, "Fusion Y zoom resolution = 768"))",
        R"(log(2, "Fusion X zoom center = 300"))",
        R"(log(2, "Fusion Y zoom center = 200"))",
        "getVisibleAgc() -> true {target=42, threshold=11, filterCoefficient=22}",
        R"(log(2, "Visible AGC target = 42"))",
        R"(log(2, "Visible AGC threshold = 11"))",
        R"(log(2, "Visible AGC filter coefficient = 22"))",
        "getVisibleClhe() -> true {threshold=1234, filterCoefficient=33}",
        R"(log(2, "Visible CLHE threshold = 1234"))",
        R"(log(2, "Visible filter coefficient = 33"))",
        "getStartingMode() -> true {mode=2}",
        "getTemperatures() -> true {sensorMillikelvin=300950, fpgaMillikelvin=310150}",
        R"(log(2, "End reading Fusion parameters"))",
        "getBitStatus() -> 48879",
    };
    QCOMPARE(test.takeCallsAndRecords(), expected);
    QCOMPARE(test.takeLog(), completeLog());
}

void BlendUnitReadingTest::showsWhatItReads()
{
    TestWindow test;
    test.beConnected();
    fillBlendUnit(test.simulator);

    QVERIFY(readBlendUnit(test));

    QVERIFY(test.child<QAbstractButton>("BU_VISIBLE_MODE_PB").isChecked());
    QVERIFY(!test.child<QAbstractButton>("BU_FUSION_MODE_PB").isChecked());
    QCOMPARE(test.child<QDoubleSpinBox>("FusionZoomFactorSB").value(), 1.5);
    QCOMPARE(test.child<QSpinBox>("VisAgcTargetSB").value(), 42);
    QCOMPARE(test.child<QSpinBox>("VisAgcTHSB").value(), 11);
    QCOMPARE(test.child<QSpinBox>("VisAgcCoeffSB").value(), 22);
    QCOMPARE(test.child<QSpinBox>("VisClheTHSB").value(), 1234);
    QCOMPARE(test.child<QSpinBox>("VisClheCoeffSB").value(), 33);
    QCOMPARE(test.child<QComboBox>("startingModeCB").currentIndex(), 2);
    QCOMPARE(textOf(test, "FusionFpgaTempTextEdit"), QString{"37.15C"});
    QCOMPARE(textOf(test, "BitTextEdit"), QString{"0xbeef"});
}

void BlendUnitReadingTest::builtInTestWord_data()
{
    QTest::addColumn<qint64>("word");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *text, qint64 word) {
        QTest::newRow(text) << word << QString{text};
    };
    row("0x0", 0);
    row("0x1", 1);
    row("0xa", 10);
    row("0x10", 16);
    row("0xffffffff", 0xFFFFFFFF);
}

void BlendUnitReadingTest::builtInTestWord()
{
    QFETCH(const qint64, word);
    QFETCH(const QString, text);
    TestWindow test;
    test.beConnected();
    test.simulator.set("blendUnit.bitStatus", std::int64_t{word});

    // The second text replaces the first.
    QVERIFY(readBlendUnit(test));
    QVERIFY(readBlendUnit(test));

    QCOMPARE(textOf(test, "BitTextEdit"), text);
}

void BlendUnitReadingTest::temperature_data()
{
    QTest::addColumn<double>("millikelvin");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *text, double millikelvin) {
        QTest::newRow(text) << millikelvin << QString{text};
    };
    row("0C", 273000.0);
    row("37.15C", 310150.0);
    row("41.5C", 314500.0);
    row("-20C", 253000.0);
    row("-273C", 0.0);
    row("nanC", qQNaN());
    row("infC", qInf());
}

void BlendUnitReadingTest::temperature()
{
    QFETCH(const double, millikelvin);
    QFETCH(const QString, text);
    TestWindow test;
    test.beConnected();
    test.simulator.set("blendUnit.temperatures.fpgaMillikelvin", millikelvin);

    QVERIFY(readBlendUnit(test));
    QVERIFY(readBlendUnit(test));

    QCOMPARE(textOf(test, "FusionFpgaTempTextEdit"), text);
}

void BlendUnitReadingTest::refusedOperationIsToldAndTheReadGoesOn_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QStringList>("missing");
    QTest::addColumn<QStringList>("instead");
    QTest::addColumn<QString>("temperature");
    QTest::addColumn<QString>("bits");
    QTest::addColumn<bool>("lastCommandOk");

    struct Row
    {
        const char *operation;
        QStringList missing;
        QStringList instead;
        QString temperature{"37.15C"};
        QString bits{"0xbeef"};
        bool lastCommandOk{true};
    };
    // wasLastCommandOk() tells of getStartingMode: nothing that is read after it notes its outcome.
    const Row rows[]{
        {"startReading", {}, {}},
        {"getSerialNumber", {"Serial number = 4000000001"}, {"Serial number = 0"}},
        {"getVideoMode", {"Visible mode activated"}, {"Could not get current video mode"}},
        {"getZoomConfig",
         completeLog().mid(5, 5),
         {"Fusion ZOOM factor value = 0", "Fusion X zoom resolution = 1024", "Fusion Y zoom resolution = 768",
          "Fusion X zoom center = 0", "Fusion Y zoom center = 0"}},
        {"getZoomResolution",
         {"Fusion X zoom resolution = 1024", "Fusion Y zoom resolution = 768"},
         {"Fusion X zoom resolution = 0", "Fusion Y zoom resolution = 0"}},
        {"getVisibleAgc",
         {"Visible AGC target = 42", "Visible AGC threshold = 11", "Visible AGC filter coefficient = 22"},
         {"Could not get visible AGC configuration"}},
        {"getVisibleClhe",
         {"Visible CLHE threshold = 1234", "Visible filter coefficient = 33"},
         {"Could not get visible CLHE configuration"}},
        {"getStartingMode", {}, {}, "37.15C", "0xbeef", false},
        {"getTemperatures", {}, {}, "-273C"},
        {"getBitStatus", {}, {}, "37.15C", "0x0"},
    };
    for (const Row &row : rows) {
        QTest::newRow(row.operation) << QByteArray{row.operation} << row.missing << row.instead
                                     << row.temperature << row.bits << row.lastCommandOk;
    }
}

void BlendUnitReadingTest::refusedOperationIsToldAndTheReadGoesOn()
{
    QFETCH(const QByteArray, operation);
    QFETCH(const QStringList, missing);
    QFETCH(const QStringList, instead);
    QFETCH(const QString, temperature);
    QFETCH(const QString, bits);
    QFETCH(const bool, lastCommandOk);
    TestWindow test;
    test.beConnected();
    fillBlendUnit(test.simulator);
    test.simulator.addFault({operation.toStdString()});

    QVERIFY(readBlendUnit(test));

    QStringList expected{completeLog()};
    if (!missing.isEmpty()) {
        const int place{expected.indexOf(missing.first())};
        expected = expected.mid(0, place) + instead + expected.mid(place + missing.size());
    }
    QCOMPARE(test.takeLog(), expected);
    const QStringList everyOperation{"getFirmwareVersions", "startReading",   "getSerialNumber",
                                     "getVideoMode",        "getZoomConfig",  "getZoomResolution",
                                     "getVisibleAgc",       "getVisibleClhe", "getStartingMode",
                                     "getTemperatures",     "getBitStatus"};
    QCOMPARE(operationsOf(test.takeCalls()), everyOperation);
    QCOMPARE(textOf(test, "FusionFpgaTempTextEdit"), temperature);
    QCOMPARE(textOf(test, "BitTextEdit"), bits);
    QCOMPARE(test.lastCommandOk(), lastCommandOk);
}

void BlendUnitReadingTest::differentModesAreSentBackWithinTheRead()
{
    TestWindow test;
    test.beConnected();
    fillBlendUnit(test.simulator);
    test.simulator.set("blendUnit.zoom.method", 1);
    test.simulator.set("blendUnit.startingMode", 0);

    QVERIFY(readBlendUnit(test));

    const QStringList calls{
        "getFirmwareVersions() -> true {processor=4612, fpga=10753}",
        "startReading() -> true",
        "getSerialNumber() -> 4000000001",
        "getVideoMode() -> true {mode=1}",
        "getZoomConfig() -> true {factor=1.5, xCenter=300, yCenter=200, method=1}",
        "getZoomResolution() -> true {x=1024, y=768}",
        "getZoomConfig() -> true {factor=1.5, xCenter=300, yCenter=200, method=1}",
        "configureZoom({factor=1.5, xCenter=300, yCenter=200, method=0}) -> true",
        "getVisibleAgc() -> true {target=42, threshold=11, filterCoefficient=22}",
        "getVisibleClhe() -> true {threshold=1234, filterCoefficient=33}",
        "getStartingMode() -> true {mode=0}",
        "setStartingMode(0) -> true",
        "getTemperatures() -> true {sensorMillikelvin=300950, fpgaMillikelvin=310150}",
        "getBitStatus() -> 48879",
    };
    QCOMPARE(test.takeCalls(), calls);
    QStringList log{completeLog()};
    log.insert(log.indexOf("End reading Fusion parameters"), "Blend unit starting mode set");
    log.insert(log.indexOf("Fusion ZOOM factor value = 1.5"), "Configure Zoom OK");
    QCOMPARE(test.takeLog(), log);
}

PILOTEL_TEST_CLASS(BlendUnitReadingTest)
#include "tst_blend_unit_reading.moc"
