// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Connecting: what is said to the SDK and told in the log, and the device target afterwards.
#include "connectingtranscripts.h"
#include "connectioncontrols.h"
#include "testclass.h"
#include "testwindow.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTest>

using veltrix_simulator::Simulator;

class ConnectionTest : public QObject
{
    Q_OBJECT

private slots:
    void connectsAndReadsEverything_data();
    void connectsAndReadsEverything();
    void returnsToThePageInView_data();
    void returnsToThePageInView();
    void goesOnWhenTheTargetIsRefused();
    void switchesTheTargetWithThePage();
    void readsAgainOnRequest();
    void readsExpertParametersAgainOnRequest();
};

void ConnectionTest::connectsAndReadsEverything_data()
{
    QTest::addColumn<bool>("expertMode");
    QTest::newRow("with expert mode") << true;
    QTest::newRow("without expert mode") << false;
}

void ConnectionTest::connectsAndReadsEverything()
{
    QFETCH(bool, expertMode);
    TestWindow test{[=](Simulator &simulator) {
        simulator.set("configuration.expertMode", expertMode);
    }};
    test.takeCalls();

    test.scanAndConnect();

    QCOMPARE(test.takeCallsAndRecords(), journalOf(connecting(expertMode)));
    QCOMPARE(test.takeLog(), logOf(connecting(expertMode)));
    QCOMPARE(test.boxes.takeShown(), QStringList{});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWhileConnected());
    QVERIFY(test.lastCommandOk());
    QVERIFY(test.simulator.isDeviceOpen());
}

void ConnectionTest::returnsToThePageInView_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<Transcript>("target");
    QTest::newRow("Fusion: the Blend Unit") << "Fusion_tab" << targetSwitchedTo(0);
    QTest::newRow("Veltrix KR: the camera") << "Veltrix_KR_tab" << targetSwitchedTo(1);
    QTest::newRow("Visible: refused")
        << "Visible_tab" << Transcript{call("setTarget(2) -> false"), line("Could not changed target")};
}

void ConnectionTest::returnsToThePageInView()
{
    QFETCH(QString, page);
    QFETCH(Transcript, target);
    TestWindow test;
    test.beConnected();
    test.showPage(page);
    test.click("disconnectDeviceButton");
    test.takeCalls();
    test.takeLog();

    test.click("connectDeviceButton");

    const Transcript read{withoutWriteBacks(targetSwitchedTo(0) + blendUnitRead() + targetSwitchedTo(1) +
                                            cameraRead() + target)};
    const Transcript expert{expertRead()};
    const Transcript expertWithoutItsLastSwitch{expert.mid(0, expert.size() - targetSwitchedTo(0).size())};
    const Transcript expected{opening() + targetSwitchedTo(0) + identified() + read + rangesTaken(true) +
                              expertWithoutItsLastSwitch + target};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(expected));
    QCOMPARE(test.takeLog(), logOf(expected));
    QCOMPARE(test.child<QTabWidget>("Principal_tab").currentWidget()->objectName(), page);
    QCOMPARE(test.enabledOf(connectionControls()), enabledWhileConnected());
}

void ConnectionTest::goesOnWhenTheTargetIsRefused()
{
    TestWindow test;
    test.takeCalls();
    test.simulator.addFault({"setTarget"});

    test.scanAndConnect();

    QStringList expectedLog;
    for (const QString &logged : logOf(connecting(true))) {
        expectedLog.append(logged == "target correctly changed" ? QStringLiteral("Could not changed target")
                                                                : logged);
    }
    // The simulator still addresses the Blend Unit, so what the camera would answer is not compared.
    const QStringList log{test.takeLog()};
    QCOMPARE(log.size(), expectedLog.size());
    QCOMPARE(log.filter("target"), expectedLog.filter("target"));
    QCOMPARE(log.last(), QStringLiteral("Could not changed target"));
    const QStringList targets{test.takeCalls().filter("setTarget")};
    const QStringList expectedTargets{
        "setTarget(0) -> false", "setTarget(0) -> false", "setTarget(1) -> false", "setTarget(0) -> false",
        "setTarget(0) -> false", "setTarget(1) -> false", "setTarget(0) -> false",
    };
    QCOMPARE(targets, expectedTargets);
    QCOMPARE(test.enabledOf(connectionControls()), enabledWhileConnected());
    QVERIFY(!test.lastCommandOk());
}

void ConnectionTest::switchesTheTargetWithThePage()
{
    TestWindow test;
    test.beConnected();

    test.showPage("Veltrix_KR_tab");
    QCOMPARE(test.takeCallsAndRecords(), journalOf(targetSwitchedTo(1)));
    QCOMPARE(test.takeLog(), QStringList{"target correctly changed"});
    QVERIFY(test.lastCommandOk());

    test.showPage("Visible_tab");
    const QStringList refused{"setTarget(2) -> false", "log(2, \"Could not changed target\")"};
    QCOMPARE(test.takeCallsAndRecords(), refused);
    QCOMPARE(test.takeLog(), QStringList{"Could not changed target"});
    QVERIFY(!test.lastCommandOk());

    test.showPage("Fusion_tab");
    QCOMPARE(test.takeCallsAndRecords(), journalOf(targetSwitchedTo(0)));
    QCOMPARE(test.takeLog(), QStringList{"target correctly changed"});
}

void ConnectionTest::readsAgainOnRequest()
{
    TestWindow test;
    test.beConnected();

    test.click("readParamButtonUser");

    const Transcript expected{withoutWriteBacks(targetSwitchedTo(0) + blendUnitRead() + targetSwitchedTo(1) +
                                                cameraRead() + targetSwitchedTo(0))};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(expected));
    QCOMPARE(test.takeLog(), logOf(expected));
}

void ConnectionTest::readsExpertParametersAgainOnRequest()
{
    TestWindow test;
    test.beConnected();
    test.showPage("Veltrix_KR_tab");
    test.showPage("ExpertMode");
    test.takeCalls();
    test.takeLog();

    test.click("readParamButtonExpert");

    QCOMPARE(test.takeCallsAndRecords(), journalOf(expertRead(1)));
    QCOMPARE(test.takeLog(), logOf(expertRead(1)));
}

PILOTEL_TEST_CLASS(ConnectionTest)
#include "tst_connection.moc"
