// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How numbers travel between the widgets and the device, defined for every input.
#include "encodings.h"

#include "veltrix_sdk/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

using veltrix_sdk::fixedPointOne;
using veltrix_sdk::frameRatesHz;

static_assert(frameRatesHz[indexOf9Hz] == 9 && frameRatesHz[indexOf25Hz] == 25);

namespace
{

// The first double above the 64-bit range; the range's own limit has no double of its own.
constexpr double beyondInt64 = 9223372036854775808.0;

std::int64_t truncateToInt64(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= beyondInt64) {
        return std::numeric_limits<std::int64_t>::max();
    }
    if (value < -beyondInt64) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return static_cast<std::int64_t>(value);
}

} // namespace

std::uint32_t truncateToUint32(double value)
{
    return static_cast<std::uint32_t>(truncateToInt64(value));
}

std::int32_t truncateToInt32(double value)
{
    return static_cast<std::int32_t>(truncateToUint32(value));
}

std::uint32_t toFixedPoint16_16(double value)
{
    return truncateToUint32(value * fixedPointOne);
}

double fromFixedPoint16_16(std::uint32_t fixedPoint)
{
    return static_cast<double>(static_cast<float>(fixedPoint)) / fixedPointOne;
}

int roundToInt(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    const double lowest{std::numeric_limits<int>::min()};
    const double highest{std::numeric_limits<int>::max()};
    const double within{std::clamp(value, lowest, highest)};
    // Not std::round: that of mingw-w64 makes 1 of the last double below 0.5.
    const double whole{std::trunc(within)};
    const bool isNearerToNext{std::abs(within - whole) >= 0.5};
    return static_cast<int>(isNearerToNext ? whole + std::copysign(1.0, within) : whole);
}

std::uint8_t toByte(int value)
{
    return static_cast<std::uint8_t>(value);
}

int nearestInt(std::uint64_t value)
{
    constexpr std::uint64_t highest{std::numeric_limits<int>::max()};
    return static_cast<int>(std::min(value, highest));
}

float toCelsius(float millikelvin)
{
    constexpr float freezingPointMillikelvin{273000.0F};
    return (millikelvin - freezingPointMillikelvin) / 1000.0F;
}

std::uint8_t frameRateHz(int index)
{
    const bool known{index >= 0 && static_cast<std::size_t>(index) < frameRatesHz.size()};
    return known ? frameRatesHz[static_cast<std::size_t>(index)] : std::uint8_t{0};
}

int frameRateIndex(std::uint8_t hertz, int otherwise)
{
    for (std::size_t index{0}; index < frameRatesHz.size(); ++index) {
        if (frameRatesHz[index] == hertz) {
            return static_cast<int>(index);
        }
    }
    return otherwise;
}
