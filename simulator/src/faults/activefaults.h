// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The faults that are in force: which of them hits a call.
#pragma once

#include "faults/faultrule.h"
#include "faults/plannedeffect.h"
#include "operations/operations.h"
#include "values/numberlist.h"
#include "values/randomness.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace veltrix_simulator
{

class ActiveFaults
{
public:
    /// Forgets all faults. The seed settles the random numbers of those that are added from now on.
    void start(std::uint64_t itsSeed);

    /// The last fault added wins. Throws std::invalid_argument, beginning with the fault's origin, when it
    /// cannot be applied to all its operations.
    void add(FaultRule rule);

    void clear() { faults.clear(); }
    bool isEmpty() const { return faults.empty(); }

    /// Counts one call and says what happens to it; nothing when no fault hits it. The numbers are those
    /// that the call brings, NaN in the place of a text.
    std::optional<PlannedEffect> match(OperationId operation, int target, const NumberList &numbers);

    /// The origins of the faults that never happened, in the order in which they were added; those without
    /// an origin are not listed.
    std::vector<std::string> unfired() const;

private:
    /// A fault with what it has counted so far.
    struct ActiveFault
    {
        /// Counts the call if the fault considers it. True when its counts and its chance let it hit.
        bool hits(OperationId operation, int target, const NumberList &numbers);

        FaultRule rule;
        std::bitset<static_cast<std::size_t>(OperationId::count)> operations;
        Random chance;  ///< Whether it hits.
        Random hitting; ///< What a hit answers; each hit, by the number of the call, has its own part.
        std::size_t considered{0};
        bool afterWasCalled{false};
        bool fired{false};
    };

    std::vector<ActiveFault> faults;
    std::uint64_t seed{0};
};

} // namespace veltrix_simulator
