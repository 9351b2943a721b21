// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The faults that are in force: which of them hits a call.
#include "faults/activefaults.h"

#include "faults/applicability.h"
#include "faults/effects.h"
#include "veltrix_simulator/simulator.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace veltrix_simulator
{
namespace
{

/// Name of the random numbers of a fault. It says what the fault is for and not where it stands, so that
/// another fault or one more line in the scenario does not change the numbers. Every part of the name, "rule"
/// and the places in enumerations included, stays as it is: another name would change what scenarios play.
std::string streamName(const FaultRule &rule)
{
    std::string name{"rule"};
    for (const OperationId operation : rule.operations) {
        name.append(1, ' ').append(nameOf(operation).name);
    }
    const auto append = [&](const auto number) {
        name.append(1, '/').append(std::to_string(number));
    };
    append(static_cast<int>(rule.effect));
    append(rule.target.value_or(-1));
    append(rule.argument ? static_cast<int>(rule.argument->place) : -1);
    append(rule.from);
    append(rule.times);
    append(rule.every);
    name.push_back('/');
    return rule.after ? name.append(nameOf(*rule.after).name) : name;
}

[[noreturn]] void refuse(const FaultRule &rule, const std::string &reason)
{
    if (rule.origin.empty()) {
        throw std::invalid_argument{reason};
    }
    throw std::invalid_argument{rule.origin + ": " + reason};
}

void demandApplicable(const FaultRule &rule)
{
    if (rule.operations.empty()) {
        refuse(rule, "a fault needs an operation");
    }
    for (const OperationId operation : rule.operations) {
        if (const std::string reason = reasonAgainst(rule, operationOf(operation)); !reason.empty()) {
            refuse(rule, reason);
        }
    }
}

PlannedEffect effectOf(const FaultRule &rule, const Operation &operation, Random random)
{
    PlannedEffect planned{rule.effect, std::nullopt, false, rule.delay, random};
    const EffectRow &row = rowOf(rule.effect);
    if (row.answer != nullptr) {
        row.answer(planned, rule, operation);
    }
    // Only a fault that answers or refuses says what becomes of the outputs.
    planned.leavesOutputs =
        rule.leavesOutputs && (rule.effect == Effect::Answer || rule.effect == Effect::Refuse);
    return planned;
}

} // namespace

void ActiveFaults::start(std::uint64_t itsSeed)
{
    seed = itsSeed;
    clear();
}

void ActiveFaults::add(FaultRule rule)
{
    demandApplicable(rule);
    rule.from = std::max<std::size_t>(rule.from, 1);
    rule.every = std::max<std::size_t>(rule.every, 1);
    const std::string stream = streamName(rule);
    // Two equal faults get different random numbers.
    const auto isEqual = [&](const ActiveFault &earlier) {
        return streamName(earlier.rule) == stream;
    };
    const auto equals = std::count_if(faults.begin(), faults.end(), isEqual);
    const Random random{seed, stream + '/' + std::to_string(equals) + '/'};
    ActiveFault fault{std::move(rule), {}, random.forPart("chance"), random};
    for (const OperationId operation : fault.rule.operations) {
        fault.operations.set(static_cast<std::size_t>(operation));
    }
    faults.push_back(std::move(fault));
}

bool ActiveFaults::ActiveFault::hits(OperationId operation, int target, const NumberList &numbers)
{
    const bool waits{!afterWasCalled && rule.after};
    afterWasCalled = afterWasCalled || operation == rule.after;
    if (waits || (rule.target && *rule.target != target) ||
        !operations[static_cast<std::size_t>(operation)]) {
        return false;
    }
    if (rule.argument) {
        const auto &[place, minimum, maximum] = *rule.argument;
        if (place >= numbers.size() || !(numbers[place] >= minimum && numbers[place] <= maximum)) {
            return false;
        }
    }
    ++considered;
    const bool isCounted{considered >= rule.from &&
                         (rule.times == 0 || considered - rule.from < rule.times) &&
                         (considered - rule.from) % rule.every == 0};
    return isCounted && chance.share() < rule.probability;
}

std::optional<PlannedEffect> ActiveFaults::match(OperationId operation, int target, const NumberList &numbers)
{
    ActiveFault *last{nullptr};
    for (ActiveFault &fault : faults) {
        if (fault.hits(operation, target, numbers)) {
            last = &fault;
        }
    }
    if (last == nullptr) {
        return std::nullopt;
    }
    last->fired = true;
    return effectOf(last->rule, operationOf(operation),
                    last->hitting.forPart(std::to_string(last->considered)));
}

std::vector<std::string> ActiveFaults::unfired() const
{
    std::vector<std::string> origins;
    for (const ActiveFault &fault : faults) {
        if (!fault.fired && !fault.rule.origin.empty()) {
            origins.push_back(fault.rule.origin);
        }
    }
    return origins;
}

} // namespace veltrix_simulator
