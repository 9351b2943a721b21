// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The tables of settings: their keys and kinds are the simulator's, and the configuration is read by them.
#include "configurationvalues.h"
#include "devicesettings.h"
#include "heldvalues.h"
#include "simulatedcamera.h"
#include "testclass.h"
#include "values.h"
#include "veltrix_simulator/simulator.h"

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

using namespace device_settings;
using veltrix_simulator::Simulator;

Q_DECLARE_METATYPE(Kind)

class SettingsKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { Simulator::instance().reset(); }

    void keysAreTheSimulators();
    void everyValueThatIsReadHasAKey();
    void everyKeyLeadsToItsPlace();
    void unknownKeysLeadNowhere_data();
    void unknownKeysLeadNowhere();
    void rowsAreComplete();
    void kindIsTheSimulators_data();
    void kindIsTheSimulators();
    void expertRangesAreTheWords();
    void configurationIsReadAsHeld_data();
    void configurationIsReadAsHeld();
};

void SettingsKeysTest::keysAreTheSimulators()
{
    QStringList known;
    for (const std::string &key : Simulator::instance().keys()) {
        known.append(QString::fromStdString(key));
    }
    const std::vector<Setting> table{deviceTable()};
    for (const Place &place : placesOf(table)) {
        QVERIFY2(known.contains(QString::fromStdString(keyOf(place))), keyOf(place).c_str());
    }
    for (const ConfigurationValue &value : configurationTable()) {
        QVERIFY2(known.contains(QString::fromStdString(value.key)), value.key.c_str());
    }
}

void SettingsKeysTest::everyValueThatIsReadHasAKey()
{
    const std::vector<Setting> table{deviceTable()};
    const std::vector<ConfigurationValue> configuration{configurationTable()};
    QStringList missing;
    for (const std::string &key : Simulator::instance().keys()) {
        const std::string name{key.substr(key.find('.'))};
        const bool known{findSetting(table, "blendUnit" + name) || findSetting(table, "camera" + name) ||
                         findConfigurationValue(configuration, key) != nullptr};
        if (!known) {
            missing.append(QString::fromStdString(key));
        }
    }
    QStringList expected;
    for (const char *const unit : {"blendUnit.", "camera."}) {
        // No operation reads the speed of the MAVLink port, the enables of the regions, or how often
        // something was saved or corrected.
        for (const char *const name :
             {"mavlink.baudRate", "mavlink.permanent", "roi1IncEnabled", "roi0ExcEnabled", "roi1ExcEnabled",
              "userSaves", "expertSaves", "nucRequests"}) {
            expected.append(QString{unit} + name);
        }
    }
    // The first is only set; the second is a text.
    expected << "configuration.baudRate"
             << "configuration.communicationType";
    QCOMPARE(missing, expected);
}

void SettingsKeysTest::everyKeyLeadsToItsPlace()
{
    const std::vector<Setting> table{deviceTable()};
    for (const Place &place : placesOf(table)) {
        const std::optional<Place> found{findSetting(table, keyOf(place))};
        QVERIFY2(found, keyOf(place).c_str());
        QCOMPARE(found->unit, place.unit);
        QCOMPARE(found->setting, place.setting);
        QCOMPARE(found->field, place.field);
    }
    const std::vector<ConfigurationValue> configuration{configurationTable()};
    for (const ConfigurationValue &value : configuration) {
        const ConfigurationValue *const found{findConfigurationValue(configuration, value.key)};
        QVERIFY2(found != nullptr, value.key.c_str());
        QCOMPARE(found->key, value.key);
        QVERIFY(found == &value || found->isOperation);
    }
}

void SettingsKeysTest::unknownKeysLeadNowhere_data()
{
    QTest::addColumn<QString>("key");
    for (const char *const key :
         {"", "gamma", "camera", "camera.", "camera.gamma.", "camera.Gamma", "camera.visibleAgc",
          "camera.videoMode", "blendUnit.gamma", "blendUnit.zoom", "configuration.", "configuration.gsk"}) {
        QTest::addRow("\"%s\"", key) << QString{key};
    }
}

void SettingsKeysTest::unknownKeysLeadNowhere()
{
    QFETCH(const QString, key);
    const std::vector<Setting> table{deviceTable()};
    QVERIFY(!findSetting(table, key.toStdString()));
    const std::vector<ConfigurationValue> configuration{configurationTable()};
    QVERIFY(findConfigurationValue(configuration, key.toStdString()) == nullptr);
}

void SettingsKeysTest::rowsAreComplete()
{
    const auto isLine = [](const std::string &meaning) {
        return !meaning.empty() && meaning.size() <= 80 && meaning.find('\n') == std::string::npos;
    };
    for (const Setting &setting : deviceTable()) {
        QCOMPARE(bool{setting.write}, !setting.set.empty());
        for (const Field &field : setting.fields) {
            QVERIFY2(isLine(field.meaning), setting.key.c_str());
        }
    }
    for (const ConfigurationValue &value : configurationTable()) {
        QVERIFY2(isLine(value.meaning), value.key.c_str());
        QVERIFY2(allows(value.allowed, held(value.key)), value.key.c_str());
    }
}

void SettingsKeysTest::kindIsTheSimulators_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<Kind>("kind");
    const std::vector<Setting> table{deviceTable()};
    for (const Place &place : placesOf(table)) {
        QTest::addRow("%s", keyOf(place).c_str())
            << QString::fromStdString(keyOf(place)) << place.setting->fields[place.field].kind;
    }
    for (const ConfigurationValue &value : configurationTable()) {
        QTest::addRow("%s, %s", value.key.c_str(), value.get.c_str())
            << QString::fromStdString(value.key) << value.kind;
    }
}

void SettingsKeysTest::kindIsTheSimulators()
{
    QFETCH(const QString, key);
    QFETCH(const Kind, kind);
    const auto refusal = [&](double number) {
        return refusalOf([&] { hold(key.toStdString(), kind, number); });
    };
    if (isFloating(kind)) {
        hold(key.toStdString(), kind, 0.1);
        QCOMPARE(held(key.toStdString()) == 0.1, kind == Kind::Double);
        return;
    }
    for (const double limit : {least(kind), greatest(kind)}) {
        QCOMPARE(refusal(limit), QString{});
        QCOMPARE(held(key.toStdString()), limit);
    }
    QVERIFY(!refusal(least(kind) - 1).isEmpty());
    QVERIFY(!refusal(greatest(kind) + 1).isEmpty());
}

void SettingsKeysTest::expertRangesAreTheWords()
{
    Simulator &simulator = Simulator::instance();
    for (const char *const name : {"gsk", "gfid", "gms", "tint"}) {
        const std::string prefix{"configuration." + std::string{name}};
        simulator.set(prefix + "Minimum", std::int64_t{11});
        simulator.set(prefix + "Maximum", std::int64_t{17});
        const std::vector<Setting> table{deviceTable()};
        const std::optional<Place> place{findSetting(table, "camera." + std::string{name})};
        QVERIFY(place);
        QCOMPARE(describe(place->setting->fields[0].allowed), std::string{"11 to 17 is allowed"});
        const std::vector<ConfigurationValue> configuration{configurationTable()};
        QCOMPARE(describe(findConfigurationValue(configuration, prefix + "Default")->allowed),
                 std::string{"11 to 17 is allowed"});
    }
}

void SettingsKeysTest::configurationIsReadAsHeld_data()
{
    QTest::addColumn<std::size_t>("place");
    const std::vector<ConfigurationValue> table{configurationTable()};
    for (std::size_t place{0}; place < table.size(); ++place) {
        QTest::addRow("%s, %s", table[place].key.c_str(), table[place].get.c_str()) << place;
    }
}

void SettingsKeysTest::configurationIsReadAsHeld()
{
    QFETCH(const std::size_t, place);
    const SimulatedCamera camera;
    const ConfigurationValue value{configurationTable()[place]};
    const double number{another(value.kind, held(value.key))};
    hold(value.key, value.kind, number);
    camera.simulator.clearJournal();
    QCOMPARE(value.read(camera.configuration), number);
    QStringList called;
    for (const veltrix_simulator::Call &call : camera.simulator.journal()) {
        called.append(QString::fromStdString(call.operation));
    }
    QCOMPARE(called, value.isOperation ? QStringList{QString::fromStdString(value.get)} : QStringList{});
}

PILOTEL_TEST_CLASS(SettingsKeysTest)
#include "tst_settings_keys.moc"
