// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A process that calls operations of every interface and ends, or dies with the argument "abort", for the
// test of the trace.
#include "veltrix_sdk/sdk.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace veltrix_sdk;

int main(int argc, char *argv[])
{
    IVeltrixSdk &sdk = *VeltrixSdk::get_instance();
    sdk.initialize();
    sdk.getConfiguration()->getDefaultGamma();
    IDeviceManager *manager{sdk.getDeviceManager()};
    IDeviceControl *const device{manager->openDevice("SIM1")};
    std::uint8_t identity{0};
    device->connect(&identity);
    device->setTarget(1);
    Temperatures temperatures{};
    device->getTemperatures(&temperatures);
    for (std::uint32_t gamma{60'000}; gamma < 60'100; ++gamma) {
        device->setGamma(gamma);
    }
    SDKLogger{severity_info}.GetILogger() << "the last call";
    if (argc > 1 && argv[1] == std::string_view{"abort"}) {
        std::abort();
    }
    manager->closeDevice(device);
    sdk.releaseDeviceManager(&manager);
    return 0;
}
