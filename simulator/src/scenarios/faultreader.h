// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads a fault of a scenario file.
#pragma once

#include "faults/faultrule.h"
#include "scenarios/entry.h"

#include <string>
#include <vector>

namespace veltrix_simulator
{

/// The fault of one `[[fault]]`; throws ScenarioError.
FaultRule readFault(const Entry &fault);

/// The keys of a fault, such as "fault.onCall".
std::vector<std::string> faultKeys();

} // namespace veltrix_simulator
