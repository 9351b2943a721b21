// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines that the program can write into its log, by the texts in its sources.
#include "loglines.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QLatin1Char>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace
{

QStringList linesOf(const QString &fileName)
{
    QFile file{fileName};
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(fileName));
    }
    return QString::fromUtf8(file.readAll()).split(QLatin1Char{'\n'});
}

/// Every text between quotes, line by line of what it writes.
QSet<QString> textsOf(const QString &fileName)
{
    static const QRegularExpression quotes{QStringLiteral(R"re("((?:[^"\\]|\\.)*)"|'([^'\\])')re")};
    QSet<QString> texts;
    for (const QString &line : linesOf(fileName)) {
        if (line.startsWith(QStringLiteral("#include"))) {
            continue;
        }
        QRegularExpressionMatchIterator found{quotes.globalMatch(line)};
        while (found.hasNext()) {
            const QRegularExpressionMatch match{found.next()};
            const QString text{match.captured(1) + match.captured(2)};
            for (const QString &part : text.split(QStringLiteral("\\n"))) {
                texts.insert(part);
            }
        }
    }
    texts.remove(QString{});
    return texts;
}

QString anyOf(const QStringList &texts)
{
    QStringList sorted;
    for (const QString &text : texts) {
        sorted.append(QRegularExpression::escape(text));
    }
    // The longest first: one may be the beginning of another.
    std::sort(sorted.begin(), sorted.end(),
              [](const QString &one, const QString &other) { return one.size() > other.size(); });
    return sorted.join(QLatin1Char{'|'});
}

/// Patterns of the texts that can begin a line, and of all of them.
struct Texts
{
    QString first;
    QString any;
};

const Texts &programTexts()
{
    static const Texts texts{[] {
        QSet<QString> all{textsOf(QStringLiteral(CONTRACT_NUMBERS))};
        const QDir folder{QStringLiteral(PROGRAM_SOURCES)};
        for (const QFileInfo &file :
             folder.entryInfoList({QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files)) {
            all.unite(textsOf(file.filePath()));
        }
        static const QRegularExpression word{QStringLiteral("^[A-Za-z0-9\\-]{2,}")};
        const QStringList any{all.values()};
        return Texts{anyOf(any.filter(word)), anyOf(any)};
    }()};
    return texts;
}

} // namespace

bool isLineOfTheProgram(const QString &line, const QStringList &values)
{
    static QSet<QString> known;
    if (known.contains(line)) {
        return true;
    }
    static QString knownValues;
    static QRegularExpression pattern;
    QStringList given{values};
    given.removeAll(QString{});
    const QString newValues{given.isEmpty() ? QStringLiteral("\\b") : anyOf(given)};
    if (newValues != knownValues) {
        knownValues = newValues;
        pattern.setPattern(
            QStringLiteral(
                "^(?:%1)(?:%2|(?>-?[0-9]+(?:\\.[0-9]+)?(?:e[+-]?[0-9]+)?)|[0-9a-f]|-?inf|-?nan|%3)*$")
                .arg(programTexts().first, programTexts().any, newValues));
        pattern.optimize();
        known.clear();
    }
    const bool matches{pattern.match(line).hasMatch()};
    if (matches && known.size() < 20000) {
        known.insert(line);
    }
    return matches;
}
