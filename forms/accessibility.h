// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the main window's controls are called by a screen reader, and how the keyboard leaves them.
#pragma once

class Ui_MainWindow;

/// Names each control of the form that has no text of its own to be called by, ties each caption to what it
/// stands for, describes by its tooltip without markup, and lets the Tab key leave text boxes. No text that
/// is shown changes.
void makeAccessible(const Ui_MainWindow &form);
