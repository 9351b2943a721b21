// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The monkey's hand: does an action on the window, and answers the boxes and menus that come of it.
#include "hand.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QKeySequence>
#include <QLatin1Char>
#include <QMenu>
#include <QMetaMethod>
#include <QMetaObject>
#include <QPointer>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <limits>
#include <string>

namespace
{

Qt::Key keyIn(const QKeySequence &sequence)
{
    return static_cast<Qt::Key>(sequence[0] & ~static_cast<int>(Qt::KeyboardModifierMask));
}

Qt::KeyboardModifiers modifiersIn(const QKeySequence &sequence)
{
    return Qt::KeyboardModifiers{sequence[0] & static_cast<int>(Qt::KeyboardModifierMask)};
}

} // namespace

int wholeNumberIn(const QString &text)
{
    bool whole{false};
    const int number{text.toInt(&whole)};
    if (whole) {
        return number;
    }
    return text.startsWith(QLatin1Char{'-'}) ? std::numeric_limits<int>::min()
                                             : std::numeric_limits<int>::max();
}

std::optional<QPoint> placeIn(OperatorWindow &test, const QString &target, double x, double y)
{
    const QString name{target.section(QLatin1Char{'/'}, 0, 0)};
    auto *widget = test.window().findChild<QWidget *>(name);
    if (const auto *const tabs = qobject_cast<QTabWidget *>(widget);
        tabs != nullptr && target.endsWith(QStringLiteral("/tabs"))) {
        widget = tabs->tabBar();
    }
    if (widget == nullptr || !widget->isVisible()) {
        return {};
    }
    const QRect seen{widget->visibleRegion().boundingRect()};
    if (seen.isEmpty()) {
        return {};
    }
    const auto along = [](double part, int length) {
        return std::clamp(static_cast<int>(part * length), 0, length - 1);
    };
    return widget->mapTo(&test.window(),
                         seen.topLeft() + QPoint{along(x, seen.width()), along(y, seen.height())});
}

Hand::Hand(OperatorWindow &itsTest) : test{itsTest}
{
    // After the watcher of the boxes, so that it is asked before it.
    qApp->installEventFilter(this);
}

void Hand::comeBack()
{
    if (QApplication::activePopupWidget() == nullptr && !test.window().isActiveWindow()) {
        QApplication::setActiveWindow(&test.window());
        QCoreApplication::processEvents();
    }
}

bool Hand::act(const Action &action)
{
    current = action;
    const bool done{perform(action)};
    // What was clicked behind a box comes from the event loop, and what is stale goes from there.
    for (int round{0}; round < 3; ++round) {
        QCoreApplication::processEvents();
    }
    return done;
}

bool Hand::perform(const Action &action)
{
    const QString &verb{action.verb};
    if (verb == QStringLiteral("invoke")) {
        return invoke(action.target, action.text);
    }
    if (verb == QStringLiteral("work")) {
        return work(action);
    }
    if (!isInView()) {
        return false;
    }
    if (verb == QStringLiteral("close")) {
        return test.window().close();
    }
    if (verb == QStringLiteral("destroy")) {
        return true;
    }
    if (verb == QStringLiteral("resize")) {
        test.window().resize(action.text.section(QLatin1Char{'x'}, 0, 0).toInt(),
                             action.text.section(QLatin1Char{'x'}, 1).toInt());
        return true;
    }
    if (verb == QStringLiteral("away")) {
        QApplication::setActiveWindow(nullptr);
        QCoreApplication::processEvents();
        QApplication::setActiveWindow(&test.window());
        return true;
    }
    if (verb == QStringLiteral("focus")) {
        auto *const widget = test.window().findChild<QWidget *>(action.target);
        // A list that is open keeps the focus.
        if (widget == nullptr || !widget->isVisible() || !widget->isEnabled() ||
            widget->focusPolicy() == Qt::NoFocus || QApplication::activePopupWidget() != nullptr) {
            return false;
        }
        widget->setFocus(Qt::TabFocusReason);
        return true;
    }
    if (verb == QStringLiteral("choose")) {
        return choose(action);
    }
    if (verb == QStringLiteral("edit")) {
        return edit(action);
    }
    if (verb == QStringLiteral("begin")) {
        return begin(action);
    }
    if (verb == QStringLiteral("page")) {
        return turnTo(action.target);
    }
    return useKeys(action) || useMouse(action);
}

bool Hand::useMouse(const Action &action)
{
    const std::optional<QPoint> place{placeIn(test, action.target, action.x, action.y)};
    if (!place) {
        return false;
    }
    moveInList();
    if (action.verb == QStringLiteral("click")) {
        test.clickAt(*place);
    } else if (action.verb == QStringLiteral("dblclick")) {
        QTest::mouseDClick(&test.native(), Qt::LeftButton, Qt::NoModifier, *place);
    } else if (action.verb == QStringLiteral("rclick")) {
        QTest::mouseClick(&test.native(), Qt::RightButton, Qt::NoModifier, *place);
    } else if (action.verb == QStringLiteral("wheel")) {
        test.turn(*place, action.text.toInt());
    } else if (action.verb == QStringLiteral("drag")) {
        const QPoint last{test.window().rect().bottomRight()};
        const QPoint end{static_cast<int>(action.text.section(QLatin1Char{','}, 0, 0).toDouble() * last.x()),
                         static_cast<int>(action.text.section(QLatin1Char{','}, 1).toDouble() * last.y())};
        test.press(*place);
        // Also when a box has closed the window meanwhile: nobody holds a button for ever.
        QTest::mouseMove(&test.native(), end);
        test.release(end);
    } else {
        return false;
    }
    return true;
}

/// A list that was just opened lets nobody choose by a click, until the mouse has moved in it or some time
/// has passed. It moves from end to end, so that the time does not matter.
void Hand::moveInList()
{
    const QWidget *const popup{QApplication::activePopupWidget()};
    const auto *const list = popup != nullptr ? popup->findChild<QAbstractItemView *>() : nullptr;
    if (list == nullptr) {
        return;
    }
    const QWidget &items{*list->viewport()};
    const QPoint corner{test.window().mapFromGlobal(items.mapToGlobal(QPoint{}))};
    const QRect seen{QRect{corner, items.size()}.intersected(test.window().rect())};
    if (!seen.isEmpty()) {
        QTest::mouseMove(&test.native(), seen.topLeft());
        QTest::mouseMove(&test.native(), seen.bottomRight());
    }
}

bool Hand::useKeys(const Action &action)
{
    if (action.verb == QStringLiteral("type")) {
        return type(action.text);
    }
    if (action.verb == QStringLiteral("paste")) {
        QGuiApplication::clipboard()->setText(action.text);
        QTest::keyClick(&test.native(), Qt::Key_V, Qt::ControlModifier);
        return true;
    }
    const QKeySequence sequence{action.text};
    if (sequence.isEmpty()) {
        return false;
    }
    if (action.verb == QStringLiteral("key")) {
        QTest::keyClick(&test.native(), keyIn(sequence), modifiersIn(sequence));
        return true;
    }
    if (action.verb == QStringLiteral("hold")) {
        test.key(QEvent::KeyPress, keyIn(sequence));
        for (int repeat{0}; repeat < 4 && isInView(); ++repeat) {
            test.key(QEvent::KeyRelease, keyIn(sequence), true);
            test.key(QEvent::KeyPress, keyIn(sequence), true);
        }
        if (isInView()) {
            test.key(QEvent::KeyRelease, keyIn(sequence));
        }
        return true;
    }
    return false;
}

bool Hand::type(const QString &text)
{
    for (const QChar character : text) {
        if (!isInView()) {
            break;
        }
        if (character == QLatin1Char{'\n'}) {
            QTest::keyClick(&test.native(), Qt::Key_Return);
        } else if (character.unicode() < 128) {
            QTest::keyClick(&test.native(), character.toLatin1());
        } else {
            QTest::sendKeyEvent(QTest::Click, &test.native(), Qt::Key_unknown, QString{character},
                                Qt::NoModifier);
        }
    }
    return true;
}

/// Types into a spin box and leaves the edit as it is.
bool Hand::begin(const Action &action)
{
    auto *const box = test.window().findChild<QAbstractSpinBox *>(action.target);
    // A list that is open would take the keys.
    if (box == nullptr || !box->isVisible() || !box->isEnabled() ||
        QApplication::activePopupWidget() != nullptr) {
        return false;
    }
    box->setFocus(Qt::TabFocusReason);
    box->selectAll();
    type(action.text);
    return true;
}

/// Types into a spin box and finishes the edit, by Enter or by Tab.
bool Hand::edit(const Action &action)
{
    if (!begin(action)) {
        return false;
    }
    if (isInView()) {
        QTest::keyClick(&test.native(), action.x < 0.5 ? Qt::Key_Return : Qt::Key_Tab);
    }
    return true;
}

/// Brings a control into view, as clicks on tabs do. The pages inside others come first, while they are not
/// in view, so that the focus moves once.
bool Hand::turnTo(const QString &control)
{
    auto *const widget = test.window().findChild<QWidget *>(control);
    if (widget == nullptr || QApplication::activePopupWidget() != nullptr) {
        return false;
    }
    for (QWidget *around{widget->parentWidget()}; around != nullptr; around = around->parentWidget()) {
        auto *const tabs = qobject_cast<QTabWidget *>(around);
        for (int page{0}; tabs != nullptr && page < tabs->count(); ++page) {
            if (tabs->widget(page)->isAncestorOf(widget)) {
                tabs->setCurrentIndex(page);
            }
        }
    }
    return widget->isVisible();
}

/// By keys: from the first item downwards.
bool Hand::choose(const Action &action)
{
    auto *const box = test.window().findChild<QComboBox *>(action.target);
    // A list that is open would take the keys.
    if (box == nullptr || !box->isVisible() || !box->isEnabled() ||
        QApplication::activePopupWidget() != nullptr) {
        return false;
    }
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClick(&test.native(), Qt::Key_Home);
    for (int step{action.text.toInt()}; step > 0 && isInView(); --step) {
        QTest::keyClick(&test.native(), Qt::Key_Down);
    }
    return true;
}

/// As a script does it, so also for what no page shows.
bool Hand::work(const Action &action)
{
    auto *const widget = test.window().findChild<QWidget *>(action.target);
    if (auto *const button = qobject_cast<QAbstractButton *>(widget)) {
        if (!button->isEnabled()) {
            return false;
        }
        button->click();
    } else if (auto *const comboBox = qobject_cast<QComboBox *>(widget)) {
        comboBox->setCurrentIndex(static_cast<int>(action.x * comboBox->count()));
    } else if (auto *const whole = qobject_cast<QSpinBox *>(widget)) {
        whole->setValue(wholeNumberIn(action.text));
    } else if (auto *const fractional = qobject_cast<QDoubleSpinBox *>(widget)) {
        fractional->setValue(action.text.toDouble());
    } else if (auto *const slider = qobject_cast<QAbstractSlider *>(widget)) {
        slider->setSliderDown(true);
        slider->setSliderPosition(wholeNumberIn(action.text));
        slider->setSliderDown(false);
    } else {
        return false;
    }
    return true;
}

bool Hand::invoke(const QString &signature, const QString &argument)
{
    MainWindow *const window{&test.window()};
    const QMetaObject &type{*window->metaObject()};
    const int index{type.indexOfMethod(signature.toLatin1().constData())};
    if (index < type.methodOffset()) {
        return false;
    }
    const QMetaMethod method{type.method(index)};
    if (method.parameterCount() == 0) {
        return method.invoke(window, Qt::DirectConnection);
    }
    const QByteArray parameter{method.parameterTypes().constFirst()};
    if (parameter == "int") {
        return method.invoke(window, Qt::DirectConnection, Q_ARG(int, wholeNumberIn(argument)));
    }
    if (parameter == "double") {
        return method.invoke(window, Qt::DirectConnection, Q_ARG(double, argument.toDouble()));
    }
    return parameter == "std::string" &&
           method.invoke(window, Qt::DirectConnection, Q_ARG(std::string, argument.toStdString()));
}

bool Hand::eventFilter(QObject *watched, QEvent *event)
{
    const auto *const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
    if (dialog != nullptr && dialog->isModal()) {
        test.boxes.expect([this](QDialog &box) { answer(box); });
    }
    return false;
}

void Hand::answer(QDialog &box)
{
    const QPointer<QDialog> still{&box};
    const QString way{openBoxes > 0 ? QStringLiteral("reject") : current.box};
    ++openBoxes;
    QCoreApplication::processEvents();
    if (way == QStringLiteral("ok")) {
        BoxWatcher::pressOk(box);
    } else if (way == QStringLiteral("enter")) {
        QTest::keyClick(box.windowHandle(), Qt::Key_Return);
    } else if (way == QStringLiteral("escape")) {
        QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
    } else if (way == QStringLiteral("close")) {
        box.close();
    } else if (way == QStringLiteral("window")) {
        test.window().close();
    } else if (way.startsWith(QStringLiteral("within "))) {
        // Region 0, where the handler asks for one.
        invoke(way.section(QLatin1Char{' '}, 1), QStringLiteral("0"));
    }
    if (!still.isNull() && still->isVisible()) {
        still->reject();
    }
    --openBoxes;
}

void Hand::chooseInMenu() const
{
    auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    const int entry{current.text.toInt()};
    if (menu == nullptr || entry == 0) {
        return;
    }
    for (int step{0}; step < entry; ++step) {
        QTest::keyClick(menu->windowHandle(), Qt::Key_Down);
    }
    QTest::keyPress(menu->windowHandle(), Qt::Key_Return);
}
