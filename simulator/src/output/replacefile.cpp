// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Writing a file so that it is never half written.
#include "output/replacefile.h"

#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <ios>
#include <system_error>
#include <thread>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace veltrix_simulator
{
namespace
{

#if defined(_WIN32)
int openForFlush(const std::filesystem::path &path)
{
    return _wopen(path.c_str(), _O_RDWR | _O_BINARY);
}
constexpr auto flush = _commit;
constexpr auto closeAgain = _close;
// Windows does not replace a file that another program has open. One that looks for viruses has it open for a
// moment.
constexpr int attempts{50};

/// Of such a file Windows says no more than that access to it is denied.
std::string hintFor(const std::error_code &error)
{
    return error == std::errc::permission_denied ? "; another program may have it open" : "";
}
#else
int openForFlush(const std::filesystem::path &path)
{
    return open(path.c_str(), O_RDWR | O_CLOEXEC);
}
constexpr auto flush = fsync;
constexpr auto closeAgain = close;
constexpr int attempts{1};

std::string hintFor(const std::error_code & /*error*/)
{
    return {};
}
#endif
constexpr std::chrono::milliseconds pauseBetweenAttempts{10};

/// Waits until the disk has the file.
bool flushToDisk(const std::filesystem::path &path)
{
    const int file{openForFlush(path)};
    if (file < 0) {
        return false;
    }
    const bool flushed{flush(file) == 0};
    closeAgain(file);
    return flushed;
}

bool write(const std::filesystem::path &path, std::string_view content)
{
    std::ofstream file{path, std::ios::binary | std::ios::trunc};
    file << content;
    file.close();
    return !file.fail();
}

} // namespace

std::string temporaryNameFor(const std::string &name)
{
    return name + ".tmp";
}

std::optional<std::string> replaceFile(const std::string &name, std::string_view content)
{
    const std::filesystem::path temporary{std::filesystem::u8path(temporaryNameFor(name))};
    // The content is on the disk before the file gets its name: else a power failure could leave an empty
    // file.
    if (!write(temporary, content) || !flushToDisk(temporary)) {
        return "the file \"" + temporaryNameFor(name) + "\" cannot be written";
    }
    std::error_code error;
    std::filesystem::rename(temporary, std::filesystem::u8path(name), error);
    for (int attempt{1}; error && attempt < attempts; ++attempt) {
        std::this_thread::sleep_for(pauseBetweenAttempts);
        std::filesystem::rename(temporary, std::filesystem::u8path(name), error);
    }
    if (error) {
        std::error_code ignored;
        std::filesystem::remove(temporary, ignored);
        return "the file \"" + name + "\" cannot be replaced: " + error.message() + hintFor(error);
    }
    return std::nullopt;
}

} // namespace veltrix_simulator
