// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulator started on a scenario, with the device open.
#pragma once

#include "scenarios/scenario.h"
#include "simulation.h"

#include <QMetaType>
#include <QString>

#include <functional>

/// Starts the simulation of this process on the scenario and opens its first port. Holds the manager and
/// selects the camera without a call, so that the first call of the device is the test's.
struct ScenarioCamera
{
    explicit ScenarioCamera(const veltrix_simulator::Scenario &scenario);

    /// Closes the device and opens it again on the first port; selects the camera.
    void reopen();

    veltrix_simulator::Simulation &simulation{veltrix_simulator::simulation()};
    veltrix_sdk::ISdkConfiguration &configuration{simulation.configuration};
    veltrix_sdk::IDeviceManager &manager{simulation.manager};
    veltrix_sdk::IDeviceControl &device{simulation.device};

private:
    void open();
};

/// What is changed of a rule, as a column of a table.
using Change = std::function<void(veltrix_simulator::FaultRule &rule)>;

Q_DECLARE_METATYPE(Change)

/// A scenario with one rule: `effect` for the operation.
veltrix_simulator::Scenario scenarioWith(veltrix_simulator::OperationId operation,
                                         veltrix_simulator::Effect effect);

/// The text of the latest call.
QString lastCall(const ScenarioCamera &camera);
