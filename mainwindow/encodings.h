// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How numbers travel between the widgets and the device, defined for every input.
#pragma once

#include <cstdint>

/// Truncation toward zero to the low 32 bits of a 64-bit integer. NaN gives 0, what exceeds 64 bits
/// saturates there: 2.9 gives 2, -2.9 gives -2 and 4294967295 the pattern FFFFFFFF.
std::uint32_t truncateToUint32(double value);

/// truncateToUint32() read as a signed number.
std::int32_t truncateToInt32(double value);

/// 16.16 fixed point of a value, truncated toward zero: 2.2 gives 144179.
std::uint32_t toFixedPoint16_16(double value);

/// The value of a 16.16 fixed point number, of which single precision keeps 24 significant bits.
double fromFixedPoint16_16(std::uint32_t fixedPoint);

/// Rounds half away from zero. NaN gives 0, what exceeds an int its nearest limit.
int roundToInt(double value);

/// The low 8 bits of an index or a spin box's number: no selection (-1) gives 255.
std::uint8_t toByte(int value);

/// The int nearest to an unsigned number: above the largest int, the largest int.
int nearestInt(std::uint64_t value);

/// Degrees Celsius of a temperature in millikelvin, in single precision.
float toCelsius(float millikelvin);

/// Indices of the frame rate box, which lists the camera's rates.
inline constexpr int indexOf9Hz{0};
inline constexpr int indexOf25Hz{1};

/// Frames per second of an index of the frame rate box; one that it does not have gives 0.
std::uint8_t frameRateHz(int index);

/// Index of a frame rate in the frame rate box; another rate gives the index in otherwise.
int frameRateIndex(std::uint8_t hertz, int otherwise);
