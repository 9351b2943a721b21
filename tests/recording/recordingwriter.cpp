// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A process that records a session of a hundred calls in the file of its first argument, and dies in the
// midst of it with the second argument "abort".
#include "sdkentry.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

using namespace veltrix_sdk;

int main(int argc, char *argv[])
{
    const std::string fault{recording::begin(argc > 1 ? argv[1] : "", "recordingwriter")};
    if (!fault.empty()) {
        std::cerr << fault << '\n';
        return 2;
    }
    IVeltrixSdk &sdk = *recording::sdkRoot();
    sdk.initialize();
    ISdkConfiguration &configuration = *sdk.getConfiguration();
    IDeviceManager *manager{sdk.getDeviceManager()};
    IDeviceControl *const device{manager->openDevice("SIM1")};
    configuration.words.gskDefault = 3;
    for (std::uint32_t gamma{60'000}; gamma < 60'100; ++gamma) {
        device->setGamma(gamma);
    }
    recording::LogRecord{severity_info}.stream() << "the last call";
    if (argc > 2 && argv[2] == std::string_view{"abort"}) {
        std::abort();
    }
    manager->closeDevice(device);
    sdk.releaseDeviceManager(&manager);
    return 0;
}
