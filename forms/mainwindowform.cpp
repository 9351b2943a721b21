// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Building the main window's widgets.
#include "mainwindowform.h"

#include "accessibility.h"
#include "ui_mainwindow.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>
#include <QObject>

namespace
{

/// While it lives, combo boxes are not told that their font has been set. They would build the list that they
/// open, a window of its own with a view, which takes a tenth of a start. Built later, it takes the same
/// font.
class ListsForLater : public QObject
{
public:
    ListsForLater() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return event->type() == QEvent::FontChange && qobject_cast<QComboBox *>(watched) != nullptr;
    }
};

} // namespace

void setUpForm(Ui_MainWindow &form, QMainWindow &window)
{
    {
        const ListsForLater listsForLater;
        form.setupUi(&window);
    }
    makeAccessible(form);
}

void retranslateForm(Ui_MainWindow &form, QMainWindow &window)
{
    form.retranslateUi(&window);
}
