// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated root of the SDK.
#include "contract/sdkroot.h"

#include "calls/objects.h"
#include "operations/operations.h"
#include "veltrix_sdk/logger.h"

namespace veltrix_simulator
{

bool SimulatedSdk::initialize()
{
    const auto bringUp = [&] {
        log.write(veltrix_sdk::severity_trace, "Simulated SDK ready");
        return true;
    };
    return path.call(OperationId::initialize, {}, bringUp);
}

veltrix_sdk::ISdkConfiguration *SimulatedSdk::getConfiguration()
{
    return path.call(OperationId::getConfiguration, {}, [&] { return &configuration; });
}

veltrix_sdk::IDeviceManager *SimulatedSdk::getDeviceManager()
{
    const auto hand = [&]() -> veltrix_sdk::IDeviceManager * {
        return &manager;
    };
    veltrix_sdk::IDeviceManager *const handed{path.call(OperationId::getDeviceManager, {}, hand)};
    // Whoever got it, by an answer of a fault as well, has it.
    if (handed != nullptr) {
        manager.hold();
    }
    return handed;
}

// The caller's pointer stays as it is: setting it to null is the caller's business.
void SimulatedSdk::releaseDeviceManager(veltrix_sdk::IDeviceManager **released)
{
    const ObjectPointer named{released != nullptr ? *released : nullptr};
    const auto release = [&] {
        if (released != nullptr && *released == &manager) {
            manager.release();
        }
    };
    path.call(OperationId::releaseDeviceManager, {named}, release);
}

} // namespace veltrix_simulator
