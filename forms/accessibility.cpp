// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the main window's controls are called by a screen reader, and how the keyboard leaves them.
#include "accessibility.h"

#include "ui_mainwindow.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextDocumentFragment>
#include <QWidget>

namespace
{

struct AccessibleName
{
    QWidget *control;
    const char *name;
};

struct Caption
{
    QLabel *label;
    QWidget *control;
};

constexpr char context[]{"Accessibility"};

void nameControls(const Ui_MainWindow &form)
{
    // Buttons and check boxes are called by their texts, where these are not alike; the tabs by the page in
    // front.
    const AccessibleName names[]{
        {form.selectDeviceComboBox, QT_TRANSLATE_NOOP("Accessibility", "Serial port")},
        {form.Principal_tab->tabBar(), QT_TRANSLATE_NOOP("Accessibility", "Pages of the units")},
        {form.KR_tab->tabBar(), QT_TRANSLATE_NOOP("Accessibility", "Pages of the camera")},
        {form.BaudRateConnectCB, QT_TRANSLATE_NOOP("Accessibility", "Baud rate of the connection")},

        {form.startingModeCB, QT_TRANSLATE_NOOP("Accessibility", "Starting mode")},
        {form.FusionZoomFactorSB, QT_TRANSLATE_NOOP("Accessibility", "Zoom factor")},
        {form.FusionZoomMethod, QT_TRANSLATE_NOOP("Accessibility", "Zoom method")},
        {form.WarpA11CoeffSB, QT_TRANSLATE_NOOP("Accessibility", "Warp coefficient A11")},
        {form.WarpA21CoeffSB, QT_TRANSLATE_NOOP("Accessibility", "Warp coefficient A21")},
        {form.WarpA12CoeffSB, QT_TRANSLATE_NOOP("Accessibility", "Warp coefficient A12")},
        {form.WarpA22CoeffSB, QT_TRANSLATE_NOOP("Accessibility", "Warp coefficient A22")},
        {form.WarpA13CoeffSB, QT_TRANSLATE_NOOP("Accessibility", "Warp coefficient A13")},
        {form.WarpA23CoeffSB, QT_TRANSLATE_NOOP("Accessibility", "Warp coefficient A23")},
        {form.FusionWarpCB, QT_TRANSLATE_NOOP("Accessibility", "Video stream to warp")},

        {form.VideoOutputCB, QT_TRANSLATE_NOOP("Accessibility", "Video output type")},
        {form.frameRateCB, QT_TRANSLATE_NOOP("Accessibility", "Frame rate")},

        {form.gammaSlider, QT_TRANSLATE_NOOP("Accessibility", "Gamma correction, slider")},
        {form.gammaEdit, QT_TRANSLATE_NOOP("Accessibility", "Gamma correction")},
        {form.Roi0IncX1, QT_TRANSLATE_NOOP("Accessibility", "Region 0 inclusive, left edge X1")},
        {form.Roi0IncX2, QT_TRANSLATE_NOOP("Accessibility", "Region 0 inclusive, right edge X2")},
        {form.Roi0IncY1, QT_TRANSLATE_NOOP("Accessibility", "Region 0 inclusive, upper edge Y1")},
        {form.Roi0IncY2, QT_TRANSLATE_NOOP("Accessibility", "Region 0 inclusive, lower edge Y2")},
        {form.checkBox, QT_TRANSLATE_NOOP("Accessibility", "Enable region 0 inclusive")},
        {form.Roi1IncX1, QT_TRANSLATE_NOOP("Accessibility", "Region 1 inclusive, left edge X1")},
        {form.Roi1IncX2, QT_TRANSLATE_NOOP("Accessibility", "Region 1 inclusive, right edge X2")},
        {form.Roi1IncY1, QT_TRANSLATE_NOOP("Accessibility", "Region 1 inclusive, upper edge Y1")},
        {form.Roi1IncY2, QT_TRANSLATE_NOOP("Accessibility", "Region 1 inclusive, lower edge Y2")},
        {form.roi1IncEnable, QT_TRANSLATE_NOOP("Accessibility", "Enable region 1 inclusive")},
        {form.Roi0ExcX1, QT_TRANSLATE_NOOP("Accessibility", "Region 0 exclusive, left edge X1")},
        {form.Roi0ExcX2, QT_TRANSLATE_NOOP("Accessibility", "Region 0 exclusive, right edge X2")},
        {form.Roi0ExcY1, QT_TRANSLATE_NOOP("Accessibility", "Region 0 exclusive, upper edge Y1")},
        {form.Roi0ExcY2, QT_TRANSLATE_NOOP("Accessibility", "Region 0 exclusive, lower edge Y2")},
        {form.roi0ExcEnable, QT_TRANSLATE_NOOP("Accessibility", "Enable region 0 exclusive")},
        {form.Roi1ExcX1, QT_TRANSLATE_NOOP("Accessibility", "Region 1 exclusive, left edge X1")},
        {form.Roi1ExcX2, QT_TRANSLATE_NOOP("Accessibility", "Region 1 exclusive, right edge X2")},
        {form.Roi1ExcY1, QT_TRANSLATE_NOOP("Accessibility", "Region 1 exclusive, upper edge Y1")},
        {form.Roi1ExcY2, QT_TRANSLATE_NOOP("Accessibility", "Region 1 exclusive, lower edge Y2")},
        {form.roi1ExcEnable, QT_TRANSLATE_NOOP("Accessibility", "Enable region 1 exclusive")},
        {form.contrastTypeEdit, QT_TRANSLATE_NOOP("Accessibility", "Contrast method")},
        {form.lutColorEdit, QT_TRANSLATE_NOOP("Accessibility", "Colours of the picture")},
        {form.clheSlider, QT_TRANSLATE_NOOP("Accessibility", "Contrast, slider")},
        {form.clheEdit, QT_TRANSLATE_NOOP("Accessibility", "Contrast")},
        {form.AhcBlackGainLimSlider, QT_TRANSLATE_NOOP("Accessibility", "Gain limit of black, slider")},
        {form.AhcBlackGainLimSpin, QT_TRANSLATE_NOOP("Accessibility", "Gain limit of black")},
        {form.AhcWhiteGainLimSlider, QT_TRANSLATE_NOOP("Accessibility", "Gain limit of white, slider")},
        {form.AhcWhiteGainLimSpin, QT_TRANSLATE_NOOP("Accessibility", "Gain limit of white")},
        {form.TempoFilterSlider, QT_TRANSLATE_NOOP("Accessibility", "Temporal filter, slider")},
        {form.TempoFilterSpin, QT_TRANSLATE_NOOP("Accessibility", "Temporal filter")},

        {form.factorZoomEdit, QT_TRANSLATE_NOOP("Accessibility", "Camera zoom factor")},
        {form.xCenterZoomEdit, QT_TRANSLATE_NOOP("Accessibility", "Centre of the zoom, column")},
        {form.methodZoomEdit, QT_TRANSLATE_NOOP("Accessibility", "Camera zoom method")},
        {form.yCenterZoomEdit, QT_TRANSLATE_NOOP("Accessibility", "Centre of the zoom, line")},
        {form.xResolutionZoomEdit, QT_TRANSLATE_NOOP("Accessibility", "Width of the zoomed picture")},
        {form.yResolutionZoomEdit, QT_TRANSLATE_NOOP("Accessibility", "Height of the zoomed picture")},

        {form.EdgeCorrectionCB, QT_TRANSLATE_NOOP("Accessibility", "Edge correction")},
        {form.sharpeningGainSlider, QT_TRANSLATE_NOOP("Accessibility", "Sharpening filter gain, slider")},
        {form.sharpeningGainEdit, QT_TRANSLATE_NOOP("Accessibility", "Sharpening filter gain")},
        {form.SharpeningTHSlider, QT_TRANSLATE_NOOP("Accessibility", "Sharpening filter threshold, slider")},
        {form.SharpeningTHEdit, QT_TRANSLATE_NOOP("Accessibility", "Sharpening filter threshold")},

        {form.xBadPixelCoordinate, QT_TRANSLATE_NOOP("Accessibility", "Bad pixel, column X")},
        {form.yBadPixelCoordinate, QT_TRANSLATE_NOOP("Accessibility", "Bad pixel, line Y")},
        {form.addBadPixelButton, QT_TRANSLATE_NOOP("Accessibility", "Declare single bad pixel")},
        {form.addBadPixelLineButton, QT_TRANSLATE_NOOP("Accessibility", "Declare line")},
        {form.addBadPixelColumnButton, QT_TRANSLATE_NOOP("Accessibility", "Declare column")},
        {form.removeBadPixelButton, QT_TRANSLATE_NOOP("Accessibility", "Undeclare single bad pixel")},
        {form.removeBadPixelLineButton, QT_TRANSLATE_NOOP("Accessibility", "Undeclare line")},
        {form.removeBadPixelColumnButton, QT_TRANSLATE_NOOP("Accessibility", "Undeclare column")},

        {form.BaudRateCB, QT_TRANSLATE_NOOP("Accessibility", "Baud rate of the camera")},
        {form.gskSlider, QT_TRANSLATE_NOOP("Accessibility", "Expert value GSK, slider")},
        {form.gskEdit, QT_TRANSLATE_NOOP("Accessibility", "Expert value GSK")},
        {form.gfidSlider, QT_TRANSLATE_NOOP("Accessibility", "Expert value GFID, slider")},
        {form.gfidEdit, QT_TRANSLATE_NOOP("Accessibility", "Expert value GFID")},
        {form.gmsSlider, QT_TRANSLATE_NOOP("Accessibility", "Expert value GMS, slider")},
        {form.gmsEdit, QT_TRANSLATE_NOOP("Accessibility", "Expert value GMS")},
        {form.tintSlider, QT_TRANSLATE_NOOP("Accessibility", "Expert value TINT, slider")},
        {form.tintEdit, QT_TRANSLATE_NOOP("Accessibility", "Expert value TINT")},

        {form.VisAgcTargetSB, QT_TRANSLATE_NOOP("Accessibility", "Visible gain control, target")},
        {form.VisAgcTHSB, QT_TRANSLATE_NOOP("Accessibility", "Visible gain control, threshold")},
        {form.VisAgcCoeffSB, QT_TRANSLATE_NOOP("Accessibility", "Visible gain control, filter coefficient")},
        {form.VisClheTHSB, QT_TRANSLATE_NOOP("Accessibility", "Visible contrast, threshold")},
        {form.VisClheCoeffSB, QT_TRANSLATE_NOOP("Accessibility", "Visible contrast, filter coefficient")},

        {form.BitTextEdit, QT_TRANSLATE_NOOP("Accessibility", "Result of the built-in test")},
        {form.FusionFpgaTempTextEdit, QT_TRANSLATE_NOOP("Accessibility", "Temperature of the Blend Unit")},
        {form.FpgaTempTextEdit,
         QT_TRANSLATE_NOOP("Accessibility", "Temperature of the camera's electronics")},
        {form.SensorTempTextEdit, QT_TRANSLATE_NOOP("Accessibility", "Temperature of the camera's sensor")},
        {form.logView, QT_TRANSLATE_NOOP("Accessibility", "Log")},
    };
    for (const AccessibleName &row : names) {
        row.control->setAccessibleName(QCoreApplication::translate(context, row.name));
    }
}

void tieCaptions(const Ui_MainWindow &form)
{
    // A caption above several controls stands for the first of them.
    const Caption captions[]{
        {form.label_33, form.BU_IR_MODE_PB},
        {form.label_5, form.startingModeCB},
        {form.FusionZoomLabel, form.FusionZoomFactorSB},
        {form.ZoomFactorLabel, form.FusionZoomFactorSB},
        {form.label_34, form.WarpA11CoeffSB},
        {form.label_35, form.WarpA11CoeffSB},
        {form.label_38, form.WarpA21CoeffSB},
        {form.label_36, form.WarpA12CoeffSB},
        {form.label_39, form.WarpA22CoeffSB},
        {form.label_37, form.WarpA13CoeffSB},
        {form.label_40, form.WarpA23CoeffSB},

        {form.label_7, form.ColumnCorrectionButton},
        {form.label_11, form.VideoOutputCB},
        {form.label_10, form.frameRateCB},
        {form.label_58, form.horizontalFlipButton},

        {form.label_3, form.polarityButton},
        {form.label_4, form.gammaSlider},
        {form.gammaLabel, form.gammaEdit},
        {form.roiLabel, form.Roi0IncX1},
        {form.label_20, form.Roi0IncX1},
        {form.label_18, form.Roi0IncX2},
        {form.label_19, form.Roi0IncY1},
        {form.label_17, form.Roi0IncY2},
        {form.label_16, form.Roi0IncX1},
        {form.label_22, form.Roi1IncX1},
        {form.label_21, form.Roi0ExcX1},
        {form.label_23, form.Roi1ExcX1},
        {form.LutLabel, form.contrastTypeEdit},
        {form.label_25, form.AhcBlackGainLimSpin},
        {form.label_26, form.AhcWhiteGainLimSpin},
        {form.label_24, form.TempoFilterSpin},

        {form.zoomLabel, form.factorZoomEdit},
        {form.factorZoomLabel, form.factorZoomEdit},
        {form.xCenterZoomLabel, form.xCenterZoomEdit},
        {form.methodZoomLabel, form.methodZoomEdit},
        {form.yCenterZoomLabel, form.yCenterZoomEdit},
        {form.label, form.xResolutionZoomEdit},
        {form.xResolutionZoomLabel, form.xResolutionZoomEdit},
        {form.yResolutionZoomLabel, form.yResolutionZoomEdit},

        {form.label_13, form.EdgeCorrectionCB},
        {form.label_14, form.sharpeningGainSlider},
        {form.sharpeningGainLabel, form.sharpeningGainEdit},
        {form.SharpeningTHLabel, form.SharpeningTHEdit},

        {form.label_28, form.resetBPRTableButton},
        {form.label_29, form.xBadPixelCoordinate},
        {form.label_30, form.xBadPixelCoordinate},
        {form.label_27, form.xBadPixelCoordinate},
        {form.label_15, form.yBadPixelCoordinate},
        {form.label_31, form.addBadPixelButton},
        {form.label_32, form.removeBadPixelButton},

        {form.label_8, form.BaudRateCB},
        {form.gskLabel, form.gskEdit},
        {form.gfidLabel, form.gfidEdit},
        {form.gmsLabel, form.gmsEdit},
        {form.tintLabel, form.tintEdit},

        {form.label_41, form.VisAgcTargetSB},
        {form.label_43, form.VisAgcTargetSB},
        {form.label_44, form.VisAgcTHSB},
        {form.label_45, form.VisAgcCoeffSB},
        {form.label_42, form.VisClheTHSB},
        {form.label_46, form.VisClheTHSB},
        {form.label_48, form.VisClheCoeffSB},

        {form.label_2, form.BitTextEdit},
        {form.label_9, form.FusionFpgaTempTextEdit},
        {form.label_6, form.FpgaTempTextEdit},
        {form.label_12, form.SensorTempTextEdit},
    };
    for (const Caption &row : captions) {
        row.label->setBuddy(row.control);
    }
}

} // namespace

void makeAccessible(const Ui_MainWindow &form)
{
    nameControls(form);
    tieCaptions(form);
    for (QWidget *const widget : form.centralWidget->findChildren<QWidget *>()) {
        if (widget->toolTip().isEmpty()) {
            // Where a screen reader calls a combo box by the item that is chosen, this is all that says what
            // it is.
            if (qobject_cast<QComboBox *>(widget) != nullptr) {
                widget->setAccessibleDescription(widget->accessibleName());
            }
        } else {
            // A screen reader would read the markup aloud.
            widget->setAccessibleDescription(
                QTextDocumentFragment::fromHtml(widget->toolTip()).toPlainText());
        }
        if (auto *const box = qobject_cast<QPlainTextEdit *>(widget)) {
            box->setTabChangesFocus(true);
        }
    }
}
