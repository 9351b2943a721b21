// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The values of a unit: the rows of unitfields.inc as an enumeration and as a table.
#pragma once

#include "units/allowed.h"
#include "units/unitnames.h"
#include "values/value.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace veltrix_simulator
{

/// The values of one unit, in the order of unitFields.
enum class Field : std::size_t
{
#define VALUE(name, ...) name,
#define MEMBER(name, ...) name,
#include "units/unitfields.inc"
    count,
};

/// The set of parameters that a value is saved with.
enum class Saved
{
    Never, ///< It is what the unit measures, counts or came with.
    User,
    Expert,
};

struct UnitField
{
    Field id;
    std::string_view key;
    Kind kind;
    Allowed allowed;
    double defaults[unitCount]; ///< By target.
    Saved saved;
};

/// What the edge correction's thresholds are at power-on: the first, and what a camera makes of it.
inline constexpr std::int32_t firstEdgeThreshold{20};
inline constexpr std::int32_t secondEdgeThreshold{firstEdgeThreshold + veltrix_sdk::edgeThresholdDistance};

inline constexpr std::array frameRates{asDoubles(veltrix_sdk::frameRatesHz)};
inline constexpr std::array mavlinkBaudRates{asDoubles(veltrix_sdk::mavlinkBaudRates)};

inline constexpr std::array<UnitField, static_cast<std::size_t>(Field::count)> unitFields{{
#define VALUE(name, key, kind, allowed, blendUnit, camera, saved)                                            \
    {Field::name, key, Kind::kind, allowed, {blendUnit, camera}, Saved::saved},
#define MEMBER(name, group, record, member, allowed, blendUnit, camera, saved)                               \
    {Field::name, group "." #member,   kindOf<decltype(veltrix_sdk::record::member)>(),                      \
     allowed,     {blendUnit, camera}, Saved::saved},
#include "units/unitfields.inc"
}};

constexpr const UnitField &rowOf(Field field)
{
    return unitFields[static_cast<std::size_t>(field)];
}

/// How many places one field stands after another.
constexpr std::size_t operator-(Field later, Field earlier)
{
    return static_cast<std::size_t>(later) - static_cast<std::size_t>(earlier);
}

/// The field that stands `places` further in the table.
constexpr Field operator+(Field field, std::size_t places)
{
    return static_cast<Field>(static_cast<std::size_t>(field) + places);
}

} // namespace veltrix_simulator
