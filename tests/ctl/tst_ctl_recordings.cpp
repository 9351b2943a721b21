// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Recorded sessions: shown line by line, and made a profile; damaged ones are told with their place.
#include "ctlrun.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

class CtlRecordingsTest : public QObject
{
    Q_OBJECT

private slots:
    void showsEveryCall();
    void showsARealSession();
    void timeGoesOnWhereAnotherSessionBegins();
    void controlCharactersAreEscaped();
    void makesTheProfileOfASession();
    void keepsWhatWasReadOrSetLast();
    void keepsNothingThatIsNotCertain_data();
    void keepsNothingThatIsNotCertain();
    void wordsGiveTheRanges();
    void recordedProfileIsAScenarioAndApplies();
    void readsALongRecording();
    void tellsThatTheLastLineIsCut();
    void refusesAWrongFile_data();
    void refusesAWrongFile();
    void saysThatThereIsNoSetting();
    void readsStandardInput();
};

namespace
{

/// A line that begins so many milliseconds after the header.
QByteArray line(const QByteArray &rest, int milliseconds = 0)
{
    return R"({"time":"2026-03-14T09:26:53.)" + QByteArray::number(milliseconds).rightJustified(3, '0') +
           R"(000Z","microseconds":3,)" + rest + "}\n";
}

QByteArray call(const QByteArray &operation, const QByteArray &arguments, const QByteArray &result,
                const QByteArray &outputs = {}, int target = 1, int milliseconds = 0)
{
    return line(R"("interface":"device","target":)" + QByteArray::number(target) + R"(,"operation":")" +
                    operation + R"(","arguments":[)" + arguments + R"(],"result":)" + result +
                    (outputs.isEmpty() ? "" : R"(,"outputs":{)" + outputs + '}'),
                milliseconds);
}

const QByteArray header{R"({"trace":1,"program":"pilotel 1.0.0","time":"2026-03-14T09:26:53.000000Z"})"
                        "\n"};
const QByteArray gammaRead{call("getGamma", "", "70000")};

/// The settings of a profile, without its comments.
QStringList settingsIn(QString profile)
{
    return profile.remove(QRegularExpression{"\\s*#.*$", QRegularExpression::MultilineOption})
        .split('\n', Qt::SkipEmptyParts);
}

} // namespace

void CtlRecordingsTest::showsEveryCall()
{
    CtlFolder folder;
    QByteArray notOpen{call("getGamma", "", "0", {}, 0, 7)};
    notOpen.replace(R"("arguments")", R"("notOpen":true,"arguments")");
    folder.write(
        "session.trace",
        header +
            line(
                R"("interface":"root","target":0,"operation":"getConfiguration","arguments":[],"result":"configuration","outputs":{"words":{"gskMinimum":1,"gskMaximum":3}})",
                1) +
            line(
                R"("interface":"configuration","target":0,"operation":"write","arguments":[{"gskMaximum":4}])",
                2) +
            line(R"("interface":"log","target":0,"operation":"log","arguments":[2,"ready"])", 3) +
            call("getVideoMode", "", "true", R"("mode":2)", 0, 4) +
            call("setGamma", "7", "false", {}, 1, 512) + notOpen +
            line(R"("interface":"manager","target":0,"operation":"closeDevice","arguments":["device"])",
                 999));
    const Outcome outcome{folder.run({"recording", "show", "session.trace"})};
    QCOMPARE(
        outcome.output,
        lines({"Recorded with pilotel 1.0.0, from 2026-03-14T09:26:53.000Z on",
               "     0.001  root           getConfiguration() -> configuration {gskMinimum=1, gskMaximum=3}",
               "     0.002  configuration  words set in place {gskMaximum=4}",
               "     0.003  log            log(2, \"ready\")",
               "     0.004  blendUnit      getVideoMode() -> true {mode=2}",
               "     0.512  camera         setGamma(7) -> false  (refused)",
               "     0.007  blendUnit      NOT OPEN: getGamma() -> 0",
               "     0.999  manager        closeDevice(device)"}));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
    QVERIFY(!folder.has("trace.json"));
}

void CtlRecordingsTest::showsARealSession()
{
    CtlFolder folder{"refused-warp"};
    folder.run({"set", "blendUnit.warp0.a11=2"});
    const QByteArray trace{folder.read("trace.json")};
    folder.write("session.trace", trace);
    const QStringList shown{
        folder.run({"recording", "show", "session.trace"}).output.split('\n', Qt::SkipEmptyParts)};
    QCOMPARE(shown.size(), trace.count('\n'));
    QCOMPARE(shown.filter("(refused)").size(), 2);
    QVERIFY(
        shown.filter("(refused)").first().contains("  blendUnit      setWarp(0, 2, 0, 0, 1, 0, 0) -> false"));
}

void CtlRecordingsTest::timeGoesOnWhereAnotherSessionBegins()
{
    CtlFolder folder;
    QByteArray second{header};
    second.replace("09:26:53.000000Z", "09:26:52.500000Z");
    folder.write("session.trace", header + call("getGamma", "", "70000", {}, 1, 250) + second +
                                      call("getGamma", "", "80000", {}, 1, 750));
    QCOMPARE(folder.run({"recording", "show", "session.trace"}).output,
             lines({"Recorded with pilotel 1.0.0, from 2026-03-14T09:26:53.000Z on",
                    "     0.250  camera         getGamma() -> 70000",
                    "Recorded with pilotel 1.0.0, from 2026-03-14T09:26:52.500Z on",
                    "     0.750  camera         getGamma() -> 80000"}));
}

void CtlRecordingsTest::controlCharactersAreEscaped()
{
    CtlFolder folder;
    folder.write(
        "session.trace",
        QByteArray{R"({"trace":1,"program":"a\u001b[31m","time":"2026-03-14T09:26:53Z"})"
                   "\n"} +
            line(
                R"("interface":"log","target":0,"operation":"log","arguments":[2,"a\u001b[2J\n\r\u00e9\u007f"])"));
    const Outcome outcome{folder.run({"recording", "show", "session.trace"})};
    QCOMPARE(outcome.output,
             lines({"Recorded with a\\x1b[31m, from 2026-03-14T09:26:53.000Z on",
                    "     0.000  log            log(2, \"a\\x1b[2J\\n\\r\\xc3\\xa9\\x7f\")"}));
}

void CtlRecordingsTest::makesTheProfileOfASession()
{
    CtlFolder folder;
    folder.play("[camera]\ngamma = 144179\nroi2.x1 = 160\n[blendUnit]\nwarp2.a13 = -12\nvideoMode = 0\n");
    folder.run({"profile", "save", "saved.toml"});
    folder.write("session.trace", folder.read("trace.json"));
    const Outcome outcome{folder.run({"recording", "profile", "session.trace", "recorded.toml"})};
    QCOMPARE(outcome.output, QStringLiteral("77 settings saved in recorded.toml\n"));
    QCOMPARE(outcome.status, 0);
    const QString recorded{QString::fromUtf8(folder.read("recorded.toml"))};
    QVERIFY2(
        recorded.startsWith("# Settings in this file: 77. A recording shows them of the Blend Unit 2063 and "
                            "the camera 10417.\n"),
        qPrintable(recorded.left(200)));
    QCOMPARE(settingsIn(recorded), settingsIn(QString::fromUtf8(folder.read("saved.toml"))));
}

void CtlRecordingsTest::keepsWhatWasReadOrSetLast()
{
    CtlFolder folder;
    folder.write(
        "session.trace",
        header + gammaRead + call("setGamma", "80000", "true") + call("setClhe", "5", "true") +
            call("getClhe", "", "6") + call("setPolarity", "true", "true") +
            call("setRoiX1", "30,2,true,false,true", "true") + call("getRoiY2", "3", "77") +
            call("configureZoom", R"({"factor":2.5,"xCenter":1,"yCenter":2,"method":1})", "true", {}, 0) +
            call("setWarp", "1,5,0,0,6,0,-7", "true", {}, 0) +
            call("getEdgeCorrection", "", R"({"type":1,"gain":2,"firstThreshold":3,"secondThreshold":43})") +
            call("configureEdgeCorrection", "0,4,5", "true") + call("getSerialNumber", "", "9"));
    const Outcome outcome{folder.run({"recording", "profile", "session.trace"})};
    QCOMPARE(
        outcome.output,
        lines(
            {QString{
                 "# Settings in this file: 18. A recording shows them of the Blend Unit without a number "} +
                 "and the camera 9.",
             "",
             "[blendUnit]",
             "zoom.factor = 2.5",
             "zoom.xCenter = 1",
             "zoom.yCenter = 2",
             "zoom.method = 1  # bilinear",
             "warp1.a11 = 5",
             "warp1.a21 = 0",
             "warp1.a12 = 0",
             "warp1.a22 = 6",
             "warp1.a13 = 0",
             "warp1.a23 = -7",
             "",
             "[camera]",
             "polarity = true",
             "gamma = 80000  # 1.2207",
             "clhe = 6",
             "edgeCorrection.type = 0  # none",
             "edgeCorrection.gain = 4",
             "edgeCorrection.firstThreshold = 5",
             "roi2.x1 = 30",
             "roi3.y2 = 77"}));
    QCOMPARE(outcome.status, 0);
}

void CtlRecordingsTest::keepsNothingThatIsNotCertain_data()
{
    QTest::addColumn<QByteArray>("recorded");
    QTest::newRow("set that was refused") << call("setGamma", "80000", "false");
    QTest::newRow("answer that cannot be") << call("getGamma", "", "0");
    QTest::newRow("set of another unit") << call("setGamma", "80000", "true", {}, 0);
    QTest::newRow("read of another unit") << call("getGamma", "", "80000", {}, 0);
    QTest::newRow("set of a unit that does not exist") << call("setGamma", "80000", "true", {}, 2);
    QTest::newRow("number that cannot be") << call("setGamma", "1", "true");
    QByteArray notOpen{call("getGamma", "", "80000")};
    notOpen.replace(R"("arguments")", R"("notOpen":true,"arguments")");
    QTest::newRow("device that was not open") << notOpen;
    QTest::newRow("record that was not filled in") << call("getAhcGainLimitation", "null", "1");
    QTest::newRow("record that was not acknowledged")
        << call("getAhcGainLimitation", "", "2", R"("black":1,"white":2)");
    QTest::newRow("record that is not there") << call("getZoomConfig", "", "true");
    QTest::newRow("nothing that is set") << call("configureZoom", "null", "true", {}, 0);
    QTest::newRow("a NaN") << call("getZoomConfig", "", "true",
                                   R"("factor":"nan","xCenter":1,"yCenter":1,"method":0)");
    QTest::newRow("a region that does not exist") << call("getRoiX1", "7", "5");
}

void CtlRecordingsTest::keepsNothingThatIsNotCertain()
{
    QFETCH(const QByteArray, recorded);
    CtlFolder folder;
    folder.write("session.trace", header + gammaRead + recorded);
    QCOMPARE(settingsIn(folder.run({"recording", "profile", "session.trace"}).output),
             (QStringList{"[blendUnit]", "[camera]", "gamma = 70000"}));
}

void CtlRecordingsTest::wordsGiveTheRanges()
{
    CtlFolder folder;
    const QByteArray words{line(
        R"("interface":"root","target":0,"operation":"getConfiguration","arguments":[],"result":"configuration","outputs":{"words":{"gskMinimum":1,"gskMaximum":3}})")};
    const QByteArray write{
        line(R"("interface":"configuration","target":0,"operation":"write","arguments":[{"gskMaximum":9}])")};
    const QByteArray set{call("setGsk", "8", "true")};
    folder.write("narrow.trace", header + words + gammaRead + set);
    folder.write("wide.trace", header + words + gammaRead + write + set);
    folder.write("unknown.trace", header + gammaRead + set);
    const auto settings = [&](const char *file) {
        return settingsIn(folder.run({"recording", "profile", file}).output).mid(2);
    };
    QCOMPARE(settings("narrow.trace"), QStringList{"gamma = 70000"});
    QCOMPARE(settings("wide.trace"), (QStringList{"gamma = 70000", "gsk = 8"}));
    QCOMPARE(settings("unknown.trace"), (QStringList{"gamma = 70000", "gsk = 8"}));
}

void CtlRecordingsTest::recordedProfileIsAScenarioAndApplies()
{
    CtlFolder folder;
    folder.write("session.trace", header + gammaRead + call("getRoiY2", "3", "77"));
    folder.run({"recording", "profile", "session.trace", "recorded.toml"});
    QCOMPARE(folder.run({"profile", "apply", "recorded.toml"}).output,
             lines({"camera.gamma: 65536 (1) -> 70000 (1.0681)", "camera.roi3.y2: 0 -> 77",
                    "2 settings set, 0 as they were"}));
    folder.play(QString::fromUtf8(folder.read("recorded.toml")));
    QCOMPARE(folder.run({"get", "camera.roi3.y2"}).output, QStringLiteral("camera.roi3.y2 = 77\n"));
}

void CtlRecordingsTest::readsALongRecording()
{
    CtlFolder folder;
    constexpr int megabytes{3};
    folder.write("session.trace", header + gammaRead.repeated(megabytes * 1'000'000 / gammaRead.size()) +
                                      call("getGamma", "", "80000"));
    const Outcome outcome{folder.run({"recording", "profile", "session.trace"})};
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(settingsIn(outcome.output), (QStringList{"[blendUnit]", "[camera]", "gamma = 80000"}));
    QCOMPARE(outcome.status, 0);
}

void CtlRecordingsTest::tellsThatTheLastLineIsCut()
{
    CtlFolder folder;
    folder.write("session.trace", header + gammaRead + gammaRead.left(40));
    const QString told{
        "pilotel-ctl: session.trace:3: the last line is cut; what stands before it is used. Where the program "
        "did not crash, copy the file again\n"};
    for (const char *const command : {"show", "profile"}) {
        const Outcome outcome{folder.run({"recording", command, "session.trace"})};
        QCOMPARE(outcome.errors, told);
        QCOMPARE(outcome.status, 0);
        QVERIFY(outcome.output.contains("70000"));
    }
}

void CtlRecordingsTest::refusesAWrongFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("told");
    QTest::newRow("a profile")
        << QByteArray{"[camera]\ngamma = 1\n"}
        << "session.trace:1: this is no recording: the line is no object of JSON; name a "
           "file that a program recorded";
    QTest::newRow("damaged")
        << header + gammaRead + "{}\n" + gammaRead
        << "session.trace:3: \"time\" is missing; record the session again, or take this "
           "line out";
    QTest::newRow("one line without an end")
        << header + QByteArray(3'000'000, '{')
        << "session.trace:2: the line has more than 1048576 bytes; name a file that a program recorded, or take "
           "this line out";
}

void CtlRecordingsTest::refusesAWrongFile()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, told);
    CtlFolder folder;
    folder.write("session.trace", bytes);
    for (const QStringList &arguments :
         {QStringList{"recording", "show", "session.trace"},
          QStringList{"recording", "profile", "session.trace", "recorded.toml"}}) {
        const Outcome outcome{folder.run(arguments)};
        QCOMPARE(outcome.errors, "pilotel-ctl: " + told + '\n');
        QCOMPARE(outcome.status, 2);
    }
    QVERIFY(!folder.has("recorded.toml"));
    const Outcome missing{folder.run({"recording", "show", "nothing.trace"})};
    // Each system has words of its own for the reason.
    QVERIFY2(missing.errors.startsWith("pilotel-ctl: nothing.trace: ") && missing.errors.count('\n') == 1,
             qPrintable(missing.errors));
    QCOMPARE(missing.status, 2);
}

void CtlRecordingsTest::saysThatThereIsNoSetting()
{
    CtlFolder folder;
    folder.write("session.trace", header + call("getSerialNumber", "", "9"));
    const Outcome outcome{folder.run({"recording", "profile", "session.trace"})};
    QCOMPARE(outcome.errors,
             QStringLiteral("pilotel-ctl: session.trace: the recording shows no setting of either unit\n"));
    QCOMPARE(outcome.status, 2);
}

void CtlRecordingsTest::readsStandardInput()
{
    CtlFolder folder;
    folder.write("session.trace", header + gammaRead + gammaRead.left(40));
    for (const QStringList &command :
         {QStringList{"recording", "show"}, QStringList{"recording", "profile"}}) {
        const Outcome fromFile{folder.run(command + QStringList{"session.trace"})};
        const Outcome fromInput{folder.runReading("session.trace", command + QStringList{"-"})};
        QVERIFY(fromFile.output.contains("70000"));
        QCOMPARE(fromInput.output, fromFile.output);
        QCOMPARE(fromInput.errors, QString{fromFile.errors}.replace("session.trace:3:", "standard input:3:"));
        QVERIFY(fromInput.errors.contains("standard input:3: the last line is cut"));
        QCOMPARE(fromInput.status, 0);
    }
    folder.write("session.trace", header + call("getSerialNumber", "", "9"));
    QCOMPARE(folder.runReading("session.trace", {"recording", "profile", "-"}).errors,
             QString{"pilotel-ctl: standard input: the recording shows no setting of either unit\n"});
}

PILOTEL_TEST_CLASS(CtlRecordingsTest)
#include "tst_ctl_recordings.moc"
