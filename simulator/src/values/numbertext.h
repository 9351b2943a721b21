// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the values of calls are written for people and for programs.
#pragma once

#include "values/value.h"

#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// Appends a number in the shortest form that reads back; of a float in single precision.
void appendNumber(std::string &line, Kind kind, double number);

/// Appends a number, of Boolean `true` or `false`.
void appendPlain(std::string &line, Kind kind, double number);

/// Appends a text between quotes, with a backslash before a quote or a backslash and \n for a line feed.
void appendQuoted(std::string &line, std::string_view text);

} // namespace veltrix_simulator
