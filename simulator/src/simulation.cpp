// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated SDK as a whole: its root object and everything behind it.
#include "simulation.h"

#include "scenario.h"

#include <string>

namespace veltrix_simulator
{

bool SimulatedSdk::initialize()
{
    const auto bringUp = [&] {
        log.write(veltrix_sdk::severity_trace, "Simulated SDK ready");
        return true;
    };
    return core.call(Interface::Root, __func__, bringUp);
}

veltrix_sdk::ISdkConfiguration *SimulatedSdk::getConfiguration()
{
    return core.call(Interface::Root, __func__, [&] { return &configuration; });
}

veltrix_sdk::IDeviceManager *SimulatedSdk::getDeviceManager()
{
    return core.call(Interface::Root, __func__, [&] { return &manager; });
}

// The caller's pointer stays as it is: setting it to null is the caller's business.
void SimulatedSdk::releaseDeviceManager(veltrix_sdk::IDeviceManager **released)
{
    core.call(
        Interface::Root, __func__, [] {}, released);
}

Simulation::Simulation()
{
    reset();
}

void Simulation::reset()
{
    const Scenario scenario;
    state.reset();
    memory.restore(state, scenario.memoryFile);
    core.reset();
    core.trace.start(scenario.name, scenario.seed);
}

veltrix_sdk::IVeltrixSdk *Simulation::root()
{
    return core.call(Interface::Root, "get_instance", [&]() -> veltrix_sdk::IVeltrixSdk * { return &sdk; });
}

void Simulation::completeRecord(veltrix_sdk::severity_level severity, std::string_view text)
{
    core.call(
        Interface::Log, "log", [&] { log.write(severity, text); }, static_cast<int>(severity), text);
}

const char *const *Simulation::portNames()
{
    names.clear();
    for (const std::string &port : state.ports) {
        names.push_back(port.c_str());
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
