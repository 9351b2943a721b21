// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Expert parameters of the camera: reading, sending and applying them.
#include "encodings.h"
#include "logtext.h"
#include "mainwindow.h"
#include "sequence.h"
#include "sliderpair.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/records.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QString>

using namespace veltrix_sdk;

void MainWindow::ReadKrParamsExpert()
{
    if (!isDeviceOpen()) {
        return;
    }
    appendLog("Start reading camera expert parameters");
    readNumbers(SequencePlace::Expert);

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

// These three send without a line in the log and without noting the outcome. Readers of the log know it so: a
// read that changes a box sends too, and its lines stay together.
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

// No control runs it. It stays because every handler is a slot, which scripts can invoke by its name.
void MainWindow::ApplyParamsExpert()
{
    const Sequence sequence{*this};
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
        for (const SliderPair *const pair : pairsAt(SequencePlace::Expert)) {
            words.*pair->words.preset = pair->words.boxKeepsItsRange
                                            ? truncateToInt32(spinBoxValue(*ui, *pair))
                                            : (ui->*pair->slider)->value();
        }
    }
    appendLog("End applying camera expert parameters");
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

// No control runs it. It stays because every handler is a slot, which scripts can invoke by its name.
void MainWindow::ApplyNucRequest()
{
    if (isDeviceOpen() && !device->processNucRequest()) {
        QMessageBox::warning(this, QString{}, tr("Error on processing the NUC request"), QMessageBox::Ok);
    }
}
