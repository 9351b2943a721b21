// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The faults that tests have added, matched in one place.
#include "faults.h"

#include "operations.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

namespace veltrix_simulator
{
namespace
{

/// The answer as the operation holds it.
std::vector<Value> convertAnswer(const Operation &operation, const std::vector<Value> &answer,
                                 bool resultAlone)
{
    const std::string name{operation.name};
    const std::size_t expected{resultAlone ? std::min<std::size_t>(operation.answer.size(), 1)
                                           : operation.answer.size()};
    if (answer.size() != expected) {
        throw std::invalid_argument{"an answer of \"" + name + "\" has " + std::to_string(expected) +
                                    " values, not " + std::to_string(answer.size())};
    }
    std::vector<Value> converted;
    for (std::size_t place{0}; place < answer.size(); ++place) {
        std::optional<Value> value = convert(answer[place], operation.answer[place]);
        if (!value) {
            throw std::invalid_argument{"value " + std::to_string(place + 1) + " of an answer of \"" + name +
                                        "\" is " + std::string{describe(operation.answer[place])}};
        }
        converted.push_back(*std::move(value));
    }
    return converted;
}

} // namespace

void Faults::add(Fault fault)
{
    const Operation *const operation = findOperation(fault.operation);
    if (operation == nullptr && !fault.operation.empty()) {
        throw std::invalid_argument{"the contract has no operation \"" + fault.operation + '"'};
    }
    if (fault.answer && operation == nullptr) {
        throw std::invalid_argument{
            "an answer belongs to one operation; every operation can only be refused"};
    }
    if (fault.answer) {
        fault.answer = convertAnswer(*operation, *fault.answer, fault.leavesOutputs);
    }
    fault.from = std::max<std::size_t>(fault.from, 1);
    active.push_back({std::move(fault)});
}

const Fault *Faults::matchAny(Interface interface, std::string_view operation)
{
    const Fault *hit{nullptr};
    for (Counted &counted : active) {
        const Fault &fault = counted.fault;
        if (fault.operation.empty() ? interface != Interface::Device : fault.operation != operation) {
            continue;
        }
        ++counted.seen;
        if (counted.seen >= fault.from && (fault.times == 0 || counted.seen - fault.from < fault.times)) {
            hit = &fault;
        }
    }
    return hit;
}

} // namespace veltrix_simulator
