// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Which control a turn of the wheel reaches.
#include "wheel.h"

#include "sliderhand.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QPoint>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QWidget>
#include <QWidgetList>

#include <algorithm>

namespace
{

QWidget *widgetOf(const QWindow &window)
{
    const QWidgetList widgets{QApplication::topLevelWidgets()};
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&window](const QWidget *widget) {
        return widget->windowHandle() == &window;
    });
    return found != widgets.end() ? *found : nullptr;
}

bool ignoresWheel(const QWidget &widget)
{
    if (qobject_cast<const QComboBox *>(&widget) != nullptr ||
        qobject_cast<const QTabBar *>(&widget) != nullptr) {
        return true;
    }
    const bool changesByWheel{qobject_cast<const QAbstractSpinBox *>(&widget) != nullptr ||
                              (qobject_cast<const QAbstractSlider *>(&widget) != nullptr &&
                               qobject_cast<const QScrollBar *>(&widget) == nullptr)};
    return changesByWheel && !widget.hasFocus();
}

/// Gives a turn to one widget; it is accepted when the widget has made something of it.
void turnOver(QWidget &widget, const QPoint &place, QWheelEvent &event)
{
    auto *const slider = qobject_cast<QSlider *>(&widget);
    const int positionBefore{slider != nullptr ? slider->value() : 0};
    // Sent by the program and not by the window system, it does not move the focus; without a phase, nobody
    // keeps the turns that follow for itself.
    QWheelEvent turn{place,           event.globalPosition(), event.pixelDelta(), event.angleDelta(),
                     event.buttons(), event.modifiers(),      Qt::NoScrollPhase,  event.inverted(),
                     event.source()};
    turn.setTimestamp(event.timestamp());
    turn.ignore();
    QCoreApplication::sendEvent(&widget, &turn);
    if (slider != nullptr && slider->value() != positionBefore) {
        SliderHand::letGo(*slider);
    }
    event.setAccepted(turn.isAccepted());
}

} // namespace

bool turnWheel(QWindow &window, QWheelEvent &event)
{
    QWidget *const top{widgetOf(window)};
    if (top == nullptr || QApplication::activePopupWidget() != nullptr) {
        return false;
    }
    const QPoint place{event.position().toPoint()};
    QWidget *receiver{top->childAt(place)};
    if (receiver == nullptr) {
        receiver = top;
    }
    for (QWidget *widget{receiver}; widget != top; widget = widget->parentWidget()) {
        if (ignoresWheel(*widget)) {
            receiver = widget->parentWidget();
        }
    }
    // What one ignores goes on to its parent; Qt does that for events of the window system alone.
    event.ignore();
    for (QWidget *widget{receiver}; widget != nullptr; widget = widget->parentWidget()) {
        turnOver(*widget, widget->mapFrom(top, place), event);
        if (event.isAccepted() || widget == top) {
            break;
        }
    }
    return true;
}
