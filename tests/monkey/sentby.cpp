// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What each control and each handler sends.
#include "sentby.h"

#include "controls.h"
#include "tables.h"

#include <QLatin1Char>
#include <QLatin1String>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace
{

using Commands = QMap<QString, int>;

/// Each of them once.
Commands once(const QStringList &operations)
{
    Commands commands;
    for (const QString &operation : operations) {
        commands[operation] = 1;
    }
    return commands;
}

QString operationOf(const Pair &pair)
{
    return named(pair.call).section(QLatin1Char{'('}, 0, 0);
}

QStringList operationsOfARegion()
{
    return {QStringLiteral("setRoiX1"), QStringLiteral("setRoiX2"), QStringLiteral("setRoiY1"),
            QStringLiteral("setRoiY2")};
}

/// A read of the Blend Unit sends what it changes in two boxes.
Asked askedByBlendUnitRead()
{
    return {once({QStringLiteral("configureZoom"), QStringLiteral("setStartingMode")}), true};
}

/// A read of the camera sends what it changes in a box or switches on or off.
Asked askedByCameraRead()
{
    Asked asked{{}, true};
    for (const ChoiceRow &row : choiceRows) {
        asked.commands[named(row.operation)] = 1;
    }
    for (const RegionRow &row : regionRows) {
        if (row.enable != nullptr) {
            asked += {once(operationsOfARegion())};
        }
    }
    return asked;
}

Asked askedByExpertRead()
{
    Asked asked;
    for (const CorrectionRow &row : correctionRows) {
        if (row.slot != nullptr) {
            asked.commands[QStringLiteral("set") + named(row.operation)] = 1;
        }
    }
    return asked;
}

/// Both units in turn, then the one whose page is shown.
Asked withTargets(Asked asked)
{
    asked +=
        {once({QStringLiteral("setTarget(0)"), QStringLiteral("setTarget(1)"), QStringLiteral("setTarget")}),
         true};
    return asked;
}

Asked askedByRead()
{
    Asked asked{askedByBlendUnitRead()};
    asked += askedByCameraRead();
    return withTargets(asked);
}

Asked askedByConnecting()
{
    Asked asked{once({QStringLiteral("setTarget(0)")})};
    asked += askedByRead();
    asked += withTargets(askedByExpertRead());
    return asked;
}

Asked askedByApplyingUser()
{
    Asked asked;
    for (const ChoiceRow &row : choiceRows) {
        asked.commands[named(row.operation)] = 1;
    }
    for (const Pair &pair : pairs) {
        if (named(pair.page) != QStringLiteral("ExpertMode")) {
            asked.commands[operationOf(pair)] = 1;
        }
    }
    return asked;
}

Asked askedByApplyingExpert()
{
    Asked asked{once({QStringLiteral("setMavlinkBaudRate")})};
    for (const CorrectionRow &row : correctionRows) {
        asked.commands[QStringLiteral("set") + named(row.operation)] = 1;
    }
    return asked;
}

/// The defaults go into the controls as the numbers of a read do, then everything is applied. The contrast
/// type gets its default first, and then the one that a reset ends on.
Asked askedByReset()
{
    Asked asked{askedByCameraRead()};
    asked += {once({QStringLiteral("configureContrastType")})};
    asked += askedByApplyingUser();
    return asked;
}

void addPixelHandlers(QMap<QString, Asked> &handlers)
{
    for (const QString &verb : {QStringLiteral("add"), QStringLiteral("remove")}) {
        const QString operation{verb + QStringLiteral("BadPixel")};
        handlers[operation + QStringLiteral("Clicked")] = {{{operation, 1}}};
        handlers[operation + QStringLiteral("LineClicked")] = {{{operation, 640}}};
        handlers[operation + QStringLiteral("ColumnClicked")] = {{{operation, 480}}};
    }
}

void addHandlersOfTables(QMap<QString, Asked> &handlers)
{
    for (const Pair &pair : pairs) {
        handlers[named(pair.sendSlot)] = {once({operationOf(pair)})};
    }
    for (const ToggleRow &row : toggleRows) {
        handlers[named(row.slot)] = {once({QStringLiteral("set") + named(row.operation)})};
    }
    for (const ChoiceRow &row : choiceRows) {
        handlers[named(row.slot)] = {once({named(row.operation)})};
    }
    for (const CorrectionRow &row : correctionRows) {
        if (row.slot != nullptr) {
            handlers[named(row.slot)] = {once({QStringLiteral("set") + named(row.operation)})};
        }
    }
    for (const RegionRow &row : regionRows) {
        if (row.enable != nullptr) {
            handlers[named(row.enableSlot)] = {once(operationsOfARegion())};
        }
    }
    int mode{0};
    for (const VideoModeRow &row : videoModeRows) {
        handlers[named(row.slot)] = {once({QStringLiteral("setVideoMode(%1)").arg(mode++)})};
    }
}

/// Every handler that sends, by its name.
const QMap<QString, Asked> &askingHandlers()
{
    static const QMap<QString, Asked> all{[] {
        QMap<QString, Asked> handlers;
        addHandlersOfTables(handlers);
        addPixelHandlers(handlers);
        for (const char *const coordinate : {"X1", "X2", "Y1", "Y2"}) {
            handlers[named(coordinate).toLower() + QStringLiteral("RoiUserValueChanged")] = {
                once({QStringLiteral("setRoi") + named(coordinate)})};
        }
        static const struct
        {
            const char *handler;
            const char *command;
        } rows[]{
            {"ChangeBaudRate", "setBaudRate"},
            {"targetChanged", "setTarget"},
            {"visibleAgcChanged", "setVisibleAgc"},
            {"visibleClheChanged", "setVisibleClhe"},
            {"startingModeChanged", "setStartingMode"},
            {"readStartingMode", "setStartingMode"},
            {"readZoom", "configureZoom"},
            {"configureZoomClicked", "configureZoom"},
            {"fusionWarpClicked", "setWarp"},
            {"saveBlendUnitUserClicked", "saveBlendUnitParameters(0)"},
            {"saveBlendUnitExpertClicked", "saveBlendUnitParameters(1)"},
            {"krBaudRateChanged", "setMavlinkBaudRate"},
            {"ApplyNucRequest", "processNucRequest()"},
            {"writeBprTableClicked", "writeBprTable(4096, 16384, 8)"},
        };
        for (const auto &row : rows) {
            handlers[named(row.handler)] = {once({named(row.command)})};
        }
        handlers[QStringLiteral("connectDevice")] = askedByConnecting();
        handlers[QStringLiteral("readAllParameters")] = askedByRead();
        handlers[QStringLiteral("readBlendUnitParameters")] = askedByBlendUnitRead();
        handlers[QStringLiteral("readCameraParameters")] = askedByCameraRead();
        handlers[QStringLiteral("readParamsExpert")] = withTargets(askedByExpertRead());
        handlers[QStringLiteral("ReadKrParamsExpert")] = askedByExpertRead();
        handlers[QStringLiteral("ApplyParamsUser")] = askedByApplyingUser();
        handlers[QStringLiteral("ApplyParamsExpert")] = askedByApplyingExpert();
        handlers[QStringLiteral("ResetParamsUser")] = askedByReset();
        return handlers;
    }()};
    return all;
}

/// The handler that each control runs, for those whose handler sends.
QMap<QString, QString> handlersOfControls()
{
    QMap<QString, QString> handlers{
        {QStringLiteral("Principal_tab"), QStringLiteral("targetChanged")},
        {QStringLiteral("BaudRateConnectCB"), QStringLiteral("ChangeBaudRate")},
        {QStringLiteral("BaudRateCB"), QStringLiteral("krBaudRateChanged")},
        {QStringLiteral("startingModeCB"), QStringLiteral("startingModeChanged")},
        {QStringLiteral("methodZoomEdit"), QStringLiteral("configureZoomClicked")},
        {QStringLiteral("configureZoomButton"), QStringLiteral("configureZoomClicked")},
        {QStringLiteral("FusionConfigureZoomPB"), QStringLiteral("configureZoomClicked")},
        {QStringLiteral("FusionWarpPB"), QStringLiteral("fusionWarpClicked")},
        {QStringLiteral("saveParamButtonUser"), QStringLiteral("saveBlendUnitUserClicked")},
        {QStringLiteral("saveParamFactoryPB"), QStringLiteral("saveBlendUnitExpertClicked")},
        {QStringLiteral("writeBPRTableButton"), QStringLiteral("writeBprTableClicked")},
        {QStringLiteral("connectDeviceButton"), QStringLiteral("connectDevice")},
        {QStringLiteral("readParamButtonUser"), QStringLiteral("readAllParameters")},
        {QStringLiteral("readParamButtonExpert"), QStringLiteral("readParamsExpert")},
        {QStringLiteral("resetParamButtonUser"), QStringLiteral("ResetParamsUser")},
    };
    for (const QString &kind : {QStringLiteral("addBadPixel"), QStringLiteral("removeBadPixel")}) {
        for (const QString &extent : {QString{}, QStringLiteral("Line"), QStringLiteral("Column")}) {
            handlers[kind + extent + QStringLiteral("Button")] = kind + extent + QStringLiteral("Clicked");
        }
    }
    for (const Pair &pair : pairs) {
        handlers[named(pair.slider)] = handlers[named(pair.box)] = named(pair.sendSlot);
    }
    for (const ToggleRow &row : toggleRows) {
        handlers[named(row.button)] = named(row.slot);
    }
    for (const ChoiceRow &row : choiceRows) {
        handlers[named(row.comboBox)] = named(row.slot);
    }
    for (const BoxRow &row : boxRows) {
        handlers[named(row.box)] = named(row.sendSlot);
    }
    for (const VideoModeRow &row : videoModeRows) {
        handlers[named(row.button)] = named(row.slot);
    }
    for (const CorrectionRow &row : correctionRows) {
        handlers[named(row.checkBox)] = named(row.slot != nullptr ? row.slot : "");
    }
    for (const RegionRow &row : regionRows) {
        for (const char *const coordinate : {"X1", "X2", "Y1", "Y2"}) {
            handlers[named(row.boxes) + named(coordinate)] =
                named(coordinate).toLower() + QStringLiteral("RoiUserValueChanged");
        }
        if (row.enable != nullptr) {
            handlers[named(row.enable)] = named(row.enableSlot);
        }
    }
    return handlers;
}

} // namespace

Asked &Asked::operator+=(const Asked &other)
{
    for (auto command = other.commands.begin(); command != other.commands.end(); ++command) {
        commands[command.key()] += command.value();
    }
    reads = reads || other.reads;
    all = all || other.all;
    return *this;
}

bool Asked::has(const QString &operation) const
{
    const auto isIt = [&](const QString &command) {
        return command.section(QLatin1Char{'('}, 0, 0) == operation;
    };
    const QStringList known{commands.keys()};
    return all || std::any_of(known.begin(), known.end(), isIt);
}

QString Asked::notAsked(const QStringList &calls) const
{
    if (all) {
        return {};
    }
    Commands left{commands};
    const auto take = [&](const QString &command) {
        return left.contains(command) && --left[command] >= 0;
    };
    for (const QString &call : calls) {
        if (!take(call) && !take(call.section(QLatin1Char{'('}, 0, 0))) {
            return call;
        }
    }
    return {};
}

Asked times(Asked asked, int count)
{
    if (count <= 0) {
        return {};
    }
    for (int &each : asked.commands) {
        each *= count;
    }
    return asked;
}

Asked askedFrom(const QString &control)
{
    static const QMap<QString, QString> handlers{handlersOfControls()};
    return control == QStringLiteral("clearLogButton") ? Asked{once({logCleared})}
                                                       : askingHandlers().value(handlers.value(control));
}

Asked askedFromHandler(const QString &handler, int number)
{
    return handler == QStringLiteral("targetChanged")
               ? Asked{once({QStringLiteral("setTarget(%1)").arg(number)})}
               : askingHandlers().value(handler);
}

QStringList sendingHandlers()
{
    return askingHandlers().keys();
}

QString sendingControl(const QWidget *widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (!askedFrom(widget->objectName()).isEmpty() &&
            qobject_cast<const QTabWidget *>(widget) == nullptr) {
            return widget->objectName();
        }
        // Pages are chosen on their bar, which has no name of its own.
        if (qobject_cast<const QTabBar *>(widget) != nullptr) {
            return widget->parentWidget()->objectName();
        }
    }
    return {};
}

bool isCommand(const QString &operation)
{
    static const char *const beginnings[]{"set", "configure", "save", "process", "add", "remove", "write"};
    return std::any_of(std::begin(beginnings), std::end(beginnings),
                       [&](const char *beginning) { return operation.startsWith(QLatin1String{beginning}); });
}
