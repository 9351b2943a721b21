// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The effects of faults, one row each: which operations they fit, and what they do to a call.
#include "faults/effects.h"

#include "faults/garbage.h"
#include "time/link.h"
#include "values/inorder.h"
#include "values/value.h"
#include "veltrix_simulator/simulator.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace veltrix_simulator
{
namespace
{

bool isOfDevice(const Operation &operation)
{
    return operation.interface == Interface::Device;
}

bool answersSomething(const Operation &operation)
{
    return !operation.answer.empty();
}

bool readsNumbers(const Operation &operation)
{
    return readsValues(operation) && operation.answer.front() != Kind::Text;
}

void answerAsWritten(PlannedEffect &planned, const FaultRule &rule, const Operation &operation)
{
    std::vector<Value> converted;
    for (std::size_t place{0}; place < rule.answer.size(); ++place) {
        if (auto value = convert(rule.answer[place], operation.answer[place])) {
            converted.push_back(*std::move(value));
        }
    }
    planned.answer = std::move(converted);
}

void acknowledge(PlannedEffect &planned, const FaultRule & /*rule*/, const Operation & /*operation*/)
{
    planned.answer = {true};
}

void answerGarbage(PlannedEffect &planned, const FaultRule & /*rule*/, const Operation &operation)
{
    planned.answer = garbage(operation.answer, planned.random);
}

void pullCable(State &state)
{
    state.cableOut = true;
}

void makeValuesWrong(Alterations &alterations, const PlannedEffect &planned)
{
    alterations.wrongValues.emplace(alterations.state, planned.random);
}

void takeLonger(Alterations & /*alterations*/, const PlannedEffect &planned)
{
    pause(planned.delay);
}

void loseStores(Alterations &alterations, const PlannedEffect & /*planned*/)
{
    alterations.state.storesAreLost = true;
}

constexpr EffectRows rows{{
    {Effect::Refuse, "refuse", answersSomething, "answers nothing, so it cannot refuse"},
    {Effect::Answer, "answer", nullptr, "", answerAsWritten, nullptr, nullptr, "answer", "leavesOutputs"},
    {Effect::Stuck, "stuck", isCommand, "changes nothing of a unit, so nothing can be stuck", acknowledge},
    {Effect::Wrong, "wrong", readsNumbers, "reads no number, so nothing that it reads can be wrong", nullptr,
     makeValuesWrong},
    {Effect::Garbage, "garbage", answersSomething, "answers nothing, so it cannot answer garbage",
     answerGarbage},
    {Effect::Late, "late", isOfDevice, "is no operation of the device, and only those can be late", nullptr,
     takeLonger, nullptr, "delayMilliseconds"},
    {Effect::LostOnPowerCycle, "lostOnPowerCycle", storesValues,
     "sets no value of a unit, so nothing can be lost", nullptr, loseStores},
    {Effect::CableOut, "cableOut", isOfDevice, "is no operation of the device, and only those use the cable",
     nullptr, nullptr, pullCable},
}};

static_assert(inOrder(rows));

} // namespace

const EffectRows &effectRows()
{
    return rows;
}

} // namespace veltrix_simulator
