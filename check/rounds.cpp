// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reading a unit again and again: each answer is checked once and compared with the first from then on.
#include "rounds.h"

#include "devicesettings.h"

#include <algorithm>
#include <utility>

namespace sdk_check
{

namespace
{

/// Whether the answer proves that the unit is there: a missing one gives false or zeros.
bool saysSomething(const Setting &row, const Answer &answer)
{
    const auto isZero = [](double number) {
        return number == 0.0;
    };
    const bool onlyZeros{std::all_of(answer.values.begin(), answer.values.end(), isZero)};
    const bool acknowledged{answer.result != 0};
    return answer.values.empty() ? acknowledged : (acknowledged || !row.resultCounts) && !onlyZeros;
}

} // namespace

void Rounds::readOnce(const Interrupted &interrupted)
{
    ++round;
    if (!device.select(unit)) {
        hearNothingFrom("setTarget");
        return;
    }
    for (std::size_t place{0}; place < rows.size(); ++place) {
        if (interrupted()) {
            return;
        }
        take(rows[place], seen[place], device.read(rows[place], unit));
    }
}

void Rounds::sum()
{
    if (compared > 0) {
        report.add({asBefore == compared ? Outcome::Holds : Outcome::Fails, "repeated reads", nameOf(unit),
                    std::to_string(asBefore) + " of " + std::to_string(compared) + " answers as before"});
    }
    // One or two wrong zeros can be single operations that fail; a unit that is gone fails in all of them.
    constexpr int lostFromFaults{3};
    if (silence.faults >= lostFromFaults) {
        report.add({Outcome::Fails, "presence", nameOf(unit),
                    "every answer from " + silence.from +
                        " on is false or 0; look at the power and the cable of the unit first"});
    }
}

void Rounds::take(const Setting &row, Seen &before, Answer answer)
{
    const bool used{isUsedOn(row.usedOn, unit)};
    const std::string fault{faultOf(row, answer)};
    listen(row, answer, used && !fault.empty());
    if (!before.asked) {
        if (fault.empty()) {
            say(Outcome::Holds, row, answerText(row, answer));
        } else {
            sayFault(row, fault);
        }
        // What the program does not ask this unit for is reported wrong only once.
        before = {true, !used && !fault.empty(), std::move(answer)};
        return;
    }
    const std::string how{deviation(row, before.first, answer)};
    if (used) {
        ++compared;
        asBefore += how.empty() ? 1U : 0U;
    }
    if (!how.empty() && !before.deviated) {
        before.deviated = true;
        sayFault(row, how);
    }
}

void Rounds::listen(const Setting &row, const Answer &answer, bool wrong)
{
    if (saysSomething(row, answer)) {
        silence = {};
    } else if (wrong) {
        hearNothingFrom(row.get + row.detail);
    }
}

void Rounds::hearNothingFrom(const std::string &operation)
{
    if (silence.faults == 0) {
        silence.from = operation + " in round " + std::to_string(round);
    }
    ++silence.faults;
}

std::string Rounds::deviation(const Setting &row, const Answer &first, const Answer &answer) const
{
    const std::string inRound{" in round " + std::to_string(round)};
    if (row.steady && !same(row, answer, first)) {
        return "answers " + answerText(row, answer) + inRound + "; the first answer was " +
               answerText(row, first);
    }
    const std::string fault{faultOf(row, answer)};
    return fault.empty() || !faultOf(row, first).empty() ? "" : fault + inRound;
}

void Rounds::sayFault(const Setting &row, const std::string &fault)
{
    if (isUsedOn(row.usedOn, unit)) {
        say(Outcome::Fails, row, fault);
    } else {
        say(Outcome::Skipped, row, fault + "; the program does not ask this unit for it");
    }
}

void Rounds::say(Outcome outcome, const Setting &row, const std::string &text)
{
    report.add({outcome, row.get + row.detail, nameOf(unit), text});
}

} // namespace sdk_check
