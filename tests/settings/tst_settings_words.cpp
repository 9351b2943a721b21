// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers of the settings in the words and units of operators: those of the window, and back.
#include "fieldtext.h"
#include "firmwaretext.h"
#include "heldvalues.h"
#include "testclass.h"
#include "values.h"

#include <QFile>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QXmlStreamReader>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

using namespace device_settings;

class SettingsWordsTest : public QObject
{
    Q_OBJECT

private slots:
    void wordsAreTheWindows_data();
    void wordsAreTheWindows();
    void everyNumberHasOneWord();
    void saysNumbers_data();
    void saysNumbers();
    void understandsTexts_data();
    void understandsTexts();
    void tellsRanges_data();
    void tellsRanges();
    void aScaleMayHaveNoUnit();
    void aScaledFractionIsSentWhole_data();
    void aScaledFractionIsSentWhole();
    void anEmptyRangeAllowsNothing();
    void everyKindHasAName_data();
    void everyKindHasAName();
    void saysVersionsOfTheFirmware_data();
    void saysVersionsOfTheFirmware();
    void theSimulatorsTableHasKindsAndRanges();
};

namespace
{

Field fieldOf(const QString &key)
{
    const std::vector<Setting> table{deviceTable()};
    const std::optional<Place> place{findSetting(table, key.toStdString())};
    return place ? place->setting->fields[place->field] : Field{};
}

/// The choices of a list of the window, in small letters with hyphens.
QStringList choicesOf(const QString &list)
{
    QFile form{FORM};
    form.open(QIODevice::ReadOnly);
    QXmlStreamReader reader{&form};
    QStringList choices;
    bool inList{false};
    bool inItem{false};
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == "widget") {
            inList = reader.attributes().value("name") == list;
        } else if (reader.isEndElement() && reader.name() == "widget") {
            inList = false;
        } else if (reader.isStartElement() && reader.name() == "item") {
            inItem = inList;
        } else if (reader.isEndElement() && reader.name() == "item") {
            inItem = false;
        } else if (inItem && reader.isStartElement() && reader.name() == "string") {
            choices.append(reader.readElementText().toLower().replace(' ', '-'));
        }
    }
    return choices;
}

} // namespace

void SettingsWordsTest::wordsAreTheWindows_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("list");
    QTest::newRow("colour table") << "camera.colorLut"
                                  << "lutColorEdit";
    QTest::newRow("video output") << "camera.videoOutput"
                                  << "VideoOutputCB";
    QTest::newRow("edge correction") << "camera.edgeCorrection.type"
                                     << "EdgeCorrectionCB";
    QTest::newRow("zoom") << "blendUnit.zoom.method"
                          << "FusionZoomMethod";
}

void SettingsWordsTest::wordsAreTheWindows()
{
    QFETCH(const QString, key);
    QFETCH(const QString, list);
    QStringList words;
    for (const std::string &word : fieldOf(key).words) {
        words.append(QString::fromStdString(word));
    }
    QCOMPARE(words, choicesOf(list));
}

void SettingsWordsTest::everyNumberHasOneWord()
{
    int named{0};
    const std::vector<Setting> table{deviceTable()};
    for (const Place &place : placesOf(table)) {
        const Field &field = place.setting->fields[place.field];
        if (field.words.empty()) {
            continue;
        }
        ++named;
        QCOMPARE(field.allowed.minimum, 0.0);
        QCOMPARE(field.allowed.maximum, static_cast<double>(field.words.size() - 1));
        for (std::size_t number{0}; number < field.words.size(); ++number) {
            QCOMPARE(numberOf(field, field.words[number]), std::optional{static_cast<double>(number)});
        }
    }
    QCOMPARE(named, 8);
}

void SettingsWordsTest::saysNumbers_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *key, double number, const char *words) {
        QTest::addRow("%s %s", key, words) << QString{key} << number << QString{words};
    };
    row("camera.gamma", 65536, "65536 (1)");
    row("camera.gamma", 144179, "144179 (2.2)");
    row("camera.gamma", 4294967295, "4294967295 (65536)");
    row("camera.colorLut", 7, "7 (greyscale-ycbcr)");
    row("camera.colorLut", 8, "8");
    row("camera.polarity", 1, "true");
    row("camera.clhe", 2000, "2000");
    row("camera.temperatures.sensorMillikelvin", 296650, "296650 (23.5 degrees C)");
    row("camera.temperatures.sensorMillikelvin", 0, "0 (-273.15 degrees C)");
    row("camera.temperatures.sensorMillikelvin", qQNaN(), "nan");
    row("camera.temperatures.sensorMillikelvin", qInf(), "inf");
    row("camera.operatingInfo.operatingMinutes", 73415, "73415 (1223.6 h)");
}

void SettingsWordsTest::saysNumbers()
{
    QFETCH(const QString, key);
    QFETCH(const double, number);
    QFETCH(const QString, words);
    QCOMPARE(QString::fromStdString(numberInWords(fieldOf(key), number)), words);
}

void SettingsWordsTest::understandsTexts_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number"); ///< A NaN: it is none.
    const auto row = [](const char *key, const char *text, double number) {
        QTest::addRow("%s %s", key, text) << QString{key} << QString{text} << number;
    };
    row("camera.gamma", "2.2", 144179);
    row("camera.gamma", "0.5", 32768);
    row("camera.gamma", "2.5", 163840);
    row("camera.gamma", "2.51", 2.51);
    row("camera.gamma", "32768", 32768);
    row("camera.gamma", "3", 3);
    row("camera.gamma", "", qQNaN());
    row("camera.gamma", "2,2", qQNaN());
    row("camera.gamma", "2.2 ", qQNaN());
    row("camera.gamma", "nan", qQNaN());
    row("camera.gamma", "inf", qQNaN());
    row("camera.gamma", "1e999", qQNaN());
    row("camera.gamma", "0x10000", qQNaN());
    row("camera.colorLut", "Iron", 1);
    row("camera.colorLut", "1", 1);
    row("camera.colorLut", "steel", qQNaN());
    row("camera.polarity", "on", 1);
    row("camera.polarity", "No", 0);
    row("camera.polarity", "true", 1);
    row("camera.polarity", "1", 1);
    row("camera.clhe", "on", qQNaN());
    row("blendUnit.warp0.a11", "-12", -12);
    row("blendUnit.zoom.factor", "2.5", 2.5);
}

void SettingsWordsTest::understandsTexts()
{
    QFETCH(const QString, key);
    QFETCH(const QString, text);
    QFETCH(const double, number);
    QVERIFY(same(numberOf(fieldOf(key), text.toStdString()).value_or(qQNaN()), number));
}

void SettingsWordsTest::tellsRanges_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("range");
    const auto row = [](const char *key, const char *range) {
        QTest::addRow("%s", key) << QString{key} << QString{range};
    };
    row("camera.gamma", "0.5 to 2.5, or 32768 to 163840");
    row("camera.edgeCorrection.type", "none, sharpening or contouring, or 0 to 2");
    row("camera.frameRate", "9, 25, 30, 50 or 60");
    row("camera.polarity", "true or false");
    row("camera.gfid", "0 to 1000");
    row("camera.edgeCorrection.secondThreshold", "0 or more");
}

void SettingsWordsTest::tellsRanges()
{
    QFETCH(const QString, key);
    QFETCH(const QString, range);
    QCOMPARE(QString::fromStdString(rangeText(fieldOf(key))), range);
}

void SettingsWordsTest::aScaleMayHaveNoUnit()
{
    Field field{{}, Kind::Unsigned32, between(0, 50), "", ""};
    field.scale = {10, 0, "", 1, true};
    QCOMPARE(inWords(field, 25), std::string{"2.5"});
    QCOMPARE(rangeText(field), std::string{"0 to 5, or 0 to 50"});
    field.scale.unit = "m";
    QCOMPARE(inWords(field, 25), std::string{"2.5 m"});
    QCOMPARE(rangeText(field), std::string{"0 to 5 m, or 0 to 50"});
}

void SettingsWordsTest::aScaledFractionIsSentWhole_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("number");
    QTest::newRow("of a whole kind") << static_cast<int>(Kind::Unsigned32) << 25.0;
    QTest::newRow("not of a kind with fractions") << static_cast<int>(Kind::Float) << 25.5;
}

void SettingsWordsTest::aScaledFractionIsSentWhole()
{
    QFETCH(const int, kind);
    QFETCH(const double, number);
    Field field{{}, static_cast<Kind>(kind), between(20, 50), "", ""};
    field.scale = {10, 0, "", 2, true};
    QCOMPARE(numberOf(field, "2.55"), std::optional{number});
}

void SettingsWordsTest::anEmptyRangeAllowsNothing()
{
    // Such as that of an expert number whose limits the camera has mixed up.
    const Field field{{}, Kind::Unsigned32, between(5, 3), "", ""};
    QCOMPARE(numberRangeText(field), std::string{"nothing is allowed from 5 to 3"});
}

void SettingsWordsTest::everyKindHasAName_data()
{
    QTest::addColumn<int>("kind");
    const auto row = [](const char *name, Kind kind) {
        QTest::newRow(name) << static_cast<int>(kind);
    };
    row("bool", Kind::Boolean);
    row("8-bit unsigned", Kind::Unsigned8);
    row("16-bit unsigned", Kind::Unsigned16);
    row("32-bit unsigned", Kind::Unsigned32);
    row("32-bit signed", Kind::Signed32);
    row("float", Kind::Float);
    row("double", Kind::Double);
    row("text", Kind::Text);
    row("object", Kind::Object);
}

void SettingsWordsTest::everyKindHasAName()
{
    QFETCH(const int, kind);
    QCOMPARE(kindName(static_cast<Kind>(kind)), std::string{QTest::currentDataTag()});
}

void SettingsWordsTest::saysVersionsOfTheFirmware_data()
{
    QTest::addColumn<int>("word");
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QString>("cameraFpga");
    QTest::addColumn<QString>("blendUnit");
    QTest::addColumn<QString>("blendUnitFpga");
    const auto row = [](int word, const char *camera, const char *cameraFpga, const char *blendUnit,
                        const char *blendUnitFpga) {
        QTest::addRow("%04x", static_cast<unsigned>(word))
            << word << QString{camera} << QString{cameraFpga} << QString{blendUnit} << QString{blendUnitFpga};
    };
    row(0x0000, "0.0.0", "0.0.0 60Hz", "0.0.0 Beta0", "0.0.0.0");
    row(0x0123, "1.2.3", "1.2.3 60Hz", "0.1.2 Beta3", "0.1.2.3");
    row(0x1A3C, "a.3.c", "a.3.c 9Hz", "1.a.3 Betac", "1.a.3.c");
    row(0x2456, "4.5.6", "4.5.6 MIPI 60Hz", "2.4.5 Beta6", "2.4.5.6");
    row(0x3456, "4.5.6", "4.5.6 MIPI 9Hz", "3.4.5 Beta6", "3.4.5.6");
    row(0xCA0F, "a.0.f", "a.0.f 60Hz", "c.a.0 Betaf", "c.a.0.f");
    row(0xFFFF, "f.f.f", "f.f.f MIPI 9Hz", "f.f.f Betaf", "f.f.f.f");
}

void SettingsWordsTest::saysVersionsOfTheFirmware()
{
    QFETCH(const int, word);
    QFETCH(const QString, camera);
    QFETCH(const QString, cameraFpga);
    QFETCH(const QString, blendUnit);
    QFETCH(const QString, blendUnitFpga);
    const auto version = static_cast<std::uint16_t>(word);
    QCOMPARE(QString::fromStdString(cameraProcessorText(version)), camera);
    QCOMPARE(QString::fromStdString(cameraFpgaText(version)), cameraFpga);
    QCOMPARE(QString::fromStdString(blendUnitProcessorText(version)), blendUnit);
    QCOMPARE(QString::fromStdString(blendUnitFpgaText(version)), blendUnitFpga);
}

void SettingsWordsTest::theSimulatorsTableHasKindsAndRanges()
{
    QFile file{SIMULATOR_README};
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString readme{QString::fromUtf8(file.readAll())};
    const std::vector<Setting> table{deviceTable()};
    for (const Place &place : placesOf(table)) {
        const Field &field = place.setting->fields[place.field];
        const QString key{QString::fromStdString(keyOf(place)).section('.', 1)};
        const QString row{QRegularExpression{"^\\| `" + QRegularExpression::escape(key) + "` .*$",
                                             QRegularExpression::MultilineOption}
                              .match(readme)
                              .captured()};
        const QStringList cells{row.split(" | ")};
        QVERIFY2(cells.size() > 3, qPrintable(key));
        QCOMPARE(cells[1], QString::fromStdString(kindName(field.kind)));
        if (!place.setting->write || field.derived) {
            continue;
        }
        QString range{QString::fromStdString(numberText(field.allowed.minimum)) + " to " +
                      QString::fromStdString(numberText(field.allowed.maximum))};
        if (field.kind == Kind::Boolean) {
            range = "both";
        } else if (!field.allowed.only.empty()) {
            range = QString::fromStdString(rangeText(field)).replace(" or ", ", ");
        } else if (cells[2].startsWith("`configuration.")) {
            range = "`configuration." + key + "Minimum` to `…Maximum`";
        }
        QCOMPARE(cells[2], range);
    }
}

PILOTEL_TEST_CLASS(SettingsWordsTest)
#include "tst_settings_words.moc"
