// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The controls of the main window, operated as an operator does, but without a mouse.
#pragma once

#include "mainwindow.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QLatin1String>
#include <QSlider>
#include <QtGlobal>

/// Moves a slider and lets it go.
void slideTo(QSlider &slider, int position);
/// Finishes the edit of a spin box.
void finishEdit(QAbstractSpinBox &box, int value);
/// As a click, without the painting that QAbstractButton::click() does at once.
void pressUnpainted(QAbstractButton &button);

/// Finds the controls of a window by name. One that does not exist, or cannot be operated, ends the program:
/// the figures would mean nothing.
class OperatedWindow
{
public:
    /// The window must outlive it.
    explicit OperatedWindow(MainWindow &itsWindow) : window{itsWindow} {}

    template <typename Widget>
    Widget &child(const char *name) const
    {
        auto *const found = window.findChild<Widget *>(QLatin1String{name});
        if (found == nullptr) {
            qFatal("the window has no %s", name);
        }
        return *found;
    }
    /// Clicks an enabled button.
    void press(const char *name) const;
    void slide(const char *name, int position) const { slideTo(child<QSlider>(name), position); }
    void edit(const char *name, int value) const { finishEdit(child<QAbstractSpinBox>(name), value); }
    /// The choice at that place, counted on from the first one after the last one.
    void choose(const char *name, int place) const;
    /// Runs a handler without parameters.
    void invoke(const char *handler) const;
    /// Scans, and connects the simulated device.
    void connectDevice() const;

private:
    MainWindow &window;
};
