// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated device manager.
#include "contract/devicemanager.h"

#include "calls/objects.h"
#include "operations/operations.h"
#include "time/link.h"
#include "units/badpixels.h"
#include "units/unitfields.h"

#include <algorithm>
#include <cstdint>

namespace veltrix_simulator
{

veltrix_sdk::IDeviceControl *SimulatedDeviceManager::openDevice(const char *portName)
{
    const auto open = [&]() -> veltrix_sdk::IDeviceControl * {
        const Port *const port = findPort(portName);
        if (state.deviceOpen || port == nullptr) {
            return nullptr;
        }
        pause(port->delay);
        if (port->opening == Port::Opening::Refused) {
            return nullptr;
        }
        state.open(port->opening == Port::Opening::Silent);
        return &device;
    };
    return path.call(OperationId::openDevice, {portName}, open);
}

void SimulatedDeviceManager::closeDevice(veltrix_sdk::IDeviceControl *closed)
{
    const auto close = [&] {
        if (closed == &device) {
            closeOpenDevice();
        }
    };
    path.call(OperationId::closeDevice, {ObjectPointer{closed}}, close);
}

void SimulatedDeviceManager::release()
{
    closeOpenDevice();
    state.managerHeld = false;
}

void SimulatedDeviceManager::closeOpenDevice()
{
    if (!state.deviceOpen) {
        return;
    }
    state.deviceOpen = false;
    for (Unit &unit : state.units) {
        unit.badPixels.close(static_cast<std::uint32_t>(unit[Field::serialNumber]), log);
    }
}

const Port *SimulatedDeviceManager::findPort(const char *name) const
{
    if (name == nullptr) {
        return nullptr;
    }
    const auto found = std::find_if(state.ports.begin(), state.ports.end(),
                                    [&](const Port &port) { return port.name == name; });
    return found == state.ports.end() ? nullptr : &*found;
}

} // namespace veltrix_simulator
