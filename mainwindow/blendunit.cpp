// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Image settings of the Blend Unit: reading, zoom, warp, the visible channel and saving.
#include "encodings.h"
#include "firmwaretext.h"
#include "logtext.h"
#include "mainwindow.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"
#include "widgetvalues.h"

#include <QString>

#include <optional>
#include <string>

using namespace veltrix_sdk;

namespace
{

// What readZoom takes. The program asks for the fusion zoom alone; the other one needs a call by name.
constexpr int infraredZoom{0};
constexpr int fusionZoom{2};

// The slips in "Could not changed", "Could not saved" and "visisble" are part of the product.
constexpr const char *warpRefused{"Could not changed warp configuration"};
constexpr const char *agcRefused{"Could not changed visisble AGC configuration"};
constexpr const char *clheRefused{"Could not changed visisble CLHE configuration"};
constexpr const char *expertNotSaved{"Could not saved blend unit expert parameters"};
constexpr const char *userNotSaved{"Could not saved blend unit parameters"};

} // namespace

bool MainWindow::readBlendUnitParameters()
{
    if (!isDeviceOpen()) {
        appendLog("Could not read Fusion parameters");
        return false;
    }
    appendLog("Start reading Fusion parameters");
    const std::optional<FirmwareVersions> versions{startReadingUnit()};
    if (!versions) {
        return false;
    }
    appendLog("RISC-V version = " + device_settings::blendUnitProcessorText(versions->processor) +
              "\nFPGA version = " + device_settings::blendUnitFpgaText(versions->fpga));
    appendLog(joinText("Serial number = ", device->getSerialNumber()));
    readVideoMode();
    readZoom(fusionZoom);
    readVisibleAgc();
    readVisibleClhe();
    readStartingMode();
    readTemp(targetBlendUnit);
    appendLog("End reading Fusion parameters");
    showText(*ui->BitTextEdit, QString::fromStdString("0x" + hexText(device->getBitStatus())));
    return true;
}

void MainWindow::readZoom(int selector)
{
    if (!isDeviceOpen()) {
        return;
    }
    ZoomConfig zoom{};
    ZoomResolution resolution{};
    device->getZoomConfig(&zoom);
    device->getZoomResolution(&resolution);
    const auto tell = [&](const std::string &stream) {
        appendLog(joinText(stream, " ZOOM factor value = ", zoom.factor));
        appendLog(joinText(stream, " X zoom resolution = ", resolution.x));
        appendLog(joinText(stream, " Y zoom resolution = ", resolution.y));
        appendLog(joinText(stream, " X zoom center = ", zoom.xCenter));
        appendLog(joinText(stream, " Y zoom center = ", zoom.yCenter));
    };
    // The method goes to the infrared side's box on both paths. That box sends a zoom when it changes, so the
    // device would notice if the fusion side's box were filled instead.
    if (selector == infraredZoom) {
        showNumber(*ui->factorZoomEdit, static_cast<double>(zoom.factor));
        ui->methodZoomEdit->setCurrentIndex(zoom.method);
        showNumber(*ui->xCenterZoomEdit, zoom.xCenter);
        showNumber(*ui->yCenterZoomEdit, zoom.yCenter);
        showNumber(*ui->xResolutionZoomEdit, resolution.x);
        showNumber(*ui->yResolutionZoomEdit, resolution.y);
        tell("IR");
    } else if (selector == fusionZoom) {
        showNumber(*ui->FusionZoomFactorSB, static_cast<double>(zoom.factor));
        ui->methodZoomEdit->setCurrentIndex(zoom.method);
        tell("Fusion");
    }
}

void MainWindow::configureZoomClicked()
{
    if (!isDeviceOpen()) {
        return;
    }
    ZoomConfig zoom{};
    lastCommandOk = device->getZoomConfig(&zoom);
    if (!lastCommandOk) {
        appendLog("Could not read zoom config so configure Zoom KO");
        return;
    }
    zoom.factor = static_cast<float>(ui->FusionZoomFactorSB->value());
    zoom.method = toByte(ui->FusionZoomMethod->currentIndex());
    reportCommand(device->configureZoom(&zoom), "Configure Zoom");
}

void MainWindow::readFusionParamsExpert()
{
    if (!isDeviceOpen()) {
        return;
    }
    Warp warp{};
    warp.stream = toByte(ui->FusionWarpCB->currentIndex());
    lastCommandOk = device->getWarp(&warp);
    if (lastCommandOk) {
        showNumber(*ui->WarpA11CoeffSB, warp.a11);
        showNumber(*ui->WarpA12CoeffSB, warp.a12);
        showNumber(*ui->WarpA13CoeffSB, warp.a13);
        showNumber(*ui->WarpA21CoeffSB, warp.a21);
        showNumber(*ui->WarpA22CoeffSB, warp.a22);
        showNumber(*ui->WarpA23CoeffSB, warp.a23);
    }
}

void MainWindow::fusionWarpClicked()
{
    if (!isDeviceOpen()) {
        return;
    }
    // Column by column, whole numbers: the fraction that a box shows never reaches the device.
    const bool ok{device->setWarp(
        ui->FusionWarpCB->currentIndex(), truncateToInt32(ui->WarpA11CoeffSB->value()),
        truncateToInt32(ui->WarpA21CoeffSB->value()), truncateToInt32(ui->WarpA12CoeffSB->value()),
        truncateToInt32(ui->WarpA22CoeffSB->value()), truncateToInt32(ui->WarpA13CoeffSB->value()),
        truncateToInt32(ui->WarpA23CoeffSB->value()))};
    reportOutcome(ok, "Warp configuration applied correctly", warpRefused);
}

void MainWindow::readVisibleAgc()
{
    if (!isDeviceOpen()) {
        return;
    }
    VisibleAgc agc{};
    lastCommandOk = device->getVisibleAgc(&agc);
    if (!lastCommandOk) {
        appendLog("Could not get visible AGC configuration");
        return;
    }
    ui->VisAgcTargetSB->setValue(agc.target);
    ui->VisAgcTHSB->setValue(agc.threshold);
    ui->VisAgcCoeffSB->setValue(agc.filterCoefficient);
    appendLog(joinText("Visible AGC target = ", +agc.target));
    appendLog(joinText("Visible AGC threshold = ", +agc.threshold));
    appendLog(joinText("Visible AGC filter coefficient = ", +agc.filterCoefficient));
}

void MainWindow::visibleAgcChanged()
{
    if (isDeviceOpen()) {
        reportOutcome(device->setVisibleAgc(ui->VisAgcTargetSB->value(), toByte(ui->VisAgcTHSB->value()),
                                            toByte(ui->VisAgcCoeffSB->value())),
                      "Visible AGC configuration applied correctly", agcRefused);
    }
}

void MainWindow::readVisibleClhe()
{
    if (!isDeviceOpen()) {
        return;
    }
    VisibleClhe clhe{};
    lastCommandOk = device->getVisibleClhe(&clhe);
    if (!lastCommandOk) {
        appendLog("Could not get visible CLHE configuration");
        return;
    }
    showNumber(*ui->VisClheTHSB, clhe.threshold);
    ui->VisClheCoeffSB->setValue(clhe.filterCoefficient);
    appendLog(joinText("Visible CLHE threshold = ", clhe.threshold));
    appendLog(joinText("Visible filter coefficient = ", +clhe.filterCoefficient));
}

void MainWindow::visibleClheChanged()
{
    if (isDeviceOpen()) {
        reportOutcome(device->setVisibleClhe(ui->VisClheTHSB->value(), toByte(ui->VisClheCoeffSB->value())),
                      "Visible CLHE configuration applied correctly", clheRefused);
    }
}

void MainWindow::saveBlendUnitExpertClicked()
{
    if (isDeviceOpen()) {
        reportOutcome(device->saveBlendUnitParameters(saveExpertParameters),
                      "Blend unit expert parameters have been saved", expertNotSaved);
    }
}

void MainWindow::saveBlendUnitUserClicked()
{
    if (isDeviceOpen()) {
        reportOutcome(device->saveBlendUnitParameters(saveUserParameters),
                      "Blend unit parameters have been saved", userNotSaved);
    }
}
