// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The objects of the contract, one of each, as calls name them.
#pragma once

#include "veltrix_sdk/sdk.h"

#include <array>
#include <cstddef>
#include <type_traits>

namespace veltrix_simulator
{

/// The objects of the contract. They outlive whoever holds this.
struct Objects
{
    /// The object of a class.
    template <typename T>
    T *get() const
    {
        if constexpr (std::is_same_v<T, veltrix_sdk::IVeltrixSdk>) {
            return sdk;
        } else if constexpr (std::is_same_v<T, veltrix_sdk::ISdkConfiguration>) {
            return configuration;
        } else if constexpr (std::is_same_v<T, veltrix_sdk::IDeviceManager>) {
            return manager;
        } else {
            return device;
        }
    }

    veltrix_sdk::IVeltrixSdk *sdk;
    veltrix_sdk::ISdkConfiguration *configuration;
    veltrix_sdk::IDeviceManager *manager;
    veltrix_sdk::IDeviceControl *device;
};

/// A pointer to an object of the contract, of whichever class.
class ObjectPointer
{
public:
    ObjectPointer(const veltrix_sdk::IVeltrixSdk *object) : kind{0}, address{object} {}
    ObjectPointer(const veltrix_sdk::ISdkConfiguration *object) : kind{1}, address{object} {}
    ObjectPointer(const veltrix_sdk::IDeviceManager *object) : kind{2}, address{object} {}
    ObjectPointer(const veltrix_sdk::IDeviceControl *object) : kind{3}, address{object} {}

    bool isNull() const { return address == nullptr; }

    /// Name of the object: "unknown" when it is not the one of its class.
    const char *nameAmong(const Objects &objects) const
    {
        constexpr std::array<const char *, 4> names{"sdk", "configuration", "manager", "device"};
        const std::array<const void *, 4> known{objects.sdk, objects.configuration, objects.manager,
                                                objects.device};
        return known[kind] == address ? names[kind] : "unknown";
    }

private:
    std::size_t kind;
    const void *address;
};

} // namespace veltrix_simulator
