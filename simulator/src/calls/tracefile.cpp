// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A file of calls, a line each.
#include "calls/tracefile.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <fstream>
#include <ios>
#include <string>
#include <system_error>

#if defined(_WIN32)
#include <io.h>
#include <sys/stat.h>
#else
#include <sys/types.h>
#include <unistd.h>
#endif

namespace veltrix_simulator
{
namespace
{

#if defined(_WIN32)
int openToWrite(const std::filesystem::path &path, int how)
{
    return _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_BINARY | _O_NOINHERIT | how, _S_IREAD | _S_IWRITE);
}

int writeTo(int file, std::string_view bytes)
{
    return _write(file, bytes.data(), static_cast<unsigned>(bytes.size()));
}

bool cut(int file, std::uintmax_t size)
{
    return _chsize_s(file, static_cast<__int64>(size)) == 0;
}

constexpr auto closeDescriptor = _close;
#else
int openToWrite(const std::filesystem::path &path, int how)
{
    constexpr mode_t forAll{0666};
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | how, forAll);
}

ssize_t writeTo(int file, std::string_view bytes)
{
    return ::write(file, bytes.data(), bytes.size());
}

bool cut(int file, std::uintmax_t size)
{
    return ::ftruncate(file, static_cast<off_t>(size)) == 0;
}

constexpr auto closeDescriptor = ::close;
#endif

/// Whether writing there destroys nothing but an earlier trace.
bool isTraceOrNothing(const std::filesystem::path &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return true;
    }
    std::ifstream existing{path, std::ios::binary};
    if (!existing.is_open()) {
        // What cannot be read may be anything, unless another program has just renamed it.
        return !std::filesystem::exists(path, error);
    }
    std::string bytes(traceBeginning.size(), '\0');
    existing.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return !existing.bad() && (existing.gcount() == 0 || bytes == traceBeginning);
}

/// What a link leads to; the path itself when it is no link, or leads to nothing.
std::filesystem::path withoutLink(const std::filesystem::path &path)
{
    std::error_code error;
    if (!std::filesystem::is_symlink(path, error)) {
        return path;
    }
    const std::filesystem::path target{std::filesystem::canonical(path, error)};
    return error ? path : target;
}

/// Renames what is there; done also where there is nothing. When it is unwritable, errno says why.
TraceFile::Opening keep(const std::filesystem::path &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error) || std::filesystem::file_size(path, error) == 0) {
        return TraceFile::Opening::Done;
    }
    for (int number{1}; number <= TraceFile::mostKept; ++number) {
        std::filesystem::path kept{path};
        kept += ".~" + std::to_string(number) + '~';
        // An empty file takes the name first, so that the renaming replaces nothing of another program.
        const int taken{openToWrite(kept, O_EXCL)};
        if (taken >= 0) {
            closeDescriptor(taken);
            std::filesystem::rename(path, kept, error);
            if (!error) {
                return TraceFile::Opening::Done;
            }
            std::error_code ignored;
            std::filesystem::remove(kept, ignored);
            errno = error.default_error_condition().value();
            // Another program may have kept it in the meantime.
            return errno == ENOENT ? TraceFile::Opening::Done : TraceFile::Opening::Unwritable;
        }
        if (errno != EEXIST) {
            return TraceFile::Opening::Unwritable;
        }
    }
    return TraceFile::Opening::KeptTooOften;
}

/// Begins a file where nothing is, and goes on in one that is empty or no plain file. Another program may
/// have begun one there by now: errno is EEXIST then. One that goes on in a file which another has just begun
/// writes behind its lines, and so does that one.
int openWithoutReplacing(const std::filesystem::path &path)
{
    std::error_code error;
    const bool isNew{!std::filesystem::exists(std::filesystem::symlink_status(path, error))};
    return openToWrite(path, O_APPEND | (isNew ? O_EXCL : 0));
}

} // namespace

TraceFile::Opening TraceFile::open(const std::filesystem::path &path, Earlier earlier)
{
    close();
    const std::filesystem::path target{withoutLink(path)};
    constexpr int attempts{100};
    for (int attempt{0}; attempt < attempts; ++attempt) {
        // Whoever mixes up two names must not lose a scenario or a memory.
        if (!isTraceOrNothing(target)) {
            return Opening::OtherFile;
        }
        if (earlier == Earlier::Kept) {
            const Opening keeping{keep(target)};
            if (keeping != Opening::Done) {
                return keeping;
            }
        }
        file = earlier == Earlier::Kept ? openWithoutReplacing(target) : openToWrite(target, O_TRUNC);
        if (isOpen()) {
            size = 0;
            return Opening::Done;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    return Opening::Unwritable;
}

bool TraceFile::write(std::string_view line)
{
    for (std::string_view rest{line}; !rest.empty();) {
        const auto written = writeTo(file, rest);
        if (written > 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (written == 0 || errno != EINTR) {
            const int reason{errno};
            // What is open: its name may be that of another program's file by now.
            cut(file, size);
            close();
            errno = reason;
            return false;
        }
    }
    size += line.size();
    return true;
}

void TraceFile::close()
{
    if (isOpen()) {
        closeDescriptor(file);
        file = none;
    }
}

} // namespace veltrix_simulator
