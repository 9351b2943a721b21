// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Keys at the shell's terminal: letters of several bytes, what completes nothing, and what comes between two
// keys.
#include "ctlrun.h"
#include "terminal.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QTest>

#include <csignal>

class CtlLineEditorTest : public QObject
{
    Q_OBJECT

private slots:
    void takesLettersOfSeveralBytes();
    void leavesOutBytesThatAreNoLetter();
    void completesNothingBehindAQuoteWithoutAnEnd();
    void goesOnWhenTheWindowChangesItsSize();
    void endsWhenItIsAskedTo();
};

namespace
{

/// Waits until the shell takes keys.
bool isReady(Terminal &terminal)
{
    return terminal.waitFor("pilotel> ") && terminal.waitForKeyByKey();
}

} // namespace

void CtlLineEditorTest::takesLettersOfSeveralBytes()
{
    CtlFolder folder;
    folder.write("größe €.toml", "camera.gamma = 144179\n");
    Terminal terminal{CTL, {"shell"}, folder.environment};
    QVERIFY2(isReady(terminal), terminal.seen());
    terminal.type("profile apply '" + folder.path("größe €.toml").toUtf8() + "'\n");
    QVERIFY2(terminal.waitFor("camera.gamma: 65536 (1) -> 144179 (2.2)\r\n"), terminal.seen());
    terminal.type("exit\n");
    QCOMPARE(terminal.end(), 0);
    QVERIFY(folder.read("state/pilotel/history").contains("/größe €.toml'\n"));
}

void CtlLineEditorTest::leavesOutBytesThatAreNoLetter()
{
    CtlFolder folder;
    Terminal terminal{CTL, {"shell"}, folder.environment};
    QVERIFY2(isReady(terminal), terminal.seen());
    terminal.type("get camera\xff.clh\xfe\xff"
                  "e\n");
    QVERIFY2(terminal.waitFor("camera.clhe = 2000\r\n"), terminal.seen());
    terminal.type("exit\n");
    QCOMPARE(terminal.end(), 0);
}

void CtlLineEditorTest::completesNothingBehindAQuoteWithoutAnEnd()
{
    CtlFolder folder;
    Terminal terminal{CTL, {"shell"}, folder.environment};
    QVERIFY2(isReady(terminal), terminal.seen());
    // The quote could hold anything, a name of two words too.
    terminal.type("get 'x camera.colorL\t'\n");
    QVERIFY2(terminal.waitFor("There is no setting \"x camera.colorL\""), terminal.seen());
    QVERIFY2(isReady(terminal), terminal.seen());
    terminal.type("get camera.colorL\t\n");
    QVERIFY2(terminal.waitFor("camera.colorLut = 0  # greyscale\r\n"), terminal.seen());
    terminal.type("exit\n");
    QCOMPARE(terminal.end(), 0);
}

void CtlLineEditorTest::goesOnWhenTheWindowChangesItsSize()
{
    CtlFolder folder;
    Terminal terminal{CTL, {"shell"}, folder.environment};
    QVERIFY2(isReady(terminal), terminal.seen());
    terminal.type("get camera");
    QVERIFY2(terminal.waitFor("get camera"), terminal.seen());
    for (const int columns : {80, 120, 100}) {
        terminal.resize(columns);
        // So that it waits for the next key again.
        QTest::qWait(50);
    }
    terminal.type(".clhe\n");
    QVERIFY2(terminal.waitFor("camera.clhe = 2000\r\n"), terminal.seen());
    terminal.type("exit\n");
    QCOMPARE(terminal.end(), 0);
}

void CtlLineEditorTest::endsWhenItIsAskedTo()
{
    CtlFolder folder;
    Terminal terminal{CTL, {"shell"}, folder.environment};
    QVERIFY2(isReady(terminal), terminal.seen());
    terminal.type("get camera.clhe\n");
    QVERIFY2(terminal.waitFor("camera.clhe = 2000\r\n"), terminal.seen());
    QVERIFY2(isReady(terminal), terminal.seen());
    terminal.type("get camera.ga");
    QVERIFY2(terminal.waitFor("get camera.ga"), terminal.seen());
    terminal.send(SIGTERM);
    QCOMPARE(terminal.end(), 0);
    // The device is given back, and what was begun is not run.
    const QStringList calls{folder.calls()};
    QCOMPARE(calls.filter("getGamma"), QStringList{});
    QCOMPARE(calls.last(), QString{"releaseDeviceManager(\"manager\")"});
}

PILOTEL_TEST_CLASS(CtlLineEditorTest)
#include "tst_ctl_line_editor.moc"
