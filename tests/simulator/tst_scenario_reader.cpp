// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the keys of a scenario file set.
#include "scenariofaults.h"
#include "scenarios/scenarioreader.h"
#include "testclass.h"
#include "units/state.h"

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QMetaType>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

using namespace veltrix_simulator;

namespace
{

using Look = std::function<std::string(const Scenario &)>;

std::string text(const Value &value)
{
    return std::visit(
        [](const auto &held) -> std::string {
            using T = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<T, std::string>) {
                return held;
            } else if constexpr (std::is_same_v<T, bool>) {
                return held ? "true" : "false";
            } else {
                return QString::number(held).toStdString();
            }
        },
        value);
}

std::string text(const std::vector<std::string> &list)
{
    std::string joined;
    for (const std::string &each : list) {
        joined += (joined.empty() ? "" : " ") + each;
    }
    return joined;
}

std::string number(double value)
{
    return QString::number(value).toStdString();
}

std::string us(std::chrono::microseconds time)
{
    return std::to_string(time.count()) + " us";
}

/// The first value that the scenario gives to the state.
std::string firstValue(const Scenario &scenario)
{
    return scenario.values.empty() ? "none"
                                   : scenario.values[0].first + " = " + text(scenario.values[0].second);
}

std::string pixels(const Scenario &scenario)
{
    std::string all;
    for (const int unit : scenario.unitsWithPixels) {
        all += "unit " + std::to_string(unit);
    }
    for (const PixelPlace &pixel : scenario.badPixels) {
        all += ", " + std::to_string(pixel.target) + ':' + std::to_string(pixel.column) + '/' +
               std::to_string(pixel.row);
    }
    return all;
}

std::string ports(const Scenario &scenario)
{
    std::vector<std::string> names;
    for (const Port &port : scenario.ports) {
        names.push_back(port.name + ':' + std::to_string(static_cast<int>(port.opening)) + ':' +
                        us(port.delay));
    }
    return text(names);
}

/// When the first rule hits.
std::string when(const Scenario &scenario)
{
    const FaultRule &rule = scenario.faults.at(0);
    return "from " + std::to_string(rule.from) + " times " + std::to_string(rule.times) + " every " +
           std::to_string(rule.every) + " chance " + number(rule.probability);
}

std::string operations(const Scenario &scenario)
{
    std::vector<std::string> names;
    for (const OperationId operation : scenario.faults.at(0).operations) {
        names.emplace_back(nameOf(operation).name);
    }
    return text(names);
}

std::string argument(const Scenario &scenario)
{
    const ArgumentRange range = scenario.faults.at(0).argument.value();
    return std::to_string(range.place) + ": " + number(range.minimum) + " to " + number(range.maximum);
}

std::string effect(const Scenario &scenario)
{
    return std::to_string(static_cast<int>(scenario.faults.at(0).effect));
}

std::string answer(const Scenario &scenario)
{
    std::vector<std::string> values;
    for (const Value &value : scenario.faults.at(0).answer) {
        values.push_back(text(value));
    }
    return text(values) + (scenario.faults.at(0).leavesOutputs ? " alone" : "");
}

} // namespace

Q_DECLARE_METATYPE(Look)

class ScenarioReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void keySets_data();
    void keySets();
    void everyKeyOfTheStateIsTaken();
    void nothingIsTheDefault();
    void patternMeansWhatTheEffectFits();
    void ruleKnowsItsOrigin();
    void readmeListsEveryKey();
};

void ScenarioReaderTest::keySets_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<Look>("look");
    QTest::addColumn<QString>("seen");
    const auto sets = [](const char *row, const QByteArray &file, const Look &look, const char *seen) {
        QTest::newRow(row) << file << look << QString{seen};
    };

    sets(
        "seed", "seed = 7", [](const Scenario &s) { return std::to_string(s.seed); }, "7");
    sets("configuration", "[configuration]\nexpertMode = false", firstValue,
         "configuration.expertMode = false");
    sets("configuration text", R"(configuration.communicationType = "USB")", firstValue,
         "configuration.communicationType = USB");
    sets("camera", "[camera]\ngamma = 65537", firstValue, "camera.gamma = 65537");
    sets("camera, dotted", "[camera]\ntemperatures.sensorMillikelvin = 1000", firstValue,
         "camera.temperatures.sensorMillikelvin = 1000");
    sets("camera, nested", "[camera.roi0]\nx1 = 9", firstValue, "camera.roi0.x1 = 9");
    sets("blendUnit", "[blendUnit]\nvideoMode = 1", firstValue, "blendUnit.videoMode = 1");
    sets("bad pixels", "[camera]\nbadPixels = [[10, 20], [639, 479]]", pixels, "unit 1, 1:10/20, 1:639/479");
    sets("no bad pixels", "[camera]\nbadPixels = []", pixels, "unit 1");
    sets("the Blend Unit's", "[blendUnit]\nbadPixels = [[0, 0]]", pixels, "unit 0, 0:0/0");

    sets("port", "[[port]]\nname = \"COM7\"", ports, "COM7:0:0 us");
    sets("two ports", "[[port]]\nname = \"A\"\nopening = \"refused\"\n[[port]]\nname = \"B\"", ports,
         "A:1:0 us B:0:0 us");
    sets("slow port", "[[port]]\nname = \"A\"\nopening = \"silent\"\ndelayMilliseconds = 200", ports,
         "A:2:200000 us");
    sets("opening port", "[[port]]\nname = \"A\"\nopening = \"opens\"", ports, "A:0:0 us");
    sets("no port", "port = []", ports, "");

    const auto linkTimes = [](const Scenario &s) {
        return std::to_string(static_cast<int>(s.link.kind)) + ": " + us(s.link.perCall) + ", " +
               std::to_string(s.link.bytesPerCommand) + " at " + std::to_string(s.link.baudRate) + ", " +
               us(s.link.thinkTime) + ", " + us(s.link.jitter);
    };
    sets("no link", R"(link.kind = "none")", linkTimes, "0: 0 us, 24 at 0, 0 us, 0 us");
    sets("fixed link", "[link]\nkind = \"fixed\"\nmillisecondsPerCall = 5\njitterMilliseconds = 2", linkTimes,
         "1: 5000 us, 24 at 0, 0 us, 2000 us");
    sets("serial link",
         "[link]\nkind = \"serial\"\nbytesPerCommand = 30\nbaudRate = 9600\nthinkTimeMilliseconds = 1.5",
         linkTimes, "2: 0 us, 30 at 9600, 1500 us, 0 us");

    sets("operation", fault(""), operations, "setGamma");
    sets("operations", "[[fault]]\noperations = [\"setG*n\", \"setClhe\", \"setClhe\"]\neffect = \"refuse\"",
         operations, "setGainCorrection setClhe");
    sets(
        "target camera", fault(R"(target = "camera")"),
        [](const Scenario &s) { return std::to_string(s.faults.at(0).target.value()); }, "1");
    sets(
        "target Blend Unit", fault(R"(target = "blendUnit")"),
        [](const Scenario &s) { return std::to_string(s.faults.at(0).target.value()); }, "0");
    sets("argument", fault("argument = { place = 1, minimum = 0, maximum = 100.5 }"), argument,
         "0: 0 to 100.5");
    sets("argument without an upper end", fault("argument = { place = 1, minimum = 7 }"), argument,
         "0: 7 to 1.79769e+308");
    sets("argument without a lower end", fault("argument = { place = 1, maximum = 7 }"), argument,
         "0: -1.79769e+308 to 7");
    sets(
        "after", fault(R"(after = "setTarget")"),
        [](const Scenario &s) { return std::string{nameOf(s.faults.at(0).after.value()).name}; },
        "setTarget");

    sets("always", fault(""), when, "from 1 times 0 every 1 chance 1");
    sets("once", fault("once = true"), when, "from 1 times 1 every 1 chance 1");
    sets("onCall", fault("onCall = 3"), when, "from 3 times 1 every 1 chance 1");
    sets("fromCall", fault("fromCall = 3"), when, "from 3 times 0 every 1 chance 1");
    sets("times", fault("fromCall = 3\ntimes = 2"), when, "from 3 times 2 every 1 chance 1");
    sets("everyCall", fault("everyCall = 4"), when, "from 4 times 0 every 4 chance 1");
    sets("probability", fault("probability = 0.1"), when, "from 1 times 0 every 1 chance 0.1");

    sets("refuse", effectOn("setGamma", R"("refuse")"), effect, "0");
    sets("answer", effectOn("getVideoMode", "\"answer\"\nanswer = [true, 3]"), answer, "true 3");
    sets("answer alone", effectOn("getVideoMode", "\"answer\"\nanswer = [true]\nleavesOutputs = true"),
         answer, "true alone");
    sets("stuck", effectOn("setGamma", R"("stuck")"), effect, "2");
    sets("wrong", effectOn("getGamma", R"("wrong")"), effect, "3");
    sets("garbage", effectOn("getGamma", R"("garbage")"), effect, "4");
    sets(
        "late", effectOn("getGamma", "\"late\"\ndelayMilliseconds = 2.5"),
        [](const Scenario &s) { return effect(s) + ": " + us(s.faults.at(0).delay); }, "5: 2500 us");
    sets("lostOnPowerCycle", effectOn("setGamma", R"("lostOnPowerCycle")"), effect, "6");
    sets("cableOut", effectOn("getGamma", R"("cableOut")"), effect, "7");

    sets(
        "memory", R"(memory.file = "saved.json")", [](const Scenario &s) { return s.memoryFile; },
        "saved.json");
    sets(
        "life", "life.millisecondsPerCall = 100", [](const Scenario &s) { return us(s.life.timePerCall); },
        "100000 us");
    sets(
        "drift",
        "life.millisecondsPerCall = 1\n[[life.drift]]\nkey = \"camera.temperatures.sensorMillikelvin\"\nend "
        "= 310150\nhalfTimeSeconds = 60",
        [](const Scenario &s) {
            const Drift &drift = s.life.drifts.at(0);
            return drift.key + " to " + number(drift.end) + " in " + us(drift.halfTime);
        },
        "camera.temperatures.sensorMillikelvin to 310150 in 60000000 us");
    sets(
        "counter",
        "life.millisecondsPerCall = 1\n[[life.counter]]\nkey = "
        "\"camera.operatingInfo.operatingMinutes\"\nintervalSeconds = 60",
        [](const Scenario &s) {
            const Counter &counter = s.life.counters.at(0);
            return counter.key + " in " + us(counter.interval);
        },
        "camera.operatingInfo.operatingMinutes in 60000000 us");
}

void ScenarioReaderTest::keySets()
{
    QFETCH(const QByteArray, file);
    QFETCH(const Look, look);
    QFETCH(const QString, seen);
    const auto result = readScenario(file.toStdString(), "test.toml");
    if (const auto *const error = std::get_if<ScenarioError>(&result)) {
        QFAIL(error->message().c_str());
    }
    QCOMPARE(QString::fromStdString(look(std::get<Scenario>(result))), seen);
}

void ScenarioReaderTest::everyKeyOfTheStateIsTaken()
{
    veltrix_sdk::ConfigurationWords words;
    State state{words};
    state.reset();
    std::string file;
    for (const std::string &key : State::keys()) {
        const Value value = state.get(key);
        const bool isText{std::holds_alternative<std::string>(value)};
        file += key + " = " + (isText ? '"' + text(value) + '"' : text(value)) + '\n';
    }
    const auto result = readScenario(file, "all.toml");
    if (const auto *const error = std::get_if<ScenarioError>(&result)) {
        QFAIL(error->message().c_str());
    }
    const auto &values = std::get<Scenario>(result).values;
    QCOMPARE(values.size(), State::keys().size());
    for (const auto &[key, value] : values) {
        QVERIFY2(state.get(key) == value, key.c_str());
    }
}

void ScenarioReaderTest::nothingIsTheDefault()
{
    const auto result = readScenario("", "empty.toml");
    const auto &scenario = std::get<Scenario>(result);
    QCOMPARE(scenario.seed, std::uint64_t{0});
    QCOMPARE(ports(scenario), std::string{"SIM1:0:0 us"});
    QVERIFY(scenario.values.empty());
    QVERIFY(scenario.faults.empty());
    QVERIFY(scenario.unitsWithPixels.empty());
    QVERIFY(scenario.memoryFile.empty());
}

void ScenarioReaderTest::patternMeansWhatTheEffectFits()
{
    const auto result = readScenario("[[fault]]\noperation = \"*Gamma\"\neffect = \"stuck\"", "test.toml");
    QCOMPARE(operations(std::get<Scenario>(result)), std::string{"setGamma"});
}

void ScenarioReaderTest::ruleKnowsItsOrigin()
{
    const auto result = readScenario(("\n\n" + fault("")).toStdString(), "folder/test.toml");
    QCOMPARE(std::get<Scenario>(result).faults.at(0).origin, std::string{"folder/test.toml:3"});
}

void ScenarioReaderTest::readmeListsEveryKey()
{
    QFile readme{QStringLiteral(SIMULATOR_README)};
    QVERIFY(readme.open(QIODevice::ReadOnly | QIODevice::Text));
    const QString chapter =
        QString::fromUtf8(readme.readAll()).section("\n## Scenarios\n", 1).section("\n## ", 0, 0);
    static const QRegularExpression keyCell{QStringLiteral(R"(^\| `([A-Za-z.]+)` \|)"),
                                            QRegularExpression::MultilineOption};
    QStringList documented;
    for (auto match = keyCell.globalMatch(chapter); match.hasNext();) {
        documented.append(match.next().captured(1));
    }
    documented.sort();
    QStringList keys;
    for (const std::string &key : scenarioKeys()) {
        keys.append(QString::fromStdString(key));
    }
    keys.sort();
    QCOMPARE(documented, keys);
}

PILOTEL_TEST_CLASS(ScenarioReaderTest)
#include "tst_scenario_reader.moc"
