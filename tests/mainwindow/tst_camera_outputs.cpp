// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of what a read of the camera shows, tells and sends back: versions, on/off settings and outputs.
#include "camerapage.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QByteArray>
#include <QComboBox>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <string>

class CameraOutputsTest : public QObject
{
    Q_OBJECT

private slots:
    void versionLine_data();
    void versionLine();
    void onOffSetting_data();
    void onOffSetting();
    void videoOutput_data();
    void videoOutput();
    void frameRate_data();
    void frameRate();
};

void CameraOutputsTest::versionLine_data()
{
    QTest::addColumn<int>("processor");
    QTest::addColumn<int>("fpga");
    QTest::addColumn<QString>("record");
    const auto row = [](int processor, int fpga, const char *record) {
        QTest::addRow("0x%04x and 0x%04x", processor, fpga) << processor << fpga << record;
    };
    row(0x0123, 0x3456, R"(RISC-V version = 1.2.3\nFPGA version = 4.5.6 MIPI 9Hz)");
    row(0x0123, 0x1456, R"(RISC-V version = 1.2.3\nFPGA version = 4.5.6 9Hz)");
    row(0x0123, 0x2456, R"(RISC-V version = 1.2.3\nFPGA version = 4.5.6 MIPI 60Hz)");
    row(0x0123, 0x0456, R"(RISC-V version = 1.2.3\nFPGA version = 4.5.6 60Hz)");
    row(0x0A1F, 0xCBAC, R"(RISC-V version = a.1.f\nFPGA version = b.a.c 60Hz)");
    row(0x3ABC, 0x0100, R"(RISC-V version = a.b.c\nFPGA version = 1.0.0 60Hz)");
    row(0x0000, 0x0100, R"(RISC-V version = 0.0.0\nFPGA version = 1.0.0 60Hz)");
    row(0x0001, 0x0000, R"(RISC-V version = 0.0.1\nFPGA version = 0.0.0 60Hz)");
    row(0xF000, 0xC000, R"(RISC-V version = 0.0.0\nFPGA version = 0.0.0 60Hz)");
}

void CameraOutputsTest::versionLine()
{
    QFETCH(const int, processor);
    QFETCH(const int, fpga);
    QFETCH(const QString, record);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.firmwareVersions.processor", processor);
    test.simulator.set("camera.firmwareVersions.fpga", fpga);

    QVERIFY(readCamera(test));
    QCOMPARE(linesOf(test.takeCallsAndRecords(), "log(2, \"RISC-V"),
             QStringList{"log(2, \"" + record + "\")"});
}

void CameraOutputsTest::onOffSetting_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<bool>("on");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("line");
    const auto rows = [](const char *key, const char *button, const QString &text, const QString &label,
                         const char *lineOn, const char *lineOff) {
        QTest::addRow("%s on", key) << QByteArray{key} << true << button << text + ": Activated" << label
                                    << label + lineOn;
        QTest::addRow("%s off", key) << QByteArray{key} << false << button << text + ": Deactivated" << label
                                     << label + lineOff;
    };
    rows("vignettingCorrection", "VignettingCorrectionButton", "Vignetting Correction",
         "Vignetting Correction state = ", "Enabled", "Disabled");
    rows("columnCorrection", "ColumnCorrectionButton", "Column Correction",
         "Column Correction state = ", "Enabled", "Disabled");
    rows("sdiOutput", "sdiOutputButton", "BT656/SDI Output", "BT656/SDI output value = ", "Enabled",
         "Disabled");
    rows("parallelOutput", "parallelOutputButton", "Parallel Output", "Parallel output value = ", "Enabled",
         "Disabled");
    rows("mipiOutput", "mipiOutputButton", "MIPI Output", "MIPI output value = ", "Enabled", "Disabled");
    rows("horizontalFlip", "horizontalFlipButton", "Horizontal Flip", "Horizontal flip value = ", "1", "0");
    rows("polarity", "polarityButton", "Invert Polarity", "Polarity value = ", "1", "0");
}

void CameraOutputsTest::onOffSetting()
{
    QFETCH(const QByteArray, key);
    QFETCH(const bool, on);
    QFETCH(const QString, button);
    QFETCH(const QString, text);
    QFETCH(const QString, label);
    QFETCH(const QString, line);
    // The window has read the opposite, so the read turns the button.
    const std::string fullKey{"camera." + key.toStdString()};
    TestWindow test{[&](auto &simulator) {
        simulator.set(fullKey, !on);
    }};
    openCameraPage(test, "LutSection");
    QCOMPARE(test.child<QAbstractButton>(button).isChecked(), !on);
    test.simulator.set(fullKey, on);

    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QAbstractButton>(button).isChecked(), on);
    QCOMPARE(test.child<QAbstractButton>(button).text(), text);
    QCOMPARE(linesOf(test.takeLog(), label), QStringList{line});
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});
}

void CameraOutputsTest::videoOutput_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<QStringList>("commands");
    const auto row = [](int value, const char *text) {
        QTest::newRow(text) << value << value
                            << QStringList{"Set VIDEO OUTPUT value OK", QString{"Video output = "} + text}
                            << QStringList{QString{"setVideoOutput(%1) -> true"}.arg(value)};
    };
    row(0, "RAW");
    row(1, "NUC");
    row(2, "COLUMN CORRECTION");
    row(3, "VIGNETTING CORRECTION");
    row(4, "EDGE ENHANCEMENT");
    row(5, "LUT CORRECTION");
    row(6, "RESERVED");
    row(7, "ZOOM");
    QTest::newRow("BT656, as shown already")
        << 8 << 8 << QStringList{"Video output = BT656"} << QStringList{};
    const QStringList nothingSelected{"Set VIDEO OUTPUT value KO", "Video output = "};
    QTest::newRow("9 selects nothing")
        << 9 << -1 << nothingSelected << QStringList{"setVideoOutput(255) -> false"};
    QTest::newRow("255 selects nothing")
        << 255 << -1 << nothingSelected << QStringList{"setVideoOutput(255) -> false"};
}

void CameraOutputsTest::videoOutput()
{
    QFETCH(const int, value);
    QFETCH(const int, index);
    QFETCH(const QStringList, log);
    QFETCH(const QStringList, commands);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.videoOutput", value);

    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QComboBox>("VideoOutputCB").currentIndex(), index);
    const QStringList lines{test.takeLog()};
    QCOMPARE(linesOf(lines, "Set ") + linesOf(lines, "Video output"), log);
    QCOMPARE(commandsOf(test.takeCalls()), commands);
}

void CameraOutputsTest::frameRate_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("hertz");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("commands");
    const auto row = [](int before, int hertz, int index, const char *line,
                        const QStringList &commands = {}) {
        QTest::addRow("%d Hz after %d Hz", hertz, before) << before << hertz << index << line << commands;
    };
    row(60, 9, 0, "Frame rate = 9Hz");
    row(60, 25, 1, "Frame rate = 25Hz");
    row(60, 30, 2, "Frame rate = 30Hz");
    row(60, 50, 3, "Frame rate = 50Hz");
    row(30, 60, 4, "Frame rate = 60Hz");
    row(60, 60, 4, "Frame rate = 60Hz");
    // A rate that the box does not offer is shown as 9 Hz and, when that is a change, becomes 9 Hz.
    row(9, 15, 0, "Frame rate = 9Hz");
    row(60, 15, 0, "Frame rate = 9Hz", {"setFrameRate(9) -> true"});
    row(60, 0, 0, "Frame rate = 9Hz", {"setFrameRate(9) -> true"});
    row(60, 255, 0, "Frame rate = 9Hz", {"setFrameRate(9) -> true"});
}

void CameraOutputsTest::frameRate()
{
    QFETCH(const int, before);
    QFETCH(const int, hertz);
    QFETCH(const int, index);
    QFETCH(const QString, line);
    QFETCH(const QStringList, commands);
    TestWindow test{[&](auto &simulator) {
        simulator.set("camera.frameRate", before);
    }};
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.frameRate", hertz);

    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QComboBox>("frameRateCB").currentIndex(), index);
    const QStringList lines{test.takeLog()};
    QCOMPARE(linesOf(lines, "Frame rate"), QStringList{line});
    QCOMPARE(linesOf(lines, "Set ").size(), commands.size());
    QCOMPARE(commandsOf(test.takeCalls()), commands);
}

PILOTEL_TEST_CLASS(CameraOutputsTest)
#include "tst_camera_outputs.moc"
