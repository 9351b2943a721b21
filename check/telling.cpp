// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a console program tells on standard error.
#include "telling.h"

#include <cstdlib>
#include <iostream>
#include <sstream>

#if defined(_WIN32)
#include <io.h>
#else
#include <poll.h>
#include <unistd.h>
#endif

namespace sdk_check
{

namespace
{

/// Whether the name of the program is red: on a terminal, unless its user wants no colours.
bool isColoured()
{
    const char *const noColour{std::getenv("NO_COLOR")};
    return errorsAreWatched() && (noColour == nullptr || *noColour == '\0');
}

} // namespace

bool errorsAreWatched()
{
#if defined(_WIN32)
    return _isatty(2) != 0;
#else
    return ::isatty(STDERR_FILENO) != 0;
#endif
}

Output outputUntilNow()
{
    if (std::cout.flush().good()) {
        return Output::Written;
    }
#if !defined(_WIN32)
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    ::poll(&output, 1, 0);
    if ((output.revents & POLLERR) != 0) {
        return Output::WithoutReader;
    }
#endif
    return Output::Lost;
}

void tell(const std::string &program, const std::string &text)
{
    const std::string begin{isColoured() ? "\x1b[31m" + program + ":\x1b[0m " : program + ": "};
    std::cout << std::flush;
    std::istringstream lines{text};
    for (std::string line; std::getline(lines, line);) {
        std::cerr << begin << line << '\n';
    }
    std::cerr << std::flush;
}

} // namespace sdk_check
