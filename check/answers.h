// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the device may answer: the numbers that are allowed and how they are said.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace sdk_check
{

/// The numbers of one answer. Every number of the contract is exact in a double.
using Values = std::vector<double>;

/// What one number of an answer may be; never a NaN.
struct Allowed
{
    double minimum;
    double maximum;
    Values only{};       ///< When not empty: nothing else, in ascending order.
    bool boolean{false}; ///< Said as true and false.
};

/// All numbers from one to the other, both included.
Allowed between(double minimum, double maximum);
/// These numbers and no other; in ascending order.
Allowed oneOf(Values numbers);

inline constexpr double highestWord{std::numeric_limits<std::uint32_t>::max()};

/// Whether the number is allowed; no for NaN.
bool allows(const Allowed &allowed, double number);
/// Such as "0 to 2 is allowed", "9, 25 or 30 is allowed", "40 or more is allowed".
std::string describe(const Allowed &allowed);
/// The number without needless digits, a boolean as "true" or "false"; "nan", "inf" and "-inf" as well.
std::string numberText(double number, bool boolean = false);
/// Whether two answers are the same; a NaN is the same as a NaN.
bool same(double left, double right);

/// Text from the device or the host in printable ASCII: every other byte as \n, \t, \r or \xNN, a backslash
/// doubled, cut after 200 characters.
std::string escaped(std::string_view text);

} // namespace sdk_check
