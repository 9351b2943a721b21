// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A bar on the terminal while something takes longer than a second.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace ctl
{

/// Drawn on standard error after the first second, if that is a terminal; wiped out at the end.
class Progress
{
public:
    Progress(std::string itsText, std::size_t itsTotal) : text{std::move(itsText)}, total{itsTotal} {}
    ~Progress() { clear(); }
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// At most so often as the total says.
    void step();
    /// Makes room for other lines.
    void clear();

private:
    const std::string text;
    const std::size_t total;
    std::size_t steps{0};
    std::size_t drawn{0}; ///< How many columns.
    const std::chrono::steady_clock::time_point start{std::chrono::steady_clock::now()};
};

} // namespace ctl
