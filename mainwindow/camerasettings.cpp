// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Camera settings: each is sent the moment the operator changes it.
#include "encodings.h"
#include "mainwindow.h"
#include "togglesetting.h"
#include "veltrix_sdk/device_control.h"

void MainWindow::columnCorrectionClicked()
{
    sendToggle(columnCorrection);
}

void MainWindow::vignettingCorrectionClicked()
{
    sendToggle(vignettingCorrection);
}

void MainWindow::sdiOutputClicked()
{
    sendToggle(sdiOutput);
}

void MainWindow::parallelOutputClicked()
{
    sendToggle(parallelOutput);
}

void MainWindow::mipiOutputClicked()
{
    sendToggle(mipiOutput);
}

void MainWindow::polarityClicked()
{
    sendToggle(polarity);
}

void MainWindow::horizontalFlipClicked()
{
    sendToggle(horizontalFlip);
}

void MainWindow::sendToggle(const ToggleSetting &setting)
{
    if (!isDeviceOpen()) {
        return;
    }
    QPushButton *const button{ui->*setting.button};
    const bool on{button->isChecked()};
    const bool ok{(device->*setting.set)(on)};
    // Only a text that says the opposite changes; after a refusal button and text may disagree.
    if (ok && button->text() == tr(on ? setting.deactivatedText : setting.activatedText)) {
        button->setText(tr(on ? setting.activatedText : setting.deactivatedText));
    }
    reportCommand(ok, setting.action);
}

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

void MainWindow::gammaUserSendCommand()
{
    if (isDeviceOpen()) {
        reportCommand(device->setGamma(toFixedPoint16_16(ui->gammaEdit->value())), "Set GAMMA value");
    }
}

void MainWindow::clheSendCommand()
{
    if (isDeviceOpen()) {
        reportCommand(device->setClhe(truncateToUint32(ui->clheEdit->value())), "Set CLHE value");
    }
}

void MainWindow::sharpeningSendCommand()
{
    edgeCorrectionChanged();
}

void MainWindow::ahcGainSendCommand()
{
    if (isDeviceOpen()) {
        reportCommand(device->setAhcGainLimitation(toByte(ui->AhcBlackGainLimSpin->value()),
                                                   toByte(ui->AhcWhiteGainLimSpin->value())),
                      "Set AHC GAINS LIMITATION values");
    }
}

void MainWindow::tempoFilterSendCommand()
{
    if (isDeviceOpen()) {
        reportCommand(device->setLutTemporalFilter(toByte(ui->TempoFilterSpin->value())),
                      "Set LUT TEMPORAL FILTER value");
    }
}

void MainWindow::ApplyParamsUser()
{
    if (!isDeviceOpen()) {
        return;
    }
    appendLog("Start applying camera parameters");
    frameRateChanged();
    videoOutputChanged();
    gammaUserSendCommand();
    contrastTypeChanged();
    colorLutChanged();
    clheSendCommand();
    tempoFilterSendCommand();
    ahcGainSendCommand();
    edgeCorrectionChanged();
    closeApply();
    appendLog("End applying camera parameters");
}
