// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Scanning for ports and choosing the baud rate.
#include "connectioncontrols.h"
#include "testclass.h"
#include "testwindow.h"

#include <QComboBox>
#include <QDialog>
#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <string>
#include <vector>

namespace
{

QStringList offeredPorts(const TestWindow &test)
{
    const auto &box = test.child<QComboBox>("selectDeviceComboBox");
    QStringList offered;
    for (int index{0}; index < box.count(); ++index) {
        offered.append(box.itemText(index));
    }
    return offered;
}

} // namespace

class DiscoveryTest : public QObject
{
    Q_OBJECT

private slots:
    void offersThePortsOfTheHostThenThoseOfTheSdk_data();
    void offersThePortsOfTheHostThenThoseOfTheSdk();
    void offersBarePortNames();
    void replacesTheListWithEveryScan();
    void unlocksConnectWithTheFirstPort();
    void showsPortNamesAsTheyAre_data();
    void showsPortNamesAsTheyAre();
    void connectsToThePortThatWasPicked();
    void setsTheChosenBaudRate();
    void setsTheBaudRateWhileConnected();
};

void DiscoveryTest::offersThePortsOfTheHostThenThoseOfTheSdk_data()
{
    QTest::addColumn<QStringList>("ports");
    QTest::newRow("one port of the SDK") << QStringList{"SIM1"};
    QTest::newRow("three, in the SDK's order") << QStringList{"SIM2", "SIM10", "ANOTHER"};
}

void DiscoveryTest::offersThePortsOfTheHostThenThoseOfTheSdk()
{
    QFETCH(QStringList, ports);
    TestWindow test;
    std::vector<std::string> names;
    for (const QString &port : ports) {
        names.push_back(port.toStdString());
    }
    test.simulator.setPorts(names);
    test.takeCalls();

    test.click("scanDeviceButton");

    QCOMPARE(offeredPorts(test), scannedPorts(ports));
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.boxes.takeShown(), QStringList{});
}

void DiscoveryTest::offersBarePortNames()
{
    TestWindow test;
    test.click("scanDeviceButton");

    const auto &box = test.child<QComboBox>("selectDeviceComboBox");
    QVERIFY(box.count() > 0);
    for (int index{0}; index < box.count(); ++index) {
        QVERIFY(box.itemIcon(index).isNull());
        QVERIFY(!box.itemData(index).isValid());
    }
}

void DiscoveryTest::replacesTheListWithEveryScan()
{
    TestWindow test;
    test.click("scanDeviceButton");
    test.click("scanDeviceButton");
    QCOMPARE(offeredPorts(test), scannedPorts());

    test.simulator.setPorts({"SIM2", "SIM3"});
    test.click("scanDeviceButton");
    QCOMPARE(offeredPorts(test), scannedPorts({"SIM2", "SIM3"}));
}

void DiscoveryTest::unlocksConnectWithTheFirstPort()
{
    TestWindow test;
    QCOMPARE(test.enabledOf(connectionControls()), enabledAtStart());

    test.child<QComboBox>("selectDeviceComboBox").setEnabled(false);
    test.click("scanDeviceButton");

    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void DiscoveryTest::showsPortNamesAsTheyAre_data()
{
    QTest::addColumn<QString>("port");
    for (const char *const port : {"<b>COM7</b>", "COM%2", "%1", "a&b", "COM 7", "COM9", "COM10", "COM256",
                                   "port \xC3\xA9\xE2\x82\xAC"}) {
        QTest::newRow(port) << QString::fromUtf8(port);
    }
}

void DiscoveryTest::showsPortNamesAsTheyAre()
{
    QFETCH(QString, port);
    TestWindow test;
    test.simulator.setPorts({port.toStdString()});
    test.simulator.addFault({"getFirmwareVersions"});
    test.takeCalls();
    Qt::TextFormat format{Qt::AutoText};
    test.boxes.expect([&](QDialog &box) {
        format = dynamic_cast<QMessageBox &>(box).textFormat();
        BoxWatcher::pressOk(box);
    });

    test.click("scanDeviceButton");
    QCOMPARE(offeredPorts(test), scannedPorts({port}));
    test.child<QComboBox>("selectDeviceComboBox").setCurrentText(port);
    QCOMPARE(test.child<QComboBox>("selectDeviceComboBox").currentText(), port);
    test.click("connectDeviceButton");

    QCOMPARE(test.boxes.takeShown(),
             QStringList{"window icon \"Camera not connected\" \"Unable to connect to " + port + "\" [OK]"});
    QCOMPARE(format, Qt::PlainText);
    const QString announced{"ALTERNATIVE SERIAL PORT : " + port};
    QCOMPARE(test.takeLog().value(0), announced);
    const QStringList journal{test.takeCallsAndRecords()};
    QCOMPARE(journal.filter("ALTERNATIVE"), QStringList{"log(2, \"" + announced + "\")"});
    QCOMPARE(journal.filter("openDevice"), QStringList{"openDevice(\"" + port + "\") -> device"});
}

void DiscoveryTest::connectsToThePortThatWasPicked()
{
    TestWindow test;
    test.simulator.setPorts({"SIM1", "SIM2", "SIM3"});
    test.click("scanDeviceButton");
    auto &ports = test.child<QComboBox>("selectDeviceComboBox");
    ports.setFocus();
    QTest::keyClick(&ports, Qt::Key_End);
    QTest::keyClick(&ports, Qt::Key_Up);
    test.takeCalls();

    test.click("connectDeviceButton");

    QCOMPARE(test.takeCalls().filter("openDevice"), QStringList{"openDevice(\"SIM2\") -> device"});
    QCOMPARE(test.takeLog().value(0), QStringLiteral("ALTERNATIVE SERIAL PORT : SIM2"));
}

void DiscoveryTest::setsTheChosenBaudRate()
{
    TestWindow test;
    auto &baudRate = test.child<QComboBox>("BaudRateConnectCB");
    baudRate.setFocus();
    test.takeCalls();

    QTest::keyClick(&baudRate, Qt::Key_Up);
    const QStringList slow{"get_instance() -> sdk", "getConfiguration() -> configuration",
                           "setBaudRate(9600)"};
    QCOMPARE(test.takeCallsAndRecords(), slow);

    QTest::keyClick(&baudRate, Qt::Key_Down);
    const QStringList fast{"get_instance() -> sdk", "getConfiguration() -> configuration",
                           "setBaudRate(115200)"};
    QCOMPARE(test.takeCallsAndRecords(), fast);

    QTest::keyClick(&baudRate, Qt::Key_Down);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void DiscoveryTest::setsTheBaudRateWhileConnected()
{
    TestWindow test;
    test.beConnected();

    test.child<QComboBox>("BaudRateConnectCB").setCurrentText("9600");

    const QStringList calls{"get_instance() -> sdk", "getConfiguration() -> configuration",
                            "setBaudRate(9600)"};
    QCOMPARE(test.takeCallsAndRecords(), calls);
    QCOMPARE(test.takeLog(), QStringList{});
    QVERIFY(test.simulator.isDeviceOpen());
}

PILOTEL_TEST_CLASS(DiscoveryTest)
#include "tst_discovery.moc"
