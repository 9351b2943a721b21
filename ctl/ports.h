// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The ports that a device may be behind.
#pragma once

#include <string>
#include <vector>

namespace ctl
{

/// The serial ports of the host, then those that the device library can open beside them.
std::vector<std::string> allPorts();

/// The ports among which one is chosen where none is named: those that the library can open itself, if there
/// are any, as a scan of the window has it; else all.
std::vector<std::string> likelyPorts();

} // namespace ctl
