// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Connecting when something goes wrong on the way, and connecting again.
#include "connectingtranscripts.h"
#include "connectioncontrols.h"
#include "testclass.h"
#include "testwindow.h"

#include <QByteArray>
#include <QDialog>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstddef>
#include <string>

using veltrix_simulator::Fault;
using veltrix_simulator::Simulator;

namespace
{

const char *const invalidCommunicationBox{
    R"(window icon "Invalid communication" "Select an other serial port" [OK])",
};

void withoutExpertMode(Simulator &simulator)
{
    simulator.set("configuration.expertMode", false);
}

/// Blend Unit and camera answer the question for their versions with zeros, from the given one on.
Fault noVersions(std::size_t from, std::size_t times = 1)
{
    return {"getFirmwareVersions", from, times, {{true, 0, 0}}};
}

/// The beginning of a read that finds nobody, up to the box.
Transcript unitDoesNotAnswer(const char *start)
{
    return {
        line(start),
        call("getFirmwareVersions() -> true {processor=0, fpga=0}"),
        line("End Read camera parameters : COM Error"),
    };
}

const Transcript blendUnitDoesNotAnswer{unitDoesNotAnswer("Start reading Fusion parameters")};
const Transcript cameraDoesNotAnswer{unitDoesNotAnswer("Start reading camera parameters")};

} // namespace

class RefusedConnectionTest : public QObject
{
    Q_OBJECT

private slots:
    void refusesAnotherCommunicationType_data();
    void refusesAnotherCommunicationType();
    void tellsThatNoDeviceCouldBeOpened();
    void releasesAStuckManagerAtTheNextConnect();
    void releasesAStuckManagerBeforeRefusingTheCommunicationType();
    void tellsThatThereIsNoManager();
    void locksTheControlsWhenAConnectedWindowFailsToConnectAgain_data();
    void locksTheControlsWhenAConnectedWindowFailsToConnectAgain();
    void refusesAnotherIdentity_data();
    void refusesAnotherIdentity();
    void staysLockedWhenTheBlendUnitDoesNotAnswer_data();
    void staysLockedWhenTheBlendUnitDoesNotAnswer();
    void staysLockedWhenTheCameraDoesNotAnswer();
    void asksForTheBoxBeforeTheErrorLine_data();
    void asksForTheBoxBeforeTheErrorLine();
    void returnsTheDeviceBeforeConnectingAgain_data();
    void returnsTheDeviceBeforeConnectingAgain();
};

void RefusedConnectionTest::refusesAnotherCommunicationType_data()
{
    QTest::addColumn<QString>("type");
    for (const char *const type : {"", "USB", "uart", "UAR", "UARTS", "UART ", " UART"}) {
        QTest::addRow("\"%s\"", type) << QString{type};
    }
}

void RefusedConnectionTest::refusesAnotherCommunicationType()
{
    QFETCH(QString, type);
    TestWindow test{[&](Simulator &simulator) {
        simulator.set("configuration.communicationType", type.toStdString());
    }};
    test.takeCalls();
    test.boxes.expect();

    test.scanAndConnect();

    const QStringList calls{
        "get_instance() -> sdk",
        "getConfiguration() -> configuration",
        QStringLiteral("getCommunicationType() -> \"%1\"").arg(type),
    };
    QCOMPARE(test.takeCallsAndRecords(), calls);
    QCOMPARE(test.boxes.takeShown(), QStringList{invalidCommunicationBox});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void RefusedConnectionTest::tellsThatNoDeviceCouldBeOpened()
{
    TestWindow test;
    test.takeCalls();
    test.simulator.addFault({"openDevice"});
    test.boxes.expect();

    test.scanAndConnect();

    const QStringList calls{
        "get_instance() -> sdk",
        "getConfiguration() -> configuration",
        "getCommunicationType() -> \"UART\"",
        "log(2, \"ALTERNATIVE SERIAL PORT : SIM1\")",
        "get_instance() -> sdk",
        "getDeviceManager() -> manager",
        "openDevice(\"SIM1\") -> null",
    };
    QCOMPARE(test.takeCallsAndRecords(), calls);
    QCOMPARE(test.boxes.takeShown(), QStringList{invalidCommunicationBox});
    QCOMPARE(test.takeLog(), QStringList{"ALTERNATIVE SERIAL PORT : SIM1"});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());

    test.invoke("disconnectDevice");
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void RefusedConnectionTest::releasesAStuckManagerAtTheNextConnect()
{
    TestWindow test;
    test.simulator.addFault({"openDevice", 1, 1});
    test.boxes.expect();
    test.scanAndConnect();
    test.takeCalls();
    test.takeLog();
    test.boxes.takeShown();

    test.click("connectDeviceButton");

    const Transcript released{call("get_instance() -> sdk"), call("releaseDeviceManager(manager)")};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(released + connecting(true)));
    QCOMPARE(test.takeLog(), logOf(connecting(true)));
    QCOMPARE(test.enabledOf(connectionControls()), enabledWhileConnected());
}

void RefusedConnectionTest::releasesAStuckManagerBeforeRefusingTheCommunicationType()
{
    TestWindow test;
    test.simulator.addFault({"openDevice", 1, 1});
    test.boxes.expect();
    test.scanAndConnect();
    test.takeCalls();
    test.takeLog();
    test.simulator.set("configuration.communicationType", std::string{"USB"});
    test.boxes.expect();

    test.click("connectDeviceButton");

    const QStringList calls{
        "get_instance() -> sdk",
        "releaseDeviceManager(manager)",
        "get_instance() -> sdk",
        "getConfiguration() -> configuration",
        "getCommunicationType() -> \"USB\"",
    };
    QCOMPARE(test.takeCallsAndRecords(), calls);
    QCOMPARE(test.boxes.takeShown(), (QStringList{invalidCommunicationBox, invalidCommunicationBox}));
    QCOMPARE(test.takeLog(), QStringList{});
}

void RefusedConnectionTest::tellsThatThereIsNoManager()
{
    TestWindow test;
    test.simulator.addFault({"getDeviceManager"});
    test.boxes.expect();

    test.scanAndConnect();

    QCOMPARE(test.boxes.takeShown(), QStringList{invalidCommunicationBox});
    QCOMPARE(test.takeLog(), QStringList{"ALTERNATIVE SERIAL PORT : SIM1"});
    const QStringList calls{test.takeCalls()};
    QCOMPARE(calls.last(), QStringLiteral("getDeviceManager() -> null"));
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void RefusedConnectionTest::locksTheControlsWhenAConnectedWindowFailsToConnectAgain_data()
{
    QTest::addColumn<QString>("refused");
    QTest::newRow("the port does not open") << "openDevice";
    QTest::newRow("the communication type is another") << "getCommunicationType";
}

void RefusedConnectionTest::locksTheControlsWhenAConnectedWindowFailsToConnectAgain()
{
    QFETCH(QString, refused);
    TestWindow test;
    test.beConnected();
    test.simulator.addFault({refused.toStdString()});
    test.boxes.expect();

    test.invoke("connectDevice");

    QCOMPARE(test.boxes.takeShown(), QStringList{invalidCommunicationBox});
    QVERIFY(!test.simulator.isDeviceOpen());
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
    test.simulator.clearFaults();
    test.click("connectDeviceButton");
    QCOMPARE(test.enabledOf(connectionControls()), enabledWhileConnected());
}

void RefusedConnectionTest::refusesAnotherIdentity_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("identity");
    const auto row = [](int result, int identity) {
        QTest::addRow("connect answers %d, identity %d", result, identity) << result << identity;
    };
    row(1, 20);
    row(1, 22);
    row(1, 0);
    row(1, 255);
    row(0, 21);
    row(2, 21);
    row(255, 21);
    row(0, 0);
}

void RefusedConnectionTest::refusesAnotherIdentity()
{
    QFETCH(int, result);
    QFETCH(int, identity);
    TestWindow test;
    test.takeCalls();
    test.simulator.addFault({"connect", 1, 0, {{result, identity}}});

    test.scanAndConnect();

    const QByteArray answer{
        QStringLiteral("connect() -> %1 {identity=%2}").arg(result).arg(identity).toLatin1()};
    const Transcript expected{opening() + targetSwitchedTo(0) +
                              Transcript{call(answer.constData()), line("No camera connected")} + returned()};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(expected));
    QCOMPARE(test.takeLog(), logOf(expected));
    QCOMPARE(test.boxes.takeShown(), QStringList{});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
    QVERIFY(!test.simulator.isDeviceOpen());
}

void RefusedConnectionTest::staysLockedWhenTheBlendUnitDoesNotAnswer_data()
{
    QTest::addColumn<bool>("expertMode");
    QTest::newRow("with expert mode") << true;
    QTest::newRow("without expert mode") << false;
}

void RefusedConnectionTest::staysLockedWhenTheBlendUnitDoesNotAnswer()
{
    QFETCH(bool, expertMode);
    TestWindow test{[=](Simulator &simulator) {
        simulator.set("configuration.expertMode", expertMode);
    }};
    test.takeCalls();
    test.simulator.addFault(noVersions(1));
    test.boxes.expect();

    test.scanAndConnect();

    const Transcript expected{opening() + targetSwitchedTo(0) + identified() + targetSwitchedTo(0) +
                              blendUnitDoesNotAnswer + rangesTaken(expertMode) +
                              (expertMode ? expertRead() : Transcript{})};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(expected));
    QCOMPARE(test.takeLog(), logOf(expected));
    QCOMPARE(test.boxes.takeShown(), QStringList{notConnectedBox});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
    QVERIFY(test.simulator.isDeviceOpen());
}

void RefusedConnectionTest::staysLockedWhenTheCameraDoesNotAnswer()
{
    TestWindow test;
    test.takeCalls();
    test.simulator.addFault(noVersions(2));
    test.boxes.expect();

    test.scanAndConnect();

    const Transcript expected{opening() + targetSwitchedTo(0) + identified() + targetSwitchedTo(0) +
                              blendUnitRead() + targetSwitchedTo(1) + cameraDoesNotAnswer +
                              targetSwitchedTo(0) + rangesTaken(true) + expertRead()};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(expected));
    QCOMPARE(test.takeLog(), logOf(expected));
    QCOMPARE(test.boxes.takeShown(), QStringList{notConnectedBox});
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
    QVERIFY(test.simulator.isDeviceOpen());
}

void RefusedConnectionTest::asksForTheBoxBeforeTheErrorLine_data()
{
    QTest::addColumn<int>("failingRead");
    QTest::addColumn<QString>("start");
    QTest::newRow("Blend Unit") << 1 << "Start reading Fusion parameters";
    QTest::newRow("camera") << 2 << "Start reading camera parameters";
}

void RefusedConnectionTest::asksForTheBoxBeforeTheErrorLine()
{
    QFETCH(int, failingRead);
    QFETCH(QString, start);
    TestWindow test{withoutExpertMode};
    test.simulator.addFault(noVersions(static_cast<std::size_t>(failingRead)));
    QStringList whileTheBoxIsOpen;
    test.boxes.expect([&](QDialog &box) {
        whileTheBoxIsOpen = test.takeLog();
        BoxWatcher::pressOk(box);
    });

    test.scanAndConnect();

    QCOMPARE(whileTheBoxIsOpen.last(), start);
    QCOMPARE(test.takeLog().first(), QStringLiteral("End Read camera parameters : COM Error"));
    test.boxes.takeShown();
}

void RefusedConnectionTest::returnsTheDeviceBeforeConnectingAgain_data()
{
    QTest::addColumn<int>("failingRead");
    QTest::newRow("after a Blend Unit that did not answer") << 1;
    QTest::newRow("after a camera that did not answer") << 2;
}

void RefusedConnectionTest::returnsTheDeviceBeforeConnectingAgain()
{
    QFETCH(int, failingRead);
    TestWindow test;
    test.simulator.addFault(noVersions(static_cast<std::size_t>(failingRead)));
    test.boxes.expect();
    test.scanAndConnect();
    test.boxes.takeShown();
    test.takeCalls();
    test.takeLog();

    test.click("connectDeviceButton");

    // A Blend Unit that was read before has nothing new to show.
    const Transcript blendUnit{failingRead == 1 ? blendUnitRead() : withoutWriteBacks(blendUnitRead())};
    const Transcript expected{returned() + opening() + targetSwitchedTo(0) + identified() +
                              targetSwitchedTo(0) + blendUnit + targetSwitchedTo(1) + cameraRead() +
                              targetSwitchedTo(0) + rangesTaken(true) + expertRead()};
    QCOMPARE(test.takeCallsAndRecords(), journalOf(expected));
    QCOMPARE(test.takeLog(), logOf(expected));
    QCOMPARE(test.enabledOf(connectionControls()), enabledWhileConnected());
}

PILOTEL_TEST_CLASS(RefusedConnectionTest)
#include "tst_refused_connection.moc"
