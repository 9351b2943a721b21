// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The rules that are in force: which of them hits a call.
#pragma once

#include "faults/rule.h"
#include "operations/operations.h"
#include "values/randomness.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veltrix_simulator
{

/// Why the rule cannot be applied to the operation, in words for the author of a scenario; empty when it can.
std::string objection(const Rule &rule, const Operation &operation);

/// What happens to a call that is hit.
struct Hit
{
    Effect effect;
    /// With effects that answer without doing the work: the result, then what the call fills in.
    std::optional<std::vector<Value>> answer;
    bool leavesOutputs;
    std::chrono::microseconds delay;
    Random random; ///< Of this hit alone.
};

class Rules
{
public:
    /// Forgets all rules; what those to come draw begins with the seed.
    void start(std::uint64_t itsSeed);

    /// The last rule added wins. Throws std::invalid_argument, beginning with the rule's origin, when it
    /// cannot be applied to all its operations.
    void add(Rule rule);

    void clear() { active.clear(); }
    bool isEmpty() const { return active.empty(); }

    /// Counts one call and says what happens to it; nothing when no rule hits it. The numbers are those
    /// that the call brings, NaN in the place of a text.
    std::optional<Hit> match(std::string_view operation, int target, const std::vector<double> &numbers);

    /// The origins of the rules that never had an effect, in the order in which they were added; those
    /// without an origin are not listed.
    std::vector<std::string> unfired() const;

private:
    struct Counted
    {
        /// Whether the rule considers the call, and whether the counts and the chance let it hit.
        bool isHitBy(const Operation &operation, int target, const std::vector<double> &numbers);

        Rule rule;
        std::vector<const Operation *> operations;
        std::string stream; ///< Name of what it draws.
        Random chance;
        std::size_t seen{0};
        bool afterSeen{false};
        bool fired{false};
    };

    std::vector<Counted> active;
    std::uint64_t seed{0};
};

} // namespace veltrix_simulator
