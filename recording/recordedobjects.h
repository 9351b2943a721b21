// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The objects of the contract that stand before those of the device library and write what is called.
#pragma once

#include "forwarder.h"
#include "recordeddevice.h"
#include "recorder.h"
#include "standins.h"
#include "units/configurationfields.h"
#include "values/value.h"
#include "veltrix_sdk/sdk.h"

#include <cstdint>

namespace recording
{

/// The operations that answer a value are made from the rows of configurationfields.inc. The words are a copy
/// of the library's, which the recorder keeps like them.
class RecordedConfiguration final : public Forwarder<veltrix_sdk::ISdkConfiguration>
{
public:
    RecordedConfiguration(Recorder &itsRecorder, veltrix_sdk::ISdkConfiguration &itsObject);

#define FORWARD(operation)                                                                                   \
    veltrix_simulator::TypeOf<veltrix_simulator::kindOfResult(&ISdkConfiguration::operation)> operation()    \
        override                                                                                             \
    {                                                                                                        \
        return forward<&ISdkConfiguration::operation>();                                                     \
    }
#define STORED(...)
#define VALUE(name, operation, ...) FORWARD(operation)
#define WORD(...)
#define WORD_VALUE(operation, ...) FORWARD(operation)
#include "units/configurationfields.inc"
#undef FORWARD

    const char *getCommunicationType() override
    {
        return forward<&ISdkConfiguration::getCommunicationType>();
    }
    void setBaudRate(std::int32_t baudRate) override
    {
        forward<&ISdkConfiguration::setBaudRate>(baudRate);
    }
};

class RecordedManager final : public Forwarder<veltrix_sdk::IDeviceManager>
{
public:
    using Forwarder<veltrix_sdk::IDeviceManager>::Forwarder;

    veltrix_sdk::IDeviceControl *openDevice(const char *portName) override;
    void closeDevice(veltrix_sdk::IDeviceControl *device) override;

private:
    StandIns<RecordedDevice, veltrix_sdk::IDeviceControl> devices{recorder, &Objects::device};
};

class RecordedSdk final : public Forwarder<veltrix_sdk::IVeltrixSdk>
{
public:
    using Forwarder<veltrix_sdk::IVeltrixSdk>::Forwarder;

    bool initialize() override;
    veltrix_sdk::ISdkConfiguration *getConfiguration() override;
    veltrix_sdk::IDeviceManager *getDeviceManager() override;
    void releaseDeviceManager(veltrix_sdk::IDeviceManager **manager) override;

private:
    StandIns<RecordedConfiguration, veltrix_sdk::ISdkConfiguration> configurations{recorder,
                                                                                   &Objects::configuration};
    StandIns<RecordedManager, veltrix_sdk::IDeviceManager> managers{recorder, &Objects::manager};
};

} // namespace recording
