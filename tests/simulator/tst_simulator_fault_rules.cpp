// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Fault rules: when they hit, and what chance has to do with it.
#include "scenariocamera.h"
#include "testclass.h"

#include <QObject>
#include <QString>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

using namespace veltrix_simulator;

namespace
{

Scenario refusing(OperationId operation, const Change &change)
{
    Scenario scenario = scenarioWith(operation, Effect::Refuse);
    change(scenario.faults.front());
    return scenario;
}

/// The results of so many calls of getPolarity(), which is true, with T for true and f for false.
QString polarities(const ScenarioCamera &c, int calls)
{
    QString results;
    for (int call{0}; call < calls; ++call) {
        results += c.device.getPolarity() ? 'T' : 'f';
    }
    return results;
}

Scenario inverted(Scenario scenario)
{
    scenario.values.emplace_back("camera.polarity", true);
    scenario.values.emplace_back("blendUnit.polarity", true);
    return scenario;
}

Scenario byChance(double probability, std::uint64_t seed)
{
    Scenario scenario = inverted(
        refusing(OperationId::getPolarity, [&](FaultRule &rule) { rule.probability = probability; }));
    scenario.seed = seed;
    return scenario;
}

} // namespace

class SimulatorFaultRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void hitsTheCallsItIsFor_data();
    void hitsTheCallsItIsFor();
    void hitsOneUnit();
    void hitsAnArgumentInARange_data();
    void hitsAnArgumentInARange();
    void waitsForAnotherOperation();
    void callsThatDoNotFitAreNotCounted();
    void lastRuleWins();
    void chanceIsThatOfTheSeed_data();
    void chanceIsThatOfTheSeed();
    void chanceIsAsGreatAsItIsSaid();
    void anotherRuleDoesNotShiftChance();
    void equalRulesDrawForThemselves();
    void randomNumbersAreThoseOfEveryMachine();
    void rulesThatNeverHitAreRemembered();
    void rulesThatAreOverruledNeverHit();
    void wrongRuleIsNamed();
};

void SimulatorFaultRulesTest::hitsTheCallsItIsFor_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("results");
    const auto row = [](const char *name, const Change &change, const char *results) {
        QTest::addRow("%s", name) << change << QString{results};
    };
    row(
        "always", [](FaultRule & /*rule*/) {}, "ffffffff");
    row(
        "from the first, said as 0", [](FaultRule &rule) { rule.from = 0; }, "ffffffff");
    row(
        "from the third", [](FaultRule &rule) { rule.from = 3; }, "TTffffff");
    row(
        "three times", [](FaultRule &rule) { rule.times = 3; }, "fffTTTTT");
    row(
        "every second", [](FaultRule &rule) { rule.every = 2; }, "fTfTfTfT");
    row(
        "every, said as 0", [](FaultRule &rule) { rule.every = 0; }, "ffffffff");
    row(
        "every third from the second",
        [](FaultRule &rule) {
            rule.from = 2;
            rule.every = 3;
        },
        "TfTTfTTf");
    row(
        "every second of four from the third",
        [](FaultRule &rule) {
            rule.from = 3;
            rule.times = 4;
            rule.every = 2;
        },
        "TTfTfTTT");
    row(
        "never by chance", [](FaultRule &rule) { rule.probability = 0; }, "TTTTTTTT");
    row(
        "in the other unit", [](FaultRule &rule) { rule.target = 0; }, "TTTTTTTT");
    row(
        "in this unit", [](FaultRule &rule) { rule.target = 1; }, "ffffffff");
    row(
        "after what never comes", [](FaultRule &rule) { rule.after = OperationId::setGamma; }, "TTTTTTTT");
    row(
        "after itself", [](FaultRule &rule) { rule.after = OperationId::getPolarity; }, "Tfffffff");
    row(
        "after opening", [](FaultRule &rule) { rule.after = OperationId::openDevice; }, "ffffffff");
}

void SimulatorFaultRulesTest::hitsTheCallsItIsFor()
{
    QFETCH(const Change, change);
    QFETCH(const QString, results);
    const ScenarioCamera c{inverted(refusing(OperationId::getPolarity, change))};
    QCOMPARE(polarities(c, 8), results);
}

void SimulatorFaultRulesTest::hitsOneUnit()
{
    const ScenarioCamera c{inverted(refusing(OperationId::getPolarity, [](FaultRule &rule) {
        rule.target = 1;
        rule.from = 2;
    }))};
    QCOMPARE(polarities(c, 1), QStringLiteral("T"));
    QVERIFY(c.device.setTarget(0));
    QCOMPARE(polarities(c, 2), QStringLiteral("TT"));
    QVERIFY(c.device.setTarget(1));
    QCOMPARE(polarities(c, 1), QStringLiteral("f"));
}

void SimulatorFaultRulesTest::hitsAnArgumentInARange_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("place");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<bool>("hits");
    const auto row = [](const char *name, const char *operation, int place, double minimum, double maximum,
                        bool hits) {
        QTest::addRow("%s", name) << QString{operation} << place << minimum << maximum << hits;
    };
    row("the number", "setGamma", 0, 144179, 144179, true);
    row("below the range", "setGamma", 0, 144180, 160000, false);
    row("above the range", "setGamma", 0, 0, 144178, false);
    row("the second number", "addBadPixel", 1, 7, 7, true);
    row("not the second number", "addBadPixel", 1, 3, 3, false);
    row("a field of a record", "configureZoom", 2, 21, 23, true);
    row("a fraction", "configureZoom", 0, 1.5, 1.5, true);
    row("a bool", "setPolarity", 0, 1, 1, true);
    row("another bool", "setPolarity", 0, 0, 0, false);
    row("a negative number", "setVisibleClhe", 0, -5, -1, true);
    row("the stream of a warp", "getWarp", 0, 2, 2, true);
    row("another stream", "getWarp", 0, 0, 1, false);
}

void SimulatorFaultRulesTest::hitsAnArgumentInARange()
{
    QFETCH(const QString, operation);
    QFETCH(const int, place);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const bool, hits);
    const OperationId id{findOperation(operation.toStdString())->id};
    const ScenarioCamera c{refusing(id, [&](FaultRule &rule) {
        rule.argument = ArgumentRange{static_cast<std::size_t>(place), minimum, maximum};
    })};
    const veltrix_sdk::ZoomConfig zoom{1.5F, 11, 22, 1};
    veltrix_sdk::Warp warp{};
    warp.stream = 2;
    c.device.setGamma(144179);
    c.device.addBadPixel(3, 7);
    c.device.configureZoom(&zoom);
    c.device.setPolarity(true);
    c.device.setVisibleClhe(-3, 1);
    c.device.getWarp(&warp);
    c.device.configureZoom(nullptr);
    c.device.getWarp(nullptr);
    QCOMPARE(c.simulation.path.activeFaults().unfired().empty(), hits);
}

void SimulatorFaultRulesTest::waitsForAnotherOperation()
{
    const ScenarioCamera c{inverted(refusing(OperationId::getPolarity, [](FaultRule &rule) {
        rule.after = OperationId::setVideoMode;
        rule.from = 2;
        rule.times = 1;
    }))};
    QCOMPARE(polarities(c, 3), QStringLiteral("TTT"));
    QVERIFY(c.device.setVideoMode(1));
    QCOMPARE(polarities(c, 3), QStringLiteral("TfT"));
    QVERIFY(c.device.setVideoMode(2));
    QCOMPARE(polarities(c, 3), QStringLiteral("TTT"));
}

void SimulatorFaultRulesTest::callsThatDoNotFitAreNotCounted()
{
    const ScenarioCamera c{refusing(OperationId::setGamma, [](FaultRule &rule) {
        rule.argument = ArgumentRange{0, 100000, 160000};
        rule.from = 2;
    })};
    QVERIFY(c.device.setGamma(65536));
    QVERIFY(c.device.setGamma(65536));
    QVERIFY(c.device.setGamma(120000));
    QVERIFY(c.device.setGamma(65536));
    QVERIFY(!c.device.setGamma(120000));
}

void SimulatorFaultRulesTest::lastRuleWins()
{
    Scenario scenario = scenarioWith(OperationId::getColorLut, Effect::Answer);
    scenario.faults.front().answer = {std::int64_t{5}};
    scenario.faults.push_back(scenario.faults.front());
    scenario.faults.back().answer = {std::int64_t{6}};
    scenario.faults.back().every = 2;
    const ScenarioCamera c{scenario};
    QCOMPARE(int{c.device.getColorLut()}, 6);
    QCOMPARE(int{c.device.getColorLut()}, 5);
    QCOMPARE(int{c.device.getColorLut()}, 6);
}

void SimulatorFaultRulesTest::chanceIsThatOfTheSeed_data()
{
    QTest::addColumn<qulonglong>("seed");
    QTest::addColumn<double>("probability");
    QTest::addColumn<QString>("results");
    const auto row = [](const char *name, qulonglong seed, double probability, const char *results) {
        QTest::addRow("%s", name) << seed << probability << QString{results};
    };
    row("seed 0", 0, 0.5, "fTTTTTfffTTTTfffTTfT");
    row("seed 1", 1, 0.5, "TfTffffTffTffffTTTfT");
    row("largest seed", ~qulonglong{0}, 0.5, "ffTTfffTTffTTfTfTTff");
    row("less often", 0, 0.2, "TTTTTTTTTTTTTfTTTTTT");
}

void SimulatorFaultRulesTest::chanceIsThatOfTheSeed()
{
    QFETCH(const qulonglong, seed);
    QFETCH(const double, probability);
    QFETCH(const QString, results);
    const ScenarioCamera c{byChance(probability, seed)};
    QCOMPARE(polarities(c, 20), results);
    c.simulation.start(byChance(probability, seed));
    c.simulation.sdk.getDeviceManager()->openDevice("SIM1");
    QCOMPARE(polarities(c, 20), results);
}

void SimulatorFaultRulesTest::chanceIsAsGreatAsItIsSaid()
{
    const ScenarioCamera c{byChance(0.25, 7)};
    const auto hits = polarities(c, 4000).count('f');
    QVERIFY2(hits > 900 && hits < 1100, qPrintable(QString::number(hits)));
}

void SimulatorFaultRulesTest::anotherRuleDoesNotShiftChance()
{
    Scenario scenario = byChance(0.5, 3);
    const QString alone = polarities(ScenarioCamera{scenario}, 40);
    FaultRule another = scenario.faults.front();
    another.operations = {OperationId::getGamma};
    scenario.faults.insert(scenario.faults.begin(), another);
    const ScenarioCamera c{scenario};
    QString results;
    for (int call{0}; call < 40; ++call) {
        c.device.getGamma();
        results += polarities(c, 1);
    }
    QCOMPARE(results, alone);
}

void SimulatorFaultRulesTest::equalRulesDrawForThemselves()
{
    Scenario scenario = byChance(0.5, 3);
    const auto alone = polarities(ScenarioCamera{scenario}, 400).count('f');
    scenario.faults.push_back(scenario.faults.front());
    const auto both = polarities(ScenarioCamera{scenario}, 400).count('f');
    QVERIFY2(both > alone + 50, qPrintable(QString::number(both)));
}

// A scenario is shared with its seed, so the draws are a part of its meaning.
void SimulatorFaultRulesTest::randomNumbersAreThoseOfEveryMachine()
{
    Random unnamed{0, ""};
    QCOMPARE(unnamed.bits(), std::uint64_t{0xE220A8397B1DCDAF});
    QCOMPARE(unnamed.bits(), std::uint64_t{0x6E789E6AA1B965F4});
    QCOMPARE(unnamed.bits(), std::uint64_t{0x06C45D188009454F});
    Random link{0, "link"};
    Random rule{0, "rule"};
    QVERIFY(link.bits() != rule.bits());
    QCOMPARE(link.below(0), std::uint64_t{0});
    QCOMPARE(link.below(1), std::uint64_t{0});
}

void SimulatorFaultRulesTest::rulesThatNeverHitAreRemembered()
{
    Scenario scenario = scenarioWith(OperationId::setGamma, Effect::Refuse);
    scenario.faults.push_back(scenario.faults.front());
    scenario.faults.back().operations = {OperationId::setClhe};
    scenario.faults.back().origin = "test.toml:9";
    const ScenarioCamera c{scenario};
    Simulator &simulator = Simulator::instance();
    const auto unfired = [&] {
        return simulator.unfiredFaults();
    };
    simulator.addFault({"getGamma"});
    QCOMPARE(unfired(), (std::vector<std::string>{"test.toml:1", "test.toml:9"}));
    c.device.setClhe(1);
    QCOMPARE(unfired(), std::vector<std::string>{"test.toml:1"});
    c.device.setGamma(65536);
    QCOMPARE(unfired(), std::vector<std::string>{});
    c.simulation.start(scenario);
    QCOMPARE(unfired().size(), std::size_t{2});
    simulator.clearFaults();
    QCOMPARE(unfired(), std::vector<std::string>{});
}

void SimulatorFaultRulesTest::rulesThatAreOverruledNeverHit()
{
    Scenario scenario = scenarioWith(OperationId::setGamma, Effect::Refuse);
    scenario.faults.push_back(scenario.faults.front());
    scenario.faults.back().origin = "test.toml:9";
    const ScenarioCamera c{scenario};
    c.device.setGamma(65536);
    QCOMPARE(c.simulation.path.activeFaults().unfired(), std::vector<std::string>{"test.toml:1"});
}

void SimulatorFaultRulesTest::wrongRuleIsNamed()
{
    const auto refusal = [](const Scenario &scenario) {
        try {
            simulation().start(scenario);
        } catch (const std::invalid_argument &found) {
            return QString{found.what()};
        }
        return QString{};
    };
    QCOMPARE(refusal(scenarioWith(OperationId::getGamma, Effect::Stuck)),
             QStringLiteral("test.toml:1: \"getGamma\" changes nothing of a unit, so nothing can be stuck"));
    QCOMPARE(refusal(refusing(OperationId::getGamma, [](FaultRule &rule) { rule.operations.clear(); })),
             QStringLiteral("test.toml:1: a fault needs an operation"));
    QVERIFY(simulation().path.activeFaults().isEmpty());
}

PILOTEL_TEST_CLASS(SimulatorFaultRulesTest)
#include "tst_simulator_fault_rules.moc"
