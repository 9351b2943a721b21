// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The scenarios that the library brings along, and where others come from.
#include "scenarios/scenariolibrary.h"

#include "output/process.h"
#include "output/wording.h"
#include "recordings/player.h"
#include "recordings/recording.h"
#include "scenarios/limits.h"
#include "scenarios/scenarioreader.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

namespace veltrix_simulator
{
namespace
{

constexpr std::string_view extension{".toml"};

bool isPath(std::string_view nameOrPath)
{
    const bool hasExtension{nameOrPath.size() >= extension.size() &&
                            nameOrPath.substr(nameOrPath.size() - extension.size()) == extension};
    return hasExtension || nameOrPath.find_first_of("/\\") != std::string_view::npos;
}

/// The bytes of a file, of a file that is too large only a few more than are allowed; nothing when it cannot
/// be read.
std::optional<std::string> bytesOf(const std::string &name)
{
    const std::filesystem::path path{std::filesystem::u8path(name)};
    // Reading a pipe could wait for ever.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return std::nullopt;
    }
    std::ifstream file{path, std::ios::binary};
    std::string bytes(largestScenario + 1, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (file.bad() || (file.gcount() == 0 && !file.eof())) {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

/// Loads what the scenario plays; what is wrong with it, if something is.
std::optional<std::string> loadPlay(Scenario &scenario, const std::string &fileName)
{
    if (scenario.recordingFile.empty()) {
        return std::nullopt;
    }
    const std::filesystem::path folder{std::filesystem::u8path(fileName).parent_path()};
    std::variant<Recording, std::string> loaded =
        loadRecording((folder / std::filesystem::u8path(scenario.recordingFile)).generic_u8string());
    if (auto *const reason = std::get_if<std::string>(&loaded)) {
        return std::move(*reason);
    }
    auto recording = std::make_shared<const Recording>(std::get<Recording>(std::move(loaded)));
    if (!recording->ports.empty()) {
        scenario.ports.clear();
        for (const std::string &name : recording->ports) {
            scenario.ports.push_back({name});
        }
    }
    scenario.play.recording = std::move(recording);
    return std::nullopt;
}

std::variant<Scenario, std::string> read(std::string_view text, const std::string &fileName,
                                         const std::string &asked)
{
    std::variant<Scenario, ScenarioError> result = readScenario(text, fileName);
    if (const auto *const error = std::get_if<ScenarioError>(&result)) {
        return error->message();
    }
    auto &scenario = std::get<Scenario>(result);
    if (std::optional<std::string> reason = loadPlay(scenario, fileName)) {
        return *std::move(reason);
    }
    // Without its folder, so that traces of the same file can be compared wherever it lies.
    scenario.name = asked.substr(asked.find_last_of("/\\") + 1);
    return std::move(scenario);
}

} // namespace

std::variant<Scenario, std::string> findScenario(const std::string &nameOrPath)
{
    if (isPath(nameOrPath)) {
        const std::optional<std::string> text = bytesOf(nameOrPath);
        return text
                   ? read(*text, nameOrPath, nameOrPath)
                   : "the scenario file " + inQuotes(nameOrPath) +
                         " is no file or cannot be read; "
                         "name a file that can be, or a scenario that the simulator brings along, such as \"default\"";
    }
    std::vector<std::string> names;
    for (const ShippedScenario &shipped : shippedScenarios()) {
        if (shipped.name == nameOrPath) {
            return read(shipped.text, nameOrPath + std::string{extension}, nameOrPath);
        }
        names.emplace_back(shipped.name);
    }
    const std::string near = nearest(nameOrPath, names);
    return "there is no scenario " + inQuotes(nameOrPath) +
           (near.empty() ? "." : "; did you mean " + inQuotes(near) + '?') + " The simulator brings along " +
           enumeration(names) + "; a file of yours is named by a path that ends in .toml";
}

std::variant<Scenario, std::string> chosenScenario()
{
    const std::string chosen{environmentVariable("VELTRIX_SIMULATOR_SCENARIO")};
    if (chosen.empty()) {
        return Scenario{};
    }
    return findScenario(chosen);
}

} // namespace veltrix_simulator
