// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an X server shows of a program that starts.
#pragma once

#include <QtGlobal>

#include <array>
#include <memory>
#include <xcb/xcb.h>

/// Watches a bare screen, one without a window manager and of one colour, as Xvfb has it.
class ScreenWatch
{
public:
    /// Connects to the server that DISPLAY names.
    ScreenWatch();

    /// False without a server.
    bool isConnected() const { return root != XCB_NONE; }

    /// Forgets what happened on the screen so far. To be called before each start.
    void begin();

    /// Returns once a window of the process has drawn itself: once there is another colour around its middle
    /// than the bare screen has. False if that takes longer than ten seconds.
    bool waitUntilDrawn(qint64 process);

private:
    /// The colours of a small square around the middle of a window; nothing while it cannot be seen.
    using Square = std::array<quint32, 64>;
    bool readMiddle(xcb_window_t window, Square &square) const;
    bool belongsTo(xcb_window_t window, qint64 process) const;

    struct Disconnect
    {
        void operator()(xcb_connection_t *left) const { xcb_disconnect(left); }
    };

    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    xcb_window_t root{XCB_NONE};
    quint32 bareColour{0};
};
