// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the camera's read as a whole: its calls and lines in order, what it shows and what it sends back.
#include "camerapage.h"
#include "changedcamera.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVariant>
#include <QWidget>

class CameraReadingTest : public QObject
{
    Q_OBJECT

private slots:
    void callsAndTellsInOrder();
    void sendsNothingBackWhenNoControlChanges();
    void buttonReadsTheCameraAfterTheBlendUnit();
    void showsWhatItReads_data();
    void showsWhatItReads();
};

void CameraReadingTest::callsAndTellsInOrder()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    changeCamera(test.simulator);

    QVERIFY(readCamera(test));
    QCOMPARE(test.takeCallsAndRecords(), journalOf(changedCameraRead()));
    QCOMPARE(test.takeLog(), logOf(changedCameraRead()));
}

void CameraReadingTest::sendsNothingBackWhenNoControlChanges()
{
    TestWindow test{changeCamera};
    openCameraPage(test, "LutSection");
    // Connecting has sent regions back.
    changeCamera(test.simulator);

    QVERIFY(readCamera(test));
    QCOMPARE(test.takeCallsAndRecords(), journalOf(withoutWriteBacks(changedCameraRead())));
    QCOMPARE(test.takeLog(), logOf(withoutWriteBacks(changedCameraRead())));
}

void CameraReadingTest::buttonReadsTheCameraAfterTheBlendUnit()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    changeCamera(test.simulator);

    test.click("readParamButtonUser");
    const QStringList calls{test.takeCallsAndRecords()};
    const QStringList switched{
        "setTarget(1) -> true",
        "getTemperatures() -> true {sensorMillikelvin=310150, fpgaMillikelvin=273000}",
        "log(2, \"target correctly changed\")",
    };
    const QStringList expected{switched + journalOf(changedCameraRead()) + switched};
    QCOMPARE(calls.mid(calls.size() - expected.size()), expected);
    QCOMPARE(calls.first(), QString{"setTarget(0) -> true"});
}

void CameraReadingTest::showsWhatItReads_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *widget, const char *property, const QVariant &value) {
        QTest::addRow("%s.%s", widget, property) << widget << QByteArray{property} << value;
    };
    row("VignettingCorrectionButton", "checked", false);
    row("VignettingCorrectionButton", "text", "Vignetting Correction: Deactivated");
    row("ColumnCorrectionButton", "checked", false);
    row("ColumnCorrectionButton", "text", "Column Correction: Deactivated");
    row("sdiOutputButton", "checked", false);
    row("sdiOutputButton", "text", "BT656/SDI Output: Deactivated");
    row("parallelOutputButton", "checked", true);
    row("parallelOutputButton", "text", "Parallel Output: Activated");
    row("mipiOutputButton", "checked", false);
    row("mipiOutputButton", "text", "MIPI Output: Deactivated");
    row("VideoOutputCB", "currentIndex", 5);
    row("frameRateCB", "currentIndex", 2);
    row("horizontalFlipButton", "checked", true);
    row("horizontalFlipButton", "text", "Horizontal Flip: Activated");
    row("polarityButton", "checked", true);
    row("polarityButton", "text", "Invert Polarity: Activated");
    row("gammaSlider", "value", 17);
    row("gammaEdit", "value", 2.2);
    row("Roi0IncX1", "value", 100);
    row("Roi0IncY1", "value", 110);
    row("Roi0IncX2", "value", 120);
    row("Roi0IncY2", "value", 130);
    row("roi0ExcEnable", "checked", true);
    row("Roi0ExcX1", "value", 101);
    row("Roi0ExcY1", "value", 111);
    row("Roi0ExcX2", "value", 121);
    row("Roi0ExcY2", "value", 131);
    row("roi1IncEnable", "checked", true);
    row("Roi1IncX1", "value", 102);
    row("Roi1IncY1", "value", 112);
    row("Roi1IncX2", "value", 122);
    row("Roi1IncY2", "value", 132);
    row("roi1ExcEnable", "checked", true);
    row("Roi1ExcX1", "value", 103);
    row("Roi1ExcY1", "value", 113);
    row("Roi1ExcX2", "value", 123);
    row("Roi1ExcY2", "value", 133);
    row("clheSlider", "value", 4321);
    row("clheEdit", "value", 4321.0);
    row("lutColorEdit", "currentIndex", 3);
    row("contrastTypeEdit", "currentIndex", 1);
    row("TempoFilterSpin", "value", 4);
    row("TempoFilterSlider", "value", 4);
    row("AhcBlackGainLimSpin", "value", 31);
    row("AhcBlackGainLimSlider", "value", 31);
    row("AhcWhiteGainLimSpin", "value", 62);
    row("AhcWhiteGainLimSlider", "value", 62);
    row("FpgaTempTextEdit", "plainText", "0C");
    row("SensorTempTextEdit", "plainText", "37.15C");
    row("FusionFpgaTempTextEdit", "plainText", "48.55C");
    row("EdgeCorrectionCB", "currentIndex", 1);
    row("sharpeningGainSlider", "value", 30);
    row("sharpeningGainEdit", "value", 3.0);
    row("SharpeningTHSlider", "value", 50);
    row("SharpeningTHEdit", "value", 5.0);
}

void CameraReadingTest::showsWhatItReads()
{
    QFETCH(const QString, widget);
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, value);
    TestWindow test;
    openCameraPage(test, "LutSection");
    changeCamera(test.simulator);

    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QWidget>(widget).property(property), value);
}

PILOTEL_TEST_CLASS(CameraReadingTest)
#include "tst_camera_reading.moc"
