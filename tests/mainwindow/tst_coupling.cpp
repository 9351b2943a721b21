// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the sliders and their spin boxes: each moves its partner, and neither calls the device.
#include "coupledpairs.h"
#include "sliderhandle.h"
#include "testclass.h"

#include <QByteArray>
#include <QEvent>
#include <QObject>
#include <QSignalSpy>
#include <QSlider>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVector>

#include <cstddef>

namespace
{

/// Several positions from one end of the slider to the other.
QVector<int> positionsOf(const QSlider &slider)
{
    constexpr int steps{20};
    QVector<int> positions;
    for (int step{0}; step <= steps; ++step) {
        positions.append(slider.minimum() + (slider.maximum() - slider.minimum()) * step / steps);
    }
    return positions;
}

struct KeyStroke
{
    Qt::Key key;
    int position;
    double value;
};
using KeyStrokes = QVector<KeyStroke>;

} // namespace

Q_DECLARE_METATYPE(KeyStrokes)

class CouplingTest : public QObject
{
    Q_OBJECT

private slots:
    void sliderKeysMoveTheBox_data();
    void sliderKeysMoveTheBox();
    void typingMovesTheSlider_data();
    void typingMovesTheSlider();
    void everyPositionShowsItsValue_data() { addPairs(); }
    void everyPositionShowsItsValue();
    void everyValueHasItsPosition_data() { addPairs(); }
    void everyValueHasItsPosition();
    void aChangeIsToldOnceByEachOfAPair_data() { addPairs(); }
    void aChangeIsToldOnceByEachOfAPair();
    void aValueBetweenTwoStepsGoesToTheNearest_data();
    void aValueBetweenTwoStepsGoesToTheNearest();
    void draggingSendsNothingBeforeTheRelease();
};

void CouplingTest::sliderKeysMoveTheBox_data()
{
    QTest::addColumn<QByteArray>("slider");
    QTest::addColumn<KeyStrokes>("keyStrokes");
    const auto row = [](const char *slider, const KeyStrokes &keyStrokes) {
        QTest::newRow(slider) << QByteArray{slider} << keyStrokes;
    };
    row("gammaSlider",
        {{Qt::Key_Home, 0, 0.5}, {Qt::Key_Right, 2, 0.7}, {Qt::Key_PageUp, 7, 1.2}, {Qt::Key_End, 20, 2.5}});
    row("clheSlider", {{Qt::Key_Home, 0, 0.0},
                       {Qt::Key_Right, 100, 100.0},
                       {Qt::Key_PageUp, 1100, 1100.0},
                       {Qt::Key_End, 10000, 10000.0}});
    row("sharpeningGainSlider", {{Qt::Key_Home, 0, 0.0},
                                 {Qt::Key_Right, 1024, 102.4},
                                 {Qt::Key_PageUp, 1034, 103.4},
                                 {Qt::Key_End, 10240, 1024.0}});
    row("SharpeningTHSlider", {{Qt::Key_Home, 0, 0.0},
                               {Qt::Key_Right, 200, 20.0},
                               {Qt::Key_PageUp, 210, 21.0},
                               {Qt::Key_End, 2000, 200.0}});
    row("AhcBlackGainLimSlider",
        {{Qt::Key_Home, 0, 0.0}, {Qt::Key_Right, 1, 1.0}, {Qt::Key_End, 100, 100.0}});
    row("AhcWhiteGainLimSlider",
        {{Qt::Key_End, 100, 100.0}, {Qt::Key_Left, 99, 99.0}, {Qt::Key_Home, 0, 0.0}});
    row("TempoFilterSlider",
        {{Qt::Key_Home, 0, 0.0}, {Qt::Key_Right, 1, 1.0}, {Qt::Key_PageUp, 3, 3.0}, {Qt::Key_End, 8, 8.0}});
    row("gskSlider", {{Qt::Key_Home, 1, 1.0}, {Qt::Key_Right, 2, 2.0}, {Qt::Key_End, 3, 3.0}});
    row("gfidSlider", {{Qt::Key_Home, 0, 0.0},
                       {Qt::Key_Right, 1, 1.0},
                       {Qt::Key_PageUp, 11, 11.0},
                       {Qt::Key_End, 1000, 1000.0}});
    row("gmsSlider", {{Qt::Key_Home, 0, 0.0},
                      {Qt::Key_Right, 1, 1.0},
                      {Qt::Key_PageUp, 11, 11.0},
                      {Qt::Key_End, 4095, 4095.0}});
    row("tintSlider", {{Qt::Key_Home, 0, 0.0},
                       {Qt::Key_Right, 1, 1.0},
                       {Qt::Key_PageUp, 11, 11.0},
                       {Qt::Key_End, 20, 20.0}});
}

void CouplingTest::sliderKeysMoveTheBox()
{
    QFETCH(const QByteArray, slider);
    QFETCH(const KeyStrokes, keyStrokes);
    TestWindow test;
    const Pair &pair{pairOf(slider)};
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    for (const KeyStroke &keyStroke : keyStrokes) {
        QTest::keyClick(&widgets.slider, keyStroke.key);
        QCOMPARE(widgets.slider.value(), keyStroke.position);
        QCOMPARE(widgets.value(), keyStroke.value);
    }
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void CouplingTest::typingMovesTheSlider_data()
{
    QTest::addColumn<QByteArray>("slider");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("position");
    const auto row = [](const char *slider, const char *typed, int position) {
        QTest::addRow("%s typed moves %s to %d", typed, slider, position)
            << QByteArray{slider} << typed << position;
    };
    row("gammaSlider", "2.2", 17);
    row("gammaSlider", "0.9", 4);
    row("clheSlider", "4321", 4321);
    row("sharpeningGainSlider", "2.9", 29);
    row("sharpeningGainSlider", "1024", 10240);
    row("SharpeningTHSlider", "25.5", 255);
    row("AhcBlackGainLimSlider", "33", 33);
    row("AhcWhiteGainLimSlider", "77", 77);
    row("TempoFilterSlider", "7", 7);
    row("gskSlider", "3", 3);
    row("gfidSlider", "640", 640);
    row("gmsSlider", "4000", 4000);
    row("tintSlider", "15", 15);
}

void CouplingTest::typingMovesTheSlider()
{
    QFETCH(const QByteArray, slider);
    QFETCH(const QString, typed);
    QFETCH(const int, position);
    TestWindow test;
    const Pair &pair{pairOf(slider)};
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    typeInto(widgets.box, typed);
    QCOMPARE(widgets.slider.value(), position);
    QCOMPARE(widgets.value(), typed.toDouble());
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void CouplingTest::everyPositionShowsItsValue()
{
    QFETCH(const std::size_t, place);
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    for (const int position : positionsOf(widgets.slider)) {
        widgets.slider.setValue(position);
        QCOMPARE(widgets.value(), position * pair.unitsPerStep + pair.lowest);
        QCOMPARE(widgets.slider.value(), position);
    }
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void CouplingTest::everyValueHasItsPosition()
{
    QFETCH(const std::size_t, place);
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    Widgets widgets{test, pair};

    for (const int position : positionsOf(widgets.slider)) {
        const double value{position * pair.unitsPerStep + pair.lowest};
        widgets.setValue(value);
        QCOMPARE(widgets.slider.value(), position);
        QCOMPARE(widgets.value(), value);
    }
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void CouplingTest::aChangeIsToldOnceByEachOfAPair()
{
    QFETCH(const std::size_t, place);
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    Widgets widgets{test, pair};
    widgets.slider.setValue(widgets.slider.minimum());
    const QSignalSpy sliderSpy{&widgets.slider, SIGNAL(valueChanged(int))};
    const QSignalSpy boxSpy{&widgets.box,
                            pair.decimalBox ? SIGNAL(valueChanged(double)) : SIGNAL(valueChanged(int))};
    QVERIFY(sliderSpy.isValid() && boxSpy.isValid());

    const int position{widgets.slider.minimum() + 1};
    widgets.slider.setValue(position);
    QCOMPARE(sliderSpy.count(), 1);
    QCOMPARE(boxSpy.count(), 1);

    widgets.setValue((position + 1) * pair.unitsPerStep + pair.lowest);
    QCOMPARE(sliderSpy.count(), 2);
    QCOMPARE(boxSpy.count(), 2);
}

void CouplingTest::aValueBetweenTwoStepsGoesToTheNearest_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("shown");
    const auto row = [](const char *name, double value, int position, double shown) {
        QTest::newRow(name) << value << position << shown;
    };
    row("2.25 goes up", 2.25, 18, 2.3);
    row("1.75 goes up", 1.75, 13, 1.8);
    row("2.24 goes down", 2.24, 17, 2.2);
    row("0.54 goes down", 0.54, 0, 0.5);
}

void CouplingTest::aValueBetweenTwoStepsGoesToTheNearest()
{
    QFETCH(const double, value);
    QFETCH(const int, position);
    QFETCH(const double, shown);
    TestWindow test;
    openCameraPage(test, "LutSection");
    Widgets widgets{test, pairOf("gammaSlider")};

    widgets.slider.setValue(5);
    widgets.setValue(value);
    QCOMPARE(widgets.slider.value(), position);
    QCOMPARE(widgets.value(), shown);

    // The handler gets the value as it is, without the box's own rounding.
    widgets.slider.setValue(5);
    QVERIFY(QMetaObject::invokeMethod(&test.window(), "GammaUserValueChanged", Q_ARG(double, value)));
    QCOMPARE(widgets.slider.value(), position);
    QCOMPARE(widgets.value(), shown);
}

void CouplingTest::draggingSendsNothingBeforeTheRelease()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    const Widgets widgets{test, pairOf("gammaSlider")};
    QCOMPARE(widgets.slider.value(), 5);

    sendMouse(widgets.slider, QEvent::MouseButtonPress, middleOfHandle(widgets.slider, 5));
    QVERIFY(widgets.slider.isSliderDown());
    sendMouse(widgets.slider, QEvent::MouseMove, middleOfHandle(widgets.slider, 10));
    QCOMPARE(widgets.slider.value(), 10);
    QCOMPARE(widgets.value(), 1.5);
    sendMouse(widgets.slider, QEvent::MouseMove, middleOfHandle(widgets.slider, 17));
    QCOMPARE(widgets.slider.value(), 17);
    QCOMPARE(widgets.value(), 2.2);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

PILOTEL_TEST_CLASS(CouplingTest)
#include "tst_coupling.moc"
