// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One thing that the monkey does, and the list of what it did in a session.
#include "action.h"

#include <QFile>
#include <QIODevice>
#include <QLatin1Char>
#include <QUrl>

namespace
{

/// Without spaces; a lone dash stands for nothing.
QString encoded(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("-")
                          : QString::fromLatin1(QUrl::toPercentEncoding(text, QByteArray{}, "-"));
}

QString decoded(const QString &field)
{
    return field == QStringLiteral("-") ? QString{} : QUrl::fromPercentEncoding(field.toLatin1());
}

} // namespace

QString Action::toLine() const
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(encoded(verb), encoded(target), QString::number(x, 'f', 4), QString::number(y, 'f', 4),
             encoded(text), encoded(box));
}

Action Action::fromLine(const QString &line)
{
    const QStringList fields{line.split(QLatin1Char{' '})};
    return {decoded(fields.value(0)),   decoded(fields.value(1)), fields.value(2).toDouble(),
            fields.value(3).toDouble(), decoded(fields.value(4)), decoded(fields.value(5))};
}

QStringList Story::toLines() const
{
    QStringList lines{scenario};
    for (const Action &action : actions) {
        lines.append(action.toLine());
    }
    return lines;
}

Story Story::fromLines(const QStringList &lines)
{
    Story story;
    for (const QString &line : lines) {
        const QString text{line.trimmed()};
        if (text.isEmpty() || text.startsWith(QLatin1Char{'#'})) {
            continue;
        }
        if (story.scenario.isEmpty()) {
            story.scenario = text;
        } else {
            story.actions.push_back(Action::fromLine(text));
        }
    }
    return story;
}

Story Story::fromFile(const QString &name)
{
    QFile file{name};
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return fromLines(QString::fromUtf8(file.readAll()).split(QLatin1Char{'\n'}));
}
