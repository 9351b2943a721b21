// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the sliders under the operator's hand: however one is moved, it is sent once, when it is let go.
#include "camerapage.h"
#include "controls.h"
#include "operatorwindow.h"
#include "testclass.h"

#include <QProxyStyle>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

namespace
{

QString gfid(int value)
{
    return QStringLiteral("setGfid(%1) -> true").arg(value);
}

/// The expert page with the slider of GFID at 300 and the focus on it.
QSlider &openGfid(OperatorWindow &test)
{
    openCameraPage(test, "ExpertMode");
    auto &slider = test.child<QSlider>("gfidSlider");
    slider.setValue(300);
    slider.setFocus();
    return slider;
}

/// A place of a slider, by its part of the width.
QPoint placeAt(OperatorWindow &test, const QSlider &slider, double part)
{
    return slider.mapTo(&test.window(), {static_cast<int>(slider.width() * part), slider.height() / 2});
}

/// A style whose slider has a handle that no place belongs to.
class StyleWithoutHandle : public QProxyStyle
{
public:
    SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                     const QPoint &place, const QWidget *widget) const override
    {
        const SubControl part{QProxyStyle::hitTestComplexControl(control, option, place, widget)};
        return control == CC_Slider && part == SC_SliderHandle ? SC_SliderGroove : part;
    }
};

} // namespace

class SliderHandTest : public QObject
{
    Q_OBJECT

private slots:
    void aKeySendsWhenItIsReleased_data();
    void aKeySendsWhenItIsReleased();
    void aKeyThatIsHeldSendsOnceAtItsEnd();
    void aKeyThatMovesNothingSendsNothing();
    void twoKeysSendWhatTheyMoved();
    void leavingSendsWhatTheKeyMoved_data();
    void leavingSendsWhatTheKeyMoved();
    void aSliderThatIsDisabledMeanwhileIsNotStuck();
    void aPressBesideTheHandleBringsItThereAndSendsOnce_data();
    void aPressBesideTheHandleBringsItThereAndSendsOnce();
    void aPressBesideTheHandleGoesOnAsADrag();
    void aPressOnTheHandleMovesNothing();
    void aHandleThatCannotBeHeldIsBroughtAndSent();
    void theOtherButtonsBringNothing();
    void theLeftButtonBringsNothingWhileAnotherIsHeld();
    void aDisabledSliderStays();
    void aSliderThatStandsUprightIsMovedAsWell_data();
    void aSliderThatStandsUprightIsMovedAsWell();
};

void SliderHandTest::aKeySendsWhenItIsReleased_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("position");
    QTest::newRow("Right") << int{Qt::Key_Right} << 301;
    QTest::newRow("Left") << int{Qt::Key_Left} << 299;
    QTest::newRow("Up") << int{Qt::Key_Up} << 301;
    QTest::newRow("Down") << int{Qt::Key_Down} << 299;
    QTest::newRow("PageUp") << int{Qt::Key_PageUp} << 310;
    QTest::newRow("PageDown") << int{Qt::Key_PageDown} << 290;
    QTest::newRow("Home") << int{Qt::Key_Home} << 0;
    QTest::newRow("End") << int{Qt::Key_End} << 1000;
}

void SliderHandTest::aKeySendsWhenItIsReleased()
{
    QFETCH(const int, key);
    QFETCH(const int, position);
    OperatorWindow test;
    const QSlider &slider{openGfid(test)};

    QTest::keyPress(&test.native(), static_cast<Qt::Key>(key));
    QCOMPARE(slider.value(), position);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QTest::keyRelease(&test.native(), static_cast<Qt::Key>(key));
    QCOMPARE(test.takeCalls(), QStringList{gfid(position)});
    QCOMPARE(test.takeLog(), QStringList{"Set GFID value OK"});
    QVERIFY(!slider.isSliderDown());
}

void SliderHandTest::aKeyThatIsHeldSendsOnceAtItsEnd()
{
    OperatorWindow test;
    const QSlider &slider{openGfid(test)};

    test.key(QEvent::KeyPress, Qt::Key_Right);
    for (int repeat{0}; repeat < 20; ++repeat) {
        // X11 tells a release before each repeated press, Windows does not.
        test.key(QEvent::KeyRelease, Qt::Key_Right, true);
        test.key(QEvent::KeyPress, Qt::Key_Right, true);
    }
    QCOMPARE(slider.value(), 321);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    test.key(QEvent::KeyRelease, Qt::Key_Right);
    QCOMPARE(test.takeCalls(), QStringList{gfid(321)});

    test.child<QWidget>("logView").setFocus();
    QCOMPARE(test.takeCalls(), QStringList{});
}

void SliderHandTest::aKeyThatMovesNothingSendsNothing()
{
    OperatorWindow test;
    QSlider &slider{openGfid(test)};
    slider.setValue(slider.maximum());
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_End, Qt::Key_A, Qt::Key_Shift, Qt::Key_Return}) {
        QTest::keyClick(&test.native(), key);
    }
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void SliderHandTest::twoKeysSendWhatTheyMoved()
{
    OperatorWindow test;
    openGfid(test);
    test.key(QEvent::KeyPress, Qt::Key_Right);
    test.key(QEvent::KeyPress, Qt::Key_PageUp);
    test.key(QEvent::KeyRelease, Qt::Key_Right);
    QCOMPARE(test.takeCalls(), QStringList{gfid(311)});
    test.key(QEvent::KeyPress, Qt::Key_PageUp, true);
    QCOMPARE(test.takeCalls(), QStringList{});
    test.key(QEvent::KeyRelease, Qt::Key_PageUp);
    QCOMPARE(test.takeCalls(), QStringList{gfid(321)});
}

void SliderHandTest::leavingSendsWhatTheKeyMoved_data()
{
    QTest::addColumn<QString>("way");
    for (const char *const way : {"Tab", "click", "another window", "another page"}) {
        QTest::newRow(way) << way;
    }
}

void SliderHandTest::leavingSendsWhatTheKeyMoved()
{
    QFETCH(const QString, way);
    OperatorWindow test;
    openGfid(test);
    test.key(QEvent::KeyPress, Qt::Key_Right);
    QWidget other;

    if (way == "Tab") {
        QTest::keyPress(&test.native(), Qt::Key_Tab);
    } else if (way == "click") {
        test.clickAt(test.middleOf("logView"));
    } else if (way == "another window") {
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
    } else {
        test.showPage("LutSection");
    }
    QCOMPARE(test.takeCalls(), QStringList{gfid(301)});

    // The release goes elsewhere by now.
    test.key(QEvent::KeyRelease, Qt::Key_Right);
    QCOMPARE(test.takeCalls(), QStringList{});
}

void SliderHandTest::aSliderThatIsDisabledMeanwhileIsNotStuck()
{
    OperatorWindow test;
    QSlider &slider{openGfid(test)};
    test.key(QEvent::KeyPress, Qt::Key_Right);
    slider.setEnabled(false);
    QCOMPARE(test.takeCalls(), QStringList{gfid(301)});
    test.key(QEvent::KeyRelease, Qt::Key_Right);
    slider.setEnabled(true);
    slider.setValue(500);
    slider.setFocus();
    // Of the spin box that had the focus meanwhile.
    QCOMPARE(test.takeCalls(), QStringList{gfid(500)});
    QTest::keyClick(&test.native(), Qt::Key_Shift);
    QCOMPARE(test.takeCalls(), QStringList{});
    QVERIFY(!slider.isSliderDown());
}

void SliderHandTest::aPressBesideTheHandleBringsItThereAndSendsOnce_data()
{
    QTest::addColumn<std::size_t>("pair");
    QTest::addColumn<double>("part");
    for (std::size_t index{0}; index < pairs.size(); ++index) {
        for (const double part : {0.1, 0.3, 0.6, 0.9}) {
            QTest::addRow("%s at %g", pairs.at(index).slider, part) << index << part;
        }
    }
}

void SliderHandTest::aPressBesideTheHandleBringsItThereAndSendsOnce()
{
    QFETCH(const std::size_t, pair);
    QFETCH(const double, part);
    OperatorWindow test;
    const Pair &row{pairs.at(pair)};
    openCameraPage(test, row.page);
    auto &slider = test.child<QSlider>(row.slider);
    // On the other side, so that the press is beside the handle.
    slider.setValue(part < 0.5 ? slider.maximum() : slider.minimum());
    QSignalSpy released{&slider, &QSlider::sliderReleased};
    const QPoint place{placeAt(test, slider, part)};

    test.press(place);
    QVERIFY(slider.isSliderDown());
    const double range{static_cast<double>(slider.maximum() - slider.minimum())};
    const double reached{(slider.value() - slider.minimum()) / range};
    // Half a step of the slider, and half of the handle's length at the ends.
    QVERIFY2(qAbs(reached - part) <= 0.5 / range + 0.05, qPrintable(QString::number(reached)));
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    const int brought{slider.value()};

    test.release(place);
    QCOMPARE(slider.value(), brought);
    QVERIFY(!slider.isSliderDown());
    QCOMPARE(released.count(), 1);
    QCOMPARE(commandsOf(test.takeCalls()).size(), 1);
    QCOMPARE(test.takeLog().size(), 1);
    // No page is stepped while the button is held.
    QTest::qWait(10);
    QCOMPARE(slider.value(), brought);
}

void SliderHandTest::aPressBesideTheHandleGoesOnAsADrag()
{
    OperatorWindow test;
    const QSlider &slider{openGfid(test)};

    test.press(placeAt(test, slider, 0.8));
    const int brought{slider.value()};
    QVERIFY(brought > 700);
    QTest::mouseMove(&test.native(), placeAt(test, slider, 0.5));
    QVERIFY(slider.value() < 600);
    QVERIFY(slider.value() > 400);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    test.release(placeAt(test, slider, 0.5));
    QCOMPARE(test.takeCalls(), QStringList{gfid(slider.value())});
}

void SliderHandTest::aPressOnTheHandleMovesNothing()
{
    OperatorWindow test;
    QSlider &slider{openGfid(test)};
    slider.setValue(500);
    const QPoint place{placeAt(test, slider, 0.5) + QPoint{3, 0}};
    test.press(place);
    QVERIFY(slider.isSliderDown());
    QCOMPARE(slider.value(), 500);
    test.release(place);
    QCOMPARE(test.takeCalls(), QStringList{gfid(500)});
}

void SliderHandTest::aHandleThatCannotBeHeldIsBroughtAndSent()
{
    StyleWithoutHandle style;
    OperatorWindow test;
    QSlider &slider{openGfid(test)};
    slider.setStyle(&style);

    test.press(placeAt(test, slider, 0.8));
    const int brought{slider.value()};
    QVERIFY(brought > 700);
    QVERIFY(!slider.isSliderDown());
    QCOMPARE(test.takeCalls(), QStringList{gfid(brought)});
    test.release(placeAt(test, slider, 0.8));
    QCOMPARE(slider.value(), brought);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void SliderHandTest::theOtherButtonsBringNothing()
{
    OperatorWindow test;
    const QSlider &slider{openGfid(test)};
    QTest::mouseClick(&test.native(), Qt::RightButton, Qt::NoModifier, placeAt(test, slider, 0.8));
    QCOMPARE(slider.value(), 300);
    QCOMPARE(test.takeCalls(), QStringList{});
}

void SliderHandTest::theLeftButtonBringsNothingWhileAnotherIsHeld()
{
    OperatorWindow test;
    const QSlider &slider{openGfid(test)};
    const QPoint place{placeAt(test, slider, 0.8)};
    QTest::mousePress(&test.native(), Qt::RightButton, Qt::NoModifier, place);
    test.clickAt(place);
    QTest::mouseRelease(&test.native(), Qt::RightButton, Qt::NoModifier, place);
    QCOMPARE(slider.value(), 300);
    QCOMPARE(test.takeCalls(), QStringList{});

    test.clickAt(place);
    QVERIFY(slider.value() > 300);
    QCOMPARE(test.takeCalls().size(), 1);
}

void SliderHandTest::aDisabledSliderStays()
{
    OperatorWindow test;
    QSlider &slider{openGfid(test)};
    slider.setEnabled(false);
    test.clickAt(placeAt(test, slider, 0.8));
    QCOMPARE(slider.value(), 300);
    QCOMPARE(test.takeCalls(), QStringList{});
}

void SliderHandTest::aSliderThatStandsUprightIsMovedAsWell_data()
{
    QTest::addColumn<double>("part");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("at the top") << 0.0 << 100 << 100;
    QTest::newRow("above the handle") << 0.2 << 75 << 85;
    QTest::newRow("below the handle") << 0.9 << 5 << 15;
    QTest::newRow("at the bottom") << 1.0 << 0 << 0;
}

void SliderHandTest::aSliderThatStandsUprightIsMovedAsWell()
{
    QFETCH(const double, part);
    QFETCH(const int, lowest);
    QFETCH(const int, highest);
    // The form has none; the hand knows no window, and any slider may be turned one day.
    const OperatorInput input;
    QSlider slider{Qt::Vertical};
    slider.setRange(0, 100);
    slider.setValue(50);
    slider.resize(30, 300);
    slider.show();
    QVERIFY(QTest::qWaitForWindowActive(&slider));
    const QSignalSpy released{&slider, &QSlider::sliderReleased};

    const QPoint place{slider.width() / 2, static_cast<int>((slider.height() - 1) * part)};
    QTest::mouseClick(slider.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    QVERIFY2(slider.value() >= lowest && slider.value() <= highest,
             qPrintable(QString::number(slider.value())));
    QCOMPARE(released.count(), 1);
}

PILOTEL_TEST_CLASS(SliderHandTest)
#include "tst_slider_hand.moc"
