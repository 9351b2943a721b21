// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The scenarios that the library brings along, and where others come from.
#pragma once

#include "scenarios/scenario.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veltrix_simulator
{

/// A scenario of `simulator/scenarios`, as its file was when the library was built.
struct ShippedScenario
{
    std::string_view name;
    std::string_view text;
};

/// In the order of their names.
const std::vector<ShippedScenario> &shippedScenarios();

/// The shipped scenario of a name, or what the file of a path says (a path ends in `.toml` or contains a
/// separator); or one line that says why there is none.
std::variant<Scenario, std::string> findScenario(const std::string &nameOrPath);

/// What VELTRIX_SIMULATOR_SCENARIO asks for, or why that cannot be; without it the default scenario.
std::variant<Scenario, std::string> chosenScenario();

} // namespace veltrix_simulator
