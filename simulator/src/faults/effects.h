// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The effects of faults, one row each: which operations they fit, and what they do to a call.
#pragma once

#include "faults/faultrule.h"
#include "faults/plannedeffect.h"
#include "faults/wrongvalues.h"
#include "operations/operations.h"
#include "units/state.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace veltrix_simulator
{

/// What an effect changes before the work of a call, and takes back after it.
struct Alterations
{
    State &state;
    std::optional<WrongValues> wrongValues;
};

struct EffectRow
{
    Effect id;
    std::string_view name; ///< In a scenario.
    /// Whether the effect can happen to the operation; null: to every one.
    bool (*fits)(const Operation &operation);
    /// Why it cannot happen to an operation, for the author of a scenario; follows the operation's name.
    std::string_view misfit;
    /// Settles what the call answers in place of its work. Null: its work answers or, without any, zeros.
    void (*answer)(PlannedEffect &planned, const FaultRule &rule, const Operation &operation){nullptr};
    /// Changes the state while the call does its work; null: the work is not done.
    void (*alter)(Alterations &alterations, const PlannedEffect &planned){nullptr};
    /// Changes the state as soon as the call is hit, before its time passes; null: nothing.
    void (*strike)(State &state){nullptr};
    // The keys of a scenario's fault that belong to this effect alone; empty: none.
    std::string_view neededKey{};   ///< Such a fault must have it.
    std::string_view possibleKey{}; ///< It may have it.

    constexpr bool works() const { return alter != nullptr; }
};

using EffectRows = std::array<EffectRow, static_cast<std::size_t>(Effect::count)>;

/// The rows, in the order of Effect.
const EffectRows &effectRows();

inline const EffectRow &rowOf(Effect effect)
{
    return effectRows()[static_cast<std::size_t>(effect)];
}

} // namespace veltrix_simulator
