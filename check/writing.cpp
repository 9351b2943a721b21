// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Setting one number of a setting to another value and back.
#include "writing.h"

#include "devicesettings.h"
#include "values.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

using namespace device_settings;

namespace sdk_check
{

namespace
{

/// How often the old value is sent at most: one lost answer must not leave the device changed.
constexpr int attemptsToRestore{3};

/// The setter, what it is called for, and the number that is changed, such as "setWarp(1) a22".
std::string labelOf(const Setting &row, const Field &field)
{
    const std::string name{nameOf(row, field)};
    return row.set + row.detail + (name.empty() ? "" : ' ' + name);
}

/// An allowed value other than the one that was found; that one itself where there is no other.
double otherValue(const Setting &row, const Field &field, double found)
{
    for (const double value : triesOf(row, field)) {
        if (!same(value, found)) {
            return value;
        }
    }
    return found;
}

/// One number of one setting on one unit.
class Trial
{
public:
    Trial(OpenedDevice &itsDevice, const Setting &itsRow, Unit itsUnit, std::size_t itsPlace,
          const Answer &itsFound)
        : device{itsDevice}, row{itsRow}, unit{itsUnit}, place{itsPlace}, found{itsFound}
    {}

    /// Sends nothing when what was found could not be put back.
    Finding run(const Interrupted &interrupted)
    {
        const std::string fault{faultOf(row, found)};
        if (!fault.empty()) {
            return finding(Outcome::Fails, "not tried, because " + row.get + ' ' + fault);
        }
        const double foundNumber{found.values[place]};
        if (!allows(field().allowed, foundNumber)) {
            return finding(Outcome::Skipped,
                           "could not put back " + text(foundNumber) + "; " + describe(field().allowed));
        }
        if (const std::optional<std::size_t> changed{firstFieldSentChanged(row, found.values)}) {
            return finding(Outcome::Skipped, "takes whole numbers and could not put back " +
                                                 nameOf(row, row.fields[*changed]) + ' ' +
                                                 numberText(found.values[*changed]));
        }
        const double value{otherValue(row, field(), foundNumber)};
        if (same(value, foundNumber)) {
            return finding(Outcome::Skipped, "no value but " + text(value) + " is allowed");
        }
        return tryValue(value, interrupted);
    }

private:
    const Field &field() const { return row.fields[place]; }

    std::string text(double value) const { return numberText(value, field().kind); }

    Finding finding(Outcome outcome, std::string said) const
    {
        return {outcome, labelOf(row, field()), nameOf(unit), std::move(said)};
    }

    Finding tryValue(double value, const Interrupted &interrupted)
    {
        std::string fault{change(value, interrupted)};
        const Restored restored = restore();
        const std::string before{text(found.values[place])};
        if (!same(row, restored.answer, found)) {
            return finding(Outcome::Fails, fault + (fault.empty() ? "" : "; ") + howItIsLeft(restored));
        }
        if (fault.empty() && !restored.acknowledged) {
            fault = "answers false to " + before;
        }
        if (!fault.empty()) {
            return finding(Outcome::Fails, fault + "; back at " + before);
        }
        return wasRead ? finding(Outcome::Holds, text(value) + " and back to " + before)
                       : finding(Outcome::Skipped, "interrupted; back at " + before);
    }

    /// Sets and reads the value; returns what is wrong.
    std::string change(double value, const Interrupted &interrupted)
    {
        Values changed{found.values};
        changed[place] = value;
        if (!device.write(row, unit, changed)) {
            return "answers false to " + text(value);
        }
        if (interrupted()) {
            return {};
        }
        wasRead = true;
        const Answer answer = device.read(row, unit);
        if (answer.result == 1 && matches(answer.values, changed)) {
            return {};
        }
        return "set to " + text(value) + ", but " + row.get + " answers " + answerText(row, answer);
    }

    /// How the last attempt to put back the old value ended.
    struct Restored
    {
        bool acknowledged;
        Answer answer;
    };

    Restored restore()
    {
        Restored restored{};
        for (int attempt{0}; attempt < attemptsToRestore; ++attempt) {
            restored.acknowledged = device.write(row, unit, found.values);
            restored.answer = device.read(row, unit);
            if (restored.acknowledged && same(row, restored.answer, found)) {
                break;
            }
        }
        return restored;
    }

    std::string howItIsLeft(const Restored &restored) const
    {
        return "NOT RESTORED: " + row.set + " answers " +
               numberText(restored.acknowledged ? 1 : 0, Kind::Boolean) + " and " + row.get + ' ' +
               answerText(row, restored.answer) + " instead of " + answerText(row, found);
    }

    /// Whether all numbers that are sent came back; the device derives the others.
    bool matches(const Values &read, const Values &sent) const
    {
        for (std::size_t number{0}; number < sent.size(); ++number) {
            if (!row.fields[number].derived && !same(read[number], sent[number])) {
                return false;
            }
        }
        return true;
    }

    OpenedDevice &device;
    const Setting &row;
    const Unit unit;
    const std::size_t place;
    const Answer &found;
    bool wasRead{false};
};

} // namespace

void tryWriting(OpenedDevice &device, const Setting &row, Unit unit, Report &report,
                const Interrupted &interrupted)
{
    for (std::size_t place{0}; place < row.fields.size(); ++place) {
        if (!isTried(row, row.fields[place])) {
            continue;
        }
        if (interrupted()) {
            return;
        }
        const Answer found = device.read(row, unit);
        report.add(Trial{device, row, unit, place, found}.run(interrupted));
    }
}

} // namespace sdk_check
