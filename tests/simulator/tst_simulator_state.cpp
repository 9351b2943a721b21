// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The state by key, what it is at power-on, and the configuration object.
#include "simulatedcamera.h"
#include "testclass.h"

#include <QFile>
#include <QIODevice>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

using namespace veltrix_sdk;
using veltrix_simulator::Value;

namespace
{

/// The keys of the README with what stands there for power-on.
std::map<QString, QString> documentedKeys()
{
    QFile readme{QStringLiteral(SIMULATOR_README)};
    if (!readme.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {};
    }
    std::map<QString, QString> keys;
    const QString chapter =
        QString::fromUtf8(readme.readAll()).section("\n## Keys\n", 1).section("\n## ", 0, 0);
    for (const QString &line : chapter.split('\n')) {
        const QStringList cells = line.split(QStringLiteral(" | "));
        if (!line.startsWith(QStringLiteral("| `"))) {
            continue;
        }
        const QString key = cells.first().mid(3).chopped(1);
        const QString last = cells.last().chopped(2);
        if (key.startsWith(QStringLiteral("configuration."))) {
            keys[key] = last;
        } else {
            keys[unitPrefix(blendUnitTarget) + key] = cells.at(cells.size() - 2);
            keys[unitPrefix(cameraTarget) + key] = last;
        }
    }
    return keys;
}

/// Reads one default of the configuration as a number.
template <typename Result>
std::function<double(ISdkConfiguration &)> readBy(Result (ISdkConfiguration::*get)())
{
    return [get](ISdkConfiguration &configuration) {
        return static_cast<double>((configuration.*get)());
    };
}

} // namespace

Q_DECLARE_METATYPE(std::function<double(veltrix_sdk::ISdkConfiguration &)>)

class SimulatorStateTest : public QObject
{
    Q_OBJECT

private slots:
    void readmeListsEveryKeyWithItsDefault();
    void everyKeyTakesItsOwnValue();
    void wrongKeyIsNamed_data();
    void wrongKeyIsNamed();
    void wrongTypeIsNamed_data();
    void wrongTypeIsNamed();
    void anyValueOfTheTypeIsAnswered();
    void resetRestoresPowerOn();

    void powerOnLooksLikeACamera();
    void unitsDiffer_data();
    void unitsDiffer();

    void configurationAnswersItsKey_data();
    void configurationAnswersItsKey();
    void communicationTypeAnswersItsKey();
    void baudRateIsStored();
    void wordsAreTheRecord();
};

void SimulatorStateTest::readmeListsEveryKeyWithItsDefault()
{
    const SimulatedCamera c;
    std::map<QString, QString> keys;
    for (const std::string &key : c.simulator.keys()) {
        keys[QString::fromStdString(key)] = toText(c.simulator.get(key));
    }
    const std::map<QString, QString> documented = documentedKeys();
    for (const auto &[key, value] : keys) {
        QVERIFY2(documented.count(key) == 1, qPrintable(key + " is missing"));
        QCOMPARE(key + ": " + documented.at(key), key + ": " + value);
    }
    QCOMPARE(documented.size(), keys.size());
}

void SimulatorStateTest::everyKeyTakesItsOwnValue()
{
    const SimulatedCamera c;
    for (const std::string &key : c.simulator.keys()) {
        const Value before = c.simulator.get(key);
        Value changed = std::visit(
            [](const auto &value) {
                using T = std::decay_t<decltype(value)>;
                if constexpr (std::is_same_v<T, std::string>) {
                    return Value{value + "x"};
                } else if constexpr (std::is_same_v<T, bool>) {
                    return Value{!value};
                } else {
                    return Value{value == T{0} ? T{1} : T{0}};
                }
            },
            before);
        c.simulator.set(key, changed);
        QVERIFY2(c.simulator.get(key) == changed, key.c_str());
        c.simulator.set(key, before);
        QVERIFY2(c.simulator.get(key) == before, key.c_str());
    }
}

void SimulatorStateTest::wrongKeyIsNamed_data()
{
    QTest::addColumn<QString>("key");
    for (const char *const key : {"", "gamma", "camera.", "camera.Gamma", "camera.gamma.", "lens.gamma",
                                  "configuration.gamma", "blendUnit", "camera.communicationType"}) {
        QTest::addRow("\"%s\"", key) << QString{key};
    }
}

void SimulatorStateTest::wrongKeyIsNamed()
{
    QFETCH(const QString, key);
    const SimulatedCamera c;
    const QString message = QStringLiteral("no value of the simulator has the key \"%1\"").arg(key);
    QCOMPARE(refusalOf([&] { c.simulator.get(key.toStdString()); }), message);
    QCOMPARE(refusalOf([&] { c.simulator.set(key.toStdString(), true); }), message);
}

void SimulatorStateTest::wrongTypeIsNamed_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *key, int place, const char *message) {
        QTest::addRow("%s, value %d", key, place) << QString{key} << place << QString{message};
    };
    // The values are true, 256, -1, 2^32, 1.5, "text", 1e39 and 2^24 + 1.
    row("camera.polarity", 1, "true or false");
    row("camera.polarity", 4, "true or false");
    row("camera.polarity", 5, "true or false");
    row("camera.videoOutput", 0, "an integer from 0 to 255");
    row("camera.videoOutput", 1, "an integer from 0 to 255");
    row("camera.videoOutput", 2, "an integer from 0 to 255");
    row("camera.videoOutput", 4, "an integer from 0 to 255");
    row("camera.gamma", 2, "an integer from 0 to 4294967295");
    row("camera.gamma", 3, "an integer from 0 to 4294967295");
    row("configuration.gskDefault", 3, "an integer from -2147483648 to 2147483647");
    row("camera.zoom.factor", 5, "a number in single precision");
    row("camera.zoom.factor", 6, "a number in single precision");
    row("camera.zoom.factor", 7, "a number in single precision");
    row("camera.zoom.factor", 0, "a number in single precision");
    row("camera.warp0.a11", 5, "a number");
    row("configuration.communicationType", 1, "a text");
    row("configuration.communicationType", 0, "a text");
}

void SimulatorStateTest::wrongTypeIsNamed()
{
    QFETCH(const QString, key);
    QFETCH(const int, place);
    QFETCH(const QString, message);
    const std::vector<Value> values{
        true, std::int64_t{256},          std::int64_t{-1}, std::int64_t{1} << 32, 1.5, "text",
        1e39, (std::int64_t{1} << 24) + 1};
    const SimulatedCamera c;
    const Value before = c.simulator.get(key.toStdString());
    QCOMPARE(refusalOf([&] { c.simulator.set(key.toStdString(), values[static_cast<std::size_t>(place)]); }),
             '"' + key + "\" takes " + message);
    QVERIFY(c.simulator.get(key.toStdString()) == before);
}

void SimulatorStateTest::anyValueOfTheTypeIsAnswered()
{
    const SimulatedCamera c;
    c.simulator.set("camera.videoOutput", std::int64_t{255});
    QCOMPARE(int{c.device->getVideoOutput()}, 255);
    c.simulator.set("camera.gamma", std::int64_t{0xFFFFFFFF});
    QCOMPARE(c.device->getGamma(), 0xFFFFFFFFU);
    c.simulator.set("camera.roi2.x1", std::int64_t{4000000000});
    QCOMPARE(c.device->getRoiX1(2), 4000000000U);
    c.simulator.set("camera.startingMode", std::int64_t{99});
    std::uint8_t mode{0};
    QVERIFY(c.device->getStartingMode(&mode));
    QCOMPARE(int{mode}, 99);
    c.simulator.set("camera.temperatures.sensorMillikelvin", std::numeric_limits<double>::quiet_NaN());
    c.simulator.set("camera.temperatures.fpgaMillikelvin", -std::numeric_limits<double>::infinity());
    Temperatures temperatures{};
    QVERIFY(c.device->getTemperatures(&temperatures));
    QVERIFY(std::isnan(temperatures.sensorMillikelvin));
    QCOMPARE(temperatures.fpgaMillikelvin, -std::numeric_limits<float>::infinity());
    c.simulator.set("camera.zoom.factor", 1.1);
    ZoomConfig zoom{};
    QVERIFY(c.device->getZoomConfig(&zoom));
    QCOMPARE(zoom.factor, 1.1F);
    c.simulator.set("camera.polarity", std::int64_t{1});
    QVERIFY(c.device->getPolarity());
}

void SimulatorStateTest::resetRestoresPowerOn()
{
    const SimulatedCamera c;
    QVERIFY(c.device->setGamma(144179));
    c.simulator.set("configuration.gskMaximum", std::int64_t{9});
    c.simulator.set("configuration.communicationType", "USB");
    c.simulator.setPorts({"A"});
    c.simulator.setJournalEnabled(false);
    c.simulator.addFault({"getGamma"});
    c.simulator.reset();
    QVERIFY(!c.simulator.isDeviceOpen());
    QVERIFY(c.simulator.journal().empty());
    QCOMPARE(toText(c.simulator.get("camera.gamma")), QStringLiteral("65536"));
    QCOMPARE(toText(c.simulator.get("configuration.gskMaximum")), QStringLiteral("3"));
    QCOMPARE(toText(c.simulator.get("configuration.communicationType")), QStringLiteral("UART"));
    QCOMPARE(c.sdk.getDeviceManager()->openDevice("SIM1"), c.device);
    QCOMPARE(c.device->getGamma(), 65536U);
    QCOMPARE(c.simulator.journal().size(), std::size_t{3});
    QCOMPARE(c.simulator.journal().back().target, blendUnitTarget);
}

void SimulatorStateTest::powerOnLooksLikeACamera()
{
    const SimulatedCamera c;
    QCOMPARE(c.device->getGamma(), 65536U);
    QCOMPARE(int{c.device->getFrameRate()}, 60);
    FirmwareVersions versions{};
    QVERIFY(c.device->getFirmwareVersions(&versions));
    QCOMPARE(versions.fpga & 0x3000, 0x2000);
    QVERIFY(c.device->getRoiX1(0) < c.device->getRoiX2(0));
    QVERIFY(c.device->getRoiY1(0) < c.device->getRoiY2(0));
    for (const std::uint32_t region : {1U, 2U, 3U}) {
        QCOMPARE(c.device->getRoiX1(region) + c.device->getRoiX2(region) + c.device->getRoiY1(region) +
                     c.device->getRoiY2(region),
                 0U);
    }
    c.device->setTarget(blendUnitTarget);
    QCOMPARE(c.device->getBitStatus(), 1U);
    QVERIFY(c.device->getFirmwareVersions(&versions));
    QCOMPARE(versions.processor & 0xF, 2);
}

void SimulatorStateTest::unitsDiffer_data()
{
    QTest::addColumn<QString>("key");
    for (const char *const key :
         {"firmwareVersions.processor", "firmwareVersions.fpga", "temperatures.sensorMillikelvin",
          "temperatures.fpgaMillikelvin", "operatingInfo.operatingMinutes", "operatingInfo.startupCount",
          "serialNumber", "sensorSerialNumber", "bitStatus"}) {
        QTest::addRow("%s", key) << QString{key};
    }
}

void SimulatorStateTest::unitsDiffer()
{
    QFETCH(const QString, key);
    const SimulatedCamera c;
    QVERIFY(c.simulator.get((unitPrefix(blendUnitTarget) + key).toStdString()) !=
            c.simulator.get((unitPrefix(cameraTarget) + key).toStdString()));
}

void SimulatorStateTest::configurationAnswersItsKey_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<std::function<double(ISdkConfiguration &)>>("read");
    const auto row = [](const char *key, const auto &get) {
        QTest::addRow("%s", key) << QString{key} << readBy(get);
    };
    using C = ISdkConfiguration;
    row("defaultBaudRate", &C::getDefaultBaudRate);
    row("defaultGamma", &C::getDefaultGamma);
    row("defaultClhe", &C::getDefaultClhe);
    row("defaultSharpeningGain", &C::getDefaultSharpeningGain);
    row("gskDefault", &C::getDefaultGsk);
    row("gfidDefault", &C::getDefaultGfid);
    row("tintDefault", &C::getDefaultTint);
    row("gmsDefault", &C::getDefaultGms);
    row("defaultRoi0IncX1", &C::getDefaultRoi0IncX1);
    row("defaultRoi0IncY1", &C::getDefaultRoi0IncY1);
    row("defaultRoi0IncX2", &C::getDefaultRoi0IncX2);
    row("defaultRoi0IncY2", &C::getDefaultRoi0IncY2);
    row("defaultContrastType", &C::getDefaultContrastType);
    row("defaultColorLut", &C::getDefaultColorLut);
    row("defaultPolarity", &C::getDefaultPolarity);
    row("defaultHorizontalFlip", &C::getDefaultHorizontalFlip);
    row("defaultVerticalFlip", &C::getDefaultVerticalFlip);
    row("defaultVignettingCorrection", &C::getDefaultVignettingCorrection);
    row("defaultColumnCorrection", &C::getDefaultColumnCorrection);
    row("defaultFrameRate", &C::getDefaultFrameRate);
    row("defaultEdgeCorrectionType", &C::getDefaultEdgeCorrectionType);
    row("defaultSharpeningGainValue", &C::getDefaultSharpeningGainValue);
    row("defaultSharpeningThreshold", &C::getDefaultSharpeningThreshold);
    row("defaultVideoOutput", &C::getDefaultVideoOutput);
    row("defaultSdiOutput", &C::getDefaultSdiOutput);
    row("defaultParallelOutput", &C::getDefaultParallelOutput);
    row("defaultMipiOutput", &C::getDefaultMipiOutput);
    row("defaultRoi0ExcEnable", &C::getDefaultRoi0ExcEnable);
    row("defaultRoi0ExcX1", &C::getDefaultRoi0ExcX1);
    row("defaultRoi0ExcY1", &C::getDefaultRoi0ExcY1);
    row("defaultRoi0ExcX2", &C::getDefaultRoi0ExcX2);
    row("defaultRoi0ExcY2", &C::getDefaultRoi0ExcY2);
    row("defaultRoi1IncEnable", &C::getDefaultRoi1IncEnable);
    row("defaultRoi1IncX1", &C::getDefaultRoi1IncX1);
    row("defaultRoi1IncY1", &C::getDefaultRoi1IncY1);
    row("defaultRoi1IncX2", &C::getDefaultRoi1IncX2);
    row("defaultRoi1IncY2", &C::getDefaultRoi1IncY2);
    row("defaultRoi1ExcEnable", &C::getDefaultRoi1ExcEnable);
    row("defaultRoi1ExcX1", &C::getDefaultRoi1ExcX1);
    row("defaultRoi1ExcY1", &C::getDefaultRoi1ExcY1);
    row("defaultRoi1ExcX2", &C::getDefaultRoi1ExcX2);
    row("defaultRoi1ExcY2", &C::getDefaultRoi1ExcY2);
    row("defaultTempoFilter", &C::getDefaultTempoFilter);
    row("defaultAhcBlackGainLimit", &C::getDefaultAhcBlackGainLimit);
    row("defaultAhcWhiteGainLimit", &C::getDefaultAhcWhiteGainLimit);
    row("expertMode", &C::isExpertMode);
}

void SimulatorStateTest::configurationAnswersItsKey()
{
    QFETCH(const QString, key);
    QFETCH(const std::function<double(ISdkConfiguration &)>, read);
    const SimulatedCamera c;
    const std::string fullKey = "configuration." + key.toStdString();
    const bool toggled{read(c.configuration) == 0.0};
    c.simulator.set(fullKey, std::int64_t{toggled ? 1 : 0});
    QCOMPARE(read(c.configuration), toggled ? 1.0 : 0.0);
}

void SimulatorStateTest::communicationTypeAnswersItsKey()
{
    const SimulatedCamera c;
    QCOMPARE(c.configuration.getCommunicationType(), "UART");
    c.simulator.set("configuration.communicationType", "UART ");
    QCOMPARE(c.configuration.getCommunicationType(), "UART ");
}

void SimulatorStateTest::baudRateIsStored()
{
    const SimulatedCamera c;
    c.configuration.setBaudRate(9600);
    QCOMPARE(toText(c.simulator.get("configuration.baudRate")), QStringLiteral("9600"));
    QCOMPARE(c.configuration.getDefaultBaudRate(), 115200);
}

void SimulatorStateTest::wordsAreTheRecord()
{
    const SimulatedCamera c;
    c.configuration.words.tintDefault = -7;
    QCOMPARE(c.configuration.getDefaultTint(), -7);
    QCOMPARE(toText(c.simulator.get("configuration.tintDefault")), QStringLiteral("-7"));
    c.simulator.set("configuration.gfidMaximum", std::int64_t{77});
    QCOMPARE(c.configuration.words.gfidMaximum, 77);
}

PILOTEL_TEST_CLASS(SimulatorStateTest)
#include "tst_simulator_state.moc"
