// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// On Windows a program's lines on standard output and standard error end with a line feed alone, as on other
// systems, so that what reads them is the same everywhere. Consoles show them alike, and are told that they
// are UTF-8.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// It comes first, for others use what it declares.
#include <cstdio>
#include <fcntl.h>
#include <io.h>

namespace
{

/// A program with a window has none of them when nobody takes what it writes.
bool endLinesWithLineFeeds(std::FILE *stream)
{
    const int descriptor{_fileno(stream)};
    return descriptor >= 0 && _setmode(descriptor, _O_BINARY) != -1;
}

/// Has the console, when there is one, show UTF-8 as long as the program runs. The console outlives the
/// program, and others that write to it later count on its own code page.
class ConsoleCodePage
{
public:
    ConsoleCodePage()
    {
        if (before != 0) {
            SetConsoleOutputCP(CP_UTF8);
        }
    }

    ~ConsoleCodePage()
    {
        if (before != 0) {
            SetConsoleOutputCP(before);
        }
    }

    ConsoleCodePage(const ConsoleCodePage &) = delete;
    ConsoleCodePage &operator=(const ConsoleCodePage &) = delete;
    ConsoleCodePage(ConsoleCodePage &&) = delete;
    ConsoleCodePage &operator=(ConsoleCodePage &&) = delete;

private:
    const UINT before{GetConsoleOutputCP()}; ///< 0 without a console.
};

// Before main() writes its first line.
[[maybe_unused]] const bool outputIsSet{endLinesWithLineFeeds(stdout)};
[[maybe_unused]] const bool errorsAreSet{endLinesWithLineFeeds(stderr)};
const ConsoleCodePage consoleCodePage;

} // namespace
