// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How often the monkey reached each control and handler.
#pragma once

#include <QEvent>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>

/// All controls of a window that an operator or a script can use, whatever page they are on; each has a name.
QList<QWidget *> controlsOf(const QWidget &window);
QStringList namesOf(const QList<QWidget *> &controls);

/// Signatures of all handlers of the window, which can be run by their names.
const QStringList &handlers();

/// While it lives, counts the controls that a press, a key or a turn of the wheel comes to.
class Reach : public QObject
{
public:
    Reach();

    /// What was used by its name.
    void use(const QString &name) { ++times[name]; }
    /// Which of the names were reached least.
    QStringList leastReached(const QStringList &names) const;
    /// Which of the names were not reached.
    QStringList leftOver(const QStringList &names) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QHash<QString, int> times;
};
