// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Whether a command carries what the window showed when it was sent.
#pragma once

#include "panel.h"
#include "veltrix_simulator/simulator.h"

#include <QString>

#include <cstddef>
#include <vector>

/// What the window showed when it logged the outcome of a command.
struct SentCommand
{
    std::size_t place; ///< Of the call in the journal.
    Panel panel;
};

/// What the command would have been by the window, where it is another one; empty when all is well. A
/// region's edit is left out when it may have raised a box.
QString wronglySent(const SentCommand &sent, const std::vector<veltrix_simulator::Call> &journal,
                    bool boxesWereShown);
