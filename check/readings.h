// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the check reads and tries, beside what is known of every setting.
#pragma once

#include "devicesettings.h"
#include "values.h"

#include <string>
#include <vector>

namespace sdk_check
{

using device_settings::Allowed;
using device_settings::Field;
using device_settings::Kind;
using device_settings::RegionFlags;
using device_settings::same;
using device_settings::Setting;
using device_settings::Unit;
using device_settings::Values;

/// "Blend Unit" or "camera".
std::string nameOf(Unit unit);

/// Every operation of the device that the program reads with once it is identified, in the program's order.
std::vector<Setting> readingsOf(const std::vector<Setting> &table);
/// The operation that identifies the device.
const Setting &identityOf(const std::vector<Setting> &table);

/// What a line calls a number of an answer; empty where the answer is this number alone.
std::string nameOf(const Setting &setting, const Field &field);
/// What a number of an answer may be. As a rule that is what may be set; GMS may be any word, because its
/// spin box shows what its slider does not reach.
Allowed allowedAnswer(const Setting &setting, const Field &field);
/// What is wrong with numbers that are allowed one by one; empty when nothing is.
std::string objectionTo(const Setting &setting, const Values &answer);

/// Whether a number of a setting that can be written is set to another value. The others are sent as they
/// were found, or the device derives them.
bool isTried(const Setting &setting, const Field &field);
/// The values to try, the second one where the first is what was found.
Values triesOf(const Setting &setting, const Field &field);

} // namespace sdk_check
