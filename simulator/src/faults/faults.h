// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The faults that tests add, as rules.
#pragma once

#include "faults/rule.h"

namespace veltrix_simulator
{

/// The rule that a fault stands for. Throws std::invalid_argument when there is no such operation, or
/// an answer for all of them.
Rule ruleOf(Fault fault);

} // namespace veltrix_simulator
