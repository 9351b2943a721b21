// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the names on a command line stand for.
#pragma once

#include "session.h"

#include <string>
#include <string_view>
#include <vector>

namespace ctl
{

using device_settings::ConfigurationValue;
using device_settings::Place;

/// A value that has a name: one of a unit, or else one of the configuration.
struct Named
{
    std::string key;
    Place place;                             ///< Without a setting where it is of the configuration.
    const ConfigurationValue *configuration; ///< Null where it is of a unit.
};

/// Every name, in the order of the units' tables, then of the configuration.
std::vector<Named> allNames(Session &session);

/// Those that the names stand for, each in its turn: a name, or what several names begin with up to a dot,
/// such as "camera.edgeCorrection"; all where none is given. An unknown one is a Failure that tells the
/// nearest.
std::vector<Named> namesFor(Session &session, const std::vector<std::string> &names);

/// The number of a unit that has this name and can be set; else a Failure.
Place placeToSet(Session &session, const std::string &name);

/// What follows a wrong name: the name that comes nearest to it; where that is empty, how to see all of them.
std::string hintAt(const std::string &near);

/// Whether a command of the contract sets it.
bool canBeSet(const Place &place);

/// A number of the configuration as a field.
device_settings::Field fieldOf(const ConfigurationValue &value);
/// The field behind a name.
device_settings::Field fieldOf(const Named &named);

} // namespace ctl
