// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The about dialog: names the product and its version.

#pragma once

#include <QDialog>
#include <QWidget>

class Ui_Dialog;

/// A fixed product and version card, captioned in French. It holds no state: build a fresh one each time.
class Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget *parent = nullptr);
    ~Dialog() override;

    Dialog(const Dialog &) = delete;
    Dialog &operator=(const Dialog &) = delete;
    Dialog(Dialog &&) = delete;
    Dialog &operator=(Dialog &&) = delete;

private:
    Ui_Dialog *ui;
};
