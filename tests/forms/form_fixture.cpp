// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The bare main window form.
#include "form_fixture.h"

MainForm::MainForm()
{
    setUpForm(ui, window);
}

void MainForm::retranslate()
{
    retranslateForm(ui, window);
}
