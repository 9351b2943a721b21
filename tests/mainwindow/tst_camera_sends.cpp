// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the settings that are sliders with spin boxes: a released slider and a finished edit send the box.
#include "coupledpairs.h"
#include "sliderhandle.h"
#include "testclass.h"

#include <QEvent>
#include <QObject>
#include <QPlainTextEdit>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <cstddef>

namespace
{

/// The journal of one command and its line.
QStringList told(const char *call, const char *action, bool accepted = true)
{
    return {QStringLiteral("%1 -> %2").arg(call, accepted ? "true" : "false"),
            QStringLiteral("log(2, \"%1 %2\")").arg(action, accepted ? "OK" : "KO")};
}

QString lineOf(const Pair &pair, const char *outcome)
{
    return QStringLiteral("%1 %2").arg(pair.action, outcome);
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
};

void CameraSendsTest::releasingTheSliderSendsTheBox()
{
    QFETCH(const std::size_t, place);
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    widgets.slider.setSliderDown(true);
    widgets.slider.setSliderPosition(pair.position);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    widgets.slider.setSliderDown(false);
    QCOMPARE(test.takeCallsAndRecords(), told(pair.call, pair.action));
    QCOMPARE(test.takeLog(), QStringList{lineOf(pair, "OK")});
    QVERIFY(test.lastCommandOk());
    QCOMPARE(widgets.value(), QString{pair.text}.toDouble());
}

void CameraSendsTest::theEndOfADragSendsOnce()
{
    QFETCH(const std::size_t, place);
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};
    const QPoint end{widgets.slider.width() - 1, widgets.slider.height() / 2};

    sendMouse(widgets.slider, QEvent::MouseButtonPress,
              middleOfHandle(widgets.slider, widgets.slider.value()));
    QVERIFY(widgets.slider.isSliderDown());
    sendMouse(widgets.slider, QEvent::MouseMove, middleOfHandle(widgets.slider, widgets.slider.maximum()));
    QCOMPARE(widgets.slider.value(), widgets.slider.maximum());
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    sendMouse(widgets.slider, QEvent::MouseButtonRelease, end);

    QCOMPARE(test.takeCallsAndRecords(), told(pair.callAtEnd, pair.action));
    QCOMPARE(test.takeLog(), QStringList{lineOf(pair, "OK")});
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
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    typeInto(widgets.box, pair.text);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QTest::keyClick(&widgets.box, Qt::Key_Enter);
    QCOMPARE(test.takeCallsAndRecords(), told(pair.call, pair.action));
    QCOMPARE(test.takeLog(), QStringList{lineOf(pair, "OK")});
    QVERIFY(test.lastCommandOk());
    QCOMPARE(widgets.slider.value(), pair.position);
}

void CameraSendsTest::leavingSendsTheBox()
{
    QFETCH(const std::size_t, place);
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    typeInto(widgets.box, pair.text);
    QTest::mouseClick(test.child<QPlainTextEdit>("logView").viewport(), Qt::LeftButton);
    QCOMPARE(test.takeCallsAndRecords(), told(pair.call, pair.action));
    QCOMPARE(test.takeLog(), QStringList{lineOf(pair, "OK")});
}

void CameraSendsTest::enterAndLeavingSendNothingElse()
{
    QFETCH(const std::size_t, place);
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};

    typeInto(widgets.box, pair.text);
    QTest::keyClick(&widgets.box, Qt::Key_Return);
    test.child<QWidget>("logView").setFocus();
    QStringList calls{test.takeCalls()};
    QVERIFY(calls.size() <= 2);
    calls.removeDuplicates();
    QCOMPARE(calls, QStringList{QString{pair.call} + " -> true"});
}

void CameraSendsTest::aRefusalIsToldAndRemembered()
{
    QFETCH(const std::size_t, place);
    const Pair &pair{pairs.at(place)};
    TestWindow test;
    openCameraPage(test, pair.page);
    const Widgets widgets{test, pair};
    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({QString{pair.call}.section('(', 0, 0).toStdString()});

    typeInto(widgets.box, pair.text);
    QTest::keyClick(&widgets.box, Qt::Key_Enter);
    QCOMPARE(test.takeCallsAndRecords(), told(pair.call, pair.action, false));
    QCOMPARE(test.takeLog(), QStringList{lineOf(pair, "KO")});
    QVERIFY(!test.lastCommandOk());
    // The window stays as the operator left it.
    QCOMPARE(widgets.slider.value(), pair.position);
    QCOMPARE(widgets.value(), QString{pair.text}.toDouble());
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

PILOTEL_TEST_CLASS(CameraSendsTest)
#include "tst_camera_sends.moc"
