// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The one place that every call of the contract passes.
#include "core.h"

#include <cstddef>

namespace veltrix_simulator
{

namespace
{

constexpr std::ptrdiff_t journalCapacity{200'000};

} // namespace

void Core::reset()
{
    journal.clear();
    journalEnabled = true;
    callsWhileNotOpen = 0;
    faults.clear();
}

void Core::forgetOldest()
{
    if (static_cast<std::ptrdiff_t>(journal.size()) >= journalCapacity) {
        journal.erase(journal.begin(), journal.begin() + journalCapacity / 2);
    }
}

} // namespace veltrix_simulator
