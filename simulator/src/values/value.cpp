// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How a Value becomes one of the kinds that cross the contract.
#include "values/value.h"

#include "values/inorder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <variant>

namespace veltrix_simulator
{
namespace
{

struct KindRow
{
    Kind id;
    std::string_view description;
    std::int64_t minimum;
    std::int64_t maximum;
};

template <Kind kind>
constexpr KindRow integerRow(std::string_view description)
{
    using Limits = std::numeric_limits<TypeOf<kind>>;
    return {kind, description, Limits::min(), Limits::max()};
}

// For Float and Double the limits are the largest integers that they hold exactly.
constexpr std::array<KindRow, veltrix_sdk::kindCount> kindRows{{
    integerRow<Kind::Boolean>("true or false"),
    integerRow<Kind::Unsigned8>("an integer from 0 to 255"),
    integerRow<Kind::Unsigned16>("an integer from 0 to 65535"),
    integerRow<Kind::Unsigned32>("an integer from 0 to 4294967295"),
    integerRow<Kind::Signed32>("an integer from -2147483648 to 2147483647"),
    {Kind::Float, "a number in single precision", -(1LL << 24), 1LL << 24},
    {Kind::Double, "a number", -(1LL << 53), 1LL << 53},
    {Kind::Text, "a text", 0, -1},
    {Kind::Object, "true for the object or false for null", 0, 1},
}};

static_assert(inOrder(kindRows));

constexpr const KindRow &rowOf(Kind kind)
{
    return kindRows[static_cast<std::size_t>(kind)];
}

bool isBoolean(Kind kind)
{
    return kind == Kind::Boolean || kind == Kind::Object;
}

std::optional<Value> fromInteger(std::int64_t integer, Kind kind)
{
    if (integer < rowOf(kind).minimum || integer > rowOf(kind).maximum) {
        return std::nullopt;
    }
    if (isBoolean(kind)) {
        return integer != 0;
    }
    if (hasFractions(kind)) {
        return static_cast<double>(integer);
    }
    return integer;
}

std::optional<Value> fromDouble(double number, Kind kind)
{
    if (kind == Kind::Double) {
        return number;
    }
    constexpr auto largest = static_cast<double>(std::numeric_limits<float>::max());
    if (kind != Kind::Float || (std::isfinite(number) && std::fabs(number) > largest)) {
        return std::nullopt;
    }
    return static_cast<double>(static_cast<float>(number));
}

} // namespace

bool holdsAnyFrom(double minimum, double maximum, Kind kind)
{
    return hasFractions(kind) || (minimum <= static_cast<double>(rowOf(kind).maximum) &&
                                  maximum >= static_cast<double>(rowOf(kind).minimum));
}

std::string_view describe(Kind kind)
{
    return rowOf(kind).description;
}

std::optional<Value> convert(const Value &value, Kind kind)
{
    if (const auto *const integer = std::get_if<std::int64_t>(&value)) {
        return fromInteger(*integer, kind);
    }
    if (const auto *const number = std::get_if<double>(&value)) {
        return fromDouble(*number, kind);
    }
    const bool fits = std::holds_alternative<bool>(value) ? isBoolean(kind) : kind == Kind::Text;
    if (!fits) {
        return std::nullopt;
    }
    return value;
}

double fitted(double number, Kind kind)
{
    if (std::isnan(number)) {
        return 0;
    }
    if (kind == Kind::Double) {
        return number;
    }
    if (kind == Kind::Float) {
        constexpr auto largest = static_cast<double>(std::numeric_limits<float>::max());
        return static_cast<double>(static_cast<float>(std::clamp(number, -largest, largest)));
    }
    const auto minimum = static_cast<double>(rowOf(kind).minimum);
    const auto maximum = static_cast<double>(rowOf(kind).maximum);
    return std::round(std::clamp(number, minimum, maximum));
}

Value toValue(double number, Kind kind)
{
    if (isBoolean(kind)) {
        return number != 0.0;
    }
    if (hasFractions(kind)) {
        return number;
    }
    return static_cast<std::int64_t>(number);
}

double toNumber(const Value &value)
{
    if (const auto *const integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    if (const auto *const boolean = std::get_if<bool>(&value)) {
        return *boolean ? 1.0 : 0.0;
    }
    return std::get<double>(value);
}

} // namespace veltrix_simulator
