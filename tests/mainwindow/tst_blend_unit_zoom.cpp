// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the read of the Blend Unit's zoom.
#include "testclass.h"
#include "zoomcontrols.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QObject>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstdint>
#include <limits>
#include <string>
#include <utility>

using veltrix_simulator::Value;

namespace
{

constexpr int infraredZoom{0};
constexpr int fusionZoom{2};
const char *const resolutionRead{"getZoomResolution() -> true {x=1024, y=768}"};

/// The five lines of a zoom read.
QStringList zoomLines(const QString &stream, const QString &factor, const QStringList &numbers)
{
    return {
        stream + " ZOOM factor value = " + factor,     stream + " X zoom resolution = " + numbers[0],
        stream + " Y zoom resolution = " + numbers[1], stream + " X zoom center = " + numbers[2],
        stream + " Y zoom center = " + numbers[3],
    };
}

/// What the infrared side's page shows: factor, X and Y centre, X and Y resolution.
QStringList infraredPage(const TestWindow &test)
{
    QStringList shown{QString::number(test.child<QDoubleSpinBox>("factorZoomEdit").value())};
    for (const char *const box :
         {"xCenterZoomEdit", "yCenterZoomEdit", "xResolutionZoomEdit", "yResolutionZoomEdit"}) {
        shown.append(QString::number(test.child<QSpinBox>(box).value()));
    }
    return shown;
}

} // namespace

class BlendUnitZoomTest : public QObject
{
    Q_OBJECT

private slots:
    void fusionReadShowsFactorAndTellsAll();
    void infraredReadShowsAndTellsAll();
    void otherSelectorShowsAndTellsNothing_data();
    void otherSelectorShowsAndTellsNothing();
    void factorText_data();
    void factorText();
    void refusedReadTellsZeros_data();
    void refusedReadTellsZeros();
    void readKeepsTheResultOfTheLastCommand_data();
    void readKeepsTheResultOfTheLastCommand();
    void numbersBeyondTheBoxesAreToldAsTheyAre();
    void differentMethodIsConfiguredWithinTheRead_data();
    void differentMethodIsConfiguredWithinTheRead();
    void methodWithoutAnItemIsConfiguredOnce();
};

void BlendUnitZoomTest::fusionReadShowsFactorAndTellsAll()
{
    TestWindow test;
    beConnectedAndZoomed(test);
    const QStringList infraredBefore{infraredPage(test)};

    readZoom(test, fusionZoom);

    const QStringList calls{zoomRecordRead, resolutionRead};
    QCOMPARE(test.takeCalls(), calls);
    QCOMPARE(test.takeLog(), zoomLines("Fusion", "1.5", {"1024", "768", "300", "200"}));
    QCOMPARE(fusionFactor(test).value(), 1.5);
    QCOMPARE(infraredPage(test), infraredBefore);
}

void BlendUnitZoomTest::infraredReadShowsAndTellsAll()
{
    TestWindow test;
    beConnectedAndZoomed(test);

    readZoom(test, infraredZoom);

    const QStringList calls{zoomRecordRead, resolutionRead};
    QCOMPARE(test.takeCalls(), calls);
    QCOMPARE(test.takeLog(), zoomLines("IR", "1.5", {"1024", "768", "300", "200"}));
    const QStringList shown{"1.5", "300", "200", "1024", "768"};
    QCOMPARE(infraredPage(test), shown);
    QCOMPARE(infraredMethod(test).currentIndex(), 0);
    QCOMPARE(fusionFactor(test).value(), 1.0);
}

void BlendUnitZoomTest::otherSelectorShowsAndTellsNothing_data()
{
    QTest::addColumn<int>("selector");

    for (const int selector : {1, -1, 3}) {
        QTest::addRow("%d", selector) << selector;
    }
}

void BlendUnitZoomTest::otherSelectorShowsAndTellsNothing()
{
    QFETCH(const int, selector);
    TestWindow test;
    beConnectedAndZoomed(test);
    test.simulator.set("blendUnit.zoom.method", 1);
    const QStringList infraredBefore{infraredPage(test)};

    readZoom(test, selector);

    const QStringList calls{"getZoomConfig() -> true {factor=1.5, xCenter=300, yCenter=200, method=1}",
                            resolutionRead};
    QCOMPARE(test.takeCalls(), calls);
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(infraredPage(test), infraredBefore);
    QCOMPARE(infraredMethod(test).currentIndex(), 0);
    QCOMPARE(fusionFactor(test).value(), 1.0);
}

void BlendUnitZoomTest::factorText_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("shown");

    const auto row = [](const char *text, double factor, double shown) {
        QTest::newRow(text) << factor << QString{text} << shown;
    };
    row("2", 2.0, 2.0);
    row("1.5", 1.5, 1.5);
    row("1.001", 1.001, 1.001);
    row("3.33333", 10.0 / 3.0, 3.333);
    row("0", 0.0, 1.0);
    row("-4", -4.0, 1.0);
    row("100", 100.0, 8.0);
    row("1e+06", 1e6, 8.0);
    row("inf", qInf(), 8.0);
    row("-inf", -qInf(), 1.0);
    // The box cannot show NaN and shows its minimum.
    row("nan", qQNaN(), 1.0);
}

void BlendUnitZoomTest::factorText()
{
    QFETCH(const double, factor);
    QFETCH(const QString, text);
    QFETCH(const double, shown);
    for (const auto &[selector, stream] : {std::pair{infraredZoom, "IR"}, std::pair{fusionZoom, "Fusion"}}) {
        TestWindow test;
        beConnectedAndZoomed(test);
        test.simulator.set("blendUnit.zoom.factor", factor);

        readZoom(test, selector);

        QCOMPARE(test.takeLog(), zoomLines(stream, text, {"1024", "768", "300", "200"}));
        const char *const box{selector == infraredZoom ? "factorZoomEdit" : "FusionZoomFactorSB"};
        QCOMPARE(test.child<QDoubleSpinBox>(box).value(), shown);
    }
}

void BlendUnitZoomTest::refusedReadTellsZeros_data()
{
    QTest::addColumn<QStringList>("refused");
    QTest::addColumn<QString>("factor");
    QTest::addColumn<QStringList>("numbers");
    QTest::addColumn<QStringList>("shown");

    const auto row = [](const char *name, const QStringList &refused, const char *factor,
                        const QStringList &numbers, const QStringList &shown) {
        QTest::newRow(name) << refused << QString{factor} << numbers << shown;
    };
    row("record", {"getZoomConfig"}, "0", {"1024", "768", "0", "0"}, {"1", "0", "0", "1024", "768"});
    row("resolution", {"getZoomResolution"}, "1.5", {"0", "0", "300", "200"},
        {"1.5", "300", "200", "0", "0"});
    row("both", {"getZoomConfig", "getZoomResolution"}, "0", {"0", "0", "0", "0"}, {"1", "0", "0", "0", "0"});
}

void BlendUnitZoomTest::refusedReadTellsZeros()
{
    QFETCH(const QStringList, refused);
    QFETCH(const QString, factor);
    QFETCH(const QStringList, numbers);
    QFETCH(const QStringList, shown);
    TestWindow test;
    beConnectedAndZoomed(test);
    fusionFactor(test).setValue(4.0);
    for (const QString &operation : refused) {
        test.simulator.addFault({operation.toStdString()});
    }

    readZoom(test, infraredZoom);
    QCOMPARE(test.takeLog(), zoomLines("IR", factor, numbers));
    QCOMPARE(infraredPage(test), shown);
    QCOMPARE(fusionFactor(test).value(), 4.0);

    readZoom(test, fusionZoom);
    QCOMPARE(test.takeLog(), zoomLines("Fusion", factor, numbers));
    QCOMPARE(fusionFactor(test).value(), shown.first().toDouble());
}

void BlendUnitZoomTest::readKeepsTheResultOfTheLastCommand_data()
{
    QTest::addColumn<bool>("zoomRefused");

    QTest::newRow("zoom answered") << false;
    QTest::newRow("zoom refused") << true;
}

void BlendUnitZoomTest::readKeepsTheResultOfTheLastCommand()
{
    QFETCH(const bool, zoomRefused);
    TestWindow test;
    beConnectedAndZoomed(test);
    if (zoomRefused) {
        test.simulator.addFault({"getZoomConfig"});
        test.simulator.addFault({"getZoomResolution"});
    }

    test.click("BU_IR_MODE_PB");
    readZoom(test, fusionZoom);
    QVERIFY(test.lastCommandOk());

    test.simulator.addFault({"setVideoMode"});
    test.click("BU_IR_MODE_PB");
    readZoom(test, fusionZoom);
    QVERIFY(!test.lastCommandOk());
}

void BlendUnitZoomTest::numbersBeyondTheBoxesAreToldAsTheyAre()
{
    TestWindow test;
    beConnectedAndZoomed(test);
    constexpr std::int64_t highest{std::numeric_limits<std::uint32_t>::max()};
    for (const char *const key : {"zoom.xCenter", "zoom.yCenter", "zoomResolution.x", "zoomResolution.y"}) {
        test.simulator.set(std::string{"blendUnit."} + key, highest);
    }

    readZoom(test, infraredZoom);

    const QString number{"4294967295"};
    QCOMPARE(test.takeLog(), zoomLines("IR", "1.5", {number, number, number, number}));
    const QStringList shown{"1.5", "640", "480", "10000", "10000"};
    QCOMPARE(infraredPage(test), shown);
}

void BlendUnitZoomTest::differentMethodIsConfiguredWithinTheRead_data()
{
    QTest::addColumn<int>("selector");
    QTest::addColumn<int>("fusionMethodIndex");
    QTest::addColumn<QString>("factorSent");

    // The Fusion page's factor is 4 before each read; only the Fusion read renews it.
    const auto row = [](const char *name, int selector, int fusionMethodIndex, const char *factorSent) {
        QTest::newRow(name) << selector << fusionMethodIndex << QString{factorSent};
    };
    row("Fusion read, the Fusion page's method is another", fusionZoom, 0, "1.5");
    row("Fusion read, the Fusion page's method is the same", fusionZoom, 1, "1.5");
    row("IR read, the Fusion page's method is another", infraredZoom, 0, "4");
    row("IR read, the Fusion page's method is the same", infraredZoom, 1, "4");
}

void BlendUnitZoomTest::differentMethodIsConfiguredWithinTheRead()
{
    QFETCH(const int, selector);
    QFETCH(const int, fusionMethodIndex);
    QFETCH(const QString, factorSent);
    TestWindow test;
    beConnectedAndZoomed(test);
    fusionFactor(test).setValue(4.0);
    fusionMethod(test).setCurrentIndex(fusionMethodIndex);
    test.simulator.set("blendUnit.zoom.method", 1);

    readZoom(test, selector);

    const QString record{"getZoomConfig() -> true {factor=1.5, xCenter=300, yCenter=200, method=1}"};
    const QStringList calls{record, resolutionRead, record,
                            QString{"configureZoom({factor=%1, xCenter=300, yCenter=200, method=%2}) -> true"}
                                .arg(factorSent)
                                .arg(fusionMethodIndex)};
    QCOMPARE(test.takeCalls(), calls);
    const QString stream{selector == fusionZoom ? "Fusion" : "IR"};
    QCOMPARE(test.takeLog(),
             QStringList{"Configure Zoom OK"} + zoomLines(stream, "1.5", {"1024", "768", "300", "200"}));
    QCOMPARE(infraredMethod(test).currentIndex(), 1);
    QCOMPARE(fusionMethod(test).currentIndex(), fusionMethodIndex);
    QVERIFY(test.simulator.get("blendUnit.zoom.method") == Value{fusionMethodIndex});
    QVERIFY(test.lastCommandOk());
}

void BlendUnitZoomTest::methodWithoutAnItemIsConfiguredOnce()
{
    TestWindow test;
    beConnectedAndZoomed(test);
    test.simulator.set("blendUnit.zoom.method", 255);

    readZoom(test, fusionZoom);

    const QString record{"getZoomConfig() -> true {factor=1.5, xCenter=300, yCenter=200, method=255}"};
    const QStringList calls{record, resolutionRead, record,
                            "configureZoom({factor=1.5, xCenter=300, yCenter=200, method=0}) -> true"};
    QCOMPARE(test.takeCalls(), calls);
    QCOMPARE(infraredMethod(test).currentIndex(), -1);
}

PILOTEL_TEST_CLASS(BlendUnitZoomTest)
#include "tst_blend_unit_zoom.moc"
