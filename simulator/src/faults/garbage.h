// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Values that an operation can answer and that mean nothing.
#pragma once

#include "values/randomness.h"
#include "values/value.h"
#include "veltrix_simulator/simulator.h"

#include <vector>

namespace veltrix_simulator
{

/// One value of each kind: from its whole range, with its limits, NaN and the infinities drawn often.
std::vector<Value> garbage(const std::vector<Kind> &kinds, Random &random);

} // namespace veltrix_simulator
