// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Expert parameters of the camera: reading them and the correction boxes.
#include "logtext.h"
#include "mainwindow.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"
#include "widgetvalues.h"

using namespace veltrix_sdk;

void MainWindow::ReadKrParamsExpert()
{
    if (!isDeviceOpen()) {
        return;
    }
    appendLog("Start reading camera expert parameters");

    const struct
    {
        std::uint32_t (IDeviceControl::*get)();
        QSlider *slider;
        QDoubleSpinBox *spinBox;
        const char *label;
    } values[]{
        {&IDeviceControl::getGsk, ui->gskSlider, ui->gskEdit, "GSK value = "},
        {&IDeviceControl::getGfid, ui->gfidSlider, ui->gfidEdit, "GFID value = "},
        {&IDeviceControl::getGms, ui->gmsSlider, ui->gmsEdit, "GMS value = "},
        {&IDeviceControl::getTint, ui->tintSlider, ui->tintEdit, "TINT value = "},
    };
    for (const auto &row : values) {
        const std::uint32_t value{(device->*row.get)()};
        showNumber(*row.slider, value);
        showNumber(*row.spinBox, value);
        appendLog(joinText(row.label, value));
    }

    const struct
    {
        bool (IDeviceControl::*get)();
        QCheckBox *checkBox;
        const char *label;
    } switches[]{
        {&IDeviceControl::getBprEnable, ui->BPRCheckBox, "BPR state = "},
        {&IDeviceControl::getOffsetCorrection, ui->offsetCheckBox, "OFFSET state = "},
        {&IDeviceControl::getGainCorrection, ui->gainCheckBox, "GAIN state = "},
        {&IDeviceControl::getVerticalFlip, ui->verticalFlipCheckBox, "Vertical flip state = "},
    };
    for (const auto &row : switches) {
        const bool enabled{(device->*row.get)()};
        row.checkBox->setChecked(enabled);
        appendLog(joinText(row.label, enabledWord(enabled)));
    }

    appendLog("End reading camera expert parameters");
}

void MainWindow::bprControlChanged()
{
    if (isDeviceOpen()) {
        device->setBprEnable(ui->BPRCheckBox->isChecked());
    }
}

void MainWindow::offsetControlChanged()
{
    if (isDeviceOpen()) {
        device->setOffsetCorrection(ui->offsetCheckBox->isChecked());
    }
}

void MainWindow::gainControlChanged()
{
    if (isDeviceOpen()) {
        device->setGainCorrection(ui->gainCheckBox->isChecked());
    }
}
