// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the operator does with modal boxes, and what was shown.
#pragma once

#include <QDialog>
#include <QObject>
#include <QStringList>
#include <queue>

#include <functional>

/// Watches for modal boxes. The test says beforehand what the operator will do with each; a box that nobody
/// expected fails the test and is closed. So does a message box whose parent is not the window.
class BoxWatcher : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void(QDialog &)>;

    BoxWatcher();
    /// Fails the test when an expected box was not shown.
    ~BoxWatcher() override;

    /// The next box is expected; the operator presses OK, or does what is given.
    void expect(Action action = pressOk);

    /// The boxes shown since the last call, each as `icon "title" "text" [buttons]`; a box in the style of
    /// QMessageBox::about has the icon "window icon".
    QStringList takeShown();

    static void pressOk(QDialog &box);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::queue<Action> actions;
    QStringList shown;
};
