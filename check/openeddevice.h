// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One device as the check uses it: opened, asked, written to, closed in any case.
#pragma once

#include "check.h"
#include "readings.h"
#include "report.h"

#include <array>
#include <cstddef>

namespace sdk_check
{

/// What an operation answered: its result and its numbers.
struct Answer
{
    std::uint8_t result; ///< Only 1 is success.
    Values values;
};

/// What is wrong with an answer; empty when nothing is.
std::string faultOf(const Reading &row, const Answer &answer);
/// The numbers of an answer, with their names where there are several.
std::string answerText(const Reading &row, const Answer &answer);
/// Whether result and numbers are the same; the numbers of a refusal mean nothing.
bool same(const Answer &left, const Answer &right);

/// A device manager and the device that it opened. Both are handed back at the end of its life.
class OpenedDevice
{
public:
    /// The root and the report outlive it.
    OpenedDevice(veltrix_sdk::IVeltrixSdk &itsSdk, Report &itsReport) : sdk{itsSdk}, report{itsReport} {}
    ~OpenedDevice();
    OpenedDevice(const OpenedDevice &) = delete;
    OpenedDevice &operator=(const OpenedDevice &) = delete;

    /// Opens the device on the port and identifies it; false when there is none to go on with.
    bool open(const std::string &port);
    /// Selects the unit; false when the device refuses. Refusals and the first success are findings.
    bool select(Unit unit);
    /// Calls the operation that reads.
    Answer read(const Reading &row, Unit unit);
    /// Calls the operation that writes.
    bool write(const Reading &row, Unit unit, const Values &values);
    RegionFlags regionFlags() { return readRegionFlags(*device); }

private:
    bool identify();

    veltrix_sdk::IVeltrixSdk &sdk;
    Report &report;
    veltrix_sdk::IDeviceManager *manager{nullptr};
    veltrix_sdk::IDeviceControl *device{nullptr};
    std::array<bool, units.size()> everSelected{};
};

} // namespace sdk_check
