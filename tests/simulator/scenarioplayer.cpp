// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A process that says what it finds behind the contract, for the test of how a scenario is chosen.
#include "veltrix_sdk/sdk.h"

#include <cstdio>

using namespace veltrix_sdk;

extern "C" const char *const *veltrix_sdk_additional_ports();

int main()
{
    IVeltrixSdk *const sdk = VeltrixSdk::get_instance();
    std::printf("expert mode %s", sdk->getConfiguration()->isExpertMode() ? "on" : "off");
    for (const char *const *port = veltrix_sdk_additional_ports(); *port != nullptr; ++port) {
        // Twice, since a refusal has to stay one.
        const bool first{sdk->getDeviceManager()->openDevice(*port) != nullptr};
        const bool second{sdk->getDeviceManager()->openDevice(*port) != nullptr};
        std::printf(", %s %s", *port, first || second ? "opens" : "stays shut");
    }
    return 0;
}
