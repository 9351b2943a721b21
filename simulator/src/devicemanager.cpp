// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated device manager.
#include "devicemanager.h"

#include <algorithm>
#include <cstdint>

namespace veltrix_simulator
{

veltrix_sdk::IDeviceControl *SimulatedDeviceManager::openDevice(const char *portName)
{
    const auto open = [&]() -> veltrix_sdk::IDeviceControl * {
        if (state.deviceOpen || !isPort(portName)) {
            return nullptr;
        }
        state.deviceOpen = true;
        state.target = 0;
        return &device;
    };
    return core.call(Interface::Manager, __func__, open, portName);
}

void SimulatedDeviceManager::closeDevice(veltrix_sdk::IDeviceControl *closed)
{
    const auto close = [&] {
        if (!state.deviceOpen || closed != &device) {
            return;
        }
        state.deviceOpen = false;
        for (Unit &unit : state.units) {
            unit.badPixels.close(static_cast<std::uint32_t>(unit[Field::serialNumber]), log);
        }
    };
    core.call(Interface::Manager, __func__, close, closed);
}

bool SimulatedDeviceManager::isPort(const char *name) const
{
    return name != nullptr && std::find(state.ports.begin(), state.ports.end(), name) != state.ports.end();
}

} // namespace veltrix_simulator
