// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The rows of the sliders and their spin boxes, and how the two follow each other.
#include "sliderpair.h"

#include "encodings.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"
#include "widgetvalues.h"

#include <QLineEdit>
#include <QObject>
#include <QtGlobal>

#include <algorithm>

using namespace veltrix_sdk;

namespace
{

constexpr double oneStepAUnit{1.0};
constexpr double tenStepsAUnit{10.0};
constexpr double fromZero{0.0};
constexpr double lowestGamma{static_cast<double>(gammaRange.minimum) / fixedPointOne};

/// An expert value by its operations, with what the log says before the number that was read and when it was
/// set.
template <auto get, auto set, auto getDefault>
CameraNumber expertNumber(const char *readLabel, const char *action)
{
    return {
        SequencePlace::Expert,
        [](IDeviceControl &device) -> double { return (device.*get)(); },
        [](IDeviceControl &device, double value) { return (device.*set)(truncateToUint32(value)); },
        [](ISdkConfiguration &defaults) -> double { return (defaults.*getDefault)(); },
        ShownIn::Both,
        readLabel,
        LoggedAs::Whole,
        action,
    };
}

} // namespace

const std::vector<SliderPair> &sliderPairs()
{
    static const std::vector<SliderPair> pairs{
        {
            &Ui_MainWindow::gammaSlider,
            &Ui_MainWindow::gammaEdit,
            tenStepsAUnit,
            lowestGamma,
            SLOT(GammaUserSliderChanged(int)),
            SLOT(GammaUserValueChanged(double)),
            SLOT(gammaUserSendCommand()),
            {
                SequencePlace::Gamma,
                [](IDeviceControl &device) { return fromFixedPoint16_16(device.getGamma()); },
                [](IDeviceControl &device, double value) {
                    return device.setGamma(toFixedPoint16_16(value));
                },
                [](ISdkConfiguration &defaults) { return defaults.getDefaultGamma(); },
                ShownIn::Slider,
                "Gamma value = ",
                LoggedAs::Double,
                "Set GAMMA value",
            },
        },
        {
            &Ui_MainWindow::clheSlider,
            &Ui_MainWindow::clheEdit,
            oneStepAUnit,
            fromZero,
            SLOT(ClheUserSliderChanged(int)),
            SLOT(ClheUserValueChanged(double)),
            SLOT(clheSendCommand()),
            {
                SequencePlace::Clhe,
                [](IDeviceControl &device) -> double { return device.getClhe(); },
                [](IDeviceControl &device, double value) { return device.setClhe(truncateToUint32(value)); },
                [](ISdkConfiguration &defaults) { return defaults.getDefaultClhe(); },
                ShownIn::Slider,
                "CLHE value = ",
                LoggedAs::Double,
                "Set CLHE value",
            },
        },
        {
            &Ui_MainWindow::sharpeningGainSlider,
            &Ui_MainWindow::sharpeningGainEdit,
            sharpeningGainSteps,
            fromZero,
            SLOT(SharpeningUserSliderChanged(int)),
            SLOT(SharpeningUserValueChanged(double)),
            SLOT(sharpeningSendCommand()),
        },
        {
            &Ui_MainWindow::SharpeningTHSlider,
            &Ui_MainWindow::SharpeningTHEdit,
            tenStepsAUnit,
            fromZero,
            SLOT(SharpeningTHSliderChanged(int)),
            SLOT(SharpeningTHValueChanged(double)),
            SLOT(sharpeningSendCommand()),
        },
        {
            &Ui_MainWindow::AhcBlackGainLimSlider,
            &Ui_MainWindow::AhcBlackGainLimSpin,
            oneStepAUnit,
            fromZero,
            SLOT(AhcBlackGainlimSliderChanged(int)),
            SLOT(AhcBlackGainLimSpinValueChanged(int)),
            SLOT(ahcGainSendCommand()),
        },
        {
            &Ui_MainWindow::AhcWhiteGainLimSlider,
            &Ui_MainWindow::AhcWhiteGainLimSpin,
            oneStepAUnit,
            fromZero,
            SLOT(AhcWhiteGainlimSliderChanged(int)),
            SLOT(AhcWhiteGainLimSpinValueChanged(int)),
            SLOT(ahcGainSendCommand()),
        },
        {
            &Ui_MainWindow::TempoFilterSlider,
            &Ui_MainWindow::TempoFilterSpin,
            oneStepAUnit,
            fromZero,
            SLOT(TempoFilterSliderChanged(int)),
            SLOT(TempoFiltSpinValueChanged(int)),
            SLOT(tempoFilterSendCommand()),
            {
                SequencePlace::LutFilter,
                [](IDeviceControl &device) -> double { return device.getLutTemporalFilter(); },
                [](IDeviceControl &device, double value) {
                    return device.setLutTemporalFilter(toByte(roundToInt(value)));
                },
                [](ISdkConfiguration &defaults) -> double { return defaults.getDefaultTempoFilter(); },
                ShownIn::SpinBox,
                "LUT temporal filter = ",
                LoggedAs::Whole,
                "Set LUT TEMPORAL FILTER value",
            },
        },
        {
            &Ui_MainWindow::gskSlider,
            &Ui_MainWindow::gskEdit,
            oneStepAUnit,
            fromZero,
            SLOT(GSKExpertSliderChanged(int)),
            SLOT(GSKExpertValueChanged(double)),
            SLOT(gskSendCommand()),
            expertNumber<&IDeviceControl::getGsk, &IDeviceControl::setGsk, &ISdkConfiguration::getDefaultGsk>(
                "GSK value = ", "Set GSK value"),
            {&ConfigurationWords::gskMinimum, &ConfigurationWords::gskMaximum,
             &ConfigurationWords::gskDefault},
        },
        {
            &Ui_MainWindow::gfidSlider,
            &Ui_MainWindow::gfidEdit,
            oneStepAUnit,
            fromZero,
            SLOT(GFIDExpertSliderChanged(int)),
            SLOT(GFIDExpertValueChanged(double)),
            SLOT(gfiSendCommand()),
            expertNumber<&IDeviceControl::getGfid, &IDeviceControl::setGfid,
                         &ISdkConfiguration::getDefaultGfid>("GFID value = ", "Set GFID value"),
            {&ConfigurationWords::gfidMinimum, &ConfigurationWords::gfidMaximum,
             &ConfigurationWords::gfidDefault},
        },
        {
            &Ui_MainWindow::gmsSlider,
            &Ui_MainWindow::gmsEdit,
            oneStepAUnit,
            fromZero,
            SLOT(GMSExpertSliderChanged(int)),
            SLOT(GMSExpertValueChanged(double)),
            SLOT(gmsSendCommand()),
            expertNumber<&IDeviceControl::getGms, &IDeviceControl::setGms, &ISdkConfiguration::getDefaultGms>(
                "GMS value = ", "Set GMS value"),
            // The number has 32 bits, whatever part of them the slider covers.
            {&ConfigurationWords::gmsMinimum, &ConfigurationWords::gmsMaximum,
             &ConfigurationWords::gmsDefault, true},
        },
        {
            &Ui_MainWindow::tintSlider,
            &Ui_MainWindow::tintEdit,
            oneStepAUnit,
            fromZero,
            SLOT(TINTExpertSliderChanged(int)),
            SLOT(TINTExpertValueChanged(double)),
            SLOT(tintSendCommand()),
            expertNumber<&IDeviceControl::getTint, &IDeviceControl::setTint,
                         &ISdkConfiguration::getDefaultTint>("TINT value = ", "Set TINT value"),
            {&ConfigurationWords::tintMinimum, &ConfigurationWords::tintMaximum,
             &ConfigurationWords::tintDefault},
        },
    };
    return pairs;
}

const SliderPair &pairOf(QSlider *Ui_MainWindow::*slider)
{
    const std::vector<SliderPair> &pairs{sliderPairs()};
    const auto found = std::find_if(pairs.begin(), pairs.end(),
                                    [&](const SliderPair &pair) { return pair.slider == slider; });
    if (found == pairs.end()) {
        qFatal("a slider has a handler but no row");
    }
    return *found;
}

std::vector<const SliderPair *> pairsAt(SequencePlace place)
{
    std::vector<const SliderPair *> found;
    for (const SliderPair &pair : sliderPairs()) {
        if (pair.number.place == place) {
            found.push_back(&pair);
        }
    }
    return found;
}

QAbstractSpinBox *spinBoxOf(const Ui_MainWindow &ui, const SliderPair &pair)
{
    return std::visit([&](auto box) -> QAbstractSpinBox * { return ui.*box; }, pair.spinBox);
}

bool isBeingTyped(const Ui_MainWindow &ui, const SliderPair &pair)
{
    // What the program or a step puts into the box clears the mark of the line that was typed.
    const auto *const line = spinBoxOf(ui, pair)->findChild<QLineEdit *>();
    return line != nullptr && line->isModified();
}

const char *valueChangedSignal(const SliderPair &pair)
{
    return std::holds_alternative<WholeSpinBox>(pair.spinBox) ? SIGNAL(valueChanged(int))
                                                              : SIGNAL(valueChanged(double));
}

double spinBoxValue(const Ui_MainWindow &ui, const SliderPair &pair)
{
    return std::visit([&](auto box) -> double { return (ui.*box)->value(); }, pair.spinBox);
}

void showInSpinBox(const Ui_MainWindow &ui, const SliderPair &pair, double value)
{
    if (const auto *const whole = std::get_if<WholeSpinBox>(&pair.spinBox)) {
        (ui.**whole)->setValue(roundToInt(value));
    } else {
        showNumber(*(ui.*std::get<FractionalSpinBox>(pair.spinBox)), value);
    }
}

double numberAt(const SliderPair &pair, int position)
{
    const double unitsPerStep{1.0 / pair.stepsPerUnit};
    return position * unitsPerStep + pair.lowest;
}

void followSlider(const Ui_MainWindow &ui, const SliderPair &pair, int position)
{
    const double value{numberAt(pair, position)};
    if (const auto *const whole = std::get_if<WholeSpinBox>(&pair.spinBox)) {
        setIfDifferent(*(ui.**whole), roundToInt(value));
    } else {
        setIfDifferent(*(ui.*std::get<FractionalSpinBox>(pair.spinBox)), value);
    }
}

void followSpinBox(const Ui_MainWindow &ui, const SliderPair &pair, double value)
{
    setIfDifferent(*(ui.*pair.slider), roundToInt((value - pair.lowest) * pair.stepsPerUnit));
}
