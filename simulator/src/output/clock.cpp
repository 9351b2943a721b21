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

/// Whole years that the clock of the system can tell: it counts nanoseconds, in 64 bits.
constexpr int firstYear{1970};
constexpr int lastYear{2261};

/// Writes the last digits of a number that is not negative, with zeros before it.
void putDigits(std::string &text, std::size_t place, std::size_t digits, std::int64_t number)
{
    for (std::size_t digit{digits}; digit > 0; --digit) {
        text[place + digit - 1] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
}

/// Reads the digits of a text up to what ends them, and takes them out of it; nothing when it is not so many
/// digits, or another character ends them.
std::optional<int> takeDigits(std::string_view &text, std::size_t digits, char end)
{
    if (text.size() <= digits || text[digits] != end) {
        return std::nullopt;
    }
    int number{0};
    for (const char digit : text.substr(0, digits)) {
        if (digit < '0' || digit > '9') {
            return std::nullopt;
        }
        number = number * 10 + (digit - '0');
    }
    text.remove_prefix(digits + 1);
    return number;
}

/// Days from 1970 to a day of the calendar that UTC has.
std::int64_t daysUntil(int year, int month, int day)
{
    // Counted from March on, so that the leap day is the last of its year.
    const std::int64_t years{month > 2 ? year : year - 1};
    const std::int64_t months{(month + 9) % 12};
    const std::int64_t leapDays{years / 4 - years / 100 + years / 400};
    constexpr std::int64_t daysUntil1970{719'468};
    return years * 365 + leapDays + (months * 153 + 2) / 5 + day - 1 - daysUntil1970;
}

/// The fraction of a second behind the point, with its Z; nothing when it is none.
std::optional<std::int64_t> microsecondsOf(std::string_view fraction)
{
    std::int64_t result{0};
    std::int64_t unit{100'000};
    for (const char digit : fraction.substr(0, fraction.size() - 1)) {
        if (digit < '0' || digit > '9') {
            return std::nullopt;
        }
        result += (digit - '0') * unit;
        unit /= 10;
    }
    return result;
}

} // namespace

std::optional<std::chrono::microseconds> parseTime(std::string_view text)
{
    if (text.empty() || text.back() != 'Z') {
        return std::nullopt;
    }
    const std::optional<int> year{takeDigits(text, 4, '-')};
    const std::optional<int> month{takeDigits(text, 2, '-')};
    const std::optional<int> day{takeDigits(text, 2, 'T')};
    const std::optional<int> hour{takeDigits(text, 2, ':')};
    const std::optional<int> minute{takeDigits(text, 2, ':')};
    const bool hasFraction{text.size() > 2 && text[2] == '.'};
    const std::optional<int> second{takeDigits(text, 2, hasFraction ? '.' : 'Z')};
    const bool isWhole{year && month && day && hour && minute && second};
    if (!isWhole || *year < firstYear || *year > lastYear || *month < 1 || *month > 12 || *day < 1 ||
        *day > 31 || *hour > 23 || *minute > 59 || *second > 60 || (!hasFraction && !text.empty())) {
        return std::nullopt;
    }
    const std::optional<std::int64_t> fraction{hasFraction ? microsecondsOf(text) : 0};
    if (!fraction) {
        return std::nullopt;
    }
    const std::int64_t hours{daysUntil(*year, *month, *day) * 24 + *hour};
    return std::chrono::microseconds{((hours * 60 + *minute) * 60 + *second) * 1'000'000 + *fraction};
}

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
