// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Whether a fault can be applied to an operation.
#include "faults/applicability.h"

#include "faults/effects.h"
#include "units/unitnames.h"
#include "values/value.h"
#include "veltrix_simulator/simulator.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace veltrix_simulator
{
namespace
{

std::string quotedName(const Operation &operation)
{
    return '"' + std::string{operation.name} + '"';
}

std::string reasonInEffect(const FaultRule &rule, const Operation &operation)
{
    const EffectRow &row = rowOf(rule.effect);
    return row.fits == nullptr || row.fits(operation) ? std::string{}
                                                      : quotedName(operation) + ' ' + std::string{row.misfit};
}

std::string reasonInAnswer(const FaultRule &rule, const Operation &operation)
{
    const std::vector<Value> &answer = rule.answer;
    const std::size_t expected{rule.leavesOutputs ? std::min<std::size_t>(operation.answer.size(), 1)
                                                  : operation.answer.size()};
    if (answer.size() != expected) {
        return "an answer of " + quotedName(operation) + " has " + std::to_string(expected) +
               " values, not " + std::to_string(answer.size());
    }
    for (std::size_t place{0}; place < answer.size(); ++place) {
        if (!convert(answer[place], operation.answer[place])) {
            return "value " + std::to_string(place + 1) + " of an answer of " + quotedName(operation) +
                   " is " + std::string{describe(operation.answer[place])};
        }
    }
    return {};
}

std::string reasonInArgument(const ArgumentRange &argument, const Operation &operation)
{
    const std::size_t count{operation.arguments.size()};
    if (argument.place >= count) {
        return count == 0 ? quotedName(operation) + " takes no numbers"
                          : quotedName(operation) + " takes " + std::to_string(count) +
                                (count == 1 ? " number" : " numbers") + ", so there is no number " +
                                std::to_string(argument.place + 1);
    }
    if (operation.arguments[argument.place] == Kind::Text) {
        return "argument " + std::to_string(argument.place + 1) + " of " + quotedName(operation) +
               " is a text, not a number";
    }
    // Negated, so that NaN is refused as well.
    if (!(argument.minimum <= argument.maximum)) {
        return "the range of the argument is empty";
    }
    const Kind kind{operation.arguments[argument.place]};
    if (!holdsAnyFrom(argument.minimum, argument.maximum, kind)) {
        return "argument " + std::to_string(argument.place + 1) + " of " + quotedName(operation) + " is " +
               std::string{describe(kind)} + ", which is never in this range";
    }
    return {};
}

std::string reasonInTrigger(const FaultRule &rule, const Operation &operation)
{
    if (rule.target && operation.interface != Interface::Device) {
        return quotedName(operation) + " is no operation of the device, and only those address a unit";
    }
    if (rule.target && !isUnit(*rule.target)) {
        return noSuchUnit(*rule.target);
    }
    if (!(rule.probability >= 0 && rule.probability <= 1)) {
        return "a probability goes from 0 to 1";
    }
    return rule.argument ? reasonInArgument(*rule.argument, operation) : std::string{};
}

} // namespace

std::string reasonAgainst(const FaultRule &rule, const Operation &operation)
{
    const std::string reason =
        rule.effect == Effect::Answer ? reasonInAnswer(rule, operation) : reasonInEffect(rule, operation);
    return reason.empty() ? reasonInTrigger(rule, operation) : reason;
}

} // namespace veltrix_simulator
