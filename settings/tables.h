// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The two parts of the device's table.
#pragma once

#include "devicesettings.h"
#include "veltrix_sdk/records.h"

#include <vector>

namespace device_settings
{

using Rows = std::vector<Setting>;

inline constexpr UsedOn onCamera{UsedOn::Camera};

/// What identifies the units and how they are, then the settings of the Blend Unit and the zoom of both.
Rows blendUnitTable();
/// The settings of the camera. The words give the ranges of the expert values.
Rows cameraTable(const veltrix_sdk::ConfigurationWords &words);

} // namespace device_settings
