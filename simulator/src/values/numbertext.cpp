// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the values of calls are written for people and for programs.
#include "values/numbertext.h"

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

void appendNumber(std::string &line, Kind kind, double number)
{
    // The longest is a negative double.
    char digits[32];
    char *const end = digits + sizeof digits;
    std::to_chars_result written{};
    if (kind == Kind::Double) {
        written = std::to_chars(digits, end, number);
    } else if (kind == Kind::Float && !isWrittenAsInteger(number)) {
        written = std::to_chars(digits, end, static_cast<float>(number));
    } else {
        written = std::to_chars(digits, end, static_cast<std::int64_t>(number));
    }
    line.append(digits, static_cast<std::size_t>(written.ptr - digits));
}

void appendPlain(std::string &line, Kind kind, double number)
{
    if (kind == Kind::Boolean) {
        line.append(number != 0.0 ? "true" : "false");
    } else {
        appendNumber(line, kind, number);
    }
}

void appendQuoted(std::string &line, std::string_view text)
{
    line.push_back('"');
    for (const char character : text) {
        if (character == '"' || character == '\\' || character == '\n') {
            line.push_back('\\');
        }
        line.push_back(character == '\n' ? 'n' : character);
    }
    line.push_back('"');
}

} // namespace veltrix_simulator
