// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the names on a command line stand for.
#include "names.h"

#include "escaped.h"
#include "failure.h"
#include "output/wording.h"

#include <algorithm>

using device_settings::Field;

namespace ctl
{

namespace
{

/// The name that comes nearest to a wrong one, also where the unit is left out; empty when none does.
std::string nearestName(Session &session, const std::string &wrong)
{
    std::vector<std::string> whole;
    for (const Named &named : allNames(session)) {
        whole.push_back(named.key);
        const bool withoutUnit{named.key.size() > wrong.size() &&
                               named.key.compare(named.key.find('.') + 1, std::string::npos, wrong) == 0};
        if (withoutUnit) {
            return named.key;
        }
    }
    return veltrix_simulator::nearest(wrong, whole);
}

Failure unknownName(Session &session, const std::string &name)
{
    return Failure{wrongUse, "There is no setting \"" + sdk_check::escaped(name) + '"' +
                                 hintAt(nearestName(session, name))};
}

/// Whether the name is this one or begins with it up to a dot.
bool belongsTo(const std::string &name, const std::string &beginning)
{
    return name.compare(0, beginning.size(), beginning) == 0 &&
           (name.size() == beginning.size() || name[beginning.size()] == '.');
}

} // namespace

std::vector<Named> allNames(Session &session)
{
    std::vector<Named> all;
    for (const Place &place : device_settings::placesOf(session.settings())) {
        all.push_back({device_settings::keyOf(place), place, nullptr});
    }
    for (const ConfigurationValue &value : session.configurationTable()) {
        // Some are there twice: as an operation answers them, then as a word.
        if (device_settings::findConfigurationValue(session.configurationTable(), value.key) == &value) {
            all.push_back({value.key, {Unit::Camera, nullptr, 0}, &value});
        }
    }
    return all;
}

std::vector<Named> namesFor(Session &session, const std::vector<std::string> &names)
{
    std::vector<Named> all{allNames(session)};
    if (names.empty()) {
        return all;
    }
    std::vector<Named> found;
    for (const std::string &name : names) {
        const std::size_t before{found.size()};
        std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                     [&](const Named &each) { return belongsTo(each.key, name); });
        if (found.size() == before) {
            throw unknownName(session, name);
        }
    }
    return found;
}

std::string hintAt(const std::string &near)
{
    if (near.empty()) {
        return "; \"pilotel-ctl list\" tells all of them";
    }
    return "; did you mean \"" + near + "\"?";
}

bool canBeSet(const Place &place)
{
    return place.setting->write && !place.setting->fields[place.field].derived;
}

Place placeToSet(Session &session, const std::string &name)
{
    const auto place = device_settings::findSetting(session.settings(), name);
    if (!place) {
        if (device_settings::findConfigurationValue(session.configurationTable(), name) != nullptr) {
            throw Failure{wrongUse, name + " belongs to the device library and cannot be set."};
        }
        throw unknownName(session, name);
    }
    if (!canBeSet(*place)) {
        throw Failure{wrongUse, name + " cannot be set: the unit tells it, and nothing changes it."};
    }
    return *place;
}

Field fieldOf(const ConfigurationValue &value)
{
    return {{}, value.kind, value.allowed, value.meaning, value.quantity};
}

Field fieldOf(const Named &named)
{
    return named.configuration != nullptr ? fieldOf(*named.configuration)
                                          : named.place.setting->fields[named.place.field];
}

} // namespace ctl
