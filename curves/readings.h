// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What is drawn: values that were read at the same times.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

/// One value over the times.
struct Curve
{
    QString name;
    QVector<double> values; ///< One for each time; not a number where there was no answer.
};

/// All that stands in a picture.
struct Readings
{
    QString title;
    QString quantity;      ///< What the values are, with the unit.
    QVector<double> times; ///< Milliseconds since 1970-01-01 in UTC, in their order.
    QVector<Curve> curves;
};

/// Reads a JSON object such as {"title": "", "quantity": "", "times": [0, 1000], "curves": [{"name": "",
/// "values": [1.5, null]}]}; nothing when it is none, has no time, or a curve has more or fewer values than
/// there are times.
std::optional<Readings> parseReadings(const QByteArray &json);
