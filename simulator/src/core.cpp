// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The one place that every call of the contract passes.
#include "core.h"

namespace veltrix_simulator
{

void Core::reset()
{
    journal.clear();
    journalEnabled = true;
    callsWhileNotOpen = 0;
    faults.clear();
}

} // namespace veltrix_simulator
