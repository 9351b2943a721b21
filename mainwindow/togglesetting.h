// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The camera's on/off settings with a toggle button: one row each.
#pragma once

#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"

#include <QPushButton>
#include <QtGlobal>

/// How the log says whether a setting is on.
enum class ToggleWords
{
    EnabledDisabled,
    OneZero,
};

/// An on/off setting of the camera and the button that shows it.
struct ToggleSetting
{
    QPushButton *Ui_MainWindow::*button;
    const char *activatedText;   ///< Of the button while the setting is on.
    const char *deactivatedText; ///< Of the button while the setting is off.
    bool (veltrix_sdk::IDeviceControl::*get)();
    bool (veltrix_sdk::IDeviceControl::*set)(bool);
    const char *readLabel; ///< What the log says before the state that was read.
    ToggleWords readWords;
    const char *action; ///< What the log says was set, before OK or KO.
};

inline constexpr ToggleSetting columnCorrection{
    &Ui_MainWindow::ColumnCorrectionButton,
    QT_TRANSLATE_NOOP("MainWindow", "Column Correction: Activated"),
    QT_TRANSLATE_NOOP("MainWindow", "Column Correction: Deactivated"),
    &veltrix_sdk::IDeviceControl::getColumnCorrection,
    &veltrix_sdk::IDeviceControl::setColumnCorrection,
    "Column Correction state = ",
    ToggleWords::EnabledDisabled,
    "Set column correction value",
};

inline constexpr ToggleSetting vignettingCorrection{
    &Ui_MainWindow::VignettingCorrectionButton,
    QT_TRANSLATE_NOOP("MainWindow", "Vignetting Correction: Activated"),
    QT_TRANSLATE_NOOP("MainWindow", "Vignetting Correction: Deactivated"),
    &veltrix_sdk::IDeviceControl::getVignettingCorrection,
    &veltrix_sdk::IDeviceControl::setVignettingCorrection,
    "Vignetting Correction state = ",
    ToggleWords::EnabledDisabled,
    "Set vignetting correction value",
};

inline constexpr ToggleSetting sdiOutput{
    &Ui_MainWindow::sdiOutputButton,
    QT_TRANSLATE_NOOP("MainWindow", "BT656/SDI Output: Activated"),
    QT_TRANSLATE_NOOP("MainWindow", "BT656/SDI Output: Deactivated"),
    &veltrix_sdk::IDeviceControl::getSdiOutput,
    &veltrix_sdk::IDeviceControl::setSdiOutput,
    "BT656/SDI output value = ",
    ToggleWords::EnabledDisabled,
    "Set BT656/SDI OUTPUT value",
};

inline constexpr ToggleSetting parallelOutput{
    &Ui_MainWindow::parallelOutputButton,
    QT_TRANSLATE_NOOP("MainWindow", "Parallel Output: Activated"),
    QT_TRANSLATE_NOOP("MainWindow", "Parallel Output: Deactivated"),
    &veltrix_sdk::IDeviceControl::getParallelOutput,
    &veltrix_sdk::IDeviceControl::setParallelOutput,
    "Parallel output value = ",
    ToggleWords::EnabledDisabled,
    "Set PARALLEL OUTPUT value",
};

inline constexpr ToggleSetting mipiOutput{
    &Ui_MainWindow::mipiOutputButton,
    QT_TRANSLATE_NOOP("MainWindow", "MIPI Output: Activated"),
    QT_TRANSLATE_NOOP("MainWindow", "MIPI Output: Deactivated"),
    &veltrix_sdk::IDeviceControl::getMipiOutput,
    &veltrix_sdk::IDeviceControl::setMipiOutput,
    "MIPI output value = ",
    ToggleWords::EnabledDisabled,
    "Set MIPI OUTPUT value",
};

inline constexpr ToggleSetting horizontalFlip{
    &Ui_MainWindow::horizontalFlipButton,
    QT_TRANSLATE_NOOP("MainWindow", "Horizontal Flip: Activated"),
    QT_TRANSLATE_NOOP("MainWindow", "Horizontal Flip: Deactivated"),
    &veltrix_sdk::IDeviceControl::getHorizontalFlip,
    &veltrix_sdk::IDeviceControl::setHorizontalFlip,
    "Horizontal flip value = ",
    ToggleWords::OneZero,
    "Set HORIZONTAL FLIP value",
};

inline constexpr ToggleSetting polarity{
    &Ui_MainWindow::polarityButton,
    QT_TRANSLATE_NOOP("MainWindow", "Invert Polarity: Activated"),
    QT_TRANSLATE_NOOP("MainWindow", "Invert Polarity: Deactivated"),
    &veltrix_sdk::IDeviceControl::getPolarity,
    &veltrix_sdk::IDeviceControl::setPolarity,
    "Polarity value = ",
    ToggleWords::OneZero,
    "Set POLARITY value",
};
