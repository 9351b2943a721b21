// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of what a read of the camera shows, tells and sends back: contrast, limits and edges of the image.
#include "camerapage.h"
#include "testclass.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QObject>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVector>

#include <vector>

using veltrix_simulator::Value;

class CameraImageTest : public QObject
{
    Q_OBJECT

private slots:
    void colourTable_data();
    void colourTable();
    void contrastType_data();
    void contrastType();
    void gamma_data();
    void gamma();
    void gammaOnTheStepThatIsShownChangesNothing();
    void clhe_data();
    void clhe();
    void temporalFilter_data();
    void temporalFilter();
    void gainLimitation_data();
    void gainLimitation();
    void edgeCorrection_data();
    void edgeCorrection();
};

void CameraImageTest::colourTable_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("commands");
    const auto row = [](int value, const char *text) {
        QTest::newRow(text) << value << value << QString{"Color Lut = "} + text
                            << QStringList{QString{"setColorLut(%1) -> true"}.arg(value)};
    };
    QTest::newRow("GREYSCALE, as shown already") << 0 << 0 << "Color Lut = GREYSCALE" << QStringList{};
    row(1, "IRON");
    row(2, "HOT");
    row(3, "RAINBOW");
    row(4, "NCAR");
    row(5, "CUBEHELIX");
    row(6, "COOLWARM");
    row(7, "GREYSCALE YCbCr");
    QTest::newRow("8 selects nothing")
        << 8 << -1 << "Color Lut = " << QStringList{"setColorLut(255) -> false"};
    QTest::newRow("255 selects nothing")
        << 255 << -1 << "Color Lut = " << QStringList{"setColorLut(255) -> false"};
}

void CameraImageTest::colourTable()
{
    QFETCH(const int, value);
    QFETCH(const int, index);
    QFETCH(const QString, line);
    QFETCH(const QStringList, commands);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.colorLut", value);

    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QComboBox>("lutColorEdit").currentIndex(), index);
    QCOMPARE(linesOf(test.takeLog(), "Color Lut"), QStringList{line});
    QCOMPARE(commandsOf(test.takeCalls()), commands);
}

void CameraImageTest::contrastType_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("commands");
    QTest::newRow("0 is CLHE") << 0 << 0 << "Contrast type = CLHE (ROI)" << QStringList{};
    QTest::newRow("1 is CLAHE") << 1 << 1 << "Contrast type = CLAHE (LOCAL)"
                                << QStringList{"configureContrastType(1) -> true"};
    QTest::newRow("2 is told as CLAHE and selects nothing")
        << 2 << -1 << "Contrast type = CLAHE (LOCAL)" << QStringList{"configureContrastType(255) -> false"};
    QTest::newRow("255 is told as CLAHE and selects nothing")
        << 255 << -1 << "Contrast type = CLAHE (LOCAL)" << QStringList{"configureContrastType(255) -> false"};
}

void CameraImageTest::contrastType()
{
    QFETCH(const int, value);
    QFETCH(const int, index);
    QFETCH(const QString, line);
    QFETCH(const QStringList, commands);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.contrastType", value);

    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QComboBox>("contrastTypeEdit").currentIndex(), index);
    QCOMPARE(linesOf(test.takeLog(), "Contrast type"), QStringList{line});
    QCOMPARE(commandsOf(test.takeCalls()), commands);
}

void CameraImageTest::gamma_data()
{
    QTest::addColumn<qint64>("raw");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("value");
    const auto row = [](const char *name, qint64 raw, const char *line, int position, double value) {
        QTest::newRow(name) << raw << line << position << value;
    };
    row("0x00023333 is told as 2.2", 0x00023333, "Gamma value = 2.2", 17, 2.2);
    row("lowest", 0x00008000, "Gamma value = 0.5", 0, 0.5);
    row("highest", 0x00028000, "Gamma value = 2.5", 20, 2.5);
    row("0 is shown at the low end", 0, "Gamma value = 0", 0, 0.5);
    row("all bits are shown at the high end", 0xFFFFFFFF, "Gamma value = 65536", 20, 2.5);
    row("2.24 is shown at the step below", 146800, "Gamma value = 2.23999", 17, 2.2);
    row("2.25 is shown at the step above", 147456, "Gamma value = 2.25", 18, 2.3);
    // 65535.04999 in full; single precision makes 65535.05078 of it.
    row("only 24 bits are kept", 0xFFFF0CCC, "Gamma value = 65535.1", 20, 2.5);
}

void CameraImageTest::gamma()
{
    QFETCH(const qint64, raw);
    QFETCH(const QString, line);
    QFETCH(const int, position);
    QFETCH(const double, value);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.gamma", raw);

    QVERIFY(readCamera(test));
    QCOMPARE(linesOf(test.takeLog(), "Gamma"), QStringList{line});
    QCOMPARE(test.child<QSlider>("gammaSlider").value(), position);
    QCOMPARE(test.child<QDoubleSpinBox>("gammaEdit").value(), value);
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});
}

void CameraImageTest::gammaOnTheStepThatIsShownChangesNothing()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.gamma", 0x00023333);
    QVERIFY(readCamera(test));
    const QSignalSpy sliderSpy{&test.child<QSlider>("gammaSlider"), SIGNAL(valueChanged(int))};
    const QSignalSpy boxSpy{&test.child<QDoubleSpinBox>("gammaEdit"), SIGNAL(valueChanged(double))};
    QVERIFY(sliderSpy.isValid() && boxSpy.isValid());

    test.simulator.set("camera.gamma", 146800);
    QVERIFY(readCamera(test));
    QCOMPARE(sliderSpy.count(), 0);
    QCOMPARE(boxSpy.count(), 0);
    QCOMPARE(test.child<QDoubleSpinBox>("gammaEdit").value(), 2.2);
}

void CameraImageTest::clhe_data()
{
    QTest::addColumn<qint64>("raw");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("position");
    const auto row = [](qint64 raw, const char *line, int position) {
        QTest::addRow("%s is shown as %d", line, position) << raw << line << position;
    };
    row(0, "CLHE value = 0", 0);
    row(2000, "CLHE value = 2000", 2000);
    row(4321, "CLHE value = 4321", 4321);
    row(10000, "CLHE value = 10000", 10000);
    row(30000, "CLHE value = 30000", 10000);
    row(1234567, "CLHE value = 1.23457e+06", 10000);
    row(4294967295, "CLHE value = 4.29497e+09", 10000);
}

void CameraImageTest::clhe()
{
    QFETCH(const qint64, raw);
    QFETCH(const QString, line);
    QFETCH(const int, position);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.clhe", raw);

    QVERIFY(readCamera(test));
    QCOMPARE(linesOf(test.takeLog(), "CLHE"), QStringList{line});
    QCOMPARE(test.child<QSlider>("clheSlider").value(), position);
    QCOMPARE(test.child<QDoubleSpinBox>("clheEdit").value(), 1.0 * position);
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});
}

void CameraImageTest::temporalFilter_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("shown");
    const auto row = [](int value, const char *line, int shown) {
        QTest::addRow("%d is shown as %d", value, shown) << value << line << shown;
    };
    row(0, "LUT temporal filter = 0", 0);
    row(8, "LUT temporal filter = 8", 8);
    row(65, "LUT temporal filter = 65", 8);
    row(255, "LUT temporal filter = 255", 8);
}

void CameraImageTest::temporalFilter()
{
    QFETCH(const int, value);
    QFETCH(const QString, line);
    QFETCH(const int, shown);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.lutTemporalFilter", value);

    QVERIFY(readCamera(test));
    QCOMPARE(linesOf(test.takeLog(), "LUT temporal"), QStringList{line});
    QCOMPARE(test.child<QSpinBox>("TempoFilterSpin").value(), shown);
    QCOMPARE(test.child<QSlider>("TempoFilterSlider").value(), shown);
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});
}

void CameraImageTest::gainLimitation_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("black");
    QTest::addColumn<int>("white");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<int>("blackShown");
    QTest::addColumn<int>("whiteShown");
    const auto row = [](const char *name, int result, int black, int white, const QStringList &lines,
                        int blackShown, int whiteShown) {
        QTest::newRow(name) << result << black << white << lines << blackShown << whiteShown;
    };
    row("1 is success", 1, 33, 44, {"AHC black gain limitation = 33", "AHC white gain limitation = 44"}, 33,
        44);
    row("beyond the range", 1, 101, 255,
        {"AHC black gain limitation = 101", "AHC white gain limitation = 255"}, 100, 100);
    // The boxes keep what the power-on state put there.
    row("0 is a failure", 0, 33, 44, {"AHC gain limitation read error"}, 20, 80);
    row("2 is a failure", 2, 33, 44, {"AHC gain limitation read error"}, 20, 80);
    row("255 is a failure", 255, 33, 44, {"AHC gain limitation read error"}, 20, 80);
}

void CameraImageTest::gainLimitation()
{
    QFETCH(const int, result);
    QFETCH(const int, black);
    QFETCH(const int, white);
    QFETCH(const QStringList, lines);
    QFETCH(const int, blackShown);
    QFETCH(const int, whiteShown);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.addFault({"getAhcGainLimitation", 1, 0, std::vector<Value>{result, black, white}});

    QVERIFY(readCamera(test));
    const QStringList log{test.takeLog()};
    QCOMPARE(linesOf(log, "AHC"), lines);
    QCOMPARE(log.last(), QString{"End reading camera parameters"});
    QCOMPARE(test.child<QSpinBox>("AhcBlackGainLimSpin").value(), blackShown);
    QCOMPARE(test.child<QSlider>("AhcBlackGainLimSlider").value(), blackShown);
    QCOMPARE(test.child<QSpinBox>("AhcWhiteGainLimSpin").value(), whiteShown);
    QCOMPARE(test.child<QSlider>("AhcWhiteGainLimSlider").value(), whiteShown);
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});
}

void CameraImageTest::edgeCorrection_data()
{
    QTest::addColumn<QVector<qint64>>("record");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("gainPosition");
    QTest::addColumn<int>("thresholdPosition");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QStringList>("commands");
    const auto row = [](const char *name, const QVector<qint64> &record, int index, int gainPosition,
                        int thresholdPosition, const char *told, const QStringList &commands = {}) {
        QTest::newRow(name) << record << index << gainPosition << thresholdPosition << told << commands;
    };
    row("sharpening", {1, 3, 5, 60}, 1, 30, 50,
        R"(Correction type = 1\nCorrection gain = 3\nFirst threshold = 20\nSecond threshold = 60)",
        {"configureEdgeCorrection(1, 64, 20) -> true"});
    row("contouring", {2, 0, 0, 40}, 2, 0, 0,
        R"(Correction type = 2\nCorrection gain = 0\nFirst threshold = 0\nSecond threshold = 40)",
        {"configureEdgeCorrection(2, 64, 20) -> true"});
    row("the type that is shown", {0, 1024, 200, 295}, 0, 10240, 2000,
        R"(Correction type = 0\nCorrection gain = 1024\nFirst threshold = 255\nSecond threshold = 295)");
    row("second threshold below the distance", {0, 3, 5, 10}, 0, 30, 50,
        R"(Correction type = 0\nCorrection gain = 3\nFirst threshold = -30\nSecond threshold = 10)");
    row("gain and threshold beyond their sliders", {0, 1025, 201, 60}, 0, 10240, 2000,
        R"(Correction type = 0\nCorrection gain = 1025\nFirst threshold = 20\nSecond threshold = 60)");
    row("tenfold values beyond 31 bits", {0, 214748365, 214748365, 60}, 0, 10240, 2000,
        R"(Correction type = 0\nCorrection gain = 214748365\nFirst threshold = 20\nSecond threshold = 60)");
    row("tenfold values beyond 32 bits", {0, 429496730, 429496730, 60}, 0, 10240, 2000,
        R"(Correction type = 0\nCorrection gain = 429496730\nFirst threshold = 20\nSecond threshold = 60)");
    row("largest values", {0, 4294967295, 4294967295, 4294967295}, 0, 10240, 2000,
        R"(Correction type = 0\nCorrection gain = 4294967295\nFirst threshold = 4294967255)"
        R"(\nSecond threshold = 4294967295)");
    row("a type that the box does not offer", {65, 3, 5, 60}, -1, 30, 50,
        R"(Correction type = 65\nCorrection gain = 3\nFirst threshold = 20\nSecond threshold = 60)",
        {"configureEdgeCorrection(255, 64, 20) -> false"});
}

void CameraImageTest::edgeCorrection()
{
    QFETCH(const QVector<qint64>, record);
    QFETCH(const int, index);
    QFETCH(const int, gainPosition);
    QFETCH(const int, thresholdPosition);
    QFETCH(const QString, told);
    QFETCH(const QStringList, commands);
    TestWindow test;
    openCameraPage(test, "EdgeSection");
    test.simulator.addFault({"getEdgeCorrection", 1, 0,
                             std::vector<Value>{record.at(0), record.at(1), record.at(2), record.at(3)}});

    QVERIFY(readCamera(test));
    const QStringList journal{test.takeCallsAndRecords()};
    QCOMPARE(linesOf(journal, "log(2, \"Correction"), QStringList{"log(2, \"" + told + "\")"});
    QCOMPARE(commandsOf(journal), commands);
    QCOMPARE(test.child<QComboBox>("EdgeCorrectionCB").currentIndex(), index);
    QCOMPARE(test.child<QSlider>("sharpeningGainSlider").value(), gainPosition);
    QCOMPARE(test.child<QDoubleSpinBox>("sharpeningGainEdit").value(), gainPosition * 0.1);
    QCOMPARE(test.child<QSlider>("SharpeningTHSlider").value(), thresholdPosition);
    QCOMPARE(test.child<QDoubleSpinBox>("SharpeningTHEdit").value(), thresholdPosition * 0.1);
}

PILOTEL_TEST_CLASS(CameraImageTest)
#include "tst_camera_image.moc"
