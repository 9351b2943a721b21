// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Regions of interest: the enable boxes and what they send.
#include "encodings.h"
#include "mainwindow.h"
#include "region.h"
#include "veltrix_sdk/device_control.h"

using namespace veltrix_sdk;

RegionWidgets regionWidgets(const Ui_MainWindow &ui, Region region)
{
    switch (region) {
    case Region::Roi0Inclusive:
        return {ui.Roi0IncX1, ui.Roi0IncX2, ui.Roi0IncY1, ui.Roi0IncY2, nullptr};
    case Region::Roi1Inclusive:
        return {ui.Roi1IncX1, ui.Roi1IncX2, ui.Roi1IncY1, ui.Roi1IncY2, ui.roi1IncEnable};
    case Region::Roi0Exclusive:
        return {ui.Roi0ExcX1, ui.Roi0ExcX2, ui.Roi0ExcY1, ui.Roi0ExcY2, ui.roi0ExcEnable};
    case Region::Roi1Exclusive:
        return {ui.Roi1ExcX1, ui.Roi1ExcX2, ui.Roi1ExcY1, ui.Roi1ExcY2, ui.roi1ExcEnable};
    }
    return {};
}

void MainWindow::roi1IncCheck()
{
    enableRegion(Region::Roi1Inclusive);
}

void MainWindow::roi0ExcCheck()
{
    enableRegion(Region::Roi0Exclusive);
}

void MainWindow::roi1ExcCheck()
{
    enableRegion(Region::Roi1Exclusive);
}

void MainWindow::enableRegion(Region region)
{
    if (!isDeviceOpen()) {
        return;
    }
    const RegionWidgets widgets{regionWidgets(*ui, region)};
    const bool enabled{widgets.enable->isChecked()};
    for (QSpinBox *const spinBox : {widgets.x1, widgets.x2, widgets.y1, widgets.y2}) {
        spinBox->setEnabled(enabled);
    }

    using RegionSetter = bool (IDeviceControl::*)(std::uint32_t, std::int32_t, bool, bool, bool);
    const struct
    {
        RegionSetter set;
        const QSpinBox *spinBox;
    } coordinates[]{
        {&IDeviceControl::setRoiX1, widgets.x1},
        {&IDeviceControl::setRoiX2, widgets.x2},
        {&IDeviceControl::setRoiY1, widgets.y1},
        {&IDeviceControl::setRoiY2, widgets.y2},
    };
    bool allOk{true};
    for (const auto &coordinate : coordinates) {
        // A region that is off keeps its coordinates in the window; the camera gets zeros for it.
        const std::uint32_t pixels{enabled ? truncateToUint32(coordinate.spinBox->value()) : 0U};
        const bool ok{(device->*coordinate.set)(
            pixels, static_cast<std::int32_t>(region), ui->roi1IncEnable->isChecked(),
            ui->roi0ExcEnable->isChecked(), ui->roi1ExcEnable->isChecked())};
        allOk = allOk && ok;
        lastCommandOk = allOk;
    }
}
