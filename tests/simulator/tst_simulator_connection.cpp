// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Ports, opening and closing, the target, and operations on a device that is not open or a manager that is
// not held.
#include "everyoperation.h"
#include "simulatedcamera.h"
#include "testclass.h"
#include "veltrix_sdk/extensions.h"

#include <QLibrary>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <string>

using namespace veltrix_sdk;
using veltrix_simulator::Interface;

namespace
{

QStringList additionalPorts()
{
    const auto listPorts = reinterpret_cast<AdditionalPortsFunction>(
        QLibrary{QStringLiteral(SIMULATOR_LIBRARY)}.resolve(additionalPortsSymbol));
    QStringList names;
    if (listPorts != nullptr) {
        for (const char *const *name = listPorts(); *name != nullptr; ++name) {
            names.append(QString::fromUtf8(*name));
        }
    }
    return names;
}

/// Every key with its value.
QStringList stateOf(const SimulatedCamera &c)
{
    QStringList state;
    for (const std::string &key : c.simulator.keys()) {
        state.append(QString::fromStdString(key) + '=' + toText(c.simulator.get(key)));
    }
    return state;
}

} // namespace

class SimulatorConnectionTest : public QObject
{
    Q_OBJECT

private slots:
    void onePortAtPowerOn();
    void onlyItsPortsOpen();
    void portIsOpenOnce();
    void otherDevicesAreNotClosed();
    void openingSelectsTheBlendUnit();
    void settingsOutliveTheConnection();
    void unknownTargetIsRefused_data();
    void unknownTargetIsRefused();
    void cameraIdentifiesItself();
    void managerIsHandedOutAndBack();
    void releasedManagerDoesNothing_data();
    void releasedManagerDoesNothing();
    void managerHasToBeFetched();
    void releaseClosesTheDevice();
    void releaseOfAnotherPointerReleasesNothing();
    void refusedReleaseReleasesNothing();
    void managerOfAnAnsweredFaultIsHeld();
    void callsOfAReleasedManagerCountForNoFault();
    void closedDeviceDoesNothing_data();
    void closedDeviceDoesNothing();
    void everythingElseWorksWhileClosed();
    void missingMemoryIsRefused();
};

void SimulatorConnectionTest::onePortAtPowerOn()
{
    const SimulatedCamera c;
    QCOMPARE(additionalPorts(), QStringList{"SIM1"});
    c.simulator.setPorts({"SIM2", "<b>COM7</b>", ""});
    QCOMPARE(additionalPorts(), (QStringList{"SIM2", "<b>COM7</b>", ""}));
    c.simulator.setPorts({});
    QCOMPARE(additionalPorts(), QStringList{});
}

void SimulatorConnectionTest::onlyItsPortsOpen()
{
    const SimulatedCamera c;
    c.manager->closeDevice(c.device);
    for (const char *const name :
         {static_cast<const char *>(nullptr), "", "SIM", "SIM11", "sim1", "/dev/ttyS0"}) {
        QCOMPARE(c.manager->openDevice(name), nullptr);
        QVERIFY(!c.simulator.isDeviceOpen());
    }
    c.simulator.setPorts({"A", "B"});
    QCOMPARE(c.manager->openDevice("SIM1"), nullptr);
    QCOMPARE(c.manager->openDevice("B"), c.device);
    QVERIFY(c.simulator.isDeviceOpen());
}

void SimulatorConnectionTest::portIsOpenOnce()
{
    const SimulatedCamera c;
    QCOMPARE(c.manager->openDevice("SIM1"), nullptr);
    QVERIFY(c.simulator.isDeviceOpen());
    c.manager->closeDevice(c.device);
    c.manager->closeDevice(c.device);
    QCOMPARE(c.manager->openDevice("SIM1"), c.device);
}

void SimulatorConnectionTest::otherDevicesAreNotClosed()
{
    const SimulatedCamera c;
    c.manager->closeDevice(nullptr);
    QVERIFY(c.simulator.isDeviceOpen());
    c.manager->closeDevice(c.device + 1);
    QVERIFY(c.simulator.isDeviceOpen());
    QCOMPARE(c.lastCall(), QStringLiteral("closeDevice(unknown)"));
}

void SimulatorConnectionTest::openingSelectsTheBlendUnit()
{
    const SimulatedCamera c{cameraTarget};
    const std::uint32_t cameraSerialNumber{c.device->getSerialNumber()};
    c.manager->closeDevice(c.device);
    c.manager->openDevice("SIM1");
    QVERIFY(c.device->getSerialNumber() != cameraSerialNumber);
    QCOMPARE(c.simulator.journal().back().target, blendUnitTarget);
}

void SimulatorConnectionTest::settingsOutliveTheConnection()
{
    const SimulatedCamera c{blendUnitTarget};
    QVERIFY(c.device->setVideoMode(1));
    c.manager->closeDevice(c.device);
    c.manager->openDevice("SIM1");
    std::uint8_t mode{99};
    QVERIFY(c.device->getVideoMode(&mode));
    QCOMPARE(int{mode}, 1);
}

void SimulatorConnectionTest::unknownTargetIsRefused_data()
{
    QTest::addColumn<int>("target");
    for (const int target : {-2147483647 - 1, -1, 2, 256, 2147483647}) {
        QTest::addRow("%d", target) << target;
    }
}

void SimulatorConnectionTest::unknownTargetIsRefused()
{
    QFETCH(const int, target);
    for (const int before : {blendUnitTarget, cameraTarget}) {
        const SimulatedCamera c{before};
        const std::uint32_t serialNumber{c.device->getSerialNumber()};
        QVERIFY(!c.device->setTarget(target));
        QCOMPARE(c.device->getSerialNumber(), serialNumber);
    }
}

void SimulatorConnectionTest::cameraIdentifiesItself()
{
    const SimulatedCamera c{blendUnitTarget};
    std::uint8_t identity{99};
    QCOMPARE(int{c.device->connect(&identity)}, 1);
    QCOMPARE(int{identity}, 21);
    c.simulator.set("blendUnit.identity", std::int64_t{20});
    QCOMPARE(int{c.device->connect(&identity)}, 1);
    QCOMPARE(int{identity}, 20);
    QCOMPARE(int{c.device->connect(nullptr)}, 0);
}

void SimulatorConnectionTest::managerIsHandedOutAndBack()
{
    SimulatedCamera c;
    IDeviceManager *const manager{c.manager};
    QCOMPARE(c.sdk.getDeviceManager(), manager);
    c.sdk.releaseDeviceManager(&c.manager);
    QCOMPARE(c.manager, manager);
    c.sdk.releaseDeviceManager(nullptr);
    QCOMPARE(c.sdk.getDeviceManager(), manager);
    QCOMPARE(VeltrixSdk::get_instance(), &c.sdk);
    QCOMPARE(c.sdk.getConfiguration(), &c.configuration);
}

void SimulatorConnectionTest::releasedManagerDoesNothing_data()
{
    QTest::addColumn<Action>("misuse");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *text, Action misuse) {
        QTest::addRow("%s", text) << misuse << QString{text};
    };
    row(R"(NOT HELD: openDevice("SIM1") -> null)", [](SimulatedCamera &c) { c.manager->openDevice("SIM1"); });
    row("NOT HELD: closeDevice(device)", [](SimulatedCamera &c) { c.manager->closeDevice(c.device); });
    row("NOT HELD: releaseDeviceManager(manager)",
        [](SimulatedCamera &c) { c.sdk.releaseDeviceManager(&c.manager); });
    row("NOT HELD: releaseDeviceManager(null)",
        [](SimulatedCamera &c) { c.sdk.releaseDeviceManager(nullptr); });
}

void SimulatorConnectionTest::releasedManagerDoesNothing()
{
    QFETCH(const Action, misuse);
    QFETCH(const QString, text);
    SimulatedCamera c;
    c.manager->closeDevice(c.device);
    c.sdk.releaseDeviceManager(&c.manager);
    QCOMPARE(c.lastCall(), QStringLiteral("releaseDeviceManager(manager)"));
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{0});
    const QStringList before = stateOf(c);

    misuse(c);

    QCOMPARE(c.lastCall(), text);
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{1});
    QVERIFY(!c.simulator.isDeviceOpen());
    QCOMPARE(stateOf(c), before);
    QCOMPARE(c.sdk.getDeviceManager()->openDevice("SIM1"), c.device);
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{1});
}

void SimulatorConnectionTest::managerHasToBeFetched()
{
    const SimulatedCamera c;
    c.simulator.reset();
    QCOMPARE(c.manager->openDevice("SIM1"), nullptr);
    QCOMPARE(c.lastCall(), QStringLiteral(R"(NOT HELD: openDevice("SIM1") -> null)"));
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{1});
}

void SimulatorConnectionTest::releaseClosesTheDevice()
{
    SimulatedCamera c;
    c.sdk.releaseDeviceManager(&c.manager);
    QVERIFY(!c.simulator.isDeviceOpen());
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{0});
    QCOMPARE(c.device->getGamma(), 0U);
    QCOMPARE(c.lastCall(), QStringLiteral("NOT OPEN: getGamma() -> 0"));
}

void SimulatorConnectionTest::releaseOfAnotherPointerReleasesNothing()
{
    SimulatedCamera c;
    IDeviceManager *none{nullptr};
    c.sdk.releaseDeviceManager(&none);
    c.sdk.releaseDeviceManager(nullptr);
    QVERIFY(c.simulator.isDeviceOpen());
    c.manager->closeDevice(c.device);
    QCOMPARE(c.manager->openDevice("SIM1"), c.device);
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{0});
}

void SimulatorConnectionTest::refusedReleaseReleasesNothing()
{
    SimulatedCamera c;
    c.simulator.addFault({"releaseDeviceManager", 1, 1});
    c.sdk.releaseDeviceManager(&c.manager);
    QVERIFY(c.simulator.isDeviceOpen());
    c.manager->closeDevice(c.device);
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{0});
}

void SimulatorConnectionTest::managerOfAnAnsweredFaultIsHeld()
{
    SimulatedCamera c;
    c.sdk.releaseDeviceManager(&c.manager);
    c.simulator.addFault({"getDeviceManager", 1, 1, {{true}}});
    QCOMPARE(c.sdk.getDeviceManager(), c.manager);
    QCOMPARE(c.manager->openDevice("SIM1"), c.device);
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{0});

    c.sdk.releaseDeviceManager(&c.manager);
    c.simulator.addFault({"getDeviceManager", 1, 1});
    QCOMPARE(c.sdk.getDeviceManager(), nullptr);
    QCOMPARE(c.manager->openDevice("SIM1"), nullptr);
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{1});
}

void SimulatorConnectionTest::callsOfAReleasedManagerCountForNoFault()
{
    SimulatedCamera c;
    c.sdk.releaseDeviceManager(&c.manager);
    c.simulator.addFault({"openDevice", 1, 1});
    c.manager->openDevice("SIM1");
    c.sdk.getDeviceManager();
    QCOMPARE(c.manager->openDevice("SIM1"), nullptr);
    QCOMPARE(c.lastCall(), QStringLiteral(R"(openDevice("SIM1") -> null)"));
    QCOMPARE(c.manager->openDevice("SIM1"), c.device);
}

void SimulatorConnectionTest::closedDeviceDoesNothing_data()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < everyOperation().size(); ++place) {
        if (everyOperation()[place].interface == Interface::Device) {
            QTest::addRow("%s", everyOperation()[place].name) << place;
        }
    }
}

void SimulatorConnectionTest::closedDeviceDoesNothing()
{
    QFETCH(const std::size_t, place);
    SimulatedCamera c;
    c.manager->closeDevice(c.device);
    const QStringList before = stateOf(c);
    everyOperation()[place].call(c);
    const QString text = c.lastCall();
    QVERIFY2(text.startsWith(QStringLiteral("NOT OPEN: ") + everyOperation()[place].name + '('),
             qPrintable(text));
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{1});
    // Whatever comes out is zero: "-> false", "-> 0 {identity=0}", "-> {type=0, gain=0}".
    static const QRegularExpression zeros{QStringLiteral(R"(\) -> (false|0)?( ?\{\w+=0(, \w+=0)*\})?$)")};
    QVERIFY2(zeros.match(text).hasMatch(), qPrintable(text));
    QCOMPARE(stateOf(c), before);
}

void SimulatorConnectionTest::everythingElseWorksWhileClosed()
{
    SimulatedCamera c;
    c.manager->closeDevice(c.device);
    for (const OperationCall &operation : everyOperation()) {
        if (operation.interface != Interface::Device) {
            c.sdk.getDeviceManager();
            operation.call(c);
            QVERIFY2(!c.lastCall().startsWith(QStringLiteral("NOT ")), operation.name);
        }
    }
    QCOMPARE(c.simulator.callsWhileNotOpen(), std::size_t{0});
}

void SimulatorConnectionTest::missingMemoryIsRefused()
{
    const SimulatedCamera c;
    c.device->getFirmwareVersions(nullptr);
    c.device->getTemperatures(nullptr);
    c.device->getOperatingInfo(nullptr);
    c.device->configureZoom(nullptr);
    c.device->getZoomConfig(nullptr);
    c.device->getZoomResolution(nullptr);
    c.device->getAhcGainLimitation(nullptr);
    c.device->connect(nullptr);
    c.device->getVideoMode(nullptr);
    c.device->getVisibleAgc(nullptr);
    c.device->getVisibleClhe(nullptr);
    c.device->getWarp(nullptr);
    c.device->getStartingMode(nullptr);
    QStringList texts;
    for (const veltrix_simulator::Call &call : c.simulator.journal()) {
        texts.append(QString::fromStdString(call.text));
    }
    QCOMPARE(texts, (QStringList{"getFirmwareVersions(null) -> false", "getTemperatures(null) -> false",
                                 "getOperatingInfo(null) -> false", "configureZoom(null) -> false",
                                 "getZoomConfig(null) -> false", "getZoomResolution(null) -> false",
                                 "getAhcGainLimitation(null) -> 0", "connect(null) -> 0",
                                 "getVideoMode(null) -> false", "getVisibleAgc(null) -> false",
                                 "getVisibleClhe(null) -> false", "getWarp(null) -> false",
                                 "getStartingMode(null) -> false"}));
}

PILOTEL_TEST_CLASS(SimulatorConnectionTest)
#include "tst_simulator_connection.moc"
