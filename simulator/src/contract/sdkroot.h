// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated root of the SDK.
#pragma once

#include "calls/callpath.h"
#include "contract/devicemanager.h"
#include "output/logoutput.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/device_manager.h"
#include "veltrix_sdk/sdk.h"

namespace veltrix_simulator
{

class SimulatedSdk final : public veltrix_sdk::IVeltrixSdk
{
public:
    SimulatedSdk(CallPath &itsPath, LogOutput &itsLog, veltrix_sdk::ISdkConfiguration &itsConfiguration,
                 SimulatedDeviceManager &itsManager)
        : path{itsPath}, log{itsLog}, configuration{itsConfiguration}, manager{itsManager}
    {}

    bool initialize() override;
    veltrix_sdk::ISdkConfiguration *getConfiguration() override;
    veltrix_sdk::IDeviceManager *getDeviceManager() override;
    void releaseDeviceManager(veltrix_sdk::IDeviceManager **released) override;

private:
    CallPath &path;
    LogOutput &log;
    veltrix_sdk::ISdkConfiguration &configuration;
    SimulatedDeviceManager &manager;
};

} // namespace veltrix_simulator
