// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a fault does to one call.
#pragma once

#include "faults/faultrule.h"
#include "values/randomness.h"
#include "veltrix_simulator/simulator.h"

#include <chrono>
#include <optional>
#include <vector>

namespace veltrix_simulator
{

/// What happens to a call that a fault hits.
struct PlannedEffect
{
    Effect effect;
    /// What it answers in place of its work: the result, then what the call fills in.
    std::optional<std::vector<Value>> answer;
    bool leavesOutputs; ///< The out-parameters stay as the caller left them.
    std::chrono::microseconds delay;
    Random random; ///< Of this call alone.
};

} // namespace veltrix_simulator
