// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an operator does to make something happen, as a column of a table.
#pragma once

#include "testwindow.h"

#include <QMetaType>

using Trigger = void (*)(TestWindow &);

Q_DECLARE_METATYPE(Trigger)
