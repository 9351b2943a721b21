// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program on the screens that operators have: where its window opens, and that all of it can be reached.
#include "program.h"
#include "testclass.h"
#include "virtualscreen.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace
{

/// What the plugin in the program found on a screen.
QStringList findings(const VirtualScreen &screen, const QString &scaling)
{
    if (screen.name().isEmpty()) {
        return {"the virtual screen did not start"};
    }
    const QTemporaryDir directory;
    QProcessEnvironment environment{programEnvironment()};
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("QT_STYLE_OVERRIDE", "fusion");
    environment.insert("QT_SCALE_FACTOR", scaling);
    environment.insert("DISPLAY", screen.name());
    environment.insert("PILOTEL_TEST_REPORT", directory.filePath("report"));
    const Outcome outcome{run(PROGRAM, {"-plugin", "reacheverything"}, environment)};
    if (!outcome.exited || outcome.status != 0) {
        return {"the program did not end well", outcome.errors};
    }
    return linesOf(directory.filePath("report"));
}

/// Every control of the pages that an operator has, by Tab.
const QString everyControl{
    "reached AboutButton AhcBlackGainLimSlider AhcBlackGainLimSpin AhcWhiteGainLimSlider "
    "AhcWhiteGainLimSpin BPRCheckBox BU_FUSION_MODE_PB BU_IR_MODE_PB BU_VISIBLE_MODE_PB "
    "BaudRateConnectCB BitTextEdit ColumnCorrectionButton EdgeCorrectionCB FpgaTempTextEdit "
    "FusionConfigureZoomPB FusionFpgaTempTextEdit FusionZoomFactorSB FusionZoomMethod KR_tab "
    "Principal_tab Roi0IncX1 Roi0IncX2 Roi0IncY1 Roi0IncY2 SensorTempTextEdit SharpeningTHEdit "
    "SharpeningTHSlider TempoFilterSlider TempoFilterSpin VideoOutputCB VignettingCorrectionButton "
    "VisAgcCoeffSB VisAgcTHSB VisAgcTargetSB VisClheCoeffSB VisClheTHSB clearLogButton clheEdit "
    "clheSlider contrastTypeEdit disconnectDeviceButton frameRateCB gainCheckBox gammaEdit "
    "gammaSlider gfidEdit gfidSlider gmsEdit gmsSlider gskEdit gskSlider horizontalFlipButton "
    "logView lutColorEdit mipiOutputButton offsetCheckBox parallelOutputButton polarityButton "
    "readParamButtonExpert readParamButtonUser resetParamButtonUser roi0ExcEnable roi1ExcEnable "
    "roi1IncEnable saveParamButtonUser sdiOutputButton sharpeningGainEdit sharpeningGainSlider "
    "startingModeCB tintEdit tintSlider"};

} // namespace

class ScreensTest : public QObject
{
    Q_OBJECT

private slots:
    void everyControlIsReached_data();
    void everyControlIsReached();
    void opensInItsFirstSizeWhereItHasRoom_data();
    void opensInItsFirstSizeWhereItHasRoom();
    void scalesAsTheDesktopAsks_data();
    void scalesAsTheDesktopAsks();
};

void ScreensTest::everyControlIsReached_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("scaling");
    QTest::addColumn<QString>("icon");
    for (const QSize size : {QSize{1366, 768}, QSize{1280, 1024}, QSize{1920, 1080}}) {
        const auto row = [size](const char *scaling, const char *icon) {
            QTest::addRow("%dx%d at %s", size.width(), size.height(), scaling)
                << size << QString{scaling} << QString{icon};
        };
        row("1", "20x20@1");
        row("1.25", "25x25@1.25");
        row("1.5", "30x30@1.5");
        row("2", "40x40@2");
    }
}

void ScreensTest::everyControlIsReached()
{
    QFETCH(QSize, size);
    QFETCH(QString, scaling);
    QFETCH(QString, icon);
    QStringList found{findings(VirtualScreen{size, 40}, scaling)};

    const QRegularExpression places{"^(frame|content) "};
    for (const QString &place : found.filter(places)) {
        found.removeOne(place);
    }
    const QStringList expected{
        "title Veltrix BU Pilotel",
        "scaling " + scaling,
        "the window is within the free part of the screen",
        QString{"icons scanDeviceButton %1 connectDeviceButton %1 disconnectDeviceButton %1 "
                "resetParamButtonUser %1"}
            .arg(icon),
        everyControl,
        "the wheel comes to Clear Log",
    };
    QCOMPARE(found.join('\n'), expected.join('\n'));
}

void ScreensTest::opensInItsFirstSizeWhereItHasRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("scaling");
    QTest::addColumn<QString>("content");
    QTest::newRow("just as large") << QSize{968, 1333} << "1"
                                   << "content 0,0 965x1293";
    QTest::newRow("larger") << QSize{2560, 1440} << "1"
                            << "content 0,0 965x1293";
    QTest::newRow("larger, scaled") << QSize{3840, 2160} << "1.5"
                                    << "content 0,0 965x1293";
}

void ScreensTest::opensInItsFirstSizeWhereItHasRoom()
{
    QFETCH(QSize, size);
    QFETCH(QString, scaling);
    QFETCH(QString, content);
    const QStringList found{findings(VirtualScreen{size, 40}, scaling)};
    QCOMPARE(found.filter(QRegularExpression{"^content "}), QStringList{content});
    QCOMPARE(found.filter("free part"), QStringList{"the window is within the free part of the screen"});
}

void ScreensTest::scalesAsTheDesktopAsks_data()
{
    QTest::addColumn<int>("dotsPerInch");
    QTest::addColumn<QString>("scaling");
    // The screen itself says 100.
    QTest::newRow("a desktop that says nothing") << 0 << "scaling 1";
    QTest::newRow("96") << 96 << "scaling 1";
    QTest::newRow("120") << 120 << "scaling 1.25";
    QTest::newRow("144") << 144 << "scaling 1.5";
    QTest::newRow("192") << 192 << "scaling 2";
}

void ScreensTest::scalesAsTheDesktopAsks()
{
    QFETCH(int, dotsPerInch);
    QFETCH(QString, scaling);
    const VirtualScreen screen{QSize{1920, 1080}, 40};
    if (dotsPerInch != 0) {
        QVERIFY(screen.tellDensity(dotsPerInch));
    }
    const QStringList found{findings(screen, "1")};
    QCOMPARE(found.filter("scaling"), QStringList{scaling});
    QCOMPARE(found.filter("cut"), QStringList{});
}

PILOTEL_TEST_CLASS(ScreensTest)
#include "tst_screens.moc"
