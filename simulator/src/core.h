// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The one place that every call of the contract passes.
#pragma once

#include "calljson.h"
#include "calltext.h"
#include "faults.h"
#include "state.h"
#include "trace.h"

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace veltrix_simulator
{

/// Counts the calls, applies the faults, keeps the journal and writes the trace, for all operations alike.
class Core
{
public:
    Core(State &itsState, Objects itsObjects) : state{itsState}, objects{std::move(itsObjects)} {}

    /// Power-on: an empty journal, switched on, and no faults.
    void reset();

    /// Runs one operation. The parameters are the operation's own, in order, an out-parameter that is a
    /// number as Out. The action does the work; it runs only when the call reaches what it was made on,
    /// nothing is null that must not be and no fault is in the way. What it has to fill in is zero before.
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
        const Fault *const fault{reachable ? faults.match(interface, operation) : nullptr};
        callsWhileNotOpen += reachable ? 0 : 1;

        const bool leavesOutputs{fault != nullptr && fault->leavesOutputs};
        if (!leavesOutputs) {
            (clear(parameters), ...);
        }
        Result result{zero<Result>()};
        if (reachable && (isPresent(parameters) && ...)) {
            if (fault == nullptr) {
                if constexpr (std::is_void_v<ActionResult>) {
                    action();
                } else {
                    result = action();
                }
            } else if (fault->answer) {
                AnswerReader reader{*fault->answer, objects, heldText};
                reader.takeResult(result);
                if (!leavesOutputs) {
                    (reader.take(parameters), ...);
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
    Faults faults;
    Trace trace;

private:
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
    std::string line;     ///< Text of the latest call; kept for its storage.
    std::string heldText; ///< Text that the latest answer handed out.
};

} // namespace veltrix_simulator
