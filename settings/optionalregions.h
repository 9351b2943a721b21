// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Which of the optional regions of interest are on.
#pragma once

#include "veltrix_sdk/numbers.h"

#include <array>
#include <cstdint>

namespace device_settings
{

/// The flags that travel with every coordinate of a region that is written. No operation reads them.
struct RegionFlags
{
    bool roi1Inclusive{false};
    bool roi0Exclusive{false};
    bool roi1Exclusive{false};
};

/// Whether an optional region is on, as its first column tells: that of one that is off is 0.
constexpr bool isRegionOn(double firstColumn)
{
    return firstColumn != 0;
}

/// An optional region.
struct OptionalRegion
{
    /// The number that the setters give it. The getters give 1 and 2 to different regions, and nothing
    /// translates between them: a region is kept under the number that it was set under. So the setters'
    /// numbers are read with, too, where a region is read to be written.
    std::int32_t number;
    bool RegionFlags::*flag;
};

inline constexpr std::array<OptionalRegion, 3> optionalRegions{
    OptionalRegion{veltrix_sdk::setter_region::roi1Inclusive, &RegionFlags::roi1Inclusive},
    OptionalRegion{veltrix_sdk::setter_region::roi0Exclusive, &RegionFlags::roi0Exclusive},
    OptionalRegion{veltrix_sdk::setter_region::roi1Exclusive, &RegionFlags::roi1Exclusive},
};

} // namespace device_settings
