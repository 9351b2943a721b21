// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What has to hold for the controls of a window, whatever was done.
#pragma once

#include "deviceside.h"
#include "panel.h"

#include <QString>
#include <QWidget>

/// What can be used and must not be, or the other way round; empty when all is well.
QString wronglyEnabled(const Panel &panel, const Panel &atStart, const DeviceSide &device);

/// A value out of its range, a slider that does not stand where its box says, or one that is held.
QString wrongValue(const Panel &panel, const Panel &atStart, const QWidget &window);
