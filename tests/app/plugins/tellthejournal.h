// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that writes down the simulated SDK's journal when the program's window closes.
#pragma once

#include <QEvent>
#include <QGenericPlugin>
#include <QObject>
#include <QString>

/// Appends the journal to the file that PILOTEL_TEST_JOURNAL names, once: when the first window closes.
class TellTheJournal : public QObject
{
    Q_OBJECT

public:
    TellTheJournal();
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool told{false};
};

class TellTheJournalPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "tellthejournal.json")

public:
    QObject *create(const QString &name, const QString &arguments) override;
};
