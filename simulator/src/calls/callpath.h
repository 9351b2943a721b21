// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The way that every call of the contract goes.
#pragma once

#include "calls/objects.h"
#include "calls/parameter.h"
#include "calls/trace.h"
#include "calls/traceline.h"
#include "faults/activefaults.h"
#include "faults/faultrule.h"
#include "faults/plannedeffect.h"
#include "operations/missing.h"
#include "operations/operations.h"
#include "recordings/player.h"
#include "time/life.h"
#include "time/link.h"
#include "units/state.h"
#include "veltrix_simulator/simulator.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace veltrix_simulator
{

/// The work of one call: a function object that lives as long as the call.
class Work
{
public:
    template <typename Function>
    explicit Work(const Function &itsFunction)
        : function{&itsFunction}, run{[](const void *called) {
              (*static_cast<const Function *>(called))();
          }}
    {}

    void operator()() const { run(function); }

private:
    const void *function;
    void (*run)(const void *called);
};

/// Puts the values that a recorded read answered into the state: a function object that lives as long as the
/// call. False when the state knows better, because the program has set something else meanwhile.
class Lesson
{
public:
    template <typename Function>
    explicit Lesson(const Function &itsFunction)
        : function{&itsFunction}, run{[](const void *called, const std::vector<Value> &values) {
              return (*static_cast<const Function *>(called))(values);
          }}
    {}

    bool operator()(const std::vector<Value> &values) const { return run(function, values); }

private:
    const void *function;
    bool (*run)(const void *called, const std::vector<Value> &values);
};

/// Of a call that reads nothing.
struct NoLesson
{
    bool operator()(const std::vector<Value> & /*values*/) const { return true; }
};

/// Counts the calls, lets the time of the link and of the units pass, applies the faults, keeps the journal
/// and writes the trace, for all operations alike.
class CallPath
{
public:
    CallPath(State &itsState, const Objects &itsObjects, Player &itsPlayer)
        : player{itsPlayer}, state{itsState}, objects{itsObjects}
    {}

    /// Power-on: an empty journal, switched on, and this link, this life and these faults; the seed settles
    /// what is drawn. Throws std::invalid_argument when one of them cannot be played.
    void start(const Link &itsLink, const Life &life, const std::vector<FaultRule> &rules,
               std::uint64_t seed);
    /// Begins the trace of a power-on.
    void startTrace(std::string_view scenario, std::uint64_t seed) { trace.start(scenario, seed); }

    /// Runs one operation, whose parameters are given in its own order. The work runs only when the call
    /// reaches what it was made on, nothing that it reads or fills in is missing, and no fault is in the way.
    /// What it has to fill in is zero before. While a recording is played, its answer replaces that of the
    /// work, and the lesson learns from what was read.
    template <typename Function, typename Learning = NoLesson>
    std::invoke_result_t<const Function &> call(OperationId operation, Parameters parameters,
                                                const Function &work, const Learning &learn = {})
    {
        using Result = std::invoke_result_t<const Function &>;
        // A call that nothing can happen to does its work and nothing else: the time of a program that is
        // measured on the simulator is then its own. Most reads have no parameters to prepare.
        if (goesTheShortWay() && (parameters.size() == 0 || prepare(parameters, false))) {
            return work();
        }
        if constexpr (std::is_void_v<Result>) {
            pass(operation, parameters, ResultPlace{}, Work{work}, Lesson{learn});
        } else {
            Result result{zero<Result>()};
            const auto answer = [&] {
                result = work();
            };
            pass(operation, parameters, ResultPlace{&result}, Work{answer}, Lesson{learn});
            return result;
        }
    }

    /// Whether calls of the device wait or make the units' values go on.
    bool takesTime() const { return link.passes() || unitTime.passes(); }

    /// The calls since the journal was cleared; of very many the latest.
    const std::vector<Call> &journal() const { return calls; }
    void clearJournal() { calls.clear(); }
    void setJournalEnabled(bool enabled) { journalEnabled = enabled; }
    /// How many calls came for a device that was not open, since power-on.
    std::size_t callsWhileNotOpen() const { return callsNotOpen; }
    /// The faults that the next calls meet.
    ActiveFaults &activeFaults() { return faults; }

private:
    void pass(OperationId operation, Parameters parameters, const ResultPlace &result, const Work &work,
              const Lesson &learn);
    /// A call that faults and time may change.
    void simulate(OperationId operation, Parameters parameters, const ResultPlace &result, const Work &work,
                  bool isAnswered);
    /// A call while a recording is played.
    void play(OperationId operation, Parameters parameters, const ResultPlace &result, const Work &work,
              const Lesson &learn);
    void playAnswer(const RecordedAnswer &answer, OperationId operation, Parameters parameters,
                    const ResultPlace &result, const Work &work);

    /// Whether nothing is switched on (journal, trace, faults, time, recording), and the device is open and
    /// answers. Then the manager is held, too.
    bool goesTheShortWay() const
    {
        return !journalEnabled && !trace.isOn() && faults.isEmpty() && !takesTime() && !player.isOn() &&
               state.deviceOpen && deviceAnswers();
    }

    /// Whether the open device answers: its cable is in, and it is not silent.
    bool deviceAnswers() const { return !state.cableOut && !state.silent; }

    /// Lets the time of a device call pass. Without a cable the driver gives up at once.
    void letTimePass()
    {
        if (!state.cableOut && takesTime()) {
            passTime();
        }
    }
    void passTime();

    /// What a fault does to the call; nothing when none hits it. A cable that the fault pulls is out at once.
    std::optional<PlannedEffect> plan(OperationId operation, Parameters parameters);

    /// A call that a fault hits: fills in the fault's answer, or does the work while the fault changes the
    /// state, or does nothing.
    void workUnder(const PlannedEffect &planned, Parameters parameters, const ResultPlace &result,
                   const Work &work);
    /// Puts the values of an answer into the result and, unless that is to stay, into what the call fills in.
    void fillInAnswer(const std::vector<Value> &answer, bool leavesOutputs, Parameters parameters,
                      const ResultPlace &result);

    void keepInJournal(OperationId operation, int target, Missing missing, Parameters parameters,
                       const ResultPlace &result);
    void writeToTrace(OperationId operation, int target, Missing missing, Parameters parameters,
                      const ResultPlace &result, const CallTime &begun);

    /// A refused text is empty, not null: callers do not check for null.
    template <typename Result>
    static Result zero()
    {
        if constexpr (std::is_same_v<Result, const char *>) {
            return "";
        } else {
            return Result{};
        }
    }

    std::vector<Call> calls;
    bool journalEnabled{true};
    std::size_t callsNotOpen{0};
    ActiveFaults faults;
    Trace trace;
    Player &player;
    State &state;
    const Objects objects;
    LinkTime link{{}, 0};
    UnitTime unitTime{{}};
    std::string line; ///< Text of the latest call; a member, so that its memory is used again.
    /// A unit that does not exist and that a recorded setTarget was acknowledged for; the recorded calls that
    /// follow were made on it.
    std::optional<std::int32_t> strangeTarget;
    std::string callText; ///< What a recording knows the latest call by.
    std::string heldText; ///< An answer that is a text and not of the state; its caller points to it until
                          ///< the next one.
};

} // namespace veltrix_simulator
