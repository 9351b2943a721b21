// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What of the window the monkey can reach, whose turn it is, and what it did reach.
#pragma once

#include <QEvent>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <QtGlobal>

/// All controls of a window that an operator or a script can use, whatever page they are on; each has a name.
QList<QWidget *> controlsOf(const QWidget &window);
QStringList namesOf(const QList<QWidget *> &controls);

/// Whether a page of the window, or the window itself, shows the control: no matter which page is in view.
bool isOnAPage(const QWidget &control);

/// Whether the window lets its pages be used, as it does while it is connected.
bool isConnected(const QWidget &window);

/// Signatures of all handlers of the window, which can be run by their names.
const QStringList &handlers();

/// Whose turn it is in a session: what it has taken least often so far. Where it begins follows from the
/// seed, so that in a run from seed to seed all have their turn.
class Turns
{
public:
    explicit Turns(quint32 itsSeed) : seed{itsSeed} {}

    /// One of the names, which are not none.
    QString next(const QStringList &names);

private:
    const quint32 seed;
    QHash<QString, int> times;
};

/// While it lives, counts what is reached of the windows that are there: by hand the controls that a page
/// shows, when a press or a key comes to them and they can be used; by their names the handlers and the other
/// controls, while the window is connected.
class Reach : public QObject
{
public:
    Reach();

    /// Of a session's window, at its start: an installation may show fewer pages than another.
    void learn(const QWidget &window);
    /// What a script has used while the window was connected.
    void useByName(const QString &name) { byName.insert(name); }

    struct Count
    {
        int all;
        QStringList left; ///< What was not reached.
    };
    Count hand() const;
    Count script() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList onPages;
    QStringList onNone; ///< In some installation.
    QSet<QString> byHand;
    QSet<QString> byName;
};
