// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One call as the journal's line.
#pragma once

#include "calls/objects.h"
#include "calls/parameter.h"
#include "operations/missing.h"

#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// Makes the line of one call, such as `getVideoMode() -> true {mode=2}`; `NOT OPEN: ` stands before a call
/// of a device that is not open, `NOT HELD: ` before one of a manager that is not held.
void writeJournalText(std::string &line, std::string_view operation, Missing missing, const Objects &objects,
                      Parameters parameters, const ResultPlace &result);

/// Writes the call alone: its operation and what it brings.
void writeCallText(std::string &line, std::string_view operation, const Objects &objects,
                   Parameters parameters);

} // namespace veltrix_simulator
