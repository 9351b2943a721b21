// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the camera's expert parameters: reading them, and the correction boxes.
#include "camerapage.h"
#include "controls.h"
#include "testclass.h"

#include <QByteArray>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QObject>
#include <QSlider>
#include <QString>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

namespace
{

/// The corrections whose box sends its change.
std::vector<CorrectionRow> sendingCorrections()
{
    std::vector<CorrectionRow> rows;
    std::copy_if(correctionRows.begin(), correctionRows.end(), std::back_inserter(rows),
                 [](const CorrectionRow &row) { return row.slot != nullptr; });
    return rows;
}

/// `setBprEnable(false) -> true`
QString sent(const CorrectionRow &row, bool state, bool accepted = true)
{
    return QStringLiteral("set%1(%2) -> %3")
        .arg(row.operation, state ? "true" : "false", accepted ? "true" : "false");
}

void addCorrections()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < sendingCorrections().size(); ++place) {
        QTest::newRow(sendingCorrections().at(place).checkBox) << place;
    }
}

QStringList readTold(const char *gsk, const char *gfid, const char *gms, const char *tint)
{
    return {
        "Start reading camera expert parameters",
        QString{"GSK value = "} + gsk,
        QString{"GFID value = "} + gfid,
        QString{"GMS value = "} + gms,
        QString{"TINT value = "} + tint,
        "BPR state = Enabled",
        "OFFSET state = Enabled",
        "GAIN state = Enabled",
        "Vertical flip state = Disabled",
        "End reading camera expert parameters",
    };
}

/// Clicks a check box on its indicator: it is wider than what answers to the mouse.
void clickIndicator(TestWindow &test, const char *checkBox)
{
    auto &box = test.child<QCheckBox>(checkBox);
    QVERIFY(box.isVisible() && box.isEnabled());
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, {5, box.height() / 2});
}

} // namespace

class ExpertParametersTest : public QObject
{
    Q_OBJECT

private slots:
    void readCallsAndTellsInOrder();
    void readSendsBackTheBoxesThatChange();
    void buttonReadsTheCameraAfterTheWarp();
    void readShowsValues_data();
    void readShowsValues();
    void readShowsVerticalFlip_data();
    void readShowsVerticalFlip();
    void readSendsBackOneBox_data() { addCorrections(); }
    void readSendsBackOneBox();
    void aRefusalDoesNotEndTheRead_data();
    void aRefusalDoesNotEndTheRead();
    void clickingABoxSendsItsState_data() { addCorrections(); }
    void clickingABoxSendsItsState();
    void theResultOfABoxIsDiscarded_data() { addCorrections(); }
    void theResultOfABoxIsDiscarded();
};

void ExpertParametersTest::readCallsAndTellsInOrder()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");

    test.invoke("ReadKrParamsExpert");
    const QStringList journal{
        "log(2, \"Start reading camera expert parameters\")",
        "getGsk() -> 2",
        "log(2, \"GSK value = 2\")",
        "getGfid() -> 250",
        "log(2, \"GFID value = 250\")",
        "getGms() -> 1024",
        "log(2, \"GMS value = 1024\")",
        "getTint() -> 10",
        "log(2, \"TINT value = 10\")",
        "getBprEnable() -> true",
        "log(2, \"BPR state = Enabled\")",
        "getOffsetCorrection() -> true",
        "log(2, \"OFFSET state = Enabled\")",
        "getGainCorrection() -> true",
        "log(2, \"GAIN state = Enabled\")",
        "getVerticalFlip() -> false",
        "log(2, \"Vertical flip state = Disabled\")",
        "log(2, \"End reading camera expert parameters\")",
    };
    QCOMPARE(test.takeCallsAndRecords(), journal);
    QCOMPARE(test.takeLog(), readTold("2", "250", "1024", "10"));
}

void ExpertParametersTest::readSendsBackTheBoxesThatChange()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    for (const CorrectionRow &correction : sendingCorrections()) {
        test.simulator.set(correction.key, false);
    }
    test.simulator.set("camera.verticalFlip", true);

    test.invoke("ReadKrParamsExpert");
    const QStringList journal{
        "log(2, \"Start reading camera expert parameters\")",
        "getGsk() -> 2",
        "log(2, \"GSK value = 2\")",
        "getGfid() -> 250",
        "log(2, \"GFID value = 250\")",
        "getGms() -> 1024",
        "log(2, \"GMS value = 1024\")",
        "getTint() -> 10",
        "log(2, \"TINT value = 10\")",
        "getBprEnable() -> false",
        "setBprEnable(false) -> true",
        "log(2, \"BPR state = Disabled\")",
        "getOffsetCorrection() -> false",
        "setOffsetCorrection(false) -> true",
        "log(2, \"OFFSET state = Disabled\")",
        "getGainCorrection() -> false",
        "setGainCorrection(false) -> true",
        "log(2, \"GAIN state = Disabled\")",
        "getVerticalFlip() -> true",
        "log(2, \"Vertical flip state = Enabled\")",
        "log(2, \"End reading camera expert parameters\")",
    };
    QCOMPARE(test.takeCallsAndRecords(), journal);

    // Nothing changes any more, so nothing goes back.
    test.invoke("ReadKrParamsExpert");
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});
}

void ExpertParametersTest::buttonReadsTheCameraAfterTheWarp()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");

    test.click("readParamButtonExpert");
    const QStringList calls{
        "setTarget(0) -> true",
        "getTemperatures() -> true {sensorMillikelvin=300950, fpgaMillikelvin=321550}",
        "getWarp(0) -> true {a11=1, a21=0, a12=0, a22=1, a13=0, a23=0}",
        "setTarget(1) -> true",
        "getTemperatures() -> true {sensorMillikelvin=296650, fpgaMillikelvin=314250}",
        "getGsk() -> 2",
        "getGfid() -> 250",
        "getGms() -> 1024",
        "getTint() -> 10",
        "getBprEnable() -> true",
        "getOffsetCorrection() -> true",
        "getGainCorrection() -> true",
        "getVerticalFlip() -> false",
        "setTarget(1) -> true",
        "getTemperatures() -> true {sensorMillikelvin=296650, fpgaMillikelvin=314250}",
    };
    QCOMPARE(test.takeCalls(), calls);
    const QStringList switched{"target correctly changed"};
    QCOMPARE(test.takeLog(), switched + switched + readTold("2", "250", "1024", "10") + switched);
}

void ExpertParametersTest::readShowsValues_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("shown");
    const auto row = [](const char *name, qint64 value, int position, double shown) {
        QTest::addRow("%s %lld", name, value) << QByteArray{name} << value << position << shown;
    };
    row("gsk", 3, 3, 3.0);
    row("gsk", 99, 3, 3.0);
    row("gsk", 0, 1, 1.0);
    row("gsk", 4294967295, 3, 3.0);
    row("gfid", 777, 777, 777.0);
    row("gfid", 0, 0, 0.0);
    row("gfid", 1001, 1000, 1000.0);
    row("gfid", 4000000000, 1000, 1000.0);
    row("gms", 4095, 4095, 4095.0);
    // The box of GMS reaches beyond its slider, which cannot move any more when the box is set.
    row("gms", 4096, 4095, 4096.0);
    row("gms", 4294967295, 4095, 4294967295.0);
    row("tint", 20, 20, 20.0);
    row("tint", 21, 20, 20.0);
    row("tint", 2147483648, 20, 20.0);
}

void ExpertParametersTest::readShowsValues()
{
    QFETCH(const QByteArray, name);
    QFETCH(const qint64, value);
    QFETCH(const int, position);
    QFETCH(const double, shown);
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    test.simulator.set("camera." + name.toStdString(), value);

    test.invoke("ReadKrParamsExpert");
    const QString label{QString{name}.toUpper() + " value = "};
    QCOMPARE(linesOf(test.takeLog(), label), QStringList{label + QString::number(value)});
    QCOMPARE(test.child<QSlider>(name + "Slider").value(), position);
    QCOMPARE(test.child<QDoubleSpinBox>(name + "Edit").value(), shown);
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});
}

void ExpertParametersTest::readShowsVerticalFlip_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<QString>("line");
    QTest::newRow("on") << true << "Vertical flip state = Enabled";
    QTest::newRow("off") << false << "Vertical flip state = Disabled";
}

void ExpertParametersTest::readShowsVerticalFlip()
{
    QFETCH(const bool, on);
    QFETCH(const QString, line);
    TestWindow test{[&](auto &simulator) {
        simulator.set("camera.verticalFlip", !on);
    }};
    openCameraPage(test, "ExpertMode");
    QCOMPARE(test.child<QCheckBox>("verticalFlipCheckBox").isChecked(), !on);
    test.simulator.set("camera.verticalFlip", on);

    test.invoke("ReadKrParamsExpert");
    QCOMPARE(test.child<QCheckBox>("verticalFlipCheckBox").isChecked(), on);
    QCOMPARE(linesOf(test.takeLog(), "Vertical flip"), QStringList{line});
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{});
}

void ExpertParametersTest::readSendsBackOneBox()
{
    QFETCH(const std::size_t, place);
    const CorrectionRow correction{sendingCorrections().at(place)};
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    letACommandFail(test);

    test.simulator.set(correction.key, false);
    test.invoke("ReadKrParamsExpert");
    QVERIFY(!test.child<QCheckBox>(correction.checkBox).isChecked());
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{sent(correction, false)});
    QCOMPARE(linesOf(test.takeLog(), correction.label), QStringList{QString{correction.label} + "Disabled"});

    test.simulator.set(correction.key, true);
    test.invoke("ReadKrParamsExpert");
    QVERIFY(test.child<QCheckBox>(correction.checkBox).isChecked());
    QCOMPARE(commandsOf(test.takeCalls()), QStringList{sent(correction, true)});
    QCOMPARE(test.takeLog(), readTold("2", "250", "1024", "10"));
    QVERIFY(!test.lastCommandOk());
}

void ExpertParametersTest::aRefusalDoesNotEndTheRead_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QStringList>("commands");
    const auto row = [](const char *operation, int line, const char *told, const QStringList &commands = {}) {
        QTest::newRow(operation) << QByteArray{operation} << line << told << commands;
    };
    row("getGsk", 1, "GSK value = 0");
    row("getGfid", 2, "GFID value = 0");
    row("getGms", 3, "GMS value = 0");
    row("getTint", 4, "TINT value = 0");
    row("getBprEnable", 5, "BPR state = Disabled", {"setBprEnable(false) -> true"});
    row("getOffsetCorrection", 6, "OFFSET state = Disabled", {"setOffsetCorrection(false) -> true"});
    row("getGainCorrection", 7, "GAIN state = Disabled", {"setGainCorrection(false) -> true"});
    row("getVerticalFlip", 8, "Vertical flip state = Disabled");
}

void ExpertParametersTest::aRefusalDoesNotEndTheRead()
{
    QFETCH(const QByteArray, operation);
    QFETCH(const int, line);
    QFETCH(const QString, told);
    QFETCH(const QStringList, commands);
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    test.simulator.addFault({operation.toStdString()});

    test.invoke("ReadKrParamsExpert");
    QStringList log{readTold("2", "250", "1024", "10")};
    log.replace(line, told);
    QCOMPARE(test.takeLog(), log);
    QCOMPARE(commandsOf(test.takeCalls()), commands);
}

void ExpertParametersTest::clickingABoxSendsItsState()
{
    QFETCH(const std::size_t, place);
    const CorrectionRow correction{sendingCorrections().at(place)};
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    QVERIFY(test.child<QCheckBox>(correction.checkBox).isChecked());

    clickIndicator(test, correction.checkBox);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{sent(correction, false)});
    QVERIFY(!test.child<QCheckBox>(correction.checkBox).isChecked());

    clickIndicator(test, correction.checkBox);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{sent(correction, true)});
    QVERIFY(test.child<QCheckBox>(correction.checkBox).isChecked());
    QCOMPARE(test.takeLog(), QStringList{});
}

void ExpertParametersTest::theResultOfABoxIsDiscarded()
{
    QFETCH(const std::size_t, place);
    const CorrectionRow correction{sendingCorrections().at(place)};
    TestWindow test;
    openCameraPage(test, "ExpertMode");

    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({std::string{"set"} + correction.operation});
    clickIndicator(test, correction.checkBox);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{sent(correction, false, false)});
    QVERIFY(test.lastCommandOk());
    QVERIFY(!test.child<QCheckBox>(correction.checkBox).isChecked());

    letACommandFail(test);
    clickIndicator(test, correction.checkBox);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{sent(correction, true)});
    QVERIFY(!test.lastCommandOk());
    QCOMPARE(test.takeLog(), QStringList{});
}

PILOTEL_TEST_CLASS(ExpertParametersTest)
#include "tst_expert_parameters.moc"
