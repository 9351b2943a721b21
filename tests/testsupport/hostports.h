// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The host's serial ports, told by the test.
#pragma once

/// From now on the host has so many ports. Without the host's own data they have no names. At the start it
/// has none.
void setHostPorts(int count);
