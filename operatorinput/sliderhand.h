// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A slider that is moved without a drag is let go as after one.
#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QSlider>

/// Qt tells the release of a slider only after a drag of its handle. This one lets it go as well when the key
/// that moved it is released, and makes a drag of a press beside the handle.
class SliderHand
{
public:
    /// Before the slider gets the key.
    void keyPressed(QSlider &slider);
    /// A key was released, wherever the focus is by then. One that is held repeats: only its real end counts.
    void keyReleased(const QKeyEvent &event);
    /// The focus goes, and with it the release of a key that is still held.
    void left(QSlider &slider);

    /// A left press beside the handle brings the handle there and takes hold of it; a handle that the style
    /// does not let be held is let go at once. Says whether the press was such a one; the slider must not get
    /// it then.
    static bool bringsHandle(QSlider &slider, QMouseEvent &event);

    /// Releases the slider as the end of a drag does. One that is being dragged has its own release.
    static void letGo(QSlider &slider);

private:
    void letGoIfMoved();

    QPointer<QSlider> held; ///< Has got a key whose release has not come yet.
    int positionBefore{0};  ///< Of that slider, when the key came.
};
