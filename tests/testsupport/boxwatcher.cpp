// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the operator does with modal boxes, and what was shown.
#include "boxwatcher.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLatin1Char>
#include <QMainWindow>
#include <QMessageBox>
#include <QString>
#include <QTest>
#include <QTimer>

#include <utility>

namespace
{

QString iconName(const QMessageBox &box)
{
    switch (box.icon()) {
    case QMessageBox::Information:
        return QStringLiteral("information");
    case QMessageBox::Warning:
        return QStringLiteral("warning");
    case QMessageBox::Critical:
        return QStringLiteral("critical");
    case QMessageBox::Question:
        return QStringLiteral("question");
    case QMessageBox::NoIcon:
        break;
    }
    return box.iconPixmap().isNull() ? QStringLiteral("no icon") : QStringLiteral("window icon");
}

QString describe(const QDialog &dialog)
{
    const auto *const box = qobject_cast<const QMessageBox *>(&dialog);
    if (box == nullptr) {
        return QStringLiteral("dialog \"%1\"").arg(dialog.windowTitle());
    }
    QStringList buttons;
    for (const QAbstractButton *const button : box->buttons()) {
        buttons.append(button->text());
    }
    return iconName(*box) + QStringLiteral(" \"") + box->windowTitle() + QStringLiteral("\" \"") +
           box->text() + QStringLiteral("\" [") + buttons.join(QStringLiteral(", ")) + QLatin1Char{']'};
}

} // namespace

BoxWatcher::BoxWatcher()
{
    qApp->installEventFilter(this);
}

BoxWatcher::~BoxWatcher()
{
    if (!actions.empty()) {
        QTest::qFail("a box that was expected was not shown", __FILE__, __LINE__);
    }
}

void BoxWatcher::expect(Action action)
{
    actions.push(std::move(action));
}

QStringList BoxWatcher::takeShown()
{
    QStringList taken;
    taken.swap(shown);
    return taken;
}

void BoxWatcher::pressOk(QDialog &box)
{
    if (auto *const messageBox = qobject_cast<QMessageBox *>(&box)) {
        QTest::mouseClick(messageBox->button(QMessageBox::Ok), Qt::LeftButton);
    } else {
        box.accept();
    }
}

bool BoxWatcher::eventFilter(QObject *watched, QEvent *event)
{
    auto *const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
    if (dialog == nullptr || !dialog->isModal()) {
        return false;
    }
    shown.append(describe(*dialog));
    // Without the window as its parent, a box stands anywhere and does not keep the operator from the window.
    if (qobject_cast<QMessageBox *>(dialog) != nullptr &&
        qobject_cast<QMainWindow *>(dialog->parentWidget()) == nullptr) {
        QTest::qFail(qPrintable(QStringLiteral("the window is not the parent of the box: ") + shown.last()),
                     __FILE__, __LINE__);
    }
    Action action;
    if (actions.empty()) {
        QTest::qFail(qPrintable(QStringLiteral("unexpected box: ") + shown.last()), __FILE__, __LINE__);
        action = [](QDialog &box) {
            box.reject();
        };
    } else {
        action = std::move(actions.front());
        actions.pop();
    }
    // Once the box runs its own event loop, as for an operator.
    QTimer::singleShot(0, dialog, [dialog, action] { action(*dialog); });
    return false;
}
