// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the user guide tells an operator to do does what the guide says of it.
#include "testclass.h"
#include "testwindow.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <variant>

using veltrix_simulator::Simulator;

namespace
{

/// X1, X2, Y1 and Y2.
using Edges = std::array<int, 4>;

constexpr std::array<const char *, 4> edgeNames{"X1", "X2", "Y1", "Y2"};

void setRegion(Simulator &simulator, const std::string &region, const Edges &edges)
{
    const std::array<const char *, 4> keys{"x1", "x2", "y1", "y2"};
    for (std::size_t edge{0}; edge < keys.size(); ++edge) {
        simulator.set("camera." + region + '.' + keys.at(edge), std::int64_t{edges.at(edge)});
    }
}

/// What the camera holds as the region of that number of its commands.
QString heldRegion(const TestWindow &test, const std::string &region)
{
    QStringList edges;
    for (const char *const key : {"x1", "x2", "y1", "y2"}) {
        edges.append(
            QString::number(std::get<std::int64_t>(test.simulator.get("camera." + region + '.' + key))));
    }
    return edges.join(QLatin1Char{' '});
}

QString shownRegion(const TestWindow &test, const QString &row)
{
    QStringList edges;
    for (const char *const name : edgeNames) {
        edges.append(test.child<QSpinBox>(row + QString::fromLatin1(name)).text());
    }
    return edges.join(QLatin1Char{' '});
}

std::int64_t heldNumber(const TestWindow &test, const char *key)
{
    return std::get<std::int64_t>(test.simulator.get(key));
}

/// Types a number into a box, and no more.
void beginToType(const TestWindow &test, const QString &box, int number)
{
    auto &spinBox = test.child<QAbstractSpinBox>(box);
    spinBox.setFocus();
    spinBox.selectAll();
    QTest::keyClicks(&spinBox, QString::number(number));
}

/// Types a number into a box and presses Enter.
void type(const TestWindow &test, const QString &box, int number)
{
    beginToType(test, box, number);
    QTest::keyClick(&test.child<QAbstractSpinBox>(box), Qt::Key_Return);
}

/// As the guide says: the second edges first.
void typeRegion(const TestWindow &test, const QString &row, const Edges &edges)
{
    for (const std::size_t edge : {1U, 3U, 0U, 2U}) {
        type(test, row + QString::fromLatin1(edgeNames.at(edge)), edges.at(edge));
    }
}

void turnToCamera(const TestWindow &test, const char *page)
{
    test.showPage(QStringLiteral("Veltrix_KR_tab"));
    test.showPage(QString::fromLatin1(page));
}

} // namespace

class GuideAdviceTest : public QObject
{
    Q_OBJECT

private slots:
    void aNewRegionIsTypedWithoutABox();
    void aRegionThatReadingDisturbedIsSetAgain();
    void regionsThatReadingExchangedAreSetAgain();
    void edgeCorrectionThatReadingDisturbedIsSentAgain();
    void aZoomMethodThatReadingChangedIsSetAgain();
    void resetThenReadShowsWhatTheCameraHas();
    void resetWithFusionOpenGoesToTheBlendUnit();
    void visibleAfterFusionGoesToTheBlendUnit();
    void zerosMeanThatAUnitHasStoppedAnswering();
    void aNumberThatIsBegunIsSentWithTheSwitchToAnotherWindow();
    void aNumberThatIsBegunIsSentWithTheEndOfTheProgram();
    void theArrowsOfABoxSendOnceItIsLeft();
};

void GuideAdviceTest::aNewRegionIsTypedWithoutABox()
{
    TestWindow test;
    test.beConnected();
    turnToCamera(test, "LutSection");
    test.click(QStringLiteral("roi1IncEnable"));
    typeRegion(test, QStringLiteral("Roi1Inc"), {100, 200, 50, 90});
    QCOMPARE(heldRegion(test, "roi1"), QStringLiteral("100 200 50 90"));
}

void GuideAdviceTest::aRegionThatReadingDisturbedIsSetAgain()
{
    TestWindow test{[](Simulator &simulator) {
        setRegion(simulator, "roi3", {100, 200, 50, 90});
    }};
    test.beConnected();
    QCOMPARE(heldRegion(test, "roi3"), QStringLiteral("5 5 5 5"));
    turnToCamera(test, "LutSection");
    QCOMPARE(shownRegion(test, QStringLiteral("Roi1Exc")), QStringLiteral("100 200 50 90"));
    test.click(QStringLiteral("roi1ExcEnable"));
    test.click(QStringLiteral("roi1ExcEnable"));
    QCOMPARE(heldRegion(test, "roi3"), QStringLiteral("100 200 50 90"));
}

void GuideAdviceTest::regionsThatReadingExchangedAreSetAgain()
{
    TestWindow test;
    test.beConnected();
    turnToCamera(test, "LutSection");
    test.click(QStringLiteral("roi1IncEnable"));
    typeRegion(test, QStringLiteral("Roi1Inc"), {100, 200, 50, 90});

    test.click(QStringLiteral("readParamButtonUser"));
    QCOMPARE(shownRegion(test, QStringLiteral("Roi0Exc")), QStringLiteral("100 200 50 90"));
    QVERIFY(!test.child<QCheckBox>(QStringLiteral("roi1IncEnable")).isChecked());
    QVERIFY(test.child<QCheckBox>(QStringLiteral("roi0ExcEnable")).isChecked());

    test.click(QStringLiteral("roi0ExcEnable"));
    test.click(QStringLiteral("roi1IncEnable"));
    typeRegion(test, QStringLiteral("Roi1Inc"), {100, 200, 50, 90});
    QCOMPARE(heldRegion(test, "roi1"), QStringLiteral("100 200 50 90"));
    QCOMPARE(heldRegion(test, "roi2"), QStringLiteral("0 0 0 0"));
}

void GuideAdviceTest::edgeCorrectionThatReadingDisturbedIsSentAgain()
{
    TestWindow test{[](Simulator &simulator) {
        simulator.set("camera.edgeCorrection.type", std::int64_t{1});
        simulator.set("camera.edgeCorrection.gain", std::int64_t{100});
        simulator.set("camera.edgeCorrection.firstThreshold", std::int64_t{50});
    }};
    test.scanAndConnect();
    QVERIFY(test.takeLog().contains(QStringLiteral("Configure EDGE CORRECTION OK")));
    QCOMPARE(heldNumber(test, "camera.edgeCorrection.gain"), std::int64_t{0});
    turnToCamera(test, "EdgeSection");
    auto &gain = test.child<QDoubleSpinBox>(QStringLiteral("sharpeningGainEdit"));
    gain.setFocus();
    QTest::keyClick(&gain, Qt::Key_Return);
    QCOMPARE(heldNumber(test, "camera.edgeCorrection.type"), std::int64_t{1});
    QCOMPARE(heldNumber(test, "camera.edgeCorrection.gain"), std::int64_t{100});
    QCOMPARE(heldNumber(test, "camera.edgeCorrection.firstThreshold"), std::int64_t{50});
}

void GuideAdviceTest::aZoomMethodThatReadingChangedIsSetAgain()
{
    TestWindow test{[](Simulator &simulator) {
        simulator.set("blendUnit.zoom.method", std::int64_t{1});
    }};
    test.scanAndConnect();
    QVERIFY(test.takeLog().contains(QStringLiteral("Configure Zoom OK")));
    QCOMPARE(heldNumber(test, "blendUnit.zoom.method"), std::int64_t{0});
    test.child<QComboBox>(QStringLiteral("FusionZoomMethod")).setCurrentText(QStringLiteral("Bilinear"));
    test.click(QStringLiteral("FusionConfigureZoomPB"));
    QCOMPARE(heldNumber(test, "blendUnit.zoom.method"), std::int64_t{1});
}

void GuideAdviceTest::resetThenReadShowsWhatTheCameraHas()
{
    TestWindow test{[](Simulator &simulator) {
        simulator.set("camera.horizontalFlip", true);
        simulator.set("camera.roi0.x1", std::int64_t{60});
    }};
    test.beConnected();
    const auto &flip = test.child<QPushButton>(QStringLiteral("horizontalFlipButton"));
    const auto &x1 = test.child<QSpinBox>(QStringLiteral("Roi0IncX1"));
    test.showPage(QStringLiteral("Veltrix_KR_tab"));
    test.click(QStringLiteral("resetParamButtonUser"));
    QVERIFY(!flip.isChecked());
    QCOMPARE(x1.value(), 5);
    test.click(QStringLiteral("readParamButtonUser"));
    QVERIFY(flip.isChecked());
    QCOMPARE(flip.text(), QStringLiteral("Horizontal Flip: Activated"));
    QCOMPARE(x1.value(), 60);
}

void GuideAdviceTest::resetWithFusionOpenGoesToTheBlendUnit()
{
    TestWindow test{[](Simulator &simulator) {
        simulator.set("blendUnit.clhe", std::int64_t{3000});
        simulator.set("camera.clhe", std::int64_t{3000});
    }};
    test.beConnected();
    test.click(QStringLiteral("resetParamButtonUser"));
    QCOMPARE(heldNumber(test, "blendUnit.clhe"), std::int64_t{2000});
    QCOMPARE(heldNumber(test, "camera.clhe"), std::int64_t{3000});
}

void GuideAdviceTest::visibleAfterFusionGoesToTheBlendUnit()
{
    TestWindow test;
    test.beConnected();
    test.showPage(QStringLiteral("Veltrix_KR_tab"));
    test.showPage(QStringLiteral("Visible_tab"));
    QVERIFY(test.takeLog().contains(QStringLiteral("Could not changed target")));
    type(test, QStringLiteral("VisAgcTargetSB"), 41);
    QCOMPARE(heldNumber(test, "camera.visibleAgc.target"), std::int64_t{41});
    QCOMPARE(heldNumber(test, "blendUnit.visibleAgc.target"), std::int64_t{50});

    test.showPage(QStringLiteral("Fusion_tab"));
    test.showPage(QStringLiteral("Visible_tab"));
    type(test, QStringLiteral("VisAgcTargetSB"), 42);
    QCOMPARE(heldNumber(test, "camera.visibleAgc.target"), std::int64_t{41});
    QCOMPARE(heldNumber(test, "blendUnit.visibleAgc.target"), std::int64_t{42});

    // A Read with this page open leaves the camera addressed.
    test.click(QStringLiteral("readParamButtonUser"));
    type(test, QStringLiteral("VisAgcTargetSB"), 43);
    QCOMPARE(heldNumber(test, "camera.visibleAgc.target"), std::int64_t{43});
    QCOMPARE(heldNumber(test, "blendUnit.visibleAgc.target"), std::int64_t{42});
}

void GuideAdviceTest::zerosMeanThatAUnitHasStoppedAnswering()
{
    TestWindow test{[](Simulator &simulator) {
        simulator.loadScenario("cable-pulled");
    }};
    test.scanAndConnect();
    const auto &temperature = test.child<QPlainTextEdit>(QStringLiteral("SensorTempTextEdit"));
    const auto &gfid = test.child<QDoubleSpinBox>(QStringLiteral("gfidEdit"));
    QCOMPARE(temperature.toPlainText(), QStringLiteral("-273C"));
    QCOMPARE(gfid.value(), 0.0);

    test.click(QStringLiteral("disconnectDeviceButton"));
    test.click(QStringLiteral("connectDeviceButton"));
    QCOMPARE(temperature.toPlainText(), QStringLiteral("23.65C"));
    QCOMPARE(gfid.value(), 250.0);
}

void GuideAdviceTest::aNumberThatIsBegunIsSentWithTheSwitchToAnotherWindow()
{
    TestWindow test;
    test.beConnected();
    turnToCamera(test, "LutSection");
    beginToType(test, QStringLiteral("clheEdit"), 12);
    QVERIFY(heldNumber(test, "camera.clhe") != 12);

    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(heldNumber(test, "camera.clhe"), std::int64_t{12});
}

void GuideAdviceTest::aNumberThatIsBegunIsSentWithTheEndOfTheProgram()
{
    TestWindow test;
    test.beConnected();
    turnToCamera(test, "LutSection");
    beginToType(test, QStringLiteral("clheEdit"), 12);
    QVERIFY(test.window().close());
    QCOMPARE(heldNumber(test, "camera.clhe"), std::int64_t{12});
}

void GuideAdviceTest::theArrowsOfABoxSendOnceItIsLeft()
{
    TestWindow test;
    test.beConnected();
    turnToCamera(test, "LutSection");
    type(test, QStringLiteral("clheEdit"), 12);
    auto &box = test.child<QAbstractSpinBox>(QStringLiteral("clheEdit"));
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.text(), QStringLiteral("13"));
    QCOMPARE(heldNumber(test, "camera.clhe"), std::int64_t{12});
    QTest::keyClick(&box, Qt::Key_Tab);
    QCOMPARE(heldNumber(test, "camera.clhe"), std::int64_t{13});
}

PILOTEL_TEST_CLASS(GuideAdviceTest)
#include "tst_guide_advice.moc"
