// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the tables of the state are made of.
#pragma once

#include "veltrix_sdk/records.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace veltrix_simulator
{

using Words = veltrix_sdk::ConfigurationWords;
using Word = std::int32_t Words::*;

/// What a unit accepts for a value: everything, an interval, one of a list, or what lies between two words
/// of the configuration.
struct Allowed
{
    double minimum{};
    double maximum{};
    const std::int32_t *listed{nullptr};
    std::size_t listLength{0};
    Word minimumWord{nullptr};
    Word maximumWord{nullptr};
    bool anything{false};

    /// Its ends, where it is one.
    std::pair<double, double> interval(const Words &words) const;

    /// NaN is accepted only where everything is.
    bool accepts(double number, const Words &words) const;
};

/// What is stored as it comes.
inline constexpr Allowed anything{0, 0, nullptr, 0, nullptr, nullptr, true};

/// The numbers from minimum to maximum.
constexpr Allowed between(double minimum, double maximum)
{
    return {minimum, maximum};
}

/// The numbers of a list, which lives as long as the program.
constexpr Allowed oneOf(const std::array<std::int32_t, 5> &list)
{
    return {0, 0, list.data(), list.size()};
}

/// The numbers between two words of the configuration.
constexpr Allowed configured(Word minimum, Word maximum)
{
    return {0, 0, nullptr, 0, minimum, maximum};
}

// Tables are indexed by their enumeration, so their order has to be the same.
template <typename Table>
constexpr bool inOrder(const Table &table)
{
    std::size_t place{0};
    for (const auto &row : table) {
        if (static_cast<std::size_t>(row.id) != place++) {
            return false;
        }
    }
    return true;
}

} // namespace veltrix_simulator
