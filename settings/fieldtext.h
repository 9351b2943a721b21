// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers of a field in the words and units of operators, and back.
#pragma once

#include "devicesettings.h"

#include <optional>
#include <string>
#include <string_view>

namespace device_settings
{

/// What an operator calls the number, such as "iron", "2.2" or "23.5 degrees C"; empty where the number says
/// it all.
std::string inWords(const Field &field, double number);

/// The number, as a boolean for a switch, and in parentheses what an operator calls it.
std::string numberInWords(const Field &field, double number);

/// The number that a text stands for: a word of the field, the number as the device counts or, where that is
/// not allowed, as the operator does; of a switch also on, off, yes and no. Nothing when it stands for no
/// number; one that is out of range is a number.
std::optional<double> numberOf(const Field &field, std::string_view text);

/// What may be set, such as "0 to 100", "9, 25 or 30", "true or false", "0.5 to 2.5, or 32768 to 163840",
/// "greyscale, iron or hot, or 0 to 2".
std::string rangeText(const Field &field);

/// The same as the device counts it, such as "32768 to 163840" or "0 to 2".
std::string numberRangeText(const Field &field);

/// What a kind of number is called, such as "32-bit unsigned" or "bool".
std::string kindName(Kind kind);

} // namespace device_settings
