// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Settings of both units in a file: save, apply, compare.
#include "changes.h"
#include "commands.h"
#include "fieldtext.h"
#include "files.h"
#include "messages.h"
#include "names.h"
#include "profile.h"
#include "progress.h"
#include "values.h"

#include <iostream>
#include <optional>

using device_settings::Field;
using device_settings::Place;

namespace ctl
{

namespace
{

const Field &fieldAt(const Place &place)
{
    return place.setting->fields[place.field];
}

/// The serial numbers, so that whoever finds the file knows where it is from.
std::string commentOf(Session &session)
{
    std::string text{"They are from"};
    for (const Unit unit : device_settings::units) {
        const auto place = device_settings::findSetting(session.settings(), keyOf(unit) + ".serialNumber");
        const Reading reading{session.read(unit, *place->setting)};
        const bool isKnown{reading.fault.empty()};
        text += (unit == Unit::BlendUnit ? " " : " and ") + nameOf(unit) + ' ' +
                serialNumberText(isKnown ? std::optional{reading.values[0]} : std::nullopt);
    }
    return text + '.';
}

std::vector<ProfileLine> readLines(Session &session)
{
    std::vector<ProfileLine> lines;
    const std::vector<Place> places{device_settings::placesOf(session.settings())};
    Progress progress{"Reading", places.size()};
    Reading reading;
    for (const Place &place : places) {
        heedInterruption();
        progress.step();
        if (!place.setting->write) {
            continue;
        }
        if (place.field == 0) {
            reading = session.readTwice(place.unit, *place.setting);
            if (!reading.fault.empty()) {
                throw Failure{refused, reading.fault + "\nNo file was written."};
            }
        }
        lines.push_back({place, reading.values[place.field]});
    }
    session.confirm();
    return lines;
}

void writeDifference(const Difference &difference)
{
    const Field &field = fieldAt(difference.place);
    std::cout << device_settings::keyOf(difference.place) << ": "
              << device_settings::numberInWords(field, difference.found) << " -> "
              << device_settings::numberInWords(field, difference.wanted) << '\n';
}

} // namespace

ExitStatus saveProfile(Session &session, const std::string &file)
{
    if (file != "-") {
        refuseRecording(file, session.recording());
    }
    const std::string comment{commentOf(session)};
    const std::vector<ProfileLine> lines{readLines(session)};
    return writeProfile(file, comment, lines);
}

ExitStatus applyProfile(Session &session, const std::string &file, bool dryRun)
{
    const Profile profile{readProfile(file, session.settings())};
    session.open();
    Changes changes{session, profile.settings, Unchanged::LeftAlone};
    const std::vector<Difference> differences{changes.look()};
    if (!dryRun) {
        changes.make();
    }
    for (const Difference &difference : differences) {
        writeDifference(difference);
    }
    std::cout << countedSettings(differences.size()) << (dryRun ? " would be set, " : " set, ")
              << profile.settings.size() - differences.size() << " as they were" << std::endl;
    return done;
}

ExitStatus compareProfile(Session &session, const std::string &file)
{
    const Profile profile{readProfile(file, session.settings())};
    session.open();
    std::vector<Change> all{profile.settings};
    all.insert(all.end(), profile.derived.begin(), profile.derived.end());
    const std::vector<Difference> differences{Changes{session, all, Unchanged::LeftAlone}.look()};
    for (const Difference &difference : differences) {
        writeDifference(difference);
    }
    std::cout << std::flush;
    return differences.empty() ? done : refused;
}

} // namespace ctl
