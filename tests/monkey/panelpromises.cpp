// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What has to hold for the controls of a window, whatever was done.
#include "panelpromises.h"

#include "asked.h"
#include "controls.h"
#include "tables.h"

#include <QLatin1Char>
#include <QLatin1String>
#include <QMap>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace
{

double numberIn(const Panel &panel, const QString &property)
{
    return panel.value(property).toDouble();
}

/// Whether a slider stands where its box says.
bool standsAtItsBox(const Panel &panel, const Pair &pair)
{
    const QString slider{named(pair.slider)};
    const QString box{named(pair.box)};
    const double lowest{numberIn(panel, slider + QStringLiteral(".minimum"))};
    const double highest{std::max(lowest, numberIn(panel, slider + QStringLiteral(".maximum")))};
    const double value{numberIn(panel, box + QStringLiteral(".value"))};
    const double position{std::round((value - pair.lowest) * pair.stepsPerUnit)};
    const double expected{std::clamp(position, lowest, highest)};
    const double shown{numberIn(panel, slider + QStringLiteral(".value"))};
    // A box at its end has no change to tell, so a slider that reaches further stays where it was put.
    return (shown >= expected || value <= numberIn(panel, box + QStringLiteral(".minimum"))) &&
           (shown <= expected || value >= numberIn(panel, box + QStringLiteral(".maximum")));
}

} // namespace

QString wronglyEnabled(const Panel &panel, const Panel &atStart, const DeviceSide &device)
{
    QMap<QString, bool> expected{
        {QStringLiteral("scanDeviceButton"), device.canScan},
        {QStringLiteral("selectDeviceComboBox"), device.canChoosePort},
        {QStringLiteral("connectDeviceButton"), device.canConnect},
    };
    for (const char *const name : {"paramSection", "disconnectDeviceButton", "resetParamButtonUser",
                                   "readParamButtonUser", "saveParamButtonUser"}) {
        expected[QLatin1String{name}] = device.connected;
    }
    for (const RegionRow &row : regionRows) {
        for (const char *const coordinate : {"X1", "X2", "Y1", "Y2"}) {
            if (row.enable != nullptr) {
                expected[named(row.boxes) + named(coordinate)] =
                    panel.value(named(row.enable) + QStringLiteral(".checked")).toBool();
            }
        }
    }
    const QString suffix{QStringLiteral(".enabled")};
    for (auto state = panel.begin(); state != panel.end(); ++state) {
        if (!state.key().endsWith(suffix)) {
            continue;
        }
        const bool enabled{
            expected.value(state.key().chopped(suffix.size()), atStart.value(state.key(), true).toBool())};
        if (state.value().toBool() != enabled) {
            return QStringLiteral("enabled: %1 is %2").arg(state.key(), state.value().toString());
        }
    }
    return {};
}

QString wrongValue(const Panel &panel, const Panel &atStart, const QWidget &window)
{
    for (auto state = panel.begin(); state != panel.end(); ++state) {
        if (!state.key().endsWith(QStringLiteral(".value"))) {
            continue;
        }
        const QString name{state.key().section(QLatin1Char{'.'}, 0, 0)};
        const double value{state.value().toDouble()};
        const double minimum{panel.value(name + QStringLiteral(".minimum")).toDouble()};
        const double maximum{panel.value(name + QStringLiteral(".maximum")).toDouble()};
        if (!(value >= minimum && value <= maximum)) {
            return QStringLiteral("range: %1 is %2").arg(name).arg(value);
        }
    }
    const QWidget *const focused{window.focusWidget()};
    for (const Pair &pair : pairs) {
        const QString slider{named(pair.slider)};
        const QString box{named(pair.box)};
        // The form's own values do not fit together, and what is typed pulls its box back when the edit ends.
        const auto isAsAtStart = [&](const QString &name) {
            return panel.value(name + QStringLiteral(".value")) ==
                   atStart.value(name + QStringLiteral(".value"));
        };
        if ((isAsAtStart(slider) && isAsAtStart(box)) ||
            (focused != nullptr && sendingControl(focused) == box)) {
            continue;
        }
        if (!standsAtItsBox(panel, pair)) {
            return QStringLiteral("coupling: %1 stands at %2 beside %3 in its box")
                .arg(slider)
                .arg(numberIn(panel, slider + QStringLiteral(".value")))
                .arg(numberIn(panel, box + QStringLiteral(".value")), 0, 'g', 12);
        }
    }
    for (const QSlider *const slider : window.findChildren<QSlider *>()) {
        if (slider->isSliderDown()) {
            return QStringLiteral("slider held: ") + slider->objectName();
        }
    }
    return {};
}
