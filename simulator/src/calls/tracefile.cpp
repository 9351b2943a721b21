// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A file of calls, a line each.
#include "calls/tracefile.h"

#include <cerrno>
#include <ios>
#include <string>
#include <system_error>

namespace veltrix_simulator
{
namespace
{

/// Whether writing there destroys nothing but an earlier trace.
bool isTraceOrNothing(const std::filesystem::path &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return true;
    }
    std::ifstream existing{path, std::ios::binary};
    std::string bytes(traceBeginning.size(), '\0');
    existing.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return existing.gcount() == 0 || bytes == traceBeginning;
}

/// Renames what is there; true also where there is nothing. Else errno says why.
bool keep(const std::filesystem::path &path)
{
    std::error_code error;
    if (std::filesystem::is_regular_file(path, error) && std::filesystem::file_size(path, error) > 0) {
        std::filesystem::path kept{path};
        kept += "~";
        std::filesystem::rename(path, kept, error);
        errno = error.value();
        return !error;
    }
    return true;
}

} // namespace

TraceFile::Opening TraceFile::open(const std::filesystem::path &path, Earlier earlier)
{
    close();
    // Whoever mixes up two names must not lose a scenario or a memory.
    if (!isTraceOrNothing(path)) {
        return Opening::OtherFile;
    }
    if (earlier == Earlier::Kept && !keep(path)) {
        return Opening::Unwritable;
    }
    name = path;
    size = 0;
    file.open(path, std::ios::binary | std::ios::trunc);
    return file.is_open() ? Opening::Done : Opening::Unwritable;
}

bool TraceFile::write(std::string_view line)
{
    file << line << std::flush;
    if (!file) {
        const int reason{errno};
        file.close();
        std::error_code ignored;
        std::filesystem::resize_file(name, size, ignored);
        errno = reason;
        return false;
    }
    size += line.size();
    return true;
}

void TraceFile::close()
{
    file.close();
    file.clear();
}

} // namespace veltrix_simulator
