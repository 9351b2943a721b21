// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The one place that every call of the contract passes.
#pragma once

#include "calls/calljson.h"
#include "calls/calltext.h"
#include "calls/trace.h"
#include "faults/disturbance.h"
#include "faults/rules.h"
#include "time/life.h"
#include "time/link.h"
#include "units/state.h"

#include <cstddef>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace veltrix_simulator
{

/// Counts the calls, lets the time of the link and of the units pass, applies the rules, keeps the journal
/// and writes the trace, for all operations alike.
class Core
{
public:
    Core(State &itsState, Objects itsObjects) : state{itsState}, objects{std::move(itsObjects)} {}

    /// Power-on: an empty journal, switched on, and the scenario's link, life and rules. Throws
    /// std::invalid_argument when one of them cannot be played.
    void start(const Scenario &scenario);

    /// Whether calls of the device wait or make the units' values go on.
    bool takesTime() const { return link.passes() || unitTime.passes(); }

    /// Runs one operation. The parameters are the operation's own, in order, an out-parameter that is a
    /// number as Out. The action does the work; it runs only when the call reaches what it was made on,
    /// nothing is null that must not be and no rule is in the way. What it has to fill in is zero before.
    template <typename Action, typename... Parameters>
    std::invoke_result_t<Action> call(Interface interface, const char *operation, const Action &action,
                                      const Parameters &...parameters)
    {
        struct Nothing
        {
        };
        using ActionResult = std::invoke_result_t<Action>;
        using Result = std::conditional_t<std::is_void_v<ActionResult>, Nothing, ActionResult>;

        const int target{state.target};
        const CallTime begun{trace.isOn() ? CallTime::now() : CallTime{}};
        const bool reachable{interface != Interface::Device || state.deviceOpen};
        const bool answering{reachable && (interface != Interface::Device || deviceAnswers())};
        callsWhileNotOpen += reachable ? 0 : 1;

        std::optional<Hit> hit;
        if (answering && !rules.isEmpty()) {
            numbers.clear();
            (appendNumbers(numbers, parameters), ...);
            hit = hitOf(operation);
        }
        if (interface == Interface::Device && reachable) {
            letTimePass();
        }
        const bool leavesOutputs{hit && hit->leavesOutputs};
        if (!leavesOutputs) {
            (clear(parameters), ...);
        }
        Result result{zero<Result>()};
        if (answering && (isPresent(parameters) && ...)) {
            if (hit && hit->answer) {
                AnswerReader reader{*hit->answer, objects, heldText};
                reader.takeResult(result);
                if (!leavesOutputs) {
                    (reader.take(parameters), ...);
                }
            } else if (const Disturbance disturbance{state, hit}; disturbance.letsWork()) {
                if constexpr (std::is_void_v<ActionResult>) {
                    action();
                } else {
                    result = action();
                }
            }
        }

        if (journalEnabled) {
            forgetOldest();
            CallText text{line};
            text.begin(reachable, operation);
            showCall(text, objects, result, parameters...);
            journal.push_back({interface, operation, target, line});
        }
        if (trace.isOn()) {
            CallJson json{line};
            json.begin(begun, {interface, operation, target}, reachable);
            showCall(json, objects, result, parameters...);
            json.end();
            trace.write(line);
        }
        if constexpr (!std::is_void_v<ActionResult>) {
            return result;
        }
    }

    std::vector<Call> journal;
    bool journalEnabled{true};
    std::size_t callsWhileNotOpen{0};
    Rules rules;
    Trace trace;

private:
    /// Whether the device that is open takes part in what goes over the link.
    bool deviceAnswers() const { return !state.cableOut && !state.silent; }

    /// Lets the time of a device call pass. Without a cable the driver gives up at once.
    void letTimePass()
    {
        if (!state.cableOut && takesTime()) {
            passTime();
        }
    }
    void passTime();

    /// What the rules make of a call that brings `numbers`.
    std::optional<Hit> hitOf(const char *operation);

    /// A program that runs for days never takes its journal.
    void forgetOldest();

    /// A refused text is empty, not null: its callers read it without asking.
    template <typename Result>
    static Result zero()
    {
        if constexpr (std::is_same_v<Result, const char *>) {
            return "";
        } else {
            return Result{};
        }
    }

    State &state;
    const Objects objects;
    LinkTime link{{}, 0};
    UnitTime unitTime{{}};
    std::vector<double> numbers; ///< Those that the latest call brought; kept for their storage.
    std::string line;            ///< Text of the latest call; kept for its storage.
    std::string heldText;        ///< Text that the latest answer handed out.
};

} // namespace veltrix_simulator
