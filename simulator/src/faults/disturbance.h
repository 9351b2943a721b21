// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The surroundings of a call that a rule hits.
#pragma once

#include "faults/rules.h"
#include "faults/wrongvalues.h"
#include "units/state.h"

#include <optional>

namespace veltrix_simulator
{

/// While it lives, the surroundings that the effect of the hit asks for: late, wrong, forgetful, or none that
/// a call could work in. Without a hit they are as ever.
class Disturbance
{
public:
    Disturbance(State &itsState, const std::optional<Hit> &hit) : state{itsState}
    {
        if (hit) {
            begin(*hit);
        }
    }
    ~Disturbance() { state.storesAreLost = false; }
    Disturbance(const Disturbance &) = delete;
    Disturbance &operator=(const Disturbance &) = delete;

    /// Whether the call does its work in them.
    bool letsWork() const { return works; }

private:
    void begin(const Hit &hit);

    State &state;
    bool works{true};
    std::optional<WrongValues> wrongValues;
};

} // namespace veltrix_simulator
