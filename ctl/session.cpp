// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One device library and, once a command needs it, the device that it opened.
#include "session.h"

#include "escaped.h"
#include "failure.h"
#include "interruption.h"
#include "ports.h"
#include "sdkentry.h"
#include "values.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"

#include <cstddef>
#include <string_view>
#include <utility>

using namespace veltrix_sdk;
using sdk_check::escaped;

namespace ctl
{

namespace
{

/// How often a unit is called that does not answer: one lost answer does not mean that it is gone.
constexpr int calls{3};

} // namespace

std::string keyOf(Unit unit)
{
    return unit == Unit::Camera ? "camera" : "blendUnit";
}

std::string nameOf(Unit unit)
{
    return unit == Unit::Camera ? "the camera" : "the Blend Unit";
}

void Session::close()
{
    if (device != nullptr) {
        manager->closeDevice(device);
        device = nullptr;
    }
    if (manager != nullptr) {
        sdk->releaseDeviceManager(&manager);
        manager = nullptr;
    }
    addressed.reset();
    greeted = {};
}

// Only when the library is needed, so that a command that reads a recording does not begin one in the same
// file.
void Session::beginRecording()
{
    if (recordingSettled) {
        return;
    }
    const std::string fault{recording::begin(link.recording, "pilotel-ctl")};
    if (!fault.empty()) {
        throw Failure{wrongUse, fault + '.'};
    }
    recordingSettled = true;
}

void Session::bringUp()
{
    if (itsConfiguration != nullptr) {
        return;
    }
    beginRecording();
    sdk = recording::sdkRoot();
    if (sdk == nullptr) {
        throw Failure{noDevice, "The device library has no root object."};
    }
    sdk->initialize();
    itsConfiguration = sdk->getConfiguration();
    if (itsConfiguration == nullptr) {
        throw Failure{noDevice, "The device library has no configuration."};
    }
}

ISdkConfiguration &Session::configuration()
{
    bringUp();
    return *itsConfiguration;
}

const std::vector<Setting> &Session::settings()
{
    if (settingTable.empty()) {
        settingTable = device_settings::deviceSettings(configuration().words);
    }
    return settingTable;
}

const std::vector<device_settings::ConfigurationValue> &Session::configurationTable()
{
    if (valueTable.empty()) {
        valueTable = device_settings::configurationValues(configuration().words);
    }
    return valueTable;
}

void Session::findPort()
{
    if (!link.port.empty()) {
        return;
    }
    const std::vector<std::string> names{likelyPorts()};
    if (names.empty()) {
        throw Failure{noDevice, "No port found. Plug the camera in, or name a port with --port."};
    }
    if (names.size() > 1) {
        std::string text{"There are several ports; name one with --port:"};
        for (const std::string &name : names) {
            text += ' ' + escaped(name);
        }
        throw Failure{wrongUse, text};
    }
    link.port = names.front();
}

void Session::open()
{
    if (device != nullptr) {
        return;
    }
    beginRecording();
    findPort();
    const char *const type{configuration().getCommunicationType()};
    if (type == nullptr || type != std::string_view{uartCommunication}) {
        throw Failure{noDevice, "The device library speaks through \"" +
                                    escaped(type == nullptr ? "" : type) + "\", and only \"" +
                                    uartCommunication + "\" will do."};
    }
    itsConfiguration->setBaudRate(link.baudRate.value_or(itsConfiguration->getDefaultBaudRate()));
    manager = sdk->getDeviceManager();
    device = manager == nullptr ? nullptr : manager->openDevice(link.port.c_str());
    if (device == nullptr) {
        close();
        throw Failure{noDevice, "No device opens on the port " + escaped(link.port) +
                                    ". Is it the right one, and does no other program hold it?"};
    }
    identify();
}

void Session::identify()
{
    // The Blend Unit is addressed first, and asked who is there even if that failed.
    constexpr Unit first{Unit::BlendUnit};
    addressed = device->setTarget(static_cast<std::int32_t>(first)) ? std::optional{first} : std::nullopt;
    std::uint8_t identity{0};
    const std::uint8_t result{device->connect(&identity)};
    std::string fault;
    if (result != 1) {
        fault = "does not say who it is.";
    } else if (identity != krIdentity) {
        fault = "is no KR camera: its identity is " + std::to_string(identity) + " instead of " +
                std::to_string(krIdentity) + '.';
    }
    if (!fault.empty()) {
        close();
        throw Failure{noDevice, "What is on the port " + escaped(link.port) + ' ' + fault};
    }
}

void Session::address(Unit unit)
{
    for (int call{0}; call < calls; ++call) {
        if (device->setTarget(static_cast<std::int32_t>(unit))) {
            addressed = unit;
            return;
        }
    }
    addressed.reset();
    throw Failure{noDevice, "No answer from " + nameOf(unit) + ": look at its power and its cable."};
}

void Session::greet(Unit unit)
{
    bool &known{greeted[static_cast<std::size_t>(unit)]};
    if (known) {
        return;
    }
    for (int call{0}; call < calls && !known; ++call) {
        FirmwareVersions versions{};
        device->getFirmwareVersions(&versions);
        known = versions.processor != 0 || versions.fpga != 0;
    }
    if (!known) {
        throw Failure{noDevice, "No answer from " + nameOf(unit) + ": look at its power and its cable."};
    }
    device->startReading();
}

Device &Session::on(Unit unit)
{
    open();
    if (addressed != unit) {
        address(unit);
    }
    greet(unit);
    return *device;
}

Reading Session::read(Unit unit, const Setting &setting)
{
    sdk_check::Answer answer{0, Values(setting.fields.size())};
    answer.result = setting.read(on(unit), answer.values);
    std::string fault{sdk_check::faultOf(setting, answer)};
    if (!fault.empty()) {
        // A unit that is gone answers nothing at all; it is not asked for everything else as well.
        address(unit);
        fault = keyOf(unit) + '.' + setting.key + ' ' + fault;
    }
    return {answer.values, fault};
}

Reading Session::readTwice(Unit unit, const Setting &setting)
{
    Reading first{read(unit, setting)};
    if (!first.fault.empty()) {
        return first;
    }
    Reading second{read(unit, setting)};
    for (std::size_t place{0}; second.fault.empty() && place < setting.fields.size(); ++place) {
        const device_settings::Place where{unit, &setting, place};
        const device_settings::Kind kind{setting.fields[place].kind};
        if (!device_settings::same(first.values[place], second.values[place])) {
            second.fault = device_settings::keyOf(where) + " answers " +
                           device_settings::numberText(first.values[place], kind) + ", then " +
                           device_settings::numberText(second.values[place], kind);
        }
    }
    return second;
}

bool Session::write(Unit unit, const Setting &setting, const Values &values, RegionFlags flags)
{
    const bool acknowledged{setting.write(on(unit), values, flags)};
    if (!acknowledged) {
        address(unit);
    }
    return acknowledged;
}

void Session::confirm()
{
    if (device != nullptr) {
        address(addressed.value_or(Unit::BlendUnit));
    }
}

void heedInterruption()
{
    if (wasInterrupted()) {
        throw Failure{refused, "Interrupted."};
    }
}

} // namespace ctl
