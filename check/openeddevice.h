// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One device as the check uses it: opened, asked, written to, closed in any case.
#pragma once

#include "devicesettings.h"
#include "readings.h"
#include "report.h"
#include "veltrix_sdk/sdk.h"

#include <array>
#include <cstdint>
#include <string>

namespace sdk_check
{

/// What an operation answered: its result and its numbers.
struct Answer
{
    std::uint8_t result; ///< Only 1 is success, where it counts.
    Values values;
};

/// What a line adds to a result that is false where it does not count.
inline constexpr const char *notExamined{", which is not examined"};

/// What is wrong with an answer; empty when nothing is.
std::string faultOf(const Setting &row, const Answer &answer);
/// The numbers of an answer, with their names where there are several.
std::string answerText(const Setting &row, const Answer &answer);
/// Whether result and numbers are the same; the numbers of a refusal mean nothing. A result that does not
/// count is not compared.
bool same(const Setting &row, const Answer &left, const Answer &right);

/// A device manager and the device that it opened. Both are handed back at the end of its life.
class OpenedDevice
{
public:
    /// The root and the report outlive it.
    OpenedDevice(veltrix_sdk::IVeltrixSdk &itsSdk, Report &itsReport) : sdk{itsSdk}, report{itsReport} {}
    ~OpenedDevice();
    OpenedDevice(const OpenedDevice &) = delete;
    OpenedDevice &operator=(const OpenedDevice &) = delete;

    /// Opens the device on the port and identifies it by the operation; false when no device opened or it is
    /// no KR camera.
    bool open(const std::string &port, const Setting &identity);
    /// Selects the unit; false when the device refuses. Refusals and the first success are findings.
    bool select(Unit unit);
    /// Calls the operation that reads.
    Answer read(const Setting &row, Unit unit);
    /// Calls the operation that writes. The flags of the regions that were noted travel with a region.
    bool write(const Setting &row, Unit unit, const Values &values);
    /// Reads which of the optional regions are on.
    void noteRegionFlags() { regionFlags = device_settings::readRegionFlags(*device); }

private:
    bool identify(const Setting &identity);

    veltrix_sdk::IVeltrixSdk &sdk;
    Report &report;
    veltrix_sdk::IDeviceManager *manager{nullptr};
    veltrix_sdk::IDeviceControl *device{nullptr};
    std::array<bool, device_settings::units.size()> everSelected{};
    RegionFlags regionFlags{};
};

} // namespace sdk_check
