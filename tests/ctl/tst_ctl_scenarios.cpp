// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every command on each shipped scenario: clear lines, the right exit status, nothing half done.
#include "ctlrun.h"
#include "testclass.h"

#include <QDir>
#include <QFileInfo>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

class CtlScenariosTest : public QObject
{
    Q_OBJECT

private slots:
    void commandEnds_data();
    void commandEnds();
    void everyScenarioIsRun();
};

namespace
{

/// One command on one scenario.
struct ScenarioCommand
{
    const char *scenario;
    QStringList arguments;
    int status;
    QStringList errors; ///< Without the name of the program.
};

const QString noBlendUnit{"No answer from the Blend Unit: look at its power and its cable."};
const QString noCamera{"No answer from the camera: look at its power and its cable."};
const QString unchanged{"Nothing was changed."};
const QString asBefore{"Everything is as it was before."};
const QString noFile{"No file was written."};

const QStringList info{"info"};
const QStringList list{"list"};
const QStringList get{"get", "camera.gamma", "camera.colorLut"};
const QStringList set{"set", "camera.gamma=2.2", "blendUnit.warp0.a11=2"};
const QStringList save{"profile", "save", "new.toml"};
const QStringList apply{"profile", "apply", "wanted.toml"};
const QStringList store{"store", "user"};

QVector<ScenarioCommand> scenarioCommands()
{
    const QString gone{"What is on the port SIM1 is no KR camera: its identity is 99 instead of 21."};
    return {
        {"cable-pulled", info, 0, {}},
        {"cable-pulled", list, 3, {noCamera}},
        {"cable-pulled", get, 3, {noCamera}},
        {"cable-pulled", set, 0, {}},
        {"cable-pulled", save, 3, {noCamera}},
        {"cable-pulled", apply, 3, {noCamera}},
        {"cable-pulled", store, 0, {}},
        {"default", info, 0, {}},
        {"default", list, 0, {}},
        {"default", get, 0, {}},
        {"default", set, 0, {}},
        {"default", save, 0, {}},
        {"default", apply, 0, {}},
        {"default", store, 0, {}},
        {"everything-refused", info, 3, {noBlendUnit, noCamera}},
        {"everything-refused", list, 3, {noBlendUnit}},
        {"everything-refused", get, 3, {noCamera}},
        {"everything-refused", set, 3, {noCamera}},
        {"everything-refused", save, 3, {noBlendUnit}},
        {"everything-refused", apply, 3, {noBlendUnit}},
        {"everything-refused", store, 3, {noBlendUnit}},
        {"flaky-link", list, 1, {"camera.sensorSerialNumber answers 0; 1 or more is allowed"}},
        {"flaky-link", get, 0, {}},
        {"flaky-link", set, 0, {}},
        {"flaky-link", save, 1, {"blendUnit.warp1 answers false", noFile}},
        {"forgetful", info, 0, {}},
        {"forgetful",
         set,
         1,
         {"camera.gamma = 144179 (2.2) was sent, but the camera has 65536 (1)", asBefore}},
        {"forgetful",
         apply,
         1,
         {"camera.gamma = 144179 (2.2) was sent, but the camera has 65536 (1)", asBefore}},
        {"forgetful", save, 0, {}},
        {"garbage", set, 1, {"camera.gamma answers 2145504185; 32768 to 163840 is allowed", unchanged}},
        {"garbage", store, 0, {}},
        {"no-expert-mode", apply, 0, {}},
        {"no-ports",
         {"--port", "SIM1", "info"},
         3,
         {"No device opens on the port SIM1. Is it the right one, and does no other program hold it?"}},
        {"refused-warp", set, 1, {"blendUnit.warp0.a11 = 2 is refused by the Blend Unit.", asBefore}},
        {"refused-warp", apply, 1, {"blendUnit.warp0.a11 = 2 is refused by the Blend Unit.", asBefore}},
        {"silent-blend-unit", info, 3, {noBlendUnit}},
        {"silent-blend-unit", list, 3, {noBlendUnit}},
        {"silent-blend-unit", get, 0, {}},
        {"silent-blend-unit", set, 3, {noBlendUnit}},
        {"silent-blend-unit", save, 3, {noBlendUnit}},
        {"silent-blend-unit", apply, 3, {noBlendUnit}},
        {"silent-blend-unit", store, 3, {noBlendUnit}},
        {"silent-camera", info, 3, {noCamera}},
        {"silent-camera", list, 3, {noCamera}},
        {"silent-camera", get, 3, {noCamera}},
        {"silent-camera", set, 3, {noCamera}},
        {"silent-camera", save, 3, {noCamera}},
        {"silent-camera", apply, 3, {noCamera}},
        {"silent-camera", store, 3, {noCamera}},
        {"slow-link", set, 0, {}},
        {"warming-up", info, 0, {}},
        {"warming-up", save, 0, {}},
        {"wrong-answers",
         list,
         1,
         {"blendUnit.videoMode answers 9; 0 to 2 is allowed",
          "camera.frameRate answers 15; 9, 25, 30, 50 or 60 is allowed"}},
        {"wrong-answers",
         {"set", "camera.tint=5", "camera.clhe=5"},
         1,
         {"camera.clhe = 5 is refused by the camera.",
          "NOT PUT BACK: camera.tint was 10; it is 5, and setting it is refused"}},
        {"wrong-answers",
         {"set", "camera.clhe=5"},
         1,
         {"camera.clhe = 5 is refused by the camera.", asBefore}},
        {"wrong-identity", info, 3, {gone}},
        {"wrong-identity", list, 3, {gone}},
        {"wrong-identity", set, 3, {gone}},
        {"wrong-identity", save, 3, {gone}},
    };
}

} // namespace

Q_DECLARE_METATYPE(ScenarioCommand)

void CtlScenariosTest::commandEnds_data()
{
    QTest::addColumn<ScenarioCommand>("expected");
    for (const ScenarioCommand &expected : scenarioCommands()) {
        QTest::addRow("%s: %s", expected.scenario, qPrintable(expected.arguments.join(' '))) << expected;
    }
}

void CtlScenariosTest::commandEnds()
{
    QFETCH(const ScenarioCommand, expected);
    CtlFolder folder{expected.scenario};
    folder.write("wanted.toml", "blendUnit.warp0.a11 = 2\ncamera.gamma = 144179\ncamera.colorLut = 1\n");
    const Outcome outcome{folder.run(expected.arguments)};
    QStringList errors;
    for (const QString &error : expected.errors) {
        errors.append("pilotel-ctl: " + error);
    }
    QCOMPARE(outcome.errors, lines(errors));
    QVERIFY(outcome.exited);
    QCOMPARE(outcome.status, expected.status);
    // A profile is whole or not there, and what was opened is closed.
    QCOMPARE(folder.has("new.toml"), expected.arguments == save && expected.status == 0);
    const QStringList calls{folder.calls()};
    if (!calls.filter("setTarget").isEmpty()) {
        QCOMPARE(calls.mid(calls.size() - 2),
                 (QStringList{"closeDevice(\"device\")", "releaseDeviceManager(\"manager\")"}));
    }
}

void CtlScenariosTest::everyScenarioIsRun()
{
    QStringList shipped;
    for (const QFileInfo &file : QDir{SCENARIOS}.entryInfoList({"*.toml"}, QDir::Files)) {
        shipped.append(file.completeBaseName());
    }
    QStringList run;
    for (const ScenarioCommand &each : scenarioCommands()) {
        run.append(each.scenario);
    }
    run.removeDuplicates();
    shipped.sort();
    run.sort();
    QCOMPARE(run, shipped);
}

PILOTEL_TEST_CLASS(CtlScenariosTest)
#include "tst_ctl_scenarios.moc"
