// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated device manager.
#pragma once

#include "calls/callpath.h"
#include "output/logoutput.h"
#include "units/port.h"
#include "units/state.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/device_manager.h"

namespace veltrix_simulator
{

/// Opens the one device on the simulator's ports, one at a time.
class SimulatedDeviceManager final : public veltrix_sdk::IDeviceManager
{
public:
    SimulatedDeviceManager(CallPath &itsPath, State &itsState, LogOutput &itsLog,
                           veltrix_sdk::IDeviceControl &itsDevice)
        : path{itsPath}, state{itsState}, log{itsLog}, device{itsDevice}
    {}

    veltrix_sdk::IDeviceControl *openDevice(const char *portName) override;
    void closeDevice(veltrix_sdk::IDeviceControl *closed) override;

    /// The caller has it from now on.
    void hold() { state.managerHeld = true; }
    /// The caller has it no more. A device that is still open is closed.
    void release();

private:
    void closeOpenDevice();
    const Port *findPort(const char *name) const;

    CallPath &path;
    State &state;
    LogOutput &log;
    veltrix_sdk::IDeviceControl &device;
};

} // namespace veltrix_simulator
