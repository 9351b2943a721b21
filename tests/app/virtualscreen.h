// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A screen of any size that nobody sees.
#pragma once

#include "program.h"

#include <QProcess>
#include <QSize>
#include <QString>
#include <QStringList>

/// An X server of its own with one screen of 100 dots per inch, as long as the object lives.
class VirtualScreen
{
public:
    /// The height of the panel at the lower edge is taken from what windows may use.
    VirtualScreen(QSize size, int panelHeight);
    /// What a desktop does whose operator chose a scaling: 120 dots are 1.25.
    bool tellDensity(int dotsPerInch) const;
    ~VirtualScreen();
    VirtualScreen(const VirtualScreen &) = delete;
    VirtualScreen &operator=(const VirtualScreen &) = delete;
    VirtualScreen(VirtualScreen &&) = delete;
    VirtualScreen &operator=(VirtualScreen &&) = delete;

    /// The value of DISPLAY, such as ":5"; empty when the server did not start.
    QString name() const { return display; }
    /// What a desktop knows a window by, WM_CLASS as xprop writes it, once there is one with that title;
    /// empty after half a minute.
    QString classOfWindow(const QString &title) const;
    /// Whether a window with that title can be seen, at the latest after half a minute.
    bool shows(const QString &title) const;

private:
    Outcome ask(const QString &tool, const QStringList &arguments) const;
    bool setProperty(const QString &name, const QString &format, const QString &value) const;

    QProcess server;
    QString display;
};
