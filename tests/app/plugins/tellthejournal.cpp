// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that writes down the simulated SDK's journal when the program's window closes.
#include "tellthejournal.h"

#include "report.h"
#include "veltrix_simulator/simulator.h"

#include <QApplication>
#include <QEvent>
#include <QString>
#include <QStringList>
#include <QWidget>

TellTheJournal::TellTheJournal()
{
    qApp->installEventFilter(this);
}

bool TellTheJournal::eventFilter(QObject *watched, QEvent *event)
{
    if (!told && event->type() == QEvent::Close && watched->isWidgetType()) {
        told = true;
        QStringList journal;
        for (const veltrix_simulator::Call &call : veltrix_simulator::Simulator::instance().journal()) {
            journal.append(QString::fromStdString(call.text));
        }
        report("PILOTEL_TEST_JOURNAL", journal);
    }
    return false;
}

QObject *TellTheJournalPlugin::create(const QString & /*name*/, const QString & /*arguments*/)
{
    return new TellTheJournal;
}
