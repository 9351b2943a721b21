// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the regions of interest: a click that ends an edit in the wrong order does its work after the box.
#include "mouse.h"
#include "regioncoordinates.h"
#include "testclass.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace
{

const char *const editSent{"setRoiX1(300, 0, false, false, false) -> true"};

/// A place in the window, in its own coordinates.
QPoint placeOf(TestWindow &test, const QWidget &widget, const QPoint &place)
{
    return widget.mapTo(&test.window(), place);
}

QPoint middleOf(TestWindow &test, const QString &name)
{
    const auto &widget = test.child<QWidget>(name);
    return placeOf(test, widget, widget.rect().center());
}

QPoint upArrowOf(TestWindow &test, const QString &name)
{
    const auto &box = test.child<QSpinBox>(name);
    return placeOf(test, box, {box.width() - 6, box.height() / 4});
}

QPoint tabOf(TestWindow &test, const QString &name, int index)
{
    const QTabBar &tabs{*test.child<QTabWidget>(name).tabBar()};
    return placeOf(test, tabs, tabs.tabRect(index).center());
}

/// Types a first coordinate beyond the second one.
void typeWrongOrder(TestWindow &test)
{
    openRegion(test, 0);
    show(test, "Roi0IncX1", 100);
    show(test, "Roi0IncX2", 200);
    type(test, "Roi0IncX1", 300);
}

/// Clicks there as a hand does: the button is released before the box that the press raises is answered.
void click(TestWindow &test, const QPoint &place)
{
    QWindow *const window{test.window().windowHandle()};
    test.boxes.expect([window, place](QDialog &box) {
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, place);
        BoxWatcher::pressOk(box);
    });
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
    QCoreApplication::processEvents();
    QCOMPARE(test.boxes.takeShown(), QStringList{orderBox(0, "X1")});
}

} // namespace

class RegionClicksTest : public QObject
{
    Q_OBJECT

private slots:
    void theArrowOfAnotherBoxStepsOnce();
    void aCheckBoxIsChecked();
    void disconnectDisconnects();
    void readReads();
    void aComboBoxOpens();
    void aPageOfTheCameraIsShown();
    void aPageOfTheWindowIsShown();
    void aSliderIsLetGo();
    void aButtonThatIsHeldBeyondTheBoxIsNotReleased();
    void anotherButtonMeanwhileReleasesNothing();
};

void RegionClicksTest::theArrowOfAnotherBoxStepsOnce()
{
    TestWindow test;
    typeWrongOrder(test);
    const int before{shown(test, "Roi0IncY1")};

    click(test, upArrowOf(test, "Roi0IncY1"));
    QCOMPARE(shown(test, "Roi0IncY1"), before + 1);
    // An arrow that is held steps again after half a second.
    QTest::qWait(900);
    QCOMPARE(shown(test, "Roi0IncY1"), before + 1);
    QCOMPARE(test.takeCalls(), QStringList{editSent});
}

void RegionClicksTest::aCheckBoxIsChecked()
{
    TestWindow test;
    typeWrongOrder(test);
    show(test, "Roi1IncX1", 11);
    show(test, "Roi1IncX2", 12);
    show(test, "Roi1IncY1", 13);
    show(test, "Roi1IncY2", 14);
    auto &box = test.child<QCheckBox>("roi1IncEnable");

    click(test, placeOf(test, box, {8, box.height() / 2}));
    QVERIFY(box.isChecked());
    QVERIFY(!box.isDown());
    QCOMPARE(test.takeCalls(), (QStringList{editSent, "setRoiX1(11, 1, true, false, false) -> true",
                                            "setRoiX2(12, 1, true, false, false) -> true",
                                            "setRoiY1(13, 1, true, false, false) -> true",
                                            "setRoiY2(14, 1, true, false, false) -> true"}));
}

void RegionClicksTest::disconnectDisconnects()
{
    TestWindow test;
    typeWrongOrder(test);

    click(test, middleOf(test, "disconnectDeviceButton"));
    QCOMPARE(test.takeCalls(), (QStringList{editSent, "closeDevice(device)", "get_instance() -> sdk",
                                            "releaseDeviceManager(manager)"}));
    QVERIFY(!test.child<QWidget>("paramSection").isEnabled());
    QVERIFY(!test.child<QAbstractButton>("disconnectDeviceButton").isDown());
}

void RegionClicksTest::readReads()
{
    TestWindow test;
    typeWrongOrder(test);

    click(test, middleOf(test, "readParamButtonUser"));
    const QStringList calls{test.takeCalls()};
    QCOMPARE(calls.first(), QString{editSent});
    QCOMPARE(calls.at(1), QStringLiteral("setTarget(0) -> true"));
    QCOMPARE(calls.count("startReading() -> true"), 2);
    QVERIFY(test.takeLog().contains("End reading camera parameters"));
    QVERIFY(!test.child<QAbstractButton>("readParamButtonUser").isDown());
}

void RegionClicksTest::aComboBoxOpens()
{
    TestWindow test;
    typeWrongOrder(test);
    auto &comboBox = test.child<QComboBox>("contrastTypeEdit");
    const int before{comboBox.currentIndex()};

    click(test, middleOf(test, "contrastTypeEdit"));
    QVERIFY(comboBox.view()->isVisible());
    comboBox.hidePopup();
    // What the off-screen platform cannot do for the list.
    test.warnings.take();
    QCOMPARE(comboBox.currentIndex(), before);
    QCOMPARE(test.takeCalls(), QStringList{editSent});
}

void RegionClicksTest::aPageOfTheCameraIsShown()
{
    TestWindow test;
    typeWrongOrder(test);

    click(test, tabOf(test, "KR_tab", 2));
    QCOMPARE(test.child<QTabWidget>("KR_tab").currentIndex(), 2);
    QCOMPARE(test.takeCalls(), QStringList{editSent});
}

void RegionClicksTest::aPageOfTheWindowIsShown()
{
    TestWindow test;
    typeWrongOrder(test);

    click(test, tabOf(test, "Principal_tab", 0));
    QCOMPARE(test.child<QTabWidget>("Principal_tab").currentIndex(), 0);
    const QStringList calls{test.takeCalls()};
    QCOMPARE(calls.mid(0, 2), (QStringList{editSent, "setTarget(0) -> true"}));
    QCOMPARE(calls.size(), 3);
    QVERIFY(calls.last().startsWith("getTemperatures() -> true"));
}

void RegionClicksTest::aSliderIsLetGo()
{
    TestWindow test;
    typeWrongOrder(test);
    auto &slider = test.child<QSlider>("gammaSlider");
    slider.setValue(slider.minimum());

    // On its handle, which a release sends from.
    click(test, placeOf(test, slider, {4, slider.height() / 2}));
    QVERIFY(!slider.isSliderDown());
    QCOMPARE(test.takeCalls(), (QStringList{editSent, "setGamma(32768) -> true"}));
}

void RegionClicksTest::aButtonThatIsHeldBeyondTheBoxIsNotReleased()
{
    TestWindow test;
    typeWrongOrder(test);
    QWindow *const window{test.window().windowHandle()};
    const QPoint place{middleOf(test, "disconnectDeviceButton")};
    test.boxes.expect([](QDialog &box) { QTest::keyClick(&box, Qt::Key_Enter); });

    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
    QCoreApplication::processEvents();
    QVERIFY(test.child<QAbstractButton>("disconnectDeviceButton").isDown());
    QCOMPARE(test.takeCalls(), QStringList{editSent});

    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(test.takeCalls(),
             (QStringList{"closeDevice(device)", "get_instance() -> sdk", "releaseDeviceManager(manager)"}));
    test.boxes.takeShown();
}

void RegionClicksTest::anotherButtonMeanwhileReleasesNothing()
{
    TestWindow test;
    typeWrongOrder(test);
    QWindow *const window{test.window().windowHandle()};
    const QPoint place{middleOf(test, "disconnectDeviceButton")};
    test.boxes.expect([](QDialog &box) { QTest::keyClick(&box, Qt::Key_Enter); });
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
    QCoreApplication::processEvents();
    QCOMPARE(test.takeCalls(), QStringList{editSent});

    QTest::mousePress(window, Qt::RightButton, Qt::NoModifier, place);
    QTest::mouseRelease(window, Qt::RightButton, Qt::NoModifier, place);
    QVERIFY(test.child<QAbstractButton>("disconnectDeviceButton").isDown());
    QCOMPARE(test.takeCalls(), QStringList{});

    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(test.takeCalls(),
             (QStringList{"closeDevice(device)", "get_instance() -> sdk", "releaseDeviceManager(manager)"}));
    test.boxes.takeShown();
}

PILOTEL_TEST_CLASS(RegionClicksTest)
#include "tst_region_clicks.moc"
