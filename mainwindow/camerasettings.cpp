// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Camera settings: each is sent the moment the operator changes it.
#include "encodings.h"
#include "mainwindow.h"
#include "sequence.h"
#include "sliderpair.h"
#include "togglesetting.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"

#include <QPushButton>

#include <cstdint>

using veltrix_sdk::IDeviceControl;

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
    sendCommand("Set VIDEO OUTPUT value", &IDeviceControl::setVideoOutput,
                toByte(ui->VideoOutputCB->currentIndex()));
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
    sendCommand("Configure contrast type", &IDeviceControl::configureContrastType,
                toByte(ui->contrastTypeEdit->currentIndex()));
}

void MainWindow::colorLutChanged()
{
    sendCommand("Set COLOR LUT value", &IDeviceControl::setColorLut,
                toByte(ui->lutColorEdit->currentIndex()));
}

void MainWindow::edgeCorrectionChanged()
{
    sendCommand("Configure EDGE CORRECTION", &IDeviceControl::configureEdgeCorrection,
                toByte(ui->EdgeCorrectionCB->currentIndex()),
                truncateToUint32(ui->sharpeningGainEdit->value()),
                truncateToUint32(ui->SharpeningTHEdit->value()));
}

void MainWindow::ApplyParamsUser()
{
    const Sequence sequence{*this};
    if (!isDeviceOpen()) {
        return;
    }
    appendLog("Start applying camera parameters");
    frameRateChanged();
    videoOutputChanged();
    sendNumbers(SequencePlace::Gamma);
    contrastTypeChanged();
    colorLutChanged();
    sendNumbers(SequencePlace::Clhe);
    sendNumbers(SequencePlace::LutFilter);
    ahcGainSendCommand();
    edgeCorrectionChanged();
    closeApply();
    appendLog("End applying camera parameters");
}
