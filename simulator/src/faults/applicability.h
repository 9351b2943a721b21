// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Whether a fault can be applied to an operation.
#pragma once

#include "faults/faultrule.h"
#include "operations/operations.h"

#include <string>

namespace veltrix_simulator
{

/// Why the fault cannot be applied to the operation, in words for the author of a scenario; empty when it
/// can.
std::string reasonAgainst(const FaultRule &rule, const Operation &operation);

} // namespace veltrix_simulator
