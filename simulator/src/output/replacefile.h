// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Writing a file so that it is never half written.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// Name of the file that is written in the place of another until it is whole. File names are UTF-8.
std::string temporaryNameFor(const std::string &name);

/// Gives the file this content. Interrupted at any moment, the file has the old content or the new, and never
/// a part. What an interruption leaves in the temporary file does no harm and is replaced by the next call.
/// Returns what went wrong, if something did; then the file is as it was.
std::optional<std::string> replaceFile(const std::string &name, std::string_view content);

} // namespace veltrix_simulator
