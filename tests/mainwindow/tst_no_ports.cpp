// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Scanning on a host whose serial ports are told by the test.
#include "connectioncontrols.h"
#include "hostports.h"
#include "testclass.h"
#include "testwindow.h"

#include <QComboBox>
#include <QDialog>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWidget>

namespace
{

const char *const noPortBox{
    "warning \"\" \"No COM port found!\nPlease, plug a COM port ans scan again.\" [OK]",
};

} // namespace

class NoPortsTest : public QObject
{
    Q_OBJECT

private slots:
    void warnsWhenThereIsNoPort();
    void emptiesTheListAndLeavesTheButtonsAsTheyWere();
    void offersThePortsOfTheSdkAlone();
    void warnsAtEveryScan();
    void offersTheHostsPortsBeforeThoseOfTheSdk();
    void selectsTheFirstPortOfTheSdk_data();
    void selectsTheFirstPortOfTheSdk();
    void connectsToThePortThatTheScanSelected();
};

void NoPortsTest::offersTheHostsPortsBeforeThoseOfTheSdk()
{
    TestWindow test;
    setHostPorts(2);

    test.click("scanDeviceButton");

    setHostPorts(0);
    const auto &ports = test.child<QComboBox>("selectDeviceComboBox");
    QStringList names;
    for (int item{0}; item < ports.count(); ++item) {
        names.append(ports.itemText(item));
    }
    const QStringList expected{QString{}, QString{}, "SIM1"};
    QCOMPARE(names, expected);
}

void NoPortsTest::selectsTheFirstPortOfTheSdk_data()
{
    QTest::addColumn<int>("hostPorts");
    QTest::addColumn<QStringList>("sdkPorts");
    QTest::addColumn<int>("selected");
    QTest::newRow("none of the host") << 0 << QStringList{"SIM1", "SIM2"} << 0;
    QTest::newRow("behind one of the host") << 1 << QStringList{"SIM1"} << 1;
    QTest::newRow("the first of two behind three") << 3 << QStringList{"SIM1", "SIM2"} << 3;
    QTest::newRow("none of the SDK: the first of the host") << 2 << QStringList{} << 0;
}

void NoPortsTest::selectsTheFirstPortOfTheSdk()
{
    QFETCH(const int, hostPorts);
    QFETCH(const QStringList, sdkPorts);
    QFETCH(const int, selected);
    TestWindow test;
    std::vector<std::string> names;
    for (const QString &port : sdkPorts) {
        names.push_back(port.toStdString());
    }
    test.simulator.setPorts(names);
    auto &ports = test.child<QComboBox>("selectDeviceComboBox");

    // A second scan begins anew, wherever the operator has gone.
    setHostPorts(hostPorts);
    test.click("scanDeviceButton");
    const int afterTheFirstScan{ports.currentIndex()};
    ports.setCurrentIndex(ports.count() - 1);
    test.click("scanDeviceButton");
    setHostPorts(0);

    QCOMPARE(afterTheFirstScan, selected);
    QCOMPARE(ports.currentIndex(), selected);
    QCOMPARE(ports.count(), hostPorts + sdkPorts.size());
}

void NoPortsTest::connectsToThePortThatTheScanSelected()
{
    TestWindow test;
    setHostPorts(2);
    test.click("scanDeviceButton");
    setHostPorts(0);
    test.takeCalls();

    test.click("connectDeviceButton");

    QCOMPARE(test.takeCalls().filter("openDevice"), QStringList{"openDevice(\"SIM1\") -> device"});
    QVERIFY(test.simulator.isDeviceOpen());
}

void NoPortsTest::warnsWhenThereIsNoPort()
{
    TestWindow test;
    test.simulator.setPorts({});
    test.takeCalls();
    const QWidget *parent{nullptr};
    test.boxes.expect([&](QDialog &box) {
        parent = box.parentWidget();
        BoxWatcher::pressOk(box);
    });

    test.click("scanDeviceButton");

    QCOMPARE(parent, &test.window());
    QCOMPARE(test.boxes.takeShown(), QStringList{noPortBox});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.child<QComboBox>("selectDeviceComboBox").count(), 0);
    QCOMPARE(test.enabledOf(connectionControls()), enabledAtStart());
}

void NoPortsTest::emptiesTheListAndLeavesTheButtonsAsTheyWere()
{
    TestWindow test;
    test.click("scanDeviceButton");
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
    test.simulator.setPorts({});
    test.boxes.expect();

    test.click("scanDeviceButton");

    QCOMPARE(test.boxes.takeShown(), QStringList{noPortBox});
    QCOMPARE(test.child<QComboBox>("selectDeviceComboBox").count(), 0);
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void NoPortsTest::offersThePortsOfTheSdkAlone()
{
    TestWindow test;
    test.simulator.setPorts({"SIM1", "SIM2"});

    test.click("scanDeviceButton");

    const auto &box = test.child<QComboBox>("selectDeviceComboBox");
    QCOMPARE(box.count(), 2);
    QCOMPARE(box.itemText(0), QStringLiteral("SIM1"));
    QCOMPARE(box.itemText(1), QStringLiteral("SIM2"));
    QCOMPARE(test.boxes.takeShown(), QStringList{});
}

void NoPortsTest::warnsAtEveryScan()
{
    TestWindow test;
    test.simulator.setPorts({});
    test.boxes.expect();
    test.click("scanDeviceButton");
    test.boxes.expect();
    test.click("scanDeviceButton");
    QCOMPARE(test.boxes.takeShown(), (QStringList{noPortBox, noPortBox}));

    test.simulator.setPorts({"SIM1"});
    test.click("scanDeviceButton");
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

PILOTEL_TEST_CLASS(NoPortsTest)
#include "tst_no_ports.moc"
