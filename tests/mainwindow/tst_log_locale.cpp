// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers of the log under other locales than the classic one, set by the process or by the library.
#include "camerapage.h"
#include "changedcamera.h"
#include "filledblendunit.h"
#include "owndirectory.h"
#include "testclass.h"

#include <QDoubleSpinBox>
#include <QLocale>
#include <QPlainTextEdit>
#include <QTest>

#include <locale>
#include <string>

namespace
{

/// How a locale writes numbers.
class Punctuation : public std::numpunct<char>
{
public:
    Punctuation(char itsPoint, char itsSeparator, std::string itsGroups)
        : point{itsPoint}, separator{itsSeparator}, groups{std::move(itsGroups)}
    {}

protected:
    char do_decimal_point() const override { return point; }
    char do_thousands_sep() const override { return separator; }
    std::string do_grouping() const override { return groups; }
    std::string do_truename() const override { return "wahr"; }
    std::string do_falsename() const override { return "falsch"; }

private:
    const char point;
    const char separator;
    const std::string groups;
};

const std::locale &german()
{
    static const std::locale locale{std::locale::classic(), new Punctuation{',', '.', "\3"}};
    return locale;
}

/// Groups that show in numbers of two digits.
const std::locale &everyDigitApart()
{
    static const std::locale locale{std::locale::classic(), new Punctuation{';', '\'', "\1"}};
    return locale;
}

/// The process has these locales while it lives.
class OtherLocale
{
public:
    OtherLocale(const std::locale &locale, const QLocale &ofWidgets)
        : before{std::locale::global(locale)}, widgetsBefore{}
    {
        QLocale::setDefault(ofWidgets);
    }
    ~OtherLocale()
    {
        QLocale::setDefault(widgetsBefore);
        std::locale::global(before);
    }
    OtherLocale(const OtherLocale &) = delete;
    OtherLocale &operator=(const OtherLocale &) = delete;

private:
    const std::locale before;
    const QLocale widgetsBefore;
};

} // namespace

Q_DECLARE_METATYPE(std::locale)

class LogLocaleTest : public QObject
{
    Q_OBJECT

private slots:
    void cameraIsReadInPlainNumbers_data();
    void cameraIsReadInPlainNumbers();
    void everyFamilyWritesPlainNumbers_data();
    void everyFamilyWritesPlainNumbers();
    void whatTheLibrarySetsLaterDoesNotMatter();
};

void LogLocaleTest::cameraIsReadInPlainNumbers_data()
{
    QTest::addColumn<std::locale>("locale");
    QTest::addColumn<QLocale>("ofWidgets");
    QTest::newRow("German") << german() << QLocale{QLocale::German, QLocale::Germany};
    QTest::newRow("every digit apart")
        << everyDigitApart() << QLocale{QLocale::English, QLocale::UnitedStates};
}

void LogLocaleTest::cameraIsReadInPlainNumbers()
{
    QFETCH(const std::locale, locale);
    QFETCH(const QLocale, ofWidgets);
    const OtherLocale other{locale, ofWidgets};
    TestWindow test;
    openCameraPage(test, "LutSection");
    changeCamera(test.simulator);

    QVERIFY(readCamera(test));

    QCOMPARE(test.takeCallsAndRecords(), journalOf(changedCameraRead()));
    QCOMPARE(test.takeLog(), logOf(changedCameraRead()));
    QCOMPARE(test.child<QPlainTextEdit>("SensorTempTextEdit").toPlainText(), QStringLiteral("37.15C"));
}

void LogLocaleTest::everyFamilyWritesPlainNumbers_data()
{
    cameraIsReadInPlainNumbers_data();
}

void LogLocaleTest::everyFamilyWritesPlainNumbers()
{
    QFETCH(const std::locale, locale);
    QFETCH(const QLocale, ofWidgets);
    const OtherLocale other{locale, ofWidgets};
    const OwnDirectory directory;
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.zoom.factor", 2.125);
    test.simulator.set("camera.zoom.xCenter", 1234);
    test.simulator.set("camera.zoom.yCenter", 1000);
    test.simulator.set("camera.zoomResolution.x", 1920);
    test.simulator.set("camera.zoomResolution.y", 1080);
    test.simulator.set("camera.gms", 4294967295);
    test.simulator.set("camera.visibleClhe.threshold", 65535);
    test.simulator.set("camera.visibleAgc.target", 100);
    test.simulator.set("camera.serialNumber", 4100200300);
    test.simulator.set("camera.bitStatus", 0x12345678);
    test.simulator.set("camera.firmwareVersions.processor", 0x1204);
    test.simulator.set("camera.firmwareVersions.fpga", 0x2A01);
    test.child<QSpinBox>("xBadPixelCoordinate").setValue(639);
    test.child<QSpinBox>("yBadPixelCoordinate").setValue(479);

    QVERIFY(readBlendUnit(test));
    const QStringList blendUnit{
        "Start reading Fusion parameters",
        "RISC-V version = 1.2.0 Beta4",
        "FPGA version = 2.a.0.1",
        "Serial number = 4100200300",
        "IR mode activated",
        "Fusion ZOOM factor value = 2.125",
        "Fusion X zoom resolution = 1920",
        "Fusion Y zoom resolution = 1080",
        "Fusion X zoom center = 1234",
        "Fusion Y zoom center = 1000",
        "Visible AGC target = 100",
        "Visible AGC threshold = 10",
        "Visible AGC filter coefficient = 20",
        "Visible CLHE threshold = 65535",
        "Visible filter coefficient = 30",
    };
    QCOMPARE(test.takeLog().mid(0, blendUnit.size()), blendUnit);
    QCOMPARE(test.child<QPlainTextEdit>("BitTextEdit").toPlainText(), QStringLiteral("0x12345678"));

    test.invoke("ReadKrParamsExpert");
    const QStringList expert{"Start reading camera expert parameters", "GSK value = 2", "GFID value = 250",
                             "GMS value = 4294967295", "TINT value = 10"};
    QCOMPARE(test.takeLog().mid(0, expert.size()), expert);

    test.invoke("addBadPixelClicked");
    test.invoke("removeBadPixelClicked");
    test.simulator.addFault({"addBadPixel"});
    test.invoke("addBadPixelClicked");
    test.invoke("readBprTableClicked");
    const QStringList pixels{"Pixel X:639 Y: 479 correctly added.", "Pixel X:639 Y: 479 correctly removed.",
                             "Unable to add pixel X:639 Y: 479.",
                             "BPR table correctly saved to bpr_SN4100200300.bin."};
    QCOMPARE(test.takeLog(), pixels);

    auto &column = test.child<QSpinBox>("Roi0IncX1");
    column.setFocus();
    QTest::keyClick(&column, Qt::Key_Return);
    QCOMPARE(test.takeLog(), QStringList{"Set ROI 0 X1 value OK"});
}

void LogLocaleTest::whatTheLibrarySetsLaterDoesNotMatter()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.gamma", 144179);
    test.simulator.set("camera.serialNumber", 4100200300);
    const OtherLocale other{german(), QLocale{}};

    QVERIFY(readCamera(test));

    const QStringList log{test.takeLog()};
    QVERIFY(log.contains("Serial number = 4100200300"));
    QVERIFY(log.contains("Gamma value = 2.2"));
}

PILOTEL_TEST_CLASS(LogLocaleTest)
#include "tst_log_locale.moc"
