// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// An operator who presses OK in every box, however many come.
#pragma once

#include "boxwatcher.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QObject>

/// While it lives, every box is expected and gets its OK; the watcher notes what was shown.
class BoxPresser : public QObject
{
public:
    explicit BoxPresser(BoxWatcher &itsBoxes) : boxes{itsBoxes} { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
        if (dialog != nullptr && dialog->isModal()) {
            boxes.expect();
        }
        return false;
    }

private:
    BoxWatcher &boxes;
};
