// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Resetting the camera: the SDK's defaults into the controls, then applied.
#include "encodings.h"
#include "mainwindow.h"
#include "region.h"
#include "sequence.h"
#include "sliderpair.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/configuration.h"
#include "widgetvalues.h"

#include <QSpinBox>

#include <cmath>
#include <initializer_list>

using namespace veltrix_sdk;

void MainWindow::ResetParamsUser()
{
    const Sequence sequence{*this};
    if (!isDeviceOpen()) {
        return;
    }
    ISdkConfiguration &defaults{sdkConfiguration()};

    // A rate that the camera does not have is reset to 25 Hz, while a read shows it as 9 Hz: operators know
    // both.
    ui->frameRateCB->setCurrentIndex(frameRateIndex(defaults.getDefaultFrameRate(), indexOf25Hz));
    resetNumbers(SequencePlace::Gamma, defaults);
    resetNumbers(SequencePlace::Clhe, defaults);
    ui->sharpeningGainSlider->setValue(roundToInt(defaults.getDefaultSharpeningGain()));
    // Not in the order of a read: the library sees in which order it is asked for the defaults.
    for (const auto slider : {&Ui_MainWindow::gfidSlider, &Ui_MainWindow::gskSlider,
                              &Ui_MainWindow::tintSlider, &Ui_MainWindow::gmsSlider}) {
        resetNumber(pairOf(slider), defaults);
    }
    resetRegions(defaults);
    // The buttons and the vertical flip only show their defaults: a button sends when it is clicked, the flip
    // with the expert parameters.
    ui->polarityButton->setChecked(defaults.getDefaultPolarity());
    ui->contrastTypeEdit->setCurrentIndex(defaults.getDefaultContrastType());
    // Whatever the default index says, a reset ends on the region-based algorithm: operators know it so.
    ui->contrastTypeEdit->setCurrentText(tr("CLHE (ROI)"));
    ui->lutColorEdit->setCurrentIndex(defaults.getDefaultColorLut());
    ui->horizontalFlipButton->setChecked(defaults.getDefaultHorizontalFlip());
    ui->verticalFlipCheckBox->setChecked(defaults.getDefaultVerticalFlip());
    ui->VignettingCorrectionButton->setChecked(defaults.getDefaultVignettingCorrection());
    ui->ColumnCorrectionButton->setChecked(defaults.getDefaultColumnCorrection());
    ui->EdgeCorrectionCB->setCurrentIndex(defaults.getDefaultEdgeCorrectionType());
    showNumber(*ui->sharpeningGainEdit, defaults.getDefaultSharpeningGainValue());
    showNumber(*ui->SharpeningTHEdit, defaults.getDefaultSharpeningThreshold());
    ui->VideoOutputCB->setCurrentIndex(defaults.getDefaultVideoOutput());
    ui->sdiOutputButton->setChecked(defaults.getDefaultSdiOutput());
    ui->parallelOutputButton->setChecked(defaults.getDefaultParallelOutput());
    ui->mipiOutputButton->setChecked(defaults.getDefaultMipiOutput());
    resetNumbers(SequencePlace::LutFilter, defaults);
    ui->AhcBlackGainLimSpin->setValue(defaults.getDefaultAhcBlackGainLimit());
    ui->AhcWhiteGainLimSpin->setValue(defaults.getDefaultAhcWhiteGainLimit());

    ApplyParamsUser();
}

void MainWindow::resetRegions(ISdkConfiguration &defaults)
{
    using Coordinate = double (ISdkConfiguration::*)();
    const struct
    {
        Region region;
        Coordinate x1;
        Coordinate y1;
        Coordinate x2;
        Coordinate y2;
        bool (ISdkConfiguration::*enabled)(); ///< Null for the region that is always on.
    } regions[]{
        {Region::Roi0Inclusive, &ISdkConfiguration::getDefaultRoi0IncX1,
         &ISdkConfiguration::getDefaultRoi0IncY1, &ISdkConfiguration::getDefaultRoi0IncX2,
         &ISdkConfiguration::getDefaultRoi0IncY2, nullptr},
        {Region::Roi0Exclusive, &ISdkConfiguration::getDefaultRoi0ExcX1,
         &ISdkConfiguration::getDefaultRoi0ExcY1, &ISdkConfiguration::getDefaultRoi0ExcX2,
         &ISdkConfiguration::getDefaultRoi0ExcY2, &ISdkConfiguration::getDefaultRoi0ExcEnable},
        {Region::Roi1Inclusive, &ISdkConfiguration::getDefaultRoi1IncX1,
         &ISdkConfiguration::getDefaultRoi1IncY1, &ISdkConfiguration::getDefaultRoi1IncX2,
         &ISdkConfiguration::getDefaultRoi1IncY2, &ISdkConfiguration::getDefaultRoi1IncEnable},
        {Region::Roi1Exclusive, &ISdkConfiguration::getDefaultRoi1ExcX1,
         &ISdkConfiguration::getDefaultRoi1ExcY1, &ISdkConfiguration::getDefaultRoi1ExcX2,
         &ISdkConfiguration::getDefaultRoi1ExcY2, &ISdkConfiguration::getDefaultRoi1ExcEnable},
    };
    for (const auto &row : regions) {
        const auto widgets = regionWidgets(*ui, row.region);
        const auto show = [&defaults](QSpinBox *spinBox, Coordinate coordinate) {
            spinBox->setValue(roundToInt(std::trunc((defaults.*coordinate)())));
        };
        show(widgets.x1, row.x1);
        show(widgets.y1, row.y1);
        show(widgets.x2, row.x2);
        show(widgets.y2, row.y2);
        // After the coordinates, so that what the box sends are the defaults.
        if (row.enabled != nullptr) {
            widgets.enable->setChecked((defaults.*row.enabled)());
        }
    }
}
