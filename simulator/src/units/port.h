// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A port of the simulator.
#pragma once

#include <chrono>
#include <string>

namespace veltrix_simulator
{

/// A port that the library can open beside the host's.
struct Port
{
    enum class Opening
    {
        Opens,   ///< The device answers.
        Refused, ///< There is no device.
        Silent,  ///< There is a device, and all its operations refuse.
    };
    std::string name;
    Opening opening{Opening::Opens};
    std::chrono::microseconds delay{0}; ///< What opening it takes.
};

} // namespace veltrix_simulator
