// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The sliders with a spin box beside them: one row each.
#pragma once

#include "ui_mainwindow.h"

#include <QAbstractSpinBox>
#include <QDoubleSpinBox>
#include <QSlider>
#include <QSpinBox>

#include <cstdint>
#include <variant>
#include <vector>

namespace veltrix_sdk
{
class IDeviceControl;
class ISdkConfiguration;
struct ConfigurationWords;
} // namespace veltrix_sdk

/// Where a number stands in the sequences that read, apply and reset the camera's settings. What stands at
/// the same place follows the order of the rows.
enum class SequencePlace
{
    None,      ///< Part of a setting of several numbers, which has a handler of its own.
    Gamma,     ///< Read before the regions, applied after the video output.
    Clhe,      ///< Read before the colour table, applied after it.
    LutFilter, ///< Read after the contrast type, applied after CLHE, reset last but the AHC gain limits.
    Expert,    ///< Read with the expert parameters, reset before the regions, not applied.
};

/// The control that a number from the camera or from the defaults is put into; the other one follows it.
enum class ShownIn
{
    Slider,
    SpinBox,
    /// A read puts the number into the slider, then into the spin box; a reset into the slider alone.
    Both,
};

/// How the log writes a number that was read.
enum class LoggedAs
{
    Double, ///< With six significant digits: 123456789 becomes 1.23457e+08.
    Whole,  ///< With all its digits.
};

/// A setting of the camera that is one number, in the unit of its spin box.
struct CameraNumber
{
    SequencePlace place{SequencePlace::None};
    /// Reads it from the device.
    double (*get)(veltrix_sdk::IDeviceControl &device){nullptr};
    /// Sends it; false when the device refuses it.
    bool (*set)(veltrix_sdk::IDeviceControl &device, double value){nullptr};
    /// What a reset shows.
    double (*getDefault)(veltrix_sdk::ISdkConfiguration &defaults){nullptr};
    ShownIn shownIn{ShownIn::Slider};
    const char *readLabel{nullptr}; ///< What the log says before the number that was read.
    LoggedAs loggedAs{LoggedAs::Whole};
    const char *action{nullptr}; ///< What the log says was set, before OK or KO.
};

/// The words of the configuration that belong to an expert value.
struct ExpertWords
{
    std::int32_t veltrix_sdk::ConfigurationWords::*minimum{nullptr};
    std::int32_t veltrix_sdk::ConfigurationWords::*maximum{nullptr};
    std::int32_t veltrix_sdk::ConfigurationWords::*preset{nullptr}; ///< The default.
    /// The spin box keeps the range that the form gives it and alone holds the whole number.
    bool boxKeepsItsRange{false};
};

using WholeSpinBox = QSpinBox *Ui_MainWindow::*;
using FractionalSpinBox = QDoubleSpinBox *Ui_MainWindow::*;

/// A slider and its spin box: each follows the other, and both send when their edit is finished. The slots
/// stand in the form that SLOT gives them.
struct SliderPair
{
    QSlider *Ui_MainWindow::*slider;
    std::variant<WholeSpinBox, FractionalSpinBox> spinBox;
    double stepsPerUnit;        ///< Steps of the slider in one unit of the spin box.
    double lowest;              ///< What the spin box shows while the slider stands at 0.
    const char *sliderChanged;  ///< Slot that runs when the slider has moved.
    const char *spinBoxChanged; ///< Slot that runs when the spin box holds another number.
    const char *send;           ///< Slot that runs when the edit of either is finished.
    CameraNumber number{};      ///< Its place is None where the number is only a part of a setting.
    ExpertWords words{};        ///< Of an expert value.
};

/// All of them, in the order in which they are connected and go through a sequence.
const std::vector<SliderPair> &sliderPairs();

/// The row of a slider; the program ends when there is none.
const SliderPair &pairOf(QSlider *Ui_MainWindow::*slider);

/// The pairs that stand at a place of the sequences, in the order of the rows.
std::vector<const SliderPair *> pairsAt(SequencePlace place);

QAbstractSpinBox *spinBoxOf(const Ui_MainWindow &ui, const SliderPair &pair);

/// Whether the text in the pair's spin box is what the operator typed, and not what a step or the program put
/// there.
bool isBeingTyped(const Ui_MainWindow &ui, const SliderPair &pair);

/// The signal of the pair's spin box that says that it holds another number.
const char *valueChangedSignal(const SliderPair &pair);

/// The number in a pair's spin box.
double spinBoxValue(const Ui_MainWindow &ui, const SliderPair &pair);

/// Puts a number into a pair's spin box; beyond its range the nearest limit.
void showInSpinBox(const Ui_MainWindow &ui, const SliderPair &pair, double value);

/// The number that a position of a pair's slider stands for.
double numberAt(const SliderPair &pair, int position);

/// Makes the spin box show what its slider stands at.
void followSlider(const Ui_MainWindow &ui, const SliderPair &pair, int position);

/// Moves the slider to where its spin box's number is.
void followSpinBox(const Ui_MainWindow &ui, const SliderPair &pair, double value);
