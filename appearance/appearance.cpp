// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How all windows of the program look, whatever the desktop's theme.
#include "appearance.h"

#include "markingstyle.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>

#include <memory>

namespace
{

bool isLight(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() > palette.color(QPalette::WindowText).lightness() &&
           palette.color(QPalette::Base).lightness() > palette.color(QPalette::Text).lightness();
}

/// The colours of the style itself; those of Qt's own style where it is a dark one.
QPalette lightPalette()
{
    QPalette ofTheStyle{QApplication::style()->standardPalette()};
    if (isLight(ofTheStyle)) {
        return ofTheStyle;
    }
    const std::unique_ptr<QStyle> fusion{QStyleFactory::create(QStringLiteral("fusion"))};
    return fusion->standardPalette();
}

} // namespace

void setAppearance()
{
    QApplication::setStyle(new MarkingStyle{QApplication::style()});
    // The form has white backgrounds: on them, the texts of a dark theme cannot be seen. This also drops what
    // the theme says of single classes, all but tool tips.
    const QPalette palette{lightPalette()};
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}
