// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The user guide, read as a reader sees it: headings, tables, links.
#include "guide.h"

#include <QFile>
#include <QRegularExpression>

#include <stdexcept>

namespace
{

QStringList cellsOf(const QString &line)
{
    QStringList cells{line.mid(1, line.lastIndexOf(QLatin1Char{'|'}) - 1).split(QLatin1Char{'|'})};
    for (QString &cell : cells) {
        cell = cell.trimmed();
    }
    return cells;
}

/// What the first group of the pattern matches, everywhere in the text.
QStringList allOf(const QString &pattern, const QString &text)
{
    QStringList found;
    auto matches = QRegularExpression{pattern}.globalMatch(text);
    while (matches.hasNext()) {
        found.append(matches.next().captured(1));
    }
    return found;
}

} // namespace

Guide::Guide(const QString &fileName)
{
    QFile file{fileName};
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error{(fileName + QStringLiteral(": ") + file.errorString()).toStdString()};
    }
    content = QString::fromUtf8(file.readAll());

    QStringList titles;
    for (const QString &line : content.split(QLatin1Char{'\n'})) {
        const int depth{line.indexOf(QStringLiteral("# ")) + 1};
        if (depth > 0 && line.startsWith(QString{depth, QLatin1Char{'#'}})) {
            parts.append({line.mid(depth + 1), depth, {}});
        }
        if (!line.startsWith(QLatin1Char{'|'})) {
            titles.clear();
            continue;
        }
        const QStringList cells{cellsOf(line)};
        if (titles.isEmpty()) {
            titles = cells;
        } else if (!cells.first().startsWith(QStringLiteral("---"))) {
            GuideRow row;
            for (int column{0}; column < titles.size(); ++column) {
                row.insert(titles[column], cells.value(column));
            }
            parts.last().rows.append(row);
        }
    }
}

GuideSection Guide::section(const QString &heading) const
{
    for (const GuideSection &part : parts) {
        if (part.heading == heading) {
            return part;
        }
    }
    return {};
}

QStringList Guide::targets() const
{
    return allOf(QStringLiteral("\\]\\(([^)]*)\\)"), content);
}

QString controlOf(const GuideRow &row)
{
    return row.value(QStringLiteral("Control")).section(QStringLiteral(" ("), 0, 0);
}

QStringList codeIn(const QString &text)
{
    return allOf(QStringLiteral("`([^`]*)`"), text);
}

QString anchorOf(const QString &heading)
{
    QString anchor{heading.toLower()};
    anchor.remove(QRegularExpression{QStringLiteral("[^a-z0-9 -]")});
    return QLatin1Char{'#'} + anchor.replace(QLatin1Char{' '}, QLatin1Char{'-'});
}
