// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The time of day as the log and the trace write it.
#include "output/clock.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <ctime>

namespace veltrix_simulator
{

std::string formatTime(std::chrono::system_clock::time_point time, Precision precision)
{
    using namespace std::chrono;
    const std::time_t seconds = system_clock::to_time_t(time);
    const auto fraction = duration_cast<microseconds>(time.time_since_epoch()).count() % 1'000'000;
    std::array<char, 40> text{};
    std::size_t length{0};
    if (const std::tm *const utc = std::gmtime(&seconds)) {
        length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", utc);
    }
    const bool isCoarse{precision == Precision::Milliseconds};
    std::snprintf(text.data() + length, text.size() - length, isCoarse ? ".%03dZ" : ".%06dZ",
                  static_cast<int>(isCoarse ? fraction / 1000 : fraction));
    return text.data();
}

} // namespace veltrix_simulator
