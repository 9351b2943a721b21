// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plain file that nobody can read, not even the administrator of the machine.
#pragma once

/// Linux takes writes there alone, and what is no number changes nothing.
inline constexpr const char *unreadableFile{"/proc/sys/net/ipv4/route/flush"};
