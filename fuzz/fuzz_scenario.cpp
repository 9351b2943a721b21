// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Throws bytes at the parser of scenario files.
#include "scenarioreader.h"
#include "simulation.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <variant>

using namespace veltrix_simulator;

/// Whatever is taken for a scenario can be played; a refusal is one line that names the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::variant<Scenario, ScenarioError> read{readScenario(std::string(data, data + size), "fuzzed.toml")};
    if (const auto *const error = std::get_if<ScenarioError>(&read)) {
        const std::string message{error->message()};
        if (message.rfind("fuzzed.toml:", 0) != 0 || message.find('\n') != std::string::npos) {
            std::abort();
        }
        return 0;
    }
    // A memory file is the folder's business, not the parser's.
    auto &scenario = std::get<Scenario>(read);
    scenario.memoryFile.clear();
    simulation().start(scenario);
    return 0;
}
