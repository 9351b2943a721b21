// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reading a unit again and again: each answer is checked once and compared with the first from then on.
#pragma once

#include "openeddevice.h"

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
    Rounds(OpenedDevice &itsDevice, const std::vector<Reading> &itsRows, Unit itsUnit, Report &itsReport)
        : device{itsDevice}, rows{itsRows}, unit{itsUnit}, report{itsReport}, seen(itsRows.size())
    {}

    /// Reads everything once, as far as it is not interrupted.
    void readOnce(const Interrupted &interrupted);
    /// Says how many of the later answers were as the first ones, if there were any.
    void sum();

private:
    /// What one row answered so far.
    struct Seen
    {
        bool asked{false};
        bool deviated{false}; ///< Said once, however often it happens.
        Answer first{};
    };

    void take(const Reading &row, Seen &before, Answer answer);
    /// How a later answer differs from the first one; empty when it is as good.
    std::string deviation(const Reading &row, const Answer &first, const Answer &answer) const;
    void say(bool holds, const Reading &row, const std::string &text);

    OpenedDevice &device;
    const std::vector<Reading> &rows;
    const Unit unit;
    Report &report;
    std::vector<Seen> seen;
    int round{0};
    std::size_t compared{0};
    std::size_t asBefore{0};
};

} // namespace sdk_check
