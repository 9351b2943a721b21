// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the units keep without power.
#pragma once

#include "output/logoutput.h"
#include "units/memoryfile.h"
#include "units/state.h"
#include "units/unitfields.h"

#include <optional>
#include <string>

namespace veltrix_simulator
{

/// Keeps the saved sets of parameters in a file, if there is one.
class Memory
{
public:
    /// Power-on: from now on the sets are kept in this file; those that are in it come back into the units.
    /// An empty name: nothing is kept. A file that is not there holds nothing yet. Returns a sentence that
    /// says what is wrong with the file and what helps, if something is; then the units stay as they are,
    /// nothing is kept, and the file is never written.
    std::optional<std::string> restore(State &state, const std::string &name);

    /// Keeps a set of the addressed unit. False, with a warning in the log, when it could not be kept; what
    /// was saved before stays.
    bool save(const State &state, Saved set, LogOutput &log);

private:
    std::string fileName;
    MemoryImage image; ///< What the file holds.
};

} // namespace veltrix_simulator
