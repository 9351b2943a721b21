// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Building the main window's widgets.
#include "mainwindowform.h"

#include "accessibility.h"
#include "ui_mainwindow.h"

#include <QMainWindow>

void setUpForm(Ui_MainWindow &form, QMainWindow &window)
{
    form.setupUi(&window);
    makeAccessible(form);
}

void retranslateForm(Ui_MainWindow &form, QMainWindow &window)
{
    form.retranslateUi(&window);
}
