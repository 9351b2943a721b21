// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers of the device: their kinds, what they may be, and how they are said.
#pragma once

#include "veltrix_sdk/kinds.h"
#include "veltrix_sdk/numbers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace device_settings
{

/// The numbers of one setting. Every number of the contract is exact in a double; a boolean is 0 or 1.
using Values = std::vector<double>;

/// The type that a number has in the contract.
using veltrix_sdk::Kind;

/// What one number may be; never a NaN.
struct Allowed
{
    double minimum;
    double maximum;
    Values only{}; ///< When not empty: nothing else, in ascending order.
};

/// All numbers from one to the other, both included.
Allowed between(double minimum, double maximum);
/// All numbers of a range of the contract.
Allowed within(veltrix_sdk::Range range);
/// These numbers and no other; in ascending order.
Allowed oneOf(Values numbers);
/// The numbers of a list of the contract and no other; in ascending order.
template <typename Number, std::size_t count>
Allowed oneOf(const std::array<Number, count> &list)
{
    return oneOf(Values(list.begin(), list.end()));
}

inline constexpr double highestWord{std::numeric_limits<std::uint32_t>::max()};

/// Whether the number is allowed; no for NaN.
bool allows(const Allowed &allowed, double number);
/// Such as "0 to 2 is allowed", "9, 25 or 30 is allowed", "40 or more is allowed".
std::string describe(const Allowed &allowed);
/// The number without needless digits, a boolean as "true" or "false"; "nan", "inf" and "-inf" as well.
std::string numberText(double number, Kind kind = Kind::Double);
/// Whether two numbers are the same; a NaN is the same as a NaN.
bool same(double left, double right);
/// Whether the number is without a fraction; no for NaN and infinities.
bool isWhole(double number);

} // namespace device_settings
