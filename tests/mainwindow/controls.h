// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The controls of the window as its tests know them: names, handlers, commands and texts, written down here
// and nowhere else in the tests, and taken from no table of the program.
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

/// A slider and its spin box: the box shows position * unitsPerStep + lowest, the slider stands at the
/// position nearest to (value - lowest) * stepsPerUnit. Releasing the slider and finishing an edit of the box
/// send the box's value.
struct Pair
{
    const char *name;
    const char *page;
    const char *slider;
    const char *box;
    double unitsPerStep;
    double stepsPerUnit;
    double lowest;
    bool decimalBox; ///< The box is a QDoubleSpinBox, else a QSpinBox.
    const char *sliderSlot;
    const char *boxSlot;
    const char *sendSlot;
    const char *action; ///< What the command logs before OK and KO.
    /// Position that is not the one at the start, the text that stands for it, and the command.
    int position;
    const char *text;
    const char *call;
    const char *callAtEnd; ///< The command with the slider at its end.
    double otherValue;     ///< One that the box can show, whether or not the slider reaches it.
};

inline constexpr std::array<Pair, 11> pairs{{
    {"gamma", "LutSection", "gammaSlider", "gammaEdit", 0.1, 10.0, 0.5, true, "GammaUserSliderChanged",
     "GammaUserValueChanged", "gammaUserSendCommand", "Set GAMMA value", 17, "2.2", "setGamma(144179)",
     "setGamma(163840)", 2.2},
    {"CLHE", "LutSection", "clheSlider", "clheEdit", 1.0, 1.0, 0.0, true, "ClheUserSliderChanged",
     "ClheUserValueChanged", "clheSendCommand", "Set CLHE value", 7654, "7654", "setClhe(7654)",
     "setClhe(10000)", 9999},
    {"sharpening gain", "EdgeSection", "sharpeningGainSlider", "sharpeningGainEdit", 0.1, 10.0, 0.0, true,
     "SharpeningUserSliderChanged", "SharpeningUserValueChanged", "sharpeningSendCommand",
     "Configure EDGE CORRECTION", 29, "2.9", "configureEdgeCorrection(0, 2, 20)",
     "configureEdgeCorrection(0, 1024, 20)", 2.9},
    {"sharpening threshold", "EdgeSection", "SharpeningTHSlider", "SharpeningTHEdit", 0.1, 10.0, 0.0, true,
     "SharpeningTHSliderChanged", "SharpeningTHValueChanged", "sharpeningSendCommand",
     "Configure EDGE CORRECTION", 338, "33.8", "configureEdgeCorrection(0, 64, 33)",
     "configureEdgeCorrection(0, 64, 200)", 3.7},
    {"AHC black gain limit", "LutSection", "AhcBlackGainLimSlider", "AhcBlackGainLimSpin", 1.0, 1.0, 0.0,
     false, "AhcBlackGainlimSliderChanged", "AhcBlackGainLimSpinValueChanged", "ahcGainSendCommand",
     "Set AHC GAINS LIMITATION values", 33, "33", "setAhcGainLimitation(33, 80)",
     "setAhcGainLimitation(100, 80)", 100},
    {"AHC white gain limit", "LutSection", "AhcWhiteGainLimSlider", "AhcWhiteGainLimSpin", 1.0, 1.0, 0.0,
     false, "AhcWhiteGainlimSliderChanged", "AhcWhiteGainLimSpinValueChanged", "ahcGainSendCommand",
     "Set AHC GAINS LIMITATION values", 44, "44", "setAhcGainLimitation(20, 44)",
     "setAhcGainLimitation(20, 100)", 1},
    {"LUT temporal filter", "LutSection", "TempoFilterSlider", "TempoFilterSpin", 1.0, 1.0, 0.0, false,
     "TempoFilterSliderChanged", "TempoFiltSpinValueChanged", "tempoFilterSendCommand",
     "Set LUT TEMPORAL FILTER value", 7, "7", "setLutTemporalFilter(7)", "setLutTemporalFilter(8)", 8},
    {"GSK", "ExpertMode", "gskSlider", "gskEdit", 1.0, 1.0, 0.0, true, "GSKExpertSliderChanged",
     "GSKExpertValueChanged", "gskSendCommand", "Set GSK value", 3, "3", "setGsk(3)", "setGsk(3)", 1},
    {"GFID", "ExpertMode", "gfidSlider", "gfidEdit", 1.0, 1.0, 0.0, true, "GFIDExpertSliderChanged",
     "GFIDExpertValueChanged", "gfiSendCommand", "Set GFID value", 777, "777", "setGfid(777)",
     "setGfid(1000)", 1000},
    {"GMS", "ExpertMode", "gmsSlider", "gmsEdit", 1.0, 1.0, 0.0, true, "GMSExpertSliderChanged",
     "GMSExpertValueChanged", "gmsSendCommand", "Set GMS value", 3210, "3210", "setGms(3210)", "setGms(4095)",
     4294967295.0},
    {"TINT", "ExpertMode", "tintSlider", "tintEdit", 1.0, 1.0, 0.0, true, "TINTExpertSliderChanged",
     "TINTExpertValueChanged", "tintSendCommand", "Set TINT value", 19, "19", "setTint(19)", "setTint(20)",
     20},
}};

/// The pair of that slider.
inline const Pair &pairOf(const char *slider)
{
    const auto found = std::find_if(pairs.begin(), pairs.end(),
                                    [slider](const Pair &pair) { return qstrcmp(pair.slider, slider) == 0; });
    if (found == pairs.end()) {
        qFatal("there is no pair of the slider %s", slider);
    }
    return *found;
}

/// A button that stays down while its setting is on.
struct ToggleRow
{
    const char *button;
    const char *page;
    const char *key; ///< Of the setting in the simulated device.
    const char *slot;
    const char *operation; ///< Behind "get" and "set".
    const char *caption;   ///< Before ": Activated" and ": Deactivated".
    const char *label;     ///< What the read logs before the state.
    const char *action;    ///< What the command logs before OK and KO.
    bool asNumber;         ///< The read logs 1 and 0.
};

/// In the order in which they are read.
inline constexpr std::array<ToggleRow, 7> toggleRows{{
    {"VignettingCorrectionButton", "ImageProcSection", "camera.vignettingCorrection",
     "vignettingCorrectionClicked", "VignettingCorrection", "Vignetting Correction",
     "Vignetting Correction state = ", "Set vignetting correction value", false},
    {"ColumnCorrectionButton", "ImageProcSection", "camera.columnCorrection", "columnCorrectionClicked",
     "ColumnCorrection", "Column Correction", "Column Correction state = ", "Set column correction value",
     false},
    {"sdiOutputButton", "ImageProcSection", "camera.sdiOutput", "sdiOutputClicked", "SdiOutput",
     "BT656/SDI Output", "BT656/SDI output value = ", "Set BT656/SDI OUTPUT value", false},
    {"parallelOutputButton", "ImageProcSection", "camera.parallelOutput", "parallelOutputClicked",
     "ParallelOutput", "Parallel Output", "Parallel output value = ", "Set PARALLEL OUTPUT value", false},
    {"mipiOutputButton", "ImageProcSection", "camera.mipiOutput", "mipiOutputClicked", "MipiOutput",
     "MIPI Output", "MIPI output value = ", "Set MIPI OUTPUT value", false},
    {"horizontalFlipButton", "ImageProcSection", "camera.horizontalFlip", "horizontalFlipClicked",
     "HorizontalFlip", "Horizontal Flip", "Horizontal flip value = ", "Set HORIZONTAL FLIP value", true},
    {"polarityButton", "LutSection", "camera.polarity", "polarityClicked", "Polarity", "Invert Polarity",
     "Polarity value = ", "Set POLARITY value", true},
}};

/// A combo box whose choice is sent at once.
struct ChoiceRow
{
    const char *page;
    const char *comboBox;
    const char *slot;
    const char *operation;
    const char *action; ///< What the command logs before OK and KO.
};

inline constexpr std::array<ChoiceRow, 5> choiceRows{{
    {"ImageProcSection", "VideoOutputCB", "videoOutputChanged", "setVideoOutput", "Set VIDEO OUTPUT value"},
    {"ImageProcSection", "frameRateCB", "frameRateChanged", "setFrameRate", "Set FRAME RATE value"},
    {"LutSection", "contrastTypeEdit", "contrastTypeChanged", "configureContrastType",
     "Configure contrast type"},
    {"LutSection", "lutColorEdit", "colorLutChanged", "setColorLut", "Set COLOR LUT value"},
    {"EdgeSection", "EdgeCorrectionCB", "edgeCorrectionChanged", "configureEdgeCorrection",
     "Configure EDGE CORRECTION"},
}};

/// The choice of that combo box.
inline const ChoiceRow &choiceOf(const char *comboBox)
{
    const auto found = std::find_if(choiceRows.begin(), choiceRows.end(), [&](const ChoiceRow &row) {
        return qstrcmp(row.comboBox, comboBox) == 0;
    });
    if (found == choiceRows.end()) {
        qFatal("there is no choice of the combo box %s", comboBox);
    }
    return *found;
}

/// A spin box without a slider. A finished edit sends it together with the others of its command.
struct BoxRow
{
    const char *box;
    const char *sendSlot;
    double otherValue; ///< One that is not shown at the start.
};

inline constexpr std::array<BoxRow, 5> boxRows{{
    {"VisAgcTargetSB", "visibleAgcChanged", 33},
    {"VisAgcTHSB", "visibleAgcChanged", 34},
    {"VisAgcCoeffSB", "visibleAgcChanged", 35},
    {"VisClheTHSB", "visibleClheChanged", 65535},
    {"VisClheCoeffSB", "visibleClheChanged", 36},
}};

/// A region of interest. Commands know it by another number than its place here.
struct RegionRow
{
    const char *label;
    const char *boxes;  ///< Before X1, X2, Y1 and Y2.
    const char *enable; ///< Its check box; null for the region that is always on.
    const char *enableSlot;
    int number;
};

/// In the order in which they are read.
inline constexpr std::array<RegionRow, 4> regionRows{{
    {"ROI0 inclusive", "Roi0Inc", nullptr, nullptr, 0},
    {"ROI0 exclusive", "Roi0Exc", "roi0ExcEnable", "roi0ExcCheck", 2},
    {"ROI1 inclusive", "Roi1Inc", "roi1IncEnable", "roi1IncCheck", 1},
    {"ROI1 exclusive", "Roi1Exc", "roi1ExcEnable", "roi1ExcCheck", 3},
}};

/// The region that commands know by that number.
inline const RegionRow &regionOf(int number)
{
    const auto found = std::find_if(regionRows.begin(), regionRows.end(),
                                    [number](const RegionRow &region) { return region.number == number; });
    if (found == regionRows.end()) {
        qFatal("there is no region number %d", number);
    }
    return *found;
}

/// One of the three video streams of the Blend Unit.
struct VideoModeRow
{
    const char *name;
    const char *button;
    const char *slot;
    const char *success;
    const char *failure;
};

/// Each in the place of its number.
inline constexpr std::array<VideoModeRow, 3> videoModeRows{{
    {"infrared", "BU_IR_MODE_PB", "irModeClicked", "IR mode activated", "Could not configure IR mode"},
    {"visible", "BU_VISIBLE_MODE_PB", "visibleModeClicked", "Visible mode activated",
     "Could not configure visible mode"},
    {"fusion", "BU_FUSION_MODE_PB", "fusionModeClicked", "Fusion mode activated",
     "Could not configure fusion mode"},
}};

inline const VideoModeRow &videoModeAt(int number)
{
    return videoModeRows.at(static_cast<std::size_t>(number));
}

/// One of the corrections of the expert page.
struct CorrectionRow
{
    const char *checkBox;
    const char *key;       ///< Of the setting in the simulated device.
    const char *slot;      ///< Runs when the box changes; null where nothing does.
    const char *operation; ///< Behind "get" and "set".
    const char *label;     ///< What the read logs before the state.
    const char *action;    ///< What the bulk command logs before OK and KO.
};

/// In the order in which they are read.
inline constexpr std::array<CorrectionRow, 4> correctionRows{{
    {"BPRCheckBox", "camera.bprEnable", "bprControlChanged", "BprEnable", "BPR state = ", "Set BPR value"},
    {"offsetCheckBox", "camera.offsetCorrection", "offsetControlChanged", "OffsetCorrection",
     "OFFSET state = ", "Set Offset correction value"},
    {"gainCheckBox", "camera.gainCorrection", "gainControlChanged", "GainCorrection",
     "GAIN state = ", "Set Gain correction value"},
    {"verticalFlipCheckBox", "camera.verticalFlip", nullptr, "VerticalFlip",
     "Vertical flip state = ", "Set Flip vertically"},
}};

/// Frames per second, in the order of the items of the frame rate's box.
inline constexpr std::array<int, 5> frameRatesHz{9, 25, 30, 50, 60};

/// The item of the frame rate's box; `otherwise` for a rate that it does not offer.
inline int frameRateItem(double hertz, int otherwise)
{
    const auto found = std::find(frameRatesHz.begin(), frameRatesHz.end(), static_cast<int>(hertz));
    return found == frameRatesHz.end() ? otherwise
                                       : static_cast<int>(std::distance(frameRatesHz.begin(), found));
}
