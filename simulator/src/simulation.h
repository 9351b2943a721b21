// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated SDK as a whole: its root object and everything behind it.
#pragma once

#include "calls/callpath.h"
#include "contract/configuration.h"
#include "contract/device.h"
#include "contract/devicemanager.h"
#include "contract/sdkroot.h"
#include "output/logoutput.h"
#include "recordings/player.h"
#include "scenarios/scenario.h"
#include "units/badpixels.h"
#include "units/memory.h"
#include "units/state.h"
#include "veltrix_sdk/logger.h"
#include "veltrix_sdk/sdk.h"

#include <string_view>
#include <vector>

namespace veltrix_simulator
{

/// All objects of the simulation; there is one set in a process. The objects of the contract keep references
/// to state and path, which are declared after them because State needs the configuration's words and
/// CallPath the objects' addresses.
struct Simulation
{
    /// Power-on with the scenario that the environment chooses.
    Simulation();
    Simulation(const Simulation &) = delete;
    Simulation &operator=(const Simulation &) = delete;

    /// Power-on with what the scenario settles. Throws std::invalid_argument, with the default scenario in
    /// its place, when it cannot be played.
    void start(const Scenario &scenario);
    /// Power-on with the default scenario.
    void reset();
    veltrix_sdk::IVeltrixSdk *root();
    void completeRecord(veltrix_sdk::severity_level severity, std::string_view text);
    /// The names of the ports, null-terminated; valid until the next call.
    const char *const *portNames();

    /// Tells of the faults that never happened.
    void reportUnfired();

    LogOutput log;
    Memory memory;
    SimulatedConfiguration configuration{path, state};
    SimulatedDevice device{path, state, log, memory};
    SimulatedDeviceManager manager{path, state, log, device};
    SimulatedSdk sdk{path, log, configuration, manager};
    State state{configuration.words};
    Player player{log};
    CallPath path{state, {&sdk, &configuration, &manager, &device}, player};
    std::vector<const char *> names; ///< What portNames() returned last.

private:
    void powerOn(const Scenario &scenario);
    /// Arranges that the faults of the scenario that never happened are told when the process ends.
    static void announceUnfired(const Scenario &scenario);
    /// Says once why the scenario cannot be played. Then the ports are listed, and none of them opens.
    void refuseToOpen(const char *reason);
    BadPixelMemory &badPixelsOf(int target);
};

/// The simulation of this process. It is never destroyed: objects that outlive main() may still log.
Simulation &simulation();

} // namespace veltrix_simulator
