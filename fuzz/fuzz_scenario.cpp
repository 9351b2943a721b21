// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Throws bytes at the parser of scenario files, and plays what it takes for one.
#include "scenarios/scenarioreader.h"
#include "simulation.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <variant>

using namespace veltrix_simulator;

namespace
{

/// Takes all waiting out of a scenario, so that the fuzzer gets through more of them.
void hurry(Scenario &scenario)
{
    scenario.link = {};
    for (FaultRule &rule : scenario.faults) {
        rule.delay = {};
    }
    for (Port &port : scenario.ports) {
        port.delay = {};
    }
}

/// Some of each kind of operation on both units, on the first port that opens.
void play(const Scenario &scenario)
{
    Simulation &played{simulation()};
    for (const Port &port : scenario.ports) {
        veltrix_sdk::IDeviceControl *const device{played.manager.openDevice(port.name.c_str())};
        if (device == nullptr) {
            continue;
        }
        for (const std::int32_t target : {0, 1}) {
            device->setTarget(target);
            std::uint8_t identity{0};
            device->connect(&identity);
            veltrix_sdk::Temperatures temperatures{};
            veltrix_sdk::OperatingInfo info{};
            veltrix_sdk::ZoomConfig zoom{};
            veltrix_sdk::Warp warp{};
            for (int round{0}; round < 3; ++round) {
                device->getTemperatures(&temperatures);
                device->getOperatingInfo(&info);
                device->getZoomConfig(&zoom);
                device->configureZoom(&zoom);
                device->getWarp(&warp);
                device->getEdgeCorrection();
                device->setGamma(device->getGamma() + 1);
                device->setColorLut(device->getColorLut());
            }
        }
        played.manager.closeDevice(device);
        return;
    }
}

} // namespace

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
    auto &scenario = std::get<Scenario>(read);
    // No memory file: the fuzzer neither reads nor writes in the folder that it runs in.
    scenario.memoryFile.clear();
    hurry(scenario);
    simulation().start(scenario);
    play(scenario);
    return 0;
}
