// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers of the device: their kinds, what they may be, and how they are said.
#include "values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace device_settings
{

namespace
{

std::string join(const Values &numbers)
{
    std::string text;
    for (std::size_t place{0}; place < numbers.size(); ++place) {
        const bool last{place + 1 == numbers.size()};
        text += place == 0 ? "" : last ? " or " : ", ";
        text += numberText(numbers[place]);
    }
    return text;
}

} // namespace

Allowed between(double minimum, double maximum)
{
    return {minimum, maximum};
}

Allowed within(veltrix_sdk::Range range)
{
    return between(range.minimum, range.maximum);
}

Allowed oneOf(Values numbers)
{
    const double minimum{numbers.front()};
    const double maximum{numbers.back()};
    return {minimum, maximum, std::move(numbers)};
}

bool allows(const Allowed &allowed, double number)
{
    if (!allowed.only.empty()) {
        return std::find(allowed.only.begin(), allowed.only.end(), number) != allowed.only.end();
    }
    return number >= allowed.minimum && number <= allowed.maximum;
}

std::string describe(const Allowed &allowed)
{
    if (!allowed.only.empty()) {
        return join(allowed.only) + " is allowed";
    }
    if (allowed.minimum > allowed.maximum) {
        return "nothing is allowed from " + numberText(allowed.minimum) + " to " +
               numberText(allowed.maximum);
    }
    if (same(allowed.maximum, highestWord)) {
        return numberText(allowed.minimum) + " or more is allowed";
    }
    return numberText(allowed.minimum) + " to " + numberText(allowed.maximum) + " is allowed";
}

std::string numberText(double number, Kind kind)
{
    if (kind == Kind::Boolean) {
        return number != 0.0 ? "true" : "false";
    }
    constexpr double smallest{1e-6};
    constexpr double largest{1e15};
    const double size{std::fabs(number)};
    const bool readable{number == 0.0 || (size >= smallest && size < largest)};
    const auto format = readable ? std::chars_format::fixed : std::chars_format::general;
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, format);
    return {text.data(), end.ptr};
}

bool same(double left, double right)
{
    return left == right || (std::isnan(left) && std::isnan(right));
}

bool isWhole(double number)
{
    return std::isfinite(number) && std::trunc(number) == number;
}

} // namespace device_settings
