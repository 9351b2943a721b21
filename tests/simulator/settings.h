// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every setting of the device: how it is written and read, what is accepted and what is refused.
#pragma once

#include "veltrix_sdk/device_control.h"

#include <functional>
#include <string>
#include <vector>

struct Setting
{
    std::string name;
    std::function<bool(veltrix_sdk::IDeviceControl &, double)> set;
    std::function<double(veltrix_sdk::IDeviceControl &)> get;
    std::vector<double> accepted;
    std::vector<double> refused;
};

std::vector<Setting> everySetting();
