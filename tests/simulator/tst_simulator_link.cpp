// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The link: how long a call and an opening take.
#include "scenariocamera.h"
#include "testclass.h"
#include "time/link.h"

#include <QElapsedTimer>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QTest>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <set>
#include <vector>

using namespace veltrix_simulator;
using namespace std::chrono_literals;
using std::chrono::microseconds;

Q_DECLARE_METATYPE(Link)

namespace
{

Link fixed(microseconds perCall)
{
    Link link;
    link.kind = Link::Kind::Fixed;
    link.perCall = perCall;
    return link;
}

Link serial(std::uint32_t bytes, std::int32_t baudRate, microseconds thinkTime)
{
    Link link;
    link.kind = Link::Kind::Serial;
    link.bytesPerCommand = bytes;
    link.baudRate = baudRate;
    link.thinkTime = thinkTime;
    return link;
}

Link jittering(Link link, microseconds jitter)
{
    link.jitter = jitter;
    return link;
}

Scenario over(const Link &link)
{
    Scenario scenario;
    scenario.link = link;
    return scenario;
}

/// What the function takes, in milliseconds.
template <typename Function>
qint64 timeOf(const Function &function)
{
    QElapsedTimer timer;
    timer.start();
    function();
    return timer.elapsed();
}

} // namespace

class SimulatorLinkTest : public QObject
{
    Q_OBJECT

private slots:
    void takesItsTime_data();
    void takesItsTime();
    void jitterIsThatOfTheSeed();
    void rateIsThatOfTheProgram();
    void callsWait();
    void onlyDeviceCallsWait();
    void openingWaits_data();
    void openingWaits();
};

void SimulatorLinkTest::takesItsTime_data()
{
    QTest::addColumn<Link>("link");
    QTest::addColumn<int>("baudRate");
    QTest::addColumn<qlonglong>("time");
    const auto row = [](const char *name, const Link &link, int baudRate, qlonglong time) {
        QTest::addRow("%s", name) << link << baudRate << time;
    };
    constexpr std::int32_t lowest{std::numeric_limits<std::int32_t>::min()};
    constexpr std::uint32_t most{std::numeric_limits<std::uint32_t>::max()};
    constexpr qlonglong minute{60'000'000};
    row("none", {}, 115200, 0);
    row("none, whatever else is said", jittering({}, 1s), 115200, 0);
    row("fixed", fixed(1500us), 115200, 1500);
    row("fixed, less than nothing", fixed(-1us), 115200, 0);
    row("fixed, at most a minute", fixed(std::chrono::hours{1}), 115200, minute);
    row("fixed, as long as can be said", fixed(microseconds::max()), 115200, minute);
    row("serial, 9600 bits per second", serial(24, 0, 0us), 9600, 25000);
    row("serial, 115200 bits per second", serial(24, 0, 0us), 115200, 2083);
    row("serial, with time to think", serial(24, 0, 3ms), 9600, 28000);
    row("serial, of its own rate", serial(24, 19200, 0us), 9600, 12500);
    row("serial, of no bytes", serial(0, 0, 0us), 9600, 0);
    row("serial, told no rate", serial(24, 0, 0us), 0, 25000);
    row("serial, told a rate below zero", serial(24, 0, 0us), lowest, 25000);
    row("serial, of its own rate below zero", serial(24, -1, 0us), 115200, 25000);
    row("serial, at one bit per second", serial(24, 0, 0us), 1, minute);
    row("serial, of all bytes that can be said", serial(most, 1, microseconds::max()), 1, minute);
}

void SimulatorLinkTest::takesItsTime()
{
    QFETCH(const Link, link);
    QFETCH(const int, baudRate);
    QFETCH(const qlonglong, time);
    LinkTime linkTime{link, 0};
    QCOMPARE(qlonglong{linkTime.next(baudRate).count()}, time);
    QCOMPARE(qlonglong{linkTime.next(baudRate).count()}, time);
}

void SimulatorLinkTest::jitterIsThatOfTheSeed()
{
    const auto times = [](std::uint64_t seed) {
        LinkTime linkTime{jittering(fixed(1ms), 10us), seed};
        std::vector<microseconds> drawn;
        for (int call{0}; call < 500; ++call) {
            drawn.push_back(linkTime.next(9600));
        }
        return drawn;
    };
    const std::vector<microseconds> drawn = times(4);
    const std::set<microseconds> different(drawn.begin(), drawn.end());
    QCOMPARE(different.size(), std::size_t{11});
    QVERIFY(*different.begin() == 1000us);
    QVERIFY(*different.rbegin() == 1010us);
    QVERIFY(times(4) == drawn);
    QVERIFY(times(5) != drawn);
}

void SimulatorLinkTest::rateIsThatOfTheProgram()
{
    Scenario scenario;
    scenario.values.emplace_back("configuration.defaultBaudRate", std::int64_t{57600});
    const ScenarioCamera c{scenario};
    const State &state = c.simulation.state;
    QCOMPARE(state.linkBaudRate(), 57600);
    c.configuration.setBaudRate(9600);
    QCOMPARE(state.linkBaudRate(), 9600);
    scenario.values.emplace_back("configuration.baudRate", std::int64_t{19200});
    c.simulation.start(scenario);
    QCOMPARE(state.linkBaudRate(), 19200);
    c.simulation.reset();
    QCOMPARE(state.linkBaudRate(), 115200);
}

void SimulatorLinkTest::callsWait()
{
    const ScenarioCamera c{over(serial(24, 0, 0us))};
    c.configuration.setBaudRate(2400);
    const auto slow = timeOf([&] { c.device.getGamma(); });
    QVERIFY2(slow >= 100, qPrintable(QString::number(slow)));
    c.simulation.start(over(fixed(20ms)));
    c.simulation.sdk.getDeviceManager()->openDevice("SIM1");
    const auto several = timeOf([&] {
        QVERIFY(c.device.setGamma(65536));
        QCOMPARE(c.device.getGamma(), 65536U);
        QVERIFY(!c.device.setGamma(1));
    });
    QVERIFY2(several >= 60, qPrintable(QString::number(several)));
}

void SimulatorLinkTest::onlyDeviceCallsWait()
{
    // With the link's time this would take hours, and the test would not be let run so long.
    const ScenarioCamera c{over(fixed(1h))};
    for (int call{0}; call < 100; ++call) {
        QVERIFY(c.configuration.isExpertMode());
    }
    c.manager.closeDevice(&c.device);
    for (int call{0}; call < 100; ++call) {
        QCOMPARE(c.device.getGamma(), 0U);
    }
}

void SimulatorLinkTest::openingWaits_data()
{
    QTest::addColumn<int>("opening");
    QTest::addColumn<bool>("opens");
    QTest::addRow("opens") << static_cast<int>(Port::Opening::Opens) << true;
    QTest::addRow("is refused") << static_cast<int>(Port::Opening::Refused) << false;
    QTest::addRow("is silent") << static_cast<int>(Port::Opening::Silent) << true;
}

void SimulatorLinkTest::openingWaits()
{
    QFETCH(const int, opening);
    QFETCH(const bool, opens);
    Scenario scenario;
    scenario.ports = {{"SLOW", static_cast<Port::Opening>(opening), 40ms}};
    simulation().start(scenario);
    veltrix_sdk::IDeviceControl *device{nullptr};
    const auto time = timeOf([&] { device = simulation().sdk.getDeviceManager()->openDevice("SLOW"); });
    QCOMPARE(device != nullptr, opens);
    QVERIFY2(time >= 40, qPrintable(QString::number(time)));
}

PILOTEL_TEST_CLASS(SimulatorLinkTest)
#include "tst_simulator_link.moc"
