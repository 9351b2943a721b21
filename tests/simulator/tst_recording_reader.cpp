// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Recordings: what their lines say, and what is said of damaged ones.
#include "contents.h"
#include "everyoperation.h"
#include "recordings/recordingreader.h"
#include "simulatedcamera.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <optional>
#include <sstream>
#include <string>
#include <variant>

using namespace veltrix_simulator;

namespace
{

const QByteArray traceHeader{
    R"({"trace":1,"scenario":"default","seed":0,"time":"2026-03-14T09:26:53.000000Z"})"
    "\n"};

/// What is between the time and the end of a line.
QByteArray lineWith(const QByteArray &rest)
{
    return R"({"time":"2026-03-14T09:26:53.590112Z","microseconds":3,)" + rest + "}\n";
}

/// A call of the device on the camera.
QByteArray cameraCall(const QByteArray &operation, const QByteArray &arguments, const QByteArray &rest)
{
    return lineWith(R"("interface":"device","target":1,"operation":")" + operation + R"(","arguments":[)" +
                    arguments + ']' + rest);
}

const QByteArray gammaLine{cameraCall("getGamma", "", R"(,"result":65536)")};

QString textOf(const RecordedLine &read)
{
    if (const auto *const begin = std::get_if<RecordedHeader>(&read)) {
        return QStringLiteral("begins ") + QString::fromStdString(begin->origin);
    }
    if (const auto *const write = std::get_if<RecordedWrite>(&read)) {
        return QStringLiteral("write ") + QString::fromStdString(wordsText(write->words));
    }
    const auto &made = std::get<RecordedCall>(read);
    const QString words{made.words.empty() ? QString{} : ' ' + QString::fromStdString(wordsText(made.words))};
    return QString::fromStdString(callText(made) + answerText(made)) + words;
}

/// Everything that the bytes say, then what ends them: a mistake, or that the last line is cut.
QStringList readingOf(const QByteArray &bytes)
{
    std::istringstream input{bytes.toStdString()};
    RecordingReader reader{input, "session.trace"};
    QStringList texts;
    try {
        while (const std::optional<RecordedLine> read = reader.next()) {
            texts.append(textOf(*read));
        }
        if (const std::optional<std::string> cut = reader.cut()) {
            texts.append(QString::fromStdString(*cut));
        }
    } catch (const RecordingError &error) {
        texts.append(QString::fromStdString(error.message()));
    }
    return texts;
}

const QString cutLine{
    QStringLiteral("session.trace:%1: the last line is cut; what stands before it is used. Where the program "
                   "did not crash, copy the file again")};

} // namespace

class RecordingReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void lineSays_data();
    void lineSays();
    void programIsNamed();
    void timesAreRead();
    void everyOperationReadsAsTheJournalHasIt();
    void damageIsNamed_data();
    void damageIsNamed();
    void fileThatIsNoRecordingIsNamed_data();
    void fileThatIsNoRecordingIsNamed();
    void fileMayBeCutAnywhere();
    void nothingFollowsACutLine();
    void longLineIsRefused();
    void messageIsOneLine();
};

void RecordingReaderTest::lineSays_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const auto says = [](const char *text, const QByteArray &bytes) {
        QTest::newRow(text) << bytes << QString::fromUtf8(text);
    };
    says("getGamma() -> 65536", gammaLine);
    says("setGamma(144179) -> true", cameraCall("setGamma", "144179", R"(,"result":true)"));
    says("setGamma(1) -> false", cameraCall("setGamma", "1", R"(,"result":false)"));
    says("NOT OPEN: getGamma() -> 0", cameraCall("getGamma", "", R"(,"result":0,"notOpen":true)"));
    says("getVideoMode() -> true {mode=2}",
         cameraCall("getVideoMode", "", R"(,"result":true,"outputs":{"mode":2})"));
    says("getWarp(2) -> true {a11=1, a21=0, a12=0, a22=1, a13=-12, a23=0}",
         cameraCall("getWarp", "2",
                    R"(,"result":true,"outputs":{"a11":1,"a21":0,"a12":0,"a22":1,"a13":-12,"a23":0})"));
    says(
        R"(getCommunicationType() -> "")",
        lineWith(
            R"("interface":"configuration","target":0,"operation":"getCommunicationType","arguments":[],"result":null)"));
    says("getVideoMode(null) -> false", cameraCall("getVideoMode", "null", R"(,"result":false)"));
    says(
        "getWarp(1) -> true {a11=1, a21=0.5, a12=nan, a22=inf, a13=-inf, a23=-0}",
        cameraCall(
            "getWarp", "1",
            R"(,"result":true,"outputs":{"a23":-0,"a11":1,"a21":0.5,"a12":"nan","a22":"inf","a13":"-inf"})"));
    says("configureZoom({factor=1.5, xCenter=1, yCenter=2, method=0}) -> true",
         cameraCall("configureZoom", R"({"factor":1.5,"xCenter":1,"yCenter":2,"method":0})",
                    R"(,"result":true)"));
    says("getEdgeCorrection() -> {type=1, gain=2, firstThreshold=3, secondThreshold=43}",
         cameraCall("getEdgeCorrection", "",
                    R"(,"result":{"type":1,"gain":2,"firstThreshold":3,"secondThreshold":43})"));
    says(
        R"(openDevice("SIM1") -> device)",
        lineWith(
            R"("interface":"manager","target":0,"operation":"openDevice","arguments":["SIM1"],"result":"device")"));
    says(
        "openDevice(null) -> null",
        lineWith(
            R"("interface":"manager","target":0,"operation":"openDevice","arguments":[null],"result":null)"));
    says(
        "NOT HELD: closeDevice(device)",
        lineWith(
            R"("interface":"manager","target":0,"operation":"closeDevice","notHeld":true,"arguments":["device"])"));
    says("closeDevice(D2)",
         lineWith(R"("interface":"manager","target":0,"operation":"closeDevice","arguments":["D2"])"));
    says(R"(log(2, "a \"b\"\n"))",
         lineWith(R"("interface":"log","target":0,"operation":"log","arguments":[2,"a \"b\"\n"])"));
    says(
        "getConfiguration() -> configuration {gskMinimum=1, gskMaximum=3}",
        lineWith(
            R"("interface":"root","target":0,"operation":"getConfiguration","arguments":[],"result":"configuration","outputs":{"words":{"gskMaximum":3,"gskMinimum":1}})"));
    says("write {gskMaximum=4}",
         lineWith(
             R"("interface":"configuration","target":0,"operation":"write","arguments":[{"gskMaximum":4}])"));
    says("begins the scenario default", traceHeader);
}

void RecordingReaderTest::lineSays()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(readingOf(traceHeader + bytes).mid(1), QStringList{text});
}

void RecordingReaderTest::programIsNamed()
{
    QCOMPARE(readingOf(R"({"trace":1,"program":"pilotel 1.0.0","time":"2026-03-14T09:26:53Z"})"),
             QStringList{"begins pilotel 1.0.0"});
}

void RecordingReaderTest::timesAreRead()
{
    std::istringstream input{(traceHeader + gammaLine).toStdString()};
    RecordingReader reader{input, "session.trace"};
    QCOMPARE(std::get<RecordedHeader>(*reader.next()).time.count(), 1'773'480'413'000'000);
    const auto read = reader.next();
    QCOMPARE(std::get<RecordedCall>(*read).time.count(), 1'773'480'413'590'112);
    QCOMPARE(std::get<RecordedCall>(*read).took.count(), 3);
    QCOMPARE(reader.line(), std::size_t{2});
}

void RecordingReaderTest::everyOperationReadsAsTheJournalHasIt()
{
    const QTemporaryDir directory;
    const QString name{directory.filePath(QStringLiteral("calls.trace"))};
    qputenv("VELTRIX_SIMULATOR_TRACE", name.toUtf8());
    SimulatedCamera c;
    QStringList journal;
    for (const OperationCall &operation : everyOperation()) {
        operation.call(c);
    }
    for (const Call &made : c.simulator.journal()) {
        journal.append(QString::fromStdString(made.text));
    }
    qunsetenv("VELTRIX_SIMULATOR_TRACE");
    c.simulator.reset();
    QVERIFY(journal.size() >= static_cast<int>(everyOperation().size()));
    const QStringList read{readingOf(contentOf(name))};
    QCOMPARE(read.mid(read.size() - journal.size()), journal);
}

void RecordingReaderTest::damageIsNamed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto says = [](const char *row, const QByteArray &bytes, const QByteArray &reason) {
        QTest::newRow(row) << bytes << QString::fromUtf8(reason);
    };
    says("no JSON", "gamma\n", "the line is no object of JSON");
    says("a list", "[]\n", "the line is no object of JSON");
    says("an empty line", "\n", "the line is no object of JSON");
    says("two objects", "{} {}\n", "the line is no object of JSON");
    says("a zero byte", QByteArray{"{\0}\n", 4}, "the line is no object of JSON");
    says("deep", "[[[[[[[[\n", "the line is nested too deep");
    says("foreign JSON", "{\"name\":\"x\"}\n", R"("name" is unknown here)");
    says("another form", "{\"trace\":2}\n", "its form is not 1, the only one that this program knows");
    says("header without time",
         R"({"trace":1,"scenario":"x"})"
         "\n",
         R"("time" is missing)");
    says("nothing", "{}\n", R"("time" is missing)");
    says("no time",
         R"({"time":"yesterday"})"
         "\n",
         R"("time" is no time such as 2026-03-14T09:26:53.589793Z)");
    says("a month too many",
         R"({"time":"2026-13-14T09:26:53Z"})"
         "\n",
         R"("time" is no time such as 2026-03-14T09:26:53.589793Z)");
    says("time is a number", "{\"time\":1}\n", R"("time" is no text)");
    says("no duration",
         R"({"time":"2026-03-14T09:26:53Z","microseconds":null})"
         "\n",
         R"("microseconds" is no integer from 0 to 31536000000000)");
    says("duration that is a text",
         R"({"time":"2026-03-14T09:26:53Z","microseconds":"3"})"
         "\n",
         R"("microseconds" is no integer from 0 to 31536000000000)");
    says("longer than a year",
         R"({"time":"2026-03-14T09:26:53Z","microseconds":31536000000001})"
         "\n",
         R"("microseconds" is no integer from 0 to 31536000000000)");
    says("negative duration",
         R"({"time":"2026-03-14T09:26:53Z","microseconds":-1})"
         "\n",
         R"("microseconds" is no integer from 0 to 31536000000000)");
    says("no number of a unit", lineWith(R"("target":2147483648)"),
         R"("target" is no integer from -2147483648 to 2147483647)");
    says("operation that is a number", lineWith(R"("target":1,"operation":1)"), R"("operation" is no text)");
    says("operation that does not exist", cameraCall("getGama", "", ""),
         R"(there is no operation "getGama")");
    says("other interface",
         lineWith(R"("interface":"root","target":1,"operation":"getGamma","arguments":[],"result":1)"),
         R"("getGamma" belongs to another "interface")");
    says("no interface", lineWith(R"("target":1,"operation":"getGamma")"), "\"interface\" is missing");
    says("arguments are no list",
         lineWith(R"("interface":"device","target":1,"operation":"getGamma","arguments":1)"),
         R"("arguments" is no list)");
    says("an argument too many", cameraCall("getGamma", "1", R"(,"result":1)"), "\"arguments\" are too many");
    says("an argument too many before an output", cameraCall("getVideoMode", "1", R"(,"result":true)"),
         R"("arguments" are too many)");
    says("an argument too few", cameraCall("setGamma", "", R"(,"result":true)"), "\"arguments\" are too few");
    says("a number out of range", cameraCall("setGamma", "-1", R"(,"result":true)"),
         R"("arguments" takes an integer from 0 to 4294967295)");
    says("no number", cameraCall("setGamma", "null", R"(,"result":true)"),
         R"("arguments" takes an integer from 0 to 4294967295)");
    says("a number of a port",
         lineWith(
             R"("interface":"manager","target":0,"operation":"openDevice","arguments":[1],"result":null)"),
         "an argument is no text");
    says("a number for a record", cameraCall("configureZoom", "1", R"(,"result":true)"),
         R"("arguments" has not the members of its record)");
    says("a fraction", cameraCall("setGamma", "1.5", R"(,"result":true)"),
         R"("arguments" takes an integer from 0 to 4294967295)");
    says("a record with too little", cameraCall("configureZoom", R"({"factor":1})", R"(,"result":true)"),
         R"("arguments" has not the members of its record)");
    says("a record with another member",
         cameraCall("configureZoom", R"({"factor":1,"x":1,"yCenter":2,"method":0})", R"(,"result":true)"),
         R"("arguments" has no "xCenter")");
    says("no result", cameraCall("getGamma", "", ""), R"("result" is missing)");
    says(
        "a result too many",
        lineWith(
            R"("interface":"manager","target":0,"operation":"closeDevice","arguments":["device"],"result":1)"),
        R"(the operation has no "result")");
    says("null for a number", cameraCall("getGamma", "", R"(,"result":null)"),
         R"("result" takes an integer from 0 to 4294967295)");
    says("another result", cameraCall("getGamma", "", R"(,"result":"many")"),
         R"("result" takes an integer from 0 to 4294967295)");
    says("NaN of an integer", cameraCall("getGamma", "", R"(,"result":"nan")"),
         R"("result" takes an integer from 0 to 4294967295)");
    says("larger than any number", cameraCall("getGamma", "", R"(,"result":18446744073709551616)"),
         R"("result" takes an integer from 0 to 4294967295)");
    says(
        "an object that is a number",
        lineWith(R"("interface":"manager","target":0,"operation":"openDevice","arguments":["A"],"result":1)"),
        R"("result" is no text)");
    says("an object of another world",
         lineWith(R"("interface":"manager","target":0,"operation":"closeDevice","arguments":["a\u001b\n"])"),
         R"("a??" is no object of the contract)");
    says("an object without a name",
         lineWith(R"("interface":"manager","target":0,"operation":"closeDevice","arguments":[""])"),
         R"("" is no object of the contract)");
    says("an object with a name too long",
         lineWith(R"("interface":"manager","target":0,"operation":"closeDevice","arguments":[")" +
                  QByteArray(65, 'a') + R"("])"),
         "\"" + QByteArray(65, 'a') + R"(" is no object of the contract)");
    for (const char *const edge : {"/", ":", "@", "[", "`", "{"}) {
        says(qPrintable(QStringLiteral("an object called %1").arg(edge)),
             lineWith(R"("interface":"manager","target":0,"operation":"closeDevice","arguments":[")" +
                      QByteArray{edge} + R"("])"),
             '"' + QByteArray{edge} + R"(" is no object of the contract)");
    }
    says("outputs that are no object", cameraCall("getVideoMode", "", R"(,"result":true,"outputs":[1])"),
         R"("outputs" is no object)");
    says("an output of another world",
         cameraCall("getVideoMode", "", R"(,"result":true,"outputs":{"a b":1})"),
         R"("a b" is no name of an output)");
    says("outputs of nothing", cameraCall("getGamma", "", R"(,"result":1,"outputs":{})"),
         R"(the operation has no "outputs")");
    says("outputs of a region", cameraCall("getRoiX1", "0", R"(,"result":1,"outputs":{})"),
         R"(the operation has no "outputs")");
    says("two outputs of one",
         cameraCall("getVideoMode", "", R"(,"result":true,"outputs":{"mode":1,"more":2})"),
         R"("outputs" is not one number)");
    says("notOpen is false", cameraCall("getGamma", "", R"(,"result":0,"notOpen":false)"),
         R"("notOpen" is not true)");
    says("notHeld is a number", cameraCall("getGamma", "", R"(,"result":0,"notHeld":1)"),
         R"("notHeld" is not true)");
    says(
        "words with something beside them",
        lineWith(
            R"("interface":"root","target":0,"operation":"getConfiguration","arguments":[],"result":"configuration","outputs":{"words":{},"more":1})"),
        R"("outputs" has more than "words")");
    says("words that are none",
         lineWith(R"("interface":"configuration","target":0,"operation":"write","arguments":[1])"),
         "the words of the configuration are no object");
    says("a writing of nothing",
         lineWith(R"("interface":"configuration","target":0,"operation":"write","arguments":[])"),
         R"("arguments" of "write" is no list of one object)");
    says("a writing without a list",
         lineWith(R"("interface":"configuration","target":0,"operation":"write","arguments":{})"),
         R"("arguments" of "write" is no list of one object)");
    says(
        "a word that is null",
        lineWith(
            R"("interface":"configuration","target":0,"operation":"write","arguments":[{"gskMinimum":null}])"),
        R"("gskMinimum" takes an integer from -2147483648 to 2147483647)");
    says("unknown word",
         lineWith(R"("interface":"configuration","target":0,"operation":"write","arguments":[{"gsk":4}])"),
         "the configuration has no such words");
    says(
        "a word that is no number",
        lineWith(
            R"("interface":"configuration","target":0,"operation":"write","arguments":[{"gskMinimum":"a"}])"),
        R"("gskMinimum" takes an integer from -2147483648 to 2147483647)");
}

void RecordingReaderTest::damageIsNamed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const QStringList expected{QStringLiteral("begins the scenario default"),
                               QStringLiteral("getGamma() -> 65536"),
                               QStringLiteral("session.trace:3: ") + reason +
                                   QStringLiteral("; record the session again, or take this line out")};
    QCOMPARE(readingOf(traceHeader + gammaLine + bytes + gammaLine), expected);
}

void RecordingReaderTest::fileThatIsNoRecordingIsNamed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QByteArray{}
                           << "session.trace:1: the file is empty; name one that a program recorded";
    QTest::newRow("a profile")
        << QByteArray{"# Settings\n[camera]\n"}
        << "session.trace:1: this is no recording: the line is no object of JSON; name "
           "a file that a program recorded";
    QTest::newRow("half a header") << traceHeader.left(20)
                                   << "session.trace:1: this is no recording: the line is no object of JSON; "
                                      "name a file that a program recorded";
    QTest::newRow("without its header")
        << gammaLine
        << R"(session.trace:1: this is no recording: the first line has no "trace"; name a file that a )"
           "program recorded";
    QTest::newRow("of a later form")
        << QByteArray{"{\"trace\":2}\n"}
        << "session.trace:1: this is no recording: its form is not 1, the only one "
           "that this program knows; name a file that a program recorded";
}

void RecordingReaderTest::fileThatIsNoRecordingIsNamed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    QCOMPARE(readingOf(bytes), QStringList{message});
}

void RecordingReaderTest::fileMayBeCutAnywhere()
{
    const QByteArray lines{
        gammaLine +
        cameraCall("getWarp", "1",
                   R"(,"result":true,"outputs":{"a11":1,"a21":0,"a12":0,"a22":1,"a13":0,)"
                   R"("a23":0})") +
        lineWith(R"("interface":"log","target":0,"operation":"log","arguments":[2,"é \"b\""])") +
        traceHeader + gammaLine};
    const QStringList whole{readingOf(traceHeader + lines)};
    QCOMPARE(whole.size(), 6);
    for (int length{0}; length < lines.size(); ++length) {
        const QByteArray kept{lines.left(length)};
        const int complete{kept.count('\n')};
        // A line that lacks nothing but its line feed is whole.
        const bool isWhole{kept.endsWith('\n') || kept.isEmpty() || lines[length] == '\n'};
        QStringList expected{whole.mid(0, 1 + complete)};
        if (lines[length] == '\n') {
            expected.append(whole[1 + complete]);
        } else if (!isWhole) {
            expected.append(cutLine.arg(complete + 2));
        }
        QCOMPARE(readingOf(traceHeader + kept), expected);
    }
}

void RecordingReaderTest::nothingFollowsACutLine()
{
    std::istringstream input{(traceHeader + gammaLine + gammaLine.left(20)).toStdString()};
    RecordingReader reader{input, "session.trace"};
    QVERIFY(reader.next());
    QVERIFY(reader.next());
    QVERIFY(!reader.next());
    QVERIFY(reader.cut());
    QVERIFY(!reader.next());
    QCOMPARE(reader.line(), std::size_t{3});
}

void RecordingReaderTest::longLineIsRefused()
{
    const QByteArray longest(1 << 20, 'a');
    const QStringList begin{QStringLiteral("begins the scenario default")};
    QCOMPARE(readingOf(traceHeader + longest + '\n'),
             begin +
                 QStringList{"session.trace:2: the line is no object of JSON; record the session again, or "
                             "take this line out"});
    for (const QByteArray &end : {QByteArray{"a\n"}, QByteArray{"a"}}) {
        QCOMPARE(readingOf(traceHeader + longest + end),
                 begin +
                     QStringList{"session.trace:2: the line has more than 1048576 bytes; name a file that "
                                 "a program recorded, or take this line out"});
    }
}

void RecordingReaderTest::messageIsOneLine()
{
    const QString message{readingOf(traceHeader + cameraCall(R"(a\nb\u001b[31m)", "", "")).last()};
    QCOMPARE(message,
             QStringLiteral(R"(session.trace:2: there is no operation "a?b?[31m"; record the session )"
                            "again, or take this line out"));
}

PILOTEL_TEST_CLASS(RecordingReaderTest)
#include "tst_recording_reader.moc"
