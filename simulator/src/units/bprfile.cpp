// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file that a table of bad pixels is kept in.
#include "units/bprfile.h"

#include <array>

namespace veltrix_simulator
{
namespace
{

constexpr std::string_view magic{"VLTXBPR\n"};
constexpr std::uint32_t fileVersion{1};

// Every number of the header takes four bytes, the least significant first.
constexpr std::size_t numberSize{4};
constexpr std::size_t versionOffset{magic.size()};
constexpr std::size_t columnsOffset{versionOffset + numberSize};
constexpr std::size_t rowsOffset{columnsOffset + numberSize};
constexpr std::size_t serialNumberOffset{rowsOffset + numberSize};
constexpr std::size_t checksumOffset{serialNumberOffset + numberSize};
constexpr std::size_t tableOffset{checksumOffset + numberSize};
constexpr std::size_t tableSize{BprTable{}.size() / 8};
constexpr std::size_t fileSize{tableOffset + tableSize};

std::uint8_t byteAt(std::string_view bytes, std::size_t offset)
{
    return static_cast<std::uint8_t>(bytes[offset]);
}

void appendNumber(std::string &bytes, std::uint32_t number)
{
    for (std::size_t byte{0}; byte < numberSize; ++byte) {
        bytes.push_back(static_cast<char>(static_cast<std::uint8_t>(number >> (8 * byte))));
    }
}

std::uint32_t numberAt(std::string_view bytes, std::size_t offset)
{
    std::uint32_t number{0};
    for (std::size_t byte{0}; byte < numberSize; ++byte) {
        number |= std::uint32_t{byteAt(bytes, offset + byte)} << (8 * byte);
    }
    return number;
}

constexpr std::array<std::uint32_t, 256> crcTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte{0}; byte < table.size(); ++byte) {
        std::uint32_t remainder{byte};
        for (int bit{0}; bit < 8; ++bit) {
            remainder = (remainder >> 1) ^ ((remainder & 1) != 0 ? 0xEDB88320U : 0U);
        }
        table[byte] = remainder;
    }
    return table;
}

/// CRC-32 of everything but the checksum itself.
std::uint32_t checksum(std::string_view header, std::string_view table)
{
    constexpr auto remainders = crcTable();
    std::uint32_t crc{0xFFFFFFFFU};
    for (const std::string_view part : {header, table}) {
        for (const char character : part) {
            crc = (crc >> 8) ^ remainders[(crc ^ static_cast<std::uint8_t>(character)) & 0xFFU];
        }
    }
    return ~crc;
}

} // namespace

std::string bprFileName(std::uint32_t serialNumber)
{
    return veltrix_sdk::bprFileNameBegin + std::to_string(serialNumber) + veltrix_sdk::bprFileNameEnd;
}

std::string formatBprFile(const BprFile &file)
{
    std::string table(tableSize, '\0');
    for (std::size_t pixel{0}; pixel < file.table.size(); ++pixel) {
        if (file.table[pixel]) {
            const unsigned bits = byteAt(table, pixel / 8) | (1U << (pixel % 8));
            table[pixel / 8] = static_cast<char>(static_cast<std::uint8_t>(bits));
        }
    }
    std::string bytes{magic};
    for (const std::uint32_t number :
         {fileVersion, veltrix_sdk::sensorColumns, veltrix_sdk::sensorRows, file.serialNumber}) {
        appendNumber(bytes, number);
    }
    appendNumber(bytes, checksum(bytes, table));
    return bytes + table;
}

std::variant<BprFile, std::string> parseBprFile(std::string_view bytes)
{
    if (bytes.substr(0, magic.size()) != magic) {
        return "it is no table of bad pixels";
    }
    if (bytes.size() != fileSize) {
        return "it has " + std::to_string(bytes.size()) + " bytes instead of " + std::to_string(fileSize);
    }
    if (numberAt(bytes, versionOffset) != fileVersion) {
        return "its version is " + std::to_string(numberAt(bytes, versionOffset)) + " instead of " +
               std::to_string(fileVersion);
    }
    if (numberAt(bytes, columnsOffset) != veltrix_sdk::sensorColumns ||
        numberAt(bytes, rowsOffset) != veltrix_sdk::sensorRows) {
        return "it is for a sensor of another size";
    }
    const std::string_view table = bytes.substr(tableOffset);
    if (numberAt(bytes, checksumOffset) != checksum(bytes.substr(0, checksumOffset), table)) {
        return "its checksum is wrong";
    }
    BprFile file;
    file.serialNumber = numberAt(bytes, serialNumberOffset);
    for (std::size_t pixel{0}; pixel < file.table.size(); ++pixel) {
        file.table[pixel] = ((byteAt(table, pixel / 8) >> (pixel % 8)) & 1) != 0;
    }
    return file;
}

} // namespace veltrix_simulator
