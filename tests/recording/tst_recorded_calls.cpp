// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a recording has of each call, what the program gets, and that nothing is in the way without one.
#include "everyoperation.h"
#include "recordedlines.h"
#include "sdkentry.h"
#include "simulatedcamera.h"
#include "testclass.h"

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#if defined(Q_OS_UNIX)
#include <csignal>
#include <sys/resource.h>
#endif

using namespace veltrix_sdk;

namespace
{

/// A recording beside the simulator's trace, from power-on.
class Recorded
{
public:
    Recorded()
    {
        qputenv("VELTRIX_SIMULATOR_TRACE", trace().toLocal8Bit());
        fault = QString::fromStdString(recording::begin(file().toStdString(), "a test"));
    }
    Recorded(const Recorded &) = delete;
    Recorded &operator=(const Recorded &) = delete;
    ~Recorded()
    {
        recording::end();
        qunsetenv("VELTRIX_SIMULATOR_TRACE");
        veltrix_simulator::Simulator::instance().reset();
    }

    QString file() const { return directory.filePath("calls.recording"); }
    QString trace() const { return directory.filePath("calls.trace"); }

    QString fault;

private:
    const QTemporaryDir directory;
};

/// A device that is open, behind the recording.
struct RecordedCamera : SimulatedCamera
{
    RecordedCamera() : SimulatedCamera{cameraTarget, recording::sdkRoot} {}
};

} // namespace

class RecordedCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyOperationIsThatOfTheTrace_data();
    void everyOperationIsThatOfTheTrace();
    void situationIsThatOfTheTrace_data();
    void situationIsThatOfTheTrace();
    void answersArePassedOn();
    void nullStaysNull();
    void objectsAreKept();
    void logRecordIsInIt();
    void textsArePrivate();
    void wordsAreTold();
    void wordsReachTheLibraryAndTheProgram();
    void withoutARecordingObjectsAreTheLibrarys();
    void afterTheEndObjectsGoOn();
    void headerNamesTheProgram();
#if defined(Q_OS_UNIX)
    void callsGoOnWhenTheDiskIsFull();
#endif
};

void RecordedCallsTest::everyOperationIsThatOfTheTrace_data()
{
    QTest::addColumn<int>("place");
    for (std::size_t place{0}; place < everyOperation().size(); ++place) {
        // The others call the library itself.
        const QString name{everyOperation()[place].name};
        if (name != "get_instance" && name != "log") {
            QTest::addRow("%s", everyOperation()[place].name) << static_cast<int>(place);
        }
    }
}

void RecordedCallsTest::everyOperationIsThatOfTheTrace()
{
    QFETCH(const int, place);
    const OperationCall &operation = everyOperation()[static_cast<std::size_t>(place)];
    const Recorded recorded;
    QCOMPARE(recorded.fault, QString{});
    RecordedCamera c;
    operation.call(c);
    const QStringList calls{callsIn(recorded.file())};
    QCOMPARE(calls, callsIn(recorded.trace()));
    QCOMPARE(calls.size(), 6);
    QVERIFY2(calls.last().contains(QString{R"("operation":"%1",)"}.arg(operation.name)),
             qPrintable(calls.last()));
    QVERIFY(calls.last().contains(R"("target":1,)"));
}

void RecordedCallsTest::situationIsThatOfTheTrace_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("part");
    const auto row = [](const char *name, Action action, const char *part) {
        QTest::addRow("%s", name) << action << QString{part};
    };
    using C = SimulatedCamera;

    row(
        "refused", [](C &c) { c.device->setGamma(0xFFFFFFFF); }, R"("result":false)");
    row(
        "no port", [](C &c) { c.manager->openDevice("nowhere"); }, R"(["nowhere"],"result":null)");
    row(
        "null for a name", [](C &c) { c.manager->openDevice(nullptr); }, R"([null],"result":null)");
    row(
        "null for a record", [](C &c) { c.device->getTemperatures(nullptr); }, R"([null],"result":false)");
    row(
        "null for a number", [](C &c) { c.device->connect(nullptr); }, R"([null],"result":0)");
    row(
        "null for a manager", [](C &c) { c.sdk.releaseDeviceManager(nullptr); }, R"("arguments":[null])");
    row(
        "null for a device", [](C &c) { c.manager->closeDevice(nullptr); }, R"("arguments":[null])");
    row(
        "a record that the caller fills in",
        [](C &c) {
            Warp warp{};
            warp.stream = 2;
            c.device->getWarp(&warp);
        },
        R"("arguments":[2],"result":true,"outputs":{"a11")");
    row(
        "no numbers of JSON",
        [](C &c) {
            c.simulator.set("camera.temperatures.sensorMillikelvin",
                            std::numeric_limits<double>::quiet_NaN());
            c.simulator.set("camera.temperatures.fpgaMillikelvin", -std::numeric_limits<double>::infinity());
            Temperatures temperatures{};
            c.device->getTemperatures(&temperatures);
        },
        R"({"sensorMillikelvin":"nan","fpgaMillikelvin":"-inf"})");
    row(
        "no UTF-8, and a control character", [](C &c) { c.manager->openDevice("a\xFFz\n"); },
        "a\xEF\xBF\xBDz\\n");
    row(
        "other unit, and one that there is not",
        [](C &c) {
            c.device->setTarget(0);
            c.device->setTarget(7);
            c.device->getGamma();
        },
        R"("target":0,"operation":"getGamma")");
    row(
        "not open",
        [](C &c) {
            c.manager->closeDevice(c.device);
            c.device->setGamma(65536);
        },
        R"("notOpen":true)");
    row(
        "not held",
        [](C &c) {
            c.sdk.releaseDeviceManager(&c.manager);
            c.manager->openDevice("SIM1");
        },
        R"("notHeld":true)");
    row(
        "no manager",
        [](C &c) {
            c.sdk.releaseDeviceManager(&c.manager);
            c.simulator.addFault({"getDeviceManager"});
            c.sdk.getDeviceManager();
        },
        R"("operation":"getDeviceManager","arguments":[],"result":null)");
    row(
        "opened once more",
        [](C &c) {
            c.manager->closeDevice(c.device);
            c.device = c.manager->openDevice("SIM1");
            c.device->getGamma();
        },
        R"("target":0,"operation":"getGamma","arguments")");
    row(
        "opened while it is open",
        [](C &c) {
            c.manager->openDevice("SIM1");
            c.device->getGamma();
        },
        R"("target":1,"operation":"getGamma","arguments")");
}

void RecordedCallsTest::situationIsThatOfTheTrace()
{
    QFETCH(const Action, action);
    QFETCH(const QString, part);
    const Recorded recorded;
    RecordedCamera c;
    action(c);
    const QStringList calls{callsIn(recorded.file())};
    QCOMPARE(calls, callsIn(recorded.trace()));
    QVERIFY2(calls.size() > 5 && calls.last().contains(part), qPrintable(calls.last()));
}

void RecordedCallsTest::answersArePassedOn()
{
    const Recorded recorded;
    RecordedCamera c;
    const auto answer = [&](const char *operation, std::vector<veltrix_simulator::Value> values) {
        veltrix_simulator::Fault fault;
        fault.operation = operation;
        fault.answer = std::move(values);
        c.simulator.addFault(fault);
    };
    answer("connect", {std::int64_t{2}, std::int64_t{255}});
    answer("getTemperatures", {true, std::numeric_limits<double>::quiet_NaN(), -0.0});
    answer("getDefaultGamma", {-std::numeric_limits<double>::infinity()});
    answer("getCommunicationType", {std::string{"\x01 CAN"}});
    std::uint8_t identity{0};
    QCOMPARE(c.device->connect(&identity), std::uint8_t{2});
    QCOMPARE(identity, std::uint8_t{255});
    Temperatures temperatures{};
    QCOMPARE(c.device->getTemperatures(&temperatures), true);
    QVERIFY(std::isnan(temperatures.sensorMillikelvin));
    QVERIFY(std::signbit(temperatures.fpgaMillikelvin));
    QCOMPARE(c.configuration.getDefaultGamma(), -std::numeric_limits<double>::infinity());
    QCOMPARE(QByteArray{c.configuration.getCommunicationType()}, QByteArray{"\x01 CAN"});
    const EdgeCorrection edge{c.device->getEdgeCorrection()};
    QCOMPARE(edge.gain, 64U);
    QCOMPARE(edge.firstThreshold, 20U);
    QCOMPARE(edge.secondThreshold, 60U);
    QCOMPARE(callsIn(recorded.file()), callsIn(recorded.trace()));
}

void RecordedCallsTest::nullStaysNull()
{
    const Recorded recorded;
    RecordedCamera c;
    for (const char *const operation : {"getConfiguration", "getDeviceManager", "get_instance"}) {
        veltrix_simulator::Fault fault;
        fault.operation = operation;
        fault.answer = {{false}};
        c.simulator.addFault(fault);
    }
    QVERIFY(c.sdk.getConfiguration() == nullptr);
    QVERIFY(c.sdk.getDeviceManager() == nullptr);
    QVERIFY(recording::sdkRoot() == nullptr);
    QVERIFY(c.manager->openDevice("nowhere") == nullptr);
    QCOMPARE(callsIn(recorded.file()), callsIn(recorded.trace()));
    QCOMPARE(wordsIn(recorded.file()).size(), 1);
}

void RecordedCallsTest::objectsAreKept()
{
    const Recorded recorded;
    RecordedCamera c;
    QCOMPARE(recording::sdkRoot(), &c.sdk);
    QCOMPARE(c.sdk.getConfiguration(), &c.configuration);
    QCOMPARE(c.sdk.getDeviceManager(), c.manager);
    c.manager->closeDevice(c.device);
    QCOMPARE(c.manager->openDevice("SIM1"), c.device);
    QVERIFY(&c.sdk != VeltrixSdk::get_instance());
    // The simulator leaves the caller's pointer.
    IDeviceManager *const manager{c.manager};
    c.sdk.releaseDeviceManager(&c.manager);
    QCOMPARE(c.manager, manager);
}

void RecordedCallsTest::logRecordIsInIt()
{
    const Recorded recorded;
    const RecordedCamera c;
    recording::LogRecord{severity_warning}.stream()
        << std::string("\"a\"\n\0", 5) << "b" << static_cast<const char *>(nullptr);
    const QStringList calls{callsIn(recorded.file())};
    QCOMPARE(calls, callsIn(recorded.trace()));
    QCOMPARE(calls.last(),
             QString{R"({"interface":"log","target":1,"operation":"log","arguments":[3,"\"a\"\n\u0000b"]})"});
}

void RecordedCallsTest::textsArePrivate()
{
    qputenv("HOME", "/home/of/mary");
    qputenv("USER", "mmoore");
    const Recorded recorded;
    RecordedCamera c;
    c.simulator.set("configuration.communicationType", std::string{"mmoore"});
    c.manager->openDevice("/dev/ttyUSB0");
    QCOMPARE(QByteArray{c.configuration.getCommunicationType()}, QByteArray{"mmoore"});
    recording::LogRecord{severity_info}.stream() << "ALTERNATIVE SERIAL PORT : "
                                                 << "/home/of/mary/port";
    recording::LogRecord{severity_info}.stream() << "of mmoore";
    const QStringList calls{callsIn(recorded.file()).mid(5)};
    QCOMPARE(calls.size(), 4);
    QVERIFY(calls[0].endsWith(R"("arguments":["ttyUSB0"],"result":null})"));
    // What the device says of the link is compared when the recording is played.
    QVERIFY(calls[1].endsWith(R"("arguments":[],"result":"mmoore"})"));
    QVERIFY(calls[2].endsWith(R"("arguments":[2,"ALTERNATIVE SERIAL PORT : port"]})"));
    QVERIFY(calls[3].endsWith(R"("arguments":[2,"of USER"]})"));
    // What the library gets is what the program says.
    const QStringList got{callsIn(recorded.trace()).mid(5)};
    QVERIFY(got[0].contains(R"(["/dev/ttyUSB0"])"));
    QVERIFY(got[2].contains("/home/of/mary/port"));
}

void RecordedCallsTest::wordsAreTold()
{
    const Recorded recorded;
    const RecordedCamera c;
    const QString all{
        R"({"words":{"gskDefault":2,"gmsDefault":1024,"gfidDefault":250,"tintDefault":10,"gskMinimum":1,)"
        R"("gskMaximum":3,"gfidMinimum":0,"gfidMaximum":1000,"tintMinimum":0,"tintMaximum":20,"gmsMinimum":0,)"
        R"("gmsMaximum":4095}})"};
    QCOMPARE(wordsIn(recorded.file()), QStringList{all});
    c.configuration.words.gfidDefault = -7;
    c.configuration.words.gskDefault = 3;
    c.configuration.words.gmsDefault = 1024; // As it is.
    c.device->getGsk();
    c.device->getGsk();
    const QString written{
        R"({"interface":"configuration","operation":"write","arguments":[{"gskDefault":3,"gfidDefault":-7}]})"};
    QCOMPARE(wordsIn(recorded.file()), (QStringList{all, written}));
    c.configuration.words.gmsMaximum = 5;
    recording::LogRecord{severity_info}.stream() << "a record";
    const QString next{R"({"interface":"configuration","operation":"write","arguments":[{"gmsMaximum":5}]})"};
    QCOMPARE(wordsIn(recorded.file()), (QStringList{all, written, next}));
    QCOMPARE(callsIn(recorded.file()), callsIn(recorded.trace()));
    QFile file{recorded.file()};
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines{file.readAll().split('\n')};
    // Before the call that comes next.
    QVERIFY(lines[lines.size() - 2].contains("a record"));
    QVERIFY(lines[lines.size() - 3].contains(
        R"("microseconds":0,"interface":"configuration","operation":"write")"));
}

void RecordedCallsTest::wordsReachTheLibraryAndTheProgram()
{
    const Recorded recorded;
    const RecordedCamera c;
    ConfigurationWords &library = VeltrixSdk::get_instance()->getConfiguration()->words;
    QVERIFY(&library != &c.configuration.words);
    c.configuration.words.gskMaximum = 9;
    library.gskMinimum = 0;
    QCOMPARE(c.device->setGsk(8), true);
    QCOMPARE(library.gskMaximum, 9);
    QCOMPARE(library.gskMinimum, 0);
    QCOMPARE(c.configuration.words.gskMinimum, 0);
    c.configuration.words.gskDefault = 5;
    QCOMPARE(c.configuration.getDefaultGsk(), 5);
    // What the library has written is no writing of the program.
    QCOMPARE(wordsIn(recorded.file()).filter("gskMinimum").size(), 1);
}

void RecordedCallsTest::withoutARecordingObjectsAreTheLibrarys()
{
    QCOMPARE(recording::sdkRoot(), VeltrixSdk::get_instance());
    QCOMPARE(recording::begin({}, "a test"), std::string{});
    QCOMPARE(recording::sdkRoot(), VeltrixSdk::get_instance());
    QVERIFY(!recording::begin("missing/calls.recording", "a test").empty());
    QCOMPARE(recording::sdkRoot(), VeltrixSdk::get_instance());
    const SimulatedCamera c;
    const SimulatedCamera same{cameraTarget, recording::sdkRoot};
    QCOMPARE(&same.sdk, &c.sdk);
    QCOMPARE(&same.configuration, &c.configuration);
    QCOMPARE(same.manager, c.manager);
    QCOMPARE(same.device, c.device);
    recording::LogRecord{severity_info}.stream() << "text" << std::string{" and text"};
    QCOMPARE(same.lastCall(), QString{R"(log(2, "text and text"))"});
}

void RecordedCallsTest::afterTheEndObjectsGoOn()
{
    const Recorded recorded;
    const RecordedCamera c;
    recording::end();
    const qsizetype calls{callsIn(recorded.file()).size()};
    QCOMPARE(c.device->setGamma(70'000), true);
    QCOMPARE(c.device->getGamma(), 70'000U);
    QCOMPARE(qsizetype{callsIn(recorded.file()).size()}, calls);
    QCOMPARE(recording::sdkRoot(), VeltrixSdk::get_instance());
}

void RecordedCallsTest::headerNamesTheProgram()
{
    const Recorded recorded;
    QCOMPARE(headerOf(recorded.file()), QString{R"({"trace":1,"program":"a test )" PROJECT_VERSION R"("})"});
}

#if defined(Q_OS_UNIX)
void RecordedCallsTest::callsGoOnWhenTheDiskIsFull()
{
    const Recorded recorded;
    const RecordedCamera c;
    const QStringList calls{callsIn(recorded.file())};
    // No file may become longer than the recording is.
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit full{static_cast<rlim_t>(QFile{recorded.file()}.size()), limit.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &full), 0);
    const bool isSet{c.device->setGamma(70'000)};
    const bool isSetAgain{c.device->setGamma(80'000)};
    c.configuration.words.gskDefault = 5;
    const auto gskDefault = c.configuration.getDefaultGsk();
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    std::signal(SIGXFSZ, before);
    QVERIFY(isSet);
    QVERIFY(isSetAgain);
    // What is set in place reaches the library as well.
    QCOMPARE(gskDefault, 5);
    QCOMPARE(c.device->getGamma(), 80'000U);
    QCOMPARE(callsIn(recorded.file()), calls);
}
#endif

PILOTEL_TEST_CLASS(RecordedCallsTest)
#include "tst_recorded_calls.moc"
