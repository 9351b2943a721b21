// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads what a scenario file says of the units and the configuration.
#pragma once

#include "scenarios/entry.h"
#include "scenarios/scenario.h"
#include "values/value.h"

namespace veltrix_simulator
{

/// The values of one table of the state, `[configuration]`, `[camera]` or `[blendUnit]`, and of a unit its
/// bad pixels; throws ScenarioError.
void readConfiguration(const Entry &table, Scenario &scenario);
void readUnit(const Entry &table, Scenario &scenario);

/// The kind of the state's value of this key; fails when there is none or it is not a unit's number.
Kind kindOfNumber(const Entry &entry);

} // namespace veltrix_simulator
