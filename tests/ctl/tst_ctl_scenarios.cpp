// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every command on each shipped scenario: clear lines, the right exit status, nothing half done.
#include "ctlrun.h"
#include "testclass.h"

#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <QObject>
#include <QSerialPortInfo>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVector>

class CtlScenariosTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void commandEnds_data();
    void commandEnds();
    void everyScenarioIsInTheTable();
    void everyRowOfTheTableIsUsed();
#if !defined(Q_OS_WIN)
    void worksWithoutTheExtension();
#endif

private:
    QByteArray tableOfBadPixels;
};

namespace
{

/// A command by the name that the table has for it.
struct Command
{
    const char *name;
    QStringList arguments;
    bool onlyReads; ///< It never sends a command to a unit, whatever happens.
};

/// What differs in a scenario from a command that is done without a word.
struct Deviation
{
    const char *scenario;
    QStringList commands;
    int status;
    QStringList errors; ///< Without the name of the program.
};

const QString noBlendUnit{"No answer from the Blend Unit: look at its power and its cable."};
const QString noCamera{"No answer from the camera: look at its power and its cable."};
const QString unchanged{"Nothing was changed."};
const QString asBefore{"Everything is as it was before."};
const QString noFile{"No file was written."};
const QString whichFile{"So it is not known which file belongs to the camera."};

/// In the order in which somebody would try them; SIM1 is named, since a scenario may offer no port.
QVector<Command> commands()
{
    return {
        {"ports", {"ports"}, true},
        {"info", {"info"}, true},
        {"list", {"list"}, true},
        {"json", {"list", "--json"}, true},
        {"get", {"get", "camera.gamma", "camera.colorLut"}, true},
        {"set", {"set", "camera.gamma=2.2", "blendUnit.warp0.a11=2"}, false},
        {"save", {"profile", "save", "new.toml"}, true},
        {"apply", {"profile", "apply", "wanted.toml"}, false},
        {"dry run", {"profile", "apply", "--dry-run", "wanted.toml"}, true},
        {"diff", {"profile", "diff", "wanted.toml"}, true},
        {"store user", {"store", "user"}, false},
        {"store expert", {"store", "expert"}, false},
        {"watch", {"watch", "temperatures", "--every", "10ms", "--count", "2"}, true},
        {"bad read", {"bad-pixels", "read"}, false},
        {"bad write", {"bad-pixels", "write"}, false},
        {"bad add", {"bad-pixels", "add", "1,2"}, false},
        {"bad remove", {"bad-pixels", "remove", "1,2"}, false},
        {"bad list", {"bad-pixels", "list"}, true},
        {"shell", {"shell", "commands"}, false},
        // Two that are only of interest where the device refuses the second number, and then the first as
        // well.
        {"set clhe", {"set", "camera.clhe=5"}, false},
        {"set tint, clhe", {"set", "camera.tint=5", "camera.clhe=5"}, false},
    };
}

QStringList everything()
{
    QStringList names;
    for (const Command &command : commands()) {
        names.append(command.name);
    }
    names.removeOne("ports");
    return names;
}

QStringList without(QStringList names, const QStringList &unwanted)
{
    for (const QString &name : unwanted) {
        names.removeOne(name);
    }
    return names;
}

const QStringList badPixels{"bad read", "bad write", "bad add", "bad remove", "bad list"};
const QStringList ofBlendUnit{"list",    "json", "set",        "save",         "apply",
                              "dry run", "diff", "store user", "store expert", "watch"};

QVector<Deviation> deviations()
{
    const QString gone{"What is on the port SIM1 is no KR camera: its identity is 99 instead of 21."};
    const QString noDevice{
        "No device opens on the port SIM1. Is it the right one, and does no other program hold it?"};
    const QString gamma{"camera.gamma = 144179 (2.2) was sent, but the camera has 65536 (1)"};
    const QString warp{"blendUnit.warp0.a11 = 2 is refused by the Blend Unit."};
    const QString noGamma{"camera.gamma answers 2145504185; 32768 to 163840 is allowed"};
    const QStringList garbage{
        "camera.temperatures sensor answers 3.448345125070529e-13; 200000 to 400000 is allowed, fpga answers 45136998301696; 200000 to 400000 is allowed",
        "camera.zoom answers false",
        "camera.videoOutput answers 184; 0 to 8 is allowed",
        "camera.frameRate answers 255; 9, 25, 30, 50 or 60 is allowed",
        "camera.gamma answers 601188605; 32768 to 163840 is allowed",
        "camera.colorLut answers 255; 0 to 7 is allowed",
        "camera.lutTemporalFilter answers 127; 0 to 8 is allowed",
        "camera.gsk answers 637749582; 1 to 3 is allowed",
        "camera.tint answers 820725660; 0 to 20 is allowed",
        "camera.ahcGainLimitation answers 82; only 1 is success",
        "camera.edgeCorrection gain answers 3852888702; 0 to 1024 is allowed",
        "camera.roi0.x2 answers 2040682464; 0 to 639 is allowed",
        "camera.roi1.y1 answers 1761186837; 0 to 479 is allowed",
        "camera.roi1.x2 answers 3987197639; 0 to 639 is allowed",
        "camera.roi1.y2 answers 3734410290; 0 to 479 is allowed",
        "camera.roi2.x1 answers 4294967295; 0 to 639 is allowed",
        "camera.roi2.y1 answers 4237649075; 0 to 479 is allowed",
        "camera.roi2.x2 answers 3296902223; 0 to 639 is allowed",
        "camera.roi2.y2 answers 2862469786; 0 to 479 is allowed",
        "camera.roi3.x1 answers 48546036; 0 to 639 is allowed",
        "camera.roi3.y2 answers 1511758920; 0 to 479 is allowed"};
    const QStringList warm{
        "camera.temperatures sensor answers 0.000963524857070297; 200000 to 400000 is allowed, fpga answers 1.2528979778289795; 200000 to 400000 is allowed",
        "camera.temperatures sensor answers -9.476240607228723e+17; 200000 to 400000 is allowed, fpga answers inf; 200000 to 400000 is allowed"};
    return {
        {"cable-pulled", {"list", "json", "get", "save", "apply", "dry run", "diff"}, 3, {noCamera}},
        {"default", {"diff"}, 1, {}},
        {"everything-refused", {"info"}, 3, {noBlendUnit, noCamera}},
        {"everything-refused", without(ofBlendUnit, {"set"}), 3, {noBlendUnit}},
        {"everything-refused",
         QStringList{"get", "set", "set clhe", "set tint, clhe"} + badPixels,
         3,
         {noCamera}},
        {"everything-refused", {"shell"}, 3, {"commands:1: " + noBlendUnit, noCamera}},
        {"flaky-link", {"list", "json"}, 1, {"camera.sensorSerialNumber answers 0; 1 or more is allowed"}},
        {"flaky-link", {"save"}, 1, {"blendUnit.warp1 answers false", noFile}},
        {"flaky-link", {"apply"}, 1, {"camera.colorLut = 1 (iron) is refused by the camera.", asBefore}},
        {"flaky-link", {"diff"}, 1, {}},
        {"forgetful", {"set", "apply"}, 1, {gamma, asBefore}},
        {"forgetful", {"diff"}, 1, {}},
        {"forgetful",
         {"shell"},
         1,
         {"commands:2: camera.gamma = 131072 (2) was sent, but the camera has 65536 (1)", asBefore}},
        {"garbage", {"info"}, 1, warm},
        {"garbage", {"list", "json"}, 1, garbage},
        {"garbage", {"get"}, 1, {noGamma, "camera.colorLut answers 255; 0 to 7 is allowed"}},
        {"garbage", {"set", "apply", "dry run", "diff"}, 1, {noGamma, unchanged}},
        {"garbage", {"set clhe"}, 1, {"camera.clhe answers 2145504185; 0 to 30000 is allowed", unchanged}},
        {"garbage", {"set tint, clhe"}, 1, {"camera.tint answers 2145504185; 0 to 20 is allowed", unchanged}},
        {"garbage",
         {"save"},
         1,
         {"camera.zoom factor answers -5.098658917290777e-08; 1 to 8 is allowed, xCenter answers 3681926859; 0 to 1280 is allowed, yCenter answers 2594645068; 0 to 1024 is allowed",
          noFile}},
        {"garbage",
         {"watch"},
         1,
         {"camera.temperatures sensor answers -7.548068836626953e-09; 200000 to 400000 is allowed, fpga answers nan; 200000 to 400000 is allowed",
          "camera.temperatures sensor answers -5.098658917290777e-08; 200000 to 400000 is allowed, fpga answers -6.917114838174925e+16; 200000 to 400000 is allowed"}},
        {"garbage", badPixels, 1, {"camera.serialNumber answers 2145504185, then 4294967295", whichFile}},
        {"garbage",
         {"shell"},
         1,
         warm + QStringList{"commands:1: not all was well, so this is the last line that was run"}},
        {"no-expert-mode", {"diff"}, 1, {}},
        {"no-ports", without(everything(), {"shell"}), 3, {noDevice}},
        {"no-ports", {"shell"}, 3, {"commands:1: " + noDevice}},
        {"refused-warp", {"set", "apply"}, 1, {warp, asBefore}},
        {"refused-warp", {"diff"}, 1, {}},
        {"silent-blend-unit", QStringList{"info"} + ofBlendUnit, 3, {noBlendUnit}},
        {"silent-blend-unit", {"shell"}, 3, {"commands:1: " + noBlendUnit}},
        {"silent-camera", without(everything(), {"shell"}), 3, {noCamera}},
        {"silent-camera", {"shell"}, 3, {"commands:1: " + noCamera}},
        {"slow-link", {"diff"}, 1, {}},
        {"warming-up", {"diff"}, 1, {}},
        {"wrong-answers",
         {"list", "json"},
         1,
         {"blendUnit.videoMode answers 9; 0 to 2 is allowed",
          "camera.frameRate answers 15; 9, 25, 30, 50 or 60 is allowed"}},
        {"wrong-answers", {"save"}, 1, {"blendUnit.videoMode answers 9; 0 to 2 is allowed", noFile}},
        {"wrong-answers",
         {"apply"},
         1,
         {"camera.colorLut = 1 (iron) was sent, but the camera has 0 (greyscale)", asBefore}},
        {"wrong-answers", {"diff"}, 1, {}},
        {"wrong-answers", {"set clhe"}, 1, {"camera.clhe = 5 is refused by the camera.", asBefore}},
        {"wrong-answers",
         {"set tint, clhe"},
         1,
         {"camera.clhe = 5 is refused by the camera.",
          "NOT PUT BACK: camera.tint was 10; it is 5, and setting it is refused"}},
        {"wrong-identity", without(everything(), {"shell"}), 3, {gone}},
        {"wrong-identity", {"shell"}, 3, {"commands:1: " + gone}},
    };
}

QStringList scenarios()
{
    QStringList names;
    for (const QFileInfo &file : QDir{SCENARIOS}.entryInfoList({"*.toml"}, QDir::Files)) {
        names.append(file.completeBaseName());
    }
    names.sort();
    return names;
}

/// What the table has for a command on a scenario.
Deviation deviationOf(const QString &scenario, const Command &command)
{
    for (const Deviation &each : deviations()) {
        if (scenario == each.scenario && each.commands.contains(command.name)) {
            return each;
        }
    }
    return {"", {}, 0, {}};
}

} // namespace

Q_DECLARE_METATYPE(Command)

void CtlScenariosTest::initTestCase()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"bad-pixels", "read"}).status, 0);
    tableOfBadPixels = folder.read("bpr_SN10417.bin");
    QVERIFY(!tableOfBadPixels.isEmpty());
}

void CtlScenariosTest::commandEnds_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<Command>("command");
    for (const QString &scenario : scenarios()) {
        for (const Command &command : commands()) {
            QTest::addRow("%s: %s", qPrintable(scenario), command.name) << scenario << command;
        }
    }
}

void CtlScenariosTest::commandEnds()
{
    QFETCH(const QString, scenario);
    QFETCH(const Command, command);
    const Deviation expected{deviationOf(scenario, command)};
    CtlFolder folder{scenario};
    folder.write("wanted.toml", "blendUnit.warp0.a11 = 2\ncamera.gamma = 144179\ncamera.colorLut = 1\n");
    folder.write("commands", "info\nset camera.gamma=2\nget camera.gamma\n");
    folder.write("bpr_SN10417.bin", tableOfBadPixels);
    const Outcome outcome{folder.run(QStringList{"--port", "SIM1"} + command.arguments)};
    QStringList errors;
    for (const QString &error : expected.errors) {
        errors.append("pilotel-ctl: " + error);
    }
    QCOMPARE(outcome.errors, lines(errors));
    QVERIFY(outcome.exited);
    QCOMPARE(outcome.status, expected.status);
    // A profile is whole or not there, what was opened is closed, and who only asks changes nothing.
    QCOMPARE(folder.has("new.toml"), QString{command.name} == "save" && expected.status == 0);
    const QStringList calls{folder.calls()};
    if (!calls.filter("setTarget").isEmpty()) {
        QCOMPARE(calls.mid(calls.size() - 2),
                 (QStringList{"closeDevice(\"device\")", "releaseDeviceManager(\"manager\")"}));
    }
    if (command.onlyReads || expected.errors.contains(unchanged)) {
        QCOMPARE(folder.commands(), QStringList{});
    }
}

void CtlScenariosTest::everyScenarioIsInTheTable()
{
    QStringList inTable;
    for (const Deviation &each : deviations()) {
        inTable.append(each.scenario);
    }
    inTable.removeDuplicates();
    inTable.sort();
    QCOMPARE(inTable, scenarios());
}

void CtlScenariosTest::everyRowOfTheTableIsUsed()
{
    QStringList known;
    for (const Command &command : commands()) {
        known.append(command.name);
    }
    QStringList seen;
    for (const Deviation &each : deviations()) {
        for (const QString &name : each.commands) {
            QVERIFY2(known.contains(name), qPrintable(name));
            const QString place{QString{each.scenario} + ": " + name};
            QVERIFY2(!seen.contains(place), qPrintable(place));
            seen.append(place);
        }
    }
}

#if !defined(Q_OS_WIN)
void CtlScenariosTest::worksWithoutTheExtension()
{
    CtlFolder folder;
    folder.environment.insert("LD_LIBRARY_PATH", SDK_VARIANTS_DIRECTORY "/contract-only");
    QStringList ofHost;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        ofHost.append(port.portName());
    }
    const Outcome ports{folder.run({"ports"})};
    QCOMPARE(ports.output, lines(ofHost));
    QCOMPARE(ports.status, ofHost.isEmpty() ? 3 : 0);
    // Which device is meant is not clear where there is no serial port, or more than one.
    const Outcome unnamed{folder.run({"get", "camera.gamma"})};
    QCOMPARE(unnamed.output, QString{});
    QCOMPARE(unnamed.status, ofHost.size() > 1 ? 2 : 3);
    const Outcome named{folder.run({"--port", "SIM1", "get", "camera.gamma"})};
    QCOMPARE(named.errors, QString{});
    QCOMPARE(named.output, QString{"camera.gamma = 65536  # 1\n"});
    QCOMPARE(named.status, 0);
}
#endif

PILOTEL_TEST_CLASS(CtlScenariosTest)
#include "tst_ctl_scenarios.moc"
