// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The user guide, read as a reader sees it: headings, tables, links.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

/// One row of a table: its cells by the titles of their columns.
using GuideRow = QMap<QString, QString>;

/// A heading, how deep it is (1 for the title of the guide), and the tables below it up to the next heading.
struct GuideSection
{
    QString heading;
    int depth{0};
    QVector<GuideRow> rows;
};

/// The user guide.
class Guide
{
public:
    /// Throws when the file cannot be read.
    explicit Guide(const QString &fileName);

    const QString &text() const { return content; }
    const QVector<GuideSection> &sections() const { return parts; }
    /// The section with that heading; empty when there is none.
    GuideSection section(const QString &heading) const;
    /// The targets of all links and pictures, in order.
    QStringList targets() const;

private:
    QString content;
    QVector<GuideSection> parts;
};

/// What a control is called in the guide: the first cell of its row without the remark in brackets.
QString controlOf(const GuideRow &row);
/// The pieces of a text that are set as code.
QStringList codeIn(const QString &text);
/// Where a link to that heading leads.
QString anchorOf(const QString &heading);
