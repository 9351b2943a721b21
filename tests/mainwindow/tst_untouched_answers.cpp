// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A device that acknowledges a read without filling anything in: what is shown is zero, never what lay in
// memory.
#include "testclass.h"
#include "testwindow.h"

#include <QObject>
#include <QPlainTextEdit>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstdint>
#include <vector>

using veltrix_simulator::Value;

class UntouchedAnswersTest : public QObject
{
    Q_OBJECT

private slots:
    void readsShowZeros_data();
    void readsShowZeros();
    void anIdentityIsNotRememberedFromTheLastConnection();
    void aStartingModeThatIsNotGivenSelectsNothing();
    void temperaturesAreZeroMillikelvin();
    void aWarpIsZero();
};

void UntouchedAnswersTest::readsShowZeros_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<bool>("byteResult");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char *operation, const QStringList &lines, bool byteResult = false) {
        QTest::newRow(operation) << operation << byteResult << lines;
    };
    row("getOperatingInfo", {"Operating time = 0 min", "Startup number = 0"});
    row("getAhcGainLimitation", {"AHC black gain limitation = 0", "AHC white gain limitation = 0"}, true);
    row("getVideoMode", {"IR mode activated"});
    row("getZoomConfig",
        {"Fusion ZOOM factor value = 0", "Fusion X zoom center = 0", "Fusion Y zoom center = 0"});
    row("getZoomResolution", {"Fusion X zoom resolution = 0", "Fusion Y zoom resolution = 0"});
    row("getVisibleAgc",
        {"Visible AGC target = 0", "Visible AGC threshold = 0", "Visible AGC filter coefficient = 0"});
    row("getVisibleClhe", {"Visible CLHE threshold = 0", "Visible filter coefficient = 0"});
}

void UntouchedAnswersTest::readsShowZeros()
{
    QFETCH(const QString, operation);
    QFETCH(const bool, byteResult);
    QFETCH(const QStringList, lines);
    TestWindow test;
    test.beConnected();
    std::vector<Value> answer;
    byteResult ? answer.emplace_back(std::int64_t{1}) : answer.emplace_back(true);
    test.simulator.addFault({operation.toStdString(), 1, 0, answer, true});

    test.click("readParamButtonUser");

    const QStringList log{test.takeLog()};
    for (const QString &expected : lines) {
        QVERIFY2(log.contains(expected), qPrintable(expected));
    }
    QCOMPARE(log.last(), QStringLiteral("target correctly changed"));
}

void UntouchedAnswersTest::anIdentityIsNotRememberedFromTheLastConnection()
{
    TestWindow test;
    test.beConnected();
    test.click("disconnectDeviceButton");
    test.simulator.addFault({"connect", 1, 0, {{std::int64_t{1}}}, true});

    test.click("connectDeviceButton");

    QCOMPARE(test.takeLog().last(), QStringLiteral("No camera connected"));
    QVERIFY(!test.simulator.isDeviceOpen());
}

void UntouchedAnswersTest::aStartingModeThatIsNotGivenSelectsNothing()
{
    TestWindow test;
    test.beConnected();
    test.simulator.addFault({"getStartingMode", 1, 0, {{true}}, true});

    test.invoke("readStartingMode");

    // It is asked for with 99, which no item has.
    const QStringList calls{"getStartingMode() -> true {mode=99}", "setStartingMode(4294967295) -> false"};
    QCOMPARE(test.takeCalls(), calls);
}

void UntouchedAnswersTest::temperaturesAreZeroMillikelvin()
{
    TestWindow test;
    test.beConnected();
    test.simulator.addFault({"getTemperatures", 1, 0, {{true}}, true});

    QVERIFY(QMetaObject::invokeMethod(&test.window(), "readTemp", Q_ARG(int, 1)));

    QCOMPARE(test.child<QPlainTextEdit>("FpgaTempTextEdit").toPlainText(), QStringLiteral("-273C"));
    QCOMPARE(test.child<QPlainTextEdit>("SensorTempTextEdit").toPlainText(), QStringLiteral("-273C"));
}

void UntouchedAnswersTest::aWarpIsZero()
{
    TestWindow test;
    test.beConnected();
    test.simulator.addFault({"getWarp", 1, 0, {{true}}, true});

    test.invoke("readFusionParamsExpert");

    QCOMPARE(test.takeCalls(), QStringList{"getWarp(0) -> true {a11=0, a21=0, a12=0, a22=0, a13=0, a23=0}"});
}

PILOTEL_TEST_CLASS(UntouchedAnswersTest)
#include "tst_untouched_answers.moc"
