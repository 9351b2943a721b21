// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The surroundings of a call that a rule hits.
#include "faults/disturbance.h"

#include "time/link.h"

namespace veltrix_simulator
{

void Disturbance::begin(const Hit &hit)
{
    switch (hit.effect) {
    case Effect::Late:
        pause(hit.delay);
        break;
    case Effect::Wrong:
        wrongValues.emplace(state, hit.random);
        break;
    case Effect::LostOnPowerCycle:
        state.storesAreLost = true;
        break;
    case Effect::CableOut:
    case Effect::Refuse:
    case Effect::Answer:
    case Effect::Stuck:
    case Effect::Garbage:
        works = false;
        break;
    }
}

} // namespace veltrix_simulator
