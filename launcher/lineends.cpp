// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// On Windows a program's lines on standard output and standard error end with a line feed alone, as on other
// systems, so that what reads them is the same everywhere. Consoles show them alike.
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

// Before main() writes its first line.
[[maybe_unused]] const bool outputIsSet{endLinesWithLineFeeds(stdout)};
[[maybe_unused]] const bool errorsAreSet{endLinesWithLineFeeds(stderr)};

} // namespace
