// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The modal boxes that several handlers show.
#include "messageboxes.h"

#include <QIcon>
#include <QMessageBox>
#include <QStyle>

void showAboutBox(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box{parent};
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    const int iconSize{box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box)};
    box.setIconPixmap(box.windowIcon().pixmap(iconSize));
    box.addButton(QMessageBox::Ok);
    box.exec();
}
