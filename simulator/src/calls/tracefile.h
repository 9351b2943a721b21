// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A file of calls, a line each.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace veltrix_simulator
{

/// What every trace begins with.
inline constexpr std::string_view traceBeginning{R"({"trace":1,)"};

/// Hands each line to the operating system at once, so that the file is whole up to the last call when the
/// program crashes.
class TraceFile
{
public:
    enum class Opening
    {
        Done,
        OtherFile,  ///< There is a file that is no trace; it is left as it is.
        Unwritable, ///< errno says why.
    };

    /// What becomes of an earlier trace in the same place.
    enum class Earlier
    {
        Replaced,
        Kept, ///< With "~" behind its name, in the place of one that was kept before.
    };

    /// Begins the file anew.
    Opening open(const std::filesystem::path &path, Earlier earlier);
    bool isOpen() const { return file.is_open(); }
    /// Appends a line, which ends with its line feed. False, with the file closed and without a part of the
    /// line, when it cannot be written; errno says why.
    bool write(std::string_view line);
    void close();

private:
    std::filesystem::path name;
    std::uintmax_t size{0}; ///< Of the whole lines.
    std::ofstream file;
};

} // namespace veltrix_simulator
