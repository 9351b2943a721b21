// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Which parts of a call are written and in which order, in the journal and in the trace alike.
#include "calls/callwriter.h"

#include "values/value.h"

#include <charconv>
#include <cstddef>
#include <cstdint>

namespace veltrix_simulator
{

void appendNumber(std::string &line, const Number &number)
{
    // The longest is a negative double.
    char digits[32];
    char *const end = digits + sizeof digits;
    std::to_chars_result written{};
    if (number.kind == Kind::Double) {
        written = std::to_chars(digits, end, number.value);
    } else if (number.kind == Kind::Float) {
        written = std::to_chars(digits, end, static_cast<float>(number.value));
    } else {
        written = std::to_chars(digits, end, static_cast<std::int64_t>(number.value));
    }
    line.append(digits, static_cast<std::size_t>(written.ptr - digits));
}

} // namespace veltrix_simulator
