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

const QByteArray header{R"({"trace":1,"scenario":"default","seed":0,"time":"2026-03-14T09:26:53.000000Z"})"
                        "\n"};

/// What is between the time and the end of a line.
QByteArray line(const QByteArray &rest)
{
    return R"({"time":"2026-03-14T09:26:53.590112Z","microseconds":3,)" + rest + "}\n";
}

/// A call of the device on the camera.
QByteArray call(const QByteArray &operation, const QByteArray &arguments, const QByteArray &rest)
{
    return line(R"("interface":"device","target":1,"operation":")" + operation + R"(","arguments":[)" +
                arguments + ']' + rest);
}

const QByteArray gamma{call("getGamma", "", R"(,"result":65536)")};

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
    says("getGamma() -> 65536", gamma);
    says("setGamma(144179) -> true", call("setGamma", "144179", R"(,"result":true)"));
    says("setGamma(1) -> false", call("setGamma", "1", R"(,"result":false)"));
    says("NOT OPEN: getGamma() -> 0", call("getGamma", "", R"(,"result":0,"notOpen":true)"));
    says("getVideoMode() -> true {mode=2}",
         call("getVideoMode", "", R"(,"result":true,"outputs":{"mode":2})"));
    says("getVideoMode(null) -> false", call("getVideoMode", "null", R"(,"result":false)"));
    says(
        "getWarp(1) -> true {a11=1, a21=0.5, a12=nan, a22=inf, a13=-inf, a23=-0}",
        call(
            "getWarp", "1",
            R"(,"result":true,"outputs":{"a23":-0,"a11":1,"a21":0.5,"a12":"nan","a22":"inf","a13":"-inf"})"));
    says("configureZoom({factor=1.5, xCenter=1, yCenter=2, method=0}) -> true",
         call("configureZoom", R"({"factor":1.5,"xCenter":1,"yCenter":2,"method":0})", R"(,"result":true)"));
    says("getEdgeCorrection() -> {type=1, gain=2, firstThreshold=3, secondThreshold=43}",
         call("getEdgeCorrection", "",
              R"(,"result":{"type":1,"gain":2,"firstThreshold":3,"secondThreshold":43})"));
    says(
        "openDevice(\"SIM1\") -> device",
        line(
            R"("interface":"manager","target":0,"operation":"openDevice","arguments":["SIM1"],"result":"device")"));
    says(
        "openDevice(null) -> null",
        line(
            R"("interface":"manager","target":0,"operation":"openDevice","arguments":[null],"result":null)"));
    says(
        "NOT HELD: closeDevice(device)",
        line(
            R"("interface":"manager","target":0,"operation":"closeDevice","notHeld":true,"arguments":["device"])"));
    says("log(2, \"a \\\"b\\\"\\n\")",
         line(R"("interface":"log","target":0,"operation":"log","arguments":[2,"a \"b\"\n"])"));
    says(
        "getConfiguration() -> configuration {gskMinimum=1, gskMaximum=3}",
        line(
            R"("interface":"root","target":0,"operation":"getConfiguration","arguments":[],"result":"configuration","outputs":{"words":{"gskMaximum":3,"gskMinimum":1}})"));
    says(
        "write {gskMaximum=4}",
        line(R"("interface":"configuration","target":0,"operation":"write","arguments":[{"gskMaximum":4}])"));
    says("begins the scenario default", header);
}

void RecordingReaderTest::lineSays()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(readingOf(header + bytes).mid(1), QStringList{text});
}

void RecordingReaderTest::programIsNamed()
{
    QCOMPARE(readingOf(R"({"trace":1,"program":"pilotel 1.0.0","time":"2026-03-14T09:26:53Z"})"),
             QStringList{"begins pilotel 1.0.0"});
}

void RecordingReaderTest::timesAreRead()
{
    std::istringstream input{(header + gamma).toStdString()};
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
    const auto says = [](const char *row, const QByteArray &bytes, const char *reason) {
        QTest::newRow(row) << bytes << QString::fromUtf8(reason);
    };
    says("no JSON", "gamma\n", "the line is no object of JSON");
    says("a list", "[]\n", "the line is no object of JSON");
    says("an empty line", "\n", "the line is no object of JSON");
    says("two objects", "{} {}\n", "the line is no object of JSON");
    says("a zero byte", QByteArray{"{\0}\n", 4}, "the line is no object of JSON");
    says("deep", "[[[[[[[[\n", "the line is nested too deep");
    says("foreign JSON", "{\"name\":\"x\"}\n", "\"name\" is unknown here");
    says("another form", "{\"trace\":2}\n", "its form is not 1, the only one that this program knows");
    says("header without time",
         R"({"trace":1,"scenario":"x"})"
         "\n",
         "\"time\" is missing");
    says("nothing", "{}\n", "\"time\" is missing");
    says("no time",
         R"({"time":"yesterday"})"
         "\n",
         "\"time\" is no time such as 2026-03-14T09:26:53.589793Z");
    says("a month too many",
         R"({"time":"2026-13-14T09:26:53Z"})"
         "\n",
         "\"time\" is no time such as 2026-03-14T09:26:53.589793Z");
    says("time is a number", "{\"time\":1}\n", "\"time\" is no text");
    says("negative duration",
         R"({"time":"2026-03-14T09:26:53Z","microseconds":-1})"
         "\n",
         "\"microseconds\" is no integer from 0 to 31536000000000");
    says("no such unit", line(R"("target":2)"), "\"target\" is no integer from 0 to 1");
    says("operation that does not exist", call("getGama", "", ""), "there is no operation \"getGama\"");
    says("other interface",
         line(R"("interface":"root","target":1,"operation":"getGamma","arguments":[],"result":1)"),
         "\"getGamma\" belongs to another \"interface\"");
    says("no interface", line(R"("target":1,"operation":"getGamma")"), "\"interface\" is missing");
    says("arguments are no list",
         line(R"("interface":"device","target":1,"operation":"getGamma","arguments":1)"),
         "\"arguments\" is no list");
    says("an argument too many", call("getGamma", "1", R"(,"result":1)"), "\"arguments\" are too many");
    says("an argument too many before an output", call("getVideoMode", "1", R"(,"result":true)"),
         "\"arguments\" are too many");
    says("an argument too few", call("setGamma", "", R"(,"result":true)"), "\"arguments\" are too few");
    says("a number out of range", call("setGamma", "-1", R"(,"result":true)"),
         "\"arguments\" takes an integer from 0 to 4294967295");
    says("no number", call("setGamma", "null", R"(,"result":true)"),
         "\"arguments\" takes an integer from 0 to 4294967295");
    says("a fraction", call("setGamma", "1.5", R"(,"result":true)"),
         "\"arguments\" takes an integer from 0 to 4294967295");
    says("a record with too little", call("configureZoom", R"({"factor":1})", R"(,"result":true)"),
         "\"arguments\" has not the members of its record");
    says("a record with another member",
         call("configureZoom", R"({"factor":1,"x":1,"yCenter":2,"method":0})", R"(,"result":true)"),
         "\"arguments\" has no \"xCenter\"");
    says("no result", call("getGamma", "", ""), "\"result\" is missing");
    says(
        "a result too many",
        line(
            R"("interface":"manager","target":0,"operation":"closeDevice","arguments":["device"],"result":1)"),
        "the operation has no \"result\"");
    says("another result", call("getGamma", "", R"(,"result":"many")"),
         "\"result\" takes an integer from 0 to 4294967295");
    says("NaN of an integer", call("getGamma", "", R"(,"result":"nan")"),
         "\"result\" takes an integer from 0 to 4294967295");
    says("larger than any number", call("getGamma", "", R"(,"result":18446744073709551616)"),
         "\"result\" takes an integer from 0 to 4294967295");
    says("an object that is a number",
         line(R"("interface":"manager","target":0,"operation":"openDevice","arguments":["A"],"result":1)"),
         "\"result\" is no text");
    says("an object of another world",
         line(R"("interface":"manager","target":0,"operation":"closeDevice","arguments":["a\u001b\n"])"),
         "\"a??\" is no object of the contract");
    says("an output of another world", call("getVideoMode", "", R"(,"result":true,"outputs":{"a b":1})"),
         "\"a b\" is no name of an output");
    says("outputs of nothing", call("getGamma", "", R"(,"result":1,"outputs":{})"),
         "the operation has no \"outputs\"");
    says("two outputs of one", call("getVideoMode", "", R"(,"result":true,"outputs":{"mode":1,"more":2})"),
         "\"outputs\" is not one number");
    says("notOpen is false", call("getGamma", "", R"(,"result":0,"notOpen":false)"),
         "\"notOpen\" is not true");
    says("unknown word",
         line(R"("interface":"configuration","target":0,"operation":"write","arguments":[{"gsk":4}])"),
         "the configuration has no such words");
    says(
        "a word that is no number",
        line(
            R"("interface":"configuration","target":0,"operation":"write","arguments":[{"gskMinimum":"a"}])"),
        "\"gskMinimum\" takes an integer from -2147483648 to 2147483647");
}

void RecordingReaderTest::damageIsNamed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const QStringList expected{QStringLiteral("begins the scenario default"),
                               QStringLiteral("getGamma() -> 65536"),
                               QStringLiteral("session.trace:3: ") + reason +
                                   QStringLiteral("; record the session again, or take this line out")};
    QCOMPARE(readingOf(header + gamma + bytes + gamma), expected);
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
    QTest::newRow("half a header") << header.left(20)
                                   << "session.trace:1: this is no recording: the line is no object of JSON; "
                                      "name a file that a program recorded";
    QTest::newRow("without its header")
        << gamma
        << "session.trace:1: this is no recording: the first line has no \"trace\"; name a file that a "
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
        gamma +
        call("getWarp", "1",
             R"(,"result":true,"outputs":{"a11":1,"a21":0,"a12":0,"a22":1,"a13":0,)"
             R"("a23":0})") +
        line(R"("interface":"log","target":0,"operation":"log","arguments":[2,"é \"b\""])") + header + gamma};
    const QStringList whole{readingOf(header + lines)};
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
        QCOMPARE(readingOf(header + kept), expected);
    }
}

void RecordingReaderTest::longLineIsRefused()
{
    const QByteArray longest(1 << 20, 'a');
    const QStringList begin{QStringLiteral("begins the scenario default")};
    QCOMPARE(readingOf(header + longest + '\n'),
             begin +
                 QStringList{"session.trace:2: the line is no object of JSON; record the session again, or "
                             "take this line out"});
    for (const QByteArray &end : {QByteArray{"a\n"}, QByteArray{"a"}}) {
        QCOMPARE(readingOf(header + longest + end),
                 begin +
                     QStringList{"session.trace:2: the line has more than 1048576 bytes; name a file that "
                                 "a program recorded, or take this line out"});
    }
}

void RecordingReaderTest::messageIsOneLine()
{
    const QString message{readingOf(header + call(R"(a\nb\u001b[31m)", "", "")).last()};
    QCOMPARE(message,
             QStringLiteral("session.trace:2: there is no operation \"a?b?[31m\"; record the session "
                            "again, or take this line out"));
}

PILOTEL_TEST_CLASS(RecordingReaderTest)
#include "tst_recording_reader.moc"
