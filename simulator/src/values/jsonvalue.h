// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a number or a bool of JSON is as a Value.
#pragma once

#include "veltrix_simulator/simulator.h"

#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>

namespace veltrix_simulator
{

/// Nothing for what is neither, or an integer that 64 bits with a sign do not hold.
inline std::optional<Value> valueOf(const nlohmann::json &value)
{
    if (value.is_boolean()) {
        return value.get<bool>();
    }
    if (value.is_number_float()) {
        return value.get<double>();
    }
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    const bool tooLarge{value.is_number_unsigned() && value.get<std::uint64_t>() > largest};
    if (!value.is_number_integer() || tooLarge) {
        return std::nullopt;
    }
    return value.get<std::int64_t>();
}

} // namespace veltrix_simulator
