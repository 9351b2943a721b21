// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The way that every call of the contract goes.
#include "calls/callpath.h"

#include "calls/journaltext.h"
#include "calls/numbersat.h"
#include "calls/traceline.h"
#include "faults/alteredstate.h"
#include "faults/effects.h"
#include "recordings/recordedcall.h"
#include "recordings/recording.h"
#include "units/recordmembers.h"
#include "units/unitnames.h"
#include "values/value.h"

#include <chrono>
#include <variant>

namespace veltrix_simulator
{
namespace
{

constexpr std::ptrdiff_t journalCapacity{200'000};

/// Hands out the values of an answer one after the other.
class AnswerReader
{
public:
    explicit AnswerReader(const std::vector<Value> &itsAnswer) : answer{itsAnswer} {}

    const Value &next() { return answer[place++]; }

    void fill(const NumbersToFill &numbers)
    {
        for (const Member &member : numbers.members()) {
            numbers.set(member, toNumber(next()));
        }
    }

private:
    const std::vector<Value> &answer;
    std::size_t place{0};
};

} // namespace

void CallPath::start(const Link &itsLink, const Life &life, const std::vector<FaultRule> &rules,
                     std::uint64_t seed)
{
    calls.clear();
    journalEnabled = true;
    callsNotOpen = 0;
    link = LinkTime{itsLink, seed};
    unitTime = UnitTime{life};
    strangeTarget.reset();
    faults.start(seed);
    for (const FaultRule &rule : rules) {
        faults.add(rule);
    }
}

void CallPath::pass(OperationId operation, Parameters parameters, const ResultPlace &result, const Work &work,
                    const Lesson &learn)
{
    const int target{state.target};
    const CallTime begun{trace.isOn() ? CallTime::now() : CallTime{}};
    const bool isOfDevice{nameOf(operation).interface == Interface::Device};
    const Missing missing{missingFor(operation, state.deviceOpen, state.managerHeld)};
    const bool isOpen{missing == Missing::Nothing};
    const bool isAnswered{isOpen && (!isOfDevice || deviceAnswers())};
    callsNotOpen += isOpen ? 0 : 1;

    if (isAnswered && player.isOn() && operation != OperationId::log) {
        play(operation, parameters, result, work, learn);
    } else {
        simulate(operation, parameters, result, work, isAnswered);
    }

    if (journalEnabled) {
        keepInJournal(operation, target, missing, parameters, result);
    }
    if (trace.isOn()) {
        writeToTrace(operation, target, missing, parameters, result, begun);
    }
}

void CallPath::simulate(OperationId operation, Parameters parameters, const ResultPlace &result,
                        const Work &work, bool isAnswered)
{
    std::optional<PlannedEffect> planned;
    if (isAnswered && !faults.isEmpty()) {
        planned = plan(operation, parameters);
    }
    if (nameOf(operation).interface == Interface::Device && state.deviceOpen) {
        letTimePass();
    }
    const bool isAllThere{prepare(parameters, planned && planned->leavesOutputs)};
    if (isAnswered && isAllThere) {
        if (planned) {
            workUnder(*planned, parameters, result, work);
        } else {
            work();
        }
    }
}

void CallPath::play(OperationId operation, Parameters parameters, const ResultPlace &result, const Work &work,
                    const Lesson &learn)
{
    const Operation &description = operationOf(operation);
    writeCallText(callText, description.name, objects, parameters);
    const RecordedAnswer *const answer{
        player.answerTo(description, strangeTarget.value_or(state.target), callText)};
    if (answer != nullptr) {
        playAnswer(*answer, operation, parameters, result, work);
        const std::vector<Value> readings{readingsOf(description, answer->answer)};
        const bool isKnown{readsValues(description) && answer->succeeded && !readings.empty() &&
                           !strangeTarget};
        if (isKnown && !learn(readings)) {
            work();
        }
    } else if (player.refuses(description)) {
        prepare(parameters, false);
    } else {
        if (operation == OperationId::setTarget || operation == OperationId::openDevice) {
            strangeTarget.reset();
        }
        state.storedBy = StoredBy::Beyond;
        simulate(operation, parameters, result, work, true);
        state.storedBy = StoredBy::Program;
    }
}

void CallPath::playAnswer(const RecordedAnswer &answer, OperationId operation, Parameters parameters,
                          const ResultPlace &result, const Work &work)
{
    player.passTime(answer);
    const bool isAllThere{prepare(parameters, !answer.hasOutputs)};
    const Role role{operationOf(operation).role};
    // The state follows what the device did. The files of saved parameters and of bad pixels do not: the
    // recording does not say what was in them.
    const bool isFollowed{role == Role::Stores || role == Role::Other || operation == OperationId::setTarget};
    if (answer.succeeded && operation == OperationId::setTarget) {
        const auto target = static_cast<std::int32_t>(numbersOf(parameters)[0]);
        strangeTarget = isUnit(target) ? std::nullopt : std::optional{target};
    } else if (operation == OperationId::openDevice) {
        strangeTarget.reset();
    }
    const bool isOfAUnit{nameOf(operation).interface != Interface::Device || !strangeTarget};
    if (answer.succeeded && isFollowed && isAllThere && isOfAUnit) {
        state.storedBy = StoredBy::Recording;
        work();
        state.storedBy = StoredBy::Program;
    }
    for (const auto &[row, number] : answer.words) {
        state.words.*row->word = number;
    }
    fillInAnswer(answer.answer, !answer.hasOutputs, parameters, result);
}

void CallPath::workUnder(const PlannedEffect &planned, Parameters parameters, const ResultPlace &result,
                         const Work &work)
{
    if (planned.answer) {
        fillInAnswer(*planned.answer, planned.leavesOutputs, parameters, result);
    } else if (rowOf(planned.effect).works()) {
        const AlteredState altered{state, planned};
        work();
    }
}

void CallPath::passTime()
{
    const std::chrono::microseconds onLink = link.next(state.linkBaudRate());
    pause(onLink);
    unitTime.pass(onLink, state);
}

std::optional<PlannedEffect> CallPath::plan(OperationId operation, Parameters parameters)
{
    std::optional<PlannedEffect> planned = faults.match(operation, state.target, numbersOf(parameters));
    if (planned) {
        if (const auto strike = rowOf(planned->effect).strike) {
            strike(state);
        }
    }
    return planned;
}

void CallPath::fillInAnswer(const std::vector<Value> &answer, bool leavesOutputs, Parameters parameters,
                            const ResultPlace &result)
{
    AnswerReader reader{answer};
    if (const auto *const numbers = std::get_if<NumbersToFill>(&result.content())) {
        reader.fill(*numbers);
    } else if (const auto *const text = std::get_if<ResultPlace::Text>(&result.content())) {
        heldText = std::get<std::string>(reader.next());
        *text->place = heldText.c_str();
    } else if (const auto *const object = std::get_if<ResultPlace::Object>(&result.content())) {
        object->write(object->place, std::get<bool>(reader.next()) ? &objects : nullptr);
    }
    if (leavesOutputs) {
        return;
    }
    for (const Parameter &parameter : parameters) {
        if (const NumbersToFill *const filled = parameter.filledMemory()) {
            reader.fill(*filled);
        }
    }
}

void CallPath::keepInJournal(OperationId operation, int target, Missing missing, Parameters parameters,
                             const ResultPlace &result)
{
    // Nobody clears the journal of a program that runs for days.
    if (static_cast<std::ptrdiff_t>(calls.size()) >= journalCapacity) {
        calls.erase(calls.begin(), calls.begin() + journalCapacity / 2);
    }
    const OperationName &name = nameOf(operation);
    writeJournalText(line, name.name, missing, objects, parameters, result);
    calls.push_back({name.interface, std::string{name.name}, target, line});
}

void CallPath::writeToTrace(OperationId operation, int target, Missing missing, Parameters parameters,
                            const ResultPlace &result, const CallTime &begun)
{
    const OperationName &name = nameOf(operation);
    writeTraceLine(line, begun, {name.interface, name.name, target, missing}, objects, parameters, result);
    trace.write(line);
}

} // namespace veltrix_simulator
