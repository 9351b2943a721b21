// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Makes a rule of the simulator out of a fault that a test adds.
#include "faults/testfault.h"

#include "operations/operations.h"

#include <stdexcept>
#include <utility>

namespace veltrix_simulator
{

FaultRule ruleOf(Fault fault)
{
    FaultRule rule;
    rule.from = fault.from;
    rule.times = fault.times;
    rule.leavesOutputs = fault.leavesOutputs;
    if (fault.operation.empty()) {
        if (fault.answer) {
            throw std::invalid_argument{
                "an answer belongs to one operation; every operation can only be refused"};
        }
        for (const Operation *const operation : operationsMatching("*")) {
            rule.operations.push_back(operation->id);
        }
        return rule;
    }
    const Operation *const operation = findOperation(fault.operation);
    if (operation == nullptr) {
        throw std::invalid_argument{"the contract has no operation \"" + fault.operation + '"'};
    }
    // An operation that answers nothing refuses by doing nothing: its answer has no values.
    if (!fault.answer && operation->answer.empty()) {
        fault.answer.emplace();
    }
    if (fault.answer) {
        rule.effect = Effect::Answer;
        rule.answer = *std::move(fault.answer);
    }
    rule.operations.push_back(operation->id);
    return rule;
}

} // namespace veltrix_simulator
