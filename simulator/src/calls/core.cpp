// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The one place that every call of the contract passes.
#include "calls/core.h"

#include <chrono>
#include <cstddef>

namespace veltrix_simulator
{

namespace
{

constexpr std::ptrdiff_t journalCapacity{200'000};

} // namespace

void Core::start(const Scenario &scenario)
{
    journal.clear();
    journalEnabled = true;
    callsWhileNotOpen = 0;
    link = LinkTime{scenario.link, scenario.seed};
    unitTime = UnitTime{scenario.life};
    rules.start(scenario.seed);
    for (const Rule &rule : scenario.rules) {
        rules.add(rule);
    }
}

void Core::passTime()
{
    const std::chrono::microseconds onLink = link.next(state.linkBaudRate());
    pause(onLink);
    unitTime.pass(onLink, state);
}

std::optional<Hit> Core::hitOf(const char *operation)
{
    std::optional<Hit> hit = rules.match(operation, state.target, numbers);
    state.cableOut = state.cableOut || (hit && hit->effect == Effect::CableOut);
    return hit;
}

void Core::forgetOldest()
{
    if (static_cast<std::ptrdiff_t>(journal.size()) >= journalCapacity) {
        journal.erase(journal.begin(), journal.begin() + journalCapacity / 2);
    }
}

} // namespace veltrix_simulator
