// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The bad pixels of one unit: its own table and the local one that is edited.
#pragma once

#include "units/bprfile.h"

#include <cstdint>
#include <optional>

namespace veltrix_simulator
{

class LogOutput;

/// The table in the unit, and the local table that declarations change before it goes back to the unit.
/// The local table lives in the file bpr_SN<serial>.bin of the working directory; what is declared is
/// held in memory until write() or save(). A refusal is told to the log.
class BadPixelMemory
{
public:
    /// The bad pixels that the unit left the factory with.
    void declareFactoryPixels();

    /// Declares a pixel in the unit's own table; false outside the sensor.
    bool declareInUnit(std::uint32_t column, std::uint32_t row);

    /// Copies the unit's table into the local table and its file; false when the file cannot be written.
    bool read(std::uint32_t serialNumber, LogOutput &log);

    /// Saves what was declared, then puts the file's table into the unit; false when the file is missing,
    /// damaged or another unit's.
    bool write(std::uint32_t serialNumber, LogOutput &log);

    /// Declares (true) or withdraws a pixel in the local table; false outside the sensor, and when the
    /// file that the local table starts from is damaged.
    bool declare(std::uint32_t serialNumber, std::uint32_t column, std::uint32_t row, bool bad,
                 LogOutput &log);

    /// Saves what was declared and lets the local table go; keeps it when it could not be saved.
    void close(std::uint32_t serialNumber, LogOutput &log);

private:
    bool saveDeclarations(std::uint32_t serialNumber, LogOutput &log);

    BprTable unit;
    std::optional<BprTable> local;
    bool unsaved{false};
};

} // namespace veltrix_simulator
