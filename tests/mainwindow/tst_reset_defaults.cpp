// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the reset: where each default of the configuration is shown, also one beyond its control's range.
#include "camerapage.h"
#include "notanumber.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QByteArray>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QMetaType>
#include <QObject>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVariant>
#include <QWidget>

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using veltrix_simulator::Value;

namespace
{

constexpr double infinite{std::numeric_limits<double>::infinity()};
constexpr qlonglong largestWord{4294967295};

Value toValue(const QVariant &variant)
{
    switch (static_cast<QMetaType::Type>(variant.type())) {
    case QMetaType::Bool:
        return variant.toBool();
    case QMetaType::Double:
        return variant.toDouble();
    default:
        return std::int64_t{variant.toLongLong()};
    }
}

/// Adds rows for one default: what the configuration says, and what its control shows after the reset.
class DefaultRows
{
public:
    DefaultRows()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("said");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<double>("shown");
    }

    void of(const QString &key, const QString &control, const char *property,
            const std::vector<std::pair<QVariant, double>> &pairs) const
    {
        for (const auto &[said, shown] : pairs) {
            QTest::addRow("%s %s: %s shows %g", qPrintable(key), qPrintable(said.toString()),
                          qPrintable(control), shown)
                << key << said << control << QByteArray{property} << shown;
        }
    }
};

} // namespace

class ResetDefaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreShown_data();
    void numbersAreShown() { isShown(); }
    void regionsAreShown_data();
    void regionsAreShown() { isShown(); }
    void choicesAreShown_data();
    void choicesAreShown() { isShown(); }
    void switchesAreShown_data();
    void switchesAreShown() { isShown(); }
    void defaultsAreTakenInTheirOrder();
    void slidersThatStandRightLeaveTheirBoxes_data();
    void slidersThatStandRightLeaveTheirBoxes();
    void contrastTypeIsShownAsTheRegions_data();
    void contrastTypeIsShownAsTheRegions();
    void sharpeningGainIsRoundedBeforeItIsSent_data();
    void sharpeningGainIsRoundedBeforeItIsSent();
    void buttonsKeepTheirTextsAndSendNothing();
    void resetIsOfferedWhileConnected();

private:
    static void isShown();
};

void ResetDefaultsTest::isShown()
{
    QFETCH(const QString, key);
    QFETCH(const QVariant, said);
    QFETCH(const QString, control);
    QFETCH(const QByteArray, property);
    QFETCH(const double, shown);
    TestWindow test{{}, TestWindow::Drawing::Off};
    openCameraPage(test, "LutSection");
    if (property == "checked") {
        test.child<QAbstractButton>(control).setChecked(!said.toBool());
    }
    test.simulator.set("configuration." + key.toStdString(), toValue(said));

    test.click("resetParamButtonUser");
    QCOMPARE(test.child<QWidget>(control).property(property).toDouble(), shown);
}

void ResetDefaultsTest::numbersAreShown_data()
{
    const DefaultRows rows;
    rows.of("defaultGamma", "gammaSlider", "value",
            {{0.5, 0},
             {0.75, 3},
             {2.2, 17},
             {2.5, 20},
             {99.0, 20},
             {-99.0, 0},
             {notANumber, 0},
             {infinite, 20},
             {-infinite, 0},
             {1e300, 20}});
    rows.of("defaultGamma", "gammaEdit", "value", {{0.5, 0.5}, {0.75, 0.8}, {2.2, 2.2}, {notANumber, 0.5}});
    rows.of("defaultClhe", "clheSlider", "value",
            {{0.0, 0},
             {4.49, 4},
             {4.5, 5},
             {10000.4, 10000},
             {30000.0, 10000},
             {-1.0, 0},
             {notANumber, 0},
             {infinite, 10000},
             {4e9, 10000}});
    rows.of("defaultClhe", "clheEdit", "value", {{4.5, 5}, {30000.0, 10000}});
    rows.of("gfidDefault", "gfidSlider", "value", {{777, 777}, {-1, 0}, {2147483647, 1000}});
    rows.of("gfidDefault", "gfidEdit", "value", {{777, 777}});
    rows.of("gskDefault", "gskSlider", "value", {{3, 3}, {1, 1}, {-2147483647 - 1, 1}, {99, 3}});
    rows.of("gskDefault", "gskEdit", "value", {{3, 3}});
    rows.of("tintDefault", "tintSlider", "value", {{0, 0}, {20, 20}, {21, 20}});
    rows.of("tintDefault", "tintEdit", "value", {{20, 20}});
    rows.of("gmsDefault", "gmsSlider", "value", {{77, 77}, {4095, 4095}, {4096, 4095}, {-7, 0}});
    rows.of("gmsDefault", "gmsEdit", "value", {{77, 77}});
    rows.of("defaultSharpeningGainValue", "sharpeningGainEdit", "value",
            {{0, 0}, {100, 100}, {1024, 1024}, {1025, 1024}, {largestWord, 1024}});
    rows.of("defaultSharpeningGainValue", "sharpeningGainSlider", "value", {{100, 1000}});
    // The slider ends at 200 and pulls its box back.
    rows.of("defaultSharpeningThreshold", "SharpeningTHEdit", "value",
            {{0, 0}, {50, 50}, {200, 200}, {255, 200}, {largestWord, 200}});
    rows.of("defaultSharpeningThreshold", "SharpeningTHSlider", "value", {{50, 500}, {255, 2000}});
    rows.of("defaultTempoFilter", "TempoFilterSpin", "value", {{0, 0}, {7, 7}, {8, 8}, {255, 8}});
    rows.of("defaultTempoFilter", "TempoFilterSlider", "value", {{7, 7}});
    rows.of("defaultAhcBlackGainLimit", "AhcBlackGainLimSpin", "value", {{0, 0}, {11, 11}, {255, 100}});
    rows.of("defaultAhcWhiteGainLimit", "AhcWhiteGainLimSpin", "value", {{0, 0}, {66, 66}, {255, 100}});
}

void ResetDefaultsTest::regionsAreShown_data()
{
    const DefaultRows rows;
    for (const char *const region : {"Roi0Inc", "Roi0Exc", "Roi1Inc", "Roi1Exc"}) {
        for (const char *const coordinate : {"X1", "X2", "Y1", "Y2"}) {
            const QString box{QString{region} + coordinate};
            const double end{*coordinate == 'X' ? 635.0 : 475.0};
            rows.of("default" + box, box, "value",
                    {{100.9, 100},
                     {end, end},
                     {end + 0.9, end},
                     {4e9, end},
                     {infinite, end},
                     {1e300, end},
                     {5.99, 5},
                     {0.99, 5},
                     {-4e9, 5},
                     {notANumber, 5},
                     {-infinite, 5}});
        }
    }
}

void ResetDefaultsTest::choicesAreShown_data()
{
    const DefaultRows rows;
    rows.of("defaultFrameRate", "frameRateCB", "currentIndex",
            {{9, 0}, {25, 1}, {30, 2}, {50, 3}, {60, 4}, {15, 1}, {0, 1}, {255, 1}});
    rows.of("defaultColorLut", "lutColorEdit", "currentIndex", {{0, 0}, {4, 4}, {7, 7}, {8, -1}, {255, -1}});
    rows.of("defaultEdgeCorrectionType", "EdgeCorrectionCB", "currentIndex",
            {{0, 0}, {1, 1}, {2, 2}, {3, -1}, {255, -1}});
    rows.of("defaultVideoOutput", "VideoOutputCB", "currentIndex",
            {{0, 0}, {5, 5}, {8, 8}, {9, -1}, {255, -1}});
}

void ResetDefaultsTest::switchesAreShown_data()
{
    const DefaultRows rows;
    for (const auto &[key, control] : {
             std::pair{"defaultRoi0ExcEnable", "roi0ExcEnable"},
             {"defaultRoi1IncEnable", "roi1IncEnable"},
             {"defaultRoi1ExcEnable", "roi1ExcEnable"},
             {"defaultPolarity", "polarityButton"},
             {"defaultHorizontalFlip", "horizontalFlipButton"},
             {"defaultVerticalFlip", "verticalFlipCheckBox"},
             {"defaultVignettingCorrection", "VignettingCorrectionButton"},
             {"defaultColumnCorrection", "ColumnCorrectionButton"},
             {"defaultSdiOutput", "sdiOutputButton"},
             {"defaultParallelOutput", "parallelOutputButton"},
             {"defaultMipiOutput", "mipiOutputButton"},
         }) {
        rows.of(key, control, "checked", {{true, 1}, {false, 0}});
    }
}

void ResetDefaultsTest::contrastTypeIsShownAsTheRegions_data()
{
    QTest::addColumn<int>("said");
    QTest::addColumn<QStringList>("commands");
    QTest::newRow("0") << 0 << QStringList{"configureContrastType(0) -> true"};
    QTest::newRow("1") << 1
                       << QStringList{"configureContrastType(1) -> true", "configureContrastType(0) -> true",
                                      "configureContrastType(0) -> true"};
    QTest::newRow("no such type") << 7
                                  << QStringList{"configureContrastType(255) -> false",
                                                 "configureContrastType(0) -> true",
                                                 "configureContrastType(0) -> true"};
}

void ResetDefaultsTest::contrastTypeIsShownAsTheRegions()
{
    QFETCH(const int, said);
    QFETCH(const QStringList, commands);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("configuration.defaultContrastType", std::int64_t{said});

    test.click("resetParamButtonUser");
    QCOMPARE(test.child<QComboBox>("contrastTypeEdit").currentText(), "CLHE (ROI)");
    QCOMPARE(test.takeCalls().filter("configureContrastType"), commands);
}

void ResetDefaultsTest::defaultsAreTakenInTheirOrder()
{
    TestWindow test;
    openCameraPage(test, "LutSection");

    test.click("resetParamButtonUser");

    QStringList taken;
    for (const QString &call : test.takeCalls().filter(QRegularExpression{"^getDefault"})) {
        taken.append(call.mid(10).section('(', 0, 0));
    }
    const QStringList expected{
        "FrameRate",
        "Gamma",
        "Clhe",
        "SharpeningGain",
        "Gfid",
        "Gsk",
        "Tint",
        "Gms",
        "Roi0IncX1",
        "Roi0IncY1",
        "Roi0IncX2",
        "Roi0IncY2",
        "Roi0ExcX1",
        "Roi0ExcY1",
        "Roi0ExcX2",
        "Roi0ExcY2",
        "Roi0ExcEnable",
        "Roi1IncX1",
        "Roi1IncY1",
        "Roi1IncX2",
        "Roi1IncY2",
        "Roi1IncEnable",
        "Roi1ExcX1",
        "Roi1ExcY1",
        "Roi1ExcX2",
        "Roi1ExcY2",
        "Roi1ExcEnable",
        "Polarity",
        "ContrastType",
        "ColorLut",
        "HorizontalFlip",
        "VerticalFlip",
        "VignettingCorrection",
        "ColumnCorrection",
        "EdgeCorrectionType",
        "SharpeningGainValue",
        "SharpeningThreshold",
        "VideoOutput",
        "SdiOutput",
        "ParallelOutput",
        "MipiOutput",
        "TempoFilter",
        "AhcBlackGainLimit",
        "AhcWhiteGainLimit",
    };
    QCOMPARE(taken, expected);
}

void ResetDefaultsTest::slidersThatStandRightLeaveTheirBoxes_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("said");
    QTest::addColumn<QString>("box");
    QTest::addColumn<double>("typed");
    const auto row = [](const char *name, const char *key, const QVariant &said, const char *box,
                        double typed) {
        QTest::newRow(name) << key << said << box << typed;
    };
    // Each box reaches beyond its slider, which stands at its end, and the default is that end.
    row("CLHE", "defaultClhe", 10000.0, "clheEdit", 30000.0);
    row("GMS", "gmsDefault", 4095, "gmsEdit", 2000000.0);
}

void ResetDefaultsTest::slidersThatStandRightLeaveTheirBoxes()
{
    QFETCH(const QString, key);
    QFETCH(const QVariant, said);
    QFETCH(const QString, box);
    QFETCH(const double, typed);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("configuration." + key.toStdString(), toValue(said));
    auto &spinBox = test.child<QDoubleSpinBox>(box);
    test.child<QSlider>(QString{box}.replace("Edit", "Slider")).setValue(said.toInt());
    spinBox.setValue(typed);
    QCOMPARE(spinBox.value(), typed);

    test.click("resetParamButtonUser");

    QCOMPARE(spinBox.value(), typed);
}

void ResetDefaultsTest::sharpeningGainIsRoundedBeforeItIsSent_data()
{
    QTest::addColumn<double>("said");
    QTest::addColumn<int>("sent");
    QTest::newRow("9.4 tenths") << 9.4 << 0;
    QTest::newRow("9.5 tenths") << 9.5 << 1;
    QTest::newRow("1234 tenths") << 1234.0 << 123;
    QTest::newRow("beyond the slider") << 1e300 << 1024;
    QTest::newRow("infinite") << infinite << 1024;
    QTest::newRow("negative") << -5.0 << 0;
    QTest::newRow("not a number") << notANumber << 0;
}

void ResetDefaultsTest::sharpeningGainIsRoundedBeforeItIsSent()
{
    QFETCH(const double, said);
    QFETCH(const int, sent);
    TestWindow test;
    openCameraPage(test, "EdgeSection");
    test.simulator.set("configuration.defaultSharpeningGain", said);
    test.simulator.set("configuration.defaultEdgeCorrectionType", std::int64_t{1});
    test.simulator.set("configuration.defaultSharpeningGainValue", std::int64_t{77});
    test.simulator.set("configuration.defaultSharpeningThreshold", std::int64_t{88});

    // The new type is sent with the gain of the slider and the threshold of before the reset.
    test.click("resetParamButtonUser");
    QCOMPARE(test.takeCalls().filter("configureEdgeCorrection"),
             (QStringList{QStringLiteral("configureEdgeCorrection(1, %1, 20) -> true").arg(sent),
                          "configureEdgeCorrection(1, 77, 88) -> true"}));
}

void ResetDefaultsTest::buttonsKeepTheirTextsAndSendNothing()
{
    struct Button
    {
        const char *name;
        const char *key;
        bool checkedAfter;
        const char *text;
        const char *operation;
    };
    constexpr std::array<Button, 7> buttons{{
        {"ColumnCorrectionButton", "ColumnCorrection", false, "Column Correction: Activated",
         "setColumnCorrection"},
        {"VignettingCorrectionButton", "VignettingCorrection", false, "Vignetting Correction: Activated",
         "setVignettingCorrection"},
        {"sdiOutputButton", "SdiOutput", false, "BT656/SDI Output: Activated", "setSdiOutput"},
        {"parallelOutputButton", "ParallelOutput", true, "Parallel Output: Deactivated", "setParallelOutput"},
        {"mipiOutputButton", "MipiOutput", false, "MIPI Output: Activated", "setMipiOutput"},
        {"polarityButton", "Polarity", true, "Invert Polarity: Deactivated", "setPolarity"},
        {"horizontalFlipButton", "HorizontalFlip", true, "Horizontal Flip: Deactivated", "setHorizontalFlip"},
    }};
    TestWindow test;
    openCameraPage(test, "LutSection");
    for (const Button &button : buttons) {
        test.simulator.set(std::string{"configuration.default"} + button.key, button.checkedAfter);
    }

    test.click("resetParamButtonUser");
    const QStringList calls{test.takeCalls()};
    for (const Button &button : buttons) {
        QCOMPARE(test.child<QPushButton>(button.name).isChecked(), button.checkedAfter);
        QCOMPARE(test.child<QPushButton>(button.name).text(), button.text);
        QCOMPARE(calls.filter(button.operation), QStringList{});
    }
}

void ResetDefaultsTest::resetIsOfferedWhileConnected()
{
    TestWindow test;
    const QStringList reset{"resetParamButtonUser"};
    QCOMPARE(test.enabledOf(reset), QStringList{});
    test.click("scanDeviceButton");
    QCOMPARE(test.enabledOf(reset), QStringList{});
    test.beConnected();
    QCOMPARE(test.enabledOf(reset), reset);
    test.click("disconnectDeviceButton");
    QCOMPARE(test.enabledOf(reset), QStringList{});
}

PILOTEL_TEST_CLASS(ResetDefaultsTest)
#include "tst_reset_defaults.moc"
