// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Setting several numbers of the device, all of them or none.
#pragma once

#include "session.h"

#include <string>
#include <vector>

namespace ctl
{

/// A number that is to be set.
struct Change
{
    device_settings::Place place;
    double number; ///< Allowed by its field.
};

/// What happens to settings that hold the number already.
enum class Unchanged
{
    Sent,
    LeftAlone,
};

/// What a command makes of one number.
struct Difference
{
    device_settings::Place place;
    double found;
    double wanted;
};

/// Several changes of the settings of one device.
class Changes
{
public:
    /// The session outlives it, with its table.
    Changes(Session &itsSession, const std::vector<Change> &changes, Unchanged unchanged);

    /// Reads what is there; throws a Failure where that is not certain. Sends nothing.
    std::vector<Difference> look();

    /// Sends and reads back. When a command is refused, something else is read back, or the program is
    /// interrupted, what was there is put back and a Failure tells the reason, and what could not be put
    /// back.
    void make();

private:
    /// One setting with all numbers of it that change.
    struct Step
    {
        Unit unit;
        const Setting *setting;
        std::vector<Change> changes;
        Values found;
        Values wanted;
    };

    Step &stepFor(const device_settings::Place &place);
    bool isLeftAlone(const Step &step) const;
    void makeStep(const Step &step);
    std::vector<std::string> putBack(std::size_t count);
    std::string putBack(const Step &step);
    Values readSurely(Unit unit, const Setting &setting);
    void noteFlags();

    Session &session;
    const Unchanged unchanged;
    std::vector<Step> steps;
    bool sendsFlags{false};
    RegionFlags foundFlags{};
    RegionFlags wantedFlags{};
};

} // namespace ctl
