// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of what is typed into a spin box: only the end of the edit sends it.
#include "camerapage.h"
#include "fittedwindow.h"
#include "menuhand.h"
#include "operatorwindow.h"
#include "regioncoordinates.h"
#include "testclass.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QTest>
#include <QWindow>
#include <qtestspontaneevent.h>

#include <memory>

namespace
{

/// A spin box and what it sends.
struct TypedBox
{
    const char *page;
    const char *name;
    const char *call; ///< The value is its %1.
};

const TypedBox plainBox{"LutSection", "Roi0IncX2", "setRoiX2(%1, 0, false, false, false) -> true"};
const TypedBox coupledBox{"ExpertMode", "gfidEdit", "setGfid(%1) -> true"};

QString callOf(const TypedBox &box, int value)
{
    return QString{box.call}.arg(value);
}

void addBoxes()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("call");
    for (const TypedBox &box : {plainBox, coupledBox}) {
        QTest::newRow(box.name) << box.page << box.name << box.call;
    }
}

void addEnterKeys()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int{Qt::Key_Return};
    QTest::newRow("Enter") << int{Qt::Key_Enter};
}

/// What a key that is held repeats, as it reaches a window.
void repeatKey(QWindow &window, int key)
{
    constexpr int times{20};
    for (int repeat{0}; repeat < times; ++repeat) {
        // X11 tells a release before each repeated press, Windows does not.
        for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
            sendKey(window, type, key, true, QStringLiteral("\r"));
        }
    }
}

void typeKeys(OperatorWindow &test, const QByteArray &keys)
{
    for (const char key : keys) {
        QTest::keyClick(&test.native(), key);
    }
}

/// Selects what a spin box shows, as a hand does, and types; the edit is not finished.
void typeInto(OperatorWindow &test, const QString &name, const QByteArray &keys)
{
    const auto &box = test.child<QAbstractSpinBox>(name);
    test.clickAt(test.placeOf(name, {5, box.height() / 2}));
    QVERIFY(box.hasFocus());
    QTest::keyClick(&test.native(), Qt::Key_A, Qt::ControlModifier);
    typeKeys(test, keys);
    QCOMPARE(box.text(), QString{keys});
}

/// The right button in the text of a spin box; returns once the menu is closed.
void rightClick(OperatorWindow &test, const QString &name)
{
    const auto &box = test.child<QAbstractSpinBox>(name);
    QTest::mouseClick(&test.native(), Qt::RightButton, Qt::NoModifier,
                      test.placeOf(name, {5, box.height() / 2}));
    QCoreApplication::processEvents();
    // What the off-screen platform cannot do for menus.
    test.warnings.take();
}

} // namespace

class TypingTest : public QObject
{
    Q_OBJECT

private slots:
    void aMenuFinishesNoEdit_data() { addBoxes(); }
    void aMenuFinishesNoEdit();
    void aMenuOfTheKeyboardFinishesNoEdit();
    void aMenuOverABoxThatNobodyEditedSendsNothing();
    void aMenuRaisesNoBoxAboutTheOrder();
    void aChoiceOfTheMenuIsAnEditLikeAnyOther();
    void leavingAfterAMenuSendsOnce();
    void aHeldEnterSendsOnce_data() { addEnterKeys(); }
    void aHeldEnterSendsOnce();
    void aHeldEnterLeavesTheBoxOpen_data() { addEnterKeys(); }
    void aHeldEnterLeavesTheBoxOpen();
    void closingTheWindowSendsWhatIsTyped_data();
    void closingTheWindowSendsWhatIsTyped();
};

void TypingTest::aMenuFinishesNoEdit()
{
    QFETCH(const QString, page);
    QFETCH(const QString, name);
    QFETCH(const QString, call);
    OperatorWindow test;
    openCameraPage(test, page);
    const auto &box = test.child<QAbstractSpinBox>(name);
    const auto &text = box.findChild<QLineEdit *>()[0];
    typeInto(test, name, "12");
    test.takeCallsAndRecords();

    MenuHand hand;
    for (int times{1}; times <= 3; ++times) {
        rightClick(test, name);
        QCOMPARE(hand.count, times);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(test.takeCallsAndRecords(), QStringList{});
        QVERIFY(box.hasFocus());
        QCOMPARE(box.text(), QString{"12"});
        QCOMPARE(text.cursorPosition(), 2);
        QVERIFY(!text.hasSelectedText());
    }

    // Typing goes on where it was.
    typeKeys(test, "3");
    QCOMPARE(box.text(), QString{"123"});
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QTest::keyClick(&test.native(), Qt::Key_Return);
    QCOMPARE(test.takeCalls(), QStringList{call.arg(123)});
}

void TypingTest::aMenuOfTheKeyboardFinishesNoEdit()
{
    OperatorWindow test;
    openCameraPage(test, plainBox.page);
    auto &box = test.child<QAbstractSpinBox>(plainBox.name);
    typeInto(test, plainBox.name, "12");
    test.takeCallsAndRecords();

    MenuHand hand;
    QContextMenuEvent event{QContextMenuEvent::Keyboard, box.rect().center()};
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&box, &event);
    test.warnings.take();
    QCOMPARE(hand.count, 1);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(box.text(), QString{"12"});
}

void TypingTest::aMenuOverABoxThatNobodyEditedSendsNothing()
{
    OperatorWindow test;
    openCameraPage(test, coupledBox.page);
    test.child<QWidget>("logView").setFocus();
    QCoreApplication::processEvents();
    test.takeCallsAndRecords();

    MenuHand hand;
    rightClick(test, coupledBox.name);
    QCOMPARE(hand.count, 1);
    QVERIFY(test.child<QWidget>(coupledBox.name).hasFocus());
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void TypingTest::aMenuRaisesNoBoxAboutTheOrder()
{
    OperatorWindow test;
    openRegion(test, 0);
    show(test, "Roi0IncX2", 200);
    typeInto(test, "Roi0IncX1", "300");
    test.takeCallsAndRecords();

    QStringList shownOverTheMenu;
    MenuHand hand{[&] {
        shownOverTheMenu += test.boxes.takeShown();
    }};
    rightClick(test, "Roi0IncX1");
    QCOMPARE(hand.count, 1);
    QCOMPARE(shownOverTheMenu, QStringList{});
    QCOMPARE(test.boxes.takeShown(), QStringList{});
    QCOMPARE(shown(test, "Roi0IncX1"), 300);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});

    test.boxes.expect();
    QTest::keyClick(&test.native(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(test.boxes.takeShown(), QStringList{orderBox(0, "X1")});
    QCOMPARE(test.takeCalls(), QStringList{sent("X1", 300, 0, flagsOfOnly.at(0))});
    QCOMPARE(shown(test, "Roi0IncX1"), 200);
}

void TypingTest::aChoiceOfTheMenuIsAnEditLikeAnyOther()
{
    OperatorWindow test;
    openCameraPage(test, plainBox.page);
    const auto &box = test.child<QSpinBox>(plainBox.name);
    typeInto(test, plainBox.name, "12");
    test.takeCallsAndRecords();

    // Step up, the last but one.
    MenuHand hand{[&] {
        QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), Qt::Key_Up);
        QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), Qt::Key_Up);
        QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), Qt::Key_Return);
    }};
    rightClick(test, plainBox.name);
    QCOMPARE(hand.count, 1);
    QCOMPARE(box.value(), 13);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QTest::keyClick(&test.native(), Qt::Key_Return);
    QCOMPARE(test.takeCalls(), QStringList{callOf(plainBox, 13)});
}

void TypingTest::leavingAfterAMenuSendsOnce()
{
    OperatorWindow test;
    openCameraPage(test, coupledBox.page);
    typeInto(test, coupledBox.name, "12");
    test.takeCallsAndRecords();
    MenuHand hand;
    rightClick(test, coupledBox.name);
    QCOMPARE(test.takeCalls(), QStringList{});

    test.clickAt(test.middleOf("logView"));
    QVERIFY(!test.child<QWidget>(coupledBox.name).hasFocus());
    QCOMPARE(test.takeCalls(), QStringList{callOf(coupledBox, 12)});
}

void TypingTest::aHeldEnterSendsOnce()
{
    QFETCH(const int, key);
    OperatorWindow test;
    openCameraPage(test, plainBox.page);
    typeInto(test, plainBox.name, "12");
    test.takeCallsAndRecords();

    test.key(QEvent::KeyPress, static_cast<Qt::Key>(key));
    repeatKey(test.native(), key);
    test.key(QEvent::KeyRelease, static_cast<Qt::Key>(key));
    QCOMPARE(test.takeCalls(), QStringList{callOf(plainBox, 12)});

    // The next one is one more.
    QTest::keyClick(&test.native(), static_cast<Qt::Key>(key));
    QCOMPARE(test.takeCalls(), QStringList{callOf(plainBox, 12)});
}

void TypingTest::aHeldEnterLeavesTheBoxOpen()
{
    QFETCH(const int, key);
    OperatorWindow test;
    openRegion(test, 0);
    show(test, "Roi0IncX2", 200);
    typeInto(test, "Roi0IncX1", "300");
    test.takeCallsAndRecords();

    bool stillOpen{false};
    test.boxes.expect([&](QDialog &box) {
        repeatKey(*box.windowHandle(), key);
        QCoreApplication::processEvents();
        stillOpen = box.isVisible();
        sendKey(*box.windowHandle(), QEvent::KeyRelease, key);
        // Pressed anew it answers the box, and is let go over the window.
        sendKey(*box.windowHandle(), QEvent::KeyPress, key);
    });
    QTest::keyPress(&test.native(), static_cast<Qt::Key>(key));
    test.key(QEvent::KeyRelease, static_cast<Qt::Key>(key));
    QVERIFY(stillOpen);
    QCOMPARE(test.boxes.takeShown(), QStringList{orderBox(0, "X1")});
    QCOMPARE(test.takeCalls(), QStringList{sent("X1", 300, 0, flagsOfOnly.at(0))});
}

void TypingTest::closingTheWindowSendsWhatIsTyped_data()
{
    QTest::addColumn<bool>("fitted");
    QTest::addColumn<bool>("wrongOrder");
    QTest::newRow("bare") << false << false;
    QTest::newRow("bare, wrong order") << false << true;
    QTest::newRow("fitted") << true << false;
    QTest::newRow("fitted, wrong order") << true << true;
}

void TypingTest::closingTheWindowSendsWhatIsTyped()
{
    QFETCH(const bool, fitted);
    QFETCH(const bool, wrongOrder);
    OperatorWindow test;
    openRegion(test, 0);
    show(test, "Roi0IncX2", 200);
    std::unique_ptr<FittedWindow> around;
    if (fitted) {
        test.window().hide();
        around = std::make_unique<FittedWindow>(test.window());
        test.window().show();
        QVERIFY(QTest::qWaitForWindowActive(around.get()));
    }
    const int typed{wrongOrder ? 300 : 100};
    type(test, "Roi0IncX1", typed);
    test.takeCallsAndRecords();
    if (wrongOrder) {
        test.boxes.expect();
    }

    QWidget &top{fitted ? static_cast<QWidget &>(*around) : test.window()};
    QCoreApplication::postEvent(top.windowHandle(), new QEvent{QEvent::Close});
    QCoreApplication::processEvents();
    QVERIFY(!top.isVisible());
    QVERIFY(!test.window().isVisible());
    QCOMPARE(test.boxes.takeShown(), wrongOrder ? QStringList{orderBox(0, "X1")} : QStringList{});
    QCOMPARE(test.takeCalls(), QStringList{sent("X1", typed, 0, flagsOfOnly.at(0))});
}

PILOTEL_TEST_CLASS(TypingTest)
#include "tst_typing.moc"
