// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the settings that are sliders with spin boxes: a released slider and a finished edit send the box.
#include "coupledpairs.h"
#include "testclass.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTest>

namespace
{

/// What a pair sends, beside the table of the pairs and in its order.
struct Sending
{
    const char *handler;
    const char *action;
    /// Position that is not the one at the start, the text that stands for it, and the command.
    int position;
    const char *text;
    const char *call;
    /// The command with the slider at its end.
    const char *callAtEnd;
};

constexpr std::array<Sending, pairs.size()> sendings{{
    {"gammaUserSendCommand", "Set GAMMA value", 17, "2.2", "setGamma(144179)", "setGamma(163840)"},
    {"clheSendCommand", "Set CLHE value", 7654, "7654", "setClhe(7654)", "setClhe(10000)"},
    {"sharpeningSendCommand", "Configure EDGE CORRECTION", 29, "2.9", "configureEdgeCorrection(0, 2, 20)",
     "configureEdgeCorrection(0, 1024, 20)"},
    {"sharpeningSendCommand", "Configure EDGE CORRECTION", 338, "33.8", "configureEdgeCorrection(0, 64, 33)",
     "configureEdgeCorrection(0, 64, 200)"},
    {"ahcGainSendCommand", "Set AHC GAINS LIMITATION values", 33, "33", "setAhcGainLimitation(33, 80)",
     "setAhcGainLimitation(100, 80)"},
    {"ahcGainSendCommand", "Set AHC GAINS LIMITATION values", 44, "44", "setAhcGainLimitation(20, 44)",
     "setAhcGainLimitation(20, 100)"},
    {"tempoFilterSendCommand", "Set LUT TEMPORAL FILTER value", 7, "7", "setLutTemporalFilter(7)",
     "setLutTemporalFilter(8)"},
    {"gskSendCommand", "Set GSK value", 3, "3", "setGsk(3)", "setGsk(3)"},
    {"gfiSendCommand", "Set GFID value", 777, "777", "setGfid(777)", "setGfid(1000)"},
    {"gmsSendCommand", "Set GMS value", 3210, "3210", "setGms(3210)", "setGms(4095)"},
    {"tintSendCommand", "Set TINT value", 19, "19", "setTint(19)", "setTint(20)"},
}};

QPoint middleOfHandle(const QSlider &slider, int position)
{
    const int length{slider.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &slider)};
    const int start{QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(), position,
                                                    slider.width() - length)};
    return {start + length / 2, slider.height() / 2};
}

void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &place)
{
    const Qt::MouseButton button{type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton};
    const Qt::MouseButtons held{type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton};
    QMouseEvent event{type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier};
    QApplication::sendEvent(&widget, &event);
}

/// The journal of one command and its line.
QStringList told(const char *call, const char *action, bool accepted = true)
{
    return {QStringLiteral("%1 -> %2").arg(call, accepted ? "true" : "false"),
            QStringLiteral("log(2, \"%1 %2\")").arg(action, accepted ? "OK" : "KO")};
}

QString line(const Sending &sending, const char *outcome)
{
    return QStringLiteral("%1 %2").arg(sending.action, outcome);
}

} // namespace

class CameraSendsTest : public QObject
{
    Q_OBJECT

private slots:
    void releasingTheSliderSendsTheBox_data() { addPairs(); }
    void releasingTheSliderSendsTheBox();
    void theEndOfADragSendsOnce_data() { addPairs(); }
    void theEndOfADragSendsOnce();
    void movingTheSliderSendsNothing_data() { addPairs(); }
    void movingTheSliderSendsNothing();
    void enterSendsTheBox_data() { addPairs(); }
    void enterSendsTheBox();
    void leavingSendsTheBox_data() { addPairs(); }
    void leavingSendsTheBox();
    void enterAndLeavingSendNothingElse_data() { addPairs(); }
    void enterAndLeavingSendNothingElse();
    void aRefusalIsToldAndRemembered_data() { addPairs(); }
    void aRefusalIsToldAndRemembered();
    void theBoxIsSentWhereTheSliderEnds_data();
    void theBoxIsSentWhereTheSliderEnds();
    void encodings_data();
    void encodings();
    void withoutADeviceNothingHappens_data() { addPairs(); }
    void withoutADeviceNothingHappens();
};

void CameraSendsTest::releasingTheSliderSendsTheBox()
{
    QFETCH(const std::size_t, place);
    const Sending &sending{sendings.at(place)};
    TestWindow test;
    openCameraPage(test, pairs.at(place).page);
    const Widgets widgets{test, pairs.at(place)};

    widgets.slider.setSliderDown(true);
    widgets.slider.setSliderPosition(sending.position);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    widgets.slider.setSliderDown(false);
    QCOMPARE(test.takeCallsAndRecords(), told(sending.call, sending.action));
    QCOMPARE(test.takeLog(), QStringList{line(sending, "OK")});
    QVERIFY(test.lastCommandOk());
    QCOMPARE(widgets.value(), QString{sending.text}.toDouble());
}

void CameraSendsTest::theEndOfADragSendsOnce()
{
    QFETCH(const std::size_t, place);
    const Sending &sending{sendings.at(place)};
    TestWindow test;
    openCameraPage(test, pairs.at(place).page);
    const Widgets widgets{test, pairs.at(place)};
    const QPoint end{widgets.slider.width() - 1, widgets.slider.height() / 2};

    sendMouse(widgets.slider, QEvent::MouseButtonPress,
              middleOfHandle(widgets.slider, widgets.slider.value()));
    QVERIFY(widgets.slider.isSliderDown());
    sendMouse(widgets.slider, QEvent::MouseMove, middleOfHandle(widgets.slider, widgets.slider.maximum()));
    QCOMPARE(widgets.slider.value(), widgets.slider.maximum());
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    sendMouse(widgets.slider, QEvent::MouseButtonRelease, end);

    QCOMPARE(test.takeCallsAndRecords(), told(sending.callAtEnd, sending.action));
    QCOMPARE(test.takeLog(), QStringList{line(sending, "OK")});
}

void CameraSendsTest::movingTheSliderSendsNothing()
{
    QFETCH(const std::size_t, place);
    TestWindow test;
    openCameraPage(test, pairs.at(place).page);
    const Widgets widgets{test, pairs.at(place)};

    widgets.slider.setFocus();
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_Left}) {
        QTest::keyClick(&widgets.slider, key);
    }
    widgets.slider.setValue(widgets.slider.maximum());
    test.child<QWidget>("logView").setFocus();

    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void CameraSendsTest::enterSendsTheBox()
{
    QFETCH(const std::size_t, place);
    const Sending &sending{sendings.at(place)};
    TestWindow test;
    openCameraPage(test, pairs.at(place).page);
    const Widgets widgets{test, pairs.at(place)};

    typeInto(widgets.box, sending.text);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QTest::keyClick(&widgets.box, Qt::Key_Enter);
    QCOMPARE(test.takeCallsAndRecords(), told(sending.call, sending.action));
    QCOMPARE(test.takeLog(), QStringList{line(sending, "OK")});
    QVERIFY(test.lastCommandOk());
    QCOMPARE(widgets.slider.value(), sending.position);
}

void CameraSendsTest::leavingSendsTheBox()
{
    QFETCH(const std::size_t, place);
    const Sending &sending{sendings.at(place)};
    TestWindow test;
    openCameraPage(test, pairs.at(place).page);
    const Widgets widgets{test, pairs.at(place)};

    typeInto(widgets.box, sending.text);
    QTest::mouseClick(test.child<QPlainTextEdit>("logView").viewport(), Qt::LeftButton);
    QCOMPARE(test.takeCallsAndRecords(), told(sending.call, sending.action));
    QCOMPARE(test.takeLog(), QStringList{line(sending, "OK")});
}

void CameraSendsTest::enterAndLeavingSendNothingElse()
{
    QFETCH(const std::size_t, place);
    const Sending &sending{sendings.at(place)};
    TestWindow test;
    openCameraPage(test, pairs.at(place).page);
    const Widgets widgets{test, pairs.at(place)};

    typeInto(widgets.box, sending.text);
    QTest::keyClick(&widgets.box, Qt::Key_Return);
    test.child<QWidget>("logView").setFocus();
    QStringList calls{test.takeCalls()};
    QVERIFY(calls.size() <= 2);
    calls.removeDuplicates();
    QCOMPARE(calls, QStringList{QString{sending.call} + " -> true"});
}

void CameraSendsTest::aRefusalIsToldAndRemembered()
{
    QFETCH(const std::size_t, place);
    const Sending &sending{sendings.at(place)};
    TestWindow test;
    openCameraPage(test, pairs.at(place).page);
    const Widgets widgets{test, pairs.at(place)};
    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({QString{sending.call}.section('(', 0, 0).toStdString()});

    typeInto(widgets.box, sending.text);
    QTest::keyClick(&widgets.box, Qt::Key_Enter);
    QCOMPARE(test.takeCallsAndRecords(), told(sending.call, sending.action, false));
    QCOMPARE(test.takeLog(), QStringList{line(sending, "KO")});
    QVERIFY(!test.lastCommandOk());
    // The window stays as the operator left it.
    QCOMPARE(widgets.slider.value(), sending.position);
    QCOMPARE(widgets.value(), QString{sending.text}.toDouble());
}

void CameraSendsTest::encodings_data()
{
    QTest::addColumn<QString>("slider");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("call");
    const auto row = [](const char *slider, const char *typed, const char *call) {
        QTest::addRow("%s typed: %s", typed, call) << slider << typed << call;
    };
    row("gammaSlider", "0.5", "setGamma(32768) -> true");
    row("gammaSlider", "0.6", "setGamma(39321) -> true");
    row("gammaSlider", "2.2", "setGamma(144179) -> true");
    row("gammaSlider", "2.5", "setGamma(163840) -> true");
    row("clheSlider", "0", "setClhe(0) -> true");
    row("clheSlider", "10000", "setClhe(10000) -> true");
    // The slider ends at 10000 and pulls its box back.
    row("clheSlider", "30000", "setClhe(10000) -> true");
    row("sharpeningGainSlider", "0.9", "configureEdgeCorrection(0, 0, 20) -> true");
    row("sharpeningGainSlider", "2.5", "configureEdgeCorrection(0, 2, 20) -> true");
    row("sharpeningGainSlider", "2.9", "configureEdgeCorrection(0, 2, 20) -> true");
    row("sharpeningGainSlider", "1024", "configureEdgeCorrection(0, 1024, 20) -> true");
    row("SharpeningTHSlider", "0.9", "configureEdgeCorrection(0, 64, 0) -> true");
    row("SharpeningTHSlider", "199.9", "configureEdgeCorrection(0, 64, 199) -> true");
    row("SharpeningTHSlider", "255", "configureEdgeCorrection(0, 64, 200) -> true");
    row("AhcBlackGainLimSlider", "0", "setAhcGainLimitation(0, 80) -> true");
    row("AhcBlackGainLimSlider", "100", "setAhcGainLimitation(100, 80) -> true");
    row("AhcWhiteGainLimSlider", "0", "setAhcGainLimitation(20, 0) -> true");
    row("AhcWhiteGainLimSlider", "100", "setAhcGainLimitation(20, 100) -> true");
    row("TempoFilterSlider", "0", "setLutTemporalFilter(0) -> true");
    row("TempoFilterSlider", "8", "setLutTemporalFilter(8) -> true");
    row("gskSlider", "1", "setGsk(1) -> true");
    row("gfidSlider", "0", "setGfid(0) -> true");
    row("gmsSlider", "0", "setGms(0) -> true");
    row("tintSlider", "0", "setTint(0) -> true");
}

void CameraSendsTest::encodings()
{
    QFETCH(const QString, slider);
    QFETCH(const QString, typed);
    QFETCH(const QString, call);
    const Pair &pair{pairOf(qPrintable(slider))};
    TestWindow test;
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    typeInto(widgets.box, typed);
    QTest::keyClick(&widgets.box, Qt::Key_Enter);
    QCOMPARE(test.takeCalls(), QStringList{call});
}

void CameraSendsTest::theBoxIsSentWhereTheSliderEnds_data()
{
    QTest::addColumn<QString>("slider");
    QTest::addColumn<bool>("atItsEnd");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("call");
    const auto row = [](const char *slider, bool atItsEnd, double value, const char *call) {
        QTest::addRow("%.0f, slider %s: %s", value, atItsEnd ? "at its end" : "below", call)
            << slider << atItsEnd << value << call;
    };
    row("clheSlider", true, 10001.0, "setClhe(10001) -> true");
    row("clheSlider", true, 30000.0, "setClhe(30000) -> true");
    row("clheSlider", false, 30000.0, "setClhe(10000) -> true");
    row("SharpeningTHSlider", true, 255.0, "configureEdgeCorrection(0, 64, 255) -> true");
    row("SharpeningTHSlider", false, 255.0, "configureEdgeCorrection(0, 64, 200) -> true");
    row("gmsSlider", true, 4096.0, "setGms(4096) -> false");
    row("gmsSlider", true, 2147483648.0, "setGms(2147483648) -> false");
    row("gmsSlider", true, 4294967295.0, "setGms(4294967295) -> false");
    // The low 32 bits are what travels.
    row("gmsSlider", true, 4294967296.0, "setGms(0) -> true");
    row("gmsSlider", false, 4294967296.0, "setGms(4095) -> true");
}

void CameraSendsTest::theBoxIsSentWhereTheSliderEnds()
{
    QFETCH(const QString, slider);
    QFETCH(const bool, atItsEnd);
    QFETCH(const double, value);
    QFETCH(const QString, call);
    const Pair &pair{pairOf(qPrintable(slider))};
    TestWindow test;
    openCameraPage(test, pair.page);
    Widgets widgets{test, pair};

    widgets.slider.setValue(atItsEnd ? widgets.slider.maximum() : 0);
    widgets.setValue(value);
    QCOMPARE(widgets.value() == value, atItsEnd);
    widgets.box.setFocus();
    QTest::keyClick(&widgets.box, Qt::Key_Enter);
    QCOMPARE(test.takeCalls(), QStringList{call});
}

void CameraSendsTest::withoutADeviceNothingHappens()
{
    QFETCH(const std::size_t, place);
    const Sending &sending{sendings.at(place)};
    TestWindow test;
    test.takeCallsAndRecords();
    test.invoke(sending.handler);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});

    test.beConnected();
    test.click("disconnectDeviceButton");
    test.takeCallsAndRecords();
    const bool lastCommandOk{test.lastCommandOk()};
    test.invoke(sending.handler);
    const Widgets widgets{test, pairs.at(place)};
    widgets.slider.setSliderDown(true);
    widgets.slider.setSliderPosition(sending.position);
    widgets.slider.setSliderDown(false);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.lastCommandOk(), lastCommandOk);
}

PILOTEL_TEST_CLASS(CameraSendsTest)
#include "tst_camera_sends.moc"
