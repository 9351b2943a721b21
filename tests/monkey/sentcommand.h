// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Whether a command carries what the window showed when it was sent.
#pragma once

#include "panel.h"
#include "sentby.h"
#include "veltrix_simulator/simulator.h"

#include <QString>

#include <cstddef>
#include <vector>

/// What the window showed at a moment, for the calls since the moment before.
struct Picture
{
    std::size_t begin; ///< Of its calls in the journal.
    std::size_t end;   ///< Behind them.
    Panel panel;
};

/// What else there was in the action.
struct Circumstances
{
    const Asked &asked;
    bool boxesWereShown; ///< Before or while something was sent.
    bool scriptInBox;    ///< A handler ran while a box was shown.
};

/// Whether the calls have something that is compared with a picture.
bool needPicture(const std::vector<veltrix_simulator::Call> &journal, std::size_t begin);

/// What a command would have been by the window, where it is another one; empty when all is well.
QString wronglySent(const Picture &picture, const std::vector<veltrix_simulator::Call> &journal,
                    const Circumstances &circumstances);

/// The same for the bad pixels of a whole action, which are declared one by one, a row or a column of them.
QString wronglyDeclared(const std::vector<veltrix_simulator::Call> &journal, const Panel &panel,
                        const Asked &asked);
