// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulator's own interface, on top of the simulation.
#include "veltrix_simulator/simulator.h"

#include "calls/callpath.h"
#include "faults/activefaults.h"
#include "faults/testfault.h"
#include "scenarios/scenario.h"
#include "scenarios/scenariolibrary.h"
#include "simulation.h"
#include "units/port.h"
#include "units/state.h"

#include <stdexcept>
#include <utility>
#include <variant>

namespace veltrix_simulator
{

class Simulator::Impl
{
public:
    Simulation &simulation;
};

Simulator::Simulator() : impl{new Impl{simulation()}} {}

Simulator::~Simulator()
{
    delete impl;
}

Simulator &Simulator::instance()
{
    static auto *const simulator = new Simulator;
    return *simulator;
}

void Simulator::reset()
{
    impl->simulation.reset();
}

void Simulator::loadScenario(const std::string &nameOrPath)
{
    const std::variant<Scenario, std::string> found = findScenario(nameOrPath);
    if (const auto *const reason = std::get_if<std::string>(&found)) {
        throw std::invalid_argument{*reason};
    }
    impl->simulation.start(std::get<Scenario>(found));
}

const std::vector<Call> &Simulator::journal() const
{
    return impl->simulation.path.journal();
}

void Simulator::clearJournal()
{
    impl->simulation.path.clearJournal();
}

void Simulator::setJournalEnabled(bool enabled)
{
    impl->simulation.path.setJournalEnabled(enabled);
}

std::size_t Simulator::callsWhileNotOpen() const
{
    return impl->simulation.path.callsWhileNotOpen();
}

bool Simulator::isDeviceOpen() const
{
    return impl->simulation.state.deviceOpen;
}

void Simulator::set(std::string_view key, const Value &value)
{
    impl->simulation.state.set(key, value);
}

Value Simulator::get(std::string_view key) const
{
    return impl->simulation.state.get(key);
}

std::vector<std::string> Simulator::keys() const
{
    return State::keys();
}

void Simulator::setPorts(std::vector<std::string> ports)
{
    impl->simulation.state.ports.clear();
    for (std::string &name : ports) {
        impl->simulation.state.ports.push_back({std::move(name)});
    }
}

void Simulator::addFault(Fault fault)
{
    impl->simulation.path.activeFaults().add(ruleOf(std::move(fault)));
}

void Simulator::clearFaults()
{
    impl->simulation.path.activeFaults().clear();
}

std::vector<std::string> Simulator::unfiredFaults() const
{
    return impl->simulation.path.activeFaults().unfired();
}

} // namespace veltrix_simulator
