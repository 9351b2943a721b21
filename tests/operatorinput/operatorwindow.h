// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main window with what the program puts between it and the operator's hand, and that hand.
#pragma once

#include "operatorinput.h"
#include "testwindow.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPoint>
#include <QPointF>
#include <QString>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
#include <qtestspontaneevent.h>

/// Turns the wheel over a place of a top-level widget, away from the operator where the notches are positive:
/// by way of its native window, as the window system tells it.
inline void turnWheelOver(QWidget &widget, const QPoint &place, int notches)
{
    constexpr int notch{120};
    QWheelEvent event{QPointF{place},    QPointF{widget.mapToGlobal(place)},
                      QPoint{},          QPoint{0, notches * notch},
                      Qt::NoButton,      Qt::NoModifier,
                      Qt::NoScrollPhase, false};
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(widget.windowHandle(), &event);
}

/// One event of a key, as the window system tells a native window, or repeats it while the key is held. Qt
/// Test's own function works off what waits afterwards: on Windows the loop of a box that the key has closed
/// would then sleep until something else happens.
inline void sendKey(QWindow &window, QEvent::Type type, int key, bool repeated = false,
                    const QString &text = {})
{
    QKeyEvent event{type, key, Qt::NoModifier, text, repeated};
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&window, &event);
}

/// The window as the program runs it. All places are those of the window; events come by way of its native
/// window, as the window system sends them.
class OperatorWindow : public TestWindow
{
public:
    explicit OperatorWindow(const Preparation &prepare = {}, Drawing drawing = Drawing::On)
        : TestWindow{prepare, drawing}
    {
        window().setSequenceObserver([this](bool running) { input.sequenceRuns(running); });
    }

    /// What the hand acts on, once the program is at rest.
    QWindow &native()
    {
        QCoreApplication::processEvents();
        return *window().windowHandle();
    }

    /// A place of a widget; without one, its middle.
    QPoint placeOf(const QString &name, const QPoint &place)
    {
        return child<QWidget>(name).mapTo(&window(), place);
    }
    QPoint middleOf(const QString &name) { return placeOf(name, child<QWidget>(name).rect().center()); }

    void press(const QPoint &place) { QTest::mousePress(&native(), Qt::LeftButton, Qt::NoModifier, place); }
    void release(const QPoint &place)
    {
        QTest::mouseRelease(&native(), Qt::LeftButton, Qt::NoModifier, place);
    }
    void clickAt(const QPoint &place)
    {
        press(place);
        release(place);
    }

    void turn(const QPoint &place, int notches)
    {
        QCoreApplication::processEvents();
        turnWheelOver(window(), place, notches);
    }

    void key(QEvent::Type type, Qt::Key key, bool repeated = false)
    {
        sendKey(native(), type, key, repeated);
    }

private:
    OperatorInput input;
};
