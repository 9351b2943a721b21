// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Effects: what a call does and answers when a rule hits it.
#include "faults/wrongvalues.h"
#include "scenariocamera.h"
#include "testclass.h"

#include <QElapsedTimer>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <variant>
#include <vector>

using namespace veltrix_simulator;

namespace
{

std::uint32_t gammaOf(const ScenarioCamera &c)
{
    return c.device.getGamma();
}

/// The camera's values and those of the configuration.
QStringList wholeState(const ScenarioCamera &c)
{
    QStringList lines;
    for (const std::string &key : State::keys()) {
        const Value value = c.simulation.state.get(key);
        lines << QString::fromStdString(key) + '=' +
                     (std::holds_alternative<std::string>(value)
                          ? QString::fromStdString(std::get<std::string>(value))
                          : QString::number(toNumber(value), 'g', 17));
    }
    return lines;
}

} // namespace

class SimulatorEffectsTest : public QObject
{
    Q_OBJECT

private slots:
    void refuse();
    void answer();
    void answerThatLeavesOutputs();
    void garbageLeavesNoOutputs();
    void stuck_data();
    void stuck();
    void wrong_data();
    void wrong();
    void wrongLeavesTheStateAlone();
    void wrongIsWithinTheRange_data();
    void wrongIsWithinTheRange();
    void wrongWithoutARangeIsNear_data();
    void wrongWithoutARangeIsNear();
    void whereOneNumberAloneIsAllowedWrongIsNearIt();
    void whatIsOutsideItsRangeBecomesANumberInside();
    void whatFitsNoKindBecomesItsNearest_data();
    void whatFitsNoKindBecomesItsNearest();
    void garbageIsOfItsType();
    void garbageIsThatOfTheSeed();
    void late();
    void lostOnPowerCycle();
    void lostUntilItIsKept();
    void lostRecordAndUnit();
    void cableOut();
    void cableOutIsAtOnce();
};

void SimulatorEffectsTest::refuse()
{
    const ScenarioCamera c{scenarioWith(OperationId::setGamma, Effect::Refuse)};
    QVERIFY(!c.device.setGamma(144179));
    QCOMPARE(gammaOf(c), 65536U);
}

void SimulatorEffectsTest::answer()
{
    Scenario scenario = scenarioWith(OperationId::getVideoMode, Effect::Answer);
    scenario.faults.front().answer = {true, std::int64_t{3}};
    const ScenarioCamera c{scenario};
    std::uint8_t mode{77};
    QVERIFY(c.device.getVideoMode(&mode));
    QCOMPARE(int{mode}, 3);
}

void SimulatorEffectsTest::answerThatLeavesOutputs()
{
    Scenario scenario = scenarioWith(OperationId::getVideoMode, Effect::Answer);
    scenario.faults.front().answer = {true};
    scenario.faults.front().leavesOutputs = true;
    const ScenarioCamera c{scenario};
    std::uint8_t mode{77};
    QVERIFY(c.device.getVideoMode(&mode));
    QCOMPARE(int{mode}, 77);
}

void SimulatorEffectsTest::garbageLeavesNoOutputs()
{
    // Only what answers or refuses may leave them.
    Scenario scenario = scenarioWith(OperationId::getTemperatures, Effect::Garbage);
    scenario.faults.front().leavesOutputs = true;
    const ScenarioCamera c{scenario};
    veltrix_sdk::Temperatures temperatures{};
    temperatures.sensorMillikelvin = 77;
    temperatures.fpgaMillikelvin = 77;
    c.device.getTemperatures(&temperatures);
    QVERIFY(temperatures.sensorMillikelvin != 77);
    QVERIFY(temperatures.fpgaMillikelvin != 77);
}

void SimulatorEffectsTest::stuck_data()
{
    QTest::addColumn<QString>("operation");
    for (const char *const operation : {"setGamma", "setTarget", "configureZoom", "saveBlendUnitParameters",
                                        "processNucRequest", "setRoiX1", "setWarp"}) {
        QTest::addRow("%s", operation) << QString{operation};
    }
}

void SimulatorEffectsTest::stuck()
{
    QFETCH(const QString, operation);
    const ScenarioCamera c{scenarioWith(findOperation(operation.toStdString())->id, Effect::Stuck)};
    const QStringList before = wholeState(c);
    const veltrix_sdk::ZoomConfig zoom{2, 11, 22, 1};
    const std::map<QString, std::function<bool()>> calls{
        {"setGamma",
         [&] {
             return c.device.setGamma(144179);
         }},
        {"setTarget",
         [&] {
             return c.device.setTarget(0);
         }},
        {"configureZoom",
         [&] {
             return c.device.configureZoom(&zoom);
         }},
        {"saveBlendUnitParameters",
         [&] {
             return c.device.saveBlendUnitParameters(0);
         }},
        {"processNucRequest",
         [&] {
             return c.device.processNucRequest();
         }},
        {"setRoiX1",
         [&] {
             return c.device.setRoiX1(17, 0, true, true, true);
         }},
        {"setWarp",
         [&] {
             return c.device.setWarp(0, 2, 2, 2, 2, 2, 2);
         }},
    };
    QVERIFY(calls.at(operation)());
    QCOMPARE(wholeState(c), before);
    QCOMPARE(c.device.getSerialNumber(), 10417U);
    c.simulation.path.activeFaults().clear();
    QVERIFY(calls.at(operation)());
    QVERIFY(wholeState(c) != before || c.device.getSerialNumber() == 2063U);
}

void SimulatorEffectsTest::wrong_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("wrong");
    const auto row = [](const char *operation, const char *right, const char *wrong) {
        QTest::addRow("%s", operation) << QString{operation} << QString{right} << QString{wrong};
    };
    row("getPolarity", "getPolarity() -> false", "getPolarity() -> true");
    row("getGamma", "getGamma() -> 65536", R"(getGamma\(\) -> \d+)");
    row("getFrameRate", "getFrameRate() -> 60", R"(getFrameRate\(\) -> (9|25|30|50))");
    row("connect", "connect() -> 1 {identity=21}", R"(connect\(\) -> 1 \{identity=\d+\})");
    row("getVideoMode", "getVideoMode() -> true {mode=0}", R"(getVideoMode\(\) -> true \{mode=[12]\})");
    row("getRoiX1", "getRoiX1(0) -> 5", R"(getRoiX1\(0\) -> [1-6]?\d?\d)");
    row("isExpertMode", "isExpertMode() -> true", R"(isExpertMode\(\) -> false)");
    row("getDefaultGsk", "getDefaultGsk() -> 2", R"(getDefaultGsk\(\) -> [13])");
    row("getDefaultClhe", "getDefaultClhe() -> 2000", R"(getDefaultClhe\(\) -> [12]\d\d\d\..*)");
}

void SimulatorEffectsTest::wrong()
{
    QFETCH(const QString, operation);
    QFETCH(const QString, right);
    QFETCH(const QString, wrong);
    Scenario scenario = scenarioWith(findOperation(operation.toStdString())->id, Effect::Wrong);
    scenario.faults.front().times = 3;
    const ScenarioCamera c{scenario};
    const auto call = [&] {
        std::uint8_t number{0};
        const std::map<QString, std::function<void()>> calls{
            {"getPolarity",
             [&] {
                 c.device.getPolarity();
             }},
            {"getGamma",
             [&] {
                 c.device.getGamma();
             }},
            {"getFrameRate",
             [&] {
                 c.device.getFrameRate();
             }},
            {"connect",
             [&] {
                 c.device.connect(&number);
             }},
            {"getVideoMode",
             [&] {
                 c.device.getVideoMode(&number);
             }},
            {"getRoiX1",
             [&] {
                 c.device.getRoiX1(0);
             }},
            {"isExpertMode",
             [&] {
                 c.configuration.isExpertMode();
             }},
            {"getDefaultGsk",
             [&] {
                 c.configuration.getDefaultGsk();
             }},
            {"getDefaultClhe",
             [&] {
                 c.configuration.getDefaultClhe();
             }},
        };
        calls.at(operation)();
        return lastCall(c);
    };
    for (int times{0}; times < 3; ++times) {
        const QString text = call();
        QVERIFY2(text != right, qPrintable(text));
        const QRegularExpression expected{QRegularExpression::anchoredPattern(wrong)};
        QVERIFY2(text == wrong || expected.match(text).hasMatch(), qPrintable(text));
    }
    QCOMPARE(call(), right);
}

void SimulatorEffectsTest::wrongLeavesTheStateAlone()
{
    const ScenarioCamera c{scenarioWith(OperationId::getGamma, Effect::Wrong)};
    const QStringList before = wholeState(c);
    QVERIFY(c.device.getGamma() != 65536U);
    QCOMPARE(wholeState(c), before);
    QVERIFY(c.device.setGamma(144179));
    QVERIFY(c.device.getGamma() != 144179U);
    QCOMPARE(c.simulation.state.units[1][Field::gamma], 144179.0);
}

void SimulatorEffectsTest::wrongIsWithinTheRange_data()
{
    QTest::addColumn<int>("field");
    for (const UnitField &row : unitFields) {
        if (!row.allowed.anything) {
            QTest::addRow("%s", std::string{row.key}.c_str()) << static_cast<int>(row.id);
        }
    }
}

void SimulatorEffectsTest::wrongIsWithinTheRange()
{
    QFETCH(const int, field);
    const UnitField &row = unitFields[static_cast<std::size_t>(field)];
    const ScenarioCamera c{{}};
    const Words &words = c.simulation.state.words;
    Random random{1, "test"};
    double actual{row.defaults[1]};
    std::set<double> seen;
    for (int draw{0}; draw < 200; ++draw) {
        const double other = otherNumber(actual, row.kind, row.allowed, words, random);
        QVERIFY2(other != actual, qPrintable(QString::number(other)));
        QVERIFY2(row.allowed.accepts(other, words), qPrintable(QString::number(other)));
        QVERIFY2(convert(toValue(other, row.kind), row.kind).has_value(), qPrintable(QString::number(other)));
        seen.insert(other);
        actual = other;
    }
    QVERIFY(seen.size() >= 2);
}

void SimulatorEffectsTest::wrongWithoutARangeIsNear_data()
{
    QTest::addColumn<double>("actual");
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("farthest");
    const auto row = [](const char *name, double actual, Kind kind, double farthest) {
        QTest::addRow("%s", name) << actual << static_cast<int>(kind) << farthest;
    };
    constexpr double infinity{std::numeric_limits<double>::infinity()};
    row("zero", 0, Kind::Unsigned8, 1);
    row("largest 8-bit number", 255, Kind::Unsigned8, 26);
    row("largest 32-bit number", 4294967295.0, Kind::Unsigned32, 429496730);
    row("smallest signed number", -2147483648.0, Kind::Signed32, 214748365);
    row("temperature", 296650, Kind::Float, 29665);
    row("largest float", static_cast<double>(std::numeric_limits<float>::max()), Kind::Float, 3.5e37);
    row("largest double", std::numeric_limits<double>::max(), Kind::Double, 1.8e307);
    row("infinity", infinity, Kind::Double, infinity);
    row("not a number", std::numeric_limits<double>::quiet_NaN(), Kind::Float, infinity);
}

void SimulatorEffectsTest::wrongWithoutARangeIsNear()
{
    QFETCH(const double, actual);
    QFETCH(const int, kind);
    QFETCH(const double, farthest);
    Random random{1, "test"};
    for (int draw{0}; draw < 100; ++draw) {
        const double other = otherNumber(actual, static_cast<Kind>(kind), anything, {}, random);
        QVERIFY(std::isfinite(other));
        QVERIFY(other != actual);
        QVERIFY(!std::isfinite(farthest) || std::fabs(other - actual) <= farthest);
        QCOMPARE(fitted(other, static_cast<Kind>(kind)), other);
    }
}

void SimulatorEffectsTest::whereOneNumberAloneIsAllowedWrongIsNearIt()
{
    Random random{1, "test"};
    // A configuration may have such a range.
    Allowed range{};
    range.minimum = 7;
    range.maximum = 7;
    for (int draw{0}; draw < 100; ++draw) {
        const double other = otherNumber(7, Kind::Unsigned32, range, {}, random);
        QVERIFY(other == 6 || other == 8);
    }
}

void SimulatorEffectsTest::whatIsOutsideItsRangeBecomesANumberInside()
{
    Random random{1, "test"};
    Allowed range{};
    range.minimum = 3;
    range.maximum = 5;
    for (const double actual : {0.0, 4.0, 9.0}) {
        bool found[]{false, false, false};
        for (int draw{0}; draw < 100; ++draw) {
            const double other = otherNumber(actual, Kind::Unsigned8, range, {}, random);
            QVERIFY(other >= 3 && other <= 5);
            QVERIFY(other != actual);
            found[static_cast<int>(other) - 3] = true;
        }
        // Each of them comes, but for the actual one.
        QVERIFY(found[0] && found[2]);
        QCOMPARE(found[1], actual != 4);
    }
}

void SimulatorEffectsTest::whatFitsNoKindBecomesItsNearest_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("nearest");
    const auto row = [](const char *name, double number, Kind kind, double nearest) {
        QTest::newRow(name) << number << static_cast<int>(kind) << nearest;
    };
    constexpr double infinity{std::numeric_limits<double>::infinity()};
    constexpr double largestFloat{static_cast<double>(std::numeric_limits<float>::max())};
    row("no number", std::numeric_limits<double>::quiet_NaN(), Kind::Float, 0);
    row("no number for a whole one", std::numeric_limits<double>::quiet_NaN(), Kind::Unsigned8, 0);
    row("beyond a byte", 256, Kind::Unsigned8, 255);
    row("below a byte", -1, Kind::Unsigned8, 0);
    row("beyond a signed number", 2147483648.0, Kind::Signed32, 2147483647);
    row("infinite for a float", infinity, Kind::Float, largestFloat);
    row("infinite for a double", infinity, Kind::Double, infinity);
}

void SimulatorEffectsTest::whatFitsNoKindBecomesItsNearest()
{
    QFETCH(const double, number);
    QFETCH(const int, kind);
    QFETCH(const double, nearest);
    QCOMPARE(fitted(number, static_cast<Kind>(kind)), nearest);
}

void SimulatorEffectsTest::garbageIsOfItsType()
{
    Scenario scenario = scenarioWith(OperationId::getTemperatures, Effect::Garbage);
    scenario.faults.front().operations = {OperationId::getTemperatures,   OperationId::getEdgeCorrection,
                                          OperationId::getGamma,          OperationId::getPolarity,
                                          OperationId::getDefaultGamma,   OperationId::getCommunicationType,
                                          OperationId::getDefaultBaudRate};
    const ScenarioCamera c{scenario};
    std::set<bool> results;
    std::set<std::int32_t> baudRates;
    std::set<std::uint32_t> gammas;
    bool notANumber{false};
    bool huge{false};
    for (int call{0}; call < 300; ++call) {
        veltrix_sdk::Temperatures temperatures{};
        c.device.getTemperatures(&temperatures);
        c.device.getEdgeCorrection();
        results.insert(c.device.getPolarity());
        gammas.insert(c.device.getGamma());
        baudRates.insert(c.configuration.getDefaultBaudRate());
        const double number{c.configuration.getDefaultGamma()};
        notANumber = notANumber || std::isnan(number);
        huge = huge || std::isinf(number) || std::fabs(number) > 1e300;
        QVERIFY(std::strlen(c.configuration.getCommunicationType()) <= 40);
    }
    QCOMPARE(results.size(), std::size_t{2});
    QVERIFY(notANumber);
    QVERIFY(huge);
    QVERIFY(gammas.size() > 100);
    QCOMPARE(*gammas.begin(), 0U);
    QCOMPARE(*gammas.rbegin(), 4294967295U);
    QCOMPARE(*baudRates.begin(), std::numeric_limits<std::int32_t>::min());
    QCOMPARE(*baudRates.rbegin(), std::numeric_limits<std::int32_t>::max());
    QCOMPARE(c.simulation.state.units[1][Field::gamma], 65536.0);
}

void SimulatorEffectsTest::garbageIsThatOfTheSeed()
{
    const auto answers = [](std::uint64_t seed) {
        Scenario scenario = scenarioWith(OperationId::getGamma, Effect::Garbage);
        scenario.seed = seed;
        const ScenarioCamera c{scenario};
        std::vector<std::uint32_t> numbers;
        for (int call{0}; call < 20; ++call) {
            numbers.push_back(gammaOf(c));
        }
        return numbers;
    };
    QCOMPARE(answers(5), answers(5));
    QVERIFY(answers(5) != answers(6));
}

void SimulatorEffectsTest::late()
{
    Scenario scenario = scenarioWith(OperationId::setGamma, Effect::Late);
    scenario.faults.front().delay = std::chrono::milliseconds{30};
    const ScenarioCamera c{scenario};
    QElapsedTimer timer;
    timer.start();
    QVERIFY(c.device.setGamma(144179));
    QVERIFY(timer.elapsed() >= 30);
    QCOMPARE(gammaOf(c), 144179U);
}

void SimulatorEffectsTest::lostOnPowerCycle()
{
    Scenario scenario = scenarioWith(OperationId::setGamma, Effect::LostOnPowerCycle);
    scenario.faults.front().times = 2;
    ScenarioCamera c{scenario};
    QVERIFY(c.device.setGamma(100000));
    QVERIFY(c.device.setGamma(120000));
    QVERIFY(!c.device.setGamma(1));
    QVERIFY(c.device.setClhe(7));
    QCOMPARE(gammaOf(c), 120000U);
    c.reopen();
    QCOMPARE(gammaOf(c), 65536U);
    QCOMPARE(c.device.getClhe(), 7U);
    QVERIFY(c.device.setGamma(120000));
    c.reopen();
    QCOMPARE(gammaOf(c), 120000U);
}

void SimulatorEffectsTest::lostUntilItIsKept()
{
    Scenario scenario = scenarioWith(OperationId::setGamma, Effect::LostOnPowerCycle);
    scenario.faults.front().every = 2;
    ScenarioCamera c{scenario};
    QVERIFY(c.device.setGamma(100000));
    QVERIFY(c.device.setGamma(100000));
    c.reopen();
    QCOMPARE(gammaOf(c), 100000U);
    QVERIFY(c.device.setGamma(120000));
    c.simulation.state.set("camera.gamma", std::int64_t{130000});
    c.reopen();
    QCOMPARE(gammaOf(c), 130000U);
}

void SimulatorEffectsTest::lostRecordAndUnit()
{
    ScenarioCamera c{scenarioWith(OperationId::configureZoom, Effect::LostOnPowerCycle)};
    const QStringList before = wholeState(c);
    const veltrix_sdk::ZoomConfig zoom{2, 11, 22, 1};
    QVERIFY(c.device.configureZoom(&zoom));
    QVERIFY(c.device.setTarget(0));
    QVERIFY(c.device.configureZoom(&zoom));
    QVERIFY(wholeState(c) != before);
    c.reopen();
    QCOMPARE(wholeState(c), before);
}

void SimulatorEffectsTest::cableOut()
{
    Scenario scenario = scenarioWith(OperationId::getGamma, Effect::CableOut);
    scenario.faults.front().from = 2;
    scenario.faults.front().times = 1;
    ScenarioCamera c{scenario};
    QCOMPARE(gammaOf(c), 65536U);
    QCOMPARE(gammaOf(c), 0U);
    veltrix_sdk::Temperatures temperatures{1, 1};
    QVERIFY(!c.device.getTemperatures(&temperatures));
    QCOMPARE(temperatures.sensorMillikelvin, 0.0F);
    QVERIFY(!c.device.setClhe(1));
    QVERIFY(c.configuration.isExpertMode());
    QVERIFY(c.simulation.state.deviceOpen);
    QCOMPARE(c.simulation.path.callsWhileNotOpen(), std::size_t{0});
    c.reopen();
    QCOMPARE(gammaOf(c), 65536U);
    QCOMPARE(c.device.getClhe(), 2000U);
}

void SimulatorEffectsTest::cableOutIsAtOnce()
{
    // With the link's time this would take an hour and a half, and the test would not be let run so long.
    Scenario scenario = scenarioWith(OperationId::getGamma, Effect::CableOut);
    scenario.link.kind = Link::Kind::Fixed;
    scenario.link.perCall = std::chrono::seconds{60};
    const ScenarioCamera c{scenario};
    QCOMPARE(gammaOf(c), 0U);
    for (int call{0}; call < 100; ++call) {
        QVERIFY(!c.device.setClhe(1));
    }
}

PILOTEL_TEST_CLASS(SimulatorEffectsTest)
#include "tst_simulator_effects.moc"
