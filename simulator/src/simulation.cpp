// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated SDK as a whole: its root object and everything behind it.
#include "simulation.h"

#include "faults/activefaults.h"
#include "faults/faultrule.h"
#include "operations/operations.h"
#include "output/process.h"
#include "scenarios/scenariolibrary.h"
#include "time/life.h"
#include "units/port.h"
#include "units/unitnames.h"
#include "veltrix_simulator/simulator.h"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <string>
#include <variant>

namespace veltrix_simulator
{

Simulation::Simulation()
{
    const std::variant<Scenario, std::string> chosen = chosenScenario();
    try {
        if (const auto *const reason = std::get_if<std::string>(&chosen)) {
            throw std::invalid_argument{*reason};
        }
        powerOn(std::get<Scenario>(chosen));
        announceUnfired(std::get<Scenario>(chosen));
    } catch (const std::invalid_argument &error) {
        refuseToOpen(error.what());
    }
}

// The default scenario is not played in its place: it is a healthy camera, and nobody would notice the
// mistake.
void Simulation::refuseToOpen(const char *reason)
{
    log.write(veltrix_sdk::severity_error, reason);
    writeToStandardError(std::string{"veltrix.sdk: "} + reason + '\n');
    Scenario refused;
    refused.name = "refused";
    for (Port &port : refused.ports) {
        port.opening = Port::Opening::Refused;
    }
    powerOn(refused);
}

void Simulation::start(const Scenario &scenario)
{
    try {
        powerOn(scenario);
    } catch (const std::invalid_argument &) {
        reset();
        throw;
    }
    announceUnfired(scenario);
}

void Simulation::announceUnfired(const Scenario &scenario)
{
    if (!scenario.faults.empty()) {
        static const bool isAnnounced{std::atexit([] { simulation().reportUnfired(); }) == 0};
        static_cast<void>(isAnnounced);
    }
}

void Simulation::reset()
{
    powerOn({});
}

void Simulation::powerOn(const Scenario &scenario)
{
    state.reset();
    path.start(scenario.link, scenario.life, scenario.faults, scenario.seed);
    player.start(scenario.play);
    state.ports = scenario.ports;
    for (const auto &[key, value] : scenario.values) {
        state.set(key, value);
    }
    for (const int target : scenario.unitsWithPixels) {
        badPixelsOf(target) = {};
    }
    for (const PixelPlace &pixel : scenario.badPixels) {
        if (!badPixelsOf(pixel.target).declareInUnit(pixel.column, pixel.row)) {
            throw std::invalid_argument{"the sensor has no pixel in column " + std::to_string(pixel.column) +
                                        " of row " + std::to_string(pixel.row)};
        }
    }
    if (const std::optional<std::string> damage = memory.restore(state, scenario.memoryFile)) {
        throw std::invalid_argument{*damage};
    }
    path.startTrace(scenario.name, scenario.seed);
}

BadPixelMemory &Simulation::badPixelsOf(int target)
{
    if (!isUnit(target)) {
        throw std::invalid_argument{noSuchUnit(target)};
    }
    return state.units[static_cast<std::size_t>(target)].badPixels;
}

void Simulation::reportUnfired()
{
    for (const std::string &origin : path.activeFaults().unfired()) {
        const std::string report = origin + ": this fault never happened";
        log.write(veltrix_sdk::severity_warning, report);
        writeToStandardError("veltrix.sdk: " + report + '\n');
    }
}

veltrix_sdk::IVeltrixSdk *Simulation::root()
{
    return path.call(OperationId::get_instance, {}, [&]() -> veltrix_sdk::IVeltrixSdk * { return &sdk; });
}

void Simulation::completeRecord(veltrix_sdk::severity_level severity, std::string_view text)
{
    path.call(OperationId::log, {static_cast<std::int32_t>(severity), text},
              [&] { log.write(severity, text); });
}

const char *const *Simulation::portNames()
{
    names.clear();
    for (const Port &port : state.ports) {
        names.push_back(port.name.c_str());
    }
    names.push_back(nullptr);
    return names.data();
}

Simulation &simulation()
{
    static auto *const instance = new Simulation;
    return *instance;
}

} // namespace veltrix_simulator
