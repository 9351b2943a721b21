// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the values of the units change as time passes.
#include "time/life.h"

#include "units/unitfields.h"
#include "values/value.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

namespace veltrix_simulator
{
namespace
{

using std::chrono::microseconds;

/// Longer than any unit runs, and short enough to be added up without overflow.
constexpr microseconds longestStep{std::chrono::hours{24 * 365 * 1000}};

microseconds step(microseconds duration)
{
    return std::clamp(duration, microseconds{0}, longestStep);
}

Kind kindHeldBy(const UnitPlace &place)
{
    return rowOf(place.field).kind;
}

void demand(bool isMet, const std::string &key, const char *otherwise)
{
    if (!isMet) {
        throw std::invalid_argument{'"' + key + "\" " + otherwise};
    }
}

} // namespace

UnitTime::UnitTime(const Life &life) : timePerCall{step(life.timePerCall)}
{
    for (const Drift &drift : life.drifts) {
        demand(std::isfinite(drift.end), drift.key, "needs a finite end to drift to");
        demand(drift.halfTime.count() > 0, drift.key, "needs a half-time longer than zero");
        drifts.push_back(
            {drift.end, static_cast<double>(drift.halfTime.count()), State::placeOfNumber(drift.key)});
    }
    for (const Counter &counter : life.counters) {
        demand(counter.interval.count() > 0, counter.key, "needs an interval longer than zero");
        counters.push_back({counter.interval, State::placeOfNumber(counter.key)});
    }
}

void UnitTime::pass(microseconds onLink, State &state)
{
    const microseconds time{step(onLink) + timePerCall};
    for (Drifting &drift : drifts) {
        drift.pass(time, state[drift.place]);
    }
    for (Counting &counter : counters) {
        counter.pass(time, state[counter.place]);
    }
}

void UnitTime::Drifting::pass(microseconds time, double &number)
{
    if (!started || number != shown) {
        started = true;
        exact = std::isfinite(number) ? number : end;
    }
    const double left{std::exp2(-static_cast<double>(time.count()) / halfTime)};
    exact = end + (exact - end) * left;
    shown = fitted(exact, kindHeldBy(place));
    number = shown;
}

void UnitTime::Counting::pass(microseconds time, double &number)
{
    sinceLast += time;
    number = fitted(number + static_cast<double>(sinceLast / interval), kindHeldBy(place));
    sinceLast %= interval;
}

} // namespace veltrix_simulator
