// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Everything that a scenario settles before the first call.
#pragma once

#include "faults/rule.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace veltrix_simulator
{

/// How long a call of the device takes.
struct Link
{
    enum class Kind
    {
        None,   ///< No time of its own.
        Fixed,  ///< perCall.
        Serial, ///< bytesPerCommand at ten bits a byte and the baud rate, and thinkTime.
    };
    Kind kind{Kind::None};
    std::chrono::microseconds perCall{0};
    std::uint32_t bytesPerCommand{24}; ///< Command and answer together.
    std::int32_t baudRate{0};          ///< Bits per second; 0: the rate that the program set last.
    std::chrono::microseconds thinkTime{0};
    std::chrono::microseconds jitter{0}; ///< Up to so much more, drawn from the seed; of every kind but None.
};

/// A port that the library can open beside the host's.
struct Port
{
    enum class Opening
    {
        Opens,   ///< The device answers.
        Refused, ///< There is no device.
        Silent,  ///< There is a device, and all its operations refuse.
    };
    std::string name;
    Opening opening{Opening::Opens};
    std::chrono::microseconds delay{0}; ///< What opening it takes.
};

/// A value that goes from where it stands towards an end as the unit's time goes by: half of the way that is
/// left in every half-time.
struct Drift
{
    std::string key; ///< Of a number of a unit, such as "camera.temperatures.sensorMillikelvin".
    double end{0};
    std::chrono::microseconds halfTime{0};
};

/// A value that grows by one in every interval of the unit's time.
struct Counter
{
    std::string key;
    std::chrono::microseconds interval{0};
};

/// The life of the units. Their time does not run by the clock, so that the same calls always get the same
/// answers: each device call makes it go on by what the call took on the link and by timePerCall.
struct Life
{
    std::chrono::microseconds timePerCall{0};
    std::vector<Drift> drifts;
    std::vector<Counter> counters;
};

/// A pixel of a unit's table.
struct PixelPlace
{
    int target{0};
    std::uint32_t column{0};
    std::uint32_t row{0};
};

struct Scenario
{
    std::string name{"default"}; ///< As it was asked for.
    std::uint64_t seed{0};
    std::vector<std::pair<std::string, Value>> values; ///< Keys of the state and what they hold.
    std::vector<Port> ports{{"SIM1"}};
    /// The bad pixels of the units that are listed as having some of their own; the others have the
    /// factory's.
    std::vector<int> unitsWithPixels;
    std::vector<PixelPlace> badPixels;
    Link link;
    std::vector<Rule> rules;
    Life life;
    std::string memoryFile; ///< Where saved parameters are kept; empty: they are not kept.
};

} // namespace veltrix_simulator
