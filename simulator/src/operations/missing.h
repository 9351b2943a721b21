// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a call was made on without having it.
#pragma once

#include "operations/operations.h"

#include <array>
#include <string_view>

namespace veltrix_simulator
{

enum class Missing
{
    Nothing,
    Device,  ///< No device is open.
    Manager, ///< No manager is held: none was fetched, or it has been released.
};

/// What stands before a call in the journal, in the order of Missing.
inline constexpr std::array<std::string_view, 3> missingInWords{"", "NOT OPEN: ", "NOT HELD: "};

/// What an operation needs and there is not.
constexpr Missing missingFor(OperationId operation, bool isDeviceOpen, bool isManagerHeld)
{
    switch (nameOf(operation).interface) {
    case Interface::Device:
        return isDeviceOpen ? Missing::Nothing : Missing::Device;
    case Interface::Manager:
        return isManagerHeld ? Missing::Nothing : Missing::Manager;
    default:
        return operation == OperationId::releaseDeviceManager && !isManagerHeld ? Missing::Manager
                                                                                : Missing::Nothing;
    }
}

} // namespace veltrix_simulator
