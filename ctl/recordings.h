// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Recorded sessions: what they show, without a device.
#pragma once

#include "failure.h"

#include <string>

namespace ctl
{

/// Writes each call of a recording as one line for people. No more of the file is held than one line.
ExitStatus showRecording(const std::string &file);

/// Writes the profile of what both units held at the end of a recording: of every setting the value that was
/// read or set last, as far as there is one. The profile goes to a file, or with "-" to standard output.
ExitStatus saveRecordedProfile(const std::string &file, const std::string &profile);

} // namespace ctl
