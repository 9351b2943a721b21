// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the expert parameters that are applied: switches, baud rate, correction request, offline defaults.
#include "camerapage.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QObject>
#include <QPushButton>
#include <QSlider>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVector>

#include <cstdint>
#include <string>

using veltrix_simulator::Simulator;

namespace
{

const char *const baudRateBox{"warning \"\" \"Problem transmitting expert parameters values\n\" [OK]"};
const char *const nucBox{R"(warning "" "Error on processing the NUC request" [OK])"};

QStringList offlineLines()
{
    return {"Start applying camera expert parameters", "End applying camera expert parameters"};
}

/// The words of the configuration record, defaults first.
QVector<qint64> wordsOf(const Simulator &simulator)
{
    QVector<qint64> words;
    for (const char *const key :
         {"gskDefault", "gmsDefault", "gfidDefault", "tintDefault", "gskMinimum", "gskMaximum", "gfidMinimum",
          "gfidMaximum", "tintMinimum", "tintMaximum", "gmsMinimum", "gmsMaximum"}) {
        words.append(std::get<std::int64_t>(simulator.get(std::string{"configuration."} + key)));
    }
    return words;
}

QVector<qint64> wordsWithDefaults(const QVector<qint64> &defaults)
{
    return defaults + QVector<qint64>{1, 3, 0, 1000, 0, 20, 0, 4095};
}

} // namespace

class ExpertSendsTest : public QObject
{
    Q_OBJECT

private slots:
    void applySendsTheSwitchesAndTheBaudRate_data();
    void applySendsTheSwitchesAndTheBaudRate();
    void applyTellsEachInOrder();
    void applyGoesOnAfterEveryRefusal();
    void applyOfflineBeforeTheFirstConnection();
    void applyOfflineAfterADisconnection();
    void applyOfflineWritesWhatTheControlsHold_data();
    void applyOfflineWritesWhatTheControlsHold();
    void whatWasWrittenOfflineIsTheNextDefault();
    void everyBaudRateIsSent_data();
    void everyBaudRateIsSent();
    void aRefusedBaudRateIsToldInABox();
    void noBaudRateIsSentAsZero();
    void permanentButtonTellsItsState();
    void nucRequestIsSent();
    void aRefusedNucRequestIsToldInABox();
    void nucRequestLeavesTheLastResult();
};

void ExpertSendsTest::applySendsTheSwitchesAndTheBaudRate_data()
{
    QTest::addColumn<QString>("switched");
    QTest::addColumn<QStringList>("commands");
    const auto row = [](const char *switched, const char *flip, const char *bpr, const char *offset,
                        const char *gain, const char *baudRate) {
        QTest::addRow("%s switched", switched)
            << switched
            << QStringList{QStringLiteral("setVerticalFlip(%1) -> true").arg(flip),
                           QStringLiteral("setBprEnable(%1) -> true").arg(bpr),
                           QStringLiteral("setOffsetCorrection(%1) -> true").arg(offset),
                           QStringLiteral("setGainCorrection(%1) -> true").arg(gain),
                           QStringLiteral("setMavlinkBaudRate(%1) -> true").arg(baudRate)};
    };
    row("verticalFlipCheckBox", "true", "true", "true", "true", "115200, false");
    row("BPRCheckBox", "false", "false", "true", "true", "115200, false");
    row("offsetCheckBox", "false", "true", "false", "true", "115200, false");
    row("gainCheckBox", "false", "true", "true", "false", "115200, false");
    row("PermanentButton", "false", "true", "true", "true", "115200, true");
}

void ExpertSendsTest::applySendsTheSwitchesAndTheBaudRate()
{
    QFETCH(const QString, switched);
    QFETCH(const QStringList, commands);
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    test.child<QAbstractButton>(switched).click();
    test.takeCalls();

    test.invoke("ApplyParamsExpert");
    QCOMPARE(commandsOf(test.takeCalls()), commands);
}

void ExpertSendsTest::applyTellsEachInOrder()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");

    test.invoke("ApplyParamsExpert");
    QCOMPARE(test.takeCallsAndRecords(), (QStringList{
                                             "log(2, \"Start applying camera expert parameters\")",
                                             "setVerticalFlip(false) -> true",
                                             "log(2, \"Set Flip vertically OK\")",
                                             "setBprEnable(true) -> true",
                                             "log(2, \"Set BPR value OK\")",
                                             "setOffsetCorrection(true) -> true",
                                             "log(2, \"Set Offset correction value OK\")",
                                             "setGainCorrection(true) -> true",
                                             "log(2, \"Set Gain correction value OK\")",
                                             "setMavlinkBaudRate(115200, false) -> true",
                                             "log(2, \"Set Mavlink baud rate value OK\")",
                                             "get_instance() -> sdk",
                                             "getConfiguration() -> configuration",
                                             "log(2, \"End applying camera expert parameters\")",
                                         }));
    QCOMPARE(test.takeLog(), (QStringList{"Start applying camera expert parameters", "Set Flip vertically OK",
                                          "Set BPR value OK", "Set Offset correction value OK",
                                          "Set Gain correction value OK", "Set Mavlink baud rate value OK",
                                          "End applying camera expert parameters"}));
    QVERIFY(test.lastCommandOk());
    QCOMPARE(wordsOf(test.simulator), wordsWithDefaults({2, 1024, 250, 10}));
}

void ExpertSendsTest::applyGoesOnAfterEveryRefusal()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    test.simulator.addFault({""});

    QStringList linesBeforeTheBox;
    test.boxes.expect([&](QDialog &box) {
        linesBeforeTheBox = test.takeLog();
        BoxWatcher::pressOk(box);
    });
    test.invoke("ApplyParamsExpert");
    QCOMPARE(test.boxes.takeShown(), QStringList{baudRateBox});
    QCOMPARE(test.takeCalls(),
             (QStringList{"setVerticalFlip(false) -> false", "setBprEnable(true) -> false",
                          "setOffsetCorrection(true) -> false", "setGainCorrection(true) -> false",
                          "setMavlinkBaudRate(115200, false) -> false"}));
    QCOMPARE(linesBeforeTheBox,
             (QStringList{"Start applying camera expert parameters", "Set Flip vertically KO",
                          "Set BPR value KO", "Set Offset correction value KO",
                          "Set Gain correction value KO", "Set Mavlink baud rate value KO"}));
    QCOMPARE(test.takeLog(), QStringList{"End applying camera expert parameters"});
    QVERIFY(!test.lastCommandOk());
}

void ExpertSendsTest::applyOfflineBeforeTheFirstConnection()
{
    TestWindow test;
    test.child<QSlider>("gskSlider").setValue(3);
    test.child<QDoubleSpinBox>("gmsEdit").setValue(42);
    test.child<QSlider>("gfidSlider").setValue(777);
    test.child<QSlider>("tintSlider").setValue(1);
    test.simulator.clearJournal();

    test.invoke("ApplyParamsExpert");
    QCOMPARE(test.takeLog(), offlineLines());
    QCOMPARE(test.takeCalls(), (QStringList{"get_instance() -> sdk", "getConfiguration() -> configuration"}));
    QCOMPARE(wordsOf(test.simulator), wordsWithDefaults({3, 42, 777, 1}));
}

void ExpertSendsTest::applyOfflineAfterADisconnection()
{
    TestWindow test;
    test.beConnected();
    test.click("disconnectDeviceButton");
    test.child<QSlider>("gskSlider").setValue(3);
    test.child<QDoubleSpinBox>("gmsEdit").setValue(4000);
    test.child<QSlider>("gfidSlider").setValue(1);
    test.child<QSlider>("tintSlider").setValue(19);
    test.takeLog();
    test.simulator.clearJournal();

    test.invoke("ApplyParamsExpert");
    QCOMPARE(test.takeLog(), offlineLines());
    QCOMPARE(test.takeCalls(), (QStringList{"get_instance() -> sdk", "getConfiguration() -> configuration"}));
    QCOMPARE(wordsOf(test.simulator), wordsWithDefaults({3, 4000, 1, 19}));
}

void ExpertSendsTest::applyOfflineWritesWhatTheControlsHold_data()
{
    QTest::addColumn<QString>("slider");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("value");
    QTest::addColumn<QVector<qint64>>("defaults");
    const auto row = [](const char *name, const char *slider, int position, double value,
                        const QVector<qint64> &defaults) {
        QTest::newRow(name) << slider << position << value << defaults;
    };
    // The form gives these pairs ranges of their own, so that a slider and its box can differ.
    row("GSK is the slider's", "gskSlider", 0, 1.0, {0, 0, 0, 0});
    row("TINT is the slider's", "tintSlider", 15, 2.0, {0, 0, 0, 15});
    row("GMS is the box's", "gmsSlider", 99, 2000000.0, {0, 2000000, 0, 0});
    row("GMS is the 32 bits of the box", "gmsSlider", 99, 4294967295.0, {0, -1, 0, 0});
}

void ExpertSendsTest::applyOfflineWritesWhatTheControlsHold()
{
    QFETCH(const QString, slider);
    QFETCH(const int, position);
    QFETCH(const double, value);
    QFETCH(const QVector<qint64>, defaults);
    TestWindow test;
    auto &itsSlider = test.child<QSlider>(slider);
    auto &box = test.child<QDoubleSpinBox>(QString{slider}.replace("Slider", "Edit"));
    if (slider == "gmsSlider") {
        itsSlider.setValue(position);
        box.setValue(value);
    } else {
        box.setValue(value);
        itsSlider.setValue(position);
    }
    QCOMPARE(itsSlider.value(), position);
    QCOMPARE(box.value(), value);

    test.invoke("ApplyParamsExpert");
    QCOMPARE(wordsOf(test.simulator), wordsWithDefaults(defaults));
}

void ExpertSendsTest::whatWasWrittenOfflineIsTheNextDefault()
{
    // Without expert mode nothing is read over the defaults.
    TestWindow test{[](Simulator &simulator) {
        simulator.set("configuration.expertMode", false);
    }};
    test.child<QSlider>("gskSlider").setValue(3);
    test.child<QDoubleSpinBox>("gmsEdit").setValue(42);
    test.child<QSlider>("gfidSlider").setValue(777);
    test.child<QSlider>("tintSlider").setValue(1);
    test.invoke("ApplyParamsExpert");
    test.child<QSlider>("gskSlider").setValue(2);
    test.child<QDoubleSpinBox>("gmsEdit").setValue(43);
    test.child<QSlider>("gfidSlider").setValue(778);
    test.child<QSlider>("tintSlider").setValue(2);

    test.beConnected();
    QCOMPARE(test.child<QSlider>("gskSlider").value(), 3);
    QCOMPARE(test.child<QSlider>("gmsSlider").value(), 42);
    QCOMPARE(test.child<QSlider>("gfidSlider").value(), 777);
    QCOMPARE(test.child<QSlider>("tintSlider").value(), 1);
}

void ExpertSendsTest::everyBaudRateIsSent_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("permanent");
    QTest::addColumn<QString>("call");
    const auto row = [](int index, bool permanent, const char *call) {
        QTest::newRow(call) << index << permanent << call;
    };
    row(0, false, "setMavlinkBaudRate(9600, false) -> true");
    row(1, false, "setMavlinkBaudRate(115200, false) -> true");
    row(2, false, "setMavlinkBaudRate(230400, false) -> true");
    row(3, false, "setMavlinkBaudRate(460800, false) -> true");
    row(4, false, "setMavlinkBaudRate(921600, false) -> true");
    row(0, true, "setMavlinkBaudRate(9600, true) -> true");
    row(1, true, "setMavlinkBaudRate(115200, true) -> true");
    row(4, true, "setMavlinkBaudRate(921600, true) -> true");
}

void ExpertSendsTest::everyBaudRateIsSent()
{
    QFETCH(const int, index);
    QFETCH(const bool, permanent);
    QFETCH(const QString, call);
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    auto &baudRate = test.child<QComboBox>("BaudRateCB");
    baudRate.setCurrentIndex(index == 2 ? 3 : 2);
    test.child<QPushButton>("PermanentButton").setChecked(permanent);
    test.takeLog();
    test.simulator.clearJournal();

    baudRate.setCurrentIndex(index);
    QCOMPARE(test.takeCallsAndRecords(),
             (QStringList{call, "log(2, \"Set Mavlink baud rate value OK\")", "get_instance() -> sdk",
                          "getConfiguration() -> configuration"}));
    QCOMPARE(test.takeLog(), QStringList{"Set Mavlink baud rate value OK"});
    QVERIFY(test.lastCommandOk());
}

void ExpertSendsTest::aRefusedBaudRateIsToldInABox()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({"setMavlinkBaudRate"});

    bool okWhileTheBoxIsOpen{true};
    test.boxes.expect([&](QDialog &box) {
        okWhileTheBoxIsOpen = test.lastCommandOk();
        BoxWatcher::pressOk(box);
    });
    test.child<QComboBox>("BaudRateCB").setCurrentIndex(4);
    QCOMPARE(test.boxes.takeShown(), QStringList{baudRateBox});
    QCOMPARE(test.takeCallsAndRecords(), (QStringList{"setMavlinkBaudRate(921600, false) -> false",
                                                      "log(2, \"Set Mavlink baud rate value KO\")"}));
    QCOMPARE(test.takeLog(), QStringList{"Set Mavlink baud rate value KO"});
    QVERIFY(!okWhileTheBoxIsOpen);
    QVERIFY(!test.lastCommandOk());
    QCOMPARE(test.child<QComboBox>("BaudRateCB").currentIndex(), 4);
}

void ExpertSendsTest::noBaudRateIsSentAsZero()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    test.boxes.expect();
    test.child<QComboBox>("BaudRateCB").setCurrentIndex(-1);
    QCOMPARE(test.takeCalls(), QStringList{"setMavlinkBaudRate(0, false) -> false"});
    QCOMPARE(test.boxes.takeShown(), QStringList{baudRateBox});
}

void ExpertSendsTest::permanentButtonTellsItsState()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    auto &permanent = test.child<QPushButton>("PermanentButton");
    QCOMPARE(permanent.text(), "Not Permanent");

    permanent.click();
    QCOMPARE(permanent.isChecked(), true);
    QCOMPARE(permanent.text(), "Permanent");
    permanent.click();
    QCOMPARE(permanent.isChecked(), false);
    QCOMPARE(permanent.text(), "Not Permanent");
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void ExpertSendsTest::nucRequestIsSent()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    test.invoke("ApplyNucRequest");
    QCOMPARE(test.takeCallsAndRecords(), QStringList{"processNucRequest() -> true"});
    QCOMPARE(test.takeLog(), QStringList{});
}

void ExpertSendsTest::aRefusedNucRequestIsToldInABox()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    test.simulator.addFault({"processNucRequest"});
    test.boxes.expect();
    test.invoke("ApplyNucRequest");
    QCOMPARE(test.boxes.takeShown(), QStringList{nucBox});
    QCOMPARE(test.takeCallsAndRecords(), QStringList{"processNucRequest() -> false"});
    QCOMPARE(test.takeLog(), QStringList{});
    QVERIFY(test.lastCommandOk());
}

void ExpertSendsTest::nucRequestLeavesTheLastResult()
{
    TestWindow test;
    openCameraPage(test, "ExpertMode");
    letACommandFail(test);
    test.invoke("ApplyNucRequest");
    QCOMPARE(test.takeCalls(), QStringList{"processNucRequest() -> true"});
    QVERIFY(!test.lastCommandOk());
}

PILOTEL_TEST_CLASS(ExpertSendsTest)
#include "tst_expert_sends.moc"
