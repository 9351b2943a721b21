// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The changes that a fault makes to the state during the work of one call.
#pragma once

#include "faults/effects.h"
#include "faults/plannedeffect.h"
#include "units/state.h"

namespace veltrix_simulator
{

/// From its construction to its destruction a fault's effect is on: values are wrong, or what is stored is
/// lost with the next power cycle. For a late call the constructor waits.
class AlteredState
{
public:
    AlteredState(State &state, const PlannedEffect &planned) : alterations{state, {}}
    {
        if (const auto alter = rowOf(planned.effect).alter) {
            alter(alterations, planned);
        }
    }
    ~AlteredState() { alterations.state.storesAreLost = false; }
    AlteredState(const AlteredState &) = delete;
    AlteredState &operator=(const AlteredState &) = delete;

private:
    Alterations alterations;
};

} // namespace veltrix_simulator
