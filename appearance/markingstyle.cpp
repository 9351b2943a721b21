// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A style that marks pressed buttons.
#include "markingstyle.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStyleOption>

#include <cmath>

MarkingStyle::MarkingStyle(QStyle *drawing) : QProxyStyle{drawing} {}

void MarkingStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButtonBevel && (option->state & State_On) != 0) {
        constexpr int margin{3};
        constexpr int width{6};
        constexpr int darker{150}; // per cent
        const QRect inside{option->rect.adjusted(margin, margin, -margin, -margin)};
        const QRect bar{inside.topLeft(), QSize{width, inside.height()}};
        painter->fillRect(visualRect(option->direction, option->rect, bar),
                          option->palette.color(QPalette::Highlight).darker(darker));
    }
}

void MarkingStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    const double scaling{painter->device()->devicePixelRatioF()};
    const bool isFrame{element == PE_Frame || element == PE_FrameLineEdit || element == PE_FrameTabWidget};
    if (!isFrame || scaling <= std::floor(scaling)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    // Lines are rounded down to a pixel, the area that may be drawn on to the nearest one.
    const double halfAPixel{0.5 / scaling};
    painter->save();
    painter->translate(halfAPixel, halfAPixel);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    painter->restore();
}
