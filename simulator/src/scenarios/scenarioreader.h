// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads a scenario file.
#pragma once

#include "scenarios/scenario.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veltrix_simulator
{

/// The first thing in a scenario file that cannot be played.
struct ScenarioError
{
    std::string file;
    std::size_t line{1};   ///< Counted from 1.
    std::size_t column{1}; ///< Counted from 1.
    std::string key;       ///< What it is about, such as "fault.onCall"; empty: the file as text.
    std::string text;      ///< What is wrong with the key, without a full stop.

    /// One line: `flaky.toml:12:8: "fault.oncall" is unknown here; did you mean "onCall"?`
    std::string message() const;
};

/// What the text of a scenario file says. The text may be any bytes; nothing else is looked at. The name of
/// the file is for messages and for what rules say of their origin.
std::variant<Scenario, ScenarioError> readScenario(std::string_view text, const std::string &fileName);

/// All keys that a scenario file may have, such as "link.kind", but for those of the state.
std::vector<std::string> scenarioKeys();

} // namespace veltrix_simulator
