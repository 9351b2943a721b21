// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the main window form says: captions, tooltips, items and tab titles.

#pragma once

#include <QComboBox>
#include <QString>
#include <QStringList>
#include <QTabWidget>

#include <vector>

struct Texts
{
    const char *object;
    const char *caption; // null: the object has none
    QStringList tooltip; // paragraphs; empty: the object has none
};

inline const QString gammaText{
    "Gamma correction compensates for the differences in display on different output devices, so that images look the same when viewed on different monitors."};
inline const QString sharpeningText{"The sharpening filter enhance the edges of objects."};
inline const QString claheText{
    "CLAHE (contrast limited adaptative histogram equalization) is using sectors of the image for local calculation."};
inline const QString resolutionText{
    "Only usable when SDI output video disabled and for MIPI and parallel outputs format"};

/// In the order in which the form sets them; slips of the pen belong to the texts.
inline std::vector<Texts> texts()
{
    return {
        {"scanDeviceButton", "Scan Devices", {"Scan devices on Com port"}},
        {"selectDeviceComboBox", nullptr, {"Found devices"}},
        {"connectDeviceButton", "Connect", {"Connect to device selected in the list"}},
        {"disconnectDeviceButton", "Disconnect", {"Disconnect from actual connected device"}},
        {"resetParamButtonUser", "Reset", {"Rest default parameter"}},
        {"saveParamButtonUser", "Save", {}},
        {"readParamButtonUser", "Read", {"Read parameters from camera"}},
        {"label_33", "Video mode", {}},
        {"label_5", "Set starting Mode", {}},
        {"BU_VISIBLE_MODE_PB", "Visible mode", {}},
        {"BU_IR_MODE_PB", "IR mode", {}},
        {"BU_FUSION_MODE_PB", "Fusion mode", {}},
        {"FusionZoomLabel", "Zoom", {}},
        {"FusionConfigureZoomPB", "Configure Zoom", {}},
        {"ZoomFactorLabel", "Factor", {}},
        {"label_35", "A11 coefficient", {}},
        {"label_34", "Warp control", {}},
        {"label_38", "A21 coefficient", {}},
        {"saveParamFactoryPB", "Save Factory", {}},
        {"label_37", "A13 coefficient", {}},
        {"label_39", "A22 coefficient", {}},
        {"label_36", "A12 coefficient", {}},
        {"FusionWarpPB", "Apply warp", {}},
        {"label_40", "A23 coefficient", {}},
        {"label_7", "Correction Control", {}},
        {"ColumnCorrectionButton", "Column Correction: Deactivated", {}},
        {"VignettingCorrectionButton", "Vignetting Correction: Deactivated", {}},
        {"label_11", "Video Output Type", {}},
        {"sdiOutputButton", "BT656/SDI Output: Activated", {}},
        {"parallelOutputButton", "Parallel Output: Activated", {}},
        {"mipiOutputButton", "Mipi Output: Activated", {}},
        {"label_10", "Frame Rate", {}},
        {"label_58", "Flip Control", {}},
        {"horizontalFlipButton", "Horizontal Flip: Deactivated", {}},
        {"label_3", "Polarity Control", {}},
        {"polarityButton", "Invert Polarity: Deactivated", {}},
        {"label_4", "Gamma Correction", {}},
        {"gammaLabel", "Gamma Correction", {gammaText}},
        {"roiLabel",
         "Region of Interest (ROI)",
         {"Region of Interest is the area used in LUT calculation.",
          "For example, the RoI can exclude sky or sea to avoid cold areas in the LUT calculation and improve dynamism in the image.",
          "Origin (0,0) is top left of the picture."}},
        {"label_20", "X1", {}},
        {"label_18", "X2", {}},
        {"label_19", "Y1", {}},
        {"label_17", "Y2", {}},
        {"label_16", "Roi0 inclusive", {}},
        {"checkBox", "Enable ROI", {}},
        {"label_22", "Roi1 inclusive", {}},
        {"roi1IncEnable", "Enable ROI", {}},
        {"label_21", "Roi0 exclusive", {}},
        {"roi0ExcEnable", "Enable ROI", {}},
        {"label_23", "Roi1 exclusive", {}},
        {"roi1ExcEnable", "Enable ROI", {}},
        {"LutLabel", "Lut Method", {}},
        {"contrastTypeEdit",
         nullptr,
         {"Select algorithm for LUT calculation.",
          "CLHE (contrast limited histogram equalization) is using RoI area for calculation", claheText,
          "Contrast parameter is a mix between linear LUT and histogram equalization LUT.",
          "Lower values increase histogram linearity.", "Higher values increase histogram dynamism."}},
        {"label_25", "AHC gain black limitation", {}},
        {"label_26", "AHC gain white limitation", {}},
        {"label_24", "Temporal Filter", {}},
        {"zoomLabel", "Zoom", {}},
        {"factorZoomLabel", "Factor", {"Zoom factor is a float value between 1 and 8"}},
        {"xCenterZoomLabel", "Xcenter", {"X Center of the Zoom : value between 1 and 1280"}},
        {"methodZoomLabel",
         "Method",
         {"Nearest neighbour : makes pixelization but is better for algorithm",
          "Bilinear : more confortable to the eye (smoother effet) but not good for algorithms."}},
        {"yCenterZoomLabel", "Ycenter", {"Y value of the zoom : value between 1 and 1024"}},
        {"label", "For MIPI and parallel outputs, only usable when SDI output video disabled", {}},
        {"xResolutionZoomLabel", "Xresolution", {resolutionText}},
        {"xResolutionZoomEdit", nullptr, {resolutionText}},
        {"yResolutionZoomLabel", "Yresolution", {resolutionText}},
        {"yResolutionZoomEdit", nullptr, {resolutionText}},
        {"configureZoomButton", "Configure Zoom", {}},
        {"label_13", "Edge Correction", {}},
        {"label_14", "Sharpening Configurations", {}},
        {"sharpeningGainLabel", "Sharpening Filter Gain", {sharpeningText}},
        {"SharpeningTHLabel", "Sharpening Filter Threshold", {}},
        {"label_28", "Read/Write BPR (Bad Pixel Replacement) table", {}},
        {"resetBPRTableButton",
         "Reset BPR table to factory configuration",
         {"Reset the current local Bad Pixel Replacement (BPR) table using the first downloaded BPR table from the connected camera.",
          "The backup tables are stored in the bprBackup folder in the Veltrix Pilotel installation directory."}},
        {"readBPRTableButton",
         "Read BPR table from camera",
         {"Download the current Bad Pixel Replacement (BPR) table from the Veltrix and store it as the local BPR table"}},
        {"writeBPRTableButton",
         "Write BPR table to camera",
         {"Upload the local Bad Pixel Replacement (BPR) table to the Veltrix"}},
        {"label_29", "Select Bad Pixels to declare/undeclare", {}},
        {"label_30", "Coordinates", {}},
        {"label_27", "[0-639]    X:", {}},
        {"label_15", "[0-479]    Y:", {}},
        {"label_31", "Declare", {}},
        {"addBadPixelButton",
         "Single Bad Pixel",
         {"Add the Bad Pixel corresponding to the X and Y coordinates to the local Bad Pixel Replacement table"}},
        {"addBadPixelLineButton", "Line", {}},
        {"addBadPixelColumnButton", "Column", {}},
        {"label_32", "Undeclare", {}},
        {"removeBadPixelButton",
         "Single Bad Pixel",
         {"Remove the Bad Pixel corresponding to the X and Y coordinates from the local Bad Pixel Replacement table"}},
        {"removeBadPixelLineButton", "Line", {}},
        {"removeBadPixelColumnButton", "Column", {}},
        {"bpGraphicEditorButton", "Open Graphic Editor", {}},
        {"readParamButtonExpert", "Read Expert Parameters", {}},
        {"label_8", "Camera Baud Rate", {}},
        {"PermanentButton", "Not Permanent", {}},
        {"gskLabel", "GSK", {gammaText}},
        {"gfidLabel",
         "GFID",
         {"The CLHE is a mix between linear LUT and histogram equalization LUT. Lower values increase linearity."}},
        {"gmsLabel", "GMS", {sharpeningText}},
        {"tintLabel", "TINT", {sharpeningText}},
        {"gainCheckBox", "Enable Gain", {}},
        {"BPRCheckBox", "Enable BPR", {}},
        {"offsetCheckBox", "Enable Offset", {}},
        {"verticalFlipCheckBox", "Vertical Flip", {}},
        {"label_46", "CLHE threshold", {}},
        {"label_43", "AGC target", {}},
        {"label_41", "Visible AGC control", {}},
        {"label_45", "AGC Filter coefficient", {}},
        {"label_44", "AGC thresholds", {}},
        {"label_48", "CLHE Filter coefficient", {}},
        {"label_42", "Visible CLHE control", {}},
        {"label_2", "BIT ", {}},
        {"label_9", "Fusion FPGA temperature", {}},
        {"label_6", "IR FPGA temperature", {}},
        {"label_12", "IR sensor temperature", {}},
        {"logView", nullptr, {"Log messages with camera"}},
        {"clearLogButton", "Clear Log", {}},
        {"AboutButton", "About...", {"About this application, version, more..."}},
    };
}

struct Choices
{
    const char *comboBox;
    QStringList items;
};

inline std::vector<Choices> choices()
{
    return {
        {"BaudRateConnectCB", {"9600", "115200"}},
        {"startingModeCB", {"IR mode", "Visible mode", "Fusion mode", "Current mode"}},
        {"FusionZoomMethod", {"Nearest", "Bilinear"}},
        {"FusionWarpCB", {"Fusion video stream", "Visible video stream", "IR video stream"}},
        {"VideoOutputCB",
         {"RAW", "NUC", "COLUMN CORRECTION", "VIGNETTING CORRECTION", "EDGE ENHANCEMENT", "LUT CORRECTION",
          "RESERVED", "ZOOM", "BT656"}},
        {"frameRateCB", {"9Hz", "25Hz", "30Hz", "50Hz", "60Hz"}},
        {"contrastTypeEdit", {"CLHE (ROI)", "CLAHE (Local)"}},
        {"lutColorEdit",
         {"GREYSCALE", "IRON", "HOT", "RAINBOW", "NCAR", "CUBEHELIX", "COOLWARM", "GREYSCALE YCbCr"}},
        {"methodZoomEdit", {"Nearest", "Bilinear"}},
        {"EdgeCorrectionCB", {"None", "Sharpening", "Contouring"}},
        {"BaudRateCB", {"9600", "115200", "230400", "460800", "921600"}},
        {"selectDeviceComboBox", {}},
    };
}

struct Titles
{
    const char *tabWidget;
    QStringList titles;
};

inline std::vector<Titles> titles()
{
    return {
        {"Principal_tab", {"Fusion", "Veltrix KR", "Visible"}},
        {"KR_tab", {"Image Processing", "LUT", "Zoom", "Edge", "Bad Pixels", "Expert"}},
    };
}

inline QStringList itemsOf(const QComboBox &comboBox)
{
    QStringList items;
    for (int i{0}; i < comboBox.count(); ++i) {
        items << comboBox.itemText(i);
    }
    return items;
}

inline QStringList titlesOf(const QTabWidget &tabs)
{
    QStringList all;
    for (int i{0}; i < tabs.count(); ++i) {
        all << tabs.tabText(i);
    }
    return all;
}
