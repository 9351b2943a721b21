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

#include <QScopedValueRollback>

#include <functional>
#include <utility>

using namespace veltrix_sdk;

void MainWindow::GammaUserSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::gammaSlider), position);
}

void MainWindow::GammaUserValueChanged(double value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::gammaSlider), value);
}

void MainWindow::gammaUserSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::gammaSlider));
}

void MainWindow::ClheUserSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::clheSlider), position);
}

void MainWindow::ClheUserValueChanged(double value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::clheSlider), value);
}

void MainWindow::clheSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::clheSlider));
}

void MainWindow::SharpeningUserSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::sharpeningGainSlider), position);
}

void MainWindow::SharpeningUserValueChanged(double value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::sharpeningGainSlider), value);
}

void MainWindow::SharpeningTHSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::SharpeningTHSlider), position);
}

void MainWindow::SharpeningTHValueChanged(double value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::SharpeningTHSlider), value);
}

void MainWindow::sharpeningSendCommand()
{
    pullBackTyped();
    edgeCorrectionChanged();
}

void MainWindow::AhcBlackGainlimSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::AhcBlackGainLimSlider), position);
}

void MainWindow::AhcBlackGainLimSpinValueChanged(int value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::AhcBlackGainLimSlider), value);
}

void MainWindow::AhcWhiteGainlimSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::AhcWhiteGainLimSlider), position);
}

void MainWindow::AhcWhiteGainLimSpinValueChanged(int value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::AhcWhiteGainLimSlider), value);
}

void MainWindow::ahcGainSendCommand()
{
    pullBackTyped();
    sendCommand("Set AHC GAINS LIMITATION values", &IDeviceControl::setAhcGainLimitation,
                toByte(ui->AhcBlackGainLimSpin->value()), toByte(ui->AhcWhiteGainLimSpin->value()));
}

void MainWindow::TempoFilterSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::TempoFilterSlider), position);
}

void MainWindow::TempoFiltSpinValueChanged(int value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::TempoFilterSlider), value);
}

void MainWindow::tempoFilterSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::TempoFilterSlider));
}

void MainWindow::GSKExpertSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::gskSlider), position);
}

void MainWindow::GSKExpertValueChanged(double value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::gskSlider), value);
}

void MainWindow::gskSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::gskSlider));
}

void MainWindow::GFIDExpertSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::gfidSlider), position);
}

void MainWindow::GFIDExpertValueChanged(double value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::gfidSlider), value);
}

void MainWindow::gfiSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::gfidSlider));
}

void MainWindow::GMSExpertSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::gmsSlider), position);
}

void MainWindow::GMSExpertValueChanged(double value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::gmsSlider), value);
}

void MainWindow::gmsSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::gmsSlider));
}

void MainWindow::TINTExpertSliderChanged(int position)
{
    sliderChanged(pairOf(&Ui_MainWindow::tintSlider), position);
}

void MainWindow::TINTExpertValueChanged(double value)
{
    spinBoxChanged(pairOf(&Ui_MainWindow::tintSlider), value);
}

void MainWindow::tintSendCommand()
{
    sendNumber(pairOf(&Ui_MainWindow::tintSlider));
}

void MainWindow::spinBoxChanged(const SliderPair &pair, double value)
{
    // Only what the box itself tells can have been typed: reads and scripts run this handler as well.
    const bool typed{sender() == spinBoxOf(*ui, pair) && isBeingTyped(*ui, pair)};
    {
        const QScopedValueRollback<const SliderPair *> whileTyped{typedPair, typed ? &pair : nullptr};
        followSpinBox(*ui, pair, value);
    }
    if (!typed && waitingPair == &pair) {
        pullBackTyped();
    }
}

void MainWindow::sliderChanged(const SliderPair &pair, int position)
{
    const bool typed{typedPair == &pair};
    if (typed || waitingPair == &pair) {
        const bool waits{typed && std::not_equal_to<>{}(spinBoxValue(*ui, pair), numberAt(pair, position))};
        waitingPair = waits ? &pair : nullptr;
    }
    if (!typed) {
        followSlider(*ui, pair, position);
    }
}

void MainWindow::pullBackTyped()
{
    if (const SliderPair *const pair{std::exchange(waitingPair, nullptr)}) {
        followSlider(*ui, *pair, (ui->*pair->slider)->value());
    }
}

void MainWindow::sendNumber(const SliderPair &pair)
{
    pullBackTyped();
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
