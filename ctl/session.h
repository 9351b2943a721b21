// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One device library and, once a command needs it, the device that it opened.
#pragma once

#include "configurationvalues.h"
#include "devicesettings.h"
#include "openeddevice.h"
#include "veltrix_sdk/sdk.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ctl
{

using device_settings::Device;
using device_settings::RegionFlags;
using device_settings::Setting;
using device_settings::Unit;
using device_settings::Values;

/// How the device is reached.
struct Link
{
    std::string port; ///< Empty: the one that likelyPorts() leaves.
    std::optional<std::int32_t> baudRate{};
    std::string recording{}; ///< The file that the calls are recorded in; empty: none.
};

/// What a setting answered.
struct Reading
{
    Values values;
    std::string fault; ///< One line; empty when all is well. The values are then allowed.
};

/// "blendUnit" or "camera", as keys begin.
std::string keyOf(Unit unit);
/// "the Blend Unit" or "the camera".
std::string nameOf(Unit unit);

/// The library is brought up and the device opened when they are first needed; the device is closed at the
/// end. All operations throw Failure.
class Session
{
public:
    explicit Session(Link itsLink) : link{std::move(itsLink)} {}
    ~Session() { close(); }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// The table of all settings, with the ranges that the library gives.
    const std::vector<Setting> &settings();
    /// The values of the configuration.
    const std::vector<device_settings::ConfigurationValue> &configurationTable();
    veltrix_sdk::ISdkConfiguration &configuration();

    /// Opens the device, if it is not open, and asks it who it is.
    void open();
    /// Closes the device; the next command that needs it opens it again.
    void close();
    /// The port of the device, as it was given or found.
    const std::string &port() const { return link.port; }
    /// The file that the calls are recorded in; empty: none.
    const std::string &recording() const { return link.recording; }
    /// The device with this unit addressed. A unit is asked for its versions before anything else.
    Device &on(Unit unit);
    /// What the unit answers. A unit that is found to be gone ends the command.
    Reading read(Unit unit, const Setting &setting);
    /// Two readings that agree, since a lost answer can look like a value; else a fault.
    Reading readTwice(Unit unit, const Setting &setting);
    /// Makes sure that the device is still there, since a lost answer can look like a 0.
    void confirm();
    /// Whether the unit acknowledged. A unit that is found to be gone ends the command.
    bool write(Unit unit, const Setting &setting, const Values &values, RegionFlags flags);

private:
    void beginRecording();
    void bringUp();
    void findPort();
    void identify();
    void address(Unit unit);
    void greet(Unit unit);

    Link link;
    bool recordingSettled{false};
    veltrix_sdk::IVeltrixSdk *sdk{nullptr};
    veltrix_sdk::ISdkConfiguration *itsConfiguration{nullptr};
    veltrix_sdk::IDeviceManager *manager{nullptr};
    Device *device{nullptr};
    std::optional<Unit> addressed{};
    std::array<bool, device_settings::units.size()> greeted{};
    std::vector<Setting> settingTable{};
    std::vector<device_settings::ConfigurationValue> valueTable{};
};

/// Ends the command when Ctrl-C was pressed.
void heedInterruption();

} // namespace ctl
