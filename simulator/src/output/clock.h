// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The time of day as the log and the trace write it.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

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

/// The microseconds from 1970 to a time that is written so, with any digits behind the point or with none;
/// nothing when the text is no such time, or one that the clock never tells: before 1970 or after 2261.
std::optional<std::chrono::microseconds> parseTime(std::string_view text);

} // namespace veltrix_simulator
