// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a unit accepts for a value.
#pragma once

#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace veltrix_simulator
{

using Words = veltrix_sdk::ConfigurationWords;
using Word = std::int32_t Words::*;

/// What a unit accepts for a value: everything, the numbers from one to another, those of a list, or what
/// lies between two words of the configuration.
struct Allowed
{
    double minimum{};
    double maximum{};
    const double *listed{nullptr};
    std::size_t listLength{0};
    Word minimumWord{nullptr};
    Word maximumWord{nullptr};
    bool anything{false};

    /// The least and the greatest number; of no meaning where everything or a list is accepted.
    std::pair<double, double> interval(const Words &words) const
    {
        return {minimumWord != nullptr ? words.*minimumWord : minimum,
                maximumWord != nullptr ? words.*maximumWord : maximum};
    }

    /// NaN is accepted only where everything is.
    bool accepts(double number, const Words &words) const
    {
        if (anything) {
            return true;
        }
        if (listed != nullptr) {
            return std::find(listed, listed + listLength, number) != listed + listLength;
        }
        const auto [lowest, highest] = interval(words);
        return number >= lowest && number <= highest;
    }
};

/// For a value that is stored whatever it is.
inline constexpr Allowed anything{0, 0, nullptr, 0, nullptr, nullptr, true};

/// The numbers of a range, each moved up by the distance.
constexpr Allowed between(const veltrix_sdk::Range &range, std::int32_t distance = 0)
{
    return {static_cast<double>(range.minimum + distance), static_cast<double>(range.maximum + distance)};
}

/// The numbers of a list of the contract, as doubles.
template <typename Number, std::size_t count>
constexpr std::array<double, count> asDoubles(const std::array<Number, count> &numbers)
{
    std::array<double, count> doubles{};
    for (std::size_t place{0}; place < count; ++place) {
        doubles[place] = static_cast<double>(numbers[place]);
    }
    return doubles;
}

/// The numbers of a list, which lives as long as the program.
template <std::size_t count>
constexpr Allowed oneOf(const std::array<double, count> &list)
{
    return {0, 0, list.data(), list.size()};
}

/// The numbers between two words of the configuration.
constexpr Allowed configured(Word minimum, Word maximum)
{
    return {0, 0, nullptr, 0, minimum, maximum};
}

} // namespace veltrix_simulator
