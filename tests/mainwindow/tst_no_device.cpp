// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every handler, and every control that an operator could use, while no device is open.
#include "panel.h"
#include "testclass.h"
#include "testwindow.h"

#include <QAbstractButton>
#include <QByteArray>
#include <QComboBox>
#include <QLatin1String>
#include <QObject>
#include <QSlider>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

namespace
{

/// The ways to a window without a device.
enum class Situation
{
    NeverConnected,
    Disconnected,
    IdentityRefused,
    PortRefused,
};

void bringAbout(TestWindow &test, Situation situation)
{
    switch (situation) {
    case Situation::NeverConnected:
        break;
    case Situation::Disconnected:
        test.beConnected();
        test.click("disconnectDeviceButton");
        break;
    case Situation::IdentityRefused:
        test.simulator.addFault({"connect", 1, 1, {{1, 20}}});
        test.scanAndConnect();
        break;
    case Situation::PortRefused:
        test.simulator.addFault({"openDevice", 1, 1});
        test.boxes.expect();
        test.scanAndConnect();
        test.boxes.takeShown();
        break;
    }
    test.takeLog();
    test.simulator.clearJournal();
}

const struct
{
    const char *name;
    Situation situation;
    const char *portName;
} situations[]{
    {"before the first connect", Situation::NeverConnected, ""},
    {"after a disconnection", Situation::Disconnected, "SIM1"},
    {"after another identity", Situation::IdentityRefused, "SIM1"},
    {"after a port without a device", Situation::PortRefused, "SIM1"},
};

} // namespace

Q_DECLARE_METATYPE(Situation)

class NoDeviceTest : public QObject
{
    Q_OBJECT

private slots:
    void handlersWithoutADeviceDoNothing_data();
    void handlersWithoutADeviceDoNothing();
    void readsWithoutADeviceSaySo_data();
    void readsWithoutADeviceSaySo();
    void controlsWithoutADeviceSendNothing_data();
    void controlsWithoutADeviceSendNothing();
};

void NoDeviceTest::handlersWithoutADeviceDoNothing_data()
{
    QTest::addColumn<QByteArray>("handler");
    QTest::addColumn<Situation>("situation");
    const char *const handlers[]{
        "disconnectDevice",
        "readParamsExpert",
        "videoOutputChanged",
        "frameRateChanged",
        "contrastTypeChanged",
        "colorLutChanged",
        "edgeCorrectionChanged",
        "ReadKrParamsExpert",
        "bprControlChanged",
        "offsetControlChanged",
        "gainControlChanged",
        "roi1IncCheck",
        "roi0ExcCheck",
        "roi1ExcCheck",
        "irModeClicked",
        "visibleModeClicked",
        "fusionModeClicked",
        "readVideoMode",
        "startingModeChanged",
        "readStartingMode",
        "configureZoomClicked",
        "readFusionParamsExpert",
        "fusionWarpClicked",
        "readVisibleAgc",
        "visibleAgcChanged",
        "readVisibleClhe",
        "visibleClheChanged",
        "saveBlendUnitUserClicked",
        "saveBlendUnitExpertClicked",
        "columnCorrectionClicked",
        "vignettingCorrectionClicked",
        "sdiOutputClicked",
        "parallelOutputClicked",
        "mipiOutputClicked",
        "polarityClicked",
        "horizontalFlipClicked",
        "gammaUserSendCommand",
        "clheSendCommand",
        "sharpeningSendCommand",
        "ahcGainSendCommand",
        "tempoFilterSendCommand",
        "ApplyParamsUser",
        "ResetParamsUser",
        "gskSendCommand",
        "gfiSendCommand",
        "gmsSendCommand",
        "tintSendCommand",
        "krBaudRateChanged",
        "ApplyNucRequest",
        "x1RoiUserValueChanged",
        "x2RoiUserValueChanged",
        "y1RoiUserValueChanged",
        "y2RoiUserValueChanged",
        // Those that take a number are invoked with each of a few.
        "targetChanged",
        "readTemp",
        "readZoom",
    };
    for (const auto &situation : situations) {
        for (const char *const handler : handlers) {
            QTest::addRow("%s %s", handler, situation.name) << QByteArray{handler} << situation.situation;
        }
    }
}

void NoDeviceTest::handlersWithoutADeviceDoNothing()
{
    QFETCH(QByteArray, handler);
    QFETCH(Situation, situation);
    TestWindow test{{}, TestWindow::Drawing::Off};
    bringAbout(test, situation);
    const bool lastCommandOk{test.lastCommandOk()};
    const Panel panel{panelOf(test.window())};

    const QMetaObject *const metaObject{test.window().metaObject()};
    if (metaObject->indexOfSlot(handler + "(int)") >= 0) {
        for (const int number : {0, 1, 2, -1}) {
            QVERIFY(QMetaObject::invokeMethod(&test.window(), handler, Q_ARG(int, number)));
        }
    } else {
        test.invoke(handler.constData());
    }

    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.boxes.takeShown(), QStringList{});
    QCOMPARE(test.lastCommandOk(), lastCommandOk);
    QCOMPARE(differences(panel, panelOf(test.window())), QStringList{});
}

void NoDeviceTest::readsWithoutADeviceSaySo_data()
{
    QTest::addColumn<QByteArray>("handler");
    QTest::addColumn<Situation>("situation");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<QStringList>("boxes");
    const QStringList couldNotRead{"Could not read Fusion parameters"};
    for (const auto &situation : situations) {
        const auto row = [&](const char *handler, const QStringList &log, const QStringList &boxes) {
            QTest::addRow("%s %s", handler, situation.name)
                << QByteArray{handler} << situation.situation << log << boxes;
        };
        row("readBlendUnitParameters", couldNotRead, {});
        row("readAllParameters", couldNotRead, {});
        row("readCameraParameters", {},
            {QStringLiteral("window icon \"Camera not connected\" \"Unable to connect to %1\" [OK]")
                 .arg(QLatin1String{situation.portName})});
    }
}

void NoDeviceTest::readsWithoutADeviceSaySo()
{
    QFETCH(QByteArray, handler);
    QFETCH(Situation, situation);
    QFETCH(QStringList, log);
    QFETCH(QStringList, boxes);
    TestWindow test;
    bringAbout(test, situation);
    for (int shown{0}; shown < boxes.size(); ++shown) {
        test.boxes.expect();
    }

    bool read{true};
    QVERIFY(QMetaObject::invokeMethod(&test.window(), handler, Q_RETURN_ARG(bool, read)));

    QVERIFY(!read);
    QCOMPARE(test.takeCalls(), QStringList{});
    QCOMPARE(test.takeLog(), log);
    QCOMPARE(test.boxes.takeShown(), boxes);
}

void NoDeviceTest::controlsWithoutADeviceSendNothing_data()
{
    QTest::addColumn<Situation>("situation");
    for (const auto &situation : situations) {
        QTest::newRow(situation.name) << situation.situation;
    }
}

void NoDeviceTest::controlsWithoutADeviceSendNothing()
{
    QFETCH(Situation, situation);
    TestWindow test;
    bringAbout(test, situation);

    // The operator cannot reach them.
    test.child<QWidget>("paramSection").setEnabled(true);
    constexpr int badPixelButtons{8};
    for (int shown{0}; shown < badPixelButtons; ++shown) {
        test.boxes.expect();
    }
    for (auto *const comboBox : test.child<QWidget>("paramSection").findChildren<QComboBox *>()) {
        comboBox->setCurrentIndex((comboBox->currentIndex() + 1) % comboBox->count());
    }
    for (auto *const button : test.child<QWidget>("paramSection").findChildren<QAbstractButton *>()) {
        button->click();
    }
    for (auto *const slider : test.child<QWidget>("paramSection").findChildren<QSlider *>()) {
        slider->setSliderDown(true);
        slider->setSliderPosition(slider->maximum());
        slider->setSliderDown(false);
    }
    auto &tabs = test.child<QTabWidget>("Principal_tab");
    for (int page{tabs.count() - 1}; page >= 0; --page) {
        tabs.setCurrentIndex(page);
    }

    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
    const QStringList boxes{test.boxes.takeShown()};
    QCOMPARE(boxes.size(), badPixelButtons);
    QCOMPARE(boxes.filter("Camera not connected"), boxes);
}

PILOTEL_TEST_CLASS(NoDeviceTest)
#include "tst_no_device.moc"
