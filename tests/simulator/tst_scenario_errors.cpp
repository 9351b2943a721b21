// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What is said of a scenario file that cannot be played.
#include "output/wording.h"
#include "scenariofaults.h"
#include "scenarios/limits.h"
#include "scenarios/scenarioreader.h"
#include "testclass.h"

#include <QByteArray>
#include <QChar>
#include <QObject>
#include <QString>
#include <QTest>

#include <string>
#include <variant>

using namespace veltrix_simulator;

namespace
{

/// What is said of the file; "fine" of one that can be played.
QString messageOf(const QByteArray &file)
{
    const auto result = readScenario(file.toStdString(), "flaky.toml");
    const auto *const error = std::get_if<ScenarioError>(&result);
    return error != nullptr ? QString::fromStdString(error->message()) : QStringLiteral("fine");
}

} // namespace

class ScenarioErrorsTest : public QObject
{
    Q_OBJECT

private slots:
    void fileIsRefusedWith_data();
    void fileIsRefusedWith();
    void messageIsOneLine_data();
    void messageIsOneLine();
    void whatIsLargeIsRefused();
    void whatNestsDeeplyIsRefused();
    void aNameOfOneLetterIsLikeNoOther();
};

void ScenarioErrorsTest::fileIsRefusedWith_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("message");
    const auto refuses = [](const char *row, const QByteArray &file, const QByteArray &message) {
        QTest::newRow(row) << file << QString::fromUtf8(message);
    };

    refuses("unknown key", "seeed = 1", R"(flaky.toml:1:1: "seeed" is unknown here; did you mean "seed"?)");
    refuses("mixed up key", "sede = 1", R"(flaky.toml:1:1: "sede" is unknown here; did you mean "seed"?)");
    refuses("unknown table", "[lynk]\nkind = \"none\"",
            R"(flaky.toml:1:2: "lynk" is unknown here; did you mean "link"?)");
    refuses(
        "nothing like it", "zzzzzzzz = 1",
        R"(flaky.toml:1:1: "zzzzzzzz" is unknown here; it can be "seed", "configuration", "camera", "blendUnit", "port", "recording", "missingCalls", "link", "fault", "memory" or "life")");
    refuses("case counts", "[[fault]]\noperation = \"setGamma\"\neffect = \"refuse\"\noncall = 3",
            R"(flaky.toml:4:1: "fault.oncall" is unknown here; did you mean "onCall"?)");
    refuses(
        "unknown key, few known", "[link]\nkind = \"none\"\nq = 1",
        R"(flaky.toml:3:1: "link.q" is unknown here; it can be "kind", "millisecondsPerCall", "bytesPerCommand", "baudRate", "thinkTimeMilliseconds" or "jitterMilliseconds")");
    refuses("unknown key of a port", "[[port]]\nname = \"A\"\nopenning = \"opens\"",
            R"(flaky.toml:3:1: "port.openning" is unknown here; did you mean "opening"?)");
    refuses("unknown key of an argument", fault("argument = { place = 1, minimun = 3 }"),
            R"(flaky.toml:4:25: "fault.argument.minimun" is unknown here; did you mean "minimum"?)");
    refuses("unknown key of memory", R"(memory.path = "x")",
            R"(flaky.toml:1:8: "memory.path" is unknown here; it can be "file")");
    refuses("unknown key of life", "life.drifts = []",
            R"(flaky.toml:1:6: "life.drifts" is unknown here; did you mean "drift"?)");
    refuses("unknown key of a drift", "[[life.drift]]\nkeys = 1",
            R"(flaky.toml:2:1: "life.drift.keys" is unknown here; did you mean "key"?)");
    refuses("unknown key of a counter", "[[life.counter]]\ninterval = 1",
            R"(flaky.toml:2:1: "life.counter.interval" is unknown here; did you mean "intervalSeconds"?)");
    refuses("unknown key of a unit", "[camera]\ngama = 1",
            R"(flaky.toml:2:1: "camera.gama" is unknown here; did you mean "gamma"?)");
    refuses(
        "unknown inner key of a unit", "[camera]\ntemperatures.sensorMilikelvin = 1",
        R"(flaky.toml:2:14: "camera.temperatures.sensorMilikelvin" is unknown here; did you mean "sensorMillikelvin"?)");
    refuses("unknown key of the configuration", "[configuration]\nexpert = true",
            R"(flaky.toml:2:1: "configuration.expert" is unknown here; did you mean "expertMode"?)");
    refuses(
        "bad pixels of the configuration", "[configuration]\nbadPixels = []",
        R"(flaky.toml:2:1: "configuration.badPixels" is unknown here; simulator/README.md tells what there is)");
    refuses("state value of another type", "[camera]\ngamma = \"much\"",
            R"(flaky.toml:2:9: "camera.gamma" takes an integer from 0 to 4294967295)");
    refuses("state value out of range", "camera.gamma = 4294967296",
            R"(flaky.toml:1:16: "camera.gamma" takes an integer from 0 to 4294967295)");
    refuses("state value without its table", "[camera]\nroi0 = 3",
            R"(flaky.toml:2:8: "camera.roi0" takes a table)");
    refuses("state table for a value", "camera.gamma.x = 3",
            R"(flaky.toml:1:8: "camera.gamma" takes an integer from 0 to 4294967295)");
    refuses("fraction for an integer", "camera.gamma = 1.5",
            R"(flaky.toml:1:16: "camera.gamma" takes an integer from 0 to 4294967295)");
    refuses("date for a number", "camera.gamma = 2026-01-01",
            R"(flaky.toml:1:16: "camera.gamma" takes an integer from 0 to 4294967295)");
    refuses("unit that is no table", "camera = 3", R"(flaky.toml:1:10: "camera" takes a table)");
    refuses("negative seed", "seed = -1",
            R"(flaky.toml:1:8: "seed" takes an integer from 0 to 9223372036854775807)");
    refuses("seed that is a text", "seed = \"many\"",
            R"(flaky.toml:1:8: "seed" takes an integer from 0 to 9223372036854775807)");
    refuses(
        "seed that is too large", "seed = 9223372036854775808",
        "flaky.toml:1:27: this is not TOML: Error while parsing decimal integer: '9223372036854775808' is not representable in 64 bits");
    refuses("column outside", "camera.badPixels = [[640, 0]]",
            R"(flaky.toml:1:22: "camera.badPixels" takes an integer from 0 to 639)");
    refuses("row outside", "camera.badPixels = [[0, 0],\n[0, 480]]",
            R"(flaky.toml:2:5: "camera.badPixels" takes an integer from 0 to 479)");
    refuses("three numbers for a pixel", "camera.badPixels = [[1, 2, 3]]",
            R"(flaky.toml:1:21: "camera.badPixels" takes a list of a column and a row for each pixel)");
    refuses("pixel without a row", "camera.badPixels = [5]",
            R"(flaky.toml:1:21: "camera.badPixels" takes a list)");
    refuses("pixels that are no list", "camera.badPixels = 5",
            R"(flaky.toml:1:20: "camera.badPixels" takes a list)");
    refuses("port that is no list", R"(port = "COM7")",
            R"(flaky.toml:1:8: "port" is a list of tables, so each is headed [[port]])");
    refuses("port that is one table", "[port]\nname = \"COM7\"",
            R"(flaky.toml:1:1: "port" is a list of tables, so each is headed [[port]])");
    refuses("port without a name", "[[port]]\nopening = \"opens\"", R"(flaky.toml:1:1: "port" lacks "name")");
    refuses("port with an empty name", "[[port]]\nname = \"\"",
            R"(flaky.toml:2:8: "port.name" takes a text that is not empty and of one line)");
    refuses("port twice", "[[port]]\nname = \"A\"\n[[port]]\nname = \"A\"",
            R"(flaky.toml:4:8: "port.name" stands here twice: "A")");
    refuses("unknown opening", "[[port]]\nname = \"A\"\nopening = \"open\"",
            R"(flaky.toml:3:11: "port.opening" takes "opens", "refused" or "silent", not "open")");
    refuses("opening that is no text", "[[port]]\nname = \"A\"\nopening = 1",
            R"(flaky.toml:3:11: "port.opening" takes "opens", "refused" or "silent")");
    refuses("opening takes too long", "[[port]]\nname = \"A\"\ndelayMilliseconds = 60001",
            R"(flaky.toml:3:21: "port.delayMilliseconds" takes a number from 0 to 60000)");
    refuses("unknown kind", "[link]\nkind = \"seriall\"",
            R"(flaky.toml:2:8: "link.kind" takes "none", "fixed", "serial" or "recorded", not "seriall")");
    const QByteArray umlaut{"\xC3\xA4"};
    refuses("a long text is cut between two letters", "[link]\nkind = \"a" + umlaut.repeated(60) + '"',
            R"(flaky.toml:2:8: "link.kind" takes "none", "fixed", "serial" or "recorded", not "a)" +
                umlaut.repeated(39) + R"(...")");
    refuses("recorded times without a recording", "[link]\nkind = \"recorded\"",
            R"(flaky.toml:2:8: "link.kind" is "recorded" only where there is a recording)");
    refuses("rule without a recording", "missingCalls = \"refuse\"",
            R"(flaky.toml:1:16: "missingCalls" stands only where there is a recording)");
    refuses("recording that is no name", "recording = 1",
            R"(flaky.toml:1:13: "recording" takes a text that is not empty and of one line)");
    refuses("recording with a life of its own", "recording = \"a\"\n[life]\nmillisecondsPerCall = 1",
            R"(flaky.toml:2:1: "life" cannot stand beside a recording, which settles it)");
    refuses("recording with a memory", "recording = \"a\"\n[memory]\nfile = \"b\"",
            R"(flaky.toml:2:1: "memory" cannot stand beside a recording, which settles it)");
    refuses("link without a kind", "[link]\nbaudRate = 9600", R"(flaky.toml:1:1: "link" lacks "kind")");
    refuses("fixed link without a time", R"(link.kind = "fixed")",
            R"(flaky.toml:1:1: "link" lacks "millisecondsPerCall")");
    refuses("serial key of a fixed link",
            "[link]\nkind = \"fixed\"\nmillisecondsPerCall = 1\nbaudRate = 9600",
            R"(flaky.toml:4:12: "link.baudRate" belongs to kind "serial", not to "fixed")");
    refuses(
        "jitter of no link", "[link]\nkind = \"none\"\njitterMilliseconds = 1",
        R"(flaky.toml:3:22: "link.jitterMilliseconds" belongs to kind "fixed" or "serial", not to "none")");
    refuses("time that no number holds exactly",
            "[link]\nkind = \"fixed\"\nmillisecondsPerCall = 9223372036854775807",
            R"(flaky.toml:3:23: "link.millisecondsPerCall" takes a number from 0 to 10000)");
    refuses("as far below zero", "[link]\nkind = \"fixed\"\nmillisecondsPerCall = -9223372036854775807",
            R"(flaky.toml:3:23: "link.millisecondsPerCall" takes a number from 0 to 10000)");
    refuses("negative time", "[link]\nkind = \"fixed\"\nmillisecondsPerCall = -1",
            R"(flaky.toml:3:23: "link.millisecondsPerCall" takes a number from 0 to 10000)");
    refuses("time that is a text", "[link]\nkind = \"fixed\"\nmillisecondsPerCall = \"long\"",
            R"(flaky.toml:3:23: "link.millisecondsPerCall" takes a number from 0 to 10000)");
    refuses("time that is no number", "[link]\nkind = \"fixed\"\nmillisecondsPerCall = nan",
            R"(flaky.toml:3:23: "link.millisecondsPerCall" takes a number from 0 to 10000)");
    refuses("baud rate that is too low", "[link]\nkind = \"serial\"\nbaudRate = 300",
            R"(flaky.toml:3:12: "link.baudRate" takes an integer from 1200 to 921600)");
    refuses("no bytes", "[link]\nkind = \"serial\"\nbytesPerCommand = 0",
            R"(flaky.toml:3:19: "link.bytesPerCommand" takes an integer from 1 to 1024)");
    refuses("fault without an operation", "[[fault]]\neffect = \"refuse\"",
            R"(flaky.toml:1:1: "fault" lacks "operation" or "operations")");
    refuses("fault without an effect", "[[fault]]\noperation = \"setGamma\"",
            R"(flaky.toml:1:1: "fault" lacks "effect")");
    refuses("both operation and operations", fault(R"(operations = ["setClhe"])"),
            R"(flaky.toml:4:14: "fault.operations" cannot stand beside "operation")");
    refuses("no operations", "[[fault]]\noperations = []\neffect = \"refuse\"",
            R"(flaky.toml:2:14: "fault.operations" takes a list of 1 to 64 operations)");
    refuses("operations that are no list", "[[fault]]\noperations = \"setGamma\"\neffect = \"refuse\"",
            R"(flaky.toml:2:14: "fault.operations" takes a list)");
    refuses("unknown operation", effectOn("setGama", R"("refuse")"),
            R"(flaky.toml:2:13: "fault.operation" knows no operation "setGama"; did you mean "setGamma"?)");
    refuses(
        "operation like no other", effectOn("xyz", R"("refuse")"),
        R"(flaky.toml:2:13: "fault.operation" knows no operation "xyz"; simulator/README.md tells what there is)");
    refuses(
        "pattern without operations", effectOn("frob*", R"("refuse")"),
        R"(flaky.toml:2:13: "fault.operation" fits no operation of the device: "frob*"; the others take no *)");
    refuses("pattern after", fault(R"(after = "get*")"),
            R"(flaky.toml:4:9: "fault.after" takes one operation, and no pattern)");
    refuses("unknown operation after", fault(R"(after = "setTargets")"),
            R"(flaky.toml:4:9: "fault.after" knows no operation "setTargets"; did you mean "setTarget"?)");
    refuses("unknown target", fault(R"(target = "cam")"),
            R"(flaky.toml:4:10: "fault.target" takes "blendUnit" or "camera", not "cam")");
    refuses(
        "unknown effect", effectOn("setGamma", R"("refuses")"),
        R"(flaky.toml:3:10: "fault.effect" takes "refuse", "answer", "stuck", "wrong", "garbage", "late", "lostOnPowerCycle" or "cableOut", not "refuses")");
    refuses(
        "target of what has none",
        "[[fault]]\noperation = \"openDevice\"\neffect = \"refuse\"\ntarget = \"camera\"",
        R"(flaky.toml:2:13: "fault.operation" does not fit: "openDevice" is no operation of the device, and only those address a unit)");
    refuses("onCall with fromCall", fault("onCall = 3\nfromCall = 4"),
            R"(flaky.toml:5:12: "fault.fromCall" cannot stand beside "onCall")");
    refuses("fromCall with onCall", fault("fromCall = 3\nonCall = 4"),
            R"(flaky.toml:5:10: "fault.onCall" cannot stand beside "fromCall")");
    refuses("once that is no truth", fault("once = 1"),
            R"(flaky.toml:4:8: "fault.once" takes true or false)");
    refuses("leavesOutputs that is no truth", fault("answer = [1]\nleavesOutputs = \"yes\""),
            R"(flaky.toml:5:17: "fault.leavesOutputs" takes true or false)");
    refuses("argument that is no table", fault("argument = 3"),
            R"(flaky.toml:4:12: "fault.argument" takes a table)");
    refuses("once with times", fault("once = true\ntimes = 3"),
            R"(flaky.toml:5:9: "fault.times" cannot stand beside "once")");
    refuses("everyCall with times", fault("everyCall = 2\ntimes = 3"),
            R"(flaky.toml:5:9: "fault.times" cannot stand beside "everyCall")");
    refuses("call zero", fault("onCall = 0"),
            R"(flaky.toml:4:10: "fault.onCall" takes an integer from 1 to 1000000000)");
    refuses("probability above one", fault("probability = 1.1"),
            R"(flaky.toml:4:15: "fault.probability" takes a number from 0 to 1)");
    refuses("answer that refuses", fault("answer = [true]"),
            R"(flaky.toml:4:10: "fault.answer" belongs to effect "answer", not to "refuse")");
    refuses("leavesOutputs that refuses", fault("leavesOutputs = true"),
            R"(flaky.toml:4:17: "fault.leavesOutputs" belongs to effect "answer", not to "refuse")");
    refuses("delay that refuses", fault("delayMilliseconds = 1"),
            R"(flaky.toml:4:21: "fault.delayMilliseconds" belongs to effect "late", not to "refuse")");
    refuses("answer without one", effectOn("getGamma", R"("answer")"),
            R"(flaky.toml:1:1: "fault" lacks "answer")");
    refuses("answer of a date", effectOn("getGamma", "\"answer\"\nanswer = [true, 2026-01-01]"),
            R"(flaky.toml:4:17: "fault.answer" takes true, false, numbers and texts)");
    refuses(
        "answer that is too short", effectOn("getVideoMode", "\"answer\"\nanswer = [true]"),
        R"(flaky.toml:4:10: "fault.answer" does not fit: an answer of "getVideoMode" has 2 values, not 1)");
    refuses(
        "answer of another type", effectOn("getVideoMode", "\"answer\"\nanswer = [true, \"much\"]"),
        R"(flaky.toml:4:10: "fault.answer" does not fit: value 2 of an answer of "getVideoMode" is an integer from 0 to 255)");
    refuses(
        "answer for one that answers less", effectOn("get*", "\"answer\"\nanswer = [1, 2, 3, 4, 5, 6, 7, 8]"),
        R"(flaky.toml:4:10: "fault.answer" does not fit: an answer of "getFirmwareVersions" has 3 values, not 8)");
    refuses("late without a delay", effectOn("getGamma", R"("late")"),
            R"(flaky.toml:1:1: "fault" lacks "delayMilliseconds")");
    refuses("delay that is too long", effectOn("getGamma", "\"late\"\ndelayMilliseconds = 10001"),
            R"(flaky.toml:4:21: "fault.delayMilliseconds" takes a number from 0 to 10000)");
    refuses(
        "stuck reader", effectOn("getGamma", R"("stuck")"),
        R"(flaky.toml:2:13: "fault.operation" does not fit: "getGamma" changes nothing of a unit, so nothing can be stuck)");
    refuses(
        "pattern that the effect does not fit", effectOn("get*", R"("stuck")"),
        R"(flaky.toml:2:13: "fault.operation" does not fit: "getFirmwareVersions" changes nothing of a unit, so nothing can be stuck)");
    refuses("argument without a place", fault("argument = { minimum = 3 }"),
            R"(flaky.toml:4:12: "fault.argument" lacks "place")");
    refuses("argument in place zero", fault("argument = { place = 0 }"),
            R"(flaky.toml:4:22: "fault.argument.place" takes an integer from 1 to 100)");
    refuses(
        "argument that is not there", fault("argument = { place = 2, minimum = 0 }"),
        R"(flaky.toml:4:12: "fault.argument" does not fit: "setGamma" takes 1 number, so there is no number 2)");
    refuses("argument without a range", fault("argument = { place = 1 }"),
            R"(flaky.toml:4:12: "fault.argument" lacks "minimum" or "maximum")");
    refuses(
        "argument that is never so large",
        "[[fault]]\noperation = \"setVideoMode\"\neffect = \"refuse\"\n"
        "argument = { place = 1, minimum = 300 }",
        R"(flaky.toml:4:12: "fault.argument" does not fit: argument 1 of "setVideoMode" is an integer from 0 to 255, which is never in this range)");
    refuses("never once", fault("once = false"),
            R"(flaky.toml:4:8: "fault.once" takes true, or is left out)");
    refuses(
        "no chance", fault("probability = 0"),
        R"(flaky.toml:4:15: "fault.probability" takes a number above 0: a fault without a chance never happens)");
    refuses("empty range", fault("argument = { place = 1, minimum = 3, maximum = 2 }"),
            R"(flaky.toml:4:35: "fault.argument.minimum" is above the maximum)");
    refuses("memory without a file", "[memory]", R"(flaky.toml:1:1: "memory" lacks "file")");
    refuses("file without a name", R"(memory.file = "")",
            R"(flaky.toml:1:15: "memory.file" takes a text that is not empty and of one line)");
    refuses(
        "drift of an unknown key", "[[life.drift]]\nkey = \"camera.gama\"\nend = 1\nhalfTimeSeconds = 1",
        R"(flaky.toml:2:7: "life.drift.key" knows no number of a unit "camera.gama"; did you mean "camera.gamma"?)");
    refuses("life without time", "[[life.counter]]\nkey = \"camera.gamma\"\nintervalSeconds = 1",
            R"(flaky.toml:1:1: "life" needs millisecondsPerCall or a link: without them no time goes by)");
    refuses("life by the time of a link",
            "link.kind = \"serial\"\n[[life.counter]]\nkey = \"camera.gamma\"\nintervalSeconds = 1", "fine");
    refuses(
        "two lives of one value",
        "life.millisecondsPerCall = 1\n[[life.drift]]\nkey = \"camera.gamma\"\nend = 1\nhalfTimeSeconds = 1\n"
        "[[life.counter]]\nkey = \"camera.gamma\"\nintervalSeconds = 1",
        R"(flaky.toml:7:7: "life.counter.key" drifts or counts already: "camera.gamma")");
    refuses("text that ends early", R"(configuration.communicationType = "UA\u0000RT")",
            R"(flaky.toml:1:35: "configuration.communicationType" takes a text)");
    refuses(
        "drift of a switch", "[[life.drift]]\nkey = \"camera.polarity\"\nend = 1\nhalfTimeSeconds = 1",
        R"(flaky.toml:2:7: "life.drift.key" knows no number of a unit "camera.polarity"; did you mean "camera.identity"?)");
    refuses("drift without an end", "[[life.drift]]\nkey = \"camera.gamma\"\nhalfTimeSeconds = 1",
            R"(flaky.toml:1:1: "life.drift" lacks "end")");
    refuses("drift to an integer that a double cannot hold",
            "[[life.drift]]\nkey = \"camera.gamma\"\nend = 9007199254740993\nhalfTimeSeconds = 1",
            R"(flaky.toml:3:7: "life.drift.end" takes a number from -1e+300 to 1e+300)");
    refuses("drift to nowhere", "[[life.drift]]\nkey = \"camera.gamma\"\nend = -1\nhalfTimeSeconds = 1",
            R"(flaky.toml:3:7: "life.drift.end" takes an integer from 0 to 4294967295)");
    refuses("drift that is one table", "[life.drift]\nkey = \"camera.gamma\"",
            R"(flaky.toml:1:1: "life.drift" is a list of tables, so each is headed [[life.drift]])");
    refuses("drift in no time", "[[life.drift]]\nkey = \"camera.gamma\"\nend = 1\nhalfTimeSeconds = 0",
            R"(flaky.toml:4:19: "life.drift.halfTimeSeconds" takes a number from 0.001 to 315360000)");
    refuses(
        "counter of the configuration",
        "[[life.counter]]\nkey = \"configuration.gmsMinimum\"\nintervalSeconds = 1",
        R"(flaky.toml:2:7: "life.counter.key" knows no number of a unit "configuration.gmsMinimum"; simulator/README.md tells what there is)");
    refuses("counter without an interval", "[[life.counter]]\nkey = \"camera.userSaves\"",
            R"(flaky.toml:1:1: "life.counter" lacks "intervalSeconds")");
    refuses("no TOML", "seed =",
            "flaky.toml:1:7: this is not TOML: Error while parsing key-value pair: encountered end-of-file");
    refuses(
        "key twice", "seed = 1\nseed = 2",
        "flaky.toml:2:8: this is not TOML: Error while parsing key-value pair: cannot redefine existing integer 'seed'");
    refuses(
        "table twice", "[link]\nkind = \"none\"\n[link]",
        "flaky.toml:3:1: this is not TOML: Error while parsing table header: cannot redefine existing table 'link'");
    refuses("unclosed text", "[memory]\nfile = \"x",
            "flaky.toml:2:10: this is not TOML: Error while parsing string: encountered end-of-file");
    refuses("letters in a key", "seed = 1\ngröße = 1",
            "flaky.toml:2:3: this is not TOML: Error while parsing key-value pair: expected '=', saw 'ö'");
    refuses("letters in a heading", "seed = 1\n[größe]",
            "flaky.toml:2:4: this is not TOML: Error while parsing table header: expected ']', saw 'ö'");
    refuses("sign behind a list of several lines", "camera.badPixels = [\n[1, 2],\n[3, 4]\n]\n\n[[~ort]]",
            "flaky.toml:6:1: this is not TOML: this line has a character that needs quotes");
    refuses("sign in a heading", "seed = 1\n\n[[~ort]]\nname = \"A\"",
            "flaky.toml:3:1: this is not TOML: this line has a character that needs quotes");
    refuses(
        "sign in a key", "seed = 1\n~ = 3",
        "flaky.toml:2:1: this is not TOML: Error while parsing root table: expected keys, tables, whitespace or comments, saw '~'");
    refuses("letter for a value", "seed = é",
            "flaky.toml:1:8: this is not TOML: Error while parsing value: could not determine value type");
    refuses("letters in a text", "[memory]\nfile = \"größe.json\"", "fine");
}

void ScenarioErrorsTest::fileIsRefusedWith()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QString, message);
    QCOMPARE(messageOf(file), message);
}

void ScenarioErrorsTest::messageIsOneLine_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("key with a line feed") << QByteArray{R"("a\nb" = 1)"};
    QTest::newRow("text with a line feed") << QByteArray{R"(link.kind = "a\nb")"};
    QTest::newRow("long text") << R"(link.kind = ")" + QByteArray(480, 'x') + '"';
    QTest::newRow("no characters") << QByteArray{"\xff\xfe\x00\x01", 4};
    QTest::newRow("broken off") << QByteArray{"[[fault"};
    QTest::newRow("half a character")
        << QByteArray{R"(link.kind = ")"} + QByteArray{"\xc3\xa4"}.repeated(60) + R"(")";
}

void ScenarioErrorsTest::messageIsOneLine()
{
    QFETCH(const QByteArray, file);
    const QString message = messageOf(file);
    QVERIFY2(message.startsWith("flaky.toml:1:"), qPrintable(message));
    QVERIFY2(!message.contains('\n') && !message.contains(QChar::ReplacementCharacter), qPrintable(message));
    QVERIFY2(message.size() < 300, qPrintable(message));
}

void ScenarioErrorsTest::whatIsLargeIsRefused()
{
    QCOMPARE(messageOf(QByteArray(static_cast<int>(largestScenario) + 1, '\n')),
             "flaky.toml:1:1: a scenario is not larger than 256 KiB");
    QCOMPARE(messageOf(QByteArray(static_cast<int>(largestScenario), '\n')), "fine");
    QCOMPARE(messageOf("\n#" + QByteArray(512, ' ')),
             "flaky.toml:2:513: a line is not longer than 512 bytes; break it up");
    QCOMPARE(messageOf("\n#" + QByteArray(511, ' ')), "fine");
    QCOMPARE(messageOf(fault("").repeated(257)),
             R"(flaky.toml:769:1: "fault" stands here more than 256 times)");
    QCOMPARE(messageOf(fault("").repeated(256)), "fine");
    QCOMPARE(messageOf("[[fault]]\neffect = \"refuse\"\noperations = [" +
                       QByteArray{"\"*\",\n"}.repeated(65) + "]"),
             R"(flaky.toml:3:14: "fault.operations" takes a list of 1 to 64 operations)");
}

void ScenarioErrorsTest::whatNestsDeeplyIsRefused()
{
    const QByteArray keys = QByteArray{"a."}.repeated(250) + 'a';
    QVERIFY(messageOf(keys + " = 1").startsWith(R"(flaky.toml:1:1: "a" is unknown here)"));
    QVERIFY(messageOf("a = " + QByteArray{"[\n"}.repeated(50'000)).contains("this is not TOML"));
    QVERIFY(messageOf('[' + keys + "]\n" + keys + " = [{\n" + keys).startsWith("flaky.toml:"));
}

void ScenarioErrorsTest::aNameOfOneLetterIsLikeNoOther()
{
    QCOMPARE(nearest("b", {"a"}), std::string{});
    QCOMPARE(nearest("b", {"a", "ab"}), std::string{"ab"});
}

PILOTEL_TEST_CLASS(ScenarioErrorsTest)
#include "tst_scenario_errors.moc"
