// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The shell of the program: from a pipe, from a file, and typed at a terminal; what only a terminal sees.
#include "ctlrun.h"
#include "terminal.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTest>

class CtlShellTest : public QObject
{
    Q_OBJECT

private slots:
    void runsAFileOverOneConnection();
    void runsAPipe();
    void understandsLines_data();
    void understandsLines();
    void refusesALineThatIsTooLong_data();
    void refusesALineThatIsTooLong();
    void stopsAtTheFirstFailure();
    void goesOnAfterTheHelp();
    void hasNoShellInTheShell();
    void talksAtATerminal();
    void remembersWhatWasTyped();
    void takesBackALineAtCtrlC_data();
    void takesBackALineAtCtrlC();
    void completesAtATerminal();
    void asksForNothingWhereTheOutputIsNoTerminal();
    void opensTheDeviceAgain();
    void colorsOnATerminalOnly();
    void showsProgressOnATerminalOnly();
};

void CtlShellTest::runsAFileOverOneConnection()
{
    CtlFolder folder;
    folder.write("commands", "set camera.gamma=2.2\n\n# a comment\nget camera.gamma # 2.2\nget camera.clhe");
    const Outcome outcome{folder.run({"shell", "commands"})};
    QCOMPARE(outcome.output,
             lines({"camera.gamma = 144179  # 2.2", "camera.gamma = 144179  # 2.2", "camera.clhe = 2000"}));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(folder.calls().filter("openDevice").size(), 1);
    QCOMPARE(folder.calls().filter("startReading").size(), 1);
}

void CtlShellTest::runsAPipe()
{
    CtlFolder folder;
    QProcess process;
    process.setProcessEnvironment(folder.environment);
    process.start(CTL, {"shell"});
    process.write("get camera.gamma\nexit\nget camera.clhe\n");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput(), QByteArray{"camera.gamma = 65536  # 1\n"});
    QCOMPARE(process.readAllStandardError(), QByteArray{});
    QCOMPARE(process.exitCode(), 0);
}

void CtlShellTest::understandsLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("errors");
    const auto row = [](const QByteArray &line, const char *errors) {
        QTest::addRow("%s", line.constData()) << line << QString{errors};
    };
    row("  get\tcamera.gamma  ", "");
    row("get 'camera.gamma'", "");
    row("get cam\"era.ga\"mma", "");
    row("get camera.gamma\r", "");
    row("get 'camera.gamma", "pilotel-ctl: c:1: The quote ' has no end.\n");
    row("get 'camera gamma'",
        "pilotel-ctl: c:1: There is no setting \"camera gamma\"; did you mean \"camera.gamma\"?\n");
    row("get camera.gamm",
        "pilotel-ctl: c:1: There is no setting \"camera.gamm\"; did you mean \"camera.gamma\"?\n");
    row("get camera#gamma",
        "pilotel-ctl: c:1: There is no setting \"camera#gamma\"; did you mean \"camera.gamma\"?\n");
    row("gte camera.gamma",
        "pilotel-ctl: c:1: There is no command \"gte\"; did you mean \"get\"?\npilotel-ctl: Try \"pilotel-ctl --help\".\n");
}

void CtlShellTest::understandsLines()
{
    QFETCH(const QByteArray, line);
    QFETCH(const QString, errors);
    CtlFolder folder;
    folder.write("c", line);
    const Outcome outcome{folder.run({"shell", "c"})};
    QCOMPARE(outcome.errors, errors);
    QCOMPARE(outcome.output, errors.isEmpty() ? "camera.gamma = 65536  # 1\n" : QString{});
    QCOMPARE(outcome.status, errors.isEmpty() ? 0 : 2);
}

void CtlShellTest::refusesALineThatIsTooLong_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("line"); ///< That is too long; 0: none.
    const QByteArray command{"set camera.gamma=2.5"};
    const QByteArray longest{'#' + QByteArray(99'999, 'x')};
    QTest::newRow("a command behind the longest comment") << longest + '\n' + command << 0;
    QTest::newRow("the longest command") << QByteArray(100'000 - command.size(), ' ') + command << 0;
    for (const int bytes : {99'998, 99'999, 100'000, 100'001, 199'998, 200'000}) {
        QTest::addRow("a command in a comment of %d bytes", bytes)
            << '#' + QByteArray(bytes, 'x') + command << 1;
    }
    QTest::newRow("a comment of one byte too many") << longest + "x\n" + command << 1;
    QTest::newRow("a command") << QByteArray(100'001 - command.size(), ' ') + command << 1;
    QTest::newRow("the second line") << '\n' + longest + command + '\n' << 2;
}

void CtlShellTest::refusesALineThatIsTooLong()
{
    QFETCH(const QByteArray, text);
    QFETCH(const int, line);
    CtlFolder folder;
    folder.write("c", text);
    const QStringList sent{line == 0 ? QStringList{"setGamma(163840)"} : QStringList{}};
    const QString error{"the line has more than 100000 bytes; "
                        "write shorter lines, one command each\n"};
    const Outcome outcome{folder.run({"shell", "c"})};
    QCOMPARE(outcome.errors, line == 0 ? QString{} : QString{"pilotel-ctl: c:%1: "}.arg(line) + error);
    QCOMPARE(outcome.status, line == 0 ? 0 : 2);
    QCOMPARE(folder.commands(), sent);
}

void CtlShellTest::stopsAtTheFirstFailure()
{
    CtlFolder folder{"refused-warp"};
    folder.write("c", "set camera.clhe=1\nset blendUnit.warp0.a11=2\nset camera.clhe=2\n");
    const Outcome outcome{folder.run({"shell", "c"})};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: c:2: blendUnit.warp0.a11 = 2 is refused by the Blend Unit.",
                                    "pilotel-ctl: Everything is as it was before."}));
    QCOMPARE(outcome.output, lines({"camera.clhe = 1"}));
    QCOMPARE(outcome.status, 1);
}

void CtlShellTest::goesOnAfterTheHelp()
{
    CtlFolder folder;
    folder.write("c", "get --help\nget camera.clhe\n");
    const Outcome outcome{folder.run({"shell", "c"})};
    QVERIFY2(outcome.output.startsWith("Reads settings by their names\n"), qPrintable(outcome.output));
    QVERIFY2(outcome.output.endsWith("\ncamera.clhe = 2000\n"), qPrintable(outcome.output));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
}

void CtlShellTest::hasNoShellInTheShell()
{
    CtlFolder folder;
    folder.write("c", "shell c\n");
    const Outcome outcome{folder.run({"shell", "c"})};
    QVERIFY2(outcome.errors.startsWith("pilotel-ctl: c:1: There is no command \"shell\""),
             qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 2);
}

void CtlShellTest::talksAtATerminal()
{
    CtlFolder folder;
    Terminal terminal{CTL, {"shell"}, folder.environment};
    QVERIFY2(terminal.waitFor("pilotel> "), terminal.seen());
    terminal.type("get camera.clhe\n");
    QVERIFY2(terminal.waitFor("camera.clhe = 2000\r\npilotel> "), terminal.seen());
    terminal.type("\n");
    QVERIFY2(terminal.waitFor("pilotel> "), terminal.seen());
    terminal.type("get nothing\n");
    QVERIFY2(terminal.waitFor("There is no setting \"nothing\""), terminal.seen());
    QVERIFY2(terminal.waitFor("pilotel> "), terminal.seen());
    // The arrow brings the line of before.
    terminal.type("\x1b[A\x1b[A\n");
    QVERIFY2(terminal.waitFor("camera.clhe = 2000\r\npilotel> "), terminal.seen());
    terminal.type("get camera.tint\n");
    QVERIFY2(terminal.waitFor("camera.tint = 10\r\npilotel> "), terminal.seen());
    // Ctrl-D ends.
    QVERIFY(terminal.waitForKeyByKey());
    terminal.type("\x04");
    QCOMPARE(terminal.end(), 0);
}

void CtlShellTest::remembersWhatWasTyped()
{
    CtlFolder folder;
    for (const char *const typed : {"get camera.tint\n", "\x1b[A\x1b[A\n"}) {
        Terminal terminal{CTL, {"shell"}, folder.environment};
        QVERIFY2(terminal.waitFor("pilotel> "), terminal.seen());
        QVERIFY(terminal.waitForKeyByKey());
        terminal.type(typed);
        QVERIFY2(terminal.waitFor("camera.tint = 10\r\npilotel> "), terminal.seen());
        terminal.type("exit\n");
        QCOMPARE(terminal.end(), 0);
    }
    QCOMPARE(folder.read("state/pilotel/history"),
             QByteArray{"get camera.tint\nexit\nget camera.tint\nexit\n"});
}

void CtlShellTest::takesBackALineAtCtrlC_data()
{
    QTest::addColumn<QByteArray>("typed");
    // Together with the keys before it Ctrl-C comes while the line is drawn.
    QTest::newRow("an empty line") << QByteArray{"\x03"};
    QTest::newRow("a word") << QByteArray{"get no\x03"};
    QTest::newRow("a letter of two bytes") << QByteArray{"get \xc3\xa9\x03"};
    QTest::newRow("twice") << QByteArray{"get no\x03\x03"};
}

void CtlShellTest::takesBackALineAtCtrlC()
{
    QFETCH(const QByteArray, typed);
    CtlFolder folder;
    Terminal terminal{CTL, {"shell"}, folder.environment};
    for (int times{0}; times < 20; ++times) {
        QVERIFY2(terminal.waitFor("pilotel> "), terminal.seen());
        terminal.type(typed);
        QVERIFY2(terminal.waitFor("\r\n"), terminal.seen());
    }
    QVERIFY2(terminal.waitFor("pilotel> "), terminal.seen());
    terminal.type("get camera.clhe\n");
    QVERIFY2(terminal.waitFor("camera.clhe = 2000\r\npilotel> "), terminal.seen());
    QVERIFY(terminal.waitForKeyByKey());
    terminal.type("\x04");
    QCOMPARE(terminal.end(), 0);
}

void CtlShellTest::completesAtATerminal()
{
    CtlFolder folder;
    Terminal terminal{CTL, {"shell"}, folder.environment};
    QVERIFY2(terminal.waitFor("pilotel> "), terminal.seen());
    terminal.type("se\tcamera.colorL\tir\t");
    terminal.type("\n");
    QVERIFY2(terminal.waitFor("camera.colorLut = 1  # iron\r\n"), terminal.seen());
    // Of several words that are possible none is chosen.
    terminal.type("p\torts\n");
    QVERIFY2(terminal.waitFor("\r\nSIM1\r\n"), terminal.seen());
    terminal.type("exit\n");
    QCOMPARE(terminal.end(), 0);
}

void CtlShellTest::asksForNothingWhereTheOutputIsNoTerminal()
{
    CtlFolder folder;
    Terminal terminal{"/bin/sh", {"-c", CTL " shell | cat"}, folder.environment};
    terminal.type("get camera.clhe\nexit\n");
    QVERIFY2(terminal.waitFor("camera.clhe = 2000\r\n"), terminal.seen());
    QCOMPARE(terminal.end(), 0);
    QVERIFY2(!terminal.seen().contains("pilotel> "), terminal.seen());
}

void CtlShellTest::opensTheDeviceAgain()
{
    CtlFolder folder{"cable-pulled"};
    Terminal terminal{CTL, {"shell"}, folder.environment};
    QVERIFY2(terminal.waitFor("pilotel> "), terminal.seen());
    terminal.type("get camera.colorLut\n");
    QVERIFY2(terminal.waitFor("No answer from the camera: look at its power and its cable.\r\n"),
             terminal.seen());
    // Connecting again plugs it in.
    terminal.type("get camera.colorLut\n");
    QVERIFY2(terminal.waitFor("camera.colorLut = 0  # greyscale\r\n"), terminal.seen());
    terminal.type("quit\n");
    QCOMPARE(terminal.end(), 0);
}

void CtlShellTest::colorsOnATerminalOnly()
{
    CtlFolder folder;
    const QByteArray red{"\x1b[31mpilotel-ctl:\x1b[0m There is no"};
    Terminal colored{CTL, {"get", "nothing"}, folder.environment};
    QVERIFY2(colored.waitFor(red), colored.seen());
    QCOMPARE(colored.end(), 2);
    folder.environment.insert("NO_COLOR", "");
    Terminal unset{CTL, {"get", "nothing"}, folder.environment};
    QVERIFY2(unset.waitFor(red), unset.seen());
    QCOMPARE(unset.end(), 2);
    folder.environment.insert("NO_COLOR", "1");
    Terminal plain{CTL, {"get", "nothing"}, folder.environment};
    QVERIFY2(plain.waitFor("pilotel-ctl: There is no"), plain.seen());
    QCOMPARE(plain.end(), 2);
    QVERIFY2(!plain.seen().contains("\x1b[31m"), plain.seen());
}

void CtlShellTest::showsProgressOnATerminalOnly()
{
    CtlFolder folder;
    folder.play("[link]\nkind = \"fixed\"\nmillisecondsPerCall = 15\n");
    Terminal terminal{CTL, {"profile", "save", folder.path("p.toml")}, folder.environment};
    QCOMPARE(terminal.end(), 0);
    QVERIFY2(terminal.seen().contains("\rReading [####"), terminal.seen());
    // What was drawn is wiped out before the line of the end.
    QVERIFY2(terminal.seen().contains(QByteArray(10, ' ') + "\r77 settings saved"), terminal.seen());
    const Outcome outcome{folder.run({"profile", "save", "p.toml"})};
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.output, lines({"77 settings saved in p.toml"}));
}

PILOTEL_TEST_CLASS(CtlShellTest)
#include "tst_ctl_shell.moc"
