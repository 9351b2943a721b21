// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulator started on a scenario, with the device open.
#include "scenariocamera.h"

using namespace veltrix_simulator;

ScenarioCamera::ScenarioCamera(const Scenario &scenario)
{
    simulation.start(scenario);
    open();
}

void ScenarioCamera::reopen()
{
    manager.closeDevice(&device);
    open();
}

void ScenarioCamera::open()
{
    simulation.state.managerHeld = true;
    manager.openDevice(simulation.state.ports.front().name.c_str());
    simulation.state.target = 1;
}

Scenario scenarioWith(OperationId operation, Effect effect)
{
    Scenario scenario;
    FaultRule rule;
    rule.operations = {operation};
    rule.effect = effect;
    rule.origin = "test.toml:1";
    scenario.faults.push_back(rule);
    return scenario;
}

QString lastCall(const ScenarioCamera &camera)
{
    return QString::fromStdString(camera.simulation.path.journal().back().text);
}
