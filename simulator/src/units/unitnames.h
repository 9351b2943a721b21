// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The units and their names, with which the keys of their values begin.
#pragma once

#include "values/inorder.h"
#include "veltrix_sdk/numbers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// A unit by its target, and its name in scenarios and in the memory file.
struct UnitName
{
    std::int32_t id;
    std::string_view name;
};

/// The units, each at the place of its target.
inline constexpr std::array<UnitName, 2> unitNames{{
    {veltrix_sdk::targetBlendUnit, "blendUnit"},
    {veltrix_sdk::targetCamera, "camera"},
}};

static_assert(inOrder(unitNames));

inline constexpr std::size_t unitCount{unitNames.size()};

/// Name of the unit of a target.
constexpr std::string_view unitName(std::int32_t target)
{
    return unitNames[static_cast<std::size_t>(target)].name;
}

/// The unit of this name; null when there is none.
constexpr const UnitName *findUnit(std::string_view name)
{
    for (const UnitName &unit : unitNames) {
        if (unit.name == name) {
            return &unit;
        }
    }
    return nullptr;
}

/// Whether there is a unit of this target.
constexpr bool isUnit(std::int32_t target)
{
    return target >= 0 && static_cast<std::size_t>(target) < unitCount;
}

/// What is wrong with a target that no unit has.
inline std::string noSuchUnit(std::int32_t target)
{
    return "there is no unit " + std::to_string(target) + ", only " +
           std::to_string(veltrix_sdk::targetBlendUnit) + " and " + std::to_string(veltrix_sdk::targetCamera);
}

/// With which the keys of the configuration's values begin.
inline constexpr std::string_view configurationName{"configuration"};

} // namespace veltrix_simulator
