// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a call was made on without having it.
#pragma once

namespace veltrix_simulator
{

enum class Missing
{
    Nothing,
    Device,  ///< No device is open.
    Manager, ///< No manager is held: none was fetched, or it has been released.
};

} // namespace veltrix_simulator
