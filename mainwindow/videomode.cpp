// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Video mode and starting mode of the Blend Unit.
#include "mainwindow.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"

#include <QPushButton>

#include <array>
#include <cstddef>
#include <cstdint>

/// A stream that the Blend Unit can deliver: the device's number of it, its button and what is told.
struct VideoMode
{
    std::uint8_t number;
    QPushButton *Ui_MainWindow::*button;
    const char *success;
    const char *failure;
};

namespace
{

/// No mode at all: what a read starts from.
constexpr std::uint8_t unknownMode{99};

constexpr std::array<VideoMode, 3> videoModes{{
    {veltrix_sdk::videoModeInfrared, &Ui_MainWindow::BU_IR_MODE_PB, "IR mode activated",
     "Could not configure IR mode"},
    {veltrix_sdk::videoModeVisible, &Ui_MainWindow::BU_VISIBLE_MODE_PB, "Visible mode activated",
     "Could not configure visible mode"},
    {veltrix_sdk::videoModeFusion, &Ui_MainWindow::BU_FUSION_MODE_PB, "Fusion mode activated",
     "Could not configure fusion mode"},
}};

/// Whether each mode stands at the place of its number.
constexpr bool areInOrder()
{
    std::size_t place{0};
    for (const VideoMode &mode : videoModes) {
        if (mode.number != place++) {
            return false;
        }
    }
    return place == veltrix_sdk::videoModeRange.maximum + 1;
}

static_assert(areInOrder());

} // namespace

void MainWindow::irModeClicked()
{
    switchVideoMode(videoModes[veltrix_sdk::videoModeInfrared]);
}

void MainWindow::visibleModeClicked()
{
    switchVideoMode(videoModes[veltrix_sdk::videoModeVisible]);
}

void MainWindow::fusionModeClicked()
{
    switchVideoMode(videoModes[veltrix_sdk::videoModeFusion]);
}

void MainWindow::switchVideoMode(const VideoMode &mode)
{
    if (!isDeviceOpen()) {
        return;
    }
    lastCommandOk = device->setVideoMode(mode.number);
    if (lastCommandOk) {
        showVideoMode(mode);
    } else {
        // The click has toggled the button already; the mode is what it was.
        if (sender() == ui->*mode.button) {
            (ui->*mode.button)->toggle();
        }
        appendLog(mode.failure);
    }
}

void MainWindow::showVideoMode(const VideoMode &mode)
{
    for (const VideoMode &other : videoModes) {
        (ui->*other.button)->setChecked(other.number == mode.number);
    }
    appendLog(mode.success);
}

void MainWindow::readVideoMode()
{
    if (!isDeviceOpen()) {
        return;
    }
    std::uint8_t number{0};
    lastCommandOk = device->getVideoMode(&number);
    if (lastCommandOk && number < videoModes.size()) {
        showVideoMode(videoModes[number]);
    } else {
        appendLog("Could not get current video mode");
    }
}

void MainWindow::startingModeChanged()
{
    if (isDeviceOpen()) {
        const auto index = static_cast<std::uint32_t>(ui->startingModeCB->currentIndex());
        // The text's slip is part of the product.
        reportOutcome(device->setStartingMode(index), "Blend unit starting mode set",
                      "Could not changed blend unit starting mode");
    }
}

void MainWindow::readStartingMode()
{
    if (!isDeviceOpen()) {
        return;
    }
    std::uint8_t mode{unknownMode};
    lastCommandOk = device->getStartingMode(&mode);
    if (lastCommandOk) {
        ui->startingModeCB->setCurrentIndex(mode);
    }
}
