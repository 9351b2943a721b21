// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What is drawn: values that were read at the same times.
#include "readings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <limits>

namespace
{

QVector<double> numbersOf(const QJsonArray &array)
{
    QVector<double> numbers;
    numbers.reserve(array.size());
    for (const QJsonValue &value : array) {
        numbers.append(value.toDouble(std::numeric_limits<double>::quiet_NaN()));
    }
    return numbers;
}

} // namespace

std::optional<Readings> parseReadings(const QByteArray &json)
{
    const QJsonObject object{QJsonDocument::fromJson(json).object()};
    Readings readings{
        object["title"].toString(), object["quantity"].toString(), numbersOf(object["times"].toArray()), {}};
    if (readings.times.isEmpty()) {
        return std::nullopt;
    }
    const QJsonArray curves = object["curves"].toArray();
    for (const QJsonValue &value : curves) {
        const QJsonObject curve{value.toObject()};
        readings.curves.append({curve["name"].toString(), numbersOf(curve["values"].toArray())});
        if (readings.curves.last().values.size() != readings.times.size()) {
            return std::nullopt;
        }
    }
    return readings;
}
