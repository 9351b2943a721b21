// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The faults that tests have added, matched in one place.
#pragma once

#include "veltrix_simulator/simulator.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace veltrix_simulator
{

class Faults
{
public:
    /// As Simulator::addFault().
    void add(Fault fault);
    void clear() { active.clear(); }

    /// Counts one call and returns the fault that hits it; null when none does.
    const Fault *match(Interface interface, std::string_view operation)
    {
        return active.empty() ? nullptr : matchAny(interface, operation);
    }

private:
    struct Counted
    {
        Fault fault;
        std::size_t seen{0};
    };

    const Fault *matchAny(Interface interface, std::string_view operation);

    std::vector<Counted> active;
};

} // namespace veltrix_simulator
