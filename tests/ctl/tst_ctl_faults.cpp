// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Single faults of the device, files that are not there, and Ctrl-C in the middle of a command.
#include "ctlrun.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#if defined(Q_OS_UNIX)
#include <QProcess>

#include <csignal>
#include <sys/types.h>
#endif

class CtlFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatTheDeviceDid_data();
    void tellsWhatTheDeviceDid();
    void keepsTheOtherRegionsOn_data();
    void keepsTheOtherRegionsOn();
    void tellsALibraryWithoutItsObjects_data();
    void tellsALibraryWithoutItsObjects();
    void tellsAFileThatIsNotThere_data();
    void tellsAFileThatIsNotThere();
    void showsTheVersionOfEveryKindOfCamera_data();
    void showsTheVersionOfEveryKindOfCamera();
#if defined(Q_OS_UNIX)
    void tellsThatTheReadingsAreLost();
    void isInterrupted_data();
    void isInterrupted();
#endif
};

namespace
{

const QString restored{"Everything is as it was before."};

QString fault(const QString &operation, const QString &rest)
{
    return "[[fault]]\noperation = \"" + operation + "\"\n" + rest + '\n';
}

} // namespace

void CtlFaultsTest::tellsWhatTheDeviceDid_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("errors");
    const auto row = [](const char *name, const QString &scenario, const QStringList &arguments, int status,
                        const QStringList &errors) {
        QTest::newRow(name) << scenario << arguments << status << errors;
    };
    const QString refuse{"effect = \"refuse\""};
    row("a number that cannot be sent stands beside", "[blendUnit]\nwarp0.a12 = 0.5\n",
        {"set", "blendUnit.warp0.a11=2"}, 1,
        {"blendUnit.warp0.a12 is 0.5, and only whole numbers can be sent.", "Nothing was changed."});
    row("what was set is not answered", fault("getGamma", "onCall = 3\n" + refuse),
        {"set", "camera.gamma=2.2"}, 1,
        {"camera.gamma = 144179 (2.2) was sent, but then camera.gamma answers 0; 32768 to 163840 is allowed",
         restored});
    row("nothing is answered from then on", fault("getGamma", "fromCall = 3\n" + refuse),
        {"set", "camera.gamma=2.2"}, 1,
        {"camera.gamma = 144179 (2.2) was sent, but then camera.gamma answers 0; 32768 to 163840 is allowed",
         "NOT PUT BACK: camera.gamma was 65536 (1); camera.gamma answers 0; 32768 to 163840 is allowed"});
    row("what is stuck is lost as what was sent",
        fault("setClhe", "effect = \"stuck\"") + fault("getClhe", "onCall = 3\n" + refuse),
        {"set", "camera.clhe=0"}, 1,
        {"camera.clhe = 0 was sent, but then camera.clhe answers 0, then 2000", restored});
    row("what is not put back is lost as what was there",
        "[camera]\nclhe = 0\n" + fault("setClhe", "fromCall = 2\n" + refuse) + fault("setTint", refuse) +
            fault("getClhe", "onCall = 5\n" + refuse),
        {"set", "camera.clhe=5", "camera.tint=5"}, 1,
        {"camera.tint = 5 is refused by the camera.",
         "NOT PUT BACK: camera.clhe was 0; it is 5, and setting it is refused"});
    row("what is acknowledged is not put back",
        fault("setClhe", "fromCall = 2\neffect = \"stuck\"") + fault("setTint", refuse),
        {"set", "camera.clhe=5", "camera.tint=5"}, 1,
        {"camera.tint = 5 is refused by the camera.", "NOT PUT BACK: camera.clhe was 2000; it is 5"});
    row("what is put back is lost once", fault("setTint", refuse) + fault("getClhe", "onCall = 5\n" + refuse),
        {"set", "camera.clhe=5", "camera.tint=5"}, 1,
        {"camera.tint = 5 is refused by the camera.", restored});
    row("another number of the setting changes",
        fault("getEdgeCorrection", "fromCall = 3\ntimes = 2\neffect = \"answer\"\nanswer = [2, 100, 20, 60]"),
        {"set", "camera.edgeCorrection.gain=100"}, 1,
        {"camera.edgeCorrection was sent, and another number of it has changed.", restored});
    row("two numbers of a setting are not put back",
        fault("setClhe", refuse) + fault("configureEdgeCorrection", "fromCall = 2\n" + refuse),
        {"set", "camera.edgeCorrection.type=contouring", "camera.edgeCorrection.gain=100", "camera.clhe=5"},
        1,
        {"camera.clhe = 5 is refused by the camera.",
         "NOT PUT BACK: camera.edgeCorrection.type was 0 (none), camera.edgeCorrection.gain was 64; it is 2 "
         "(contouring), 100, and setting it is refused"});
    row("the first unit is addressed at the second attempt", fault("setTarget", "once = true\n" + refuse),
        {"get", "blendUnit.videoMode"}, 0, {});
    row("a unit without a version of its processor", "[camera]\nfirmwareVersions.processor = 0\n",
        {"get", "camera.gamma"}, 0, {});
    row("a profile of a unit without a number", fault("getSerialNumber", refuse),
        {"profile", "save", "new.toml"}, 0, {});
    row("the first unit does not say its number", fault("getSerialNumber", "onCall = 1\n" + refuse), {"info"},
        1, {"blendUnit.serialNumber answers 0; 1 or more is allowed"});
    row("nobody says who it is", fault("connect", refuse), {"info"}, 3,
        {"What is on the port SIM1 does not say who it is."});
    row("neither unit stores", fault("saveBlendUnitParameters", refuse), {"store", "expert"}, 1,
        {"the Blend Unit refuses to store its expert settings.",
         "the camera refuses to store its expert settings."});
    row("the table of bad pixels is not read", fault("readBprTable", refuse), {"bad-pixels", "read"}, 1,
        {"The table of bad pixels could not be read from the camera."});
    row("a serial number that cannot be", fault("getSerialNumber", refuse), {"bad-pixels", "list"}, 1,
        {"camera.serialNumber answers 0; 1 or more is allowed",
         "So it is not known which file belongs to the camera."});
}

void CtlFaultsTest::tellsWhatTheDeviceDid()
{
    QFETCH(const QString, scenario);
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QFETCH(const QStringList, errors);
    CtlFolder folder;
    folder.play(scenario);
    const Outcome outcome{folder.run(arguments)};
    QStringList expected{errors};
    for (QString &error : expected) {
        error.prepend("pilotel-ctl: ");
    }
    QCOMPARE(outcome.errors, lines(expected));
    QCOMPARE(outcome.status, status);
    QCOMPARE(folder.calls().last(), QString{"releaseDeviceManager(\"manager\")"});
}

void CtlFaultsTest::keepsTheOtherRegionsOn_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("region");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QStringList>("commands");
    const auto rows = [](const QString &command, const QStringList &arguments) {
        QTest::addRow("%s", qPrintable(command)) << arguments << QString{} << QString{} << QString{}
                                                 << QStringList{"setRoiX1(20, 0, true, true, true)"};
        for (int number{1}; number <= 3; ++number) {
            const QString region{QString::number(number)};
            const QString answers{"camera.roi" + region + ".x1 answers "};
            QTest::addRow("%s, region %d is lost", qPrintable(command), number)
                << arguments << region << "1" << answers + "0, then " + region << QStringList{};
            QTest::addRow("%s, region %d is lost at the second reading", qPrintable(command), number)
                << arguments << region << "2" << answers + region + ", then 0" << QStringList{};
        }
    };
    rows("set", {"set", "camera.roi0.x1=20"});
    rows("apply", {"profile", "apply", "wanted.toml"});
}

void CtlFaultsTest::keepsTheOtherRegionsOn()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, region);
    QFETCH(const QString, call);
    QFETCH(const QString, error);
    QFETCH(const QStringList, commands);
    CtlFolder folder;
    folder.write("wanted.toml", "camera.roi0.x1 = 20\n");
    const QString lost{fault("getRoiX1", QString{"target = \"camera\"\n"
                                                 "argument = { place = 1, minimum = %1, maximum = %1 }\n"
                                                 "onCall = %2\n"
                                                 "effect = \"refuse\""}
                                             .arg(region, call))};
    folder.play("[camera]\nroi1.x1 = 1\nroi2.x1 = 2\nroi3.x1 = 3\n" + (region.isEmpty() ? QString{} : lost));
    const Outcome outcome{folder.run(arguments)};
    QCOMPARE(outcome.errors, error.isEmpty()
                                 ? QString{}
                                 : lines({"pilotel-ctl: " + error, "pilotel-ctl: Nothing was changed."}));
    QCOMPARE(outcome.status, error.isEmpty() ? 0 : 1);
    QCOMPARE(folder.commands(), commands);
}

void CtlFaultsTest::tellsALibraryWithoutItsObjects_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("error");
    QTest::newRow("root") << "get_instance"
                          << "The device library has no root object.";
    QTest::newRow("configuration") << "getConfiguration"
                                   << "The device library has no configuration.";
    QTest::newRow("manager") << "getDeviceManager"
                             << "No device opens on the port SIM1. Is it the right one, and does no other "
                                "program hold it?";
}

void CtlFaultsTest::tellsALibraryWithoutItsObjects()
{
    QFETCH(const QString, operation);
    QFETCH(const QString, error);
    CtlFolder folder;
    folder.play(fault(operation, "effect = \"refuse\""));
    const Outcome outcome{folder.run({"get", "camera.gamma"})};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: " + error}));
    QCOMPARE(outcome.status, 3);
    QCOMPARE(folder.calls().filter("openDevice"), QStringList{});
}

void CtlFaultsTest::tellsAFileThatIsNotThere_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("file");
    const auto row = [](const QStringList &arguments, const char *file) {
        QTest::addRow("%s", qPrintable(arguments.join(' '))) << arguments << QString{file};
    };
    row({"profile", "apply", "no.toml"}, "no.toml");
    row({"profile", "diff", "no.toml"}, "no.toml");
    row({"profile", "save", "no/new.toml"}, "no/new.toml");
    row({"shell", "no.txt"}, "no.txt");
    row({"watch", "temperatures", "--csv", "no/t.csv"}, "no/t.csv");
}

void CtlFaultsTest::tellsAFileThatIsNotThere()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, file);
    CtlFolder folder;
    const Outcome outcome{folder.run(arguments)};
#if defined(Q_OS_WIN)
    // As Wine says it.
    const QString why{file.contains('/') ? "Path not found." : "File not found."};
#else
    const QString why{"No such file or directory"};
#endif
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: " + file + ": " + why}));
    QCOMPARE(outcome.status, 2);
    QCOMPARE(folder.commands(), QStringList{});
}

void CtlFaultsTest::showsTheVersionOfEveryKindOfCamera_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("version");
    QTest::newRow("60 Hz") << "0x0306"
                           << "3.0.6 60Hz";
    QTest::newRow("9 Hz") << "0x1306"
                          << "3.0.6 9Hz";
    QTest::newRow("60 Hz with MIPI") << "0x2306"
                                     << "3.0.6 MIPI 60Hz";
    QTest::newRow("9 Hz with MIPI") << "0x3306"
                                    << "3.0.6 MIPI 9Hz";
}

void CtlFaultsTest::showsTheVersionOfEveryKindOfCamera()
{
    QFETCH(const QString, word);
    QFETCH(const QString, version);
    CtlFolder folder;
    folder.play("[camera]\nfirmwareVersions.fpga = " + word + '\n');
    const Outcome outcome{folder.run({"info"})};
    QVERIFY2(outcome.output.contains("  FPGA                         " + version + '\n'),
             qPrintable(outcome.output));
}

#if defined(Q_OS_UNIX)
void CtlFaultsTest::tellsThatTheReadingsAreLost()
{
    CtlFolder folder;
    const Outcome outcome{folder.run({"watch", "temperatures", "--csv", "/dev/full"})};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: /dev/full: No space left on device"}));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(folder.calls().last(), QString{"releaseDeviceManager(\"manager\")"});
}

void CtlFaultsTest::isInterrupted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("calls"); ///< After so many the signal comes.
    QTest::addColumn<int>("signal");
    const auto row = [](const QStringList &arguments, int calls, int signal) {
        QTest::addRow("%s", qPrintable(arguments.join(' '))) << arguments << calls << signal;
    };
    row({"info"}, 20, SIGINT);
    row({"list"}, 20, SIGINT);
    row({"get", "camera"}, 20, SIGTERM);
    row({"profile", "save", "new.toml"}, 20, SIGINT);
    row({"bad-pixels", "add", "--row", "5"}, 30, SIGINT);
    row({"bad-pixels", "remove", "--column", "5"}, 30, SIGTERM);
}

void CtlFaultsTest::isInterrupted()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, calls);
    QFETCH(const int, signal);
    CtlFolder folder;
    folder.play("[link]\nkind = \"fixed\"\nmillisecondsPerCall = 20\n");
    QProcess process;
    process.setProcessEnvironment(folder.environment);
    process.setWorkingDirectory(folder.path("."));
    process.start(CTL, arguments);
    QTRY_VERIFY_WITH_TIMEOUT(folder.calls().size() > calls, 30000);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardError(), QByteArray{"pilotel-ctl: Interrupted.\n"});
    QVERIFY(!folder.has("new.toml"));
    QCOMPARE(folder.calls().last(), QString{"releaseDeviceManager(\"manager\")"});
    if (arguments.first() == "bad-pixels") {
        // It says how far it came.
        QVERIFY(process.readAllStandardOutput().contains(
            arguments[1] == "add" ? " of 640 pixels added to " : " of 480 pixels removed from "));
    }
}
#endif

PILOTEL_TEST_CLASS(CtlFaultsTest)
#include "tst_ctl_faults.moc"
