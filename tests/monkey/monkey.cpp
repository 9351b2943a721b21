// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The monkey: chooses what to do next.
#include "monkey.h"

#include "controls.h"
#include "misbehaviour.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLatin1Char>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabWidget>
#include <QWidget>

#include <array>
#include <cstddef>
#include <utility>

namespace
{

/// Stands in a plan for what ends an edit. It is chosen when it comes, by what is in view then. With a text
/// it is one that may raise a box, and seldom ends more.
const QString endOfEdit{QStringLiteral("end")};

QStringList spinBoxesInView(const QWidget &window)
{
    QStringList names;
    for (const QWidget *const control : controlsOf(window)) {
        if (qobject_cast<const QAbstractSpinBox *>(control) != nullptr && control->isVisible() &&
            control->isEnabled()) {
            names.append(control->objectName());
        }
    }
    return names;
}

} // namespace

Action Monkey::next(OperatorWindow &test)
{
    Action action;
    const bool connected{isConnected(test.window())};
    const int dice{random.bounded(1000)};
    if (!connected) {
        planned.clear();
    } else if (planned.empty() && oneIn(9)) {
        planVisit(test);
    } else if (planned.empty() && oneIn(20)) {
        if (oneIn(2)) {
            planContradiction(test);
        } else {
            planEdit(test);
        }
    }
    if (!planned.empty()) {
        action = planned.front();
        planned.pop_front();
        if (action.verb == endOfEdit) {
            action = endingEdit(test, planned.empty() && (action.text.isEmpty() || oneIn(4)));
        }
    } else if (dice < 4) {
        action = {oneIn(2) ? QStringLiteral("close") : QStringLiteral("destroy")};
    } else if (dice < 14) {
        action = {QStringLiteral("resize")};
        action.text = QStringLiteral("%1x%2").arg(200 + random.bounded(1500)).arg(200 + random.bounded(1500));
    } else if (dice < 24) {
        action = {QStringLiteral("away")};
    } else if (!connected && oneIn(2)) {
        action = connecting(test);
    } else if (dice < (connected ? 150 : 350)) {
        // Without a device only scripts reach most of the handlers.
        action = byName(test);
    } else if (dice < 230 && connected) {
        action = editing(test);
    } else if (dice < 600) {
        action = mouseAction(someControl(test));
    } else {
        action = keyAction();
    }
    action.box = someBoxAnswer();
    return action;
}

QString Monkey::someControl(OperatorWindow &test)
{
    if (oneIn(8)) {
        // Most controls are on a page that is not in view.
        return oneIn(2) ? QStringLiteral("Principal_tab/tabs") : QStringLiteral("KR_tab/tabs");
    }
    const bool anything{oneIn(12)};
    QStringList names;
    for (const QWidget *const control : controlsOf(test.window())) {
        const QString name{control->objectName()};
        // Without a device there is little to do, so it disconnects seldom.
        const bool avoided{name == QStringLiteral("disconnectDeviceButton") && !oneIn(20)};
        if (control->isVisible() && (anything || control->isEnabled()) && !avoided) {
            names.append(name);
        }
    }
    const QString chosen{someOf(names)};
    const bool pages{test.window().findChild<QTabWidget *>(chosen) != nullptr};
    return pages ? chosen + QStringLiteral("/tabs") : chosen;
}

QString Monkey::someNumber()
{
    static const QStringList numbers{
        QStringLiteral("-1"),         QStringLiteral("0"),           QStringLiteral("1"),
        QStringLiteral("2"),          QStringLiteral("3"),           QStringLiteral("4"),
        QStringLiteral("17"),         QStringLiteral("99"),          QStringLiteral("9999"),
        QStringLiteral("2147483647"), QStringLiteral("-2147483648"), QStringLiteral("2.25"),
        QStringLiteral("1e300"),      QStringLiteral("nan"),         QStringLiteral("-inf"),
    };
    return oneOf(numbers);
}

QString Monkey::someBoxAnswer()
{
    static const QStringList ways{
        QStringLiteral("ok"),     QStringLiteral("ok"),    QStringLiteral("enter"),  QStringLiteral("escape"),
        QStringLiteral("reject"), QStringLiteral("close"), QStringLiteral("window"),
    };
    if (!oneIn(4)) {
        return oneOf(ways);
    }
    static const QStringList ofRegions{handlers().filter(QStringLiteral("RoiUserValueChanged"))};
    static const QStringList withoutNumbers{handlers().filter(QStringLiteral("()"))};
    return QStringLiteral("within ") + oneOf(oneIn(3) ? withoutNumbers : ofRegions);
}

Action Monkey::mouseAction(const QString &target)
{
    Action action;
    action.target = target;
    action.x = random.generateDouble();
    action.y = random.generateDouble();
    const int dice{random.bounded(20)};
    if (dice < 10) {
        action.verb = QStringLiteral("click");
    } else if (dice < 11) {
        action.verb = QStringLiteral("dblclick");
    } else if (dice < 13) {
        action.verb = QStringLiteral("rclick");
        action.text = QString::number(random.bounded(9));
    } else if (dice < 16) {
        action.verb = QStringLiteral("drag");
        action.text = QStringLiteral("%1,%2")
                          .arg(random.generateDouble(), 0, 'f', 3)
                          .arg(random.generateDouble(), 0, 'f', 3);
    } else if (dice < 19) {
        action.verb = QStringLiteral("wheel");
        action.text = QString::number(random.bounded(7) - 3);
    } else {
        action.verb = QStringLiteral("focus");
    }
    return action;
}

Action Monkey::keyAction()
{
    static const QStringList keys{
        QStringLiteral("0"),       QStringLiteral("1"),           QStringLiteral("2"),
        QStringLiteral("5"),       QStringLiteral("9"),           QStringLiteral("."),
        QStringLiteral("-"),       QStringLiteral("Backspace"),   QStringLiteral("Del"),
        QStringLiteral("Up"),      QStringLiteral("Down"),        QStringLiteral("Left"),
        QStringLiteral("Right"),   QStringLiteral("PgUp"),        QStringLiteral("PgDown"),
        QStringLiteral("Home"),    QStringLiteral("End"),         QStringLiteral("Space"),
        QStringLiteral("Return"),  QStringLiteral("Enter"),       QStringLiteral("Tab"),
        QStringLiteral("Tab"),     QStringLiteral("Backtab"),     QStringLiteral("Esc"),
        QStringLiteral("F4"),      QStringLiteral("Alt+Down"),    QStringLiteral("Ctrl+Tab"),
        QStringLiteral("Ctrl+A"),  QStringLiteral("Ctrl+Z"),      QStringLiteral("Shift+Up"),
        QStringLiteral("Ctrl+Up"), QStringLiteral("Ctrl+PgDown"),
    };
    Action action;
    const int dice{random.bounded(20)};
    if (dice < 14) {
        action.verb = QStringLiteral("key");
        action.text = oneOf(keys);
    } else if (dice < 16) {
        action.verb = QStringLiteral("hold");
        action.text =
            oneOf(keys.filter(QRegularExpression{QStringLiteral("^(Up|Down|Left|Right|Space|Return)$")}));
    } else {
        action.verb = dice < 18 ? QStringLiteral("type") : QStringLiteral("paste");
        action.text = oneOf(oddTexts());
    }
    return action;
}

Action Monkey::editing(OperatorWindow &test)
{
    const QStringList names{spinBoxesInView(test.window())};
    if (names.isEmpty()) {
        return keyAction();
    }
    Action action{QStringLiteral("edit"), oneOf(names), random.generateDouble()};
    action.text = oneIn(4) ? oneOf(oddTexts()) : QString::number(random.bounded(640));
    return action;
}

Action Monkey::connecting(OperatorWindow &test)
{
    const int ports{test.child<QComboBox>("selectDeviceComboBox").count()};
    Action action{QStringLiteral("click"), QStringLiteral("connectDeviceButton")};
    const int dice{random.bounded(5)};
    if (dice == 0 || ports == 0) {
        action.target = QStringLiteral("scanDeviceButton");
    } else if (dice == 1) {
        action.verb = QStringLiteral("choose");
        action.target = QStringLiteral("selectDeviceComboBox");
        action.text = QString::number(random.bounded(ports));
    } else if (dice == 2) {
        action.verb = QStringLiteral("invoke");
        action.target = QStringLiteral("connectDevice()");
    }
    return action;
}

Action Monkey::byName(OperatorWindow &test)
{
    static const QStringList book{QStringLiteral("connectDevice()"), QStringLiteral("disconnectDevice()"),
                                  QStringLiteral("readAllParameters()"), QStringLiteral("readParamsExpert()"),
                                  QStringLiteral("ResetParamsUser()")};
    QStringList onNoPage;
    for (const QWidget *const control : controlsOf(test.window())) {
        if (!isOnAPage(*control)) {
            onNoPage.append(control->objectName());
        }
    }
    Action action;
    const int dice{random.bounded(10)};
    if (dice < 7 && isConnected(test.window())) {
        // Whatever only a script reaches.
        action.target = turns.next(handlers() + onNoPage);
    } else if (dice < 8) {
        action.target = oneOf(handlers());
    } else if (dice < 9) {
        action.target = oneOf(book);
    } else {
        action.target = oneOf(namesOf(controlsOf(test.window())));
    }
    action.verb = handlers().contains(action.target) ? QStringLiteral("invoke") : QStringLiteral("work");
    action.x = random.generateDouble();
    action.text = action.target.contains(QStringLiteral("string")) ? oneOf(oddTexts()) : someNumber();
    return action;
}

void Monkey::plan(const QString &verb, const QString &target, const QString &text)
{
    Action action{verb, target, random.generateDouble(), random.generateDouble()};
    action.text = text;
    planned.push_back(std::move(action));
}

Action Monkey::endingEdit(OperatorWindow &test, bool mayEndMore)
{
    if (mayEndMore && oneIn(2)) {
        static const std::array<Action, 6> ends{{
            {QStringLiteral("close")},
            {QStringLiteral("destroy")},
            {QStringLiteral("destroy")},
            {QStringLiteral("destroy")},
            {QStringLiteral("invoke"), QStringLiteral("disconnectDevice()")},
            {QStringLiteral("invoke"), QStringLiteral("connectDevice()")},
        }};
        return ends.at(static_cast<std::size_t>(random.bounded(static_cast<int>(ends.size()))));
    }
    static const QStringList keys{QStringLiteral("Return"), QStringLiteral("Enter"), QStringLiteral("Tab"),
                                  QStringLiteral("Backtab")};
    const int dice{random.bounded(8)};
    if (dice < 4) {
        return {QStringLiteral("key"), {}, 0.5, 0.5, oneOf(keys)};
    }
    if (dice < 5) {
        return {QStringLiteral("away")};
    }
    const QStringList boxes{spinBoxesInView(test.window())};
    return {oneIn(2) ? QStringLiteral("click") : QStringLiteral("focus"),
            oneIn(2) && !boxes.isEmpty() ? oneOf(boxes) : someControl(test)};
}

void Monkey::planVisit(OperatorWindow &test)
{
    QStringList names;
    for (const QWidget *const control : controlsOf(test.window())) {
        if (isOnAPage(*control) && control->isEnabled()) {
            names.append(control->objectName());
        }
    }
    const QString control{turns.next(names)};
    plan(QStringLiteral("page"), control);
    planned.push_back(mouseAction(control));
}

void Monkey::planEdit(OperatorWindow &test)
{
    QStringList names;
    if (oneIn(2)) {
        // Several of these send together, when any of them is left.
        for (const BoxRow &row : boxRows) {
            names.append(row.box);
        }
    } else {
        for (const QWidget *const control : controlsOf(test.window())) {
            if (qobject_cast<const QAbstractSpinBox *>(control) != nullptr) {
                names.append(control->objectName());
            }
        }
    }
    const QString box{oneOf(names)};
    plan(QStringLiteral("page"), box);
    plan(QStringLiteral("begin"), box, QString::number(random.bounded(640)));
    plan(endOfEdit, {});
}

void Monkey::planContradiction(OperatorWindow &test)
{
    const RegionRow &region{regionRows.at(static_cast<std::size_t>(random.bounded(4)))};
    const QString axis{oneIn(2) ? QStringLiteral("X") : QStringLiteral("Y")};
    const QString first{region.boxes + axis + QLatin1Char{'1'}};
    const QString second{region.boxes + axis + QLatin1Char{'2'}};
    if (region.enable != nullptr && !test.child<QAbstractButton>(region.enable).isChecked()) {
        plan(QStringLiteral("work"), region.enable);
    }
    plan(QStringLiteral("page"), first);
    plan(QStringLiteral("begin"), second, QString::number(test.child<QSpinBox>(second).minimum()));
    plan(endOfEdit, {});
    plan(QStringLiteral("begin"), first, QString::number(test.child<QSpinBox>(first).maximum()));
    plan(endOfEdit, {}, QStringLiteral("box"));
}
