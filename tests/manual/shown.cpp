// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a part of the window shows, in words.
#include "shown.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTabWidget>

namespace
{

QString tabTitles(const QTabWidget &tabs)
{
    QStringList titles;
    for (int index{0}; index < tabs.count(); ++index) {
        const QString title{tabs.tabText(index)};
        titles.append(index == tabs.currentIndex() ? QLatin1Char{'['} + title + QLatin1Char{']'} : title);
    }
    return titles.join(QLatin1Char{' '});
}

/// Null where the widget shows nothing of its own.
QString contentOf(const QWidget &widget)
{
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget)) {
        return button->text() + (button->isChecked() ? QStringLiteral(" (pressed)") : QString{});
    }
    if (const auto *const comboBox = qobject_cast<const QComboBox *>(&widget)) {
        return comboBox->currentText();
    }
    if (const auto *const spinBox = qobject_cast<const QAbstractSpinBox *>(&widget)) {
        return spinBox->text();
    }
    if (const auto *const slider = qobject_cast<const QSlider *>(&widget)) {
        return QStringLiteral("%1 of %2").arg(slider->value()).arg(slider->maximum());
    }
    if (const auto *const label = qobject_cast<const QLabel *>(&widget)) {
        return Qt::mightBeRichText(label->text()) ? QStringLiteral("(picture)") : label->text();
    }
    if (const auto *const text = qobject_cast<const QPlainTextEdit *>(&widget)) {
        return text->toPlainText();
    }
    if (const auto *const tabs = qobject_cast<const QTabWidget *>(&widget)) {
        return tabTitles(*tabs);
    }
    return {};
}

/// The part in the coordinates of the widget.
void describe(const QWidget &widget, const QRect &part, QStringList &lines)
{
    const QString content{contentOf(widget)};
    const bool ownParts{widget.objectName().startsWith(QStringLiteral("qt_"))};
    if (!content.isNull() && !ownParts && !widget.objectName().isEmpty()) {
        const QString text{widget.objectName() + QStringLiteral(": ") + content +
                           (widget.isEnabled() ? QString{} : QStringLiteral(" (cannot be used)"))};
        lines.append(text.split(QLatin1Char{'\n'}));
    }
    for (const QObject *const object : widget.children()) {
        const auto *const child = qobject_cast<const QWidget *>(object);
        if (child != nullptr && child->isVisible() && !child->isWindow() &&
            child->geometry().intersects(part)) {
            describe(*child, part.translated(-child->pos()), lines);
        }
    }
}

} // namespace

QStringList shownIn(const QWidget &widget, const QRect &part)
{
    QStringList lines;
    describe(widget, part, lines);
    return lines;
}
