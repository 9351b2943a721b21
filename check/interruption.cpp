// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Ctrl-C and its like: noted, so that the check can put back what it changed.
#include "interruption.h"

#include <atomic>
#include <csignal>

namespace
{

/// The last signal that came; 0 where none did.
std::atomic<int> interruption{0};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may not wait");

extern "C" void noteSignal(int signal)
{
    // Windows forgets the handler when it calls it, and calls it on a thread of its own.
    std::signal(signal, noteSignal);
    interruption = signal;
}

} // namespace

void noteInterruptions()
{
    std::signal(SIGINT, noteSignal);
    std::signal(SIGTERM, noteSignal);
#ifdef SIGHUP
    std::signal(SIGHUP, noteSignal);
#endif
#ifdef SIGBREAK
    std::signal(SIGBREAK, noteSignal);
#endif
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

bool wasInterrupted()
{
    return interruption != 0;
}

void forgetCtrlC()
{
    int ctrlC{SIGINT};
    interruption.compare_exchange_strong(ctrlC, 0);
}
