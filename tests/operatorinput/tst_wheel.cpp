// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the wheel: it changes no control by accident and moves the focus nowhere.
#include "camerapage.h"
#include "controls.h"
#include "operatorwindow.h"
#include "testclass.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

class WheelTest : public QObject
{
    Q_OBJECT

private slots:
    void aComboBoxIgnoresIt_data();
    void aComboBoxIgnoresIt();
    void aTabBarIgnoresIt();
    void withoutTheFocusItChangesNothing_data();
    void withoutTheFocusItChangesNothing();
    void withTheFocusASpinBoxObeys();
    void withTheFocusASliderObeysAndIsSent();
    void aTurnThatMovesNoSliderSendsNothing();
    void aSliderThatIsDraggedIsSentByItsReleaseAlone();
    void anEditGoesOnWhileTheLogIsScrolled();
    void whatIsIgnoredScrollsWhatIsAround();
    void theListOfAComboBoxScrolls();
    void aWindowWithNothingUnderThePointerGetsIt();
};

void WheelTest::aComboBoxIgnoresIt_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("comboBox");
    QTest::addColumn<bool>("focused");
    const auto row = [](const char *page, const char *comboBox) {
        QTest::addRow("%s", comboBox) << page << comboBox << false;
        QTest::addRow("%s with the focus", comboBox) << page << comboBox << true;
    };
    row("ImageProcSection", "VideoOutputCB");
    row("ImageProcSection", "frameRateCB");
    row("LutSection", "contrastTypeEdit");
    row("LutSection", "lutColorEdit");
    row("EdgeSection", "EdgeCorrectionCB");
}

void WheelTest::aComboBoxIgnoresIt()
{
    QFETCH(const QString, page);
    QFETCH(const QString, comboBox);
    QFETCH(const bool, focused);
    OperatorWindow test;
    openCameraPage(test, page);
    auto &box = test.child<QComboBox>(comboBox);
    QVERIFY(box.count() > 1);
    QWidget &other{test.child<QWidget>("logView")};
    (focused ? static_cast<QWidget &>(box) : other).setFocus();
    const int before{box.currentIndex()};

    for (const int notches : {-1, 1, -3, 3}) {
        test.turn(test.middleOf(comboBox), notches);
        QCOMPARE(box.currentIndex(), before);
    }
    QCOMPARE(box.hasFocus(), focused);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void WheelTest::aTabBarIgnoresIt()
{
    OperatorWindow test;
    openCameraPage(test, "LutSection");
    for (const char *const name : {"Principal_tab", "KR_tab"}) {
        const auto &tabs = test.child<QTabWidget>(name);
        const int before{tabs.currentIndex()};
        const QPoint place{tabs.tabBar()->mapTo(&test.window(), tabs.tabBar()->tabRect(before).center())};
        test.turn(place, -1);
        QCOMPARE(tabs.currentIndex(), before);
        test.turn(place, 1);
        QCOMPARE(tabs.currentIndex(), before);
    }
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void WheelTest::withoutTheFocusItChangesNothing_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("control");
    for (const Pair &pair : pairs) {
        QTest::newRow(pair.slider) << pair.page << pair.slider;
        QTest::newRow(pair.box) << pair.page << pair.box;
    }
    QTest::newRow("Roi0IncX1") << "LutSection"
                               << "Roi0IncX1";
}

void WheelTest::withoutTheFocusItChangesNothing()
{
    QFETCH(const QString, page);
    QFETCH(const QString, control);
    OperatorWindow test;
    openCameraPage(test, page);
    test.child<QWidget>("readParamButtonUser").setFocus();
    auto &widget = test.child<QWidget>(control);
    const QVariant before{widget.property("value")};

    for (const int notches : {-1, 1, -3, 3}) {
        test.turn(test.middleOf(control), notches);
        QCOMPARE(widget.property("value"), before);
    }
    QVERIFY(test.child<QWidget>("readParamButtonUser").hasFocus());
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void WheelTest::withTheFocusASpinBoxObeys()
{
    OperatorWindow test;
    openCameraPage(test, "LutSection");
    auto &box = test.child<QSpinBox>("Roi0IncX1");
    box.setValue(20);
    box.setFocus();

    test.turn(test.middleOf("Roi0IncX1"), 2);
    QCOMPARE(box.value(), 22);
    test.turn(test.middleOf("Roi0IncX1"), -1);
    QCOMPARE(box.value(), 21);
    // As after its arrows, the edit is not finished yet.
    QCOMPARE(test.takeCalls(), QStringList{});
    QTest::keyClick(&test.native(), Qt::Key_Enter);
    QCOMPARE(test.takeCalls(), QStringList{"setRoiX1(21, 0, false, false, false) -> true"});
}

void WheelTest::withTheFocusASliderObeysAndIsSent()
{
    OperatorWindow test;
    openCameraPage(test, "ExpertMode");
    auto &slider = test.child<QSlider>("gfidSlider");
    slider.setValue(300);
    slider.setFocus();
    const int step{slider.singleStep() * QApplication::wheelScrollLines()};

    test.turn(test.middleOf("gfidSlider"), 1);
    QCOMPARE(slider.value(), 300 + step);
    QCOMPARE(test.takeCalls(), QStringList{QStringLiteral("setGfid(%1) -> true").arg(300 + step)});
    test.turn(test.middleOf("gfidSlider"), -1);
    QCOMPARE(test.takeCalls(), QStringList{"setGfid(300) -> true"});
}

void WheelTest::aTurnThatMovesNoSliderSendsNothing()
{
    OperatorWindow test;
    openCameraPage(test, "ExpertMode");
    auto &slider = test.child<QSlider>("gfidSlider");
    slider.setValue(slider.maximum());
    slider.setFocus();

    test.turn(test.middleOf("gfidSlider"), 1);
    QCOMPARE(test.takeCalls(), QStringList{});
}

void WheelTest::aSliderThatIsDraggedIsSentByItsReleaseAlone()
{
    OperatorWindow test;
    openCameraPage(test, "ExpertMode");
    auto &slider = test.child<QSlider>("gfidSlider");
    const QPoint place{test.middleOf("gfidSlider")};

    test.press(place);
    QVERIFY(slider.isSliderDown());
    test.turn(place, 1);
    QVERIFY(slider.isSliderDown());
    QCOMPARE(test.takeCalls(), QStringList{});
    test.release(place);
    QCOMPARE(test.takeCalls(), QStringList{QStringLiteral("setGfid(%1) -> true").arg(slider.value())});
}

void WheelTest::anEditGoesOnWhileTheLogIsScrolled()
{
    OperatorWindow test;
    openCameraPage(test, "LutSection");
    auto &box = test.child<QSpinBox>("Roi0IncX1");
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, "33");
    auto &log = test.child<QPlainTextEdit>("logView");
    const int before{log.verticalScrollBar()->value()};
    QVERIFY(before > 0);

    test.turn(test.middleOf("logView"), 1);
    QVERIFY(log.verticalScrollBar()->value() < before);
    QVERIFY(box.hasFocus());
    QCOMPARE(box.text(), "33");
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void WheelTest::whatIsIgnoredScrollsWhatIsAround()
{
    // Any window of the program may scroll; the main window itself does on a small screen.
    const OperatorInput input;
    QScrollArea area;
    auto *const content = new QWidget;
    auto *const layout = new QVBoxLayout{content};
    QVector<QWidget *> controls{new QComboBox, new QSlider{Qt::Horizontal}, new QSpinBox, new QTabBar};
    static_cast<QComboBox *>(controls[0])->addItems({"one", "two", "three"});
    for (const char *const title : {"one", "two"}) {
        static_cast<QTabBar *>(controls[3])->addTab(title);
    }
    for (QWidget *const control : qAsConst(controls)) {
        layout->addWidget(control);
    }
    layout->addStretch();
    content->setMinimumHeight(2000);
    area.setWidget(content);
    area.resize(300, 700);
    area.show();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    area.setFocus();

    for (QWidget *const control : qAsConst(controls)) {
        area.verticalScrollBar()->setValue(0);
        const QPoint place{control->mapTo(&area, control->rect().center())};
        QVERIFY(area.rect().contains(place));
        turnWheelOver(area, place, -1);
        QVERIFY2(area.verticalScrollBar()->value() > 0, control->metaObject()->className());
        QVERIFY(!control->hasFocus());
    }
}

void WheelTest::theListOfAComboBoxScrolls()
{
    const OperatorInput input;
    QComboBox box;
    for (int item{0}; item < 50; ++item) {
        box.addItem(QString::number(item));
    }
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    WarningWatcher remarks;
    box.showPopup();
    QAbstractItemView &list{*box.view()};
    QVERIFY(QTest::qWaitForWindowExposed(list.window()));
    QScrollBar &scrollBar{*list.verticalScrollBar()};
    const int before{scrollBar.value()};

    const QPoint place{list.mapTo(list.window(), list.rect().center())};
    turnWheelOver(*list.window(), place, -1);
    QVERIFY(scrollBar.value() > before);
    QCOMPARE(box.currentIndex(), 0);
    box.hidePopup();
    // What the off-screen platform cannot do for the list.
    remarks.take();
}

void WheelTest::aWindowWithNothingUnderThePointerGetsIt()
{
    const OperatorInput input;
    QSlider slider{Qt::Horizontal};
    slider.resize(200, 30);
    slider.show();
    QVERIFY(QTest::qWaitForWindowActive(&slider));
    slider.setFocus();
    turnWheelOver(slider, {100, 15}, 1);
    QCOMPARE(slider.value(), slider.singleStep() * QApplication::wheelScrollLines());
}

PILOTEL_TEST_CLASS(WheelTest)
#include "tst_wheel.moc"
