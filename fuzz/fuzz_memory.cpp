// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Throws bytes at the parser of the files of saved parameters.
#include "units/memoryfile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <variant>

using namespace veltrix_simulator;

/// Whatever is taken for a memory has to come back from the bytes that it is written as; a refusal has to say
/// why, in one line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::variant<MemoryImage, std::string> read{parseMemory(std::string(data, data + size))};
    if (const auto *const refusal = std::get_if<std::string>(&read)) {
        if (refusal->empty() || refusal->find('\n') != std::string::npos) {
            std::abort();
        }
        return 0;
    }
    const auto &image = std::get<MemoryImage>(read);
    const std::variant<MemoryImage, std::string> again{parseMemory(formatMemory(image))};
    if (!std::holds_alternative<MemoryImage>(again) || std::get<MemoryImage>(again).units != image.units) {
        std::abort();
    }
    return 0;
}
