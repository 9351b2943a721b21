// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Text from the device or the host in printable ASCII.
#include "escaped.h"

#include <cstddef>

namespace sdk_check
{

namespace
{

std::string escapedByte(char byte)
{
    constexpr std::string_view digits{"0123456789abcdef"};
    switch (byte) {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    case '\\':
        return "\\\\";
    default:
        break;
    }
    if (byte >= ' ' && byte <= '~') {
        return {byte};
    }
    const auto number = static_cast<unsigned char>(byte);
    return {'\\', 'x', digits[number >> 4U], digits[number & 0xfU]};
}

} // namespace

std::string escaped(std::string_view text)
{
    constexpr std::size_t longest{200};
    std::string shown;
    for (const char byte : text) {
        if (shown.size() >= longest) {
            return shown + "...";
        }
        shown += escapedByte(byte);
    }
    return shown;
}

} // namespace sdk_check
