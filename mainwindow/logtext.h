// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Text built from pieces, for the lines of the operation log.
#pragma once

#include <cstdint>
#include <locale>
#include <sstream>
#include <string>

/// The pieces one after the other, in the default format of a text stream: doubles with six significant
/// digits and no trailing zeros. A byte would come out as a character: give it as `+value`. Numbers have a
/// decimal point and no grouping, whatever locale the process or the SDK library has set.
template <typename... Pieces>
std::string joinText(const Pieces &...pieces)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    (stream << ... << pieces);
    return stream.str();
}

/// A number in lower-case hexadecimal digits without leading zeros.
inline std::string hexText(std::uint32_t value)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::hex << value;
    return stream.str();
}

/// The word for an on/off state.
inline const char *enabledWord(bool enabled)
{
    return enabled ? "Enabled" : "Disabled";
}
