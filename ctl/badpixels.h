// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The table of bad pixels: between unit and file, declared, listed.
#pragma once

#include "failure.h"
#include "session.h"

#include <string>
#include <vector>

namespace ctl
{

/// Pixels by what stands on the command line.
struct Pixels
{
    std::vector<std::string> single{}; ///< Such as "12,34": column, row.
    std::vector<unsigned> rows{};
    std::vector<unsigned> columns{};
};

/// Copies the unit's table into its file in the working directory.
ExitStatus readBadPixels(Session &session, Unit unit);
/// Copies the file into the unit.
ExitStatus writeBadPixels(Session &session, Unit unit);

/// Declares pixels in the local table, or withdraws them; each by a command of its own, as the window does
/// it. A refused one is told, and the others are declared all the same.
ExitStatus declareBadPixels(Session &session, Unit unit, const Pixels &pixels, bool bad);

/// Lists the pixels of a file, or, where none is named, of the file of the unit in the working directory; and
/// paints them in a picture, if it is named.
ExitStatus listBadPixels(Session &session, Unit unit, const std::string &file, const std::string &picture);

} // namespace ctl
