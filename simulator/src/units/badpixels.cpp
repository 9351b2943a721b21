// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The bad pixels of one unit: its own table and the local one that is edited.
#include "units/badpixels.h"

#include "output/logoutput.h"
#include "output/replacefile.h"
#include "veltrix_sdk/logger.h"
#include "veltrix_sdk/numbers.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>
#include <variant>

namespace veltrix_simulator
{
namespace
{

constexpr std::size_t pixelAt(std::uint32_t column, std::uint32_t row)
{
    return std::size_t{row} * veltrix_sdk::sensorColumns + column;
}

bool refuse(LogOutput &log, const std::string &name, const std::string &reason)
{
    log.write(veltrix_sdk::severity_warning, "BPR file " + name + " refused: " + reason);
    return false;
}

bool save(const BprTable &table, std::uint32_t serialNumber, LogOutput &log)
{
    const std::string name = bprFileName(serialNumber);
    const auto problem = replaceFile(name, formatBprFile({serialNumber, table}));
    if (problem) {
        log.write(veltrix_sdk::severity_warning,
                  "BPR file " + name + " cannot be written in this directory: " + *problem);
    }
    return !problem;
}

std::optional<BprTable> load(std::uint32_t serialNumber, LogOutput &log)
{
    const std::string name = bprFileName(serialNumber);
    // One byte more than a whole file has is enough to see that it is too long.
    std::string bytes(formatBprFile({}).size() + 1, '\0');
    std::ifstream file{name, std::ios::binary};
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.is_open() || file.bad()) {
        refuse(log, name, "it cannot be read");
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    auto parsed = parseBprFile(bytes);
    if (const auto *const reason = std::get_if<std::string>(&parsed)) {
        refuse(log, name, *reason);
        return std::nullopt;
    }
    const auto &content = std::get<BprFile>(parsed);
    if (content.serialNumber != serialNumber) {
        refuse(log, name, "it belongs to serial number " + std::to_string(content.serialNumber));
        return std::nullopt;
    }
    return content.table;
}

} // namespace

void BadPixelMemory::declareFactoryPixels()
{
    constexpr std::array<std::pair<std::uint32_t, std::uint32_t>, 5> factoryPixels{
        {{17, 402}, {113, 58}, {114, 58}, {320, 239}, {611, 7}}};
    for (const auto &[column, row] : factoryPixels) {
        unit.set(pixelAt(column, row));
    }
}

bool BadPixelMemory::declareInUnit(std::uint32_t column, std::uint32_t row)
{
    const bool isOnSensor{column < veltrix_sdk::sensorColumns && row < veltrix_sdk::sensorRows};
    if (isOnSensor) {
        unit.set(pixelAt(column, row));
    }
    return isOnSensor;
}

bool BadPixelMemory::read(std::uint32_t serialNumber, LogOutput &log)
{
    if (!save(unit, serialNumber, log)) {
        return false;
    }
    local = unit;
    unsaved = false;
    return true;
}

bool BadPixelMemory::write(std::uint32_t serialNumber, LogOutput &log)
{
    if (!saveDeclarations(serialNumber, log)) {
        return false;
    }
    const std::optional<BprTable> table = load(serialNumber, log);
    if (!table) {
        return false;
    }
    unit = *table;
    local = *table;
    return true;
}

bool BadPixelMemory::declare(std::uint32_t serialNumber, std::uint32_t column, std::uint32_t row, bool bad,
                             LogOutput &log)
{
    if (column >= veltrix_sdk::sensorColumns || row >= veltrix_sdk::sensorRows) {
        return false;
    }
    if (!local) {
        std::error_code error;
        const bool hasFile = std::filesystem::exists(bprFileName(serialNumber), error);
        local = hasFile || error ? load(serialNumber, log) : unit;
    }
    if (!local) {
        return false;
    }
    auto pixel = (*local)[pixelAt(column, row)];
    unsaved = unsaved || pixel != bad;
    pixel = bad;
    return true;
}

void BadPixelMemory::close(std::uint32_t serialNumber, LogOutput &log)
{
    if (saveDeclarations(serialNumber, log)) {
        local.reset();
    }
}

bool BadPixelMemory::saveDeclarations(std::uint32_t serialNumber, LogOutput &log)
{
    if (unsaved && local && save(*local, serialNumber, log)) {
        unsaved = false;
    }
    return !unsaved;
}

} // namespace veltrix_simulator
