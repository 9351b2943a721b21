// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Dragging the handle of a slider.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPoint>
#include <QSlider>
#include <QStyle>
#include <QWidget>

/// Where the middle of the handle is when the slider stands at the position.
inline QPoint middleOfHandle(const QSlider &slider, int position)
{
    const int length{slider.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &slider)};
    const int start{QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(), position,
                                                    slider.width() - length)};
    return {start + length / 2, slider.height() / 2};
}

/// Sends a press, a move with the left button held, or a release.
inline void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &place)
{
    const Qt::MouseButton button{type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton};
    const Qt::MouseButtons held{type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton};
    QMouseEvent event{type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier};
    QApplication::sendEvent(&widget, &event);
}
