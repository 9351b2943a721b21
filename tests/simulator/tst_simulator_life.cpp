// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The life of the units: what drifts and what is counted as their time goes by.
#include "scenariocamera.h"
#include "testclass.h"

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <chrono>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <vector>

using namespace veltrix_simulator;
using namespace std::chrono_literals;
using std::chrono::microseconds;

namespace
{

constexpr const char *sensorKey{"camera.temperatures.sensorMillikelvin"};
constexpr const char *minutesKey{"camera.operatingInfo.operatingMinutes"};

Scenario drifting(const char *key, double start, double end, microseconds halfTime)
{
    Scenario scenario;
    scenario.values.emplace_back(key, start);
    scenario.life.timePerCall = 1s;
    scenario.life.drifts.push_back({key, end, halfTime});
    return scenario;
}

Scenario counting(const char *key, microseconds interval)
{
    Scenario scenario;
    scenario.life.timePerCall = 1s;
    scenario.life.counters.push_back({key, interval});
    return scenario;
}

float sensor(const ScenarioCamera &c)
{
    veltrix_sdk::Temperatures temperatures{};
    c.device.getTemperatures(&temperatures);
    return temperatures.sensorMillikelvin;
}

std::uint32_t minutes(const ScenarioCamera &c)
{
    veltrix_sdk::OperatingInfo info{};
    c.device.getOperatingInfo(&info);
    return info.operatingMinutes;
}

} // namespace

Q_DECLARE_METATYPE(Life)

class SimulatorLifeTest : public QObject
{
    Q_OBJECT

private slots:
    void valuesDrift();
    void smallStepsAddUp();
    void driftStartsAgainFromWhatIsSet();
    void driftEndsAtWhatTheKindHolds_data();
    void driftEndsAtWhatTheKindHolds();
    void countersGrow_data();
    void countersGrow();
    void countersStopAtTheLargest();
    void timeOfTheLinkCounts();
    void onlyDeviceCallsTakeTime();
    void timeIsThatOfTheCalls();
    void wrongLifeIsNamed_data();
    void wrongLifeIsNamed();
};

void SimulatorLifeTest::valuesDrift()
{
    const ScenarioCamera c{drifting(sensorKey, 300000.0, 308000.0, 1s)};
    QCOMPARE(sensor(c), 304000.0F);
    QCOMPARE(sensor(c), 306000.0F);
    c.device.getGamma();
    QCOMPARE(sensor(c), 307500.0F);
    QCOMPARE(c.simulation.state.units[0][Field::sensorMillikelvin], 300950.0);
}

// A counter-like integer would never move if every step was rounded away.
void SimulatorLifeTest::smallStepsAddUp()
{
    Scenario scenario = drifting("camera.bitStatus", 0, 100, 100s);
    scenario.values = {{"camera.bitStatus", std::int64_t{0}}};
    scenario.life.timePerCall = 100ms;
    const ScenarioCamera c{scenario};
    QCOMPARE(c.device.getBitStatus(), 0U);
    for (int call{0}; call < 998; ++call) {
        c.device.getGamma();
    }
    QCOMPARE(c.device.getBitStatus(), 50U);
}

void SimulatorLifeTest::driftStartsAgainFromWhatIsSet()
{
    const ScenarioCamera c{drifting(sensorKey, 300000.0, 308000.0, 1s)};
    QCOMPARE(sensor(c), 304000.0F);
    c.simulation.state.set(sensorKey, 300000.0);
    QCOMPARE(sensor(c), 304000.0F);
    c.simulation.state.set(sensorKey, std::numeric_limits<double>::infinity());
    QCOMPARE(sensor(c), 308000.0F);
}

void SimulatorLifeTest::driftEndsAtWhatTheKindHolds_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<double>("end");
    QTest::addColumn<double>("reached");
    const auto row = [](const char *key, double end, double reached) {
        QTest::addRow("%s to %g", key, end) << QString{key} << end << reached;
    };
    row("camera.identity", 300, 255);
    row("camera.identity", -5, 0);
    row("camera.serialNumber", 1e300, 4294967295.0);
    row(sensorKey, 1e300, static_cast<double>(std::numeric_limits<float>::max()));
    row("blendUnit.warp0.a11", -2.5, -2.5);
}

void SimulatorLifeTest::driftEndsAtWhatTheKindHolds()
{
    QFETCH(const QString, key);
    QFETCH(const double, end);
    QFETCH(const double, reached);
    Scenario scenario;
    scenario.life.timePerCall = std::chrono::hours{10000};
    scenario.life.drifts.push_back({key.toStdString(), end, 1us});
    const ScenarioCamera c{scenario};
    c.device.getGamma();
    QCOMPARE(toNumber(c.simulation.state.get(key.toStdString())), reached);
}

void SimulatorLifeTest::countersGrow_data()
{
    QTest::addColumn<int>("intervalMilliseconds");
    QTest::addColumn<QString>("counts");
    const auto row = [](const char *name, int intervalMilliseconds, const char *counts) {
        QTest::addRow("%s", name) << intervalMilliseconds << QString{counts};
    };
    row("every call", 1000, "1 2 3 4 5 6");
    row("every third call", 3000, "0 0 1 1 1 2");
    row("three a call", 333, "3 6 9 12 15 18");
    row("two in three calls", 1500, "0 1 2 2 3 4");
    row("later", 7000, "0 0 0 0 0 0");
}

void SimulatorLifeTest::countersGrow()
{
    QFETCH(const int, intervalMilliseconds);
    QFETCH(const QString, counts);
    Scenario scenario = counting(minutesKey, std::chrono::milliseconds{intervalMilliseconds});
    scenario.values.emplace_back(minutesKey, std::int64_t{0});
    const ScenarioCamera c{scenario};
    QStringList counted;
    for (int call{0}; call < 6; ++call) {
        counted << QString::number(minutes(c));
    }
    QCOMPARE(counted.join(' '), counts);
}

void SimulatorLifeTest::countersStopAtTheLargest()
{
    Scenario scenario = counting(minutesKey, 1us);
    scenario.life.timePerCall = microseconds::max();
    const ScenarioCamera c{scenario};
    QCOMPARE(minutes(c), 4294967295U);
    QCOMPARE(minutes(c), 4294967295U);
}

void SimulatorLifeTest::timeOfTheLinkCounts()
{
    Scenario scenario = counting(minutesKey, 5ms);
    scenario.values.emplace_back(minutesKey, std::int64_t{0});
    scenario.life.timePerCall = 4ms;
    scenario.link.kind = Link::Kind::Fixed;
    scenario.link.perCall = 1ms;
    const ScenarioCamera c{scenario};
    QCOMPARE(minutes(c), 1U);
    QCOMPARE(minutes(c), 2U);
}

void SimulatorLifeTest::onlyDeviceCallsTakeTime()
{
    const ScenarioCamera c{counting(minutesKey, 1s)};
    c.configuration.isExpertMode();
    c.manager.closeDevice(&c.device);
    c.device.getGamma();
    c.manager.openDevice("SIM1");
    c.simulation.state.target = 1;
    QCOMPARE(minutes(c), 73416U);
}

void SimulatorLifeTest::timeIsThatOfTheCalls()
{
    Scenario scenario = drifting(sensorKey, 300000.0, 308000.0, 7s);
    scenario.link.kind = Link::Kind::Fixed;
    scenario.link.jitter = 50us;
    scenario.seed = 11;
    const auto session = [&] {
        const ScenarioCamera c{scenario};
        std::vector<float> temperatures;
        for (int call{0}; call < 30; ++call) {
            temperatures.push_back(sensor(c));
        }
        return temperatures;
    };
    QCOMPARE(session(), session());
}

void SimulatorLifeTest::wrongLifeIsNamed_data()
{
    QTest::addColumn<Life>("life");
    QTest::addColumn<QString>("message");
    const auto drift = [](const char *key, double end, microseconds halfTime, const char *message) {
        Life life;
        life.drifts.push_back({key, end, halfTime});
        QTest::addRow("%s", message) << life << QString{message};
    };
    const auto counter = [](const char *key, microseconds interval, const char *message) {
        Life life;
        life.counters.push_back({key, interval});
        QTest::addRow("%s", message) << life << QString{message};
    };
    drift("camera.gama", 1, 1s, "no value of the simulator has the key \"camera.gama\"");
    drift("camera.polarity", 1, 1s, "\"camera.polarity\" is no number of a unit");
    drift("configuration.baudRate", 1, 1s, "\"configuration.baudRate\" is no number of a unit");
    drift("camera.gamma", std::numeric_limits<double>::quiet_NaN(), 1s,
          "\"camera.gamma\" needs a finite end to drift to");
    drift("camera.gamma", 1, 0s, "\"camera.gamma\" needs a half-time longer than zero");
    counter("camera.clhe", 0s, "\"camera.clhe\" needs an interval longer than zero");
    counter("configuration.communicationType", 1s,
            "\"configuration.communicationType\" is no number of a unit");
}

void SimulatorLifeTest::wrongLifeIsNamed()
{
    QFETCH(const Life, life);
    QFETCH(const QString, message);
    Scenario scenario;
    scenario.life = life;
    QString refusal;
    try {
        simulation().start(scenario);
    } catch (const std::invalid_argument &found) {
        refusal = found.what();
    }
    QCOMPARE(refusal, message);
}

PILOTEL_TEST_CLASS(SimulatorLifeTest)
#include "tst_simulator_life.moc"
