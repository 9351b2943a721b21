// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every value of the configuration by its key: the defaults, and the ranges of the expert values.
#pragma once

#include "values.h"
#include "veltrix_sdk/configuration.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace device_settings
{

/// One number of the configuration: what an operation answers, or a word that is read in place.
struct ConfigurationValue
{
    std::string key; ///< Such as "configuration.defaultGamma".
    Kind kind;
    Allowed allowed;
    std::string meaning;  ///< One line in plain words.
    std::string quantity; ///< What it counts, such as "Hz" or "pixels"; empty for a mere number.
    std::string get;      ///< Name of the operation or of the word.
    bool isOperation;     ///< Else a word.
    std::function<double(veltrix_sdk::ISdkConfiguration &)> read;
};

/// Every default and range of the configuration. The words say what is allowed for the expert values, whose
/// defaults are there twice under one key: as the operation answers them, then as words.
std::vector<ConfigurationValue> configurationValues(const veltrix_sdk::ConfigurationWords &words);

/// The first value behind a key; null when there is none. It is one of the table, which outlives it.
const ConfigurationValue *findConfigurationValue(const std::vector<ConfigurationValue> &table,
                                                 std::string_view key);
const ConfigurationValue *findConfigurationValue(const std::vector<ConfigurationValue> &&table,
                                                 std::string_view key) = delete;

} // namespace device_settings
