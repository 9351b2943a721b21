// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Setting several numbers of the device, all of them or none.
#include "changes.h"

#include "escaped.h"
#include "failure.h"
#include "fieldtext.h"
#include "progress.h"
#include "values.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

using device_settings::Place;

namespace ctl
{

namespace
{

/// How often the old value is sent at most: one lost answer must not leave the device changed.
constexpr int attemptsToPutBack{3};

std::string textOf(const Place &place, double number)
{
    return device_settings::numberInWords(place.setting->fields[place.field], number);
}

/// Whether all numbers that are sent are the same.
bool sameAsSent(const Setting &setting, const Values &one, const Values &other)
{
    for (std::size_t place{0}; place < setting.fields.size(); ++place) {
        if (!setting.fields[place].derived && !device_settings::same(one[place], other[place])) {
            return false;
        }
    }
    return true;
}

} // namespace

Changes::Changes(Session &itsSession, const std::vector<Change> &changes, Unchanged itsUnchanged)
    : session{itsSession}, unchanged{itsUnchanged}
{
    for (const Change &change : changes) {
        stepFor(change.place).changes.push_back(change);
    }
}

Changes::Step &Changes::stepFor(const Place &place)
{
    for (Step &step : steps) {
        if (step.unit == place.unit && step.setting == place.setting) {
            return step;
        }
    }
    steps.push_back({place.unit, place.setting, {}, {}, {}});
    return steps.back();
}

std::vector<Difference> Changes::look()
{
    std::vector<Difference> differences;
    Progress progress{"Reading", steps.size()};
    for (Step &step : steps) {
        heedInterruption();
        step.found = readSurely(step.unit, *step.setting);
        step.wanted = step.found;
        for (const Change &change : step.changes) {
            const std::size_t field{change.place.field};
            step.wanted[field] = change.number;
            if (!device_settings::same(step.found[field], change.number)) {
                differences.push_back({change.place, step.found[field], change.number});
            }
        }
        if (const auto field = device_settings::firstFieldSentChanged(*step.setting, step.wanted)) {
            const Place place{step.unit, step.setting, *field};
            throw Failure{refused, device_settings::keyOf(place) + " is " +
                                       textOf(place, step.wanted[*field]) +
                                       ", and only whole numbers can be sent.\nNothing was changed."};
        }
        sendsFlags = sendsFlags || step.setting->sendsRegionFlags;
        progress.step();
    }
    noteFlags();
    session.confirm();
    return differences;
}

/// What is there before the first command is sent.
Values Changes::readSurely(Unit unit, const Setting &setting)
{
    Reading reading{session.readTwice(unit, setting)};
    if (!reading.fault.empty()) {
        throw Failure{refused, reading.fault + "\nNothing was changed."};
    }
    return std::move(reading.values);
}

// A region whose first column is lost would be switched off with the next number that is sent.
void Changes::noteFlags()
{
    if (!sendsFlags) {
        return;
    }
    for (const device_settings::OptionalRegion &region : device_settings::optionalRegions) {
        const auto place = device_settings::findSetting(
            session.settings(), keyOf(Unit::Camera) + ".roi" + std::to_string(region.number) + ".x1");
        const auto step = std::find_if(steps.begin(), steps.end(),
                                       [&](const Step &each) { return each.setting == place->setting; });
        if (step != steps.end()) {
            foundFlags.*region.flag = device_settings::isRegionOn(step->found[0]);
            wantedFlags.*region.flag = device_settings::isRegionOn(step->wanted[0]);
        } else {
            const bool isOn{device_settings::isRegionOn(readSurely(place->unit, *place->setting)[0])};
            foundFlags.*region.flag = isOn;
            wantedFlags.*region.flag = isOn;
        }
    }
}

bool Changes::isLeftAlone(const Step &step) const
{
    return unchanged == Unchanged::LeftAlone && sameAsSent(*step.setting, step.found, step.wanted);
}

void Changes::make()
{
    Progress progress{"Setting", steps.size()};
    std::size_t made{0};
    try {
        for (const Step &step : steps) {
            heedInterruption();
            ++made;
            if (!isLeftAlone(step)) {
                makeStep(step);
            }
            progress.step();
        }
        heedInterruption();
    } catch (const Failure &failure) {
        progress.clear();
        std::string text{failure.what()};
        const std::vector<std::string> lost{putBack(made)};
        for (const std::string &line : lost) {
            text += '\n' + line;
        }
        throw Failure{failure.status(), text + (lost.empty() ? "\nEverything is as it was before." : "")};
    }
}

void Changes::makeStep(const Step &step)
{
    const bool acknowledged{session.write(step.unit, *step.setting, step.wanted, wantedFlags)};
    const Reading reading{session.readTwice(step.unit, *step.setting)};
    for (const Change &change : step.changes) {
        const std::size_t field{change.place.field};
        const std::string wanted{device_settings::keyOf(change.place) + " = " +
                                 textOf(change.place, change.number)};
        if (!acknowledged) {
            throw Failure{refused, wanted + " is refused by " + nameOf(step.unit) + '.'};
        }
        if (!reading.fault.empty()) {
            throw Failure{refused, wanted + " was sent, but then " + reading.fault};
        }
        if (!device_settings::same(reading.values[field], change.number)) {
            throw Failure{refused, wanted + " was sent, but " + nameOf(step.unit) + " has " +
                                       textOf(change.place, reading.values[field])};
        }
    }
    if (!sameAsSent(*step.setting, reading.values, step.wanted)) {
        throw Failure{refused, keyOf(step.unit) + '.' + step.setting->key +
                                   " was sent, and another number of it has changed."};
    }
}

std::vector<std::string> Changes::putBack(std::size_t count)
{
    std::vector<std::string> lost;
    for (std::size_t place{count}; place > 0; --place) {
        const Step &step = steps[place - 1];
        if (isLeftAlone(step)) {
            continue;
        }
        const std::string line{putBack(step)};
        if (!line.empty()) {
            lost.push_back(line);
        }
    }
    return lost;
}

/// What to say when the old values could not be put back; empty when they are back.
std::string Changes::putBack(const Step &step)
{
    std::string now{"it does not answer"};
    for (int attempt{0}; attempt < attemptsToPutBack; ++attempt) {
        try {
            const bool acknowledged{session.write(step.unit, *step.setting, step.found, foundFlags)};
            const Reading reading{session.readTwice(step.unit, *step.setting)};
            if (!reading.fault.empty()) {
                now = reading.fault;
                continue;
            }
            if (sameAsSent(*step.setting, reading.values, step.found)) {
                return {};
            }
            now.clear();
            for (const Change &change : step.changes) {
                now += (now.empty() ? "it is " : ", ") +
                       textOf(change.place, reading.values[change.place.field]);
            }
            now += acknowledged ? "" : ", and setting it is refused";
        } catch (const Failure &failure) {
            now = failure.what();
        }
    }
    std::string line{"NOT PUT BACK:"};
    for (const Change &change : step.changes) {
        line += (change.place.field == step.changes.front().place.field ? " " : ", ") +
                device_settings::keyOf(change.place) + " was " +
                textOf(change.place, step.found[change.place.field]);
    }
    return line + "; " + now;
}

} // namespace ctl
