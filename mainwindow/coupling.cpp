// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Sliders and their spin boxes: each writes its partner, none calls the camera.
#include "encodings.h"
#include "mainwindow.h"
#include "ui_mainwindow.h"
#include "widgetvalues.h"

namespace
{

// One step of a slider is a tenth of its spin box's unit, where the two are not one to one.
constexpr double unitsPerStep{0.1};
constexpr double stepsPerUnit{10.0};
constexpr double lowestGamma{0.5};

} // namespace

void MainWindow::GammaUserSliderChanged(int position)
{
    setIfDifferent(*ui->gammaEdit, position * unitsPerStep + lowestGamma);
}

void MainWindow::GammaUserValueChanged(double value)
{
    setIfDifferent(*ui->gammaSlider, roundToInt((value - lowestGamma) * stepsPerUnit));
}

void MainWindow::ClheUserSliderChanged(int position)
{
    setIfDifferent(*ui->clheEdit, position);
}

void MainWindow::ClheUserValueChanged(double value)
{
    setIfDifferent(*ui->clheSlider, roundToInt(value));
}

void MainWindow::SharpeningUserSliderChanged(int position)
{
    setIfDifferent(*ui->sharpeningGainEdit, position * unitsPerStep);
}

void MainWindow::SharpeningUserValueChanged(double value)
{
    setIfDifferent(*ui->sharpeningGainSlider, roundToInt(value * stepsPerUnit));
}

void MainWindow::SharpeningTHSliderChanged(int position)
{
    setIfDifferent(*ui->SharpeningTHEdit, position * unitsPerStep);
}

void MainWindow::SharpeningTHValueChanged(double value)
{
    setIfDifferent(*ui->SharpeningTHSlider, roundToInt(value * stepsPerUnit));
}

void MainWindow::AhcBlackGainlimSliderChanged(int position)
{
    setIfDifferent(*ui->AhcBlackGainLimSpin, position);
}

void MainWindow::AhcBlackGainLimSpinValueChanged(int value)
{
    setIfDifferent(*ui->AhcBlackGainLimSlider, value);
}

void MainWindow::AhcWhiteGainlimSliderChanged(int position)
{
    setIfDifferent(*ui->AhcWhiteGainLimSpin, position);
}

void MainWindow::AhcWhiteGainLimSpinValueChanged(int value)
{
    setIfDifferent(*ui->AhcWhiteGainLimSlider, value);
}

void MainWindow::TempoFilterSliderChanged(int position)
{
    setIfDifferent(*ui->TempoFilterSpin, position);
}

void MainWindow::TempoFiltSpinValueChanged(int value)
{
    setIfDifferent(*ui->TempoFilterSlider, value);
}

void MainWindow::GSKExpertSliderChanged(int position)
{
    setIfDifferent(*ui->gskEdit, position);
}

void MainWindow::GSKExpertValueChanged(double value)
{
    setIfDifferent(*ui->gskSlider, roundToInt(value));
}

void MainWindow::GFIDExpertSliderChanged(int position)
{
    setIfDifferent(*ui->gfidEdit, position);
}

void MainWindow::GFIDExpertValueChanged(double value)
{
    setIfDifferent(*ui->gfidSlider, roundToInt(value));
}

void MainWindow::GMSExpertSliderChanged(int position)
{
    setIfDifferent(*ui->gmsEdit, position);
}

void MainWindow::GMSExpertValueChanged(double value)
{
    setIfDifferent(*ui->gmsSlider, roundToInt(value));
}

void MainWindow::TINTExpertSliderChanged(int position)
{
    setIfDifferent(*ui->tintEdit, position);
}

void MainWindow::TINTExpertValueChanged(double value)
{
    setIfDifferent(*ui->tintSlider, roundToInt(value));
}
