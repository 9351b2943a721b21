// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the operator does while a sequence of commands runs.
#include "staleinput.h"

#include <QApplication>
#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QObject>

namespace
{

/// The key on the keyboard, whatever Shift made of it meanwhile.
quint32 numberOf(const QKeyEvent &event)
{
    return event.nativeScanCode() != 0 ? event.nativeScanCode() : static_cast<quint32>(event.key());
}

} // namespace

StaleInput::StaleInput()
{
    drop.setSingleShot(true);
    QObject::connect(&drop, &QTimer::timeout, &drop, [this] { dropWhatWaits(); });
}

void StaleInput::sequenceRuns(bool nowRunning)
{
    running = nowRunning;
    showBusy(running);
    if (!running) {
        dropping = true;
        // Not here, where the handler of the sequence still runs: from the event loop.
        drop.start(0);
    }
}

void StaleInput::showBusy(bool nowBusy)
{
    if (busy == nowBusy) {
        return;
    }
    busy = nowBusy;
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void StaleInput::dropWhatWaits()
{
    QCoreApplication::processEvents();
    // A sequence that ran among what waited has ended with stale input of its own, and its turn comes.
    dropping = drop.isActive();
}

bool StaleInput::takes(QEvent &event)
{
    switch (event.type()) {
    case QEvent::WindowBlocked:
        showBusy(false);
        if (dropping) {
            // A release may raise a box while what waits is worked off. The box has an event loop of its own,
            // and whoever answers it must be heard there.
            drop.start(0);
        }
        return false;
    case QEvent::WindowUnblocked:
        showBusy(running && QGuiApplication::modalWindow() == nullptr);
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return takesPress(static_cast<QMouseEvent &>(event));
    case QEvent::MouseButtonRelease:
        return takesRelease(static_cast<QMouseEvent &>(event));
    case QEvent::KeyPress:
        return takesKeyPress(static_cast<QKeyEvent &>(event));
    case QEvent::KeyRelease:
        return takesKeyRelease(static_cast<QKeyEvent &>(event));
    case QEvent::ShortcutOverride:
        // Accepted, it is no shortcut, and comes again as a key press.
        if (dropping) {
            event.accept();
        }
        return dropping;
    case QEvent::TouchBegin:
        touchDropped = dropping;
        if (dropping) {
            event.accept();
        }
        return touchDropped;
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return touchDropped;
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
        return dropping;
    default:
        return false;
    }
}

bool StaleInput::takesPress(const QMouseEvent &event)
{
    droppedButtons.setFlag(event.button(), dropping);
    return dropping;
}

bool StaleInput::takesRelease(const QMouseEvent &event)
{
    const bool dropped{droppedButtons.testFlag(event.button())};
    droppedButtons.setFlag(event.button(), false);
    return dropped;
}

bool StaleInput::takesKeyPress(const QKeyEvent &event)
{
    const quint32 key{numberOf(event)};
    if (event.isAutoRepeat()) {
        // The press it repeats may have been delivered, and its release has to be then.
        return dropping || droppedKeys.contains(key);
    }
    if (dropping) {
        droppedKeys.insert(key);
    } else {
        droppedKeys.remove(key);
    }
    return dropping;
}

bool StaleInput::takesKeyRelease(const QKeyEvent &event)
{
    const quint32 key{numberOf(event)};
    const bool dropped{droppedKeys.contains(key)};
    if (!event.isAutoRepeat()) {
        droppedKeys.remove(key);
    }
    return dropped;
}
