// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Which parts of a call are written and in which order, in the journal and in the trace alike.
#include "calls/callwriter.h"

#include "values/value.h"

#include <charconv>
#include <cstddef>
#include <cstdint>

namespace veltrix_simulator
{
namespace
{

/// Whether the shortest form of a float is that of an integer: it is a whole number below 10^7, where floats
/// are exact, and not one that an exponent makes shorter, as 1e+05 does.
bool isWrittenAsInteger(double value)
{
    constexpr double limit{1e7};
    constexpr std::int64_t shorterWithExponent{100'000};
    if (!(value > -limit && value < limit)) {
        return false;
    }
    const auto whole = static_cast<std::int64_t>(value);
    // Zero is among them, since it may have a sign.
    return static_cast<double>(whole) == value && whole % shorterWithExponent != 0;
}

} // namespace

void appendNumber(std::string &line, const Number &number)
{
    // The longest is a negative double.
    char digits[32];
    char *const end = digits + sizeof digits;
    std::to_chars_result written{};
    if (number.kind == Kind::Double) {
        written = std::to_chars(digits, end, number.value);
    } else if (number.kind == Kind::Float && !isWrittenAsInteger(number.value)) {
        written = std::to_chars(digits, end, static_cast<float>(number.value));
    } else {
        written = std::to_chars(digits, end, static_cast<std::int64_t>(number.value));
    }
    line.append(digits, static_cast<std::size_t>(written.ptr - digits));
}

} // namespace veltrix_simulator
