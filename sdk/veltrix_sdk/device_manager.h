// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The SDK's device manager: opens and closes a device on a serial port.
#pragma once

namespace veltrix_sdk
{

class IDeviceControl;

/// Opens and closes a device. Owned by the SDK; handed back with IVeltrixSdk::releaseDeviceManager. The
/// number behind an operation is its place in the table.
class IDeviceManager
{
private:
    virtual void kept0() {}
    virtual void kept1() {}
    virtual void kept2() {}
    virtual void kept3() {}
    virtual void kept4() {}
    virtual void kept5() {}
    virtual void kept6() {}
    virtual void kept7() {}
    virtual void kept8() {}
    virtual void kept9() {}
    virtual void kept10() {}
    virtual void kept11() {}
    virtual void kept12() {}
    virtual void kept13() {}
    virtual void kept14() {}

public:
    /// 15: Null when no device could be opened on the port.
    virtual IDeviceControl *openDevice(const char *portName) = 0;
    virtual void closeDevice(IDeviceControl *device) = 0; ///< 16: Closes what openDevice returned.

protected:
    ~IDeviceManager() = default;
};

} // namespace veltrix_sdk
