// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of Configure Zoom by all that triggers it.
#include "testclass.h"
#include "trigger.h"
#include "zoomcontrols.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QObject>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>

using veltrix_simulator::Value;

namespace
{

/// As an operator sets up the zoom: the factor typed, the method picked.
void enterFusionZoom(const TestWindow &test, const QString &factor, Qt::Key method)
{
    QDoubleSpinBox &factorBox{fusionFactor(test)};
    factorBox.setFocus();
    factorBox.selectAll();
    QTest::keyClicks(&factorBox, factor);
    QTest::keyClick(&factorBox, Qt::Key_Tab);
    fusionMethod(test).setFocus();
    QTest::keyClick(&fusionMethod(test), method);
}

void pressOnFusionPage(TestWindow &test)
{
    test.click("FusionConfigureZoomPB");
}

// The zoom page is out of the camera's tabs, its controls are wired all the same.
void pressOnZoomPage(TestWindow &test)
{
    test.child<QAbstractButton>("configureZoomButton").click();
}

void pickOnZoomPage(TestWindow &test)
{
    infraredMethod(test).setCurrentIndex(1 - infraredMethod(test).currentIndex());
}

void addTriggers()
{
    QTest::addColumn<Trigger>("trigger");

    QTest::newRow("Configure Zoom of the Fusion page") << Trigger{pressOnFusionPage};
    QTest::newRow("Configure Zoom of the zoom page") << Trigger{pressOnZoomPage};
    QTest::newRow("method of the zoom page") << Trigger{pickOnZoomPage};
}

} // namespace

class ConfigureZoomTest : public QObject
{
    Q_OBJECT

private slots:
    void configureSendsFactorAndMethodOfTheFusionPage_data() { addTriggers(); }
    void configureSendsFactorAndMethodOfTheFusionPage();
    void configureStopsWhenTheRecordCannotBeRead_data() { addTriggers(); }
    void configureStopsWhenTheRecordCannotBeRead();
    void refusedConfigureIsReported_data() { addTriggers(); }
    void refusedConfigureIsReported();
    void factorTravelsInSinglePrecision();
    void zoomControlsSendNothingByThemselves();
};

void ConfigureZoomTest::configureSendsFactorAndMethodOfTheFusionPage()
{
    QFETCH(const Trigger, trigger);
    TestWindow test;
    beConnectedAndZoomed(test);
    enterFusionZoom(test, "2.5", Qt::Key_B);
    // Only the fusion page is sent, whatever the infrared page shows.
    test.child<QDoubleSpinBox>("factorZoomEdit").setValue(7.0);
    test.child<QSpinBox>("xCenterZoomEdit").setValue(11);
    test.child<QSpinBox>("yCenterZoomEdit").setValue(12);

    trigger(test);

    const QStringList calls{zoomRecordRead,
                            "configureZoom({factor=2.5, xCenter=300, yCenter=200, method=1}) -> true"};
    QCOMPARE(test.takeCalls(), calls);
    QCOMPARE(test.takeLog(), QStringList{"Configure Zoom OK"});
    QVERIFY(test.lastCommandOk());
}

void ConfigureZoomTest::configureStopsWhenTheRecordCannotBeRead()
{
    QFETCH(const Trigger, trigger);
    TestWindow test;
    beConnectedAndZoomed(test);
    test.simulator.addFault({"getZoomConfig"});

    trigger(test);

    QCOMPARE(test.takeCalls(),
             QStringList{"getZoomConfig() -> false {factor=0, xCenter=0, yCenter=0, method=0}"});
    QCOMPARE(test.takeLog(), QStringList{"Could not read zoom config so configure Zoom KO"});
    QVERIFY(!test.lastCommandOk());
}

void ConfigureZoomTest::refusedConfigureIsReported()
{
    QFETCH(const Trigger, trigger);
    TestWindow test;
    beConnectedAndZoomed(test);
    test.simulator.addFault({"configureZoom"});

    trigger(test);

    const QStringList calls{zoomRecordRead,
                            "configureZoom({factor=1, xCenter=300, yCenter=200, method=0}) -> false"};
    QCOMPARE(test.takeCalls(), calls);
    QCOMPARE(test.takeLog(), QStringList{"Configure Zoom KO"});
    QVERIFY(!test.lastCommandOk());
}

void ConfigureZoomTest::factorTravelsInSinglePrecision()
{
    TestWindow test;
    beConnectedAndZoomed(test);
    enterFusionZoom(test, "1.001", Qt::Key_B);

    test.click("FusionConfigureZoomPB");

    QVERIFY(test.simulator.get("blendUnit.zoom.factor") == Value{static_cast<double>(1.001F)});
}

void ConfigureZoomTest::zoomControlsSendNothingByThemselves()
{
    TestWindow test;
    beConnectedAndZoomed(test);

    enterFusionZoom(test, "2.5", Qt::Key_B);
    test.child<QDoubleSpinBox>("factorZoomEdit").setValue(7.0);
    test.child<QSpinBox>("xCenterZoomEdit").setValue(11);
    test.child<QSpinBox>("yCenterZoomEdit").setValue(12);

    QCOMPARE(test.takeCalls(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

PILOTEL_TEST_CLASS(ConfigureZoomTest)
#include "tst_configure_zoom.moc"
