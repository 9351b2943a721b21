// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The regions of interest: their numbers and their widgets.
#pragma once

#include "ui_mainwindow.h"
#include "veltrix_sdk/numbers.h"

#include <QCheckBox>
#include <QSpinBox>

/// A region of interest, by the number that the device's setters give it. The device's readers number the
/// optional regions in another order, and neither side translates.
enum class Region
{
    Roi0Inclusive = veltrix_sdk::setter_region::roi0Inclusive,
    Roi1Inclusive = veltrix_sdk::setter_region::roi1Inclusive,
    Roi0Exclusive = veltrix_sdk::setter_region::roi0Exclusive,
    Roi1Exclusive = veltrix_sdk::setter_region::roi1Exclusive,
};

/// The widgets of one region; coordinates in pixels.
struct RegionWidgets
{
    QSpinBox *x1;
    QSpinBox *x2;
    QSpinBox *y1;
    QSpinBox *y2;
    QCheckBox *enable; ///< Null for the region that is always on.
};

/// The widgets of a region.
RegionWidgets regionWidgets(const Ui_MainWindow &ui, Region region);
