// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Which control runs which handler, told by what arrives at the device.
#include "connectingtranscripts.h"
#include "testclass.h"
#include "testwindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

namespace
{

using Deed = std::function<void(TestWindow &)>;

/// Clicks a button whether or not its page is in view: some pages are hidden, their handlers are not.
Deed press(const char *button)
{
    return [=](TestWindow &test) {
        test.child<QAbstractButton>(button).click();
    };
}

Deed choose(const char *comboBox, int index)
{
    return [=](TestWindow &test) {
        test.child<QComboBox>(comboBox).setCurrentIndex(index);
    };
}

/// Changes the state of a box otherwise than by a click.
Deed toggle(const char *checkBox)
{
    return [=](TestWindow &test) {
        test.child<QCheckBox>(checkBox).toggle();
    };
}

Deed show(int page)
{
    return [=](TestWindow &test) {
        test.child<QTabWidget>("Principal_tab").setCurrentIndex(page);
    };
}

/// Types a value and presses Enter.
Deed enter(const char *spinBox, const char *value)
{
    return [=](TestWindow &test) {
        test.showPage("Visible_tab");
        test.takeCalls();
        auto &box = test.child<QSpinBox>(spinBox);
        box.selectAll();
        QTest::keyClicks(&box, value);
        QTest::keyClick(&box, Qt::Key_Return);
    };
}

/// Types a value without finishing the edit.
Deed type(const char *spinBox, const char *value)
{
    return [=](TestWindow &test) {
        test.showPage("Visible_tab");
        test.takeCalls();
        auto &box = test.child<QSpinBox>(spinBox);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, value);
    };
}

QStringList callsOf(const Transcript &transcript)
{
    QStringList calls;
    for (const Step &step : transcript) {
        if (step.kind == Step::Kind::Call) {
            calls.append(step.text);
        }
    }
    return calls;
}

void set(TestWindow &test, const QString &name, double value)
{
    if (auto *const slider = test.window().findChild<QSlider *>(name)) {
        slider->setValue(qRound(value));
    } else if (auto *const spinBox = test.window().findChild<QSpinBox *>(name)) {
        spinBox->setValue(qRound(value));
    } else {
        test.child<QDoubleSpinBox>(name).setValue(value);
    }
}

double valueOf(const TestWindow &test, const QString &name)
{
    return test.child<QWidget>(name).property("value").toDouble();
}

} // namespace

Q_DECLARE_METATYPE(Deed)

class WiringTest : public QObject
{
    Q_OBJECT

private slots:
    void controlsRunTheirHandlers_data();
    void controlsRunTheirHandlers();
    void slidersAndSpinBoxesFollowEachOther_data();
    void slidersAndSpinBoxesFollowEachOther();
    void spinBoxesWaitForTheEndOfTheEdit_data();
    void spinBoxesWaitForTheEndOfTheEdit();
};

void WiringTest::controlsRunTheirHandlers_data()
{
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<QStringList>("calls");
    const auto row = [](const char *name, const Deed &deed, const QStringList &calls) {
        QTest::newRow(name) << deed << calls;
    };
    const QString zoom{"getZoomConfig() -> true {factor=1, xCenter=320, yCenter=240, method=0}"};
    const QString zoomSent{"configureZoom({factor=1, xCenter=320, yCenter=240, method=0}) -> true"};

    row("Principal_tab, currentChanged", show(1), callsOf(targetSwitchedTo(1)));
    row("readParamButtonUser, clicked", press("readParamButtonUser"),
        callsOf(withoutWriteBacks(targetSwitchedTo(0) + blendUnitRead() + targetSwitchedTo(1) + cameraRead() +
                                  targetSwitchedTo(0))));
    row("readParamButtonExpert, clicked", press("readParamButtonExpert"), callsOf(expertRead()));
    row("scanDeviceButton, clicked: it is disabled", press("scanDeviceButton"), {});
    row("connectDeviceButton, clicked: it is disabled", press("connectDeviceButton"), {});
    row("disconnectDeviceButton, clicked", press("disconnectDeviceButton"), callsOf(returned()));
    row("saveParamButtonUser, clicked", press("saveParamButtonUser"), {"saveBlendUnitParameters(0) -> true"});
    row("configureZoomButton, clicked", press("configureZoomButton"), {zoom, zoomSent});
    row("FusionConfigureZoomPB, clicked", press("FusionConfigureZoomPB"), {zoom, zoomSent});
    row("BU_IR_MODE_PB, clicked", press("BU_IR_MODE_PB"), {"setVideoMode(0) -> true"});
    row("BU_VISIBLE_MODE_PB, clicked", press("BU_VISIBLE_MODE_PB"), {"setVideoMode(1) -> true"});
    row("BU_FUSION_MODE_PB, clicked", press("BU_FUSION_MODE_PB"), {"setVideoMode(2) -> true"});
    row("FusionWarpPB, clicked", press("FusionWarpPB"), {"setWarp(0, 1, 0, 0, 1, 0, 0) -> true"});
    row("saveParamFactoryPB, clicked", press("saveParamFactoryPB"), {"saveBlendUnitParameters(1) -> true"});
    row("roi1IncEnable, stateChanged", toggle("roi1IncEnable"),
        {"setRoiX1(5, 1, true, false, false) -> true", "setRoiX2(5, 1, true, false, false) -> true",
         "setRoiY1(5, 1, true, false, false) -> true", "setRoiY2(5, 1, true, false, false) -> true"});
    row("roi0ExcEnable, stateChanged", toggle("roi0ExcEnable"),
        {"setRoiX1(5, 2, false, true, false) -> true", "setRoiX2(5, 2, false, true, false) -> true",
         "setRoiY1(5, 2, false, true, false) -> true", "setRoiY2(5, 2, false, true, false) -> true"});
    row("roi1ExcEnable, stateChanged", toggle("roi1ExcEnable"),
        {"setRoiX1(5, 3, false, false, true) -> true", "setRoiX2(5, 3, false, false, true) -> true",
         "setRoiY1(5, 3, false, false, true) -> true", "setRoiY2(5, 3, false, false, true) -> true"});
    for (const auto &[box, operation] :
         {std::pair{"gainCheckBox", "setGainCorrection"}, std::pair{"BPRCheckBox", "setBprEnable"},
          std::pair{"offsetCheckBox", "setOffsetCorrection"}}) {
        const QStringList calls{QString{operation} + "(false) -> true"};
        QTest::addRow("%s, stateChanged", box) << toggle(box) << calls;
        QTest::addRow("%s, clicked: sends once", box) << press(box) << calls;
    }
    row("BaudRateConnectCB, currentIndexChanged", choose("BaudRateConnectCB", 0),
        {"get_instance() -> sdk", "getConfiguration() -> configuration", "setBaudRate(9600)"});
    row("VideoOutputCB, currentIndexChanged", choose("VideoOutputCB", 3), {"setVideoOutput(3) -> true"});
    row("frameRateCB, currentIndexChanged", choose("frameRateCB", 0),
        {"getFrameRate() -> 60", "setFrameRate(9) -> true"});
    row("contrastTypeEdit, currentIndexChanged", choose("contrastTypeEdit", 1),
        {"configureContrastType(1) -> true"});
    row("lutColorEdit, currentIndexChanged", choose("lutColorEdit", 7), {"setColorLut(7) -> true"});
    row("EdgeCorrectionCB, currentIndexChanged", choose("EdgeCorrectionCB", 2),
        {"configureEdgeCorrection(2, 64, 20) -> true"});
    row("methodZoomEdit, currentIndexChanged", choose("methodZoomEdit", 1), {zoom, zoomSent});
    row("FusionWarpCB, currentIndexChanged", choose("FusionWarpCB", 1),
        {"getWarp(1) -> true {a11=1, a21=0, a12=0, a22=1, a13=0, a23=0}"});
    row("startingModeCB, currentIndexChanged", choose("startingModeCB", 3), {"setStartingMode(3) -> true"});
    row("VisAgcTargetSB, editingFinished", enter("VisAgcTargetSB", "33"),
        {"setVisibleAgc(33, 10, 20) -> true"});
    row("VisAgcTHSB, editingFinished", enter("VisAgcTHSB", "33"), {"setVisibleAgc(50, 33, 20) -> true"});
    row("VisAgcCoeffSB, editingFinished", enter("VisAgcCoeffSB", "33"),
        {"setVisibleAgc(50, 10, 33) -> true"});
    row("VisClheTHSB, editingFinished", enter("VisClheTHSB", "33"), {"setVisibleClhe(33, 30) -> true"});
    row("VisClheCoeffSB, editingFinished", enter("VisClheCoeffSB", "33"),
        {"setVisibleClhe(2000, 33) -> true"});
    // What no handler listens to.
    row("FusionZoomMethod, currentIndexChanged: nothing", choose("FusionZoomMethod", 1), {});
    row("checkBox, stateChanged: nothing", toggle("checkBox"), {});
    row("verticalFlipCheckBox, stateChanged: nothing", toggle("verticalFlipCheckBox"), {});
}

void WiringTest::controlsRunTheirHandlers()
{
    QFETCH(Deed, deed);
    QFETCH(QStringList, calls);
    TestWindow test;
    test.beConnected();

    deed(test);

    QCOMPARE(test.takeCalls(), calls);
}

void WiringTest::slidersAndSpinBoxesFollowEachOther_data()
{
    QTest::addColumn<QString>("slider");
    QTest::addColumn<double>("position");
    QTest::addColumn<QString>("spinBox");
    QTest::addColumn<double>("value");
    const auto row = [](const char *slider, double position, const char *spinBox, double value) {
        QTest::newRow(slider) << slider << position << spinBox << value;
    };
    row("gammaSlider", 10, "gammaEdit", 1.5);
    row("clheSlider", 4321, "clheEdit", 4321);
    row("sharpeningGainSlider", 25, "sharpeningGainEdit", 2.5);
    row("SharpeningTHSlider", 37, "SharpeningTHEdit", 3.7);
    row("AhcBlackGainLimSlider", 33, "AhcBlackGainLimSpin", 33);
    row("AhcWhiteGainLimSlider", 44, "AhcWhiteGainLimSpin", 44);
    row("TempoFilterSlider", 7, "TempoFilterSpin", 7);
    row("gskSlider", 3, "gskEdit", 3);
    row("gfidSlider", 321, "gfidEdit", 321);
    row("gmsSlider", 54, "gmsEdit", 54);
    row("tintSlider", 15, "tintEdit", 15);
}

void WiringTest::slidersAndSpinBoxesFollowEachOther()
{
    QFETCH(QString, slider);
    QFETCH(double, position);
    QFETCH(QString, spinBox);
    QFETCH(double, value);
    {
        TestWindow test;
        test.beConnected();
        QVERIFY(!qFuzzyCompare(valueOf(test, slider), position));
        set(test, slider, position);
        QCOMPARE(valueOf(test, slider), position);
        QCOMPARE(valueOf(test, spinBox), value);
        QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    }
    {
        TestWindow test;
        test.beConnected();
        set(test, spinBox, value);
        QCOMPARE(valueOf(test, slider), position);
        QCOMPARE(valueOf(test, spinBox), value);
        QCOMPARE(test.takeCallsAndRecords(), QStringList{});
        QCOMPARE(test.takeLog(), QStringList{});
    }
}

void WiringTest::spinBoxesWaitForTheEndOfTheEdit_data()
{
    QTest::addColumn<Deed>("deed");
    for (const char *const spinBox :
         {"VisAgcTargetSB", "VisAgcTHSB", "VisAgcCoeffSB", "VisClheTHSB", "VisClheCoeffSB"}) {
        QTest::newRow(spinBox) << type(spinBox, "33");
    }
}

void WiringTest::spinBoxesWaitForTheEndOfTheEdit()
{
    QFETCH(Deed, deed);
    TestWindow test;
    test.beConnected();

    deed(test);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});

    // The focus goes elsewhere.
    test.showPage("Fusion_tab");
    const QStringList calls{test.takeCalls()};
    QCOMPARE(calls.filter("setVisible").size(), 1);
    QCOMPARE(calls.filter("33").size(), 1);
}

PILOTEL_TEST_CLASS(WiringTest)
#include "tst_wiring.moc"
