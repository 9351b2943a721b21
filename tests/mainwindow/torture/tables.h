// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Controls, operations and texts that reading and sending have in common.
#pragma once

#include <QString>

#include <algorithm>
#include <iterator>

/// A button that stays down while its setting is on.
struct ToggleRow
{
    const char *button;
    const char *operation; ///< Behind "get" and "set".
    const char *caption;   ///< Before ": Activated" and ": Deactivated".
    const char *label;     ///< What the read logs before the state.
    const char *action;    ///< What the command logs before OK and KO.
    bool asNumber{false};  ///< The read logs 1 and 0.
};

constexpr ToggleRow toggleRows[]{
    {"VignettingCorrectionButton", "VignettingCorrection", "Vignetting Correction",
     "Vignetting Correction state = ", "Set vignetting correction value"},
    {"ColumnCorrectionButton", "ColumnCorrection", "Column Correction",
     "Column Correction state = ", "Set column correction value"},
    {"sdiOutputButton", "SdiOutput", "BT656/SDI Output",
     "BT656/SDI output value = ", "Set BT656/SDI OUTPUT value"},
    {"parallelOutputButton", "ParallelOutput", "Parallel Output",
     "Parallel output value = ", "Set PARALLEL OUTPUT value"},
    {"mipiOutputButton", "MipiOutput", "MIPI Output", "MIPI output value = ", "Set MIPI OUTPUT value"},
    {"horizontalFlipButton", "HorizontalFlip", "Horizontal Flip",
     "Horizontal flip value = ", "Set HORIZONTAL FLIP value", true},
    {"polarityButton", "Polarity", "Invert Polarity", "Polarity value = ", "Set POLARITY value", true},
};

/// A region, in the order in which it is read; the setters have numbers of their own.
struct RegionRow
{
    const char *label;
    const char *spinBoxes; ///< Before X1, Y1, X2 and Y2.
    const char *enable;    ///< Its box; null for the region that is always on.
    int setNumber;
};

constexpr RegionRow regionRows[]{
    {"ROI0 inclusive", "Roi0Inc", nullptr, 0},
    {"ROI0 exclusive", "Roi0Exc", "roi0ExcEnable", 2},
    {"ROI1 inclusive", "Roi1Inc", "roi1IncEnable", 1},
    {"ROI1 exclusive", "Roi1Exc", "roi1ExcEnable", 3},
};

/// One of the three video streams of the Blend Unit.
struct VideoModeRow
{
    const char *button;
    const char *success;
    const char *failure;
};

constexpr VideoModeRow videoModeRows[]{
    {"BU_IR_MODE_PB", "IR mode activated", "Could not configure IR mode"},
    {"BU_VISIBLE_MODE_PB", "Visible mode activated", "Could not configure visible mode"},
    {"BU_FUSION_MODE_PB", "Fusion mode activated", "Could not configure fusion mode"},
};

/// One of the corrections of the expert page.
struct CorrectionRow
{
    const char *checkBox;
    const char *operation; ///< Behind "get" and "set".
    const char *label;     ///< What the read logs before the state.
    const char *action;    ///< What the bulk command logs before OK and KO.
    bool sendsItself;      ///< Whether a change of the box is sent.
};

constexpr CorrectionRow correctionRows[]{
    {"BPRCheckBox", "BprEnable", "BPR state = ", "Set BPR value", true},
    {"offsetCheckBox", "OffsetCorrection", "OFFSET state = ", "Set Offset correction value", true},
    {"gainCheckBox", "GainCorrection", "GAIN state = ", "Set Gain correction value", true},
    {"verticalFlipCheckBox", "VerticalFlip", "Vertical flip state = ", "Set Flip vertically", false},
};

/// Frames per second, in the order of the items of the frame rate's box.
constexpr int frameRatesHz[]{9, 25, 30, 50, 60};

/// The item of the frame rate's box; `otherwise` for a rate that it does not offer.
inline int frameRateItem(double hertz, int otherwise)
{
    const auto found = std::find(std::begin(frameRatesHz), std::end(frameRatesHz), static_cast<int>(hertz));
    return found == std::end(frameRatesHz) ? otherwise
                                           : static_cast<int>(std::distance(std::begin(frameRatesHz), found));
}

inline QString named(const char *text)
{
    return QString::fromLatin1(text);
}

inline QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

/// A number as a text stream writes it: six significant digits.
inline QString streamed(double number)
{
    return QString::number(number, 'g', 6);
}

/// A whole number in decimal.
inline QString whole(double number)
{
    return QString::number(static_cast<qint64>(number));
}

inline QString captionOf(const ToggleRow &row, bool on)
{
    return named(row.caption) + (on ? QStringLiteral(": Activated") : QStringLiteral(": Deactivated"));
}
