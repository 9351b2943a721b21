// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Names of files in messages.
#pragma once

#include <string>
#include <string_view>

namespace ctl
{

/// The name of a file as whoever typed it wrote it, in UTF-8. What cannot be seen and what turns the
/// direction of writing is escaped as sdk_check::escaped() does it, and so are bytes that are no UTF-8; a
/// backslash is doubled. Cut after 200 letters.
std::string shownName(std::string_view file);

} // namespace ctl
