// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a device answers in place of a number.
#pragma once

#include <limits>

constexpr double notANumber{std::numeric_limits<double>::quiet_NaN()};
