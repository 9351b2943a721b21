// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The about dialog's fixed product name and version.

#include "dialog.h"

#include "ui_dialog.h"

#include <QString>

Dialog::Dialog(QWidget *parent) : QDialog{parent}, ui{new Ui_Dialog{}}
{
    ui->setupUi(this);
    ui->NomProduit->setText(QStringLiteral("Pilotel Blend Unit"));
    ui->VersionProduit->setText(QStringLiteral(PILOTEL_VERSION));
}

Dialog::~Dialog()
{
    delete ui;
}
