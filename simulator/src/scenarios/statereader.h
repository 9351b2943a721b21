// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads what a scenario file says of the units and the configuration.
#pragma once

#include "scenarios/entry.h"
#include "scenarios/scenario.h"
#include "values/value.h"

#include <cstdint>
#include <string_view>

namespace veltrix_simulator
{

/// The key of a unit's bad pixels, which are no values of the state.
inline constexpr std::string_view badPixelsKey{"badPixels"};

/// The values of one table of the state, `[configuration]`, `[camera]` or `[blendUnit]`, and of a unit its
/// bad pixels; throws ScenarioError.
void readConfiguration(const Entry &table, Scenario &scenario);
void readUnit(const Entry &table, std::int32_t target, Scenario &scenario);

/// The kind of the state's value of this key; fails when there is none or it is not a unit's number.
Kind kindOfNumber(const Entry &entry);

} // namespace veltrix_simulator
