// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The time that the link takes.
#pragma once

#include "values/randomness.h"

#include <chrono>
#include <cstdint>

namespace veltrix_simulator
{

/// No call takes longer than this, whatever a scenario says.
inline constexpr std::chrono::microseconds longestCall{std::chrono::seconds{60}};

/// The duration as a call can take it: from nothing to longestCall.
std::chrono::microseconds bounded(std::chrono::microseconds duration);

/// Lets the caller wait so long, bounded.
void pause(std::chrono::microseconds duration);

/// How long a call of the device takes.
struct Link
{
    enum class Kind
    {
        None,     ///< No time of its own.
        Fixed,    ///< perCall.
        Serial,   ///< bytesPerCommand at ten bits a byte and the baud rate, and thinkTime.
        Recorded, ///< What each call took in the recording that is played.
    };
    Kind kind{Kind::None};
    std::chrono::microseconds perCall{0};
    std::uint32_t bytesPerCommand{24}; ///< Command and answer together.
    std::int32_t baudRate{0};          ///< Bits per second; 0: the rate that the program set last.
    std::chrono::microseconds thinkTime{0};
    std::chrono::microseconds jitter{0}; ///< Up to so much more, drawn from the seed; of Fixed and Serial.
};

class LinkTime
{
public:
    LinkTime(const Link &itsLink, std::uint64_t seed) : link{itsLink}, jitter{seed, "link"} {}

    bool passes() const { return link.kind == Link::Kind::Fixed || link.kind == Link::Kind::Serial; }

    /// What the next call takes, bounded, at this many bits per second; a rate of the link itself replaces
    /// it.
    std::chrono::microseconds next(std::int32_t baudRate);

private:
    Link link;
    Random jitter;
};

} // namespace veltrix_simulator
