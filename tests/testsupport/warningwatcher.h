// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Fails a test on a Qt warning that nobody announced.
#pragma once

#include <QStringList>
#include <QtGlobal>

/// Collects the warnings that Qt prints while it lives.
class WarningWatcher
{
public:
    WarningWatcher();
    /// Fails the test when warnings are left that the test did not take.
    ~WarningWatcher();
    WarningWatcher(const WarningWatcher &) = delete;
    WarningWatcher &operator=(const WarningWatcher &) = delete;

    /// The warnings since the last call.
    QStringList take();

private:
    QtMessageHandler previous;
};
