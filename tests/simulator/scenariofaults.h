// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Faults as they stand in a scenario file.
#pragma once

#include <QByteArray>

/// A fault that would be fine, with more lines; they begin in line 4.
inline QByteArray fault(const char *lines)
{
    return QByteArray{"[[fault]]\noperation = \"setGamma\"\neffect = \"refuse\"\n"} + lines;
}

/// A fault of an operation with these lines; the effect is in line 3.
inline QByteArray effectOn(const char *operation, const char *lines)
{
    return QByteArray{"[[fault]]\noperation = \""} + operation + "\"\neffect = " + lines;
}
