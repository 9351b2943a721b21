// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Temperatures of both units again and again.
#pragma once

#include "failure.h"
#include "session.h"

#include <chrono>
#include <optional>
#include <string>

namespace ctl
{

/// How often, and where to.
struct Watch
{
    std::chrono::milliseconds every{1000};
    std::optional<int> count{}; ///< Until Ctrl-C where none is given.
    std::string csvFile{};      ///< Millikelvin as well, in a file; - for standard output alone.
    std::string plotFile{};     ///< A picture of the curves at the end.
};

/// Writes a line for each reading, with the time in UTC. The readings keep to the clock: one that is late
/// does not delay the next, and times that have passed meanwhile are left out.
ExitStatus watchTemperatures(Session &session, const Watch &watch);

/// The time that a text such as "500ms", "1s", "2min" or "1h" stands for; nothing for any other text, less
/// than a hundredth of a second or more than a day.
std::optional<std::chrono::milliseconds> durationOf(const std::string &text);

} // namespace ctl
