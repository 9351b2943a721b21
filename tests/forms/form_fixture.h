// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main window's form without handlers, look-ups that list the names there are, and a translator that
// notes what it is asked for.
#pragma once

#include "mainwindowform.h"
#include "ui_mainwindow.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLatin1Char>
#include <QLatin1String>
#include <QMainWindow>
#include <QString>
#include <QStringList>
#include <QTabBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTranslator>
#include <QWidget>

#include <vector>

/// The main window's form on a plain window: no handler behind it, nothing connected.
///
/// What builds the form is generated inline and long, so it is called in form_fixture.cpp alone.
struct MainForm
{
    QMainWindow window;
    Ui_MainWindow ui{};

    MainForm();
    void retranslate();
};

/// What to print when a look-up found nothing: the names of that class which do exist below `root`.
template <typename Object>
QByteArray noSuch(const QObject &root, const QString &name)
{
    QStringList names;
    const auto objects = root.findChildren<Object *>();
    for (const auto *object : objects) {
        names << object->objectName();
    }
    names.sort();
    return QStringLiteral("no %1 named \"%2\", there are: %3")
        .arg(QString::fromLatin1(Object::staticMetaObject.className()), name, names.join(QLatin1Char{' '}))
        .toUtf8();
}

/// The widgets that the form itself names, whatever Qt builds inside them left out.
inline std::vector<QWidget *> namedWidgets(const QWidget &root)
{
    std::vector<QWidget *> named;
    const auto widgets = root.findChildren<QWidget *>();
    for (auto *widget : widgets) {
        const QString name{widget->objectName()};
        const bool scrollArrowOfTabs{qobject_cast<QTabBar *>(widget->parentWidget()) != nullptr};
        if (!name.isEmpty() && !name.startsWith(QLatin1String{"qt_"}) && !scrollArrowOfTabs) {
            named.push_back(widget);
        }
    }
    return named;
}

/// The names of the widgets that `wanted` picks, to be compared with a list as a whole.
template <typename Predicate>
QStringList namesWhere(const QWidget &root, Predicate wanted)
{
    QStringList names;
    for (const QWidget *widget : namedWidgets(root)) {
        if (wanted(*widget)) {
            names << widget->objectName();
        }
    }
    return names;
}

/// What two lists do not share, one entry a line: "missing x", "surplus y". The order
/// does not matter, duplicates do.
inline QString difference(QStringList actual, const QStringList &expected)
{
    QStringList lines;
    for (const QString &name : expected) {
        if (!actual.removeOne(name)) {
            lines << QStringLiteral("missing ") + name;
        }
    }
    for (const QString &name : actual) {
        lines << QStringLiteral("surplus ") + name;
    }
    return lines.join(QLatin1Char{'\n'});
}

/// The paragraphs of a text as the operator reads them.
inline QStringList paragraphsOf(const QString &richText)
{
    QTextDocument document;
    document.setHtml(richText);
    QStringList paragraphs;
    for (QTextBlock block{document.begin()}; block.isValid(); block = block.next()) {
        paragraphs << block.text();
    }
    return paragraphs;
}

/// Installed for its lifetime: notes every text that asks for a translation and hands it back with a mark.
class MarkingTranslator final : public QTranslator
{
public:
    struct Request
    {
        QString context;
        QString source;
    };

    static constexpr char mark{'@'};

    MarkingTranslator()
    {
        QCoreApplication::installTranslator(this);
        requests.clear(); // The application asks for its reading direction.
    }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }

    MarkingTranslator(const MarkingTranslator &) = delete;
    MarkingTranslator &operator=(const MarkingTranslator &) = delete;
    MarkingTranslator(MarkingTranslator &&) = delete;
    MarkingTranslator &operator=(MarkingTranslator &&) = delete;

    [[nodiscard]] bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                      int /*count*/) const override
    {
        requests.push_back({QString::fromUtf8(context), QString::fromUtf8(source)});
        return QLatin1Char{mark} + QString::fromUtf8(source);
    }

    static QString marked(const QString &source) { return QLatin1Char{mark} + source; }

    mutable std::vector<Request> requests;
};
