// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The settings of the camera from the shell: ports, info, list, get, set, store.
#include "ctlrun.h"
#include "testclass.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QRegularExpression>
#include <QSerialPortInfo>
#include <QString>
#include <QStringList>
#include <QTest>

class CtlSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void namesThePorts();
    void saysThatThereIsNoPort();
#if defined(Q_OS_UNIX)
    void saysThatItCannotWrite_data();
    void saysThatItCannotWrite();
    void keepsItsStatusWhereItCannotWrite();
    void endsWellWithoutAReader();
#endif
    void tellsWhoTheUnitsAre();
    void listsEverySetting();
    void listsWhatANameBeginsWith();
    void listsAsJson();
    void listsAsJsonWhatIsNotAnswered();
    void gets_data();
    void gets();
    void sets_data();
    void sets();
    void refusesWrongUse_data();
    void refusesWrongUse();
    void putsBackWhatItHasSet();
    void saysWhatCouldNotBePutBack();
    void sendsAnOptionalRegionWithItsFlag();
    void storesTheSettings_data();
    void storesTheSettings();
    void saysWhichUnitDoesNotStore();
    void storesNothingWhereAUnitIsGone_data();
    void storesNothingWhereAUnitIsGone();
    void choosesTheSpeedOfTheLink();
    void opensAndClosesAsTheWindowDoes();
    void showsTextOfTheDeviceWithoutControlCharacters();
};

namespace
{

QStringList portsOfHost()
{
    QStringList names;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        names.append(port.portName());
    }
    return names;
}

} // namespace

void CtlSettingsTest::namesThePorts()
{
    const Outcome outcome{CtlFolder{}.run({"ports"})};
    QCOMPARE(outcome.output, lines(portsOfHost() + QStringList{"SIM1"}));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
}

void CtlSettingsTest::saysThatThereIsNoPort()
{
    const Outcome outcome{CtlFolder{"no-ports"}.run({"ports"})};
    const QStringList ofHost{portsOfHost()};
    if (!ofHost.isEmpty()) {
        QCOMPARE(outcome.output, lines(ofHost));
        QCOMPARE(outcome.errors, QString{});
        QCOMPARE(outcome.status, 0);
        return;
    }
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors,
             lines({"pilotel-ctl: No port found. Plug the camera in, or name a port with --port."}));
    QCOMPARE(outcome.status, 3);
}

#if defined(Q_OS_UNIX)
void CtlSettingsTest::saysThatItCannotWrite_data()
{
    QTest::addColumn<QString>("command");
    for (const char *const command :
         {"ports", "info", "list", "list --json", "get camera", "--help", "--version", "profile save -"}) {
        QTest::addRow("%s", command) << QString{command};
    }
}

void CtlSettingsTest::saysThatItCannotWrite()
{
    QFETCH(const QString, command);
    const Outcome outcome{
        run("bash", {"-c", R"("$0" )" + command + " >/dev/full", CTL}, CtlFolder{}.environment)};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: Standard output could not be written."}));
    QCOMPARE(outcome.status, 2);
}

void CtlSettingsTest::keepsItsStatusWhereItCannotWrite()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"getSerialNumber\"\nonCall = 1\neffect = \"refuse\"\n");
    const Outcome outcome{run("bash", {"-c", R"("$0" info >/dev/full)", CTL}, folder.environment)};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: blendUnit.serialNumber answers 0; 1 or more is allowed",
                                    "pilotel-ctl: Standard output could not be written."}));
    QCOMPARE(outcome.status, 1);
}

void CtlSettingsTest::endsWellWithoutAReader()
{
    const Outcome outcome{run("bash", {"-c", R"("$0" list | head -n 1; exit "${PIPESTATUS[0]}")", CTL},
                              CtlFolder{}.environment)};
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.output.count('\n'), 1);
    QCOMPARE(outcome.status, 0);
}
#endif

void CtlSettingsTest::tellsWhoTheUnitsAre()
{
    const Outcome outcome{CtlFolder{}.run({"info"})};
    QCOMPARE(outcome.output,
             lines({"Port SIM1", "Blend Unit", "  serial number                2063",
                    "  processor                    1.3.0 Beta2", "  FPGA                         2.1.0.4",
                    "  temperature of the sensor    27.8 degrees C",
                    "  temperature of the FPGA      48.4 degrees C", "  built-in test                0x1",
                    "Camera", "  serial number                10417", "  serial number of the sensor  558201",
                    "  processor                    2.1.4", "  FPGA                         3.0.6 MIPI 60Hz",
                    "  operating time               1223.6 h", "  starts                       412",
                    "  temperature of the sensor    23.5 degrees C",
                    "  temperature of the FPGA      41.1 degrees C"}));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
}

void CtlSettingsTest::listsEverySetting()
{
    const Outcome outcome{CtlFolder{}.run({"list"})};
    const QStringList rows{outcome.output.split('\n', Qt::SkipEmptyParts)};
    QVERIFY(rows.first().startsWith("NAME "));
    // Those of the Blend Unit, of the camera, and of the configuration.
    QCOMPARE(rows.filter(QRegularExpression{"^blendUnit\\."}).size(), 38);
    QCOMPARE(rows.filter(QRegularExpression{"^camera\\."}).size(), 57);
    QCOMPARE(rows.filter(QRegularExpression{"^configuration\\."}).size(), 54);
    QCOMPARE(outcome.status, 0);
}

void CtlSettingsTest::listsWhatANameBeginsWith()
{
    const Outcome outcome{CtlFolder{}.run(
        {"list", "camera.ahcGainLimitation", "camera.colorLut", "camera.gamma", "camera.serialNumber"})};
    const QString expected{
        "NAME                            VALUE          UNIT     KIND             MEANING                                            CAN BE\n"
        "camera.ahcGainLimitation.black  20             %        8-bit unsigned   Limit of the adaptive histogram's gain, black      0 to 100\n"
        "camera.ahcGainLimitation.white  80             %        8-bit unsigned   Limit of the adaptive histogram's gain, white      0 to 100\n"
        "camera.colorLut                 0 (greyscale)           8-bit unsigned   Colour table, by its place in the list             greyscale, iron, hot, rainbow, ncar, cubehelix, coolwarm or greyscale-ycbcr, or 0 to 7\n"
        "camera.gamma                    65536 (1)      1/65536  32-bit unsigned  Gamma correction in 16.16 fixed point: 65536 is 1  0.5 to 2.5, or 32768 to 163840\n"
        "camera.serialNumber             10417                   32-bit unsigned  Serial number of the unit                          only read\n"};
    QCOMPARE(outcome.output, expected);
}

void CtlSettingsTest::listsAsJson()
{
    const Outcome outcome{CtlFolder{}.run({"list", "--json"})};
    QCOMPARE(outcome.status, 0);
    const QJsonObject document{QJsonDocument::fromJson(outcome.output.toUtf8()).object()};
    QCOMPARE(document["port"].toString(), QString{"SIM1"});
    QJsonObject gamma;
    QJsonObject polarity;
    const QJsonArray settings = document["settings"].toArray();
    for (const QJsonValue &setting : settings) {
        if (setting["name"] == "camera.gamma") {
            gamma = setting.toObject();
        } else if (setting["name"] == "camera.polarity") {
            polarity = setting.toObject();
        }
    }
    const QJsonObject expectedGamma{{"name", "camera.gamma"},
                                    {"value", 65536},
                                    {"words", "1"},
                                    {"kind", "32-bit unsigned"},
                                    {"minimum", 32768},
                                    {"maximum", 163840},
                                    {"only", QJsonArray{}},
                                    {"names", QJsonArray{}},
                                    {"quantity", "1/65536"},
                                    {"canBeSet", true},
                                    {"meaning", "Gamma correction in 16.16 fixed point: 65536 is 1"}};
    QCOMPARE(gamma, expectedGamma);
    QCOMPARE(polarity["value"], QJsonValue{false});
    QCOMPARE(document["settings"].toArray().size(), 149);
}

void CtlSettingsTest::listsAsJsonWhatIsNotAnswered()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"getGamma\"\neffect = \"refuse\"\n");
    const Outcome outcome{folder.run({"list", "--json", "camera.gamma"})};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: camera.gamma answers 0; 32768 to 163840 is allowed"}));
    QCOMPARE(outcome.status, 1);
    const QJsonObject document{QJsonDocument::fromJson(outcome.output.toUtf8()).object()};
    const QJsonValue gamma{document["settings"].toArray().first()};
    QCOMPARE(gamma["name"].toString(), QString{"camera.gamma"});
    QVERIFY(gamma["value"].isNull());
    QVERIFY(gamma["words"].isNull());
}

void CtlSettingsTest::gets_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const QStringList &names, const QStringList &expected) {
        QTest::addRow("%s", qPrintable(names.join(' '))) << names << expected;
    };
    row({"camera.clhe"}, {"camera.clhe = 2000"});
    row({"camera.gamma"}, {"camera.gamma = 65536  # 1"});
    row({"camera.polarity"}, {"camera.polarity = false"});
    row({"camera.frameRate"}, {"camera.frameRate = 60"});
    row({"blendUnit.videoMode"}, {"blendUnit.videoMode = 2  # fusion"});
    row({"camera.temperatures.sensorMillikelvin"},
        {"camera.temperatures.sensorMillikelvin = 296650  # 23.5 degrees C"});
    row({"camera.edgeCorrection"},
        {"camera.edgeCorrection.type = 0  # none", "camera.edgeCorrection.gain = 64",
         "camera.edgeCorrection.firstThreshold = 20", "camera.edgeCorrection.secondThreshold = 60"});
    row({"configuration.gskMinimum", "camera.gsk"}, {"configuration.gskMinimum = 1", "camera.gsk = 2"});
}

void CtlSettingsTest::gets()
{
    QFETCH(const QStringList, names);
    QFETCH(const QStringList, expected);
    const Outcome outcome{CtlFolder{}.run(QStringList{"get"} + names)};
    QCOMPARE(outcome.output, lines(expected));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
}

void CtlSettingsTest::sets_data()
{
    QTest::addColumn<QStringList>("assignments");
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QStringList>("output");
    const auto row = [](const QStringList &assignments, const QStringList &commands,
                        const QStringList &output) {
        QTest::addRow("%s", qPrintable(assignments.join(' '))) << assignments << commands << output;
    };
    row({"camera.gamma=2.2"}, {"setGamma(144179)"}, {"camera.gamma = 144179  # 2.2"});
    row({"camera.gamma=1"}, {"setGamma(65536)"}, {"camera.gamma = 65536  # 1"});
    row({"camera.gamma=163840"}, {"setGamma(163840)"}, {"camera.gamma = 163840  # 2.5"});
    row({"camera.colorLut=iron"}, {"setColorLut(1)"}, {"camera.colorLut = 1  # iron"});
    row({"camera.colorLut=IRON"}, {"setColorLut(1)"}, {"camera.colorLut = 1  # iron"});
    row({"camera.colorLut=7"}, {"setColorLut(7)"}, {"camera.colorLut = 7  # greyscale-ycbcr"});
    row({"camera.polarity=on"}, {"setPolarity(true)"}, {"camera.polarity = true"});
    row({"camera.polarity=0"}, {"setPolarity(false)"}, {"camera.polarity = false"});
    row({"camera.frameRate=25"}, {"setFrameRate(25)"}, {"camera.frameRate = 25"});
    row({"blendUnit.startingMode=current"}, {"setStartingMode(3)"},
        {"blendUnit.startingMode = 3  # current"});
    row({"camera.edgeCorrection.gain=100"}, {"configureEdgeCorrection(0, 100, 20)"},
        {"camera.edgeCorrection.gain = 100"});
    row({"camera.edgeCorrection.type=contouring", "camera.edgeCorrection.firstThreshold=30"},
        {"configureEdgeCorrection(2, 64, 30)"},
        {"camera.edgeCorrection.type = 2  # contouring", "camera.edgeCorrection.firstThreshold = 30"});
    row({"blendUnit.warp1.a12=-3"}, {"setWarp(1, 1, 0, -3, 1, 0, 0)"}, {"blendUnit.warp1.a12 = -3"});
    row({"blendUnit.videoMode=infrared", "camera.clhe=0"}, {"setVideoMode(0)", "setClhe(0)"},
        {"blendUnit.videoMode = 0  # infrared", "camera.clhe = 0"});
}

void CtlSettingsTest::sets()
{
    QFETCH(const QStringList, assignments);
    QFETCH(const QStringList, commands);
    QFETCH(const QStringList, output);
    CtlFolder folder;
    const Outcome outcome{folder.run(QStringList{"set"} + assignments)};
    QCOMPARE(outcome.output, lines(output));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(folder.commands(), commands);
}

void CtlSettingsTest::refusesWrongUse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("errors");
    const auto row = [](const QStringList &arguments, const QStringList &errors) {
        QTest::addRow("%s", qPrintable(arguments.join(' '))) << arguments << errors;
    };
    const char *const help{R"(Try "pilotel-ctl --help".)"};
    row({}, {"A subcommand is required", help});
    row({"gett"}, {R"(There is no command "gett"; did you mean "get"?)", help});
    row({"--frob"}, {R"(There is no option "--frob")", help});
    row({"--prot", "SIM1", "info"}, {R"(There is no option "--prot"; did you mean "--port"?)", help});
    row({"list", "--josn=1"}, {R"(There is no option "--josn"; did you mean "--json"?)", help});
    row({"watch", "temperature"},
        {R"(There is no command "temperature"; did you mean "temperatures"?)", help});
    row({"profile"}, {"A subcommand is required", help});
    row({"info", "\x1b[31m"}, {R"("\x1b[31m" is too much.)", help});
    row({"info", "--port"}, {"--port needs a value", help});
    row({"info", "--bogus", "--port"}, {"--port needs a value", help});
    row({"--port", "SIM1", "--port", "SIM2", "info"}, {"--port is there more than once", help});
    row({"get"}, {"NAME is required", help});
    row({"get", "camera.gama"}, {R"(There is no setting "camera.gama"; did you mean "camera.gamma"?)"});
    row({"get", "gamma"}, {R"(There is no setting "gamma"; did you mean "camera.gamma"?)"});
    row({"get", "camera.zzzzzzzz"},
        {R"(There is no setting "camera.zzzzzzzz"; "pilotel-ctl list" tells all of them)"});
    row({"get", "\x1b[31m"}, {R"(There is no setting "\x1b[31m"; "pilotel-ctl list" tells all of them)"});
    row({"set", "=5"}, {R"("=5" is no NAME=VALUE, such as camera.gamma=2.2.)"});
    row({"get", "camera.gam"}, {R"(There is no setting "camera.gam"; did you mean "camera.gamma"?)"});
    row({"set", "camera.gamma"}, {R"("camera.gamma" is no NAME=VALUE, such as camera.gamma=2.2.)"});
    row({"set", "camera.gamma=3"},
        {R"(camera.gamma cannot be "3": 0.5 to 2.5, or 32768 to 163840 is allowed)"});
    row({"set", "camera.gamma="},
        {R"(camera.gamma cannot be "": 0.5 to 2.5, or 32768 to 163840 is allowed)"});
    row({"set", "camera.clhe=nan"}, {R"(camera.clhe cannot be "nan": 0 to 30000 is allowed)"});
    row({"set", "camera.clhe=1.5"}, {R"(camera.clhe cannot be "1.5": 0 to 30000 is allowed)"});
    row({"set", "camera.clhe=1e999"}, {R"(camera.clhe cannot be "1e999": 0 to 30000 is allowed)"});
    row({"set", "camera.frameRate=24"},
        {R"(camera.frameRate cannot be "24": 9, 25, 30, 50 or 60 is allowed)"});
    row({"set", "camera.contrastType=clah"},
        {R"(camera.contrastType cannot be "clah": clhe or clahe, or 0 to 1 is allowed)"});
    row({"set", "camera.polarity=2"}, {R"(camera.polarity cannot be "2": true or false is allowed)"});
    row({"set", "camera.gsk=4"}, {R"(camera.gsk cannot be "4": 1 to 3 is allowed)"});
    row({"set", "blendUnit.warp0.a11=1.5"},
        {R"(blendUnit.warp0.a11 cannot be "1.5": -32768 to 65536, without fractions, is allowed)"});
    row({"set", "camera.serialNumber=1"},
        {"camera.serialNumber cannot be set: the unit tells it, and nothing changes it."});
    row({"set", "configuration.gskMinimum=1"},
        {"configuration.gskMinimum belongs to the device library and cannot be set."});
    row({"set", "camera.clhe=1", "camera.clhe=2"}, {"camera.clhe is named twice."});
    row({"store", "factory"}, {"SET: factory not in {user,expert}", help});
    row({"--baud-rate", "300", "info"}, {"--baud-rate: 300 not in {9600,115200}", help});
}

void CtlSettingsTest::refusesWrongUse()
{
    QFETCH(const QStringList, arguments);
    QFETCH(QStringList, errors);
    CtlFolder folder;
    const Outcome outcome{folder.run(arguments)};
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors, lines(errors.replaceInStrings(QRegularExpression{"^"}, "pilotel-ctl: ")));
    QCOMPARE(outcome.status, 2);
    // No device is opened for a mistake.
    QCOMPARE(folder.calls().filter("openDevice"), QStringList{});
}

void CtlSettingsTest::putsBackWhatItHasSet()
{
    CtlFolder folder{"refused-warp"};
    const Outcome outcome{
        folder.run({"set", "camera.gamma=2", "camera.colorLut=hot", "blendUnit.warp0.a11=2"})};
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: blendUnit.warp0.a11 = 2 is refused by the Blend Unit.",
                                    "pilotel-ctl: Everything is as it was before."}));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(folder.commands(),
             (QStringList{"setGamma(131072)", "setColorLut(2)", "setWarp(0, 2, 0, 0, 1, 0, 0)",
                          "setWarp(0, 1, 0, 0, 1, 0, 0)", "setColorLut(0)", "setGamma(65536)"}));
}

void CtlSettingsTest::saysWhatCouldNotBePutBack()
{
    CtlFolder folder;
    folder.play("[[fault]]\n"
                "operation = \"setGamma\"\n"
                "fromCall = 2\n"
                "effect = \"refuse\"\n"
                "[[fault]]\n"
                "operation = \"setClhe\"\n"
                "effect = \"stuck\"\n");
    const Outcome outcome{folder.run({"set", "camera.gamma=2", "camera.clhe=1"})};
    QCOMPARE(
        outcome.errors,
        lines(
            {"pilotel-ctl: camera.clhe = 1 was sent, but the camera has 2000",
             "pilotel-ctl: NOT PUT BACK: camera.gamma was 65536 (1); it is 131072 (2), and setting it is refused"}));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.output, QString{});
}

void CtlSettingsTest::sendsAnOptionalRegionWithItsFlag()
{
    CtlFolder folder;
    const Outcome outcome{folder.run({"set", "camera.roi2.x1=160", "camera.roi2.x2=480"})};
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(folder.commands(),
             (QStringList{"setRoiX1(160, 2, false, true, false)", "setRoiX2(480, 2, false, true, false)"}));
}

void CtlSettingsTest::storesTheSettings_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("targets");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("output");
    // Both units answer before the first of them stores.
    QTest::newRow("user") << QStringList{"user"}
                          << QStringList{"setTarget(0)", "setTarget(1)", "setTarget(0)", "setTarget(1)"}
                          << "saveBlendUnitParameters(0)"
                          << QStringList{"The user settings of the Blend Unit are stored.",
                                         "The user settings of the camera are stored."};
    QTest::newRow("expert, one unit")
        << QStringList{"expert", "--unit", "camera"} << QStringList{"setTarget(0)", "setTarget(1)"}
        << "saveBlendUnitParameters(1)" << QStringList{"The expert settings of the camera are stored."};
}

void CtlSettingsTest::storesTheSettings()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QStringList, targets);
    QFETCH(const QString, command);
    QFETCH(const QStringList, output);
    CtlFolder folder;
    const Outcome outcome{folder.run(QStringList{"store"} + arguments)};
    QCOMPARE(outcome.output, lines(output));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(folder.calls().filter("setTarget"), targets);
    QStringList saved;
    for (int unit{0}; unit < output.size(); ++unit) {
        saved.append(command);
    }
    QCOMPARE(folder.commands(), saved);
}

void CtlSettingsTest::saysWhichUnitDoesNotStore()
{
    CtlFolder folder;
    folder.play(
        "[[fault]]\noperation = \"saveBlendUnitParameters\"\ntarget = \"blendUnit\"\neffect = \"refuse\"\n");
    const Outcome outcome{folder.run({"store", "user"})};
    QCOMPARE(outcome.output, lines({"The user settings of the camera are stored."}));
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: the Blend Unit refuses to store its user settings."}));
    QCOMPARE(outcome.status, 1);
}

void CtlSettingsTest::storesNothingWhereAUnitIsGone_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QString>("unit");
    QTest::newRow("camera") << "silent-camera"
                            << "camera";
    QTest::newRow("Blend Unit") << "silent-blend-unit"
                                << "Blend Unit";
}

void CtlSettingsTest::storesNothingWhereAUnitIsGone()
{
    QFETCH(const QString, scenario);
    QFETCH(const QString, unit);
    CtlFolder folder{scenario};
    const Outcome outcome{folder.run({"--port", "SIM1", "store", "user"})};
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors,
             lines({"pilotel-ctl: No answer from the " + unit + ": look at its power and its cable."}));
    QCOMPARE(outcome.status, 3);
    QCOMPARE(folder.commands(), QStringList{});
}

void CtlSettingsTest::choosesTheSpeedOfTheLink()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"get", "camera.gamma"}).status, 0);
    QCOMPARE(folder.calls().filter("setBaudRate"), QStringList{"setBaudRate(115200)"});
    QCOMPARE(folder.run({"get", "camera.gamma", "--baud-rate", "9600"}).status, 0);
    QCOMPARE(folder.calls().filter("setBaudRate"), QStringList{"setBaudRate(9600)"});
}

void CtlSettingsTest::opensAndClosesAsTheWindowDoes()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"get", "camera.gamma"}).status, 0);
    QStringList calls{folder.calls()};
    calls = calls.mid(calls.indexOf("getCommunicationType()"));
    QCOMPARE(calls,
             (QStringList{"getCommunicationType()", "getDefaultBaudRate()", "setBaudRate(115200)",
                          "getDeviceManager()", R"(openDevice("SIM1"))", "setTarget(0)", "connect()",
                          "setTarget(1)", "getFirmwareVersions()", "startReading()", "getGamma()",
                          "setTarget(1)", R"(closeDevice("device"))", R"(releaseDeviceManager("manager"))"}));
}

void CtlSettingsTest::showsTextOfTheDeviceWithoutControlCharacters()
{
    CtlFolder folder;
    folder.play("[configuration]\ncommunicationType = \"\\u001b[31mUSB\\n\"\n");
    const Outcome outcome{folder.run({"info"})};
    QCOMPARE(
        outcome.errors,
        lines(
            {R"(pilotel-ctl: The device library speaks through "\x1b[31mUSB\n", and only "UART" will do.)"}));
    QCOMPARE(outcome.status, 3);
}

PILOTEL_TEST_CLASS(CtlSettingsTest)
#include "tst_ctl_settings.moc"
