// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines that several commands write.
#pragma once

#include "devicesettings.h"

#include <ostream>
#include <string>

namespace ctl
{

/// Tells what went wrong on standard error, each line behind the name of the program.
void tell(const std::string &text);

/// A line such as "camera.gamma = 144179  # 2.2", which a profile may have as well.
void writeAssignment(std::ostream &out, const std::string &name, const device_settings::Field &field,
                     double number);

/// Whether the number is allowed and travels as it is.
bool mayBeSent(const device_settings::Field &field, double number);
/// What ends a line that gives the range: whether the number may have fractions.
std::string wholeNumbers(const device_settings::Field &field);

} // namespace ctl
