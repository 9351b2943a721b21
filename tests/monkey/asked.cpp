// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an action may make the window send.
#include "asked.h"

#include "hand.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLatin1Char>
#include <QPoint>
#include <QSlider>
#include <QTabBar>

#include <algorithm>
#include <optional>

namespace
{

/// Of a key that the hand holds: the first press and its repeats.
constexpr int pressesWhileHeld{5};

Asked askedFrom(const QWidget *widget)
{
    return ::askedFrom(sendingControl(widget));
}

/// A spin box sends when it loses the focus; nothing else does.
Asked askedByLeaving(const QWidget *focused)
{
    return qobject_cast<const QAbstractSpinBox *>(focused) != nullptr ? askedFrom(focused) : Asked{};
}

/// The control that has the focus after that one when an arrow is pressed on a button.
const QWidget *beside(const QWidget *widget, bool forwards)
{
    const QWidget *next{widget};
    do {
        next = forwards ? next->nextInFocusChain() : next->previousInFocusChain();
    } while (next != widget && ((next->focusPolicy() & Qt::TabFocus) == 0 || next->focusProxy() != nullptr ||
                                !next->isVisible() || !next->isEnabled() || next->isWindow()));
    return next;
}

/// What a key without Ctrl and Alt may send in the control that has the focus.
Asked askedByKeyIn(const QWidget *focused, const QString &key, int presses)
{
    static const QStringList enter{QStringLiteral("Return"), QStringLiteral("Enter")};
    static const QStringList tab{QStringLiteral("Tab"), QStringLiteral("Backtab")};
    static const QStringList sideways{QStringLiteral("Left"), QStringLiteral("Right")};
    static const QStringList arrows{sideways + QStringList{QStringLiteral("Up"), QStringLiteral("Down")}};
    static const QStringList moves{arrows + QStringList{QStringLiteral("PgUp"), QStringLiteral("PgDown"),
                                                        QStringLiteral("Home"), QStringLiteral("End")}};
    const Asked own{askedFrom(focused)};
    if (qobject_cast<const QAbstractSpinBox *>(focused) != nullptr) {
        // What is stepped is not finished yet. Enter does not repeat while it is held.
        return enter.contains(key) || tab.contains(key) ? own : Asked{};
    }
    if (qobject_cast<const QAbstractButton *>(focused) != nullptr) {
        if (arrows.contains(key) && presses > 1) {
            // The first press goes on to the control beside it, which gets the others.
            const bool forwards{key == QStringLiteral("Right") || key == QStringLiteral("Down")};
            return askedByKeyIn(beside(focused, forwards), key, presses - 1);
        }
        // A button that is held is clicked when it is let go.
        return key == QStringLiteral("Space") ? own : Asked{};
    }
    if (qobject_cast<const QComboBox *>(focused) != nullptr) {
        // A letter looks for an item that begins with it.
        return moves.contains(key) || key.size() == 1 ? times(own, presses) : Asked{};
    }
    if (qobject_cast<const QSlider *>(focused) != nullptr) {
        // A key that is held sends at its end.
        return moves.contains(key) ? own : Asked{};
    }
    if (qobject_cast<const QTabBar *>(focused) != nullptr) {
        return sideways.contains(key) ? times(own, presses) : Asked{};
    }
    return {};
}

/// In a list that is open only the end of the choice counts.
Asked askedByKeyInList(const QWidget &list, const QString &key)
{
    static const QStringList choosing{QStringLiteral("Return"), QStringLiteral("Enter"), QStringLiteral("F4"),
                                      QStringLiteral("Alt+Down")};
    return choosing.contains(key) ? askedFrom(list.parentWidget()) : Asked{};
}

Asked askedByKey(OperatorWindow &test, const QString &key, int presses)
{
    const QWidget *const focused{test.window().focusWidget()};
    if (const QWidget *const list{QApplication::activePopupWidget()}) {
        // A script may have given the focus to a spin box meanwhile; the list takes it back when it closes.
        Asked asked{askedByLeaving(focused)};
        asked += askedByKeyInList(*list, key);
        return asked;
    }
    if (key == QStringLiteral("Ctrl+Tab")) {
        // To the next page.
        Asked asked{askedByLeaving(focused)};
        asked += ::askedFrom(QStringLiteral("Principal_tab"));
        return asked;
    }
    return askedByKeyIn(focused, key.section(QLatin1Char{'+'}, -1), presses);
}

Asked askedByTyping(OperatorWindow &test, const QString &text)
{
    const QWidget *const focused{test.window().focusWidget()};
    const QWidget *const list{QApplication::activePopupWidget()};
    if (list != nullptr || qobject_cast<const QComboBox *>(focused) != nullptr) {
        // A space opens the list, a new line closes it, and each letter may choose while it is closed.
        Asked asked{askedByLeaving(focused)};
        asked += times(askedFrom(list != nullptr ? list->parentWidget() : focused), text.size());
        return asked;
    }
    Asked asked;
    for (const QChar character : text) {
        const bool space{character == QLatin1Char{' '}};
        const bool newLine{character == QLatin1Char{'\n'}};
        asked += askedByKeyIn(focused,
                              space     ? QStringLiteral("Space")
                              : newLine ? QStringLiteral("Return")
                                        : QString{character},
                              1);
    }
    // The first space disables these two, and the next one goes to whatever has the focus then.
    static const QStringList disabled{QStringLiteral("connectDeviceButton"),
                                      QStringLiteral("disconnectDeviceButton")};
    asked.all =
        focused != nullptr && disabled.contains(focused->objectName()) && text.count(QLatin1Char{' '}) > 1;
    return asked;
}

/// Who presses somewhere leaves where the focus was, and a list that is open takes the press.
Asked askedByMouse(OperatorWindow &test, const Action &action)
{
    Asked asked;
    const QWidget *const list{QApplication::activePopupWidget()};
    if (list != nullptr) {
        asked += askedFrom(list->parentWidget());
    }
    const QWidget *const focused{test.window().focusWidget()};
    const std::optional<QPoint> place{placeIn(test, action.target, action.x, action.y)};
    const QWidget *const pressed{place ? test.window().childAt(*place) : nullptr};
    if (pressed == nullptr || sendingControl(pressed) != sendingControl(focused)) {
        asked += askedByLeaving(focused);
    }
    const QString control{sendingControl(pressed)};
    const auto *const worked = test.window().findChild<QWidget *>(control);
    const bool takesPress{action.verb != QStringLiteral("rclick") &&
                          qobject_cast<const QAbstractSpinBox *>(worked) == nullptr};
    if (!control.isEmpty() && takesPress) {
        const bool workedByEach{qobject_cast<const QAbstractButton *>(worked) != nullptr ||
                                qobject_cast<const QSlider *>(worked) != nullptr};
        const bool twice{workedByEach && action.verb == QStringLiteral("dblclick")};
        asked += times(::askedFrom(control), twice ? 2 : 1);
    }
    return asked;
}

/// Only a slider that has the focus sends what the wheel does to it, once for each turn.
Asked askedByWheel(OperatorWindow &test, const Action &action)
{
    const std::optional<QPoint> place{placeIn(test, action.target, action.x, action.y)};
    const QWidget *const focused{focusOf(test)};
    const bool turnsSlider{place && qobject_cast<const QSlider *>(focused) != nullptr &&
                           test.window().childAt(*place) == focused};
    return turnsSlider ? askedFrom(focused) : Asked{};
}

/// What a script does to a control. A spin box that gets a number has no edit that is finished.
Asked askedByWork(OperatorWindow &test, const QString &control)
{
    const auto *const worked = test.window().findChild<QWidget *>(control);
    return qobject_cast<const QAbstractSpinBox *>(worked) != nullptr ? Asked{} : ::askedFrom(control);
}

} // namespace

QWidget *focusOf(OperatorWindow &test)
{
    const QWidget *const popup{QApplication::activePopupWidget()};
    return (popup != nullptr ? popup : &test.window())->focusWidget();
}

Asked askedBy(OperatorWindow &test, const Action &action)
{
    const QString &verb{action.verb};
    if (verb == QStringLiteral("wheel")) {
        return askedByWheel(test, action);
    }
    if (verb == QStringLiteral("key")) {
        return askedByKey(test, action.text, 1);
    }
    if (verb == QStringLiteral("hold")) {
        return askedByKey(test, action.text, pressesWhileHeld);
    }
    if (verb == QStringLiteral("type")) {
        return askedByTyping(test, action.text);
    }
    if (verb == QStringLiteral("paste")) {
        return askedByKey(test, QStringLiteral("V"), 1);
    }
    if (verb == QStringLiteral("resize") || verb == QStringLiteral("destroy")) {
        return {};
    }
    const bool byMouse{verb == QStringLiteral("click") || verb == QStringLiteral("dblclick") ||
                       verb == QStringLiteral("rclick") || verb == QStringLiteral("drag")};
    if (byMouse) {
        return askedByMouse(test, action);
    }
    // The others may take the focus from a spin box: they give it to another control, send it away, close the
    // window or the connection, or show a box.
    const QWidget *const focused{test.window().focusWidget()};
    const bool stays{(verb == QStringLiteral("begin") || verb == QStringLiteral("edit")) &&
                     sendingControl(focused) == action.target};
    Asked asked{stays ? Asked{} : askedByLeaving(focused)};
    if (verb == QStringLiteral("invoke")) {
        asked += askedFromHandler(action.target.section(QLatin1Char{'('}, 0, 0), wholeNumberIn(action.text));
    } else if (verb == QStringLiteral("work")) {
        asked += askedByWork(test, action.target);
    } else if (verb == QStringLiteral("choose")) {
        // To the first item, then downwards.
        asked += times(askedFrom(action.target), 1 + action.text.toInt());
    } else if (verb == QStringLiteral("edit")) {
        asked += times(askedFrom(action.target), 1 + action.text.count(QLatin1Char{'\n'}));
    } else if (verb == QStringLiteral("page")) {
        asked += askedFrom(QStringLiteral("Principal_tab"));
    }
    return asked;
}

Asked askedInBoxes(const Action &action, const QStringList &shownBoxes)
{
    if (!action.box.startsWith(QStringLiteral("within "))) {
        return {};
    }
    const QString handler{action.box.section(QLatin1Char{' '}, 1).section(QLatin1Char{'('}, 0, 0)};
    // The handlers of the regions do nothing while the box about their order is shown.
    const bool ofRegion{handler.endsWith(QStringLiteral("RoiUserValueChanged"))};
    const auto boxes = std::count_if(shownBoxes.begin(), shownBoxes.end(), [ofRegion](const QString &box) {
        return !ofRegion || !box.contains(QStringLiteral("\"ROI\""));
    });
    return times(askedFromHandler(handler, 0), static_cast<int>(boxes));
}
