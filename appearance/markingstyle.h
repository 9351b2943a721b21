// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A style that marks pressed buttons.
#pragma once

#include <QProxyStyle>

/// Draws as another style does, with two additions: a button that stays pressed has a dark bar at its side,
/// since the shades of grey of most styles can hardly be told apart; and on a screen that is scaled by a
/// fraction frames are a point wider, since what is inside them is rounded over their lines.
class MarkingStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Takes the other style over.
    explicit MarkingStyle(QStyle *drawing);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};
