// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The shortest part of a list that still shows what the whole list shows.
#pragma once

#include "action.h"

#include <functional>
#include <vector>

/// Leaves out ever smaller parts of the list as long as it still shows the finding, until no single action
/// can be left out, or until `goOn` says no.
std::vector<Action> shortestOf(
    std::vector<Action> actions, const std::function<bool(const std::vector<Action> &)> &stillShows,
    const std::function<bool()> &goOn = [] { return true; });
