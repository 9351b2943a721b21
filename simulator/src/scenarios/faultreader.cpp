// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads a fault of a scenario file.
#include "scenarios/faultreader.h"

#include "faults/applicability.h"
#include "faults/effects.h"
#include "operations/operations.h"
#include "output/wording.h"
#include "scenarios/limits.h"
#include "units/unitnames.h"
#include "veltrix_simulator/simulator.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>
#include <utility>

namespace veltrix_simulator
{
namespace
{

/// The keys of an effect belong to no other one.
const std::vector<Belonging> &belongings()
{
    static const std::vector<Belonging> list = [] {
        std::vector<Belonging> keys;
        for (const EffectRow &row : effectRows()) {
            for (const std::string_view key : {row.neededKey, row.possibleKey}) {
                if (!key.empty()) {
                    keys.push_back({key, row.name});
                }
            }
        }
        return keys;
    }();
    return list;
}

std::size_t readCall(const Entry &entry)
{
    return static_cast<std::size_t>(entry.integer(1, lastCallNumber));
}

constexpr Setting<ArgumentRange> argumentSettings[]{
    {"place",
     [](const Entry &entry, ArgumentRange &argument) {
         argument.place = static_cast<std::size_t>(entry.integer(1, 100)) - 1;
     }},
    {"minimum",
     [](const Entry &entry, ArgumentRange &argument) {
         argument.minimum = entry.number(-largestNumber, largestNumber);
     }},
    {"maximum",
     [](const Entry &entry, ArgumentRange &argument) {
         argument.maximum = entry.number(-largestNumber, largestNumber);
     }},
};

ArgumentRange readArgument(const Entry &entry)
{
    ArgumentRange argument{0, std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()};
    readTable(entry, argumentSettings, argument);
    entry.demandOneOf({"place"});
    entry.demandOneOf({"minimum", "maximum"});
    if (argument.minimum > argument.maximum) {
        entry.find("minimum")->fail("is above the maximum");
    }
    return argument;
}

[[noreturn]] void failUnknownOperation(const Entry &entry, const std::string &name)
{
    if (name.find('*') != std::string::npos) {
        entry.fail("fits no operation of the device: " + inQuotes(name) + "; the others take no *");
    }
    std::vector<std::string> names;
    for (const Operation &operation : allOperations()) {
        names.emplace_back(operation.name);
    }
    entry.fail("knows no operation " + inQuotes(name) + suggestion(name, names));
}

std::vector<Value> readAnswer(const Entry &entry)
{
    std::vector<Value> answer;
    for (const Entry &element : entry.elements()) {
        std::optional<Value> value = element.value();
        if (!value) {
            element.fail("takes true, false, numbers and texts");
        }
        answer.push_back(*std::move(value));
    }
    return answer;
}

constexpr Setting<FaultRule> faultSettings[]{
    // Which operations a pattern means depends on the rest of the rule.
    {"operation",
     [](const Entry & /*entry*/, FaultRule & /*rule*/) {
     }},
    {"operations",
     [](const Entry & /*entry*/, FaultRule & /*rule*/) {
     }},
    {"target",
     [](const Entry &entry, FaultRule &rule) {
         rule.target = chosen(entry, unitNames);
     }},
    {"argument",
     [](const Entry &entry, FaultRule &rule) {
         rule.argument = readArgument(entry);
     }},
    {"after",
     [](const Entry &entry, FaultRule &rule) {
         const std::string name = entry.text();
         if (name.find('*') != std::string::npos) {
             entry.fail("takes one operation, and no pattern");
         }
         const Operation *const operation = findOperation(name);
         if (operation == nullptr) {
             failUnknownOperation(entry, name);
         }
         rule.after = operation->id;
     }},
    {"once",
     [](const Entry &entry, FaultRule &rule) {
         if (!entry.boolean()) {
             entry.fail("takes true, or is left out");
         }
         rule.times = 1;
     }},
    {"onCall",
     [](const Entry &entry, FaultRule &rule) {
         rule.from = readCall(entry);
         rule.times = 1;
     }},
    {"fromCall",
     [](const Entry &entry, FaultRule &rule) {
         rule.from = readCall(entry);
     }},
    {"times",
     [](const Entry &entry, FaultRule &rule) {
         rule.times = readCall(entry);
     }},
    {"everyCall",
     [](const Entry &entry, FaultRule &rule) {
         rule.from = rule.every = readCall(entry);
     }},
    {"probability",
     [](const Entry &entry, FaultRule &rule) {
         rule.probability = entry.number(0, 1);
         if (rule.probability == 0) {
             entry.fail("takes a number above 0: a fault without a chance never happens");
         }
     }},
    {"effect",
     [](const Entry &entry, FaultRule &rule) {
         rule.effect = chosen(entry, effectRows());
     }},
    {"answer",
     [](const Entry &entry, FaultRule &rule) {
         rule.answer = readAnswer(entry);
     }},
    {"leavesOutputs",
     [](const Entry &entry, FaultRule &rule) {
         rule.leavesOutputs = entry.boolean();
     }},
    {"delayMilliseconds",
     [](const Entry &entry, FaultRule &rule) {
         rule.delay = entry.milliseconds(0, longestPart);
     }},
};

/// Fails where the rule does not fit the operation.
[[noreturn]] void failMisfit(const Entry &fault, const Entry &pattern, FaultRule rule,
                             const Operation &operation)
{
    const std::string reason = "does not fit: " + reasonAgainst(rule, operation);
    const std::optional<Entry> argument = fault.find("argument");
    rule.argument.reset();
    if (argument && reasonAgainst(rule, operation).empty()) {
        argument->fail(reason);
    }
    const std::optional<Entry> answer = fault.find("answer");
    (answer ? *answer : pattern).fail(reason);
}

/// Adds what the pattern means to the operations of the rule: the operation of this name or, when it has a
/// `*`, those of the device's that the rule can be applied to.
void appendOperations(const Entry &fault, const Entry &entry, FaultRule &rule)
{
    const std::string pattern = entry.text();
    std::vector<const Operation *> matching = operationsMatching(pattern);
    if (matching.empty()) {
        failUnknownOperation(entry, pattern);
    }
    const Operation &first{*matching.front()};
    matching.erase(std::remove_if(matching.begin(), matching.end(),
                                  [&](const Operation *each) { return !reasonAgainst(rule, *each).empty(); }),
                   matching.end());
    if (matching.empty()) {
        failMisfit(fault, entry, rule, first);
    }
    for (const Operation *const operation : matching) {
        if (std::find(rule.operations.begin(), rule.operations.end(), operation->id) ==
            rule.operations.end()) {
            rule.operations.push_back(operation->id);
        }
    }
}

void readOperations(const Entry &fault, FaultRule &rule)
{
    fault.refuseTwoOf({"operation", "operations"});
    fault.demandOneOf({"operation", "operations"});
    if (const std::optional<Entry> operation = fault.find("operation")) {
        appendOperations(fault, *operation, rule);
        return;
    }
    const Entry operations = *fault.find("operations");
    const std::vector<Entry> patterns = operations.elements();
    if (patterns.empty() || patterns.size() > mostPatterns) {
        operations.fail("takes a list of 1 to " + std::to_string(mostPatterns) + " operations");
    }
    for (const Entry &pattern : patterns) {
        appendOperations(fault, pattern, rule);
    }
}

} // namespace

FaultRule readFault(const Entry &fault)
{
    FaultRule rule;
    rule.origin = fault.origin();
    readTable(fault, faultSettings, rule);
    fault.demandOneOf({"effect"});
    fault.refuseTwoOf({"once", "onCall", "fromCall", "everyCall"});
    fault.refuseTwoOf({"once", "onCall", "everyCall", "times"});
    const EffectRow &effect = rowOf(rule.effect);
    fault.refuseStrangers("effect", belongings());
    if (!effect.neededKey.empty()) {
        fault.demandOneOf({std::string{effect.neededKey}});
    }
    readOperations(fault, rule);
    return rule;
}

std::vector<std::string> faultKeys()
{
    std::vector<std::string> keys;
    for (const std::string &key : keysOf(faultSettings)) {
        keys.push_back("fault." + key);
    }
    for (const std::string &key : keysOf(argumentSettings)) {
        keys.push_back("fault.argument." + key);
    }
    return keys;
}

} // namespace veltrix_simulator
