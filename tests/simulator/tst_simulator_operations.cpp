// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The operations as a scenario names them, and what rules cannot be applied to them.
#include "faults/applicability.h"
#include "scenariocamera.h"
#include "testclass.h"
#include "values/numberlist.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

using namespace veltrix_simulator;

class SimulatorOperationsTest : public QObject
{
    Q_OBJECT

private slots:
    void patternsMatch_data();
    void patternsMatch();
    void starIsEveryDeviceOperation();
    void argumentsAreThoseOfTheCall_data();
    void argumentsAreThoseOfTheCall();
    void everyOperationIsReadOrCommand();
    void whatACallBringsFitsIntoItsList();
    void objections_data();
    void objections();
};

void SimulatorOperationsTest::patternsMatch_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("names");
    const auto row = [](const char *pattern, const char *names) {
        QTest::addRow("\"%s\"", pattern) << QString{pattern} << QString{names};
    };
    row("setGamma", "setGamma");
    row("openDevice", "openDevice");
    row("setgamma", "");
    row("", "");
    row("setGamm", "");
    row("getRoi*", "getRoiX1 getRoiX2 getRoiY1 getRoiY2");
    row("*etRoiX?", "");
    row("*etRoi*1", "getRoiX1 getRoiY1 setRoiX1 setRoiY1");
    row("*BprTable", "readBprTable writeBprTable");
    row("connect*", "connect");
    row("***connect***", "connect");
    row("*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*b", "");
    row("*Device", "");
    row("getDefault*", "");
    row("set*BaudRate", "setMavlinkBaudRate");
}

void SimulatorOperationsTest::patternsMatch()
{
    QFETCH(const QString, pattern);
    QFETCH(const QString, names);
    QStringList matching;
    for (const Operation *const operation : operationsMatching(pattern.toStdString())) {
        matching << QString::fromStdString(std::string{operation->name});
    }
    QCOMPARE(matching.join(' '), names);
}

void SimulatorOperationsTest::starIsEveryDeviceOperation()
{
    const std::vector<const Operation *> all = operationsMatching("*");
    QCOMPARE(all.size(), std::size_t{85});
    QCOMPARE(all.front()->name, std::string_view{"getFirmwareVersions"});
    QCOMPARE(all.back()->name, std::string_view{"processNucRequest"});
    for (const Operation *const operation : all) {
        QCOMPARE(operation->interface, Interface::Device);
    }
}

void SimulatorOperationsTest::argumentsAreThoseOfTheCall_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<std::vector<int>>("arguments");
    const auto row = [](const char *name, std::initializer_list<Kind> arguments) {
        std::vector<int> kinds;
        for (const Kind kind : arguments) {
            kinds.push_back(static_cast<int>(kind));
        }
        QTest::addRow("%s", name) << QString{name} << kinds;
    };
    row("getGamma", {});
    row("getVideoMode", {});
    row("getTemperatures", {});
    row("releaseDeviceManager", {});
    row("closeDevice", {});
    row("openDevice", {Kind::Text});
    row("log", {Kind::Signed32, Kind::Text});
    row("setGamma", {Kind::Unsigned32});
    row("setPolarity", {Kind::Boolean});
    row("getWarp", {Kind::Unsigned8});
    row("configureZoom", {Kind::Float, Kind::Unsigned32, Kind::Unsigned32, Kind::Unsigned8});
    row("setRoiX1", {Kind::Unsigned32, Kind::Signed32, Kind::Boolean, Kind::Boolean, Kind::Boolean});
}

void SimulatorOperationsTest::argumentsAreThoseOfTheCall()
{
    QFETCH(const QString, name);
    QFETCH(const std::vector<int>, arguments);
    const Operation *const operation = findOperation(name.toStdString());
    QVERIFY(operation != nullptr);
    std::vector<int> kinds;
    for (const Kind kind : operation->arguments) {
        kinds.push_back(static_cast<int>(kind));
    }
    QCOMPARE(kinds, arguments);
}

void SimulatorOperationsTest::everyOperationIsReadOrCommand()
{
    QStringList neither;
    for (const Operation *const operation : operationsMatching("*")) {
        const bool isRead{readsValues(*operation)};
        const bool changes{isCommand(*operation)};
        QVERIFY2(!isRead || !changes, operation->name.data());
        QVERIFY2(!changes || operation->answer == std::vector<Kind>{Kind::Boolean}, operation->name.data());
        QVERIFY2(!storesValues(*operation) || !operation->arguments.empty(), operation->name.data());
        if (!isRead && !changes) {
            neither << operation->name.data();
        }
    }
    QCOMPARE(neither, QStringList{"startReading"});
}

void SimulatorOperationsTest::whatACallBringsFitsIntoItsList()
{
    std::size_t most{0};
    for (const Operation &operation : allOperations()) {
        most = std::max(most, operation.arguments.size());
    }
    QCOMPARE(NumberList::capacity, most);
}

void SimulatorOperationsTest::objections_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *operation, const char *what, const Change &change, const char *message) {
        QTest::addRow("%s, %s", operation, what) << QString{operation} << change << QString{message};
    };
    const auto effect = [&](const char *operation, const char *what, Effect wanted, const char *message) {
        row(
            operation, what, [wanted](FaultRule &rule) { rule.effect = wanted; }, message);
    };
    effect("setGamma", "refuse", Effect::Refuse, "");
    effect("openDevice", "refuse", Effect::Refuse, "");
    effect("setBaudRate", "refuse", Effect::Refuse, "\"setBaudRate\" answers nothing, so it cannot refuse");
    effect("closeDevice", "refuse", Effect::Refuse, "\"closeDevice\" answers nothing, so it cannot refuse");
    effect("setTarget", "stuck", Effect::Stuck, "");
    effect("addBadPixel", "stuck", Effect::Stuck, "");
    effect("getPolarity", "stuck", Effect::Stuck,
           "\"getPolarity\" changes nothing of a unit, so nothing can be stuck");
    effect("startReading", "stuck", Effect::Stuck,
           "\"startReading\" changes nothing of a unit, so nothing can be stuck");
    effect("setBaudRate", "stuck", Effect::Stuck,
           "\"setBaudRate\" changes nothing of a unit, so nothing can be stuck");
    effect("connect", "wrong", Effect::Wrong, "");
    effect("isExpertMode", "wrong", Effect::Wrong, "");
    effect("setGamma", "wrong", Effect::Wrong,
           "\"setGamma\" reads no number, so nothing that it reads can be wrong");
    effect("getCommunicationType", "wrong", Effect::Wrong,
           "\"getCommunicationType\" reads no number, so nothing that it reads can be wrong");
    effect("getDeviceManager", "wrong", Effect::Wrong,
           "\"getDeviceManager\" reads no number, so nothing that it reads can be wrong");
    effect("initialize", "garbage", Effect::Garbage, "");
    effect("log", "garbage", Effect::Garbage, "\"log\" answers nothing, so it cannot answer garbage");
    effect("startReading", "late", Effect::Late, "");
    effect("openDevice", "late", Effect::Late,
           "\"openDevice\" is no operation of the device, and only those can be late");
    effect("configureZoom", "lost", Effect::LostOnPowerCycle, "");
    effect("setTarget", "lost", Effect::LostOnPowerCycle,
           "\"setTarget\" sets no value of a unit, so nothing can be lost");
    effect("addBadPixel", "lost", Effect::LostOnPowerCycle,
           "\"addBadPixel\" sets no value of a unit, so nothing can be lost");
    effect("getGamma", "cable out", Effect::CableOut, "");
    effect("initialize", "cable out", Effect::CableOut,
           "\"initialize\" is no operation of the device, and only those use the cable");

    const auto answer = [&](const char *operation, const char *what, const std::vector<Value> &values,
                            const char *message) {
        const auto change = [values](FaultRule &rule) {
            rule.effect = Effect::Answer;
            rule.answer = values;
        };
        row(operation, what, change, message);
    };
    answer("getGamma", "a number", {std::int64_t{7}}, "");
    answer("setBaudRate", "nothing", {}, "");
    answer("getGamma", "nothing", {}, "an answer of \"getGamma\" has 1 values, not 0");
    answer("getGamma", "a bool", {true},
           "value 1 of an answer of \"getGamma\" is an integer from 0 to 4294967295");
    const auto resultAlone = [](FaultRule &rule) {
        rule.effect = Effect::Answer;
        rule.answer = {true};
        rule.leavesOutputs = true;
    };
    row("getWarp", "the result alone", resultAlone, "");

    row(
        "getGamma", "a unit", [](FaultRule &rule) { rule.target = 0; }, "");
    row(
        "getGamma", "a third unit", [](FaultRule &rule) { rule.target = 2; },
        "there is no unit 2, only 0 and 1");
    row(
        "openDevice", "a unit", [](FaultRule &rule) { rule.target = 0; },
        "\"openDevice\" is no operation of the device, and only those address a unit");
    row(
        "getGamma", "after another", [](FaultRule &rule) { rule.after = OperationId::openDevice; }, "");
    row(
        "getGamma", "too likely", [](FaultRule &rule) { rule.probability = 1.5; },
        "a probability goes from 0 to 1");
    row(
        "getGamma", "as likely as no number",
        [](FaultRule &rule) { rule.probability = std::numeric_limits<double>::quiet_NaN(); },
        "a probability goes from 0 to 1");
    const auto argument = [&](const char *operation, const char *what, const ArgumentRange &range,
                              const char *message) {
        row(
            operation, what, [range](FaultRule &rule) { rule.argument = range; }, message);
    };
    argument("setRoiX1", "the last argument", {4, 0, 1}, "");
    argument("setRoiX1", "an argument too many", {5, 0, 1},
             "\"setRoiX1\" takes 5 numbers, so there is no number 6");
    argument("setGamma", "the second argument", {1, 0, 1},
             "\"setGamma\" takes 1 number, so there is no number 2");
    argument("getGamma", "an argument", {0, 0, 1}, "\"getGamma\" takes no numbers");
    argument("openDevice", "a text", {0, 0, 1}, "argument 1 of \"openDevice\" is a text, not a number");
    argument("setGamma", "a range of nothing", {0, 2, 1}, "the range of the argument is empty");
    argument("setGamma", "no range", {0, std::numeric_limits<double>::quiet_NaN(), 1},
             "the range of the argument is empty");
}

void SimulatorOperationsTest::objections()
{
    QFETCH(const QString, operation);
    QFETCH(const Change, change);
    QFETCH(const QString, message);
    FaultRule rule;
    const Operation *const found = findOperation(operation.toStdString());
    QVERIFY(found != nullptr);
    rule.operations = {found->id};
    change(rule);
    QCOMPARE(QString::fromStdString(reasonAgainst(rule, *found)), message);
}

PILOTEL_TEST_CLASS(SimulatorOperationsTest)
#include "tst_simulator_operations.moc"
