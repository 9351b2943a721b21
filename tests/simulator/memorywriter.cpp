// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A process that saves parameters into the file of its argument until it is killed, for the test of the
// memory.
#include "simulation.h"
#include "veltrix_sdk/sdk.h"

#include <cstdint>

int main(int argc, char *argv[])
{
    if (argc != 2) {
        return 1;
    }
    veltrix_simulator::Simulation &simulation = veltrix_simulator::simulation();
    if (simulation.memory.restore(simulation.state, argv[1])) {
        return 2;
    }
    auto &device = *simulation.root()->getDeviceManager()->openDevice("SIM1");
    // The test looks for the distance of the two: a file that mixes two saves does not have it.
    for (std::uint32_t clhe{0};; clhe = (clhe + 1) % 30'000) {
        if (!device.setClhe(clhe) || !device.setGamma(40'000 + clhe) || !device.saveBlendUnitParameters(0)) {
            return 3;
        }
    }
}
