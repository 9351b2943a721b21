// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the operator does while a sequence of commands runs.
#pragma once

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSet>
#include <QTimer>
#include <QtGlobal>

/// During a sequence no event is processed, so clicks and keys pile up in the queue of the window system;
/// they were meant for a window that has changed since. After the sequence they are taken out of the queue
/// and dropped, while everything else in it is done: windows are drawn, closed and given the focus.
class StaleInput
{
public:
    StaleInput();

    /// The pointer says that the program is busy, except while a box of the sequence is shown.
    void sequenceRuns(bool nowRunning);

    /// Whether an event is stale input: then nobody must get it. Of a button or a key whose press was stale
    /// the release is, too, whenever it comes; a release whose press was delivered is not.
    bool takes(QEvent &event);

private:
    void showBusy(bool busy);
    void dropWhatWaits();
    bool takesPress(const QMouseEvent &event);
    bool takesRelease(const QMouseEvent &event);
    bool takesKeyPress(const QKeyEvent &event);
    bool takesKeyRelease(const QKeyEvent &event);

    bool running{false};  ///< A sequence.
    bool busy{false};     ///< What the pointer says.
    bool dropping{false}; ///< What waited when the sequence ended.
    bool touchDropped{false};
    Qt::MouseButtons droppedButtons{Qt::NoButton}; ///< Their presses were dropped.
    QSet<quint32> droppedKeys;                     ///< Their presses were dropped.
    QTimer drop;                                   ///< Runs for one round of the event loop.
};
