// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Text from the device or the host in printable ASCII.
#pragma once

#include <string>
#include <string_view>

namespace sdk_check
{

/// The text with every byte that is not printable ASCII as \n, \t, \r or \xNN, a backslash doubled, cut after
/// 200 characters.
std::string escaped(std::string_view text);

} // namespace sdk_check
