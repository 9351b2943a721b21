// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The Blend Unit's zoom: a window whose device has another one than it shows, and the controls that show it.
#pragma once

#include "filledblendunit.h"
#include "testwindow.h"

#include <QComboBox>
#include <QDoubleSpinBox>

/// The read of the zoom's record from that device.
const char *const zoomRecordRead{"getZoomConfig() -> true {factor=1.5, xCenter=300, yCenter=200, method=0}"};

/// A connected window whose device has since been given another zoom; the method is the one shown.
inline void beConnectedAndZoomed(TestWindow &test)
{
    test.beConnected();
    fillBlendUnit(test.simulator);
}

inline QDoubleSpinBox &fusionFactor(const TestWindow &test)
{
    return test.child<QDoubleSpinBox>("FusionZoomFactorSB");
}

inline QComboBox &fusionMethod(const TestWindow &test)
{
    return test.child<QComboBox>("FusionZoomMethod");
}

inline QComboBox &infraredMethod(const TestWindow &test)
{
    return test.child<QComboBox>("methodZoomEdit");
}
