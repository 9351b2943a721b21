// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Faults that one of the libraries is delivered with: what a check of it has to find.
#include "veltrix_simulator/simulator.h"

#include <limits>

using namespace veltrix_simulator;

namespace
{

using Answer = std::vector<Value>;

bool addFaults()
{
    constexpr double notANumber{std::numeric_limits<double>::quiet_NaN()};
    for (const Fault &fault : {
             Fault{"getVideoMode", 1, 0, Answer{true, std::int64_t{9}}},
             Fault{"getFrameRate", 1, 0, Answer{std::int64_t{15}}},
             Fault{"getTemperatures", 5, 1, Answer{true, notANumber, 314250.0}},
             Fault{"getPolarity", 2, 1, Answer{true}},
             Fault{"setClhe"},
             Fault{"setColorLut", 1, 0, Answer{true}},
             Fault{"setTint", 2},
         }) {
        Simulator::instance().addFault(fault);
    }
    return true;
}

[[maybe_unused]] const bool faultsAdded{addFaults()};

} // namespace
