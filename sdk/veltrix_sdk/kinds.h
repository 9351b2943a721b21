// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The kinds of value that cross the contract, and the type of each number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace veltrix_sdk
{

/// What a value of the contract is.
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
    Object, ///< A pointer to an object of the contract.
};

inline constexpr std::size_t kindCount{static_cast<std::size_t>(Kind::Object) + 1};

/// Whether a kind has fractions.
constexpr bool hasFractions(Kind kind)
{
    return kind == Kind::Float || kind == Kind::Double;
}

namespace detail
{

/// A kind of number and its type.
template <Kind kind, typename T>
struct NumberKind
{
};

/// One row for each kind of number. As they are its bases, the compiler finds a type by its kind and a kind
/// by its type.
struct NumberKinds : NumberKind<Kind::Boolean, bool>,
                     NumberKind<Kind::Unsigned8, std::uint8_t>,
                     NumberKind<Kind::Unsigned16, std::uint16_t>,
                     NumberKind<Kind::Unsigned32, std::uint32_t>,
                     NumberKind<Kind::Signed32, std::int32_t>,
                     NumberKind<Kind::Float, float>,
                     NumberKind<Kind::Double, double>
{
};

template <Kind kind, typename T>
T typeIn(NumberKind<kind, T> row);

template <typename T, Kind kind>
constexpr Kind kindIn(NumberKind<kind, T> /*row*/)
{
    return kind;
}

} // namespace detail

/// The type of a kind of number.
template <Kind kind>
using TypeOf = decltype(detail::typeIn<kind>(detail::NumberKinds{}));

/// The kind of a type; a type that is none of the contract's does not compile.
template <typename T>
constexpr Kind kindOf()
{
    if constexpr (std::is_same_v<T, const char *>) {
        return Kind::Text;
    } else if constexpr (std::is_pointer_v<T>) {
        return Kind::Object;
    } else {
        return detail::kindIn<T>(detail::NumberKinds{});
    }
}

} // namespace veltrix_sdk
