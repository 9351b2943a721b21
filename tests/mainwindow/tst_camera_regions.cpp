// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of what a read of the camera shows, tells and sends back: the regions of interest.
#include "camerapage.h"
#include "testclass.h"

#include <QCheckBox>
#include <QObject>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>

#include <array>
#include <string>

namespace
{

constexpr std::array<const char *, 3> enableBoxes{"roi0ExcEnable", "roi1IncEnable", "roi1ExcEnable"};

QStringList checkedBoxes(const TestWindow &test)
{
    QStringList checked;
    for (const char *const box : enableBoxes) {
        if (test.child<QCheckBox>(box).isChecked()) {
            checked.append(box);
        }
    }
    return checked;
}

/// One of a region's coordinates, in the number and the name that the camera's readers use.
std::string key(int region, const char *coordinate)
{
    return "camera.roi" + std::to_string(region) + '.' + coordinate;
}

} // namespace

class CameraRegionsTest : public QObject
{
    Q_OBJECT

private slots:
    void oneRegionIsShownByTheReadersNumber_data();
    void oneRegionIsShownByTheReadersNumber();
    void noX1NoEnableBox_data();
    void noX1NoEnableBox();
    void aRegionThatIsGoneIsSentBackAsZeros();
    void everythingIsReadBeforeAnythingIsSentBack();
    void aRegionSetAsNumber1IsReadAsNumber1();
    void valuesBeyondTheBoxes_data();
    void valuesBeyondTheBoxes();
};

void CameraRegionsTest::oneRegionIsShownByTheReadersNumber_data()
{
    QTest::addColumn<int>("region");
    QTest::addColumn<QString>("boxes");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QStringList>("checked");
    const auto row = [](int region, const char *boxes, const char *label, const QStringList &checked) {
        QTest::newRow(label) << region << boxes << label << checked;
    };
    row(0, "Roi0Inc", "ROI0 inclusive", {});
    row(1, "Roi0Exc", "ROI0 exclusive", {"roi0ExcEnable"});
    row(2, "Roi1Inc", "ROI1 inclusive", {"roi1IncEnable"});
    row(3, "Roi1Exc", "ROI1 exclusive", {"roi1ExcEnable"});
}

void CameraRegionsTest::oneRegionIsShownByTheReadersNumber()
{
    QFETCH(const int, region);
    QFETCH(const QString, boxes);
    QFETCH(const QString, label);
    QFETCH(const QStringList, checked);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set(key(region, "x1"), 21);
    test.simulator.set(key(region, "y1"), 32);
    test.simulator.set(key(region, "x2"), 543);
    test.simulator.set(key(region, "y2"), 432);

    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QSpinBox>(boxes + "X1").value(), 21);
    QCOMPARE(test.child<QSpinBox>(boxes + "Y1").value(), 32);
    QCOMPARE(test.child<QSpinBox>(boxes + "X2").value(), 543);
    QCOMPARE(test.child<QSpinBox>(boxes + "Y2").value(), 432);
    QCOMPARE(checkedBoxes(test), checked);
    const QStringList lines{label + " X1 value = 21", label + " Y1 value = 32", label + " X2 value = 543",
                            label + " Y2 value = 432"};
    QCOMPARE(linesOf(test.takeLog(), label), lines);
}

void CameraRegionsTest::noX1NoEnableBox_data()
{
    QTest::addColumn<int>("region");
    QTest::addColumn<QString>("enableBox");
    QTest::newRow("ROI0 exclusive") << 1 << "roi0ExcEnable";
    QTest::newRow("ROI1 inclusive") << 2 << "roi1IncEnable";
    QTest::newRow("ROI1 exclusive") << 3 << "roi1ExcEnable";
}

void CameraRegionsTest::noX1NoEnableBox()
{
    QFETCH(const int, region);
    QFETCH(const QString, enableBox);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set(key(region, "x1"), 0);
    test.simulator.set(key(region, "y1"), 32);
    test.simulator.set(key(region, "x2"), 543);
    test.simulator.set(key(region, "y2"), 432);

    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QCheckBox>(enableBox).isChecked(), false);
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});

    // X1 decides alone, however small it is.
    test.simulator.set(key(region, "x1"), 1);
    test.simulator.set(key(region, "y1"), 0);
    test.simulator.set(key(region, "x2"), 0);
    test.simulator.set(key(region, "y2"), 0);
    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QCheckBox>(enableBox).isChecked(), true);
}

void CameraRegionsTest::aRegionThatIsGoneIsSentBackAsZeros()
{
    TestWindow test{[](auto &simulator) {
        simulator.set("camera.roi2.x1", 100);
    }};
    openCameraPage(test, "LutSection");
    QCOMPARE(checkedBoxes(test), QStringList{"roi1IncEnable"});
    QVERIFY(test.child<QSpinBox>("Roi1IncX1").isEnabled());
    test.simulator.set("camera.roi2.x1", 0);
    // What connecting has sent back is number 1 to the setters.
    test.simulator.set("camera.roi1.x1", 0);

    QVERIFY(readCamera(test));
    QCOMPARE(checkedBoxes(test), QStringList{});
    QVERIFY(!test.child<QSpinBox>("Roi1IncX1").isEnabled());
    const QStringList commands{
        "setRoiX1(0, 1, false, false, false) -> true",
        "setRoiX2(0, 1, false, false, false) -> true",
        "setRoiY1(0, 1, false, false, false) -> true",
        "setRoiY2(0, 1, false, false, false) -> true",
    };
    QCOMPARE(commandsOf(test.takeCalls()), commands);
}

void CameraRegionsTest::everythingIsReadBeforeAnythingIsSentBack()
{
    // Region 1 of the read commands is region 2 of the set commands. Sending region 1 back before region 2 is
    // read would change what is read.
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.roi1.x1", 101);
    test.simulator.set("camera.roi2.x1", 102);
    test.simulator.set("camera.roi3.x1", 103);

    QVERIFY(readCamera(test));
    QCOMPARE(test.child<QSpinBox>("Roi0ExcX1").value(), 101);
    QCOMPARE(test.child<QSpinBox>("Roi1IncX1").value(), 102);
    QCOMPARE(test.child<QSpinBox>("Roi1ExcX1").value(), 103);
    const QStringList calls{test.takeCalls()};
    const QStringList reads{linesOf(calls, "getRoi")};
    QCOMPARE(reads.size(), 16);
    QVERIFY(calls.lastIndexOf(reads.last()) < calls.indexOf(linesOf(calls, "setRoi").first()));
}

void CameraRegionsTest::aRegionSetAsNumber1IsReadAsNumber1()
{
    // The setters call ROI1 inclusive number 1, the readers ROI0 exclusive; nobody translates.
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.click("roi1IncEnable");
    QCOMPARE(checkedBoxes(test), QStringList{"roi1IncEnable"});

    QVERIFY(readCamera(test));
    QCOMPARE(checkedBoxes(test), QStringList{"roi0ExcEnable"});
    QCOMPARE(linesOf(test.takeLog(), "ROI0 exclusive X1"), QStringList{"ROI0 exclusive X1 value = 5"});
}

void CameraRegionsTest::valuesBeyondTheBoxes_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("xShown");
    QTest::addColumn<int>("yShown");
    const auto row = [](qint64 value, int xShown, int yShown) {
        QTest::addRow("%lld", value) << value << xShown << yShown;
    };
    row(0, 5, 5);
    row(4, 5, 5);
    row(5, 5, 5);
    row(475, 475, 475);
    row(476, 476, 475);
    row(635, 635, 475);
    row(636, 635, 475);
    row(2147483648, 635, 475);
    row(4000000000, 635, 475);
    row(4294967295, 635, 475);
}

void CameraRegionsTest::valuesBeyondTheBoxes()
{
    QFETCH(const qint64, value);
    QFETCH(const int, xShown);
    QFETCH(const int, yShown);
    TestWindow test;
    openCameraPage(test, "LutSection");
    for (int region{0}; region < 4; ++region) {
        for (const char *const coordinate : {"x1", "y1", "x2", "y2"}) {
            test.simulator.set(key(region, coordinate), value);
        }
    }

    QVERIFY(readCamera(test));
    QStringList lines;
    for (const char *const region :
         {"ROI0 inclusive", "ROI0 exclusive", "ROI1 inclusive", "ROI1 exclusive"}) {
        for (const char *const coordinate : {"X1", "Y1", "X2", "Y2"}) {
            lines.append(QStringLiteral("%1 %2 value = %3").arg(region, coordinate).arg(value));
        }
    }
    QCOMPARE(linesOf(test.takeLog(), "ROI"), lines);
    for (const char *const boxes : {"Roi0Inc", "Roi0Exc", "Roi1Inc", "Roi1Exc"}) {
        QCOMPARE(test.child<QSpinBox>(QString{boxes} + "X1").value(), xShown);
        QCOMPARE(test.child<QSpinBox>(QString{boxes} + "X2").value(), xShown);
        QCOMPARE(test.child<QSpinBox>(QString{boxes} + "Y1").value(), yShown);
        QCOMPARE(test.child<QSpinBox>(QString{boxes} + "Y2").value(), yShown);
    }
    QCOMPARE(checkedBoxes(test).size(), value == 0 ? 0 : 3);
}

PILOTEL_TEST_CLASS(CameraRegionsTest)
#include "tst_camera_regions.moc"
