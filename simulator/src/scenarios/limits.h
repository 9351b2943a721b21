// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The limits of a scenario file and of what stands in it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace veltrix_simulator
{

inline constexpr std::size_t bytesOfKibibyte{1024};
/// The bytes that a scenario file may have.
inline constexpr std::size_t largestScenario{256 * bytesOfKibibyte};
/// Bytes. Each dot in a key is one more level, so the length of a line limits the depth.
inline constexpr std::size_t longestLine{512};
/// Tables of a list, such as `[[port]]`.
inline constexpr std::size_t mostEntries{256};
/// Operations that a fault names.
inline constexpr std::size_t mostPatterns{64};
/// Counted from 1.
inline constexpr std::int64_t lastCallNumber{1'000'000'000};

/// Either way from 0.
inline constexpr double largestNumber{1e300};

/// Milliseconds of one part of what a call waits for: all parts together stay below a minute.
inline constexpr double longestPart{10'000};
/// Milliseconds until a port has opened.
inline constexpr double longestOpening{60'000};
/// Milliseconds.
inline constexpr double oneDay{86'400'000};
/// Seconds.
inline constexpr double tenYears{315'360'000};

} // namespace veltrix_simulator
