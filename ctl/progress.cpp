// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A bar on the terminal while something takes longer than a second.
#include "progress.h"

#include "telling.h"

#include <iostream>

namespace ctl
{

void Progress::step()
{
    ++steps;
    if (std::chrono::steady_clock::now() - start < std::chrono::seconds{1} ||
        !sdk_check::errorsAreWatched()) {
        return;
    }
    constexpr std::size_t width{30};
    const std::size_t filled{steps * width / total};
    const std::string line{text + " [" + std::string(filled, '#') + std::string(width - filled, '.') + "] " +
                           std::to_string(steps) + " of " + std::to_string(total)};
    std::cerr << '\r' << line << std::flush;
    drawn = line.size();
}

void Progress::clear()
{
    if (drawn > 0) {
        std::cerr << '\r' << std::string(drawn, ' ') << '\r' << std::flush;
        drawn = 0;
    }
}

} // namespace ctl
