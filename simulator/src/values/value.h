// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The kinds of value that cross the contract, and how a Value becomes one of them.
#pragma once

#include "veltrix_simulator/simulator.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace veltrix_simulator
{

/// What a value of the contract is. The numeric kinds stand in the order of NumericTypes.
enum class Kind
{
    Boolean,
    Unsigned8,
    Unsigned16,
    Unsigned32,
    Signed32,
    Float,
    Double,
    Text,
    Object, ///< A pointer to an object of the contract: as a Value true for the object, false for null.
};

using NumericTypes =
    std::tuple<bool, std::uint8_t, std::uint16_t, std::uint32_t, std::int32_t, float, double>;

/// The type of a numeric kind.
template <Kind kind>
using TypeOf = std::tuple_element_t<static_cast<std::size_t>(kind), NumericTypes>;

namespace detail
{

template <typename T, typename... Types>
constexpr std::size_t placeIn(const std::tuple<Types...> * /*list*/)
{
    constexpr bool isSame[]{std::is_same_v<T, Types>...};
    std::size_t place{0};
    while (place < sizeof...(Types) && !isSame[place]) {
        ++place;
    }
    return place;
}

} // namespace detail

/// Where a type stands among those of a tuple; their count when it is not among them.
template <typename T, typename Tuple>
inline constexpr std::size_t placeAmong = detail::placeIn<T>(static_cast<const Tuple *>(nullptr));

/// The kind of a type.
template <typename T>
constexpr Kind kindOf()
{
    if constexpr (std::is_same_v<T, const char *>) {
        return Kind::Text;
    } else if constexpr (std::is_pointer_v<T>) {
        return Kind::Object;
    } else {
        constexpr std::size_t place{placeAmong<T, NumericTypes>};
        static_assert(place < std::tuple_size_v<NumericTypes>, "no kind stands for this type");
        return static_cast<Kind>(place);
    }
}

/// Whether a kind has fractions.
bool isFloating(Kind kind);

/// Whether a kind can hold any number from minimum to maximum; a kind that is no number cannot.
bool holdsAnyFrom(double minimum, double maximum, Kind kind);

/// Name of a kind for messages, such as "an integer from 0 to 255".
std::string_view describe(Kind kind);

/// The value as the kind holds it: bool for Boolean and Object, std::int64_t for integers, double for
/// Float and Double, std::string for Text. Nothing when the kind cannot hold it. Integers pass for
/// Boolean, Float and Double when nothing is lost; Float rounds to its precision; NaN and infinities pass.
std::optional<Value> convert(const Value &value, Kind kind);

/// The number closest to it that a numeric kind holds; 0 for NaN.
double fitted(double number, Kind kind);

/// A number of the state (exact in a double, whatever its kind) as a Value, and back.
Value toValue(double number, Kind kind);
double toNumber(const Value &value);

} // namespace veltrix_simulator
