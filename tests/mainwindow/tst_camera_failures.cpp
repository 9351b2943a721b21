// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the camera's read when the camera does not answer, or not everything.
#include "camerapage.h"
#include "changedcamera.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QByteArray>
#include <QObject>
#include <QPlainTextEdit>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVariant>
#include <QWidget>

namespace
{

/// Every named widget of the window but the log, with what it shows and whether it is enabled.
QStringList shownOf(const TestWindow &test)
{
    const auto &window = test.child<QWidget>("centralWidget");
    QStringList shown;
    for (const QWidget *const widget : window.findChildren<QWidget *>()) {
        const QString name{widget->objectName()};
        if (name.isEmpty() || name.startsWith("qt_") || name == "logView") {
            continue;
        }
        for (const char *const property : {"text", "checked", "currentIndex", "value", "plainText"}) {
            const QVariant value{widget->property(property)};
            if (value.isValid()) {
                shown.append(name + '.' + property + '=' + value.toString());
            }
        }
        shown.append(name + (widget->isEnabledTo(&window) ? " is enabled" : " is disabled"));
    }
    return shown;
}

} // namespace

class CameraFailuresTest : public QObject
{
    Q_OBJECT

private slots:
    void bothVersionWordsZeroEndTheRead();
    void withoutADeviceOnlyABoxIsShown();
    void afterDisconnectingOnlyABoxIsShown();
    void aRefusalDoesNotEndTheRead_data();
    void aRefusalDoesNotEndTheRead();
    void aRefusedSettingIsShownAsOff_data();
    void aRefusedSettingIsShownAsOff();
    void aSilentCameraIsReadToTheEnd();
};

void CameraFailuresTest::bothVersionWordsZeroEndTheRead()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    changeCamera(test.simulator);
    test.simulator.set("camera.firmwareVersions.processor", 0);
    test.simulator.set("camera.firmwareVersions.fpga", 0);
    const QStringList before{shownOf(test)};
    QVERIFY(before.contains("gammaEdit.value=1"));

    test.boxes.expect();
    QVERIFY(!readCamera(test));
    QCOMPARE(test.boxes.takeShown(),
             QStringList{"window icon \"Camera not connected\" \"Unable to connect to SIM1\" [OK]"});
    const QStringList expected{
        "log(2, \"Start reading camera parameters\")",
        "getFirmwareVersions() -> true {processor=0, fpga=0}",
        "log(2, \"End Read camera parameters : COM Error\")",
    };
    QCOMPARE(test.takeCallsAndRecords(), expected);
    QCOMPARE(shownOf(test), before);
}

void CameraFailuresTest::withoutADeviceOnlyABoxIsShown()
{
    TestWindow test;
    test.takeCallsAndRecords();

    test.boxes.expect();
    QVERIFY(!readCamera(test));
    QCOMPARE(test.boxes.takeShown(),
             QStringList{"window icon \"Camera not connected\" \"Unable to connect to \" [OK]"});
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void CameraFailuresTest::afterDisconnectingOnlyABoxIsShown()
{
    TestWindow test;
    test.beConnected();
    test.click("disconnectDeviceButton");
    test.takeCallsAndRecords();

    test.boxes.expect();
    QVERIFY(!readCamera(test));
    QCOMPARE(test.boxes.takeShown(),
             QStringList{"window icon \"Camera not connected\" \"Unable to connect to SIM1\" [OK]"});
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void CameraFailuresTest::aRefusalDoesNotEndTheRead_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QStringList>("linesGone");
    QTest::addColumn<QStringList>("linesInstead");
    QTest::addColumn<QStringList>("commands");
    const auto row = [](const char *operation, const QStringList &linesGone, const QStringList &linesInstead,
                        const QStringList &commands = {}) {
        QTest::newRow(operation) << QByteArray{operation} << linesGone << linesInstead << commands;
    };
    row("startReading", {}, {});
    row("getSerialNumber", {"Serial number = 4100200300"}, {"Serial number = 0"});
    row("getSensorSerialNumber", {"Sensor serial number = 3000000001"}, {"Sensor serial number = 0"});
    row("getOperatingInfo", {"Operating time = 123456 min", "Startup number = 789"},
        {"Operating time = 0 min", "Startup number = 0"});
    row("getVignettingCorrection", {}, {});
    row("getColumnCorrection", {}, {});
    row("getSdiOutput", {}, {});
    row("getParallelOutput", {"Parallel output value = Enabled"}, {"Parallel output value = Disabled"});
    row("getMipiOutput", {}, {});
    row("getVideoOutput", {"Video output = LUT CORRECTION"},
        {"Set VIDEO OUTPUT value OK", "Video output = RAW"}, {"setVideoOutput(0) -> true"});
    row("getFrameRate", {"Frame rate = 30Hz"}, {"Set FRAME RATE value OK", "Frame rate = 9Hz"},
        {"setFrameRate(9) -> true"});
    row("getHorizontalFlip", {"Horizontal flip value = 1"}, {"Horizontal flip value = 0"});
    row("getPolarity", {"Polarity value = 1"}, {"Polarity value = 0"});
    row("getGamma", {"Gamma value = 2.2"}, {"Gamma value = 0"});
    row("getRoiX1",
        {"ROI0 inclusive X1 value = 100", "ROI0 exclusive X1 value = 101", "ROI1 inclusive X1 value = 102",
         "ROI1 exclusive X1 value = 103"},
        {"ROI0 inclusive X1 value = 0", "ROI0 exclusive X1 value = 0", "ROI1 inclusive X1 value = 0",
         "ROI1 exclusive X1 value = 0"},
        {"setRoiX1(0, 2, true, false, true) -> true", "setRoiX2(0, 2, true, false, true) -> true",
         "setRoiY1(0, 2, true, false, true) -> true", "setRoiY2(0, 2, true, false, true) -> true",
         "setRoiX1(0, 1, false, false, true) -> true", "setRoiX2(0, 1, false, false, true) -> true",
         "setRoiY1(0, 1, false, false, true) -> true", "setRoiY2(0, 1, false, false, true) -> true",
         "setRoiX1(0, 3, false, false, false) -> true", "setRoiX2(0, 3, false, false, false) -> true",
         "setRoiY1(0, 3, false, false, false) -> true", "setRoiY2(0, 3, false, false, false) -> true"});
    row("getRoiY1",
        {"ROI0 inclusive Y1 value = 110", "ROI0 exclusive Y1 value = 111", "ROI1 inclusive Y1 value = 112",
         "ROI1 exclusive Y1 value = 113"},
        {"ROI0 inclusive Y1 value = 0", "ROI0 exclusive Y1 value = 0", "ROI1 inclusive Y1 value = 0",
         "ROI1 exclusive Y1 value = 0"});
    row("getRoiX2",
        {"ROI0 inclusive X2 value = 120", "ROI0 exclusive X2 value = 121", "ROI1 inclusive X2 value = 122",
         "ROI1 exclusive X2 value = 123"},
        {"ROI0 inclusive X2 value = 0", "ROI0 exclusive X2 value = 0", "ROI1 inclusive X2 value = 0",
         "ROI1 exclusive X2 value = 0"});
    row("getRoiY2",
        {"ROI0 inclusive Y2 value = 130", "ROI0 exclusive Y2 value = 131", "ROI1 inclusive Y2 value = 132",
         "ROI1 exclusive Y2 value = 133"},
        {"ROI0 inclusive Y2 value = 0", "ROI0 exclusive Y2 value = 0", "ROI1 inclusive Y2 value = 0",
         "ROI1 exclusive Y2 value = 0"});
    row("getClhe", {"CLHE value = 4321"}, {"CLHE value = 0"});
    row("getColorLut", {"Color Lut = RAINBOW"}, {"Set COLOR LUT value OK", "Color Lut = GREYSCALE"},
        {"setColorLut(0) -> true"});
    row("getContrastType", {"Contrast type = CLAHE (LOCAL)"},
        {"Configure contrast type OK", "Contrast type = CLHE (ROI)"}, {"configureContrastType(0) -> true"});
    row("getLutTemporalFilter", {"LUT temporal filter = 4"}, {"LUT temporal filter = 0"});
    row("getAhcGainLimitation", {"AHC black gain limitation = 31", "AHC white gain limitation = 62"},
        {"AHC gain limitation read error"});
    row("getTemperatures", {}, {});
    row("getEdgeCorrection",
        {"Correction type = 1", "Correction gain = 3", "First threshold = 20", "Second threshold = 60"},
        {"Configure EDGE CORRECTION OK", "Correction type = 0", "Correction gain = 0",
         "First threshold = -40", "Second threshold = 0"},
        {"configureEdgeCorrection(0, 3, 5) -> true"});
}

void CameraFailuresTest::aRefusalDoesNotEndTheRead()
{
    QFETCH(const QByteArray, operation);
    QFETCH(const QStringList, linesGone);
    QFETCH(const QStringList, linesInstead);
    QFETCH(const QStringList, commands);
    TestWindow test{changeCamera};
    openCameraPage(test, "LutSection");
    changeCamera(test.simulator);
    test.simulator.addFault({operation.toStdString()});

    QVERIFY(readCamera(test));
    QStringList gone{logOf(withoutWriteBacks(changedCameraRead()))};
    QStringList instead;
    for (const QString &line : test.takeLog()) {
        if (!gone.removeOne(line)) {
            instead.append(line);
        }
    }
    QCOMPARE(gone, linesGone);
    QCOMPARE(instead, linesInstead);
    QCOMPARE(commandsOf(test.takeCalls()), commands);
}

void CameraFailuresTest::aRefusedSettingIsShownAsOff_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *operation, const char *button, const char *text, const char *line) {
        QTest::newRow(operation) << button << text << line;
    };
    row("getVignettingCorrection", "VignettingCorrectionButton", "Vignetting Correction: Deactivated",
        "Vignetting Correction state = Disabled");
    row("getColumnCorrection", "ColumnCorrectionButton", "Column Correction: Deactivated",
        "Column Correction state = Disabled");
    row("getSdiOutput", "sdiOutputButton", "BT656/SDI Output: Deactivated",
        "BT656/SDI output value = Disabled");
    row("getMipiOutput", "mipiOutputButton", "MIPI Output: Deactivated", "MIPI output value = Disabled");
}

void CameraFailuresTest::aRefusedSettingIsShownAsOff()
{
    QFETCH(const QString, button);
    QFETCH(const QString, text);
    QFETCH(const QString, line);
    TestWindow test;
    openCameraPage(test, "ImageProcSection");
    QVERIFY(test.child<QAbstractButton>(button).isChecked());
    test.simulator.addFault({QTest::currentDataTag()});

    QVERIFY(readCamera(test));
    QVERIFY(!test.child<QAbstractButton>(button).isChecked());
    QCOMPARE(test.child<QAbstractButton>(button).text(), text);
    QCOMPARE(linesOf(test.takeLog(), line), QStringList{line});
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});
}

void CameraFailuresTest::aSilentCameraIsReadToTheEnd()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    // Every operation but the first, which asks for the versions.
    test.simulator.addFault({"", 2});

    QVERIFY(readCamera(test));
    const QStringList log{test.takeLog()};
    QCOMPARE(log.first(), QString{"Start reading camera parameters"});
    QCOMPARE(log.last(), QString{"End reading camera parameters"});
    QCOMPARE(linesOf(log, "Set "), (QStringList{"Set VIDEO OUTPUT value KO", "Set FRAME RATE value KO"}));
    QVERIFY(!test.lastCommandOk());
    QCOMPARE(test.child<QPlainTextEdit>("SensorTempTextEdit").toPlainText(), QString{"-273C"});
    QCOMPARE(test.child<QPlainTextEdit>("FpgaTempTextEdit").toPlainText(), QString{"-273C"});
}

PILOTEL_TEST_CLASS(CameraFailuresTest)
#include "tst_camera_failures.moc"
