// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One fault: what goes wrong with which calls, and when.
#pragma once

#include "operations/operations.h"
#include "veltrix_simulator/simulator.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace veltrix_simulator
{

/// What happens to a call that a fault hits. Each has a row in effects.cpp. A new one stands last, before
/// count: the random numbers of a fault are named after the place of its effect, and another place would
/// change what scenarios play.
enum class Effect
{
    Refuse,           ///< It does nothing; its result and out-parameters are zero.
    Answer,           ///< It does nothing and answers what the fault says.
    Stuck,            ///< It says that it worked and does nothing: the old value goes on being answered.
    Wrong,            ///< It works, and what it reads is a plausible other value.
    Garbage,          ///< It does nothing and answers any values of its types, drawn from the seed.
    Late,             ///< It works, and takes the fault's delay longer.
    LostOnPowerCycle, ///< It works, and what it set is as before when the device is opened again.
    CableOut,         ///< From this call on every device operation refuses, until the device is opened again.
    count,
};

/// Restricts a fault to calls with one numeric argument in a range.
struct ArgumentRange
{
    /// Counted from 0 among the numbers that the call brings, a record's members included.
    std::size_t place{0};
    double minimum{0};
    double maximum{0};
};

/// One fault. A call is considered when its operation is listed, the target and the argument fit and the
/// operation `after` has been called before; the counts below count the calls that are considered. Calls that
/// do not reach the device, because it is not open, is silent or has lost its cable, are not.
struct FaultRule
{
    std::vector<OperationId> operations; ///< Not empty.
    std::optional<int> target; ///< Only while this unit is addressed: 0 the Blend Unit, 1 the camera.
    std::optional<ArgumentRange> argument;
    std::optional<OperationId> after; ///< Only once this operation has been called since the start.

    std::size_t from{1};     ///< First considered call that can be hit; 1 is the next.
    std::size_t times{0};    ///< How many calls from there on can be hit; 0: all.
    std::size_t every{1};    ///< Of those every so many, the first of them included; 1: all.
    double probability{1.0}; ///< Chance from 0 to 1 of those to be hit, drawn from the seed.

    Effect effect{Effect::Refuse};
    /// With Effect::Answer: the result, if the operation has one, then the members of its out-parameters or
    /// of its record in order.
    std::vector<Value> answer;
    /// With Effect::Answer: the answer is the result alone, and the out-parameters stay as the caller left
    /// them; with Effect::Refuse they stay as well.
    bool leavesOutputs{false};
    std::chrono::microseconds delay{0}; ///< With Effect::Late.
    std::string origin;                 ///< Where it was written, such as `flaky.toml:12`; for reports.
};

} // namespace veltrix_simulator
