// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How all windows of the program look, whatever the desktop's theme.
#pragma once

/// Gives the application the style's own light colours and the mark of pressed buttons. To be called with an
/// application object and before its first window.
void setAppearance();
