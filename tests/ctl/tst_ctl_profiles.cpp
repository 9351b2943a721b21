// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Profiles: saved, applied and compared; all of one or nothing; wrong ones are told with their place.
#include "ctlrun.h"
#include "testclass.h"
#include "unreadablefile.h"

#include <QByteArray>
#include <QFileInfo>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTest>

#if defined(Q_OS_UNIX)
#include <csignal>
#include <string>
#include <sys/socket.h>
#include <sys/types.h>
#include <sys/un.h>
#include <unistd.h>
#endif

class CtlProfilesTest : public QObject
{
    Q_OBJECT

private slots:
    void saves();
    void aSavedProfileIsAScenario();
    void appliesWhatDiffers();
    void onlyTellsInADryRun();
    void tellsDifferences();
    void goesBackWhenACommandIsRefused();
    void leavesAloneWhatIsAsTheProfileHasIt();
    void goesBackWhenTheCableIsOutForAMoment();
    void saysWhatItCouldNotPutBackWithoutACable();
#if defined(Q_OS_UNIX)
    void leavesADeviceADevice();
    void saysThatItCannotWriteThere();
    void goesBackWhenItIsInterrupted();
#endif
    void refusesAWrongFile_data();
    void refusesAWrongFile();
    void countsNothingWhereNothingIsPromised_data();
    void countsNothingWhereNothingIsPromised();
    void refusesAFileThatWasCut();
    void keepsTheOldFileWhenAReadFails();
    void writesToStandardOutput();
    void readsStandardInput();
    void readsTheInputOfTheShellOnlyForTheShell();
    void saysWhyAFileIsNotWritten();
};

namespace
{

/// A camera with every number that can be set at another value than at power-on.
const char *const otherCamera{"[camera]\n"
                              "gamma = 144179\n"
                              "colorLut = 1\n"
                              "polarity = true\n"
                              "zoom.factor = 2.5\n"
                              "edgeCorrection.firstThreshold = 30\n"
                              "edgeCorrection.secondThreshold = 70\n"
                              "roi2.x1 = 160\n"
                              "[blendUnit]\n"
                              "videoMode = 0\n"
                              "warp2.a13 = -12\n"};

} // namespace

void CtlProfilesTest::saves()
{
    CtlFolder folder;
    const Outcome outcome{folder.run({"profile", "save", "camera 1.toml"})};
    QCOMPARE(outcome.output, lines({"77 settings saved in camera 1.toml"}));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
    const QStringList saved{QString::fromUtf8(folder.read("camera 1.toml")).split('\n')};
    QCOMPARE(
        saved.mid(0, 5),
        (QStringList{"# Settings in this file: 77. They are from the Blend Unit 2063 and the camera 10417.",
                     "", "[blendUnit]", "videoMode = 2  # fusion", "zoom.factor = 1"}));
    QVERIFY(saved.contains("gamma = 65536  # 1"));
    QVERIFY(saved.contains("horizontalFlip = false"));
    QVERIFY(saved.contains("edgeCorrection.secondThreshold = 60"));
    // Nothing that belongs to this one camera.
    QCOMPARE(saved.filter("serialNumber").size(), 0);
    QCOMPARE(folder.commands(), QStringList{});
}

void CtlProfilesTest::aSavedProfileIsAScenario()
{
    CtlFolder folder;
    folder.play(otherCamera);
    QCOMPARE(folder.run({"profile", "save", "saved.toml"}).status, 0);
    const QString values{folder.run({"list"}).output};
    folder.environment.insert("VELTRIX_SIMULATOR_SCENARIO", folder.path("saved.toml"));
    const Outcome outcome{folder.run({"list"})};
    QCOMPARE(outcome.output, values);
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(folder.run({"profile", "diff", "saved.toml"}).status, 0);
}

void CtlProfilesTest::appliesWhatDiffers()
{
    CtlFolder folder;
    folder.write("wanted.toml", otherCamera);
    const Outcome outcome{folder.run({"profile", "apply", "wanted.toml"})};
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.output,
             lines({"blendUnit.videoMode: 2 (fusion) -> 0 (infrared)", "blendUnit.warp2.a13: 0 -> -12",
                    "camera.zoom.factor: 1 -> 2.5", "camera.polarity: false -> true",
                    "camera.gamma: 65536 (1) -> 144179 (2.2)", "camera.colorLut: 0 (greyscale) -> 1 (iron)",
                    "camera.edgeCorrection.firstThreshold: 20 -> 30", "camera.roi2.x1: 0 -> 160",
                    "8 settings set, 0 as they were"}));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(folder.commands(),
             (QStringList{"setVideoMode(0)", "setWarp(2, 1, 0, 0, 1, -12, 0)",
                          R"(configureZoom({"factor":2.5,"method":0,"xCenter":320,"yCenter":240}))",
                          "setPolarity(true)", "setGamma(144179)", "setColorLut(1)",
                          "configureEdgeCorrection(0, 64, 30)", "setRoiX1(160, 2, false, true, false)"}));
}

void CtlProfilesTest::onlyTellsInADryRun()
{
    CtlFolder folder;
    folder.write("wanted.toml", "camera.gamma = 144179\ncamera.clhe = 2000\n");
    const Outcome outcome{folder.run({"profile", "apply", "--dry-run", "wanted.toml"})};
    QCOMPARE(outcome.output,
             lines({"camera.gamma: 65536 (1) -> 144179 (2.2)", "1 setting would be set, 1 as they were"}));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(folder.commands(), QStringList{});
}

void CtlProfilesTest::tellsDifferences()
{
    CtlFolder folder;
    folder.write("wanted.toml", "camera.gamma = 144179\ncamera.edgeCorrection.secondThreshold = 70\n");
    const Outcome outcome{folder.run({"profile", "diff", "wanted.toml"})};
    QCOMPARE(outcome.output, lines({"camera.gamma: 65536 (1) -> 144179 (2.2)",
                                    "camera.edgeCorrection.secondThreshold: 60 -> 70"}));
    QCOMPARE(outcome.status, 1);
    folder.write("wanted.toml", "camera.gamma = 65536\n");
    QCOMPARE(folder.run({"profile", "diff", "wanted.toml"}).output, QString{});
    QCOMPARE(folder.run({"profile", "diff", "wanted.toml"}).status, 0);
}

void CtlProfilesTest::goesBackWhenACommandIsRefused()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"setRoiX1\"\neffect = \"refuse\"\n");
    folder.write("wanted.toml", otherCamera);
    const Outcome outcome{folder.run({"profile", "apply", "wanted.toml"})};
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: camera.roi2.x1 = 160 is refused by the camera.",
                                    "pilotel-ctl: Everything is as it was before."}));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(folder.commands().mid(8),
             (QStringList{"setRoiX1(0, 2, false, false, false)", "configureEdgeCorrection(0, 64, 20)",
                          "setColorLut(0)", "setGamma(65536)", "setPolarity(false)",
                          R"(configureZoom({"factor":1,"method":0,"xCenter":320,"yCenter":240}))",
                          "setWarp(2, 1, 0, 0, 1, 0, 0)", "setVideoMode(2)"}));
}

void CtlProfilesTest::leavesAloneWhatIsAsTheProfileHasIt()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"setColorLut\"\nonce = true\neffect = \"refuse\"\n");
    folder.write("wanted.toml", "camera.polarity = false\ncamera.gamma = 144179\ncamera.colorLut = 1\n");
    const Outcome outcome{folder.run({"profile", "apply", "wanted.toml"})};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: camera.colorLut = 1 (iron) is refused by the camera.",
                                    "pilotel-ctl: Everything is as it was before."}));
    QCOMPARE(folder.commands(),
             (QStringList{"setGamma(144179)", "setColorLut(1)", "setColorLut(0)", "setGamma(65536)"}));
}

void CtlProfilesTest::goesBackWhenTheCableIsOutForAMoment()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"setColorLut\"\nonce = true\neffect = \"refuse\"\n");
    folder.write("wanted.toml", otherCamera);
    const Outcome outcome{folder.run({"profile", "apply", "wanted.toml"})};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: camera.colorLut = 1 (iron) is refused by the camera.",
                                    "pilotel-ctl: Everything is as it was before."}));
    QCOMPARE(outcome.status, 1);
}

void CtlProfilesTest::saysWhatItCouldNotPutBackWithoutACable()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"setColorLut\"\neffect = \"cableOut\"\n");
    folder.write("wanted.toml", "camera.gamma = 144179\ncamera.colorLut = 1\ncamera.tint = 5\n");
    const Outcome outcome{folder.run({"profile", "apply", "wanted.toml"})};
    QCOMPARE(
        outcome.errors,
        lines(
            {"pilotel-ctl: No answer from the camera: look at its power and its cable.",
             "pilotel-ctl: NOT PUT BACK: camera.colorLut was 0 (greyscale); No answer from the camera: look at its power and its cable.",
             "pilotel-ctl: NOT PUT BACK: camera.gamma was 65536 (1); No answer from the camera: look at its power and its cable."}));
    QCOMPARE(outcome.status, 3);
}

#if defined(Q_OS_UNIX)
void CtlProfilesTest::leavesADeviceADevice()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"profile", "save", "/dev/null"}).output,
             QString{"77 settings saved in /dev/null\n"});
    QVERIFY(!QFileInfo{"/dev/null"}.isFile());
    const Outcome full{folder.run({"profile", "save", "/dev/full"})};
    QCOMPARE(full.errors, lines({"pilotel-ctl: /dev/full: No space left on device"}));
    QCOMPARE(full.status, 2);
}

void CtlProfilesTest::saysThatItCannotWriteThere()
{
    CtlFolder folder;
#if defined(Q_OS_LINUX)
    const Outcome unreadable{folder.run({"profile", "save", unreadableFile})};
    QVERIFY2(unreadable.errors.startsWith(QString{"pilotel-ctl: "} + unreadableFile + ": "),
             qPrintable(unreadable.errors));
    QCOMPARE(unreadable.status, 2);
#endif
    // What is there is no file, and nothing opens it as one.
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name{folder.path("socket").toStdString()};
    QVERIFY(name.size() < sizeof address.sun_path);
    name.copy(address.sun_path, name.size());
    const int socket{::socket(AF_UNIX, SOCK_STREAM, 0)};
    QCOMPARE(::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    const Outcome outcome{folder.run({"profile", "save", "socket"})};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: socket: No such device or address"}));
    QCOMPARE(outcome.status, 2);
    ::close(socket);
    QVERIFY(folder.has("socket") && !QFileInfo{folder.path("socket")}.isFile());
}

void CtlProfilesTest::goesBackWhenItIsInterrupted()
{
    CtlFolder folder;
    folder.play("[link]\nkind = \"fixed\"\nmillisecondsPerCall = 50\n");
    folder.write("wanted.toml", "camera.gamma = 144179\ncamera.colorLut = 1\ncamera.tint = 5\n");
    QProcess process;
    process.setProcessEnvironment(folder.environment);
    process.setWorkingDirectory(folder.path({}));
    process.start(CTL, {"profile", "apply", "wanted.toml"});
    QTRY_VERIFY_WITH_TIMEOUT(!folder.commands().isEmpty(), 30000);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardOutput(), QByteArray{});
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             lines({"pilotel-ctl: Interrupted.", "pilotel-ctl: Everything is as it was before."}));
    const QStringList commands{folder.commands()};
    QCOMPARE(commands.first(), QString{"setGamma(144179)"});
    QCOMPARE(commands.last(), QString{"setGamma(65536)"});
    QVERIFY(!commands.contains("setTint(5)"));
}
#endif

void CtlProfilesTest::refusesAWrongFile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &text, const char *error) {
        QTest::newRow(name) << text << QString{error};
    };
    row("unknown", "[camera]\ngama = 1\n",
        R"(p.toml:2:1: "camera.gama" is no setting of a profile; did you mean "camera.gamma"?)");
    row("another part of a scenario", "[link]\nkind = \"none\"\n",
        R"(p.toml:1:2: "link" is no setting of a profile; "pilotel-ctl list" tells all of them)");
    row("out of range", "[camera]\nclhe = 30001\n",
        "p.toml:2:8: 30001 is nothing for camera.clhe: 0 to 30000 is allowed");
    row("a text", "[camera]\ncolorLut = \"iron\"\n",
        "p.toml:2:12: This is nothing for camera.colorLut: 0 to 7 is allowed");
    row("a fraction", "[camera]\nclhe = 1.5\n",
        "p.toml:2:8: 1.5 is nothing for camera.clhe: 0 to 30000 is allowed");
    row("not a number", "[camera]\nzoom.factor = nan\n",
        "p.toml:2:15: nan is nothing for camera.zoom.factor: 1 to 8 is allowed");
    row("a value for a group", "[camera]\nzoom = 1\n",
        "p.toml:2:8: \"camera.zoom\" is a group of settings, not a value");
    row("a group for a value", "[camera.gamma]\nx = 1\n",
        "p.toml:1:1: This is nothing for camera.gamma: 32768 to 163840 is allowed");
    row("only read", "[camera]\nserialNumber = 1\n",
        "p.toml:2:1: camera.serialNumber cannot be set; take this line out");
    row("twice", "camera.clhe = 1\ncamera.clhe = 2\n", "p.toml:2:15: ");
    row("JSON", "{\"trace\":1,\"scenario\":\"default\"}\n", "p.toml:1:1: ");
    row("control characters", "[camera]\n\"\\u001b[31m\" = 1\n",
        R"(p.toml:2:1: "camera.\x1b[31m" is no setting of a profile; "pilotel-ctl list" tells all of them)");
    row("a long line", "# " + QByteArray(600, 'x') + '\n',
        "p.toml:1:1: this is no profile: the line has more than 512 bytes");
    row("a big file", QByteArray(3'000'000, 'x'), "p.toml:1:1: this is no profile: it has more than 256 KiB");
    row("levels", QByteArray(400, '[') + '\n', "p.toml:1:");
    row("no end", "camera.clhe = 1",
        "p.toml:1:1: the last line has no end; is it whole? Save the profile again, or end the line");
}

void CtlProfilesTest::refusesAWrongFile()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, error);
    CtlFolder folder;
    folder.write("p.toml", text);
    for (const char *const command : {"apply", "diff"}) {
        const Outcome outcome{folder.run({"profile", command, "p.toml"})};
        QCOMPARE(outcome.output, QString{});
        if (error.endsWith(": ") || error.endsWith(':')) {
            QVERIFY2(outcome.errors.startsWith("pilotel-ctl: " + error), qPrintable(outcome.errors));
            QCOMPARE(outcome.errors.count('\n'), 1);
        } else {
            QCOMPARE(outcome.errors, lines({"pilotel-ctl: " + error}));
        }
        QCOMPARE(outcome.status, 2);
        QCOMPARE(folder.calls().filter("openDevice"), QStringList{});
    }
}

void CtlProfilesTest::countsNothingWhereNothingIsPromised_data()
{
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const QByteArray &text) {
        QTest::newRow(text) << text;
    };
    row("# Settings in this file: many.\n");
    row("# Settings in this file: 7\n");
    row("# Settings in this file: 0.\n");
}

void CtlProfilesTest::countsNothingWhereNothingIsPromised()
{
    QFETCH(const QByteArray, text);
    CtlFolder folder;
    folder.write("p.toml", text);
    const Outcome outcome{folder.run({"profile", "apply", "p.toml"})};
    QCOMPARE(outcome.output, lines({"0 settings set, 0 as they were"}));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
}

void CtlProfilesTest::refusesAFileThatWasCut()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"profile", "save", "whole.toml"}).status, 0);
    const QByteArray whole{folder.read("whole.toml")};
    // An empty file and a first line alone are no less than a cut one.
    for (int size{0}; size < whole.size(); size += size < 100 ? 7 : 131) {
        const QByteArray cut{whole.left(size)};
        folder.write("p.toml", cut);
        const Outcome outcome{folder.run({"profile", "apply", "p.toml"})};
        QCOMPARE(outcome.status, 2);
        const QString reason{
            cut.isEmpty() ? "the file is empty; save the profile again"
            : cut.endsWith('\n')
                ? "this line says 77 settings, and the file has %1; save the profile again, or take this line out if you changed the file"
                : "the last line has no end; is it whole? Save the profile again, or end the line"};
        const QString place{QString::number(cut.endsWith('\n') ? 1 : cut.count('\n') + 1) + ":1: "};
        const QString wanted{"pilotel-ctl: p.toml:" + place + reason};
        const int settings{QString{cut}.count(" = ")};
        QCOMPARE(outcome.errors, lines({wanted.contains("%1") ? wanted.arg(settings) : wanted}));
    }
    folder.write("p.toml", whole.left(whole.lastIndexOf('\n', -2) + 1));
    QCOMPARE(
        folder.run({"profile", "apply", "p.toml"}).errors,
        lines(
            {"pilotel-ctl: p.toml:1:1: this line says 77 settings, and the file has 76; save the profile again, or take this line out if you changed the file"}));
}

void CtlProfilesTest::keepsTheOldFileWhenAReadFails()
{
    CtlFolder folder{"wrong-answers"};
    folder.write("p.toml", "old");
    const Outcome outcome{folder.run({"profile", "save", "p.toml"})};
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: blendUnit.videoMode answers 9; 0 to 2 is allowed",
                                    "pilotel-ctl: No file was written."}));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(folder.read("p.toml"), QByteArray{"old"});
}

void CtlProfilesTest::writesToStandardOutput()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"profile", "save", "p.toml"}).status, 0);
    QCOMPARE(folder.run({"profile", "save", "-"}).output.toUtf8(), folder.read("p.toml"));
    QVERIFY(!folder.has("-"));
}

void CtlProfilesTest::readsStandardInput()
{
    CtlFolder folder;
    folder.write("wanted.toml", "camera.gamma = 144179\n");
    const Outcome compared{folder.runReading("wanted.toml", {"profile", "diff", "-"})};
    QCOMPARE(compared.output, lines({"camera.gamma: 65536 (1) -> 144179 (2.2)"}));
    QCOMPARE(compared.errors, QString{});
    QCOMPARE(compared.status, 1);
    const Outcome applied{folder.runReading("wanted.toml", {"profile", "apply", "-"})};
    QCOMPARE(applied.output,
             lines({"camera.gamma: 65536 (1) -> 144179 (2.2)", "1 setting set, 0 as they were"}));
    QCOMPARE(applied.errors, QString{});
    QCOMPARE(applied.status, 0);
    folder.write("wanted.toml", "\ncamera.gama = 144179\n");
    const Outcome wrong{folder.runReading("wanted.toml", {"profile", "apply", "-"})};
    QCOMPARE(wrong.errors,
             lines({"pilotel-ctl: standard input:2:8: \"camera.gama\" is no setting of a profile; "
                    "did you mean \"camera.gamma\"?"}));
    QCOMPARE(wrong.status, 2);
}

void CtlProfilesTest::readsTheInputOfTheShellOnlyForTheShell()
{
    CtlFolder folder;
    folder.write("wanted.toml", "camera.gamma = 144179\n");
    folder.write("commands", "profile apply -\nget camera.gamma\n");
    const Outcome fromFile{folder.runReading("wanted.toml", {"shell", "commands"})};
    QCOMPARE(fromFile.output, lines({"camera.gamma: 65536 (1) -> 144179 (2.2)",
                                     "1 setting set, 0 as they were", "camera.gamma = 144179  # 2.2"}));
    QCOMPARE(fromFile.status, 0);
    const Outcome fromInput{folder.runReading("commands", {"shell"})};
    QCOMPARE(fromInput.output, QString{});
    QCOMPARE(fromInput.errors,
             lines({"pilotel-ctl: line 1: standard input: the commands are read from there; name a file"}));
    QCOMPARE(fromInput.status, 2);
}

void CtlProfilesTest::saysWhyAFileIsNotWritten()
{
    CtlFolder folder;
    const Outcome outcome{folder.run({"profile", "save", "nowhere/p.toml"})};
#ifdef Q_OS_WIN
    const QString ofSystem{"Path not found."};
#else
    const QString ofSystem{"No such file or directory"};
#endif
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: nowhere/p.toml: " + ofSystem}));
    QCOMPARE(outcome.status, 2);
}

PILOTEL_TEST_CLASS(CtlProfilesTest)
#include "tst_ctl_profiles.moc"
