// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the camera's settings that are combo boxes: each is sent the moment the operator changes it.
#include "camerapage.h"
#include "controls.h"
#include "testclass.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QObject>
#include <QRect>
#include <QSlider>
#include <QString>
#include <QStringList>
#include <QTest>

namespace
{

void addSettings()
{
    QTest::addColumn<QString>("comboBox");
    for (const ChoiceRow &setting : choiceRows) {
        QTest::newRow(setting.comboBox) << setting.comboBox;
    }
}

/// Picks an item as the keyboard does: one step back from its end, or to its end.
void pressKey(QComboBox &comboBox, Qt::Key key)
{
    comboBox.setFocus();
    QTest::keyClick(&comboBox, key);
}

/// Picks an item from the list as the mouse does.
void pick(TestWindow &test, const QString &comboBox, int index)
{
    auto &box = test.child<QComboBox>(comboBox);
    box.showPopup();
    QAbstractItemView &list{*box.view()};
    const QRect item{list.visualRect(list.model()->index(index, box.modelColumn()))};
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, item.center());
    // Off screen a list can neither be raised nor grab the keyboard.
    for (const QString &warning : test.warnings.take()) {
        QVERIFY2(warning.startsWith("This plugin does not support"), qPrintable(warning));
    }
    QCOMPARE(box.currentIndex(), index);
}

/// Types over what a spin box shows, and stays in it.
void typeInto(QDoubleSpinBox &spinBox, const QString &text)
{
    spinBox.setFocus();
    spinBox.selectAll();
    QTest::keyClicks(&spinBox, text);
}

} // namespace

class CameraSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void keyboardChoiceIsSent_data();
    void keyboardChoiceIsSent();
    void mouseChoiceIsSent_data();
    void mouseChoiceIsSent();
    void theSameChoiceIsNotSentAgain_data() { addSettings(); }
    void theSameChoiceIsNotSentAgain();
    void refusalIsToldAndRemembered_data() { addSettings(); }
    void refusalIsToldAndRemembered();
    void noSelectionIsSentAs255_data();
    void noSelectionIsSentAs255();
    void frameRateThatTheCameraRunsAtIsNotSent();
    void edgeCorrectionSendsWholeGainAndThreshold_data();
    void edgeCorrectionSendsWholeGainAndThreshold();
};

void CameraSettingsTest::keyboardChoiceIsSent_data()
{
    QTest::addColumn<QString>("comboBox");
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("journal");
    const auto row = [](const char *comboBox, Qt::Key key, const QStringList &calls, const char *line) {
        QTest::addRow("%s: %s", comboBox, qPrintable(calls.last()))
            << comboBox << int{key} << calls + QStringList{QString{"log(2, \"%1\")"}.arg(line)};
    };
    row("VideoOutputCB", Qt::Key_Up, {"setVideoOutput(7) -> true"}, "Set VIDEO OUTPUT value OK");
    row("VideoOutputCB", Qt::Key_Home, {"setVideoOutput(0) -> true"}, "Set VIDEO OUTPUT value OK");
    row("frameRateCB", Qt::Key_Up, {"getFrameRate() -> 60", "setFrameRate(50) -> true"},
        "Set FRAME RATE value OK");
    row("frameRateCB", Qt::Key_Home, {"getFrameRate() -> 60", "setFrameRate(9) -> true"},
        "Set FRAME RATE value OK");
    row("contrastTypeEdit", Qt::Key_Down, {"configureContrastType(1) -> true"}, "Configure contrast type OK");
    row("lutColorEdit", Qt::Key_Down, {"setColorLut(1) -> true"}, "Set COLOR LUT value OK");
    row("lutColorEdit", Qt::Key_End, {"setColorLut(7) -> true"}, "Set COLOR LUT value OK");
    row("EdgeCorrectionCB", Qt::Key_Down, {"configureEdgeCorrection(1, 64, 20) -> true"},
        "Configure EDGE CORRECTION OK");
    row("EdgeCorrectionCB", Qt::Key_End, {"configureEdgeCorrection(2, 64, 20) -> true"},
        "Configure EDGE CORRECTION OK");
}

void CameraSettingsTest::keyboardChoiceIsSent()
{
    QFETCH(const QString, comboBox);
    QFETCH(const int, key);
    QFETCH(const QStringList, journal);
    TestWindow test;
    openCameraPage(test, choiceOf(qPrintable(comboBox)).page);

    pressKey(test.child<QComboBox>(comboBox), static_cast<Qt::Key>(key));
    QCOMPARE(test.takeCallsAndRecords(), journal);
    QCOMPARE(test.takeLog(), QStringList{QString{choiceOf(qPrintable(comboBox)).action} + " OK"});
    QVERIFY(test.lastCommandOk());
}

void CameraSettingsTest::mouseChoiceIsSent_data()
{
    QTest::addColumn<QString>("comboBox");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("calls");
    const auto row = [](const char *comboBox, int index, const QStringList &calls) {
        QTest::addRow("%s: %s", comboBox, qPrintable(calls.last())) << comboBox << index << calls;
    };
    row("VideoOutputCB", 3, {"setVideoOutput(3) -> true"});
    row("frameRateCB", 0, {"getFrameRate() -> 60", "setFrameRate(9) -> true"});
    row("frameRateCB", 1, {"getFrameRate() -> 60", "setFrameRate(25) -> true"});
    row("frameRateCB", 2, {"getFrameRate() -> 60", "setFrameRate(30) -> true"});
    row("frameRateCB", 3, {"getFrameRate() -> 60", "setFrameRate(50) -> true"});
    row("contrastTypeEdit", 1, {"configureContrastType(1) -> true"});
    row("lutColorEdit", 5, {"setColorLut(5) -> true"});
    row("EdgeCorrectionCB", 2, {"configureEdgeCorrection(2, 64, 20) -> true"});
}

void CameraSettingsTest::mouseChoiceIsSent()
{
    QFETCH(const QString, comboBox);
    QFETCH(const int, index);
    QFETCH(const QStringList, calls);
    TestWindow test;
    openCameraPage(test, choiceOf(qPrintable(comboBox)).page);

    pick(test, comboBox, index);
    QCOMPARE(test.takeCalls(), calls);
    QCOMPARE(test.takeLog(), QStringList{QString{choiceOf(qPrintable(comboBox)).action} + " OK"});
}

void CameraSettingsTest::theSameChoiceIsNotSentAgain()
{
    QFETCH(const QString, comboBox);
    TestWindow test;
    openCameraPage(test, choiceOf(qPrintable(comboBox)).page);

    pick(test, comboBox, test.child<QComboBox>(comboBox).currentIndex());
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void CameraSettingsTest::refusalIsToldAndRemembered()
{
    QFETCH(const QString, comboBox);
    const ChoiceRow &setting{choiceOf(qPrintable(comboBox))};
    TestWindow test;
    openCameraPage(test, setting.page);
    test.simulator.addFault({setting.operation});
    auto &box = test.child<QComboBox>(comboBox);
    const int other{box.currentIndex() == 0 ? 1 : 0};

    pick(test, comboBox, other);
    QCOMPARE(linesOf(test.takeCalls(), setting.operation).size(), 1);
    QCOMPARE(test.takeLog(), QStringList{QString{setting.action} + " KO"});
    QVERIFY(!test.lastCommandOk());
    // The box is not turned back.
    QCOMPARE(box.currentIndex(), other);

    test.simulator.clearFaults();
    pick(test, comboBox, box.currentIndex() + 1 < box.count() ? box.currentIndex() + 1 : 0);
    QCOMPARE(test.takeLog(), QStringList{QString{setting.action} + " OK"});
    QVERIFY(test.lastCommandOk());
}

void CameraSettingsTest::noSelectionIsSentAs255_data()
{
    QTest::addColumn<QString>("comboBox");
    QTest::addColumn<QStringList>("calls");
    const auto row = [](const char *comboBox, const QStringList &calls) {
        QTest::newRow(comboBox) << comboBox << calls;
    };
    row("VideoOutputCB", {"setVideoOutput(255) -> false"});
    row("frameRateCB", {"getFrameRate() -> 60", "setFrameRate(0) -> false"});
    row("contrastTypeEdit", {"configureContrastType(255) -> false"});
    row("lutColorEdit", {"setColorLut(255) -> false"});
    row("EdgeCorrectionCB", {"configureEdgeCorrection(255, 64, 20) -> false"});
}

void CameraSettingsTest::noSelectionIsSentAs255()
{
    QFETCH(const QString, comboBox);
    QFETCH(const QStringList, calls);
    TestWindow test;
    openCameraPage(test, choiceOf(qPrintable(comboBox)).page);

    test.child<QComboBox>(comboBox).setCurrentIndex(-1);
    QCOMPARE(test.takeCalls(), calls);
    QCOMPARE(test.takeLog(), QStringList{QString{choiceOf(qPrintable(comboBox)).action} + " KO"});
    QVERIFY(!test.lastCommandOk());
}

void CameraSettingsTest::frameRateThatTheCameraRunsAtIsNotSent()
{
    TestWindow test;
    openCameraPage(test, "ImageProcSection");
    // What the result of another command left behind stays.
    test.simulator.addFault({"setVideoOutput"});
    pick(test, "VideoOutputCB", 0);
    QVERIFY(!test.lastCommandOk());
    test.takeCalls();
    test.takeLog();
    test.simulator.set("camera.frameRate", 30);

    pick(test, "frameRateCB", 2);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{"getFrameRate() -> 30"});
    QCOMPARE(test.takeLog(), QStringList{});
    QVERIFY(!test.lastCommandOk());
}

void CameraSettingsTest::edgeCorrectionSendsWholeGainAndThreshold_data()
{
    QTest::addColumn<QString>("gain");
    QTest::addColumn<QString>("threshold");
    QTest::addColumn<QString>("call");
    const auto row = [](const char *gain, const char *threshold, const char *call) {
        QTest::newRow(call) << gain << threshold << call;
    };
    row("2.9", "7.9", "configureEdgeCorrection(1, 2, 7) -> true");
    row("2.5", "0.9", "configureEdgeCorrection(1, 2, 0) -> true");
    row("0", "0", "configureEdgeCorrection(1, 0, 0) -> true");
    row("1024", "200", "configureEdgeCorrection(1, 1024, 200) -> true");
}

void CameraSettingsTest::edgeCorrectionSendsWholeGainAndThreshold()
{
    QFETCH(const QString, gain);
    QFETCH(const QString, threshold);
    QFETCH(const QString, call);
    TestWindow test;
    openCameraPage(test, "EdgeSection");
    typeInto(test.child<QDoubleSpinBox>("sharpeningGainEdit"), gain);
    typeInto(test.child<QDoubleSpinBox>("SharpeningTHEdit"), threshold);
    test.takeCalls();
    test.takeLog();

    test.child<QComboBox>("EdgeCorrectionCB").setCurrentIndex(1);
    QCOMPARE(test.takeCalls(), QStringList{call});
    QCOMPARE(test.takeLog(), QStringList{"Configure EDGE CORRECTION OK"});

    // The slider's 25 is shown as 2.5, of which the box's whole part is sent.
    test.child<QSlider>("sharpeningGainSlider").setValue(25);
    QCOMPARE(test.child<QDoubleSpinBox>("sharpeningGainEdit").value(), 2.5);
    test.child<QComboBox>("EdgeCorrectionCB").setCurrentIndex(2);
    const QString wholeThreshold{threshold.section('.', 0, 0)};
    QCOMPARE(test.takeCalls(),
             QStringList{QString{"configureEdgeCorrection(2, 2, %1) -> true"}.arg(wholeThreshold)});
}

PILOTEL_TEST_CLASS(CameraSettingsTest)
#include "tst_camera_settings.moc"
