// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the Blend Unit's starting mode.
#include "testclass.h"
#include "testwindow.h"

#include <QComboBox>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <vector>

using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

namespace
{

TestWindow::Preparation withStartingMode(int mode)
{
    return [mode](Simulator &simulator) {
        simulator.set("blendUnit.startingMode", mode);
    };
}

QComboBox &startingModeBox(const TestWindow &test)
{
    return test.child<QComboBox>("startingModeCB");
}

/// Picks an item as the keyboard does.
void choose(const TestWindow &test, int key)
{
    QComboBox &box{startingModeBox(test)};
    box.setFocus();
    QTest::keyClick(&box, static_cast<Qt::Key>(key));
}

void addStartingModeChoices()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("chosen");

    const auto row = [](const char *name, int shown, Qt::Key key, int chosen) {
        QTest::newRow(name) << shown << static_cast<int>(key) << chosen;
    };
    row("IR mode by its letter", 2, Qt::Key_I, 0);
    row("Visible mode by its letter", 0, Qt::Key_V, 1);
    row("Fusion mode by its letter", 0, Qt::Key_F, 2);
    row("Current mode by its letter", 0, Qt::Key_C, 3);
    row("the first item", 3, Qt::Key_Home, 0);
    row("the next item", 0, Qt::Key_Down, 1);
    row("the item before", 3, Qt::Key_Up, 2);
    row("the last item", 1, Qt::Key_End, 3);
}

} // namespace

class StartingModeTest : public QObject
{
    Q_OBJECT

private slots:
    void choiceOfStartingModeIsSent_data() { addStartingModeChoices(); }
    void choiceOfStartingModeIsSent();
    void refusedStartingModeKeepsTheChoice_data() { addStartingModeChoices(); }
    void refusedStartingModeKeepsTheChoice();
    void sameStartingModeAgainSendsNothing();
    void readOfStartingMode_data();
    void readOfStartingMode();
    void refusedWriteBackOfStartingModeIsReported();
};

void StartingModeTest::choiceOfStartingModeIsSent()
{
    QFETCH(const int, shown);
    QFETCH(const int, key);
    QFETCH(const int, chosen);
    TestWindow test{withStartingMode(shown)};
    test.beConnected();
    QCOMPARE(startingModeBox(test).currentIndex(), shown);

    choose(test, key);

    QCOMPARE(test.takeCalls(), QStringList{QString{"setStartingMode(%1) -> true"}.arg(chosen)});
    QCOMPARE(test.takeLog(), QStringList{"Blend unit starting mode set"});
    QCOMPARE(startingModeBox(test).currentIndex(), chosen);
    QVERIFY(test.lastCommandOk());
}

void StartingModeTest::refusedStartingModeKeepsTheChoice()
{
    QFETCH(const int, shown);
    QFETCH(const int, key);
    QFETCH(const int, chosen);
    TestWindow test{withStartingMode(shown)};
    test.beConnected();
    test.simulator.addFault({"setStartingMode"});

    choose(test, key);

    QCOMPARE(test.takeCalls(), QStringList{QString{"setStartingMode(%1) -> false"}.arg(chosen)});
    QCOMPARE(test.takeLog(), QStringList{"Could not changed blend unit starting mode"});
    QCOMPARE(startingModeBox(test).currentIndex(), chosen);
    QVERIFY(!test.lastCommandOk());
}

void StartingModeTest::sameStartingModeAgainSendsNothing()
{
    TestWindow test{withStartingMode(3)};
    test.beConnected();

    choose(test, Qt::Key_End);

    QCOMPARE(test.takeCalls(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void StartingModeTest::readOfStartingMode_data()
{
    QTest::addColumn<bool>("ok");
    QTest::addColumn<int>("answered");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("sentBack");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<bool>("lastCommandOk");

    // The window shows 2 before each read.
    const auto row = [](const char *name, bool ok, int answered, int index, const QStringList &sentBack,
                        const QStringList &log, bool lastCommandOk) {
        QTest::newRow(name) << ok << answered << index << sentBack << log << lastCommandOk;
    };
    const QStringList set{"Blend unit starting mode set"};
    const QStringList notSet{"Could not changed blend unit starting mode"};
    row("equal: nothing is sent", true, 2, 2, {}, {}, true);
    row("different: sent back", true, 1, 1, {"setStartingMode(1) -> true"}, set, true);
    row("current mode: sent back", true, 3, 3, {"setStartingMode(3) -> true"}, set, true);
    row("refused: nothing changes", false, 0, 2, {}, {}, false);
    row("refused with a value: nothing changes", false, 1, 2, {}, {}, false);
    // No item stands for these: the index without an item travels as the 32-bit pattern that it is.
    const QStringList noItem{"setStartingMode(4294967295) -> false"};
    row("4 has no item", true, 4, -1, noItem, notSet, false);
    row("99 has no item", true, 99, -1, noItem, notSet, false);
    row("255 has no item", true, 255, -1, noItem, notSet, false);
}

void StartingModeTest::readOfStartingMode()
{
    QFETCH(const bool, ok);
    QFETCH(const int, answered);
    QFETCH(const int, index);
    QFETCH(const QStringList, sentBack);
    QFETCH(const QStringList, log);
    QFETCH(const bool, lastCommandOk);
    TestWindow test{withStartingMode(2)};
    test.beConnected();
    test.simulator.addFault({"getStartingMode", 1, 0, std::vector<Value>{ok, answered}});

    test.invoke("readStartingMode");

    const QString read{QString{"getStartingMode() -> %1 {mode=%2}"}.arg(ok ? "true" : "false").arg(answered)};
    QCOMPARE(test.takeCalls(), QStringList{read} + sentBack);
    QCOMPARE(test.takeLog(), log);
    QCOMPARE(startingModeBox(test).currentIndex(), index);
    QCOMPARE(test.lastCommandOk(), lastCommandOk);
}

void StartingModeTest::refusedWriteBackOfStartingModeIsReported()
{
    TestWindow test{withStartingMode(2)};
    test.beConnected();
    test.simulator.set("blendUnit.startingMode", 0);
    test.simulator.addFault({"setStartingMode"});

    test.invoke("readStartingMode");

    const QStringList calls{"getStartingMode() -> true {mode=0}", "setStartingMode(0) -> false"};
    QCOMPARE(test.takeCalls(), calls);
    QCOMPARE(test.takeLog(), QStringList{"Could not changed blend unit starting mode"});
    QCOMPARE(startingModeBox(test).currentIndex(), 0);
    QVERIFY(!test.lastCommandOk());
}

PILOTEL_TEST_CLASS(StartingModeTest)
#include "tst_starting_mode.moc"
