// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Camera settings: each is sent the moment the operator changes it.
#include "encodings.h"
#include "mainwindow.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"

void MainWindow::videoOutputChanged()
{
    if (isDeviceOpen()) {
        reportCommand(device->setVideoOutput(toByte(ui->VideoOutputCB->currentIndex())),
                      "Set VIDEO OUTPUT value");
    }
}

void MainWindow::frameRateChanged()
{
    if (!isDeviceOpen()) {
        return;
    }
    const std::uint8_t hertz{frameRateHz(ui->frameRateCB->currentIndex())};
    if (device->getFrameRate() != hertz) {
        reportCommand(device->setFrameRate(hertz), "Set FRAME RATE value");
    }
}

void MainWindow::contrastTypeChanged()
{
    if (isDeviceOpen()) {
        reportCommand(device->configureContrastType(toByte(ui->contrastTypeEdit->currentIndex())),
                      "Configure contrast type");
    }
}

void MainWindow::colorLutChanged()
{
    if (isDeviceOpen()) {
        reportCommand(device->setColorLut(toByte(ui->lutColorEdit->currentIndex())), "Set COLOR LUT value");
    }
}

void MainWindow::edgeCorrectionChanged()
{
    if (isDeviceOpen()) {
        reportCommand(device->configureEdgeCorrection(toByte(ui->EdgeCorrectionCB->currentIndex()),
                                                      truncateToUint32(ui->sharpeningGainEdit->value()),
                                                      truncateToUint32(ui->SharpeningTHEdit->value())),
                      "Configure EDGE CORRECTION");
    }
}
