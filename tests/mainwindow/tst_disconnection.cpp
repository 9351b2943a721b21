// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Disconnecting, and edits that are pending then.
#include "connectingtranscripts.h"
#include "connectioncontrols.h"
#include "halftyped.h"
#include "mouse.h"
#include "testclass.h"
#include "testwindow.h"

#include <QComboBox>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTest>

namespace
{

/// A spin box of the Visible page with 33 typed into it, not finished, and what finishing it sends.
struct HalfTyped
{
    const char *spinBox;
    Transcript finished;
};

const HalfTyped halfTyped[]{
    {"VisAgcTargetSB",
     {call("setVisibleAgc(33, 10, 20) -> true"), line("Visible AGC configuration applied correctly")}},
    {"VisAgcTHSB",
     {call("setVisibleAgc(50, 33, 20) -> true"), line("Visible AGC configuration applied correctly")}},
    {"VisAgcCoeffSB",
     {call("setVisibleAgc(50, 10, 33) -> true"), line("Visible AGC configuration applied correctly")}},
    {"VisClheTHSB",
     {call("setVisibleClhe(33, 30) -> true"), line("Visible CLHE configuration applied correctly")}},
    {"VisClheCoeffSB",
     {call("setVisibleClhe(2000, 33) -> true"), line("Visible CLHE configuration applied correctly")}},
};

void halfTypedRows()
{
    QTest::addColumn<QString>("spinBox");
    QTest::addColumn<Transcript>("finished");
    for (const HalfTyped &row : halfTyped) {
        QTest::newRow(row.spinBox) << row.spinBox << row.finished;
    }
}

} // namespace

class DisconnectionTest : public QObject
{
    Q_OBJECT

private slots:
    void returnsTheDeviceThenItsManager();
    void disconnectsOnce();
    void connectsAgain();
    void disconnectsAfterAFailedRead();
    void locksTheWindowAgain();
    void finishesAPendingEditBeforeClosing_data() { halfTypedRows(); }
    void finishesAPendingEditBeforeClosing();
    void finishesAPendingEditWhenTheMousePressesDisconnect_data() { halfTypedRows(); }
    void finishesAPendingEditWhenTheMousePressesDisconnect();
    void finishesAPendingEditBeforeConnectingToAnotherDevice_data() { halfTypedRows(); }
    void finishesAPendingEditBeforeConnectingToAnotherDevice();
    void finishesAPendingEditThatTheDeviceRefuses();
};

void DisconnectionTest::returnsTheDeviceThenItsManager()
{
    TestWindow test;
    test.beConnected();

    test.click("disconnectDeviceButton");

    const QStringList calls{"closeDevice(device)", "get_instance() -> sdk", "releaseDeviceManager(manager)"};
    QCOMPARE(test.takeCallsAndRecords(), calls);
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.boxes.takeShown(), QStringList{});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
    QVERIFY(!test.simulator.isDeviceOpen());
}

void DisconnectionTest::disconnectsOnce()
{
    TestWindow test;
    test.beConnected();
    test.click("disconnectDeviceButton");
    test.takeCalls();

    test.invoke("disconnectDevice");

    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void DisconnectionTest::connectsAgain()
{
    TestWindow test;
    test.beConnected();
    test.click("disconnectDeviceButton");
    test.takeCalls();

    test.click("connectDeviceButton");

    const Transcript expected{withoutWriteBacks(connecting(true))};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(expected));
    QCOMPARE(test.takeLog(), logOf(expected));
    QCOMPARE(test.enabledOf(connectionControls()), enabledWhileConnected());
}

void DisconnectionTest::disconnectsAfterAFailedRead()
{
    TestWindow test;
    test.simulator.addFault({"getFirmwareVersions", 1, 1});
    test.boxes.expect();
    test.scanAndConnect();
    test.boxes.takeShown();
    test.takeCalls();
    test.takeLog();

    test.invoke("disconnectDevice");

    QCOMPARE(test.takeCallsAndRecords(), journalOf(returned()));
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void DisconnectionTest::locksTheWindowAgain()
{
    TestWindow test;
    test.beConnected();
    test.click("disconnectDeviceButton");
    test.takeCalls();

    // What must not work.
    auto &tabs = test.child<QTabWidget>("Principal_tab");
    const int page{tabs.currentIndex()};
    pressMouseOn(test, "BU_IR_MODE_PB");
    pressMouseOn(test, "FusionConfigureZoomPB");
    pressMouseOn(test, "resetParamButtonUser");
    pressMouseOn(test, "saveParamButtonUser");
    pressMouseOn(test, "readParamButtonUser");
    pressMouseOn(test, "disconnectDeviceButton");
    QCOMPARE(tabs.currentIndex(), page);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});

    // What must.
    test.click("scanDeviceButton");
    QCOMPARE(test.child<QComboBox>("selectDeviceComboBox").count(), scannedPorts().size());
    test.child<QComboBox>("selectDeviceComboBox").setCurrentText("SIM1");
    test.click("connectDeviceButton");
    QCOMPARE(test.takeCalls().filter("openDevice"), QStringList{"openDevice(\"SIM1\") -> device"});
}

void DisconnectionTest::finishesAPendingEditBeforeClosing()
{
    QFETCH(QString, spinBox);
    QFETCH(Transcript, finished);
    TestWindow test;
    test.beConnected();
    typeWithoutFinishing(test, spinBox);

    test.invoke("disconnectDevice");

    QCOMPARE(test.takeCallsAndRecords(), journalOf(finished + returned()));
    QCOMPARE(test.takeLog(), logOf(finished));
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void DisconnectionTest::finishesAPendingEditWhenTheMousePressesDisconnect()
{
    QFETCH(QString, spinBox);
    QFETCH(Transcript, finished);
    TestWindow test;
    test.beConnected();
    typeWithoutFinishing(test, spinBox);

    test.click("disconnectDeviceButton");

    QCOMPARE(test.takeCallsAndRecords(), journalOf(finished + returned()));
    QCOMPARE(test.takeLog(), logOf(finished));
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void DisconnectionTest::finishesAPendingEditBeforeConnectingToAnotherDevice()
{
    QFETCH(QString, spinBox);
    QFETCH(Transcript, finished);
    TestWindow test;
    test.beConnected();
    typeWithoutFinishing(test, spinBox);
    test.simulator.addFault({"connect", 1, 1, {{1, 22}}});

    test.invoke("connectDevice");

    const Transcript expected{finished + returned() + opening() + targetSwitchedTo(0) +
                              Transcript{call("connect() -> 1 {identity=22}"), line("No camera connected")} +
                              returned()};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(expected));
    QCOMPARE(test.takeLog(), logOf(expected));
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void DisconnectionTest::finishesAPendingEditThatTheDeviceRefuses()
{
    TestWindow test;
    test.beConnected();
    typeWithoutFinishing(test, "VisAgcTHSB");
    test.simulator.addFault({"setVisibleAgc"});

    test.invoke("disconnectDevice");

    const Transcript refused{call("setVisibleAgc(50, 33, 20) -> false"),
                             line("Could not changed visisble AGC configuration")};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(refused + returned()));
    QCOMPARE(test.takeLog(), logOf(refused));
}

PILOTEL_TEST_CLASS(DisconnectionTest)
#include "tst_disconnection.moc"
