// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A click that raises a modal box before it reaches the control under the mouse.
#include "clickbehindbox.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QMetaObject>
#include <QMouseEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace
{

/// Follows the press that raised a box with its release. Qt forgets which control is pressed when a box
/// blocks the window, so it brings no release to it, not even one that comes after the box.
class MissingRelease : public QObject
{
public:
    MissingRelease()
    {
        QCoreApplication::instance()->installEventFilter(this);
        // The press reaches its control before control returns to the event loop, or never.
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (waitsForPress) {
                    deleteLater();
                }
            },
            Qt::QueuedConnection);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (watched->isWidgetType() && waitsForPress) {
                press(*static_cast<QWidget *>(watched), *static_cast<QMouseEvent *>(event));
            }
            break;
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            if (watched->isWindowType() && !waitsForPress) {
                releaseOnceLetGo();
            }
            break;
        default:
            break;
        }
        return false;
    }

private:
    void press(QWidget &widget, const QMouseEvent &event)
    {
        waitsForPress = false;
        pressed = &widget;
        button = event.button();
        release =
            std::make_unique<QMouseEvent>(QEvent::MouseButtonRelease, event.localPos(), event.windowPos(),
                                          event.screenPos(), event.button(), Qt::NoButton, event.modifiers());
        releaseOnceLetGo();
    }

    void releaseOnceLetGo()
    {
        if (QGuiApplication::mouseButtons().testFlag(button)) {
            return;
        }
        // Posted, so that it comes after the press, and in the place of the press: the click is whole
        // wherever the mouse has gone since.
        if (release != nullptr && !pressed.isNull()) {
            QCoreApplication::postEvent(pressed, release.release());
        }
        deleteLater();
    }

    bool waitsForPress{true};
    QPointer<QWidget> pressed;
    Qt::MouseButton button{Qt::NoButton};
    std::unique_ptr<QMouseEvent> release;
};

} // namespace

ClickBehindBox::ClickBehindBox() : duringPress{QGuiApplication::mouseButtons() != Qt::NoButton} {}

void ClickBehindBox::boxClosed() const
{
    if (duringPress) {
        new MissingRelease;
    }
}
