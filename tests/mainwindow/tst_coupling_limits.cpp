// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the sliders and their spin boxes where one reaches beyond the other.
#include "coupledpairs.h"
#include "mouse.h"
#include "testclass.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVariant>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace
{

/// How the operator ends an edit.
enum class Ending
{
    Enter,
    Tab,
    Click,
    Disconnect,
};

void end(TestWindow &test, QAbstractSpinBox &box, Ending ending)
{
    switch (ending) {
    case Ending::Enter:
        QTest::keyClick(&box, Qt::Key_Enter);
        break;
    case Ending::Tab:
        QTest::keyClick(&box, Qt::Key_Tab);
        break;
    case Ending::Click:
        pressMouseOn(test, "logView");
        break;
    case Ending::Disconnect:
        pressMouseOn(test, "disconnectDeviceButton");
        break;
    }
    QCoreApplication::processEvents();
}

} // namespace

Q_DECLARE_METATYPE(Ending)

class CouplingLimitsTest : public QObject
{
    Q_OBJECT

private slots:
    void aSliderPullsItsBoxBackAtTheEndOfTheEdit_data();
    void aSliderPullsItsBoxBackAtTheEndOfTheEdit();
    void aTypedValueIsPulledBackAtOnceByAStep();
    void aTypedValueGivesWayToItsSlider();
    void aTypedValueThatIsTakenBackIsSentAsItStands();
    void aTypedValueIsPulledBackBeforeAnApply();
    void aSliderAtItsEndLeavesItsBoxAlone();
    void aBoxPullsItsSliderBackToItsEnd_data();
    void aBoxPullsItsSliderBackToItsEnd();
    void handlersEndAtTheRangesOfTheirPair_data();
    void handlersEndAtTheRangesOfTheirPair();
};

void CouplingLimitsTest::aSliderPullsItsBoxBackAtTheEndOfTheEdit_data()
{
    QTest::addColumn<QByteArray>("slider");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<Ending>("ending");
    QTest::addColumn<QString>("call");
    const auto row = [](const char *slider, const char *typed, int position, const char *shown,
                        const char *call) {
        for (const auto &[ending, name] :
             {std::pair{Ending::Enter, "Enter"}, std::pair{Ending::Tab, "Tab"},
              std::pair{Ending::Click, "a click"}, std::pair{Ending::Disconnect, "Disconnect"}}) {
            QTest::addRow("%s beyond %s, ended by %s", typed, slider, name)
                << QByteArray{slider} << typed << position << shown << ending << call;
        }
    };
    row("clheSlider", "30000", 10000, "10000", "setClhe(10000) -> true");
    row("clheSlider", "10001", 10000, "10000", "setClhe(10000) -> true");
    row("SharpeningTHSlider", "255", 2000, "200.0", "configureEdgeCorrection(0, 64, 200) -> true");
    row("gmsSlider", "4096", 4095, "4095", "setGms(4095) -> true");
    row("gmsSlider", "123456", 4095, "4095", "setGms(4095) -> true");
    row("gmsSlider", "4294967296", 4095, "4095", "setGms(4095) -> true");
}

void CouplingLimitsTest::aSliderPullsItsBoxBackAtTheEndOfTheEdit()
{
    QFETCH(const QByteArray, slider);
    QFETCH(const QString, typed);
    QFETCH(const int, position);
    QFETCH(const QString, shown);
    QFETCH(const Ending, ending);
    QFETCH(const QString, call);
    TestWindow test;
    const Pair &pair{pairOf(slider)};
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    widgets.box.setFocus();
    widgets.box.selectAll();
    for (int length{1}; length <= typed.size(); ++length) {
        QTest::keyClick(&widgets.box, typed.at(length - 1).toLatin1());
        QCOMPARE(widgets.box.text(), typed.left(length));
        const double steps{typed.leftRef(length).toDouble() * pair.stepsPerUnit};
        QCOMPARE(static_cast<double>(widgets.slider.value()),
                 std::min(steps, static_cast<double>(widgets.slider.maximum())));
    }
    QCOMPARE(widgets.slider.value(), position);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});

    end(test, widgets.box, ending);
    QCOMPARE(widgets.box.text(), shown);
    QCOMPARE(widgets.slider.value(), position);
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{call});
}

void CouplingLimitsTest::aTypedValueIsPulledBackAtOnceByAStep()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    Widgets gms{test, pairOf("gmsSlider")};
    typeInto(gms.box, "123456");

    QTest::keyClick(&gms.box, Qt::Key_Up);
    QCOMPARE(gms.box.text(), "4095");
    // At its end the slider does not move, and the box goes on alone.
    QTest::keyClick(&gms.box, Qt::Key_Up);
    QCOMPARE(gms.box.text(), "4096");
    QTest::keyClick(&gms.box, Qt::Key_Enter);
    QCOMPARE(test.takeCalls(), QStringList{"setGms(4096) -> false"});
}

void CouplingLimitsTest::aTypedValueGivesWayToItsSlider()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    const Widgets gms{test, pairOf("gmsSlider")};
    typeInto(gms.box, "123456");

    gms.slider.setValue(17);
    QCOMPARE(gms.box.text(), "17");
    QTest::keyClick(&gms.box, Qt::Key_Enter);
    QCOMPARE(gms.box.text(), "17");
    QCOMPARE(test.takeCalls(), QStringList{"setGms(17) -> true"});
}

void CouplingLimitsTest::aTypedValueThatIsTakenBackIsSentAsItStands()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    const Widgets gms{test, pairOf("gmsSlider")};
    typeInto(gms.box, "123456");
    QTest::keyClick(&gms.box, Qt::Key_Backspace);
    QTest::keyClick(&gms.box, Qt::Key_Backspace);
    QCOMPARE(gms.slider.value(), 1234);

    QTest::keyClick(&gms.box, Qt::Key_Enter);
    QCOMPARE(gms.box.text(), "1234");
    QCOMPARE(test.takeCalls(), QStringList{"setGms(1234) -> true"});
}

void CouplingLimitsTest::aTypedValueIsPulledBackBeforeAnApply()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    const Widgets clhe{test, pairOf("clheSlider")};
    typeInto(clhe.box, "30000");

    test.invoke("ApplyParamsUser");
    QVERIFY(test.takeCalls().contains("setClhe(10000) -> true"));
    QCOMPARE(clhe.box.text(), "10000");
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
