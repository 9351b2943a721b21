// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The time of day as the log and the trace write it.
#pragma once

#include <chrono>
#include <string>

namespace veltrix_simulator
{

/// The smallest unit of a written time.
enum class Precision
{
    Milliseconds,
    Microseconds,
};

/// A time in UTC, such as "2026-03-14T09:26:53.589Z" or "2026-03-14T09:26:53.589793Z".
std::string formatTime(std::chrono::system_clock::time_point time, Precision precision);

} // namespace veltrix_simulator
