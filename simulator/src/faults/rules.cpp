// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The rules that are in force: which of them hits a call.
#include "faults/rules.h"

#include "faults/garbage.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace veltrix_simulator
{
namespace
{

/// What the rule's draws are named after: what it is for, not where it stands, so that neither another rule
/// nor a line more in the scenario changes them.
std::string streamName(const Rule &rule)
{
    std::string name{"rule"};
    for (const std::string &operation : rule.operations) {
        name.append(1, ' ').append(operation);
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
    return name + '/' + rule.after;
}

[[noreturn]] void refuse(const Rule &rule, const std::string &reason)
{
    throw std::invalid_argument{rule.origin.empty() ? reason : rule.origin + ": " + reason};
}

std::vector<const Operation *> operationsOf(const Rule &rule)
{
    if (rule.operations.empty()) {
        refuse(rule, "a fault needs an operation");
    }
    std::vector<const Operation *> operations;
    for (const std::string &name : rule.operations) {
        const Operation *const operation = findOperation(name);
        if (operation == nullptr) {
            refuse(rule, "the contract has no operation \"" + name + '"');
        }
        if (const std::string reason = objection(rule, *operation); !reason.empty()) {
            refuse(rule, reason);
        }
        operations.push_back(operation);
    }
    return operations;
}

std::vector<Value> convertedAnswer(const Rule &rule, const Operation &operation)
{
    std::vector<Value> converted;
    for (std::size_t place{0}; place < rule.answer.size(); ++place) {
        if (auto value = convert(rule.answer[place], operation.answer[place])) {
            converted.push_back(*std::move(value));
        }
    }
    return converted;
}

Hit hitOf(const Rule &rule, const Operation &operation, Random random)
{
    Hit hit{rule.effect, std::nullopt, false, rule.delay, random};
    switch (rule.effect) {
    case Effect::Answer:
        hit.answer = convertedAnswer(rule, operation);
        hit.leavesOutputs = rule.leavesOutputs;
        break;
    case Effect::Refuse:
        hit.leavesOutputs = rule.leavesOutputs;
        break;
    case Effect::Stuck:
        hit.answer = {true};
        break;
    case Effect::Garbage:
        hit.answer = garbage(operation.answer, hit.random);
        break;
    case Effect::Wrong:
    case Effect::Late:
    case Effect::LostOnPowerCycle:
    case Effect::CableOut:
        break;
    }
    return hit;
}

} // namespace

void Rules::start(std::uint64_t itsSeed)
{
    seed = itsSeed;
    clear();
}

void Rules::add(Rule rule)
{
    std::vector<const Operation *> operations = operationsOf(rule);
    rule.from = std::max<std::size_t>(rule.from, 1);
    rule.every = std::max<std::size_t>(rule.every, 1);
    std::string stream = streamName(rule);
    // Rules that are equal draw differently all the same.
    const auto isEqual = [&](const Counted &earlier) {
        return streamName(earlier.rule) == stream;
    };
    stream += '/' + std::to_string(std::count_if(active.begin(), active.end(), isEqual));
    const Random chance{seed, stream + "/chance"};
    active.push_back({std::move(rule), std::move(operations), std::move(stream), chance});
}

bool Rules::Counted::isHitBy(const Operation &operation, int target, const std::vector<double> &numbers)
{
    const bool waits{!afterSeen && !rule.after.empty()};
    afterSeen = afterSeen || operation.name == rule.after;
    if (waits || (rule.target && *rule.target != target) ||
        std::find(operations.begin(), operations.end(), &operation) == operations.end()) {
        return false;
    }
    if (rule.argument) {
        const auto &[place, minimum, maximum] = *rule.argument;
        if (place >= numbers.size() || !(numbers[place] >= minimum && numbers[place] <= maximum)) {
            return false;
        }
    }
    ++seen;
    const bool isCounted{seen >= rule.from && (rule.times == 0 || seen - rule.from < rule.times) &&
                         (seen - rule.from) % rule.every == 0};
    return isCounted && chance.share() < rule.probability;
}

std::optional<Hit> Rules::match(std::string_view operation, int target, const std::vector<double> &numbers)
{
    const Operation *const called = findOperation(operation);
    Counted *last{nullptr};
    for (Counted &counted : active) {
        if (called != nullptr && counted.isHitBy(*called, target, numbers)) {
            last = &counted;
        }
    }
    if (last == nullptr) {
        return std::nullopt;
    }
    last->fired = true;
    return hitOf(last->rule, *called, Random{seed, last->stream + '/' + std::to_string(last->seen)});
}

std::vector<std::string> Rules::unfired() const
{
    std::vector<std::string> origins;
    for (const Counted &counted : active) {
        if (!counted.fired && !counted.rule.origin.empty()) {
            origins.push_back(counted.rule.origin);
        }
    }
    return origins;
}

} // namespace veltrix_simulator
