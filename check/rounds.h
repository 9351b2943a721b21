// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reading a unit again and again: each answer is checked once and compared with the first from then on.
#pragma once

#include "check.h"
#include "openeddevice.h"
#include "readings.h"
#include "report.h"

#include <cstddef>
#include <string>
#include <vector>

namespace sdk_check
{

/// The rounds of reading one unit.
class Rounds
{
public:
    /// All but the unit outlive it.
    Rounds(OpenedDevice &itsDevice, const std::vector<Setting> &itsRows, Unit itsUnit, Report &itsReport)
        : device{itsDevice}, rows{itsRows}, unit{itsUnit}, report{itsReport}, seen(itsRows.size())
    {}

    /// Selects the unit and reads everything once, as far as it is not interrupted.
    void readOnce(const Interrupted &interrupted);
    /// Reports how many answers of the later rounds were as the first ones, and since when the unit is
    /// silent, if it is. What the program does not ask this unit for does not count.
    void sum();

private:
    /// What one row answered so far.
    struct Seen
    {
        bool asked{false};
        bool deviated{false}; ///< Reported once, however often it happens.
        Answer first{};
    };

    /// How many wrong answers in a row were false or zeros, as those of a unit that is gone.
    struct Silence
    {
        std::string from{}; ///< The first of them, with its round.
        int faults{0};
    };

    void take(const Setting &row, Seen &before, Answer answer);
    void listen(const Setting &row, const Answer &answer, bool wrong);
    void hearNothingFrom(const std::string &operation);
    /// What is wrong with a later answer, compared with the first one; empty when nothing is.
    std::string deviation(const Setting &row, const Answer &first, const Answer &answer) const;
    /// Reports a fault: as a failure where the program asks this unit for the value, else as skipped.
    void sayFault(const Setting &row, const std::string &fault);
    void say(Outcome outcome, const Setting &row, const std::string &text);

    OpenedDevice &device;
    const std::vector<Setting> &rows;
    const Unit unit;
    Report &report;
    std::vector<Seen> seen;
    Silence silence;
    int round{0};
    std::size_t compared{0};
    std::size_t asBefore{0};
};

} // namespace sdk_check
