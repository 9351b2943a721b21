// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The state as a fault wants it during the work of one call.
#pragma once

#include "faults/effects.h"
#include "faults/plannedeffect.h"
#include "units/state.h"

namespace veltrix_simulator
{

/// While it lives, the state is as the effect of a fault wants it: other values, or stores that do not last.
/// What takes longer does so when it is made.
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
