// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Starts a scenario with two faults, lets one of them happen and ends; "reset" goes back to the default
// before.
#include "simulation.h"

#include <string>

int main(int count, char ** /*arguments*/)
{
    using namespace veltrix_simulator;
    Scenario scenario;
    for (const OperationId operation : {OperationId::setGamma, OperationId::setClhe}) {
        FaultRule rule;
        rule.operations = {operation};
        rule.origin = "flaky.toml:" + std::string{nameOf(operation).name};
        scenario.faults.push_back(rule);
    }
    simulation().start(scenario);
    simulation().sdk.getDeviceManager()->openDevice("SIM1");
    simulation().device.setClhe(1);
    if (count > 1) {
        simulation().reset();
    }
    return 0;
}
