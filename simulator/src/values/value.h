// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How a Value becomes one of the kinds that cross the contract.
#pragma once

#include "veltrix_sdk/kinds.h"
#include "veltrix_simulator/simulator.h"

#include <optional>
#include <string_view>

namespace veltrix_simulator
{

using veltrix_sdk::hasFractions;
using veltrix_sdk::Kind;
using veltrix_sdk::kindOf;
using veltrix_sdk::TypeOf;

/// Whether a kind can hold any number from minimum to maximum; a kind that is no number cannot.
bool holdsAnyFrom(double minimum, double maximum, Kind kind);

/// Name of a kind for messages, such as "an integer from 0 to 255".
std::string_view describe(Kind kind);

/// The value as the kind holds it: bool for Boolean and Object (false for null), std::int64_t for integers,
/// double for Float and Double, std::string for Text. Nothing when the kind cannot hold it. Integers pass for
/// Boolean, Float and Double when nothing is lost; Float rounds to its precision; NaN and infinities pass.
std::optional<Value> convert(const Value &value, Kind kind);

/// The number closest to it that a numeric kind holds; 0 for NaN.
double fitted(double number, Kind kind);

/// A number of the state (exact in a double, whatever its kind) as a Value, and back.
Value toValue(double number, Kind kind);
double toNumber(const Value &value);

} // namespace veltrix_simulator
