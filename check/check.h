// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The check of an SDK library: runs every row of the tables on the device behind a port.
#pragma once

#include "veltrix_sdk/sdk.h"

#include <functional>
#include <ostream>
#include <string>

namespace sdk_check
{

struct Options
{
    std::string port;  ///< As openDevice takes it.
    bool write{false}; ///< Sets every setting to another value and back.
    int rounds{3};     ///< How often everything is read; at least 1.
    bool json{false};  ///< One JSON document instead of lines.
};

/// What a process that made the check ends with.
enum ExitStatus
{
    allHold = 0,
    somethingFails = 1,
    wrongUsage = 2,
};

/// Asked between operations; once it says yes, nothing more is read or written but what puts back a setting
/// that was changed, and the device is closed.
using Interrupted = std::function<bool()>;

/// Checks the library behind the root object, which may be null, and writes the report. No operation is
/// called on a device that is not open, and none whose effect outlasts the power of the device. Whatever
/// happens, what was opened is closed and what is held is released.
ExitStatus check(veltrix_sdk::IVeltrixSdk *sdk, const Options &options, std::ostream &out,
                 const Interrupted &interrupted);

} // namespace sdk_check
