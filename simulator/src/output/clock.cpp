// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The time of day as the log and the trace write it.
#include "output/clock.h"

#include <cstddef>
#include <cstdint>
#include <ctime>

namespace veltrix_simulator
{
namespace
{

/// Writes the last digits of a number that is not negative, with zeros before it.
void putDigits(std::string &text, std::size_t place, std::size_t digits, std::int64_t number)
{
    for (std::size_t digit{digits}; digit > 0; --digit) {
        text[place + digit - 1] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
}

} // namespace

std::string formatTime(std::chrono::system_clock::time_point time, Precision precision)
{
    using namespace std::chrono;
    const std::time_t seconds{system_clock::to_time_t(time)};
    const auto fraction = duration_cast<microseconds>(time.time_since_epoch()).count() % 1'000'000;
    // By hand: the library's formatting takes a sixth of a traced call.
    std::string text{"0000-00-00T00:00:00"};
    if (const std::tm *const utc = std::gmtime(&seconds)) {
        putDigits(text, 0, 4, utc->tm_year + 1900);
        putDigits(text, 5, 2, utc->tm_mon + 1);
        putDigits(text, 8, 2, utc->tm_mday);
        putDigits(text, 11, 2, utc->tm_hour);
        putDigits(text, 14, 2, utc->tm_min);
        putDigits(text, 17, 2, utc->tm_sec);
    }
    if (precision == Precision::Milliseconds) {
        text.append(".000Z");
        putDigits(text, 20, 3, fraction / 1000);
    } else {
        text.append(".000000Z");
        putDigits(text, 20, 6, fraction);
    }
    return text;
}

} // namespace veltrix_simulator
