// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Scenarios as a whole: what they settle before the first call, and what is said after the last.
#include "scenariocamera.h"
#include "testclass.h"

#include <QBitArray>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QList>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <chrono>
#include <cstdint>
#include <stdexcept>
#include <string>

using namespace veltrix_simulator;

namespace
{

constexpr int pixelsOfTable{640 * 480};

QString refusalOfStarting(const Scenario &scenario)
{
    try {
        simulation().start(scenario);
    } catch (const std::invalid_argument &found) {
        return found.what();
    }
    return {};
}

} // namespace

class SimulatorScenarioTest : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreSet();
    void resetIsTheDefaultScenario();
    void portsAreNamed();
    void portsOpenAsTheyAreSaid();
    void silentPortRefusesAll();
    void portsThatTestsNameOpen();
    void badPixelsAreThoseThatAreListed();
    void wrongScenarioIsNamed_data();
    void wrongScenarioIsNamed();
    void wrongScenarioLeavesTheDefault();
    void unfiredFaultsAreToldAtTheEnd_data();
    void unfiredFaultsAreToldAtTheEnd();
    void unfiredFaultsAreLogged();
};

void SimulatorScenarioTest::valuesAreSet()
{
    Scenario scenario;
    scenario.values = {{"camera.gamma", std::int64_t{1}},
                       {"configuration.communicationType", std::string{"USB"}},
                       {"configuration.gskMaximum", std::int64_t{9}}};
    const ScenarioCamera c{scenario};
    QCOMPARE(c.device.getGamma(), 1U);
    QCOMPARE(c.configuration.getCommunicationType(), "USB");
    QVERIFY(c.device.setGsk(9));
}

void SimulatorScenarioTest::resetIsTheDefaultScenario()
{
    Scenario scenario = scenarioWith(OperationId::getGamma, Effect::Refuse);
    scenario.values.emplace_back("camera.clhe", std::int64_t{1});
    scenario.ports = {{"OTHER"}};
    scenario.link.kind = Link::Kind::Fixed;
    scenario.link.perCall = std::chrono::seconds{60};
    scenario.life.timePerCall = std::chrono::seconds{1};
    scenario.life.counters.push_back({"camera.gamma", std::chrono::seconds{1}});
    const ScenarioCamera c{scenario};
    c.simulation.reset();
    QVERIFY(c.simulation.sdk.getDeviceManager()->openDevice("SIM1") != nullptr);
    QVERIFY(c.device.setTarget(1));
    QCOMPARE(c.device.getGamma(), 65536U);
    QCOMPARE(c.device.getClhe(), 2000U);
    QVERIFY(!c.simulation.path.takesTime());
}

void SimulatorScenarioTest::portsAreNamed()
{
    Scenario scenario;
    scenario.ports = {
        {"A"}, {"B", Port::Opening::Refused}, {"", Port::Opening::Opens}, {"C", Port::Opening::Silent}};
    simulation().start(scenario);
    const char *const *const names{simulation().portNames()};
    QCOMPARE(names[0], "A");
    QCOMPARE(names[1], "B");
    QCOMPARE(names[2], "");
    QCOMPARE(names[3], "C");
    QVERIFY(names[4] == nullptr);
}

void SimulatorScenarioTest::portsOpenAsTheyAreSaid()
{
    Scenario scenario;
    scenario.ports = {{"A"}, {"B", Port::Opening::Refused}};
    simulation().start(scenario);
    veltrix_sdk::IDeviceManager &manager = *simulation().sdk.getDeviceManager();
    QVERIFY(manager.openDevice("SIM1") == nullptr);
    QVERIFY(manager.openDevice("B") == nullptr);
    QVERIFY(!simulation().state.deviceOpen);
    QVERIFY(manager.openDevice("A") == &simulation().device);
    QVERIFY(manager.openDevice("A") == nullptr);
    QVERIFY(manager.openDevice(nullptr) == nullptr);
}

void SimulatorScenarioTest::silentPortRefusesAll()
{
    Scenario scenario = scenarioWith(OperationId::getClhe, Effect::Answer);
    scenario.faults.front().answer = {std::int64_t{7}};
    scenario.ports = {{"MUTE", Port::Opening::Silent}, {"SIM1"}};
    const ScenarioCamera c{scenario};
    veltrix_sdk::FirmwareVersions versions{1, 1};
    QVERIFY(!c.device.getFirmwareVersions(&versions));
    QCOMPARE(int{versions.processor}, 0);
    QVERIFY(!c.device.setGamma(65536));
    QCOMPARE(c.device.getClhe(), 0U);
    QVERIFY(c.configuration.isExpertMode());
    c.manager.closeDevice(&c.device);
    QVERIFY(c.manager.openDevice("SIM1") != nullptr);
    QVERIFY(c.device.getFirmwareVersions(&versions));
    QCOMPARE(c.device.getClhe(), 7U);
}

void SimulatorScenarioTest::portsThatTestsNameOpen()
{
    simulation().reset();
    Simulator::instance().setPorts({"X", "Y"});
    QVERIFY(simulation().sdk.getDeviceManager()->openDevice("SIM1") == nullptr);
    QVERIFY(simulation().sdk.getDeviceManager()->openDevice("Y") != nullptr);
}

void SimulatorScenarioTest::badPixelsAreThoseThatAreListed()
{
    const QTemporaryDir directory;
    const QString earlier = QDir::currentPath();
    QVERIFY(QDir::setCurrent(directory.path()));
    Scenario scenario;
    scenario.unitsWithPixels = {1};
    scenario.badPixels = {{1, 8, 0}, {1, 639, 479}};
    const ScenarioCamera c{scenario};
    QVERIFY(c.device.readBprTable(4096, 16384, 9));
    QVERIFY(c.device.setTarget(0));
    QVERIFY(c.device.readBprTable(4096, 16384, 9));
    QDir::setCurrent(earlier);

    const auto setBits = [&](const QString &name) {
        QFile file{directory.filePath(name)};
        QList<int> places;
        if (file.open(QIODevice::ReadOnly)) {
            const QByteArray table = file.readAll().right(pixelsOfTable / 8);
            const QBitArray bits = QBitArray::fromBits(table.constData(), pixelsOfTable);
            for (int place{0}; place < bits.size(); ++place) {
                if (bits.testBit(place)) {
                    places << place;
                }
            }
        }
        return places;
    };
    QCOMPARE(setBits("bpr_SN10417.bin"), (QList<int>{8, 479 * 640 + 639}));
    QCOMPARE(setBits("bpr_SN2063.bin"), QList<int>{});
    QVERIFY(QFile::exists(directory.filePath("bpr_SN2063.bin")));
}

void SimulatorScenarioTest::wrongScenarioIsNamed_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("message");
    QTest::addRow("key") << "camera.gama" << 0 << 0
                         << "no value of the simulator has the key \"camera.gama\"";
    QTest::addRow("value") << "camera.polarity" << 0 << 0 << "\"camera.polarity\" takes true or false";
    QTest::addRow("unit") << "camera.gamma" << 2 << 0 << "there is no unit 2, only 0 and 1";
    QTest::addRow("pixel") << "camera.gamma" << 1 << 640 << "the sensor has no pixel in column 640 of row 3";
    QTest::addRow("nothing") << "camera.gamma" << 1 << 639 << "";
}

void SimulatorScenarioTest::wrongScenarioIsNamed()
{
    QFETCH(const QString, key);
    QFETCH(const int, target);
    QFETCH(const int, column);
    QFETCH(const QString, message);
    Scenario scenario;
    scenario.values.emplace_back(key.toStdString(), std::int64_t{70000});
    scenario.badPixels = {{target, static_cast<std::uint32_t>(column), 3}};
    QCOMPARE(refusalOfStarting(scenario), message);
}

void SimulatorScenarioTest::wrongScenarioLeavesTheDefault()
{
    Scenario scenario = scenarioWith(OperationId::getGamma, Effect::Refuse);
    scenario.ports = {{"OTHER"}};
    scenario.values = {{"camera.gamma", std::int64_t{1}}, {"camera.gama", std::int64_t{1}}};
    QVERIFY(!refusalOfStarting(scenario).isEmpty());
    QVERIFY(simulation().sdk.getDeviceManager()->openDevice("SIM1") != nullptr);
    QVERIFY(simulation().device.setTarget(1));
    QCOMPARE(simulation().device.getGamma(), 65536U);
}

void SimulatorScenarioTest::unfiredFaultsAreToldAtTheEnd_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("told");
    QTest::addRow("the one that did not happen")
        << QStringList{} << "veltrix.sdk: flaky.toml:setGamma: this fault never happened\n";
    QTest::addRow("none of a scenario that was left") << QStringList{"reset"} << "";
}

void SimulatorScenarioTest::unfiredFaultsAreToldAtTheEnd()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, told);
    QProcess process;
    process.start(UNFIRED_FAULTS, arguments);
    QVERIFY(process.waitForFinished(-1));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()), told);
}

void SimulatorScenarioTest::unfiredFaultsAreLogged()
{
    const QTemporaryDir directory;
    const QString name = directory.filePath("log");
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("VELTRIX_SIMULATOR_LOG", name);
    process.setProcessEnvironment(environment);
    process.start(UNFIRED_FAULTS, QStringList{});
    QVERIFY(process.waitForFinished(-1));
    QFile log{name};
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(log.readAll());
    QVERIFY2(text.endsWith(" warning: flaky.toml:setGamma: this fault never happened\n"), qPrintable(text));
    QCOMPARE(text.count('\n'), 1);
}

PILOTEL_TEST_CLASS(SimulatorScenarioTest)
#include "tst_simulator_scenario.moc"
