// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What reading and sending have in common: the window's controls, and how numbers are written.
#pragma once

#include "controls.h"

#include <QString>

inline QString named(const char *text)
{
    return QString::fromLatin1(text);
}

inline QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

/// A number as a text stream writes it: six significant digits.
inline QString streamed(double number)
{
    return QString::number(number, 'g', 6);
}

/// A whole number in decimal.
inline QString whole(double number)
{
    return QString::number(static_cast<qint64>(number));
}

inline QString captionOf(const ToggleRow &row, bool on)
{
    return named(row.caption) + (on ? QStringLiteral(": Activated") : QStringLiteral(": Deactivated"));
}
