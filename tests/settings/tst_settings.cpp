// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every setting is read and written under its key, and its range is the unit's.
#include "devicesettings.h"
#include "heldvalues.h"
#include "simulatedcamera.h"
#include "testclass.h"
#include "values.h"
#include "veltrix_simulator/simulator.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

using namespace device_settings;
using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

namespace
{

using Table = std::vector<Setting>;

constexpr double notANumber{std::numeric_limits<double>::quiet_NaN()};

QMap<QString, QString> wholeState()
{
    QMap<QString, QString> state;
    for (const std::string &key : Simulator::instance().keys()) {
        state.insert(QString::fromStdString(key), toText(Simulator::instance().get(key)));
    }
    return state;
}

enum class Which
{
    All,
    Written,
};

/// One row for each number of the device.
void addDeviceRows(Which which)
{
    QTest::addColumn<QString>("key");
    const Table table{deviceTable()};
    for (const Place &place : placesOf(table)) {
        const Setting &setting = *place.setting;
        if (which == Which::All || (setting.write && !setting.fields[place.field].derived)) {
            const std::string key{keyOf(place)};
            QTest::addRow("%s", key.c_str()) << QString::fromStdString(key);
        }
    }
}

/// The device in power-on state with the unit of a key selected.
struct Selected
{
    explicit Selected(const QString &itsKey) : key{itsKey.toStdString()}
    {
        place = findSetting(table, key);
        if (place) {
            camera.device->setTarget(static_cast<std::int32_t>(place->unit));
            camera.simulator.clearJournal();
        }
    }

    const Setting &setting() const { return *place->setting; }
    const Field &field() const { return setting().fields[place->field]; }
    veltrix_sdk::IDeviceControl &device() const { return *camera.device; }
    Written write(double number) const { return writeField(device(), setting(), place->field, number); }

    /// Sends the number with the others as they are, whatever it is.
    bool send(double number) const
    {
        Values values{*readAll(device(), setting())};
        values[place->field] = number;
        return setting().write(device(), values, {});
    }

    const std::string key;
    const SimulatedCamera camera{};
    const Table table{deviceTable()};
    std::optional<Place> place;
};

} // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatIsHeld_data() { addDeviceRows(Which::All); }
    void readsWhatIsHeld();
    void powerOnNumberIsAllowed_data() { addDeviceRows(Which::All); }
    void powerOnNumberIsAllowed();
    void writtenNumberArrivesAlone_data() { addDeviceRows(Which::Written); }
    void writtenNumberArrivesAlone();
    void rangeIsTheUnits_data() { addDeviceRows(Which::Written); }
    void rangeIsTheUnits();

    void outcomesOfWriting();
    void fractionsAreNotLost();
    void regionsTravelWithTheirFlags();
    void whatATypeCannotHoldTravelsAsItsNearest_data();
    void whatATypeCannotHoldTravelsAsItsNearest();
};

void SettingsTest::readsWhatIsHeld()
{
    QFETCH(const QString, key);
    const Selected s{key};
    const double number{another(s.field().kind, held(s.key))};
    hold(s.key, s.field().kind, number);
    const std::optional<Values> values{readAll(s.device(), s.setting())};
    QVERIFY(values);
    QCOMPARE(values->size(), s.setting().fields.size());
    QCOMPARE((*values)[s.place->field], number);
    QCOMPARE(s.camera.simulator.journal().size(), std::size_t{1});
    QCOMPARE(s.camera.simulator.journal().back().operation, s.setting().get);

    s.camera.simulator.addFault({s.setting().get});
    const std::optional<Values> refused{readAll(s.device(), s.setting())};
    QVERIFY(!refused || (*refused)[s.place->field] == 0.0);
}

void SettingsTest::powerOnNumberIsAllowed()
{
    QFETCH(const QString, key);
    const Selected s{key};
    QVERIFY(allows(s.field().allowed, held(s.key)));
}

void SettingsTest::writtenNumberArrivesAlone()
{
    QFETCH(const QString, key);
    const Selected s{key};
    const Allowed &allowed = s.field().allowed;
    const double found{held(s.key)};
    for (const double number : {allowed.minimum, allowed.maximum, found}) {
        // The flags that travel with a region come from its first column as it was before.
        hold(s.key, s.field().kind, found);
        QMap<QString, QString> expected{wholeState()};
        QCOMPARE(s.write(number), Written::Acknowledged);
        QCOMPARE(s.camera.simulator.journal().back().operation, s.setting().set);
        QCOMPARE(held(s.key), number);
        QMap<QString, QString> state{wholeState()};
        for (const Field &field : s.setting().fields) {
            if (field.derived || &field == &s.field()) {
                const Place changed{s.place->unit, &s.setting(),
                                    static_cast<std::size_t>(&field - s.setting().fields.data())};
                expected.remove(QString::fromStdString(keyOf(changed)));
                state.remove(QString::fromStdString(keyOf(changed)));
            }
        }
        QCOMPARE(state, expected);
    }
}

void SettingsTest::rangeIsTheUnits()
{
    QFETCH(const QString, key);
    const Selected s{key};
    const Allowed &allowed = s.field().allowed;
    const Values accepted{allowed.only.empty() ? Values{allowed.minimum, allowed.maximum} : allowed.only};
    for (const double number : accepted) {
        QVERIFY(s.send(number));
        QCOMPARE(held(s.key), number);
    }
    const double before{held(s.key)};
    Values beyond{allowed.minimum - 1, allowed.maximum + 1};
    if (!allowed.only.empty()) {
        beyond.push_back(allowed.minimum + 1);
    }
    for (const double number : beyond) {
        QCOMPARE(s.write(number), Written::NotAllowed);
        // A type of the contract that cannot hold the number does not carry it.
        if (number >= least(s.field().kind) && number <= greatest(s.field().kind)) {
            QVERIFY2(!s.send(number), numberText(number).c_str());
        }
        QCOMPARE(held(s.key), before);
    }
}

void SettingsTest::outcomesOfWriting()
{
    const Selected gamma{"camera.gamma"};
    for (const double number : {0.0, 65536.5, notANumber}) {
        QCOMPARE(gamma.write(number), Written::NotAllowed);
    }
    QVERIFY(gamma.camera.simulator.journal().empty());
    gamma.camera.simulator.addFault({"setGamma"});
    QCOMPARE(gamma.write(65537), Written::Refused);

    const Selected threshold{"blendUnit.visibleAgc.threshold"};
    threshold.camera.simulator.addFault({"getVisibleAgc"});
    QCOMPARE(threshold.write(11), Written::NotRead);
    QCOMPARE(threshold.camera.simulator.journal().back().operation, std::string{"getVisibleAgc"});

    const Selected black{"camera.ahcGainLimitation.black"};
    black.camera.simulator.addFault({"getAhcGainLimitation", 1, 0,
                                     std::vector<Value>{std::int64_t{2}, std::int64_t{1}, std::int64_t{1}}});
    QCOMPARE(black.write(11), Written::NotRead);

    // The result of these is not examined, so the numbers count whatever it says.
    const Selected fpga{"camera.temperatures.fpgaMillikelvin"};
    fpga.camera.simulator.addFault({"getTemperatures", 1, 0, std::vector<Value>{false, 1.5, 2.5}});
    const std::optional<Values> temperatures{readAll(fpga.device(), fpga.setting())};
    QVERIFY(temperatures);
    QCOMPARE((*temperatures)[fpga.place->field], 2.5);

    for (const char *const key : {"camera.serialNumber", "camera.edgeCorrection.secondThreshold"}) {
        const Selected s{key};
        QCOMPARE(s.write(50), Written::NotSent);
        QVERIFY(s.camera.simulator.journal().empty());
    }
}

void SettingsTest::fractionsAreNotLost()
{
    const Selected s{"blendUnit.warp1.a11"};
    QCOMPARE(s.write(0.5), Written::NotAllowed);
    s.camera.simulator.set("blendUnit.warp1.a12", 0.25);
    QCOMPARE(s.write(2), Written::NotKept);
    QCOMPARE(s.camera.simulator.journal().back().operation, std::string{"getWarp"});
    s.camera.simulator.set("blendUnit.warp1.a12", -3.0);
    QCOMPARE(s.write(2), Written::Acknowledged);
    QCOMPARE(s.camera.lastCall(), QString{"setWarp(1, 2, 0, -3, 1, 0, 0) -> true"});

    const Selected factor{"camera.zoom.factor"};
    QCOMPARE(factor.write(2.5), Written::Acknowledged);
    QCOMPARE(held(factor.key), 2.5);
}

void SettingsTest::regionsTravelWithTheirFlags()
{
    const Selected s{"camera.roi3.y2"};
    s.camera.simulator.set("camera.roi1.x1", std::int64_t{3});
    QCOMPARE(s.write(100), Written::Acknowledged);
    QCOMPARE(s.camera.lastCall(), QString{"setRoiY2(100, 3, true, false, false) -> true"});
    s.camera.simulator.set("camera.roi1.x1", std::int64_t{0});
    s.camera.simulator.set("camera.roi2.x1", std::int64_t{3});
    QCOMPARE(s.write(100), Written::Acknowledged);
    QCOMPARE(s.camera.lastCall(), QString{"setRoiY2(100, 3, false, true, false) -> true"});
    s.camera.simulator.set("camera.roi2.x1", std::int64_t{0});
    s.camera.simulator.set("camera.roi3.x1", std::int64_t{3});
    QCOMPARE(s.write(100), Written::Acknowledged);
    QCOMPARE(s.camera.lastCall(), QString{"setRoiY2(100, 3, false, false, true) -> true"});
}

void SettingsTest::whatATypeCannotHoldTravelsAsItsNearest_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("call");
    const auto row = [](const char *key, double number, const char *call) {
        QTest::newRow(call) << QString{key} << number << QString{call};
    };
    constexpr double infinity{std::numeric_limits<double>::infinity()};
    row("camera.colorLut", 256, "setColorLut(255) -> false");
    row("camera.colorLut", -1, "setColorLut(0) -> true");
    row("camera.clhe", 1e300, "setClhe(4294967295) -> false");
    row("camera.clhe", std::numeric_limits<double>::quiet_NaN(), "setClhe(0) -> true");
    row("camera.gms", infinity, "setGms(4294967295) -> false");
    row("blendUnit.warp0.a13", infinity, "setWarp(0, 1, 0, 0, 1, 2147483647, 0) -> false");
    row("blendUnit.warp0.a13", -infinity, "setWarp(0, 1, 0, 0, 1, -2147483648, 0) -> false");
}

void SettingsTest::whatATypeCannotHoldTravelsAsItsNearest()
{
    QFETCH(const QString, key);
    QFETCH(const double, number);
    QFETCH(const QString, call);
    const Selected s{key};
    s.send(number);
    QCOMPARE(s.camera.lastCall(), call);
}

PILOTEL_TEST_CLASS(SettingsTest)
#include "tst_settings.moc"
