// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Ctrl-C and its like: noted, so that the check can put back what it changed.
#pragma once

/// From now on a signal that asks the process to end is only noted, and a reader of the output that goes away
/// does not end it either.
void noteInterruptions();

/// Whether the process was asked to end.
bool wasInterrupted();

/// Ctrl-C was heeded, and the next command may begin; what asks the process to end in another way is kept.
void forgetCtrlC();
