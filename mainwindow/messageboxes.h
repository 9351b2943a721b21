// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The modal boxes that several handlers show.
#pragma once

#include <QString>
#include <QWidget>

/// As QMessageBox::about, except that the text is always shown as it is: a port name that looks like markup
/// is not interpreted.
void showAboutBox(QWidget *parent, const QString &title, const QString &text);
