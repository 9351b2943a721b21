// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the settings of both units were in a recorded session.
#pragma once

#include "devicesettings.h"
#include "profile.h"
#include "recordings/recordedcall.h"
#include "veltrix_sdk/configuration.h"

#include <optional>
#include <string>
#include <vector>

namespace ctl
{

/// Follows the calls of a session: what a unit answered and what it acknowledged is what it holds. An answer
/// that a unit cannot hold is a lost one and changes nothing.
class RecordedSettings
{
public:
    RecordedSettings();
    RecordedSettings(const RecordedSettings &) = delete;
    RecordedSettings &operator=(const RecordedSettings &) = delete;

    void note(const veltrix_simulator::RecordedCall &call);
    /// Plain words of the configuration, which give the ranges of the expert values.
    void note(const std::vector<veltrix_simulator::RecordedWord> &known);

    /// What a profile has of it, in the order of the table. They refer to this object.
    std::vector<ProfileLine> lines() const;
    /// Whose settings they are, as a comment.
    std::string comment() const;

private:
    void noteRead(const veltrix_simulator::RecordedCall &call, device_settings::Unit unit,
                  const device_settings::Setting &setting);
    void noteWrite(const veltrix_simulator::RecordedCall &call, device_settings::Unit unit,
                   const device_settings::Setting &setting);
    /// Keeps the numbers of the first fields of a setting, and forgets the others, if all are allowed.
    void keep(device_settings::Unit unit, const device_settings::Setting &setting, const Values &known);
    std::string serialNumberOf(device_settings::Unit unit) const;

    veltrix_sdk::ConfigurationWords words{};
    std::vector<Setting> table;
    std::vector<device_settings::Place> places;
    std::vector<std::optional<double>> numbers; ///< One for each place.
};

} // namespace ctl
