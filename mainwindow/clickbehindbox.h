// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A click that raises a modal box before it reaches the control under the mouse.
#pragma once

/// A mouse press on another control ends an edit, and what that edit does can be a modal box. The box runs
/// before the press reaches its control, and the release is lost on the way: the control would stay pressed,
/// an arrow of a spin box would count on by itself.
///
/// Made before such a box. After it, the click does its whole work: its press is followed by a release as
/// soon as the button is let go, or at once if that was while the box was shown.
class ClickBehindBox
{
public:
    ClickBehindBox();

    void boxClosed() const;

private:
    bool duringPress; ///< Else a key has raised the box, or a script.
};
