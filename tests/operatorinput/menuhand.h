// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the operator does with the menu that the right button opens.
#pragma once

#include <QApplication>
#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

/// While it lives, something is done with each menu that opens, and Escape closes it.
class MenuHand : public QObject
{
public:
    explicit MenuHand(std::function<void()> itsDeed = [] {}) : deed{std::move(itsDeed)}
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const menu = event->type() == QEvent::Show ? qobject_cast<QMenu *>(watched) : nullptr;
        if (menu != nullptr) {
            ++count;
            // Once the menu runs its own event loop, as for an operator.
            QTimer::singleShot(0, menu, [this, menu = QPointer<QMenu>{menu}] {
                // The off-screen platform tells that the menu is the active window; Qt ignores that, but only
                // while the menu is open.
                QCoreApplication::processEvents();
                deed();
                // Some menus are gone by then.
                if (menu != nullptr && menu->isVisible()) {
                    QTest::keyPress(menu->windowHandle(), Qt::Key_Escape);
                }
            });
        }
        return false;
    }

    int count{0}; ///< Of the menus that have been opened.

private:
    std::function<void()> deed;
};
