// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Whether a rule fits an operation.
#include "faults/rules.h"

#include <algorithm>
#include <cstddef>

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

/// What an effect asks of an operation, and how an author reads that it is not so.
struct Demand
{
    Effect effect;
    bool (*isMet)(const Operation &operation);
    const char *otherwise;
};

constexpr Demand demands[]{
    {Effect::Refuse, answersSomething, "answers nothing, so it cannot refuse"},
    {Effect::Stuck, isCommand, "changes nothing of a unit, so nothing can be stuck"},
    {Effect::Wrong, readsNumbers, "reads no number, so nothing that it reads can be wrong"},
    {Effect::Garbage, answersSomething, "answers nothing, so it cannot answer garbage"},
    {Effect::Late, isOfDevice, "is no operation of the device, and only those can be late"},
    {Effect::LostOnPowerCycle, storesValues, "sets no value of a unit, so nothing can be lost"},
    {Effect::CableOut, isOfDevice, "is no operation of the device, and only those use the cable"},
};

std::string inQuotes(const Operation &operation)
{
    return '"' + std::string{operation.name} + '"';
}

std::string objectionToEffect(const Rule &rule, const Operation &operation)
{
    for (const Demand &demand : demands) {
        if (demand.effect == rule.effect && !demand.isMet(operation)) {
            return inQuotes(operation) + ' ' + demand.otherwise;
        }
    }
    return {};
}

std::string objectionToAnswer(const Rule &rule, const Operation &operation)
{
    const std::vector<Value> &answer = rule.answer;
    const std::size_t expected{rule.leavesOutputs ? std::min<std::size_t>(operation.answer.size(), 1)
                                                  : operation.answer.size()};
    if (answer.size() != expected) {
        return "an answer of " + inQuotes(operation) + " has " + std::to_string(expected) + " values, not " +
               std::to_string(answer.size());
    }
    for (std::size_t place{0}; place < answer.size(); ++place) {
        if (!convert(answer[place], operation.answer[place])) {
            return "value " + std::to_string(place + 1) + " of an answer of " + inQuotes(operation) + " is " +
                   std::string{describe(operation.answer[place])};
        }
    }
    return {};
}

std::string objectionToArgument(const ArgumentRange &argument, const Operation &operation)
{
    const std::size_t count{operation.arguments.size()};
    if (argument.place >= count) {
        return count == 0 ? inQuotes(operation) + " takes no numbers"
                          : inQuotes(operation) + " takes " + std::to_string(count) +
                                (count == 1 ? " number" : " numbers") + ", so there is no number " +
                                std::to_string(argument.place + 1);
    }
    if (operation.arguments[argument.place] == Kind::Text) {
        return "argument " + std::to_string(argument.place + 1) + " of " + inQuotes(operation) +
               " is a text, not a number";
    }
    // Written so that NaN is no range.
    if (!(argument.minimum <= argument.maximum)) {
        return "the range of the argument is empty";
    }
    const Kind kind{operation.arguments[argument.place]};
    if (!holdsAnyFrom(argument.minimum, argument.maximum, kind)) {
        return "argument " + std::to_string(argument.place + 1) + " of " + inQuotes(operation) + " is " +
               std::string{describe(kind)} + ", which is never in this range";
    }
    return {};
}

std::string objectionToTrigger(const Rule &rule, const Operation &operation)
{
    if (rule.target && !isOfDevice(operation)) {
        return inQuotes(operation) + " is no operation of the device, and only those address a unit";
    }
    if (rule.target && *rule.target != 0 && *rule.target != 1) {
        return "there is no unit " + std::to_string(*rule.target) + ", only 0 and 1";
    }
    if (!rule.after.empty() && findOperation(rule.after) == nullptr) {
        return "the contract has no operation \"" + rule.after + '"';
    }
    if (!(rule.probability >= 0 && rule.probability <= 1)) {
        return "a probability goes from 0 to 1";
    }
    return rule.argument ? objectionToArgument(*rule.argument, operation) : std::string{};
}

} // namespace

std::string objection(const Rule &rule, const Operation &operation)
{
    std::string found = rule.effect == Effect::Answer ? objectionToAnswer(rule, operation)
                                                      : objectionToEffect(rule, operation);
    return found.empty() ? objectionToTrigger(rule, operation) : found;
}

} // namespace veltrix_simulator
