// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The controls of the main window, operated as an operator does, but without a mouse.
#include "operatedwindow.h"

#include <QComboBox>
#include <QMetaObject>
#include <QString>

void slideTo(QSlider &slider, int position)
{
    slider.setSliderDown(true);
    slider.setSliderPosition(position);
    slider.setSliderDown(false);
}

void finishEdit(QAbstractSpinBox &box, int value)
{
    // Boxes of whole and of fractional numbers have this property in common.
    box.setProperty("value", value);
    emit box.editingFinished();
}

void pressUnpainted(QAbstractButton &button)
{
    if (button.isCheckable()) {
        button.setChecked(!button.isChecked());
    }
    emit button.clicked(button.isChecked());
}

void OperatedWindow::press(const char *name) const
{
    auto &button = child<QAbstractButton>(name);
    if (!button.isEnabled()) {
        qFatal("%s is disabled; the figures would mean nothing", name);
    }
    button.click();
}

void OperatedWindow::choose(const char *name, int place) const
{
    auto &box = child<QComboBox>(name);
    box.setCurrentIndex(place % box.count());
}

void OperatedWindow::invoke(const char *handler) const
{
    if (!QMetaObject::invokeMethod(&window, handler, Qt::DirectConnection)) {
        qFatal("the window has no handler %s", handler);
    }
}

void OperatedWindow::connectDevice() const
{
    press("scanDeviceButton");
    child<QComboBox>("selectDeviceComboBox").setCurrentText(QStringLiteral("SIM1"));
    press("connectDeviceButton");
    if (!child<QAbstractButton>("disconnectDeviceButton").isEnabled()) {
        qFatal("the simulated device cannot be connected");
    }
}
