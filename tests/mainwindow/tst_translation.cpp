// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Boxes and captions can be translated; the lines of the log cannot.
#include "testclass.h"
#include "testwindow.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLatin1Char>
#include <QObject>
#include <QPushButton>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QTranslator>

#include <cstdint>

namespace
{

/// Puts every text of the main window between angle brackets.
class BracketingTranslator : public QTranslator
{
public:
    BracketingTranslator() { QCoreApplication::installTranslator(this); }
    ~BracketingTranslator() override { QCoreApplication::removeTranslator(this); }
    BracketingTranslator(const BracketingTranslator &) = delete;
    BracketingTranslator &operator=(const BracketingTranslator &) = delete;

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*number*/) const override
    {
        return qstrcmp(context, "MainWindow") == 0 ? QLatin1Char{'<'} + QString::fromUtf8(text) + '>'
                                                   : QString{};
    }
};

} // namespace

class TranslationTest : public QObject
{
    Q_OBJECT

private slots:
    void boxesAreTranslated_data();
    void boxesAreTranslated();
    void theBoxOfARegionIsTranslatedPieceByPiece();
    void captionsThatChangeAreTranslated();
    void theResetFindsTheTranslatedItem();
};

void TranslationTest::boxesAreTranslated_data()
{
    QTest::addColumn<QString>("refused");
    QTest::addColumn<QString>("handler");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QStringList>("log");
    const auto row = [](const char *refused, const char *handler, const char *box, const QStringList &log) {
        QTest::newRow(handler) << refused << handler << box << log;
    };
    row("openDevice", "connectDevice",
        R"(window icon "<Invalid communication>" "<Select an other serial port>" [OK])",
        {"ALTERNATIVE SERIAL PORT : SIM1"});
    row("getFirmwareVersions", "readCameraParameters",
        R"(window icon "<Camera not connected>" "<Unable to connect to SIM1>" [OK])",
        {"Start reading camera parameters", "End Read camera parameters : COM Error"});
    row("readBprTable", "readBprTableClicked",
        R"(window icon "<BPR table>" "<BPR table not read correctly>" [OK])",
        {"BPR table correctly saved to bpr_SN10417.bin."});
    row("writeBprTable", "writeBprTableClicked",
        R"(window icon "<BPR table>" "<BPR table not write correctly>" [OK])",
        {"BPR table bpr_SN10417.bin correctly written."});
    row("setMavlinkBaudRate", "krBaudRateChanged",
        "warning \"\" \"<Problem transmitting expert parameters values\n>\" [OK]",
        {"Set Mavlink baud rate value KO"});
    row("processNucRequest", "ApplyNucRequest", R"(warning "" "<Error on processing the NUC request>" [OK])",
        {});
}

void TranslationTest::boxesAreTranslated()
{
    QFETCH(const QString, refused);
    QFETCH(const QString, handler);
    QFETCH(const QString, box);
    QFETCH(const QStringList, log);
    const BracketingTranslator translator;
    TestWindow test;
    test.beConnected();
    QVERIFY(QMetaObject::invokeMethod(&test.window(), "targetChanged", Q_ARG(int, 1)));
    test.takeLog();
    test.simulator.set("camera.serialNumber", std::int64_t{10417});
    test.simulator.addFault({refused.toStdString()});
    test.boxes.expect();

    test.invoke(handler.toUtf8().constData());

    QCOMPARE(test.boxes.takeShown(), QStringList{box});
    QCOMPARE(test.takeLog(), log);
}

void TranslationTest::theBoxOfARegionIsTranslatedPieceByPiece()
{
    const BracketingTranslator translator;
    TestWindow test;
    test.child<QSpinBox>("Roi0IncX1").setValue(300);
    test.child<QSpinBox>("Roi0IncX2").setValue(200);
    test.boxes.expect();

    QVERIFY(QMetaObject::invokeMethod(&test.window(), "x1RoiUserValueChanged", Q_ARG(int, 0)));

    QCOMPARE(test.boxes.takeShown(),
             QStringList{R"(window icon "<ROI>" "<ROI ><0>< X1 must be lower than ROI X2>" [OK])"});
}

void TranslationTest::captionsThatChangeAreTranslated()
{
    const BracketingTranslator translator;
    TestWindow test;
    test.beConnected();

    QCOMPARE(test.child<QPushButton>("polarityButton").text(),
             QStringLiteral("<Invert Polarity: Deactivated>"));
    test.child<QPushButton>("PermanentButton").click();
    QCOMPARE(test.child<QPushButton>("PermanentButton").text(), QStringLiteral("<Permanent>"));
}

void TranslationTest::theResetFindsTheTranslatedItem()
{
    const BracketingTranslator translator;
    TestWindow test;
    test.beConnected();
    test.simulator.set("configuration.defaultContrastType", std::int64_t{1});

    test.invoke("ResetParamsUser");

    QCOMPARE(test.child<QComboBox>("contrastTypeEdit").currentText(), QStringLiteral("<CLHE (ROI)>"));
}

PILOTEL_TEST_CLASS(TranslationTest)
#include "tst_translation.moc"
