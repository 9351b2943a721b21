// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The objects of the contract, one of each, as calls name them.
#pragma once

#include "veltrix_sdk/sdk.h"

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
    ObjectPointer(const veltrix_sdk::IVeltrixSdk *object) : ObjectPointer{"sdk", object} {}
    ObjectPointer(const veltrix_sdk::ISdkConfiguration *object) : ObjectPointer{"configuration", object} {}
    ObjectPointer(const veltrix_sdk::IDeviceManager *object) : ObjectPointer{"manager", object} {}
    ObjectPointer(const veltrix_sdk::IDeviceControl *object) : ObjectPointer{"device", object} {}

    bool isNull() const { return address == nullptr; }

    /// Name of the object: "unknown" when it is not the one of its class.
    const char *nameAmong(const Objects &objects) const
    {
        return objectOfClass(objects) == address ? name : "unknown";
    }

private:
    template <typename T>
    ObjectPointer(const char *itsName, const T *object)
        : name{itsName}, address{object}, objectOfClass{[](const Objects &objects) -> const void * {
              return objects.get<T>();
          }}
    {}

    const char *name;
    const void *address;
    const void *(*objectOfClass)(const Objects &objects);
};

} // namespace veltrix_simulator
