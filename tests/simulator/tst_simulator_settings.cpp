// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What is set is what is read back, on the addressed unit only, and what is out of range is refused.
#include "settings.h"
#include "simulatedcamera.h"
#include "testclass.h"

#include <QObject>
#include <QString>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using namespace veltrix_sdk;

namespace
{

void addSettingRows()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<std::size_t>("place");
    const std::vector<Setting> settings = everySetting();
    for (const int target : {blendUnitTarget, cameraTarget}) {
        for (std::size_t place{0}; place < settings.size(); ++place) {
            QTest::addRow("%s%s", qPrintable(unitPrefix(target)), settings[place].name.c_str())
                << target << place;
        }
    }
}

} // namespace

class SimulatorSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void acceptedNumberIsReadBack_data() { addSettingRows(); }
    void acceptedNumberIsReadBack();
    void refusedNumberChangesNothing_data() { addSettingRows(); }
    void refusedNumberChangesNothing();
    void powerOnNumberIsAccepted_data() { addSettingRows(); }
    void powerOnNumberIsAccepted();
    void stateIsReachedByKey_data() { addSettingRows(); }
    void stateIsReachedByKey();

    void secondThresholdFollowsTheFirst();
    void refusedFieldKeepsTheWholeRecord();
    void regionFlagsAreStored();
    void unknownRegionAndStreamAreRefused();
    void expertRangesAreTheConfigurations();
    void mavlinkBaudRate_data();
    void mavlinkBaudRate();
    void savingAndNucAreCounted();
    void readingStarts();
};

void SimulatorSettingsTest::acceptedNumberIsReadBack()
{
    QFETCH(const int, target);
    QFETCH(const std::size_t, place);
    const Setting setting = everySetting()[place];
    const SimulatedCamera c{target};
    c.device->setTarget(1 - target);
    const double other{setting.get(*c.device)};
    for (const double number : setting.accepted) {
        c.device->setTarget(target);
        QVERIFY2(setting.set(*c.device, number), qPrintable(QString::number(number)));
        QCOMPARE(setting.get(*c.device), number);
        c.device->setTarget(1 - target);
        QCOMPARE(setting.get(*c.device), other);
    }
}

void SimulatorSettingsTest::refusedNumberChangesNothing()
{
    QFETCH(const int, target);
    QFETCH(const std::size_t, place);
    const Setting setting = everySetting()[place];
    const SimulatedCamera c{target};
    const double before{setting.get(*c.device)};
    for (const double number : setting.refused) {
        QVERIFY2(!setting.set(*c.device, number), qPrintable(QString::number(number)));
        QCOMPARE(setting.get(*c.device), before);
    }
}

void SimulatorSettingsTest::powerOnNumberIsAccepted()
{
    QFETCH(const int, target);
    QFETCH(const std::size_t, place);
    const Setting setting = everySetting()[place];
    const SimulatedCamera c{target};
    QVERIFY(setting.set(*c.device, setting.get(*c.device)));
}

void SimulatorSettingsTest::stateIsReachedByKey()
{
    QFETCH(const int, target);
    QFETCH(const std::size_t, place);
    const Setting setting = everySetting()[place];
    const SimulatedCamera c{target};
    const std::string key = unitPrefix(target).toStdString() + setting.name;
    QVERIFY(setting.set(*c.device, setting.accepted.back()));
    const veltrix_simulator::Value stored = c.simulator.get(key);
    QVERIFY(setting.set(*c.device, setting.accepted.front()));
    c.simulator.set(key, stored);
    QCOMPARE(setting.get(*c.device), setting.accepted.back());
}

void SimulatorSettingsTest::secondThresholdFollowsTheFirst()
{
    const SimulatedCamera c;
    QVERIFY(c.device->configureEdgeCorrection(1, 3, 5));
    QCOMPARE(c.device->getEdgeCorrection().firstThreshold, 5U);
    QCOMPARE(c.device->getEdgeCorrection().secondThreshold, 45U);
    QVERIFY(c.device->configureEdgeCorrection(2, 3, 255));
    QCOMPARE(c.device->getEdgeCorrection().secondThreshold, 295U);
}

void SimulatorSettingsTest::refusedFieldKeepsTheWholeRecord()
{
    const SimulatedCamera c;
    const ZoomConfig good{2, 100, 200, 1};
    const ZoomConfig bad{3, 101, 201, 2};
    QVERIFY(c.device->configureZoom(&good));
    QVERIFY(!c.device->configureZoom(&bad));
    ZoomConfig read{};
    QVERIFY(c.device->getZoomConfig(&read));
    QCOMPARE(read.factor, 2.0F);
    QCOMPARE(read.xCenter, 100U);
    QCOMPARE(read.yCenter, 200U);
    QCOMPARE(int{read.method}, 1);
}

void SimulatorSettingsTest::regionFlagsAreStored()
{
    const SimulatedCamera c;
    const auto flags = [&] {
        return toText(c.simulator.get("camera.roi1IncEnabled")) + ' ' +
               toText(c.simulator.get("camera.roi0ExcEnabled")) + ' ' +
               toText(c.simulator.get("camera.roi1ExcEnabled"));
    };
    QVERIFY(c.device->setRoiX1(7, 1, true, false, true));
    QCOMPARE(flags(), QStringLiteral("true false true"));
    QVERIFY(c.device->setRoiY2(7, 2, false, true, false));
    QCOMPARE(flags(), QStringLiteral("false true false"));
    QVERIFY(!c.device->setRoiY2(480, 2, true, true, true));
    QCOMPARE(flags(), QStringLiteral("false true false"));
}

void SimulatorSettingsTest::unknownRegionAndStreamAreRefused()
{
    const SimulatedCamera c;
    for (const std::int32_t region : {-1, 4, 2147483647}) {
        QVERIFY(!c.device->setRoiX1(7, region, false, false, false));
        QCOMPARE(c.device->getRoiX1(static_cast<std::uint32_t>(region)), 0U);
    }
    for (const std::int32_t stream : {-1, 3, 256}) {
        QVERIFY(!c.device->setWarp(stream, 0, 0, 0, 0, 0, 0));
    }
    Warp warp{};
    warp.stream = 3;
    warp.a11 = 7;
    QVERIFY(!c.device->getWarp(&warp));
    QCOMPARE(warp.a11, 0.0);
    QCOMPARE(int{warp.stream}, 3);
}

void SimulatorSettingsTest::expertRangesAreTheConfigurations()
{
    const SimulatedCamera c;
    QVERIFY(!c.device->setGsk(4));
    c.configuration.words.gskMaximum = 4;
    QVERIFY(c.device->setGsk(4));
    c.simulator.set("configuration.gmsMinimum", std::int64_t{100});
    QVERIFY(!c.device->setGms(99));
    QVERIFY(c.device->setGms(100));
}

void SimulatorSettingsTest::mavlinkBaudRate_data()
{
    QTest::addColumn<int>("baudRate");
    QTest::addColumn<bool>("accepted");
    for (const int baudRate : {9600, 115200, 230400, 460800, 921600}) {
        QTest::addRow("%d", baudRate) << baudRate << true;
    }
    for (const int baudRate : {0, -9600, 9601, 57600, 2147483647}) {
        QTest::addRow("%d", baudRate) << baudRate << false;
    }
}

void SimulatorSettingsTest::mavlinkBaudRate()
{
    QFETCH(const int, baudRate);
    QFETCH(const bool, accepted);
    const SimulatedCamera c;
    QCOMPARE(c.device->setMavlinkBaudRate(baudRate, true), accepted);
    QCOMPARE(toText(c.simulator.get("camera.mavlink.baudRate")),
             QString::number(accepted ? baudRate : 115200));
    QCOMPARE(toText(c.simulator.get("camera.mavlink.permanent")), QString{accepted ? "true" : "false"});
    QCOMPARE(toText(c.simulator.get("blendUnit.mavlink.permanent")), QStringLiteral("false"));
}

void SimulatorSettingsTest::savingAndNucAreCounted()
{
    const SimulatedCamera c{blendUnitTarget};
    const auto counts = [&] {
        return toText(c.simulator.get("blendUnit.userSaves")) + ' ' +
               toText(c.simulator.get("blendUnit.expertSaves")) + ' ' +
               toText(c.simulator.get("blendUnit.nucRequests"));
    };
    QVERIFY(c.device->saveBlendUnitParameters(0));
    QVERIFY(c.device->saveBlendUnitParameters(1));
    QVERIFY(c.device->saveBlendUnitParameters(1));
    QVERIFY(c.device->processNucRequest());
    QVERIFY(!c.device->saveBlendUnitParameters(2));
    QCOMPARE(counts(), QStringLiteral("1 2 1"));
}

void SimulatorSettingsTest::readingStarts()
{
    const SimulatedCamera c;
    QVERIFY(c.device->startReading());
}

PILOTEL_TEST_CLASS(SimulatorSettingsTest)
#include "tst_simulator_settings.moc"
