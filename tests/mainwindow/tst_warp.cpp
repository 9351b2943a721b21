// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the Blend Unit's warp.
#include "testclass.h"
#include "testwindow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

using veltrix_simulator::Value;

namespace
{

/// In the order in which the coefficients travel: column by column.
constexpr std::array<const char *, 6> coefficientBoxes{"WarpA11CoeffSB", "WarpA21CoeffSB", "WarpA12CoeffSB",
                                                       "WarpA22CoeffSB", "WarpA13CoeffSB", "WarpA23CoeffSB"};
constexpr std::array<const char *, 6> coefficientKeys{"a11", "a21", "a12", "a22", "a13", "a23"};

using Coefficients = std::array<double, 6>;

QDoubleSpinBox &coefficientBox(const TestWindow &test, std::size_t place)
{
    return test.child<QDoubleSpinBox>(coefficientBoxes.at(place));
}

void enterCoefficients(const TestWindow &test, const Coefficients &coefficients)
{
    for (std::size_t place{0}; place < coefficients.size(); ++place) {
        coefficientBox(test, place).setValue(coefficients.at(place));
    }
}

Coefficients shownCoefficients(const TestWindow &test)
{
    Coefficients shown{};
    for (std::size_t place{0}; place < shown.size(); ++place) {
        shown.at(place) = coefficientBox(test, place).value();
    }
    return shown;
}

void setWarp(TestWindow &test, int stream, const Coefficients &coefficients)
{
    for (std::size_t place{0}; place < coefficients.size(); ++place) {
        test.simulator.set("blendUnit.warp" + std::to_string(stream) + '.' + coefficientKeys.at(place),
                           coefficients.at(place));
    }
}

// The administrator's group is hidden in every installation; its controls are wired all the same.
void chooseStream(const TestWindow &test, int stream)
{
    test.child<QComboBox>("FusionWarpCB").setCurrentIndex(stream);
}

void sendWarp(const TestWindow &test)
{
    test.child<QAbstractButton>("FusionWarpPB").click();
}

} // namespace

Q_DECLARE_METATYPE(Coefficients)

class WarpTest : public QObject
{
    Q_OBJECT

private slots:
    void streamSwitchReloadsTheWarpSilently_data();
    void streamSwitchReloadsTheWarpSilently();
    void sameStreamAgainReadsNothing();
    void refusedWarpReadLeavesTheBoxes();
    void unusualCoefficientsAreShownWithinTheBoxes_data();
    void unusualCoefficientsAreShownWithinTheBoxes();

    void warpIsSentInWholeNumbers_data();
    void warpIsSentInWholeNumbers();
    void warpIsSentForTheChosenStream_data();
    void warpIsSentForTheChosenStream();
    void warpWithoutAStreamIsSentAsItIs();
    void refusedWarpIsReported();
    void warpBoxesSendNothingByThemselves();
};

void WarpTest::streamSwitchReloadsTheWarpSilently_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("stream");
    QTest::addColumn<QString>("call");
    QTest::addColumn<Coefficients>("shown");

    const char *const fusion{"getWarp(0) -> true {a11=0.5, a21=-0.5, a12=0.25, a22=1.5, a13=10, a23=-20}"};
    const char *const visible{"getWarp(1) -> true {a11=11, a21=21, a12=12, a22=22, a13=13, a23=23}"};
    const char *const infrared{"getWarp(2) -> true {a11=-1, a21=-2, a12=-3, a22=-4, a13=-5, a23=-6}"};
    const auto row = [](const char *name, int before, int stream, const char *call,
                        const Coefficients &shown) {
        QTest::newRow(name) << before << stream << QString{call} << shown;
    };
    row("fusion", 2, 0, fusion, {0.5, -0.5, 0.25, 1.5, 10.0, -20.0});
    row("visible", 0, 1, visible, {11.0, 21.0, 12.0, 22.0, 13.0, 23.0});
    row("infrared", 1, 2, infrared, {-1.0, -2.0, -3.0, -4.0, -5.0, -6.0});
}

void WarpTest::streamSwitchReloadsTheWarpSilently()
{
    QFETCH(const int, before);
    QFETCH(const int, stream);
    QFETCH(const QString, call);
    QFETCH(const Coefficients, shown);
    TestWindow test;
    test.beConnected();
    setWarp(test, 0, {0.5, -0.5, 0.25, 1.5, 10.0, -20.0});
    setWarp(test, 1, {11.0, 21.0, 12.0, 22.0, 13.0, 23.0});
    setWarp(test, 2, {-1.0, -2.0, -3.0, -4.0, -5.0, -6.0});
    chooseStream(test, before);
    test.takeCalls();

    chooseStream(test, stream);

    QCOMPARE(test.takeCalls(), QStringList{call});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(shownCoefficients(test), shown);
    QVERIFY(test.lastCommandOk());
}

void WarpTest::sameStreamAgainReadsNothing()
{
    TestWindow test;
    test.beConnected();
    chooseStream(test, 1);
    test.takeCalls();

    chooseStream(test, 1);

    QCOMPARE(test.takeCalls(), QStringList{});
}

void WarpTest::refusedWarpReadLeavesTheBoxes()
{
    TestWindow test;
    test.beConnected();
    const Coefficients entered{1.5, 2.5, 3.5, 4.5, 5.5, 6.5};
    enterCoefficients(test, entered);
    test.simulator.addFault({"getWarp", 1, 0, std::vector<Value>{false, 1, 2, 3, 4, 5, 6}});

    chooseStream(test, 2);

    QCOMPARE(test.takeCalls(), QStringList{"getWarp(2) -> false {a11=1, a21=2, a12=3, a22=4, a13=5, a23=6}"});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(shownCoefficients(test), entered);
    QVERIFY(!test.lastCommandOk());
}

void WarpTest::unusualCoefficientsAreShownWithinTheBoxes_data()
{
    QTest::addColumn<double>("coefficient");
    QTest::addColumn<double>("shown");

    QTest::newRow("six decimals") << 0.000001 << 0.000001;
    QTest::newRow("less than six decimals can show") << 0.0000004 << 0.0;
    QTest::newRow("beyond the top") << 65536.5 << 65536.0;
    QTest::newRow("beyond the bottom") << -32768.5 << -32768.0;
    QTest::newRow("huge") << 1e300 << 65536.0;
    QTest::newRow("infinite") << qInf() << 65536.0;
    QTest::newRow("infinitely negative") << -qInf() << -32768.0;
    QTest::newRow("not a number") << qQNaN() << -32768.0;
}

void WarpTest::unusualCoefficientsAreShownWithinTheBoxes()
{
    QFETCH(const double, coefficient);
    QFETCH(const double, shown);
    TestWindow test;
    test.beConnected();
    Coefficients coefficients{};
    coefficients.fill(coefficient);
    setWarp(test, 1, coefficients);

    chooseStream(test, 1);
    for (const double value : shownCoefficients(test)) {
        QCOMPARE(value, shown);
    }

    // What is shown can be sent as it is.
    test.takeCalls();
    sendWarp(test);
    const QString number{QString::number(static_cast<int>(shown))};
    const QString call{"setWarp(1, " +
                       QStringList{number, number, number, number, number, number}.join(", ") + ") -> true"};
    QCOMPARE(test.takeCalls(), QStringList{call});
}

void WarpTest::warpIsSentInWholeNumbers_data()
{
    QTest::addColumn<Coefficients>("entered");
    QTest::addColumn<QString>("sent");

    const auto row = [](const char *sent, const Coefficients &entered) {
        QTest::newRow(sent) << entered << QString{sent};
    };
    row("1, 2, 3, 4, 5, 6", {1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    row("2, -2, 2, -2, 2, -2", {2.9, -2.9, 2.000001, -2.000001, 2.999999, -2.999999});
    row("0, 0, 0, 0, 0, 0", {0.999999, -0.999999, 0.5, -0.5, 0.000001, -0.000001});
    row("65536, -32768, 65535, -32767, 32768, -1", {65536.0, -32768.0, 65535.999, -32767.999, 32768.1, -1.9});
}

void WarpTest::warpIsSentInWholeNumbers()
{
    QFETCH(const Coefficients, entered);
    QFETCH(const QString, sent);
    TestWindow test;
    test.beConnected();
    enterCoefficients(test, entered);

    sendWarp(test);

    QCOMPARE(test.takeCalls(), QStringList{"setWarp(0, " + sent + ") -> true"});
    QCOMPARE(test.takeLog(), QStringList{"Warp configuration applied correctly"});
    QCOMPARE(shownCoefficients(test), entered);
    QVERIFY(test.lastCommandOk());
}

void WarpTest::warpIsSentForTheChosenStream_data()
{
    QTest::addColumn<int>("stream");

    QTest::newRow("fusion") << 0;
    QTest::newRow("visible") << 1;
    QTest::newRow("infrared") << 2;
}

void WarpTest::warpIsSentForTheChosenStream()
{
    QFETCH(const int, stream);
    TestWindow test;
    test.beConnected();
    chooseStream(test, stream);
    enterCoefficients(test, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    test.takeCalls();

    sendWarp(test);

    QCOMPARE(test.takeCalls(), QStringList{QString{"setWarp(%1, 1, 2, 3, 4, 5, 6) -> true"}.arg(stream)});
}

void WarpTest::warpWithoutAStreamIsSentAsItIs()
{
    TestWindow test;
    test.beConnected();
    chooseStream(test, -1);
    enterCoefficients(test, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    test.takeCalls();

    sendWarp(test);

    QCOMPARE(test.takeCalls(), QStringList{"setWarp(-1, 1, 2, 3, 4, 5, 6) -> false"});
    QCOMPARE(test.takeLog(), QStringList{"Could not changed warp configuration"});
}

void WarpTest::refusedWarpIsReported()
{
    TestWindow test;
    test.beConnected();
    const Coefficients entered{1.9, 2.0, 3.0, 4.0, 5.0, 6.0};
    enterCoefficients(test, entered);
    test.simulator.addFault({"setWarp"});

    sendWarp(test);

    QCOMPARE(test.takeCalls(), QStringList{"setWarp(0, 1, 2, 3, 4, 5, 6) -> false"});
    QCOMPARE(test.takeLog(), QStringList{"Could not changed warp configuration"});
    QCOMPARE(shownCoefficients(test), entered);
    QVERIFY(!test.lastCommandOk());
}

void WarpTest::warpBoxesSendNothingByThemselves()
{
    TestWindow test;
    test.beConnected();

    enterCoefficients(test, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0});

    QCOMPARE(test.takeCalls(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

PILOTEL_TEST_CLASS(WarpTest)
#include "tst_warp.moc"
