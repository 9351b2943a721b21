// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The modal boxes that several handlers show.
#include "messageboxes.h"

#include <QIcon>
#include <QMessageBox>
#include <QSize>

void showAboutBox(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box{parent};
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    constexpr QSize largest{64, 64};
    const QIcon icon{box.windowIcon()};
    box.setIconPixmap(icon.pixmap(icon.actualSize(largest)));
    box.addButton(QMessageBox::Ok);
    box.exec();
}
