// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the operator's mouse, wheel and keys reach any control of the program.
#include "operatorinput.h"

#include "wheel.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCoreApplication>
#include <QCursor>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTextEdit>
#include <QWheelEvent>
#include <QWindow>

namespace
{

/// A menu borrows the focus of a spin box when it opens, and again when one of its lines is chosen, and gives
/// it back. Told of that, the box would report that its edit is finished, with the value as far as it has
/// been typed.
bool isLentToMenu(const QObject &widget, const QFocusEvent &event)
{
    return event.reason() == Qt::PopupFocusReason &&
           qobject_cast<const QAbstractSpinBox *>(&widget) != nullptr;
}

/// Enter ends an edit and answers a box, each time that it is pressed: held, it would send a stream, and
/// answer a box that nobody has seen.
bool isHeldEnter(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.isAutoRepeat() && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}

/// While the mouse is held outside a text, a timer of the text's moves the selection on. Where a selection
/// was dragged out, the drag has kept the release for itself: the timer would begin one drag after the other.
/// Says whether it was such a timer; the release is made up for then.
bool endsForgottenDrag(QObject &widget)
{
    const bool isText{qobject_cast<QPlainTextEdit *>(&widget) != nullptr ||
                      qobject_cast<QTextEdit *>(&widget) != nullptr};
    if (!isText || QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
        return false;
    }
    QWidget &viewport{*static_cast<QAbstractScrollArea &>(widget).viewport()};
    const QPoint place{QCursor::pos()};
    QMouseEvent release{QEvent::MouseButtonRelease,
                        viewport.mapFromGlobal(place),
                        place,
                        Qt::LeftButton,
                        Qt::NoButton,
                        Qt::NoModifier};
    QCoreApplication::sendEvent(&viewport, &release);
    return true;
}

} // namespace

OperatorInput::OperatorInput()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool OperatorInput::eventFilter(QObject *watched, QEvent *event)
{
    // The type first: nearly all events are none of these.
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::FocusOut:
    case QEvent::Wheel:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::WindowBlocked:
    case QEvent::WindowUnblocked:
    case QEvent::Timer:
        break;
    default:
        return false;
    }
    if (watched->isWindowType()) {
        return filterForWindow(*watched, *event);
    }
    return watched->isWidgetType() && filterForWidget(*watched, *event);
}

bool OperatorInput::filterForWindow(QObject &window, QEvent &event)
{
    if (staleInput.takes(event) || isHeldEnter(event)) {
        return true;
    }
    if (event.type() == QEvent::KeyRelease) {
        sliderHand.keyReleased(static_cast<QKeyEvent &>(event));
    }
    return event.type() == QEvent::Wheel &&
           turnWheel(static_cast<QWindow &>(window), static_cast<QWheelEvent &>(event));
}

bool OperatorInput::filterForWidget(QObject &widget, QEvent &event)
{
    if (event.type() == QEvent::InputMethod) {
        return staleInput.takes(event);
    }
    if (event.type() == QEvent::Timer) {
        return endsForgottenDrag(widget);
    }
    if (event.type() == QEvent::FocusOut && isLentToMenu(widget, static_cast<QFocusEvent &>(event))) {
        return true;
    }
    auto *const slider = qobject_cast<QSlider *>(&widget);
    if (slider == nullptr) {
        return false;
    }
    switch (event.type()) {
    case QEvent::KeyPress:
        sliderHand.keyPressed(*slider);
        return false;
    case QEvent::FocusOut:
        sliderHand.left(*slider);
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return SliderHand::bringsHandle(*slider, static_cast<QMouseEvent &>(event));
    default:
        return false;
    }
}
