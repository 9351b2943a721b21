// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines of a recording or of the simulator's trace, as they can be compared.
#include "recordedlines.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QIODevice>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QRegularExpressionMatch>

namespace
{

const QString written{R"({"interface":"configuration","operation":"write",)"};

/// A line without the times; whole when they are not of the last minutes or it is no JSON.
QString withoutTimes(const QByteArray &line, const QRegularExpression &times, const QString &instead)
{
    QString text{QString::fromUtf8(line)};
    const QRegularExpressionMatch match{times.match(text)};
    const QDateTime time{QDateTime::fromString(match.captured(1) + 'Z', Qt::ISODateWithMs)};
    const bool isNow{time.isValid() && qAbs(time.secsTo(QDateTime::currentDateTimeUtc())) < 300};
    if (isNow && QJsonDocument::fromJson(line).isObject()) {
        text.replace(match.capturedStart(), match.capturedLength(), instead);
    }
    return text;
}

QList<QByteArray> rawLinesOf(const QString &fileName)
{
    QFile file{fileName};
    if (!file.open(QIODevice::ReadOnly)) {
        return {"no file"};
    }
    QByteArray content{file.readAll()};
    if (!content.endsWith('\n')) {
        return {"the last line is not whole"};
    }
    content.chop(1);
    return content.split('\n');
}

QStringList linesBehindHeaders(const QString &fileName)
{
    static const QRegularExpression times{
        R"re(^\{"time":"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3})\d{3}Z","microseconds":\d+,)re"};
    QStringList lines;
    for (const QByteArray &line : rawLinesOf(fileName)) {
        if (!line.startsWith(R"({"trace":1,)")) {
            lines.append(withoutTimes(line, times, "{"));
        }
    }
    return lines;
}

const QRegularExpression wordsOutput{R"re(,"outputs":(\{"words":\{[^}]*\}\}))re"};

} // namespace

QStringList callsIn(const QString &fileName)
{
    QStringList calls;
    for (QString line : linesBehindHeaders(fileName)) {
        if (!line.startsWith(written)) {
            calls.append(line.remove(wordsOutput));
        }
    }
    return calls;
}

QStringList wordsIn(const QString &fileName)
{
    QStringList told;
    for (const QString &line : linesBehindHeaders(fileName)) {
        const QRegularExpressionMatch output{wordsOutput.match(line)};
        if (line.startsWith(written) || output.hasMatch()) {
            told.append(output.hasMatch() ? output.captured(1) : line);
        }
    }
    return told;
}

QString headerOf(const QString &fileName)
{
    static const QRegularExpression times{
        R"re(,"time":"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3})\d{3}Z"\}$)re"};
    return withoutTimes(rawLinesOf(fileName).first(), times, "}");
}
