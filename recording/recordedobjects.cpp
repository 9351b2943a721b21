// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The objects of the contract that stand before those of the device library and write what is called.
#include "recordedobjects.h"

#include "veltrix_sdk/numbers.h"

using namespace veltrix_sdk;
using veltrix_simulator::ObjectPointer;

namespace recording
{

RecordedConfiguration::RecordedConfiguration(Recorder &itsRecorder, ISdkConfiguration &itsObject)
    : Forwarder<ISdkConfiguration>{itsRecorder, itsObject}
{
    words = itsObject.words;
    recorder.keepAlike(words, itsObject.words);
}

IDeviceControl *RecordedManager::openDevice(const char *portName)
{
    IDeviceControl *const opened{recorder.call(OperationId::openDevice, {recorder.told(portName)},
                                               [&] { return devices.of(object.openDevice(portName)); })};
    if (opened != nullptr) {
        recorder.deviceOpen = true;
        recorder.target = targetBlendUnit;
    }
    return opened;
}

void RecordedManager::closeDevice(IDeviceControl *device)
{
    recorder.call(OperationId::closeDevice, {ObjectPointer{device}},
                  [&] { object.closeDevice(devices.behind(device)); });
    if (device == recorder.objects.device) {
        recorder.deviceOpen = false;
    }
}

bool RecordedSdk::initialize()
{
    return recorder.call(OperationId::initialize, {}, [&] { return object.initialize(); });
}

ISdkConfiguration *RecordedSdk::getConfiguration()
{
    const Begun begun{recorder.begin(OperationId::getConfiguration)};
    ISdkConfiguration *given{configurations.of(object.getConfiguration())};
    recorder.finish(begun, OperationId::getConfiguration, {}, ResultPlace{&given},
                    given != nullptr ? &given->words : nullptr);
    return given;
}

IDeviceManager *RecordedSdk::getDeviceManager()
{
    IDeviceManager *const given{recorder.call(OperationId::getDeviceManager, {},
                                              [&] { return managers.of(object.getDeviceManager()); })};
    recorder.managerHeld = recorder.managerHeld || given != nullptr;
    return given;
}

void RecordedSdk::releaseDeviceManager(IDeviceManager **manager)
{
    IDeviceManager *const before{manager != nullptr ? *manager : nullptr};
    IDeviceManager *const behind{managers.behind(before)};
    IDeviceManager *left{behind};
    recorder.call(OperationId::releaseDeviceManager, {ObjectPointer{before}},
                  [&] { object.releaseDeviceManager(manager != nullptr ? &left : nullptr); });
    // Some libraries set the caller's pointer to null, others leave it.
    if (left != behind) {
        *manager = managers.of(left);
    }
    if (before != nullptr && before == recorder.objects.manager) {
        recorder.managerHeld = false;
        recorder.deviceOpen = false;
    }
}

} // namespace recording
