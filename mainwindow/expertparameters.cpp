// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Expert parameters of the camera: reading, sending and applying them.
#include "encodings.h"
#include "logtext.h"
#include "mainwindow.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/sdk.h"
#include "widgetvalues.h"

#include <QMessageBox>

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

void MainWindow::ApplyParamsExpert()
{
    appendLog("Start applying camera expert parameters");
    if (isDeviceOpen()) {
        reportCommand(device->setVerticalFlip(ui->verticalFlipCheckBox->isChecked()), "Set Flip vertically");
        reportCommand(device->setBprEnable(ui->BPRCheckBox->isChecked()), "Set BPR value");
        reportCommand(device->setOffsetCorrection(ui->offsetCheckBox->isChecked()),
                      "Set Offset correction value");
        reportCommand(device->setGainCorrection(ui->gainCheckBox->isChecked()), "Set Gain correction value");
        krBaudRateChanged();
    } else {
        // Without a device they become the defaults of the next connection.
        ConfigurationWords &words{sdkConfiguration().words};
        words.gskDefault = ui->gskSlider->value();
        words.gmsDefault = truncateToInt32(ui->gmsEdit->value());
        words.gfidDefault = ui->gfidSlider->value();
        words.tintDefault = ui->tintSlider->value();
    }
    appendLog("End applying camera expert parameters");
}

void MainWindow::gskSendCommand()
{
    sendCommand("Set GSK value", &IDeviceControl::setGsk, truncateToUint32(ui->gskEdit->value()));
}

void MainWindow::gfiSendCommand()
{
    sendCommand("Set GFID value", &IDeviceControl::setGfid, truncateToUint32(ui->gfidEdit->value()));
}

void MainWindow::gmsSendCommand()
{
    sendCommand("Set GMS value", &IDeviceControl::setGms, truncateToUint32(ui->gmsEdit->value()));
}

void MainWindow::tintSendCommand()
{
    sendCommand("Set TINT value", &IDeviceControl::setTint, truncateToUint32(ui->tintEdit->value()));
}

void MainWindow::krBaudRateChanged()
{
    if (!isDeviceOpen()) {
        return;
    }
    const bool ok{
        device->setMavlinkBaudRate(ui->BaudRateCB->currentText().toInt(), ui->PermanentButton->isChecked())};
    reportCommand(ok, "Set Mavlink baud rate value");
    if (ok) {
        closeApply();
    } else {
        QMessageBox::warning(this, QString{}, tr("Problem transmitting expert parameters values\n"),
                             QMessageBox::Ok);
    }
}

void MainWindow::changePermanentButtonText()
{
    ui->PermanentButton->setText(ui->PermanentButton->isChecked() ? tr("Permanent") : tr("Not Permanent"));
}

void MainWindow::ApplyNucRequest()
{
    if (isDeviceOpen() && !device->processNucRequest()) {
        QMessageBox::warning(this, QString{}, tr("Error on processing the NUC request"), QMessageBox::Ok);
    }
}
