// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Throws bytes at the parser of the tables of bad pixels.
#include "units/bprfile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <variant>

using namespace veltrix_simulator;

namespace
{

/// Whatever is taken for a table has to be written as the same bytes; a refusal has to say why.
void readAndWrite(std::string_view bytes)
{
    const std::variant<BprFile, std::string> read{parseBprFile(bytes)};
    const auto *const table = std::get_if<BprFile>(&read);
    if (table != nullptr ? formatBprFile(*table) != bytes : std::get<std::string>(read).empty()) {
        std::abort();
    }
}

/// A whole file with pixels and a serial number from the bytes: its checksum, which bytes by chance do not
/// have, is right.
std::string wholeFileFrom(std::string_view bytes)
{
    BprFile file;
    std::uint32_t place{0};
    for (const char byte : bytes) {
        place = place * 31 + static_cast<unsigned char>(byte);
        file.table.flip(place % file.table.size());
    }
    file.serialNumber = place;
    return formatBprFile(file);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string bytes(data, data + size);
    readAndWrite(bytes);

    std::string whole{wholeFileFrom(bytes)};
    readAndWrite(whole);
    if (!std::holds_alternative<BprFile>(parseBprFile(whole))) {
        std::abort();
    }
    if (!bytes.empty()) {
        whole.resize(whole.size() - 1 - bytes.size() % whole.size());
        readAndWrite(whole);
    }
    return 0;
}
