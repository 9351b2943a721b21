// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the sliders and their spin boxes where one reaches beyond the other.
#include "coupledpairs.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVariant>

#include <cstddef>
#include <limits>

class CouplingLimitsTest : public QObject
{
    Q_OBJECT

private slots:
    void aSliderPullsItsBoxBackToItsEnd_data();
    void aSliderPullsItsBoxBackToItsEnd();
    void aSliderAtItsEndLeavesItsBoxAlone();
    void aBoxPullsItsSliderBackToItsEnd_data();
    void aBoxPullsItsSliderBackToItsEnd();
    void handlersEndAtTheRangesOfTheirPair_data();
    void handlersEndAtTheRangesOfTheirPair();
};

void CouplingLimitsTest::aSliderPullsItsBoxBackToItsEnd_data()
{
    QTest::addColumn<QByteArray>("slider");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("value");
    const auto row = [](const char *slider, const char *typed, int position, double value) {
        QTest::addRow("%s beyond %s", typed, slider) << QByteArray{slider} << typed << position << value;
    };
    row("clheSlider", "30000", 10000, 10000.0);
    row("clheSlider", "10001", 10000, 10000.0);
    row("SharpeningTHSlider", "255", 2000, 200.0);
    row("gmsSlider", "4096", 4095, 4095.0);
}

void CouplingLimitsTest::aSliderPullsItsBoxBackToItsEnd()
{
    QFETCH(const QByteArray, slider);
    QFETCH(const QString, typed);
    QFETCH(const int, position);
    QFETCH(const double, value);
    TestWindow test;
    const Pair &pair{pairOf(slider)};
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    typeInto(widgets.box, typed);
    QCOMPARE(widgets.slider.value(), position);
    QCOMPARE(widgets.value(), value);
}

void CouplingLimitsTest::aSliderAtItsEndLeavesItsBoxAlone()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    Widgets clhe{test, pairOf("clheSlider")};
    Widgets gms{test, pairOf("gmsSlider")};

    // A slider that cannot move on has no change to tell.
    clhe.slider.setValue(10000);
    clhe.setValue(30000.0);
    QCOMPARE(clhe.slider.value(), 10000);
    QCOMPARE(clhe.value(), 30000.0);

    gms.slider.setValue(4095);
    gms.setValue(4294967296.0);
    QCOMPARE(gms.slider.value(), 4095);
    QCOMPARE(gms.value(), 4294967296.0);
}

void CouplingLimitsTest::aBoxPullsItsSliderBackToItsEnd_data()
{
    QTest::addColumn<QByteArray>("slider");
    QTest::addColumn<int>("moved");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("value");
    const auto row = [](const char *slider, int moved, int position, double value) {
        QTest::addRow("%s to %d", slider, moved) << QByteArray{slider} << moved << position << value;
    };
    row("gskSlider", 20, 3, 3.0);
    row("tintSlider", 20, 2, 2.0);
}

void CouplingLimitsTest::aBoxPullsItsSliderBackToItsEnd()
{
    QFETCH(const QByteArray, slider);
    QFETCH(const int, moved);
    QFETCH(const int, position);
    QFETCH(const double, value);
    // Before a connection the sliders of the form reach beyond their boxes.
    TestWindow test;
    const Widgets widgets{test, pairOf(slider)};
    test.takeCallsAndRecords();

    widgets.slider.setValue(moved);
    QCOMPARE(widgets.slider.value(), position);
    QCOMPARE(widgets.value(), value);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void CouplingLimitsTest::handlersEndAtTheRangesOfTheirPair_data()
{
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<QVariant>("argument");
    QTest::addColumn<bool>("toTheTop");
    using Doubles = std::numeric_limits<double>;
    using Ints = std::numeric_limits<int>;
    for (std::size_t place{0}; place < pairs.size(); ++place) {
        const Pair &pair{pairs.at(place)};
        const auto row = [place](const char *slot, const QVariant &argument, bool toTheTop) {
            QTest::addRow("%s(%s)", slot, qPrintable(argument.toString())) << place << argument << toTheTop;
        };
        row(pair.sliderSlot, Ints::max(), true);
        row(pair.sliderSlot, Ints::min(), false);
        if (pair.decimalBox) {
            row(pair.boxSlot, Doubles::quiet_NaN(), false);
            row(pair.boxSlot, Doubles::infinity(), true);
            row(pair.boxSlot, -Doubles::infinity(), false);
            row(pair.boxSlot, 1e300, true);
            row(pair.boxSlot, -1e300, false);
        } else {
            row(pair.boxSlot, Ints::max(), true);
            row(pair.boxSlot, Ints::min(), false);
        }
    }
}

void CouplingLimitsTest::handlersEndAtTheRangesOfTheirPair()
{
    QFETCH(const std::size_t, place);
    QFETCH(const QVariant, argument);
    QFETCH(const bool, toTheTop);
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    const QByteArray slot{QByteArray{QTest::currentDataTag()}.split('(').first()};
    const bool invoked{
        argument.type() == QVariant::Double
            ? QMetaObject::invokeMethod(&test.window(), slot, Q_ARG(double, argument.toDouble()))
            : QMetaObject::invokeMethod(&test.window(), slot, Q_ARG(int, argument.toInt()))};
    QVERIFY(invoked);
    const int position{toTheTop ? widgets.slider.maximum() : widgets.slider.minimum()};
    QCOMPARE(widgets.slider.value(), position);
    QCOMPARE(widgets.value(), position * pair.unitsPerStep + pair.lowest);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

PILOTEL_TEST_CLASS(CouplingLimitsTest)
#include "tst_coupling_limits.moc"
