// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The surroundings of a call that a rule hits.
#pragma once

#include "rules.h"
#include "state.h"
#include "wrongvalues.h"

#include <optional>

namespace veltrix_simulator
{

/// Makes of the simulator for one call what the effect asks for: late, wrong, forgetful, unplugged.
class Disturbance
{
public:
    Disturbance(State &itsState, const Hit &hit);
    ~Disturbance();
    Disturbance(const Disturbance &) = delete;
    Disturbance &operator=(const Disturbance &) = delete;

    /// Whether the call does its work in them.
    bool letsWork() const { return works; }

private:
    State &state;
    bool works{true};
    std::optional<WrongValues> wrongValues;
};

} // namespace veltrix_simulator
