// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A profile: settings of both units in a file, which is a scenario of the simulated camera too.
#pragma once

#include "changes.h"
#include "devicesettings.h"
#include "failure.h"
#include "session.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ctl
{

/// A profile as it was read.
struct Profile
{
    std::vector<Change> settings; ///< What can be set, in the order of the table.
    std::vector<Change> derived;  ///< What the device makes of it.
};

/// A number of a profile that is to be written.
struct ProfileLine
{
    device_settings::Place place;
    double number;
};

/// The text of a profile. Its first line says how many settings it has, so that a file that was cut is found
/// out, and has the comment.
std::string profileText(const std::string &comment, const std::vector<ProfileLine> &lines);

/// Writes a profile, all of it or nothing; "-" is standard output. What cannot be written is a Failure.
ExitStatus writeProfile(const std::string &file, const std::string &comment,
                        const std::vector<ProfileLine> &lines);

/// The serial number of a unit in a comment; without one the text says so.
std::string serialNumberText(const std::optional<double> &number);

/// Such as "1 setting" or "77 settings".
std::string countedSettings(std::size_t count);

/// Reads the text of a profile. A mistake is a Failure of one line with the name of the file and the place.
/// No text can crash it.
Profile parseProfile(const std::string &fileName, std::string_view text, const std::vector<Setting> &table);

/// Reads a file, or standard input for "-", of which hardly more than a profile can have is ever held.
Profile readProfile(const std::string &fileName, const std::vector<Setting> &table);

} // namespace ctl
