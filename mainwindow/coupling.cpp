// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Sliders and their spin boxes: each writes its partner, and what they show is sent when the edit is
// finished.
#include "encodings.h"
#include "logtext.h"
#include "mainwindow.h"
#include "sliderpair.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"

using namespace veltrix_sdk;

void MainWindow::GammaUserSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::gammaSlider), position);
}

void MainWindow::GammaUserValueChanged(double value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::gammaSlider), value);
}

void MainWindow::gammaUserSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::gammaSlider));
}

void MainWindow::ClheUserSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::clheSlider), position);
}

void MainWindow::ClheUserValueChanged(double value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::clheSlider), value);
}

void MainWindow::clheSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::clheSlider));
}

void MainWindow::SharpeningUserSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::sharpeningGainSlider), position);
}

void MainWindow::SharpeningUserValueChanged(double value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::sharpeningGainSlider), value);
}

void MainWindow::SharpeningTHSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::SharpeningTHSlider), position);
}

void MainWindow::SharpeningTHValueChanged(double value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::SharpeningTHSlider), value);
}

void MainWindow::sharpeningSendCommand()
{
    edgeCorrectionChanged();
}

void MainWindow::AhcBlackGainlimSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::AhcBlackGainLimSlider), position);
}

void MainWindow::AhcBlackGainLimSpinValueChanged(int value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::AhcBlackGainLimSlider), value);
}

void MainWindow::AhcWhiteGainlimSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::AhcWhiteGainLimSlider), position);
}

void MainWindow::AhcWhiteGainLimSpinValueChanged(int value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::AhcWhiteGainLimSlider), value);
}

void MainWindow::ahcGainSendCommand()
{
    sendCommand("Set AHC GAINS LIMITATION values", &IDeviceControl::setAhcGainLimitation,
                toByte(ui->AhcBlackGainLimSpin->value()), toByte(ui->AhcWhiteGainLimSpin->value()));
}

void MainWindow::TempoFilterSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::TempoFilterSlider), position);
}

void MainWindow::TempoFiltSpinValueChanged(int value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::TempoFilterSlider), value);
}

void MainWindow::tempoFilterSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::TempoFilterSlider));
}

void MainWindow::GSKExpertSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::gskSlider), position);
}

void MainWindow::GSKExpertValueChanged(double value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::gskSlider), value);
}

void MainWindow::gskSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::gskSlider));
}

void MainWindow::GFIDExpertSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::gfidSlider), position);
}

void MainWindow::GFIDExpertValueChanged(double value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::gfidSlider), value);
}

void MainWindow::gfiSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::gfidSlider));
}

void MainWindow::GMSExpertSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::gmsSlider), position);
}

void MainWindow::GMSExpertValueChanged(double value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::gmsSlider), value);
}

void MainWindow::gmsSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::gmsSlider));
}

void MainWindow::TINTExpertSliderChanged(int position)
{
    followSlider(*ui, pairOf(&Ui_MainWindow::tintSlider), position);
}

void MainWindow::TINTExpertValueChanged(double value)
{
    followSpinBox(*ui, pairOf(&Ui_MainWindow::tintSlider), value);
}

void MainWindow::tintSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::tintSlider));
}

void MainWindow::sendNumber(const SliderPair &pair)
{
    if (isDeviceOpen()) {
        reportCommand(pair.number.set(*device, spinBoxValue(*ui, pair)), pair.number.action);
    }
}

void MainWindow::sendNumbers(SequencePlace place)
{
    for (const SliderPair *const pair : pairsAt(place)) {
        sendNumber(*pair);
    }
}

void MainWindow::readNumbers(SequencePlace place)
{
    for (const SliderPair *const pair : pairsAt(place)) {
        const CameraNumber &number{pair->number};
        const double value{number.get(*device)};
        if (number.shownIn != ShownIn::SpinBox) {
            followSpinBox(*ui, *pair, value);
        }
        if (number.shownIn != ShownIn::Slider) {
            showInSpinBox(*ui, *pair, value);
        }
        appendLog(number.loggedAs == LoggedAs::Double ? joinText(number.readLabel, value)
                                                      : joinText(number.readLabel, truncateToUint32(value)));
    }
}

void MainWindow::resetNumber(const SliderPair &pair, ISdkConfiguration &defaults)
{
    const double value{pair.number.getDefault(defaults)};
    if (pair.number.shownIn == ShownIn::SpinBox) {
        showInSpinBox(*ui, pair, value);
    } else {
        followSpinBox(*ui, pair, value);
    }
}

void MainWindow::resetNumbers(SequencePlace place, ISdkConfiguration &defaults)
{
    for (const SliderPair *const pair : pairsAt(place)) {
        resetNumber(*pair, defaults);
    }
}
