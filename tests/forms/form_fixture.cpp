// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The bare main window form.
#include "form_fixture.h"

MainForm::MainForm()
{
    ui.setupUi(&window);
}

void MainForm::retranslate()
{
    ui.retranslateUi(&window);
}

void setUpForm(Ui_MainWindow &ui, QMainWindow &window)
{
    ui.setupUi(&window);
}
