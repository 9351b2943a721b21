// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A scenario that plays a recording: what is answered, and what becomes of a call that the recording does not
// have.
#include "contents.h"
#include "scenariocamera.h"
#include "scenarios/scenariolibrary.h"
#include "testclass.h"
#include "unreadablefile.h"
#include "veltrix_sdk/records.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QIODevice>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

using namespace veltrix_simulator;

namespace
{

const QByteArray header{R"({"trace":1,"program":"pilotel 1.0.0","time":"2026-03-14T09:26:53.000000Z"})"
                        "\n"};

QByteArray line(const QByteArray &rest, int microseconds = 3)
{
    return R"({"time":"2026-03-14T09:26:53.590112Z","microseconds":)" + QByteArray::number(microseconds) +
           ',' + rest + "}\n";
}

/// A call of the device, whose parts are as they stand in the file.
QByteArray call(const QByteArray &operation, const QByteArray &arguments, const QByteArray &result,
                const QByteArray &outputs = {}, int target = 1)
{
    return line(R"("interface":"device","target":)" + QByteArray::number(target) + R"(,"operation":")" +
                operation + R"(","arguments":[)" + arguments + R"(],"result":)" + result +
                (outputs.isEmpty() ? "" : R"(,"outputs":{)" + outputs + '}'));
}

QByteArray opening(const QByteArray &port, const QByteArray &result)
{
    return line(R"("interface":"manager","target":0,"operation":"openDevice","arguments":[")" + port +
                R"("],"result":)" + result);
}

const QByteArray opened{opening("COM7", R"("device")")};
const QByteArray simulated{"missingCalls = \"simulate\"\n"};

/// A recording with a scenario that plays it, and a log of what is told.
class Session
{
public:
    explicit Session(const QByteArray &lines, const QByteArray &keys = {})
    {
        write(QStringLiteral("session.trace"), lines);
        write(QStringLiteral("played.toml"), "recording = \"session.trace\"\n" + keys);
        qputenv("VELTRIX_SIMULATOR_LOG", path(QStringLiteral("log")).toUtf8());
    }
    ~Session()
    {
        simulation().reset();
        qunsetenv("VELTRIX_SIMULATOR_LOG");
    }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    QString path(const QString &name) const { return directory.filePath(name); }

    std::variant<Scenario, std::string> find() const
    {
        return findScenario(path(QStringLiteral("played.toml")).toStdString());
    }

    Scenario scenario() const { return std::get<Scenario>(find()); }

    /// What is wrong with it; empty when it can be played.
    QString refusal() const
    {
        const auto found = find();
        const auto *const reason = std::get_if<std::string>(&found);
        return reason == nullptr ? QString{} : QString::fromStdString(*reason).remove(directory.path() + '/');
    }

    /// The warnings in the log, without their times and without the folder.
    QStringList told() const
    {
        QStringList lines;
        for (const QByteArray &each : contentOf(path(QStringLiteral("log"))).split('\n')) {
            const QString text{QString::fromUtf8(each)};
            const QString mark{QStringLiteral(" warning: ")};
            if (text.contains(mark)) {
                lines.append(text.mid(text.indexOf(mark) + mark.size()).remove(directory.path() + '/'));
            }
        }
        return lines;
    }

private:
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file{path(name)};
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), static_cast<qint64>(bytes.size()));
    }

    QTemporaryDir directory;
};

QString held(const ScenarioCamera &c, const char *key)
{
    const Value value{c.simulation.state.get(key)};
    if (const auto *const text = std::get_if<std::string>(&value)) {
        return QString::fromStdString(*text);
    }
    if (const auto *const flag = std::get_if<bool>(&value)) {
        return *flag ? QStringLiteral("true") : QStringLiteral("false");
    }
    if (const auto *const integer = std::get_if<std::int64_t>(&value)) {
        return QString::number(*integer);
    }
    return QString::number(std::get<double>(value));
}

} // namespace

class RecordingPlayerTest : public QObject
{
    Q_OBJECT

private slots:
    void answersComeInTheirOrder();
    void argumentsAndUnitTellCallsApart();
    void unitThatDoesNotExistIsPlayed();
    void unitThatDoesNotExistIsLeftByAMissingCall();
    void whatIsMissingSetsNothing();
    void nothingElseIsAnswered();
    void callThatReachedNothingAnswersNothing();
    void whatWasSetIsSet();
    void whatWasReadIsKnown_data();
    void whatWasReadIsKnown();
    void whatNoUnitHasIsAnsweredAndTeachesNothing();
    void whatWasRefusedTeachesNothing();
    void missingCallIsRefused();
    void missingCallIsSimulated();
    void whatIsSetBeyondIsReadBack();
    void missingCallIsToldOnce();
    void endOfTheRecordingIsTold();
    void whatAnswersNothingIsNeverRefused();
    void portsAreThoseOfTheRecording();
    void portsAreNoMoreThan256();
    void refusedPortIsRefused();
    void withoutPortsThereIsTheUsualOne();
    void wordsComeWithTheConfiguration();
    void recordedTimePasses();
    void cutRecordingIsToldAndPlayed();
    void wrongRecordingIsNamed_data();
    void wrongRecordingIsNamed();
    void fileThatIsNotThereIsNamed();
#if defined(Q_OS_LINUX)
    void fileThatCannotBeReadIsNamed();
#endif
    void fileThatIsTooLargeIsNamed();
    void noMoreThanAThousandCallsAreTold();
    void recordingBeginsAnewWithThePower();
};

void RecordingPlayerTest::answersComeInTheirOrder()
{
    const Session session{header + opened + call("getGamma", "", "70000") + call("getClhe", "", "1") +
                          call("getGamma", "", "80000")};
    const ScenarioCamera c{session.scenario()};
    QCOMPARE(c.device.getGamma(), 70000U);
    QCOMPARE(c.device.getGamma(), 80000U);
    QCOMPARE(c.device.getClhe(), 1U);
    QCOMPARE(session.told(), QStringList{});
}

void RecordingPlayerTest::argumentsAndUnitTellCallsApart()
{
    const Session session{header + opened + call("getRoiX1", "0", "10") + call("getRoiX1", "1", "11") +
                          call("getRoiX1", "0", "20", {}, 0) + call("setTarget", "0", "true")};
    const ScenarioCamera c{session.scenario()};
    QCOMPARE(c.device.getRoiX1(1), 11U);
    QCOMPARE(c.device.getRoiX1(0), 10U);
    QVERIFY(c.device.setTarget(0));
    QCOMPARE(c.device.getRoiX1(0), 20U);
}

void RecordingPlayerTest::unitThatDoesNotExistIsPlayed()
{
    const Session session{header + opened + call("setTarget", "2", "true") +
                          call("getGamma", "", "70000", {}, 2) + call("setGamma", "80000", "true", {}, 2) +
                          call("setTarget", "1", "true", {}, 2) + call("getGamma", "", "90000")};
    const ScenarioCamera c{session.scenario()};
    QVERIFY(c.device.setTarget(2));
    QCOMPARE(c.device.getGamma(), 70000U);
    QVERIFY(c.device.setGamma(80000));
    QCOMPARE(held(c, "camera.gamma"), "65536");
    QVERIFY(c.device.setTarget(1));
    QCOMPARE(c.device.getGamma(), 90000U);
    QCOMPARE(session.told(), QStringList{});
}

void RecordingPlayerTest::unitThatDoesNotExistIsLeftByAMissingCall()
{
    const Session session{header + opened + call("setTarget", "2", "true") +
                              call("getGamma", "", "70000", {}, 2) + call("getGamma", "", "90000"),
                          simulated};
    const ScenarioCamera c{session.scenario()};
    QVERIFY(c.device.setTarget(2));
    QCOMPARE(c.device.getGamma(), 70000U);
    QVERIFY(c.device.setTarget(1));
    QCOMPARE(c.device.getGamma(), 90000U);
    QVERIFY(c.device.setGamma(80000));
    QCOMPARE(held(c, "camera.gamma"), "80000");
}

void RecordingPlayerTest::whatIsMissingSetsNothing()
{
    // A library that takes a null for a record, and says that all was well.
    const Session session{header + opened + call("configureZoom", "null", "true")};
    const ScenarioCamera c{session.scenario()};
    const QString before{held(c, "camera.zoom.factor")};
    QVERIFY(c.device.configureZoom(nullptr));
    QCOMPARE(held(c, "camera.zoom.factor"), before);
    QCOMPARE(session.told(), QStringList{});
}

void RecordingPlayerTest::nothingElseIsAnswered()
{
    const Session session{
        header + opened + call("getVideoMode", "", "false", R"("mode":7)") +
        call("getEdgeCorrection", "", R"({"type":1,"gain":2,"firstThreshold":3,"secondThreshold":4})") +
        call("getTemperatures", "", "true", R"("sensorMillikelvin":"nan","fpgaMillikelvin":1.5)")};
    const ScenarioCamera c{session.scenario()};
    std::uint8_t mode{99};
    QVERIFY(!c.device.getVideoMode(&mode));
    QCOMPARE(mode, std::uint8_t{7});
    QCOMPARE(c.device.getEdgeCorrection().secondThreshold, 4U);
    veltrix_sdk::Temperatures temperatures{};
    QVERIFY(c.device.getTemperatures(&temperatures));
    QVERIFY(qIsNaN(temperatures.sensorMillikelvin));
    QCOMPARE(temperatures.fpgaMillikelvin, 1.5F);
}

void RecordingPlayerTest::callThatReachedNothingAnswersNothing()
{
    QByteArray notOpen{call("getGamma", "", "0")};
    notOpen.replace(R"("arguments")", R"("notOpen":true,"arguments")");
    const Session session{header + notOpen + opened + call("getGamma", "", "70000")};
    const ScenarioCamera c{session.scenario()};
    QCOMPARE(c.device.getGamma(), 70000U);
}

void RecordingPlayerTest::whatWasSetIsSet()
{
    // The real camera took a gamma that the simulated one would refuse.
    const Session session{header + opened + call("setGamma", "7", "true") +
                          call("setRoiX1", "30,2,true,false,true", "true") +
                          call("setWarp", "1,5,0,0,5,0,0", "true") + call("setClhe", "3", "false")};
    const ScenarioCamera c{session.scenario()};
    QVERIFY(c.device.setGamma(7));
    QVERIFY(c.device.setRoiX1(30, 2, true, false, true));
    QVERIFY(c.device.setWarp(1, 5, 0, 0, 5, 0, 0));
    QVERIFY(!c.device.setClhe(3));
    QCOMPARE(held(c, "camera.gamma"), "7");
    QCOMPARE(held(c, "camera.roi2.x1"), "30");
    QCOMPARE(held(c, "camera.roi1ExcEnabled"), "true");
    QCOMPARE(held(c, "camera.warp1.a22"), "5");
    QCOMPARE(held(c, "camera.clhe"), "2000");
}

void RecordingPlayerTest::whatWasReadIsKnown_data()
{
    QTest::addColumn<QByteArray>("recorded");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *key, const char *value, const QByteArray &recorded) {
        QTest::newRow(key) << recorded << QByteArray{key} << QString::fromUtf8(value);
    };
    row("camera.gamma", "70000", call("getGamma", "", "70000"));
    row("camera.polarity", "true", call("getPolarity", "", "true"));
    row("camera.videoMode", "1", call("getVideoMode", "", "true", R"("mode":1)"));
    row("camera.identity", "9", call("connect", "", "1", R"("identity":9)"));
    row("camera.ahcGainLimitation.white", "7",
        call("getAhcGainLimitation", "", "1", R"("black":6,"white":7)"));
    row("camera.edgeCorrection.gain", "5",
        call("getEdgeCorrection", "", R"({"type":1,"gain":5,"firstThreshold":3,"secondThreshold":4})"));
    row("camera.roi3.y2", "77", call("getRoiY2", "3", "77"));
    row("camera.warp2.a23", "4.5",
        call("getWarp", "2", "true", R"("a11":1,"a21":0,"a12":0,"a22":1,"a13":0,"a23":4.5)"));
    const auto ofConfiguration = [](const char *operation, const char *result) {
        return line(R"("interface":"configuration","target":0,"operation":")" + QByteArray{operation} +
                    R"(","arguments":[],"result":)" + result);
    };
    row("configuration.defaultGamma", "1.5", ofConfiguration("getDefaultGamma", "1.5"));
    row("configuration.gskDefault", "3", ofConfiguration("getDefaultGsk", "3"));
    row("configuration.communicationType", "USB", ofConfiguration("getCommunicationType", R"("USB")"));
}

void RecordingPlayerTest::whatWasReadIsKnown()
{
    QFETCH(QByteArray, recorded);
    QFETCH(QByteArray, key);
    QFETCH(QString, value);
    const Session session{header + opened + recorded};
    const ScenarioCamera c{session.scenario()};
    QVERIFY(held(c, key.constData()) != value);
    std::uint8_t byte{};
    veltrix_sdk::AhcGainLimitation limitation{};
    veltrix_sdk::Warp warp{};
    warp.stream = 2;
    c.device.getGamma();
    c.device.getPolarity();
    c.device.getVideoMode(&byte);
    c.device.connect(&byte);
    c.device.getAhcGainLimitation(&limitation);
    c.device.getEdgeCorrection();
    c.device.getRoiY2(3);
    c.device.getWarp(&warp);
    c.configuration.getDefaultGamma();
    c.configuration.getDefaultGsk();
    c.configuration.getCommunicationType();
    QCOMPARE(held(c, key.constData()), value);
}

void RecordingPlayerTest::whatNoUnitHasIsAnsweredAndTeachesNothing()
{
    // Another camera has more regions and streams.
    const Session session{header + opened + call("getRoiX1", "4", "77") +
                          call("getWarp", "3", "true", R"("a11":5,"a21":0,"a12":0,"a22":1,"a13":0,"a23":0)")};
    const ScenarioCamera c{session.scenario()};
    const std::vector<std::string> keys{State::keys()};
    std::vector<Value> before;
    before.reserve(keys.size());
    for (const std::string &key : keys) {
        before.push_back(c.simulation.state.get(key));
    }
    QCOMPARE(c.device.getRoiX1(4), 77U);
    veltrix_sdk::Warp warp{};
    warp.stream = 3;
    QVERIFY(c.device.getWarp(&warp));
    QCOMPARE(warp.a11, 5.0F);
    for (std::size_t place{0}; place < keys.size(); ++place) {
        QVERIFY2(c.simulation.state.get(keys[place]) == before[place], keys[place].c_str());
    }
    QCOMPARE(session.told(), QStringList{});
}

void RecordingPlayerTest::whatWasRefusedTeachesNothing()
{
    const Session session{header + opened + call("getVideoMode", "", "false", R"("mode":2)") +
                          call("connect", "", "2", R"("identity":9)")};
    const ScenarioCamera c{session.scenario()};
    std::uint8_t byte{};
    QVERIFY(!c.device.getVideoMode(&byte));
    QCOMPARE(c.device.connect(&byte), std::uint8_t{2});
    QCOMPARE(held(c, "camera.videoMode"), "0");
    QCOMPARE(held(c, "camera.identity"), "21");
}

void RecordingPlayerTest::missingCallIsRefused()
{
    const Session session{header + opened + call("getGamma", "", "70000")};
    const ScenarioCamera c{session.scenario()};
    QVERIFY(!c.device.setGamma(65536));
    std::uint8_t mode{99};
    QVERIFY(!c.device.getVideoMode(&mode));
    QCOMPARE(mode, std::uint8_t{0});
    QCOMPARE(c.configuration.getCommunicationType(), "");
    QVERIFY(c.simulation.sdk.getDeviceManager() == nullptr);
    QVERIFY(c.simulation.root() != nullptr);
    QCOMPARE(held(c, "camera.gamma"), "65536");
}

void RecordingPlayerTest::missingCallIsSimulated()
{
    const Session session{header + opened + call("getGamma", "", "70000"), simulated + "camera.clhe = 5\n"};
    const ScenarioCamera c{session.scenario()};
    QCOMPARE(c.device.getGamma(), 70000U);
    QCOMPARE(c.device.getGamma(), 70000U);
    QCOMPARE(c.device.getClhe(), 5U);
    QVERIFY(!c.device.setGamma(1));
    QVERIFY(c.simulation.sdk.getDeviceManager() != nullptr);
}

void RecordingPlayerTest::whatIsSetBeyondIsReadBack()
{
    const Session session{header + opened + call("getGamma", "", "70000") + call("getGamma", "", "70000") +
                              call("setGamma", "80000", "true") + call("getGamma", "", "80000") +
                              call("getGamma", "", "80001"),
                          simulated};
    const ScenarioCamera c{session.scenario()};
    QCOMPARE(c.device.getGamma(), 70000U);
    QVERIFY(c.device.setGamma(90000));
    QCOMPARE(c.device.getGamma(), 90000U);
    QVERIFY(c.device.setGamma(80000));
    QCOMPARE(c.device.getGamma(), 80000U);
    QCOMPARE(c.device.getGamma(), 80001U);
}

void RecordingPlayerTest::missingCallIsToldOnce()
{
    const Session session{header + opened + call("getGamma", "", "70000") + call("getClhe", "", "1")};
    const ScenarioCamera c{session.scenario()};
    QCOMPARE(c.device.getGamma(), 70000U);
    for (int time{0}; time < 3; ++time) {
        c.device.getGamma();
        c.device.setGamma(5);
    }
    QCOMPARE(session.told(),
             (QStringList{"session.trace:4: the recording has no further camera.getGamma() here, but "
                          "camera.getClhe(); the call is refused",
                          "session.trace:4: the recording has no camera.setGamma(5) here, but "
                          "camera.getClhe(); the call is refused"}));
}

void RecordingPlayerTest::endOfTheRecordingIsTold()
{
    const Session session{header + opened + call("getGamma", "", "70000"), simulated};
    const ScenarioCamera c{session.scenario()};
    c.device.getGamma();
    c.device.getClhe();
    QCOMPARE(session.told(),
             QStringList{"session.trace:3: the recording has no camera.getClhe() and ends here; the call is "
                         "simulated"});
}

void RecordingPlayerTest::whatAnswersNothingIsNeverRefused()
{
    const Session session{header + opened};
    const ScenarioCamera c{session.scenario()};
    QVERIFY(c.simulation.state.deviceOpen);
    c.manager.closeDevice(&c.device);
    QVERIFY(!c.simulation.state.deviceOpen);
    QCOMPARE(session.told().size(), 1);
}

void RecordingPlayerTest::portsAreThoseOfTheRecording()
{
    const Session session{header + opening("COM3", "null") + opened + opened};
    simulation().start(session.scenario());
    const char *const *const names{simulation().portNames()};
    QCOMPARE(names[0], "COM3");
    QCOMPARE(names[1], "COM7");
    QVERIFY(names[2] == nullptr);
}

void RecordingPlayerTest::portsAreNoMoreThan256()
{
    QByteArray openings;
    for (int port{0}; port < 300; ++port) {
        openings += opening("P" + QByteArray::number(port), "null");
    }
    const Session session{header + openings +
                          line(R"("interface":"manager","target":0,)"
                               R"("operation":"openDevice","arguments":[null],"result":null)")};
    simulation().start(session.scenario());
    const char *const *const names{simulation().portNames()};
    QCOMPARE(names[255], "P255");
    QVERIFY(names[256] == nullptr);
}

void RecordingPlayerTest::refusedPortIsRefused()
{
    const Session session{header + opening("COM7", "null") + opened};
    const ScenarioCamera c{session.scenario()};
    QVERIFY(!c.simulation.state.deviceOpen);
    QVERIFY(c.manager.openDevice("COM7") != nullptr);
    QVERIFY(c.simulation.state.deviceOpen);
}

void RecordingPlayerTest::withoutPortsThereIsTheUsualOne()
{
    const Session session{header, simulated};
    const ScenarioCamera c{session.scenario()};
    QVERIFY(c.simulation.state.deviceOpen);
    QCOMPARE(simulation().portNames()[0], "SIM1");
}

void RecordingPlayerTest::wordsComeWithTheConfiguration()
{
    const Session session{
        header +
        line(
            R"("interface":"root","target":0,"operation":"getConfiguration","arguments":[],"result":"configuration","outputs":{"words":{"gskMaximum":9}})") +
        opened};
    const ScenarioCamera c{session.scenario()};
    QCOMPARE(c.configuration.words.gskMaximum, 3);
    QVERIFY(c.simulation.sdk.getConfiguration() == &c.configuration);
    QCOMPARE(c.configuration.words.gskMaximum, 9);
    QCOMPARE(c.configuration.words.gskMinimum, 1);
}

void RecordingPlayerTest::recordedTimePasses()
{
    QByteArray slow{call("getGamma", "", "70000")};
    slow.replace(R"("microseconds":3)", R"("microseconds":80000)");
    for (const bool taken : {true, false}) {
        const Session session{header + opened + slow, taken ? "link.kind = \"recorded\"\n" : ""};
        const ScenarioCamera c{session.scenario()};
        QElapsedTimer timer;
        timer.start();
        c.device.getGamma();
        QCOMPARE(timer.elapsed() >= 80, taken);
    }
}

void RecordingPlayerTest::cutRecordingIsToldAndPlayed()
{
    const Session session{header + opened + call("getGamma", "", "70000") + R"({"time")"};
    const ScenarioCamera c{session.scenario()};
    QCOMPARE(c.device.getGamma(), 70000U);
    QCOMPARE(session.told(),
             QStringList{"session.trace:4: the last line is cut; what stands before it is used. Where the "
                         "program did not crash, copy the file again"});
}

void RecordingPlayerTest::wrongRecordingIsNamed_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QByteArray &lines, const QByteArray &keys,
                        const char *message) {
        QTest::newRow(name) << lines << keys << QString::fromUtf8(message);
    };
    row("damaged", header + "{}\n", "",
        R"(session.trace:2: "time" is missing; record the session again, or take this line out)");
    row("empty", "", "", "session.trace:1: the file is empty; name one that a program recorded");
    row("unknown rule", header, R"(missingCalls = "guess")",
        R"(played.toml:2:16: "missingCalls" takes "refuse" or "simulate", not "guess")");
    row("with ports", header, "port = []",
        R"(played.toml:2:8: "port" cannot stand beside a recording, which settles it)");
    row("with faults", header, "[[fault]]\noperation = \"getGamma\"\neffect = \"refuse\"",
        R"(played.toml:2:1: "fault" cannot stand beside a recording, which settles it)");
}

void RecordingPlayerTest::wrongRecordingIsNamed()
{
    QFETCH(QByteArray, lines);
    QFETCH(QByteArray, keys);
    QFETCH(QString, message);
    const Session session{lines, keys};
    QCOMPARE(session.refusal(), message);
}

void RecordingPlayerTest::fileThatIsNotThereIsNamed()
{
    const Session session{header};
    QVERIFY(QFile::remove(session.path(QStringLiteral("session.trace"))));
    QCOMPARE(session.refusal(),
             QStringLiteral("session.trace: there is no such recording; a scenario names it as "
                            "it is seen from the scenario's folder"));
}

#if defined(Q_OS_LINUX)
void RecordingPlayerTest::fileThatCannotBeReadIsNamed()
{
    const Session session{header};
    const QString recording{session.path(QStringLiteral("session.trace"))};
    QVERIFY(QFile::remove(recording));
    QVERIFY(QFile::link(unreadableFile, recording));
    QCOMPARE(session.refusal(),
             QStringLiteral("session.trace:1: the recording cannot be read; give this user the right to"));
}
#endif

void RecordingPlayerTest::fileThatIsTooLargeIsNamed()
{
    const Session session{header};
    QFile file{session.path(QStringLiteral("session.trace"))};
    QVERIFY(file.resize((qint64{512} << 20) + 1));
    QCOMPARE(session.refusal(),
             QStringLiteral("session.trace:1: the recording has more than 512 MiB; play a part of it"));
}

void RecordingPlayerTest::noMoreThanAThousandCallsAreTold()
{
    const Session session{header + opened};
    const ScenarioCamera c{session.scenario()};
    for (std::uint32_t gamma{0}; gamma < 1100; ++gamma) {
        c.device.setGamma(gamma);
    }
    const QStringList told{session.told()};
    QCOMPARE(told.size(), 1001);
    QVERIFY(told[999].contains("camera.setGamma(999)"));
    QCOMPARE(told.last(), QStringLiteral("session.trace:2: more than 1000 different calls are missing; no "
                                         "further ones are told"));
}

void RecordingPlayerTest::recordingBeginsAnewWithThePower()
{
    const Session session{header + opened + call("getGamma", "", "70000")};
    const Scenario scenario{session.scenario()};
    for (int time{0}; time < 2; ++time) {
        const ScenarioCamera c{scenario};
        QCOMPARE(c.device.getGamma(), 70000U);
    }
    simulation().reset();
    const ScenarioCamera c{Scenario{}};
    QCOMPARE(c.device.getGamma(), 65536U);
}

PILOTEL_TEST_CLASS(RecordingPlayerTest)
#include "tst_recording_player.moc"
