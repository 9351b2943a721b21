// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Prints the serial number of the unit behind a port.
#include "veltrix_sdk/sdk.h"

#include <iostream>

int main(int argc, char *argv[])
{
    using namespace veltrix_sdk;
    IVeltrixSdk *const sdk{VeltrixSdk::get_instance()};
    sdk->initialize();
    IDeviceManager *manager{sdk->getDeviceManager()};
    IDeviceControl *const device{manager->openDevice(argc > 1 ? argv[1] : "")};
    if (device != nullptr) {
        std::cout << device->getSerialNumber() << '\n';
        manager->closeDevice(device);
    }
    sdk->releaseDeviceManager(&manager);
    return device != nullptr ? 0 : 1;
}
