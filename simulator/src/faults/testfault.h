// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Makes a rule of the simulator out of a fault that a test adds.
#pragma once

#include "faults/faultrule.h"
#include "veltrix_simulator/simulator.h"

namespace veltrix_simulator
{

/// The rule that a test's fault stands for. Throws std::invalid_argument when there is no such operation, or
/// an answer for all of them.
FaultRule ruleOf(Fault fault);

} // namespace veltrix_simulator
