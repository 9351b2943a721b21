// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A file of calls, a line each.
#pragma once

#include <cstdint>
#include <filesystem>
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
        OtherFile,    ///< There is a file that is no trace or cannot be read; it is left as it is.
        KeptTooOften, ///< There is a trace, and all names that it could be kept with are taken.
        Unwritable,   ///< errno says why.
    };

    /// What becomes of an earlier trace in the same place.
    enum class Earlier
    {
        Replaced,
        Kept, ///< With ".~1~" behind its name, or the next number that is free; nothing is replaced.
    };

    /// So many earlier traces of one name are kept.
    static constexpr int mostKept{9999};

    TraceFile() = default;
    ~TraceFile() { close(); }
    TraceFile(const TraceFile &) = delete;
    TraceFile &operator=(const TraceFile &) = delete;

    /// Begins the file anew; where a link stands, what it leads to.
    Opening open(const std::filesystem::path &path, Earlier earlier);
    bool isOpen() const { return file != none; }
    /// Appends a line, which ends with its line feed. False, with the file closed and without a part of the
    /// line where files can be cut, when it cannot be written; errno says why.
    bool write(std::string_view line);
    void close();

private:
    static constexpr int none{-1};

    std::uintmax_t size{0}; ///< Of the whole lines.
    int file{none};         ///< As the operating system numbers open files.
};

} // namespace veltrix_simulator
