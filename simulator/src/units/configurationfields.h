// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The values of the configuration: the rows of configurationfields.inc as an enumeration and as tables.
#pragma once

#include "units/allowed.h"
#include "values/value.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/numbers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace veltrix_simulator
{

/// The values of the configuration beside its words, in the order of configurationFields.
enum class ConfigurationField : std::size_t
{
#define STORED(name, ...) name,
#define VALUE(name, ...) name,
#define WORD(...)
#define WORD_VALUE(...)
#include "units/configurationfields.inc"
    count,
};

struct ConfigurationFieldRow
{
    ConfigurationField id;
    std::string_view key;
    Kind kind;
    double defaultValue;
};

struct WordRow
{
    std::string_view key;
    Word word;
    std::int32_t defaultValue;
};

/// The kind of what an operation without arguments answers.
template <typename Result, typename Object>
constexpr Kind kindOfResult(Result (Object::* /*operation*/)())
{
    return kindOf<Result>();
}

inline constexpr std::array<ConfigurationFieldRow, static_cast<std::size_t>(ConfigurationField::count)>
    configurationFields{{
#define STORED(name, kind, powerOn) {ConfigurationField::name, #name, Kind::kind, powerOn},
#define VALUE(name, operation, powerOn)                                                                      \
    {ConfigurationField::name, #name, kindOfResult(&veltrix_sdk::ISdkConfiguration::operation), powerOn},
#define WORD(...)
#define WORD_VALUE(...)
#include "units/configurationfields.inc"
    }};

inline constexpr WordRow configurationWords[]{
#define STORED(...)
#define VALUE(...)
#define WORD(name, powerOn) {#name, &Words::name, powerOn},
#define WORD_VALUE(...)
#include "units/configurationfields.inc"
};

constexpr const ConfigurationFieldRow &rowOf(ConfigurationField field)
{
    return configurationFields[static_cast<std::size_t>(field)];
}

} // namespace veltrix_simulator
