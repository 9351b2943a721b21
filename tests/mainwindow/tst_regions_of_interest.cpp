// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the regions of interest: the enable boxes and what they send.
#include "camerapage.h"
#include "controls.h"
#include "testclass.h"

#include <QByteArray>
#include <QCheckBox>
#include <QObject>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <QWidget>

namespace
{

/// By the number that the device's setters give them.
constexpr int optionalRegions[]{1, 2, 3};

void addRegions()
{
    QTest::addColumn<int>("number");
    for (const int number : optionalRegions) {
        QTest::newRow(regionOf(number).enable) << number;
    }
}

QStringList boxesOf(const RegionRow &region)
{
    const QString boxes{region.boxes};
    return {boxes + "X1", boxes + "X2", boxes + "Y1", boxes + "Y2"};
}

/// Gives the region's boxes values that all differ; the device does not hear of it.
void showCoordinates(const TestWindow &test, const RegionRow &region)
{
    int value{100 * region.number};
    for (const QString &box : boxesOf(region)) {
        test.child<QSpinBox>(box).setValue(++value);
    }
}

QStringList valuesOf(const TestWindow &test, const RegionRow &region)
{
    QStringList values;
    for (const QString &box : boxesOf(region)) {
        values.append(QString::number(test.child<QSpinBox>(box).value()));
    }
    return values;
}

/// The four commands of a region with the flags of all optional ones, in the order of their numbers.
QStringList commands(const RegionRow &region, const QStringList &values, const char *flags)
{
    QStringList texts;
    int place{0};
    for (const char *const operation : {"setRoiX1", "setRoiX2", "setRoiY1", "setRoiY2"}) {
        texts.append(QStringLiteral("%1(%2, %3, %4) -> true")
                         .arg(operation, values.at(place++), QString::number(region.number), flags));
    }
    return texts;
}

QStringList zeros()
{
    return {"0", "0", "0", "0"};
}

} // namespace

class RegionsOfInterestTest : public QObject
{
    Q_OBJECT

private slots:
    void optionalRegionsAreOffAtTheStart();
    void checkingSendsTheValuesShown_data();
    void checkingSendsTheValuesShown();
    void uncheckingSendsZerosAndKeepsTheValues_data();
    void uncheckingSendsZerosAndKeepsTheValues();
    void everyCommandCarriesAllFlags_data();
    void everyCommandCarriesAllFlags();
    void uncheckingSendsNothingForTheBoxInFocus();
    void theSpaceKeyTogglesToo();
    void coordinatesInTheWrongOrderAreSentUnchecked();
    void oneRefusalIsRememberedAndTheOthersAreSent_data();
    void oneRefusalIsRememberedAndTheOthersAreSent();
    void fourSuccessesAreRemembered_data() { addRegions(); }
    void fourSuccessesAreRemembered();
    void withoutADeviceNothingHappens_data() { addRegions(); }
    void withoutADeviceNothingHappens();
};

void RegionsOfInterestTest::optionalRegionsAreOffAtTheStart()
{
    TestWindow test;
    openCameraPage(test, "LutSection");

    for (const int optional : optionalRegions) {
        const RegionRow &region{regionOf(optional)};
        QCOMPARE(test.child<QCheckBox>(region.enable).isChecked(), false);
        QCOMPARE(test.enabledOf(boxesOf(region)), QStringList{});
    }
    const QStringList always{"Roi0IncX1", "Roi0IncX2", "Roi0IncY1", "Roi0IncY2"};
    QCOMPARE(test.enabledOf(always), always);
    QVERIFY(test.child<QCheckBox>("checkBox").isChecked());
    QVERIFY(!test.child<QCheckBox>("checkBox").isEnabled());
}

void RegionsOfInterestTest::checkingSendsTheValuesShown_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("ROI 1") << 1
                           << QStringList{"setRoiX1(101, 1, true, false, false) -> true",
                                          "setRoiX2(102, 1, true, false, false) -> true",
                                          "setRoiY1(103, 1, true, false, false) -> true",
                                          "setRoiY2(104, 1, true, false, false) -> true"};
    QTest::newRow("ROI 2") << 2
                           << QStringList{"setRoiX1(201, 2, false, true, false) -> true",
                                          "setRoiX2(202, 2, false, true, false) -> true",
                                          "setRoiY1(203, 2, false, true, false) -> true",
                                          "setRoiY2(204, 2, false, true, false) -> true"};
    QTest::newRow("ROI 3") << 3
                           << QStringList{"setRoiX1(301, 3, false, false, true) -> true",
                                          "setRoiX2(302, 3, false, false, true) -> true",
                                          "setRoiY1(303, 3, false, false, true) -> true",
                                          "setRoiY2(304, 3, false, false, true) -> true"};
}

void RegionsOfInterestTest::checkingSendsTheValuesShown()
{
    QFETCH(const int, number);
    QFETCH(const QStringList, expected);
    const RegionRow &region{regionOf(number)};
    TestWindow test;
    openCameraPage(test, "LutSection");
    showCoordinates(test, region);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});

    test.click(region.enable);
    QCOMPARE(test.takeCallsAndRecords(), expected);
    QCOMPARE(test.takeLog(), QStringList{});
    QVERIFY(test.child<QCheckBox>(region.enable).isChecked());
    for (const int optional : optionalRegions) {
        const RegionRow &other{regionOf(optional)};
        QCOMPARE(test.enabledOf(boxesOf(other)), other.number == number ? boxesOf(other) : QStringList{});
    }
}

void RegionsOfInterestTest::uncheckingSendsZerosAndKeepsTheValues_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, int number, const QStringList &expected) {
        QTest::newRow(name) << number << expected;
    };
    row("ROI 1", 1,
        {"setRoiX1(0, 1, false, false, false) -> true", "setRoiX2(0, 1, false, false, false) -> true",
         "setRoiY1(0, 1, false, false, false) -> true", "setRoiY2(0, 1, false, false, false) -> true"});
    row("ROI 2", 2,
        {"setRoiX1(0, 2, false, false, false) -> true", "setRoiX2(0, 2, false, false, false) -> true",
         "setRoiY1(0, 2, false, false, false) -> true", "setRoiY2(0, 2, false, false, false) -> true"});
    row("ROI 3", 3,
        {"setRoiX1(0, 3, false, false, false) -> true", "setRoiX2(0, 3, false, false, false) -> true",
         "setRoiY1(0, 3, false, false, false) -> true", "setRoiY2(0, 3, false, false, false) -> true"});
}

void RegionsOfInterestTest::uncheckingSendsZerosAndKeepsTheValues()
{
    QFETCH(const int, number);
    QFETCH(const QStringList, expected);
    const RegionRow &region{regionOf(number)};
    TestWindow test;
    openCameraPage(test, "LutSection");
    showCoordinates(test, region);
    const QStringList values{valuesOf(test, region)};
    test.click(region.enable);
    const QStringList whenChecked{test.takeCallsAndRecords()};

    test.click(region.enable);
    QCOMPARE(test.takeCallsAndRecords(), expected);
    QCOMPARE(test.takeLog(), QStringList{});
    QVERIFY(!test.child<QCheckBox>(region.enable).isChecked());
    QCOMPARE(test.enabledOf(boxesOf(region)), QStringList{});
    QCOMPARE(valuesOf(test, region), values);

    test.click(region.enable);
    QCOMPARE(test.takeCallsAndRecords(), whenChecked);
    QCOMPARE(test.enabledOf(boxesOf(region)), boxesOf(region));
}

void RegionsOfInterestTest::everyCommandCarriesAllFlags_data()
{
    QTest::addColumn<QVector<int>>("checkedBefore");
    QTest::addColumn<int>("clicked");
    QTest::addColumn<QByteArray>("flags");
    const auto row = [](const char *name, const QVector<int> &checkedBefore, int clicked, const char *flags) {
        QTest::newRow(name) << checkedBefore << clicked << QByteArray{flags};
    };
    row("1 on, then 3 on", {1}, 3, "true, false, true");
    row("3 on, then 1 on", {3}, 1, "true, false, true");
    row("1 and 3 on, then 2 on", {1, 3}, 2, "true, true, true");
    row("all on, then 2 off", {1, 2, 3}, 2, "true, false, true");
    row("all on, then 1 off", {1, 2, 3}, 1, "false, true, true");
    row("all on, then 3 off", {1, 2, 3}, 3, "true, true, false");
    row("2 and 3 on, then 3 off", {2, 3}, 3, "false, true, false");
}

void RegionsOfInterestTest::everyCommandCarriesAllFlags()
{
    QFETCH(const QVector<int>, checkedBefore);
    QFETCH(const int, clicked);
    QFETCH(const QByteArray, flags);
    const RegionRow &region{regionOf(clicked)};
    TestWindow test;
    openCameraPage(test, "LutSection");
    showCoordinates(test, region);
    const QStringList shown{valuesOf(test, region)};
    for (const int number : checkedBefore) {
        test.click(regionOf(number).enable);
    }
    test.takeCallsAndRecords();

    test.click(region.enable);
    const QStringList values{checkedBefore.contains(clicked) ? zeros() : shown};
    QCOMPARE(test.takeCallsAndRecords(), commands(region, values, flags));
}

void RegionsOfInterestTest::uncheckingSendsNothingForTheBoxInFocus()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    showCoordinates(test, regionOf(1));
    auto &enableBox = test.child<QCheckBox>("roi1IncEnable");
    enableBox.setChecked(true);
    test.child<QSpinBox>("Roi1IncX1").setFocus();
    test.takeCallsAndRecords();
    test.takeLog();

    // As a reset does, which leaves the focus where it is.
    enableBox.setChecked(false);

    QCOMPARE(test.takeCallsAndRecords(), commands(regionOf(1), zeros(), "false, false, false"));
    QCOMPARE(test.takeLog(), QStringList{});
}

void RegionsOfInterestTest::theSpaceKeyTogglesToo()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    showCoordinates(test, regionOf(2));
    auto &enableBox = test.child<QCheckBox>("roi0ExcEnable");
    enableBox.setFocus();

    QTest::keyClick(&enableBox, Qt::Key_Space);
    QCOMPARE(test.takeCallsAndRecords(),
             commands(regionOf(2), {"201", "202", "203", "204"}, "false, true, false"));
    QTest::keyClick(&enableBox, Qt::Key_Space);
    QCOMPARE(test.takeCallsAndRecords(), commands(regionOf(2), zeros(), "false, false, false"));
}

void RegionsOfInterestTest::coordinatesInTheWrongOrderAreSentUnchecked()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.child<QSpinBox>("Roi1ExcX1").setValue(300);
    test.child<QSpinBox>("Roi1ExcX2").setValue(200);
    test.child<QSpinBox>("Roi1ExcY1").setValue(40);
    test.child<QSpinBox>("Roi1ExcY2").setValue(30);

    test.click("roi1ExcEnable");
    QCOMPARE(test.takeCallsAndRecords(),
             commands(regionOf(3), {"300", "200", "40", "30"}, "false, false, true"));
    QCOMPARE(test.child<QSpinBox>("Roi1ExcX1").value(), 300);
}

void RegionsOfInterestTest::oneRefusalIsRememberedAndTheOthersAreSent_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("refused");
    for (const int optional : optionalRegions) {
        const RegionRow &region{regionOf(optional)};
        for (const char *const operation : {"setRoiX1", "setRoiX2", "setRoiY1", "setRoiY2"}) {
            QTest::addRow("%s of ROI %d", operation, region.number) << region.number << QByteArray{operation};
        }
    }
}

void RegionsOfInterestTest::oneRefusalIsRememberedAndTheOthersAreSent()
{
    QFETCH(const int, number);
    QFETCH(const QByteArray, refused);
    const RegionRow &region{regionOf(number)};
    TestWindow test;
    openCameraPage(test, "LutSection");
    showCoordinates(test, region);
    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({refused.toStdString()});

    test.click(region.enable);
    QVERIFY(!test.lastCommandOk());
    const QStringList calls{test.takeCallsAndRecords()};
    QCOMPARE(calls.size(), 4);
    for (const QString &call : calls) {
        QCOMPARE(call.endsWith(" -> false"), call.startsWith(refused));
    }
    QCOMPARE(test.takeLog(), QStringList{});
    // The window stays as the operator left it.
    QVERIFY(test.child<QCheckBox>(region.enable).isChecked());
    QCOMPARE(test.enabledOf(boxesOf(region)), boxesOf(region));

    test.click(region.enable);
    QVERIFY(!test.lastCommandOk());
    QCOMPARE(test.takeCallsAndRecords().size(), 4);
}

void RegionsOfInterestTest::fourSuccessesAreRemembered()
{
    QFETCH(const int, number);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.addFault({"setRoiY2", 1, 1});
    test.click(regionOf(number).enable);
    QVERIFY(!test.lastCommandOk());

    test.click(regionOf(number).enable);
    QVERIFY(test.lastCommandOk());
}

void RegionsOfInterestTest::withoutADeviceNothingHappens()
{
    QFETCH(const int, number);
    const RegionRow &region{regionOf(number)};
    TestWindow test;
    // The operator cannot reach the page.
    test.child<QWidget>("paramSection").setEnabled(true);
    test.child<QCheckBox>(region.enable).setChecked(true);
    test.takeCallsAndRecords();
    test.invoke(region.enableSlot);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.enabledOf(boxesOf(region)), QStringList{});
    test.child<QCheckBox>(region.enable).setChecked(false);

    test.beConnected();
    test.click("disconnectDeviceButton");
    test.takeCallsAndRecords();
    test.invoke(region.enableSlot);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.enabledOf({region.enable}), QStringList{});
}

PILOTEL_TEST_CLASS(RegionsOfInterestTest)
#include "tst_regions_of_interest.moc"
