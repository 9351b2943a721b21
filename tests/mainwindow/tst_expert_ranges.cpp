// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The ranges, defaults and steps that the expert sliders take from the configuration.
#include "testclass.h"
#include "testwindow.h"

#include <QByteArray>
#include <QDoubleSpinBox>
#include <QObject>
#include <QSlider>
#include <QString>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

using veltrix_simulator::Simulator;

namespace
{

struct ExpertValue
{
    const char *name;
    std::int64_t minimum;
    std::int64_t maximum;
    std::int64_t value;
};

const ExpertValue atPowerOn[]{
    {"gsk", 1, 3, 2}, {"gfid", 0, 1000, 250}, {"gms", 0, 4095, 1024}, {"tint", 0, 20, 10}};
const ExpertValue others[]{
    {"gsk", 2, 9, 7}, {"gfid", 100, 400, 300}, {"gms", 10, 99999, 5000}, {"tint", 1, 50, 33}};

void configure(Simulator &simulator, const ExpertValue &value)
{
    const std::string key{std::string{"configuration."} + value.name};
    simulator.set(key + "Minimum", value.minimum);
    simulator.set(key + "Maximum", value.maximum);
    simulator.set(key + "Default", value.value);
}

QSlider &sliderOf(const TestWindow &test, const QString &name)
{
    return test.child<QSlider>(name + "Slider");
}

QDoubleSpinBox &spinBoxOf(const TestWindow &test, const QString &name)
{
    return test.child<QDoubleSpinBox>(name + "Edit");
}

} // namespace

class ExpertRangesTest : public QObject
{
    Q_OBJECT

private slots:
    void takesTheRangesOfTheConfiguration_data();
    void takesTheRangesOfTheConfiguration();
    void keepsTheWholeRangeOfTheGmsBox();
    void takesTheRangesAfterAFailedRead();
    void takesTheRangesAgainAtEveryConnect();
    void showsTheDevicesValuesWithExpertMode();
    void takesAnyWords_data();
    void takesAnyWords();
    void asksTheConfigurationOnce();
};

void ExpertRangesTest::takesTheRangesOfTheConfiguration_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    const auto rows = [](const char *set, const auto &values) {
        for (const ExpertValue &value : values) {
            QTest::addRow("%s, %s", value.name, set)
                << QString{value.name} << static_cast<int>(value.minimum) << static_cast<int>(value.maximum)
                << static_cast<int>(value.value);
        }
    };
    rows("at power-on", atPowerOn);
    rows("configured", others);
}

void ExpertRangesTest::takesTheRangesOfTheConfiguration()
{
    QFETCH(QString, name);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    const QByteArray key{name.toLatin1()};
    TestWindow test{[&](Simulator &simulator) {
        simulator.set("configuration.expertMode", false);
        configure(simulator, {key.constData(), minimum, maximum, value});
    }};
    QSlider &slider{sliderOf(test, name)};
    slider.setEnabled(false);
    slider.setOrientation(Qt::Vertical);
    slider.setTickInterval(7);
    slider.setSingleStep(7);
    slider.setPageStep(7);

    test.beConnected();

    QCOMPARE(slider.minimum(), minimum);
    QCOMPARE(slider.maximum(), maximum);
    QCOMPARE(slider.value(), value);
    QVERIFY(slider.isEnabledTo(&test.window()));
    QCOMPARE(slider.orientation(), Qt::Horizontal);
    QCOMPARE(slider.tickInterval(), 1);
    QCOMPARE(slider.singleStep(), 1);
    QCOMPARE(slider.pageStep(), 10);
    const QDoubleSpinBox &spinBox{spinBoxOf(test, name)};
    QCOMPARE(spinBox.value(), double{value * 1.0});
    QCOMPARE(spinBox.singleStep(), 1.0);
    if (name != "gms") {
        QCOMPARE(spinBox.minimum(), double{minimum * 1.0});
        QCOMPARE(spinBox.maximum(), double{maximum * 1.0});
    }
}

void ExpertRangesTest::keepsTheWholeRangeOfTheGmsBox()
{
    TestWindow test{[](Simulator &simulator) {
        configure(simulator, {"gms", 10, 99999, 5000});
    }};

    test.beConnected();

    QCOMPARE(sliderOf(test, "gms").maximum(), 99999);
    QCOMPARE(spinBoxOf(test, "gms").minimum(), 0.0);
    QCOMPARE(spinBoxOf(test, "gms").maximum(), 4294967296.0);
}

void ExpertRangesTest::takesTheRangesAfterAFailedRead()
{
    TestWindow test{[](Simulator &simulator) {
        simulator.set("configuration.expertMode", false);
        for (const ExpertValue &value : others) {
            configure(simulator, value);
        }
        simulator.addFault({"getFirmwareVersions"});
    }};
    test.boxes.expect();

    test.scanAndConnect();

    for (const ExpertValue &value : others) {
        QCOMPARE(sliderOf(test, value.name).minimum(), static_cast<int>(value.minimum));
        QCOMPARE(sliderOf(test, value.name).maximum(), static_cast<int>(value.maximum));
        QCOMPARE(sliderOf(test, value.name).value(), static_cast<int>(value.value));
    }
    test.boxes.takeShown();
}

void ExpertRangesTest::takesTheRangesAgainAtEveryConnect()
{
    TestWindow test{[](Simulator &simulator) {
        simulator.set("configuration.expertMode", false);
    }};
    test.beConnected();
    sliderOf(test, "gfid").setValue(900);
    test.click("disconnectDeviceButton");
    configure(test.simulator, {"gfid", 100, 400, 300});

    test.click("connectDeviceButton");

    QCOMPARE(sliderOf(test, "gfid").minimum(), 100);
    QCOMPARE(sliderOf(test, "gfid").maximum(), 400);
    QCOMPARE(sliderOf(test, "gfid").value(), 300);
    QCOMPARE(spinBoxOf(test, "gfid").value(), 300.0);
}

void ExpertRangesTest::showsTheDevicesValuesWithExpertMode()
{
    TestWindow test{[](Simulator &simulator) {
        simulator.set("camera.gsk", 3);
        simulator.set("camera.gfid", 700);
        simulator.set("camera.gms", 4000);
        simulator.set("camera.tint", 1);
    }};

    test.beConnected();

    const struct
    {
        const char *name;
        int value;
    } shown[]{{"gsk", 3}, {"gfid", 700}, {"gms", 4000}, {"tint", 1}};
    for (const auto &row : shown) {
        QCOMPARE(sliderOf(test, row.name).value(), row.value);
        QCOMPARE(spinBoxOf(test, row.name).value(), double{row.value * 1.0});
    }
}

void ExpertRangesTest::takesAnyWords_data()
{
    using Limits = std::numeric_limits<std::int32_t>;
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::newRow("the whole range") << Limits::min() << Limits::max() << 0;
    QTest::newRow("the lowest word") << Limits::min() << Limits::min() << Limits::min();
    QTest::newRow("the highest word") << Limits::max() << Limits::max() << Limits::max();
    QTest::newRow("maximum below minimum") << 10 << 5 << 10;
}

void ExpertRangesTest::takesAnyWords()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    TestWindow test{[&](Simulator &simulator) {
        simulator.set("configuration.expertMode", false);
        for (const ExpertValue &row : others) {
            configure(simulator, {row.name, minimum, maximum, value});
        }
    }};

    test.beConnected();

    for (const char *const name : {"gsk", "gfid", "tint"}) {
        QCOMPARE(sliderOf(test, name).minimum(), minimum);
        QCOMPARE(sliderOf(test, name).maximum(), std::max(minimum, maximum));
        QCOMPARE(sliderOf(test, name).value(), value);
        QCOMPARE(spinBoxOf(test, name).value(), double{value * 1.0});
    }
}

void ExpertRangesTest::asksTheConfigurationOnce()
{
    TestWindow test;
    test.beConnected();

    test.invoke("updateTabAvailability");

    const QStringList calls{"get_instance() -> sdk", "getConfiguration() -> configuration"};
    QCOMPARE(test.takeCallsAndRecords(), calls);
    QCOMPARE(test.takeLog(), QStringList{});
}

PILOTEL_TEST_CLASS(ExpertRangesTest)
#include "tst_expert_ranges.moc"
