// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Setting one number of a setting to another value and back.
#pragma once

#include "check.h"
#include "openeddevice.h"
#include "readings.h"
#include "report.h"

namespace sdk_check
{

/// Tries every number of the row's setting that may be changed, one at a time: sets another allowed value,
/// reads it, puts back what was found and reads that. What could not be put back is not touched, and nothing
/// is begun once the check is interrupted. One finding for each number.
void tryWriting(OpenedDevice &device, const Setting &row, Unit unit, Report &report,
                const Interrupted &interrupted);

} // namespace sdk_check
