// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The shortest part of a list that still shows what the whole list shows.
#include "shortest.h"

#include <algorithm>
#include <cstddef>

std::vector<Action> shortestOf(std::vector<Action> actions,
                               const std::function<bool(const std::vector<Action> &)> &stillShows,
                               const std::function<bool()> &goOn)
{
    std::size_t length{std::max<std::size_t>(actions.size() / 2, 1)};
    bool shorter{false};
    for (;;) {
        shorter = false;
        // From the end of the list backwards: what comes late needs less of what comes before.
        for (std::size_t end{actions.size()}; end > 0 && goOn();) {
            const std::size_t from{end > length ? end - length : 0};
            std::vector<Action> rest{actions.begin(), actions.begin() + static_cast<std::ptrdiff_t>(from)};
            rest.insert(rest.end(), actions.begin() + static_cast<std::ptrdiff_t>(end), actions.end());
            if (stillShows(rest)) {
                actions = std::move(rest);
                shorter = true;
            }
            end = from;
        }
        if (!goOn() || (length == 1 && !shorter)) {
            return actions;
        }
        length = std::max<std::size_t>(length / 2, 1);
    }
}
