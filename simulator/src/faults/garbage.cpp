// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Values that an operation can answer and that mean nothing.
#include "faults/garbage.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

namespace veltrix_simulator
{
namespace
{

template <typename T>
std::int64_t integerGarbage(Random &random)
{
    using Limits = std::numeric_limits<T>;
    constexpr std::array<T, 3> ends{Limits::min(), Limits::max(), T{0}};
    const std::uint64_t range{static_cast<std::uint64_t>(std::int64_t{Limits::max()} - Limits::min()) + 1};
    return random.coin() ? std::int64_t{ends[random.below(ends.size())]}
                         : Limits::min() + static_cast<std::int64_t>(random.below(range));
}

template <typename T, typename Bits>
T floatingGarbage(Random &random)
{
    using Limits = std::numeric_limits<T>;
    constexpr std::array<T, 8> ends{Limits::quiet_NaN(),
                                    Limits::infinity(),
                                    -Limits::infinity(),
                                    Limits::max(),
                                    Limits::lowest(),
                                    Limits::denorm_min(),
                                    T{-1},
                                    -T{0}};
    if (random.coin()) {
        return ends[random.below(ends.size())];
    }
    const auto bits = static_cast<Bits>(random.bits());
    T number{};
    static_assert(sizeof number == sizeof bits);
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

std::string textGarbage(Random &random)
{
    constexpr std::uint64_t longest{40};
    std::string text;
    for (std::uint64_t left{random.below(longest + 1)}; left > 0; --left) {
        text.push_back(static_cast<char>(' ' + static_cast<int>(random.below('~' - ' ' + 1))));
    }
    return text;
}

Value garbage(Kind kind, Random &random)
{
    switch (kind) {
    case Kind::Unsigned8:
        return integerGarbage<std::uint8_t>(random);
    case Kind::Unsigned16:
        return integerGarbage<std::uint16_t>(random);
    case Kind::Unsigned32:
        return integerGarbage<std::uint32_t>(random);
    case Kind::Signed32:
        return integerGarbage<std::int32_t>(random);
    case Kind::Float:
        // A float is exact in a double, so the cast back is defined.
        return static_cast<double>(floatingGarbage<float, std::uint32_t>(random));
    case Kind::Double:
        return floatingGarbage<double, std::uint64_t>(random);
    case Kind::Text:
        return textGarbage(random);
    case Kind::Boolean:
    case Kind::Object:
        break;
    }
    return random.coin();
}

} // namespace

std::vector<Value> garbage(const std::vector<Kind> &kinds, Random &random)
{
    std::vector<Value> values;
    values.reserve(kinds.size());
    for (const Kind kind : kinds) {
        values.push_back(garbage(kind, random));
    }
    return values;
}

} // namespace veltrix_simulator
