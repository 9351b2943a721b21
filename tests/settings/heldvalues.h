// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers that the simulator holds behind a key, and those that the kind of a key can hold.
#pragma once

#include "configurationvalues.h"
#include "devicesettings.h"
#include "values.h"

#include <string>
#include <vector>

/// The tables with the words of the simulator's configuration.
std::vector<device_settings::Setting> deviceTable();
std::vector<device_settings::ConfigurationValue> configurationTable();

/// What the simulator holds; true is 1.
double held(const std::string &key);
/// Makes the simulator hold a number, also one out of range. Throws std::invalid_argument when the kind of
/// its key cannot hold it.
void hold(const std::string &key, device_settings::Kind kind, double number);

bool isFloating(device_settings::Kind kind);
/// The least and the greatest whole number of a kind; of a floating one what the contract needs of it.
double least(device_settings::Kind kind);
double greatest(device_settings::Kind kind);
/// Another number than the one that is held, of any range.
double another(device_settings::Kind kind, double number);
