// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Whether a rule fits an operation.
#pragma once

#include "operations.h"
#include "rule.h"

#include <string>
#include <vector>

namespace veltrix_simulator
{

/// Why the rule cannot be applied to the operation, in words for the author of a scenario; empty when it can.
std::string objection(const Rule &rule, const Operation &operation);

/// The answer of a rule without an objection as the operation holds it.
std::vector<Value> convertedAnswer(const Rule &rule, const Operation &operation);

} // namespace veltrix_simulator
