// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file that a table of bad pixels is kept in.
#pragma once

#include "veltrix_sdk/numbers.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace veltrix_simulator
{

/// One bit for each pixel of the sensor, row after row; set: the pixel is bad.
using BprTable = std::bitset<std::size_t{veltrix_sdk::sensorColumns} * veltrix_sdk::sensorRows>;

struct BprFile
{
    std::uint32_t serialNumber{0};
    BprTable table;
};

/// Name of the file of the unit with the given serial number, such as "bpr_SN1234.bin".
std::string bprFileName(std::uint32_t serialNumber);

/// The bytes of a file: the header (magic, version, columns, rows, serial number, checksum) and the table.
std::string formatBprFile(const BprFile &file);

/// What the bytes of a file hold, or why they are not a whole and undamaged file. Takes any bytes.
std::variant<BprFile, std::string> parseBprFile(std::string_view bytes);

} // namespace veltrix_simulator
