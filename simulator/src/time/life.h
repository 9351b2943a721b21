// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the values of the units change as time passes.
#pragma once

#include "units/state.h"

#include <chrono>
#include <string>
#include <vector>

namespace veltrix_simulator
{

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

/// The units' own time, and the values that it changes.
class UnitTime
{
public:
    /// Throws std::invalid_argument when a key is no number of a unit, a drift has no finite end or a time
    /// is not longer than zero.
    explicit UnitTime(const Life &life);

    bool passes() const { return !drifts.empty() || !counters.empty(); }

    /// Lets the time of one device call pass, which took this long on the link.
    void pass(std::chrono::microseconds onLink, State &state);

private:
    struct Drifting
    {
        void pass(std::chrono::microseconds time, double &number);

        double end;
        double halfTime; ///< Microseconds.
        UnitPlace place;
        double exact{0}; ///< The value before it is rounded to its kind.
        double shown{0}; ///< What was stored last; if the unit holds another number, a command has set it.
        bool started{false};
    };

    struct Counting
    {
        void pass(std::chrono::microseconds time, double &number);

        std::chrono::microseconds interval;
        UnitPlace place;
        std::chrono::microseconds sinceLast{0};
    };

    std::chrono::microseconds timePerCall;
    std::vector<Drifting> drifts;
    std::vector<Counting> counters;
};

} // namespace veltrix_simulator
