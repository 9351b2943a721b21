// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the desktop's scaling reaches the windows.
#pragma once

/// From now on an application object scales its windows as the desktop asks, by 1.25 and 1.5 as well, and
/// draws icons in the screen's own pixels. Must be called before the application object is made.
void followDesktopScaling();
