// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reading a unit again and again: each answer is checked once and compared with the first from then on.
#include "rounds.h"

#include <utility>

namespace sdk_check
{

void Rounds::readOnce(const Interrupted &interrupted)
{
    ++round;
    for (std::size_t place{0}; place < rows.size(); ++place) {
        if (!isUsedOn(rows[place].usedOn, unit)) {
            continue;
        }
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
}

void Rounds::take(const Reading &row, Seen &before, Answer answer)
{
    if (!before.asked) {
        const std::string fault{faultOf(row, answer)};
        say(fault.empty(), row, fault.empty() ? answerText(row, answer) : fault);
        before.asked = true;
        before.first = std::move(answer);
        return;
    }
    ++compared;
    const std::string how{deviation(row, before.first, answer)};
    if (how.empty()) {
        ++asBefore;
    } else if (!before.deviated) {
        before.deviated = true;
        say(false, row, how);
    }
}

std::string Rounds::deviation(const Reading &row, const Answer &first, const Answer &answer) const
{
    const std::string inRound{" in round " + std::to_string(round)};
    if (row.steady && !same(answer, first)) {
        return "answers " + answerText(row, answer) + inRound + "; the first answer was " +
               answerText(row, first);
    }
    const std::string fault{faultOf(row, answer)};
    return fault.empty() || !faultOf(row, first).empty() ? "" : fault + inRound;
}

void Rounds::say(bool holds, const Reading &row, const std::string &text)
{
    report.add({holds ? Outcome::Holds : Outcome::Fails, row.get + row.detail, nameOf(unit), text});
}

} // namespace sdk_check
