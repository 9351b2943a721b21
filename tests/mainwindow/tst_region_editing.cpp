// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the regions of interest: what a finished edit of a coordinate sends.
#include "regioncoordinates.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <cstddef>
#include <string>

class RegionEditingTest : public QObject
{
    Q_OBJECT

private slots:
    void enterSendsTheCoordinate_data() { addCoordinates(); }
    void enterSendsTheCoordinate();
    void leavingSendsTheCoordinate_data() { addCoordinates(); }
    void leavingSendsTheCoordinate();
    void aRefusalIsToldWithoutTheRegion_data() { addCoordinates(); }
    void aRefusalIsToldWithoutTheRegion();
    void everyCommandCarriesAllFlags_data() { addCoordinates(); }
    void everyCommandCarriesAllFlags();
    void settingABoxSendsNothing_data() { addCoordinates(); }
    void settingABoxSendsNothing();
    void anUnknownRegionSendsZeroUnchecked_data();
    void anUnknownRegionSendsZeroUnchecked();
};

void RegionEditingTest::enterSendsTheCoordinate()
{
    QFETCH(const std::size_t, place);
    const Coordinate &coordinate{coordinates.at(place)};
    TestWindow test;
    openRegion(test, coordinate.number);
    show(test, coordinate.first, 20);
    show(test, coordinate.second, 400);

    type(test, coordinate.box, 123);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    press(test, coordinate.box, Qt::Key_Return);

    const QString line{QStringLiteral("Set ROI %1 %2 value OK").arg(coordinate.number).arg(coordinate.name)};
    const QString call{sent(coordinate.name, 123, coordinate.number,
                            flagsOfOnly.at(static_cast<std::size_t>(coordinate.number)))};
    QCOMPARE(test.takeCallsAndRecords(), (QStringList{call, record(line)}));
    QCOMPARE(test.takeLog(), QStringList{line});
    QVERIFY(test.lastCommandOk());
}

void RegionEditingTest::leavingSendsTheCoordinate()
{
    QFETCH(const std::size_t, place);
    const Coordinate &coordinate{coordinates.at(place)};
    TestWindow test;
    openRegion(test, coordinate.number);
    show(test, coordinate.first, 20);
    show(test, coordinate.second, 400);

    type(test, coordinate.box, 123);
    test.child<QWidget>("logView").setFocus();

    const QString line{QStringLiteral("Set ROI %1 %2 value OK").arg(coordinate.number).arg(coordinate.name)};
    const QString call{sent(coordinate.name, 123, coordinate.number,
                            flagsOfOnly.at(static_cast<std::size_t>(coordinate.number)))};
    QCOMPARE(test.takeCallsAndRecords(), (QStringList{call, record(line)}));
    QCOMPARE(test.takeLog(), QStringList{line});
}

void RegionEditingTest::aRefusalIsToldWithoutTheRegion()
{
    QFETCH(const std::size_t, place);
    const Coordinate &coordinate{coordinates.at(place)};
    TestWindow test;
    openRegion(test, coordinate.number);
    show(test, coordinate.first, 20);
    show(test, coordinate.second, 400);
    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({std::string{"setRoi"} + coordinate.name});

    type(test, coordinate.box, 123);
    press(test, coordinate.box, Qt::Key_Return);

    const QString line{QStringLiteral("Set ROI %1 value KO").arg(coordinate.name)};
    const QString call{sent(coordinate.name, 123, coordinate.number,
                            flagsOfOnly.at(static_cast<std::size_t>(coordinate.number)), false)};
    QCOMPARE(test.takeCallsAndRecords(), (QStringList{call, record(line)}));
    QCOMPARE(test.takeLog(), QStringList{line});
    QVERIFY(!test.lastCommandOk());
    QCOMPARE(shown(test, coordinate.box), 123);
}

void RegionEditingTest::everyCommandCarriesAllFlags()
{
    QFETCH(const std::size_t, place);
    const Coordinate &coordinate{coordinates.at(place)};
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.click("roi1IncEnable");
    test.click("roi1ExcEnable");
    const bool all{coordinate.number == 2};
    if (all) {
        test.click("roi0ExcEnable");
    }
    show(test, coordinate.second, 400);
    test.takeCalls();

    type(test, coordinate.box, 60);
    press(test, coordinate.box, Qt::Key_Return);
    QCOMPARE(test.takeCalls(), QStringList{sent(coordinate.name, 60, coordinate.number,
                                                all ? "true, true, true" : "true, false, true")});
}

void RegionEditingTest::settingABoxSendsNothing()
{
    QFETCH(const std::size_t, place);
    TestWindow test;
    openCameraPage(test, "LutSection");
    show(test, coordinates.at(place).box, 321);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
}

void RegionEditingTest::anUnknownRegionSendsZeroUnchecked_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("number");
    for (const char *const name : {"X1", "X2", "Y1", "Y2"}) {
        for (const int number : {4, -1, 255, 2147483647}) {
            QTest::addRow("%s of ROI %d", name, number) << QByteArray{name} << number;
        }
    }
}

void RegionEditingTest::anUnknownRegionSendsZeroUnchecked()
{
    QFETCH(const QByteArray, name);
    QFETCH(const int, number);
    TestWindow test;
    openRegion(test, 0);
    show(test, "Roi0IncX1", 300);
    show(test, "Roi0IncX2", 200);
    show(test, "Roi0IncY1", 300);
    show(test, "Roi0IncY2", 200);

    test.simulator.addFault({"setRoi" + name.toStdString()});
    finishEdit(test, name, number);
    QCOMPARE(test.takeCalls(), QStringList{sent(name, 0, number, flagsOfOnly[0], false)});
    QCOMPARE(test.takeLog(), QStringList{"Set ROI " + name + " value KO"});
    QVERIFY(!test.lastCommandOk());

    test.simulator.addFault({"setRoi" + name.toStdString(), 1, 0, {{true}}});
    finishEdit(test, name, number);
    QCOMPARE(test.takeCalls(), QStringList{sent(name, 0, number, flagsOfOnly[0])});
    QCOMPARE(test.takeLog(),
             QStringList{QStringLiteral("Set ROI %1 %2 value OK").arg(number).arg(QString{name})});
    QVERIFY(test.lastCommandOk());
    QCOMPARE(shown(test, "Roi0IncX1"), 300);
    QCOMPARE(shown(test, "Roi0IncY1"), 300);
}

PILOTEL_TEST_CLASS(RegionEditingTest)
#include "tst_region_editing.moc"
