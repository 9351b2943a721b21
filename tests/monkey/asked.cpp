// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an action may make the window send.
#include "asked.h"

#include "controls.h"
#include "hand.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QLatin1Char>
#include <QMap>
#include <QPoint>
#include <QRegularExpression>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <optional>

namespace
{

Asked one(const QString &operation)
{
    return {{operation}, 1};
}

/// Every control of the window that sends, by its name.
QMap<QString, Asked> askingControls()
{
    QMap<QString, Asked> controls;
    for (const Pair &pair : pairs) {
        const Asked asked{one(QString{pair.call}.section('(', 0, 0))};
        controls[pair.slider] = asked;
        controls[pair.box] = asked;
    }
    for (const ToggleRow &row : toggleRows) {
        controls[row.button] = one(QStringLiteral("set") + row.operation);
    }
    for (const ChoiceRow &row : choiceRows) {
        controls[row.comboBox] = one(row.operation);
    }
    for (const RegionRow &row : regionRows) {
        QStringList all;
        for (const char *const name : {"X1", "X2", "Y1", "Y2"}) {
            const QString operation{QStringLiteral("setRoi") + name};
            all.append(operation);
            controls[QString{row.boxes} + name] = one(operation);
        }
        if (row.enable != nullptr) {
            controls[row.enable] = {all, 4};
        }
    }
    for (const CorrectionRow &row : correctionRows) {
        controls[row.checkBox] = one(QStringLiteral("set") + row.operation);
    }
    for (const VideoModeRow &row : videoModeRows) {
        controls[row.button] = one("setVideoMode");
    }
    for (const BoxRow &row : boxRows) {
        controls[row.box] =
            one(qstrcmp(row.sendSlot, "visibleAgcChanged") == 0 ? "setVisibleAgc" : "setVisibleClhe");
    }
    controls["startingModeCB"] = one("setStartingMode");
    controls["FusionConfigureZoomPB"] = one("configureZoom");
    controls["FusionWarpPB"] = one("setWarp");
    for (const char *const button : {"saveParamButtonUser", "saveParamFactoryPB"}) {
        controls[button] = one("saveBlendUnitParameters");
    }
    controls["BaudRateConnectCB"] = one("setBaudRate");
    controls["Principal_tab"] = one("setTarget");
    for (const char *const button :
         {"connectDeviceButton", "readParamButtonUser", "readParamButtonExpert", "resetParamButtonUser"}) {
        controls[button] = {{}, 0, true};
    }
    return controls;
}

Asked times(Asked asked, int count)
{
    asked.count *= count;
    return asked;
}

Asked askedFrom(const QWidget *widget)
{
    return askedFrom(sendingControl(widget));
}

/// Who presses somewhere leaves where the focus was, and a list that is open takes the press.
Asked askedByMouse(OperatorWindow &test, const Action &action)
{
    const QWidget *const popup{QApplication::activePopupWidget()};
    Asked asked{askedFrom(focusOf(test))};
    if (popup != nullptr) {
        asked += askedFrom(popup->parentWidget());
        asked += askedFrom(test.window().focusWidget());
    }
    const std::optional<QPoint> place{placeIn(test, action.target, action.x, action.y)};
    if (place) {
        const Asked pressed{askedFrom(test.window().childAt(*place))};
        asked += times(pressed, action.verb == QStringLiteral("dblclick") ? 2 : 1);
    }
    return asked;
}

Asked askedByWheel(OperatorWindow &test, const Action &action)
{
    const QWidget *const popup{QApplication::activePopupWidget()};
    Asked asked{popup != nullptr ? askedFrom(popup->parentWidget()) : Asked{}};
    const std::optional<QPoint> place{placeIn(test, action.target, action.x, action.y)};
    const QWidget *const focused{focusOf(test)};
    // Only a slider sends what the wheel does to it.
    if (place && qobject_cast<const QSlider *>(focused) != nullptr &&
        test.window().childAt(*place) == focused) {
        asked += times(askedFrom(focused), std::abs(action.text.toInt()));
    }
    return asked;
}

Asked askedByKeys(OperatorWindow &test, const Action &action)
{
    const QWidget *const focused{focusOf(test)};
    const QWidget *const popup{QApplication::activePopupWidget()};
    const QString &text{action.text};
    const bool keys{action.verb == QStringLiteral("key") || action.verb == QStringLiteral("hold")};
    const bool ends{keys
                        ? text.contains(QStringLiteral("tab"), Qt::CaseInsensitive) ||
                              text.contains(QStringLiteral("Enter")) ||
                              text.contains(QStringLiteral("Return")) || text.contains(QStringLiteral("Ctrl"))
                        : text.contains(QLatin1Char{'\n'})};
    Asked asked;
    if (popup != nullptr) {
        asked += times(askedFrom(popup->parentWidget()), 10);
    }
    if (action.verb == QStringLiteral("hold") && qobject_cast<const QAbstractButton *>(focused) != nullptr) {
        // An arrow that is held goes from a button to the control beside it, and on in that one.
        asked.anything = true;
    }
    // What is typed into a spin box, or stepped there, is not finished; one key finishes it once.
    const bool inSpinBox{qobject_cast<const QAbstractSpinBox *>(focused) != nullptr};
    if (!inSpinBox || ends) {
        const bool once{inSpinBox && action.verb == QStringLiteral("key")};
        asked += times(askedFrom(focused), once ? 1 : keys ? 6 : std::max(1, text.size()));
    }
    if (text.contains(QStringLiteral("Ctrl"))) {
        // To the next page.
        asked += askedFrom(QStringLiteral("Principal_tab"));
        asked += askedFrom(test.window().focusWidget());
    }
    return asked;
}

} // namespace

Asked askedFrom(const QString &control)
{
    static const QMap<QString, Asked> controls{askingControls()};
    return controls.value(control);
}

QString sendingControl(const QWidget *widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const Asked asked{askedFrom(widget->objectName())};
        if ((asked.count > 0 || asked.anything) && qobject_cast<const QTabWidget *>(widget) == nullptr) {
            return widget->objectName();
        }
        // Pages are chosen on their bar, which has no name of its own.
        if (qobject_cast<const QTabBar *>(widget) != nullptr) {
            return widget->parentWidget()->objectName();
        }
    }
    return {};
}

QWidget *focusOf(OperatorWindow &test)
{
    const QWidget *const popup{QApplication::activePopupWidget()};
    return (popup != nullptr ? popup : &test.window())->focusWidget();
}

Asked askedBy(OperatorWindow &test, const Action &action)
{
    const QString &verb{action.verb};
    if (verb == QStringLiteral("invoke") || verb == QStringLiteral("work")) {
        return {{}, 0, true};
    }
    if (verb == QStringLiteral("wheel")) {
        return askedByWheel(test, action);
    }
    if (verb == QStringLiteral("key") || verb == QStringLiteral("hold") || verb == QStringLiteral("type") ||
        verb == QStringLiteral("paste")) {
        return askedByKeys(test, action);
    }
    if (verb == QStringLiteral("focus") || verb == QStringLiteral("away") ||
        verb == QStringLiteral("close")) {
        return askedFrom(test.window().focusWidget());
    }
    if (verb == QStringLiteral("choose")) {
        Asked asked{askedFrom(test.window().focusWidget())};
        asked += times(askedFrom(action.target), action.text.toInt() + 1);
        return asked;
    }
    if (verb == QStringLiteral("edit")) {
        Asked asked{askedFrom(test.window().focusWidget())};
        asked += times(askedFrom(action.target), 1 + action.text.count(QLatin1Char{'\n'}));
        return asked;
    }
    if (verb == QStringLiteral("begin")) {
        const QWidget *const focused{test.window().focusWidget()};
        return sendingControl(focused) == action.target ? Asked{} : askedFrom(focused);
    }
    if (verb == QStringLiteral("page")) {
        Asked asked{askedFrom(test.window().focusWidget())};
        asked += askedFrom(QStringLiteral("Principal_tab"));
        return asked;
    }
    if (verb == QStringLiteral("resize") || verb == QStringLiteral("destroy")) {
        return {};
    }
    return askedByMouse(test, action);
}

Asked askedInBoxes(const Action &action, const QStringList &shownBoxes)
{
    if (!action.box.startsWith(QStringLiteral("within ")) || shownBoxes.isEmpty()) {
        return {};
    }
    static const QRegularExpression regionHandler{QStringLiteral("([xy][12])RoiUserValueChanged")};
    const QRegularExpressionMatch handler{regionHandler.match(action.box)};
    if (!handler.hasMatch()) {
        return {{}, 0, true};
    }
    // The handlers of the regions do nothing while the box about their order is shown.
    const auto others = std::count_if(shownBoxes.begin(), shownBoxes.end(), [](const QString &box) {
        return !box.contains(QStringLiteral("\"ROI\""));
    });
    return times(one(QStringLiteral("setRoi") + handler.captured(1).toUpper()), static_cast<int>(others));
}

bool isCommand(const QString &operation)
{
    static const char *const beginnings[]{"set", "configure", "save", "process", "add", "remove", "write"};
    return std::any_of(std::begin(beginnings), std::end(beginnings),
                       [&](const char *beginning) { return operation.startsWith(QLatin1String{beginning}); });
}
