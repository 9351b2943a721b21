// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The root of the SDK.
#pragma once

#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/device_manager.h"
#include "veltrix_sdk/export.h"
#include "veltrix_sdk/logger.h"

namespace veltrix_sdk
{

/// The root interface. The number behind an operation is its place in the table.
class IVeltrixSdk
{
private:
    virtual void kept0() {}

public:
    virtual bool initialize() = 0; ///< 1: Brings the SDK up; may be called again.

private:
    virtual void kept2() {}
    virtual void kept3() {}
    virtual void kept4() {}

public:
    virtual ISdkConfiguration *getConfiguration() = 0; ///< 5: Never null; owned by the SDK.

private:
    virtual void kept6() {}
    virtual void kept7() {}
    virtual void kept8() {}

public:
    virtual IDeviceManager *getDeviceManager() = 0; ///< 9: Held until it is released.

private:
    virtual void kept10() {}

public:
    virtual void releaseDeviceManager(IDeviceManager **manager) = 0; ///< 11: Address of the caller's pointer.

protected:
    ~IVeltrixSdk() = default;
};

/// Holder of the library's single root object.
class VELTRIX_SDK_EXPORT VeltrixSdk
{
public:
    /// The root object, owned by the SDK, valid until the process ends.
    static IVeltrixSdk *get_instance();
};

} // namespace veltrix_sdk
