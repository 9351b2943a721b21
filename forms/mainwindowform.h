// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Building the main window's widgets. The generated functions are inline and as long as the form, so that
// each source file that calls them compiles them again; here they are compiled once.
#pragma once

class QMainWindow;
class Ui_MainWindow;

/// Ui_MainWindow::setupUi(): makes all widgets and actions in the window and sets their texts. Then
/// makeAccessible().
void setUpForm(Ui_MainWindow &form, QMainWindow &window);

/// Ui_MainWindow::retranslateUi(): sets the texts in the language of the moment.
void retranslateForm(Ui_MainWindow &form, QMainWindow &window);
