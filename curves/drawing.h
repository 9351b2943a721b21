// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A picture of curves with axes, grid and legend.
#pragma once

#include "readings.h"

#include <QImage>

/// Draws all curves over one axis of times in UTC, each in a colour of its own; a curve has a gap where a
/// value is missing, and a dot where a value stands alone. It takes a QApplication.
QImage draw(const Readings &readings);
