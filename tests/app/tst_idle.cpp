// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program while nobody touches it: nothing in it wakes it up.
#include "program.h"
#include "testclass.h"

#include <QObject>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

class IdleTest : public QObject
{
    Q_OBJECT

private slots:
    void noTimerRunsButTheCarets();
};

void IdleTest::noTimerRunsButTheCarets()
{
    const QTemporaryDir directory;
    const QString report{directory.filePath("report")};
    QProcessEnvironment environment{programEnvironment()};
    environment.insert("PILOTEL_TEST_REPORT", report);
    const Outcome outcome{run(PROGRAM, {"-plugin", "tellthetimers"}, environment, directory.path())};

    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 0);
    // The caret's timer shows that one would be found.
    const QStringList timers{
        "without a device: no timer",
        "connected: no timer",
        "with the caret: QWidgetLineControl of FusionZoomFactorSB",
        "after a read: no timer",
    };
    QCOMPARE(linesOf(report), timers);
}

PILOTEL_TEST_CLASS(IdleTest)
#include "tst_idle.moc"
