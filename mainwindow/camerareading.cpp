// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reading the camera: its whole user-level state into the controls and the log.
#include "encodings.h"
#include "firmwaretext.h"
#include "logtext.h"
#include "mainwindow.h"
#include "optionalregions.h"
#include "region.h"
#include "sliderpair.h"
#include "togglesetting.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"
#include "widgetvalues.h"

#include <QPushButton>
#include <QSpinBox>

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <optional>

using namespace veltrix_sdk;

bool MainWindow::readCameraParameters()
{
    if (tellNotConnected()) {
        return false;
    }
    appendLog("Start reading camera parameters");
    const std::optional<FirmwareVersions> versions{startReadingUnit()};
    if (!versions) {
        return false;
    }
    appendLog("RISC-V version = " + device_settings::cameraProcessorText(versions->processor) +
              "\nFPGA version = " + device_settings::cameraFpgaText(versions->fpga));
    readIdentity();
    readOutputs();
    readFlipAndPolarity();
    readNumbers(SequencePlace::Gamma);
    readRegions();
    readLut();
    readTemp(targetCamera);
    readEdgeCorrection();
    appendLog("End reading camera parameters");
    return true;
}

std::optional<FirmwareVersions> MainWindow::startReadingUnit()
{
    FirmwareVersions versions{};
    device->getFirmwareVersions(&versions);
    if (versions.processor == 0 && versions.fpga == 0) {
        showNotConnectedBox();
        appendLog("End Read camera parameters : COM Error");
        return std::nullopt;
    }
    device->startReading();
    return versions;
}

void MainWindow::readIdentity()
{
    appendLog(joinText("Serial number = ", device->getSerialNumber()));
    appendLog(joinText("Sensor serial number = ", device->getSensorSerialNumber()));
    OperatingInfo info{};
    device->getOperatingInfo(&info);
    appendLog(joinText("Operating time = ", info.operatingMinutes, " min"));
    appendLog(joinText("Startup number = ", info.startupCount));
}

void MainWindow::readToggle(const ToggleSetting &setting)
{
    const bool on{(device->*setting.get)()};
    QPushButton *const button{ui->*setting.button};
    button->setChecked(on);
    button->setText(tr(on ? setting.activatedText : setting.deactivatedText));
    appendLog(setting.readWords == ToggleWords::EnabledDisabled ? joinText(setting.readLabel, enabledWord(on))
                                                                : joinText(setting.readLabel, on));
}

void MainWindow::readOutputs()
{
    for (const ToggleSetting *const setting :
         {&vignettingCorrection, &columnCorrection, &sdiOutput, &parallelOutput, &mipiOutput}) {
        readToggle(*setting);
    }

    ui->VideoOutputCB->setCurrentIndex(device->getVideoOutput());
    appendLog("Video output = " + ui->VideoOutputCB->currentText().toStdString());

    // A rate that the camera does not have is shown as 9 Hz, while a reset ends on 25 Hz: operators know
    // both.
    ui->frameRateCB->setCurrentIndex(frameRateIndex(device->getFrameRate(), indexOf9Hz));
    appendLog("Frame rate = " + ui->frameRateCB->currentText().toStdString());
}

void MainWindow::readFlipAndPolarity()
{
    for (const ToggleSetting *const setting : {&horizontalFlip, &polarity}) {
        readToggle(*setting);
    }
}

void MainWindow::readRegions()
{
    // The number is the one that the device's readers give the region.
    const struct
    {
        Region region;
        std::uint32_t number;
        const char *name;
    } regions[]{
        {Region::Roi0Inclusive, getter_region::roi0Inclusive, "ROI0 inclusive"},
        {Region::Roi0Exclusive, getter_region::roi0Exclusive, "ROI0 exclusive"},
        {Region::Roi1Inclusive, getter_region::roi1Inclusive, "ROI1 inclusive"},
        {Region::Roi1Exclusive, getter_region::roi1Exclusive, "ROI1 exclusive"},
    };

    static_assert(std::size(regions) == regionCount);

    // All are read before any widget changes: an enable box that changes sends its region back.
    std::array<std::array<std::uint32_t, 4>, std::size(regions)> pixels{};
    for (std::size_t place{0}; place < pixels.size(); ++place) {
        const std::uint32_t number{regions[place].number};
        pixels[place] = {device->getRoiX1(number), device->getRoiY1(number), device->getRoiX2(number),
                         device->getRoiY2(number)};
    }

    for (std::size_t place{0}; place < pixels.size(); ++place) {
        const RegionWidgets widgets{regionWidgets(*ui, regions[place].region)};
        const auto &[x1, y1, x2, y2] = pixels[place];
        if (widgets.enable != nullptr) {
            widgets.enable->setChecked(device_settings::isRegionOn(x1));
        }
        const struct
        {
            QSpinBox *spinBox;
            const char *name;
            std::uint32_t value;
        } coordinates[]{
            {widgets.x1, "X1", x1},
            {widgets.y1, "Y1", y1},
            {widgets.x2, "X2", x2},
            {widgets.y2, "Y2", y2},
        };
        for (const auto &coordinate : coordinates) {
            showNumber(*coordinate.spinBox, coordinate.value);
            appendLog(joinText(regions[place].name, ' ', coordinate.name, " value = ", coordinate.value));
        }
    }
}

void MainWindow::readLut()
{
    readNumbers(SequencePlace::Clhe);

    ui->lutColorEdit->setCurrentIndex(device->getColorLut());
    appendLog("Color Lut = " + ui->lutColorEdit->currentText().toStdString());

    const std::uint8_t contrastType{device->getContrastType()};
    ui->contrastTypeEdit->setCurrentIndex(contrastType);
    appendLog(
        joinText("Contrast type = ", contrastType == contrastTypeClhe ? "CLHE (ROI)" : "CLAHE (LOCAL)"));

    readNumbers(SequencePlace::LutFilter);

    AhcGainLimitation limitation{};
    if (device->getAhcGainLimitation(&limitation) == 1) {
        ui->AhcBlackGainLimSpin->setValue(limitation.black);
        ui->AhcWhiteGainLimSpin->setValue(limitation.white);
        appendLog(joinText("AHC black gain limitation = ", +limitation.black));
        appendLog(joinText("AHC white gain limitation = ", +limitation.white));
    } else {
        appendLog("AHC gain limitation read error");
    }
}

void MainWindow::readEdgeCorrection()
{
    const EdgeCorrection edge{device->getEdgeCorrection()};
    ui->EdgeCorrectionCB->setCurrentIndex(edge.type);
    SharpeningUserValueChanged(edge.gain);
    SharpeningTHValueChanged(edge.firstThreshold);
    // The first threshold of the log is derived from the second one, as readers of the log know it; the
    // device's own first threshold is shown by the slider alone.
    appendLog(joinText(
        "Correction type = ", +edge.type, "\nCorrection gain = ", edge.gain,
        "\nFirst threshold = ", static_cast<std::int64_t>(edge.secondThreshold) - edgeThresholdDistance,
        "\nSecond threshold = ", edge.secondThreshold));
}
