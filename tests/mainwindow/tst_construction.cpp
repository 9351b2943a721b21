// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The window as it is built.
#include "connectioncontrols.h"
#include "mouse.h"
#include "testclass.h"
#include "testwindow.h"

#include <QByteArray>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

#include <memory>

using veltrix_simulator::Simulator;

namespace
{

const char *const hiddenInEveryInstallation[]{"FusionAdministratorCommands", "verticalFlipCheckBox",
                                              "krBaudRateHLayout"};
const char *const hiddenWithoutExpertMode[]{"KrImageControlSection", "FusionZoomGridLayout"};

QStringList pagesOf(const TestWindow &test, const QString &tabWidget)
{
    const auto &tabs = test.child<QTabWidget>(tabWidget);
    QStringList pages;
    for (int index{0}; index < tabs.count(); ++index) {
        pages.append(tabs.tabText(index) + ": " + tabs.widget(index)->objectName());
    }
    return pages;
}

} // namespace

class ConstructionTest : public QObject
{
    Q_OBJECT

private slots:
    void callsTheSdkInOrder_data();
    void callsTheSdkInOrder();
    void showsThePagesOfTheInstallation_data();
    void showsThePagesOfTheInstallation();
    void showsTheDefaultBaudRate_data();
    void showsTheDefaultBaudRate();
    void letsTheOperatorScanOnly();
    void warnsAboutTheZoomFactorsConnection();
    void zoomFactorDoesNothing();
    void isCalledMainWindow();
    void takesAParent();
    void hasTheFlagsOfAMainWindow_data();
    void hasTheFlagsOfAMainWindow();
    void handlersCanBeInvokedByName_data();
    void handlersCanBeInvokedByName();
};

void ConstructionTest::callsTheSdkInOrder_data()
{
    QTest::addColumn<bool>("expertMode");
    QTest::addColumn<int>("defaultBaudRate");
    QTest::addColumn<QStringList>("rest");
    QTest::newRow("with expert mode")
        << true << 115200 << QStringList{"isExpertMode() -> true", "getDefaultBaudRate() -> 115200"};
    QTest::newRow("without expert mode")
        << false << 115200 << QStringList{"isExpertMode() -> false", "getDefaultBaudRate() -> 115200"};
    QTest::newRow("a default that changes the box sets the baud rate")
        << true << 9600
        << QStringList{"isExpertMode() -> true", "getDefaultBaudRate() -> 9600", "get_instance() -> sdk",
                       "getConfiguration() -> configuration", "setBaudRate(9600)"};
    QTest::newRow("a default that is not offered sets nothing")
        << true << 57600 << QStringList{"isExpertMode() -> true", "getDefaultBaudRate() -> 57600"};
}

void ConstructionTest::callsTheSdkInOrder()
{
    QFETCH(bool, expertMode);
    QFETCH(int, defaultBaudRate);
    QFETCH(QStringList, rest);
    TestWindow test{[=](Simulator &simulator) {
        simulator.set("configuration.expertMode", expertMode);
        simulator.set("configuration.defaultBaudRate", defaultBaudRate);
    }};

    const QStringList first{"get_instance() -> sdk", "initialize() -> true",
                            "getConfiguration() -> configuration"};
    QCOMPARE(test.takeCallsAndRecords(), first + rest);
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(test.boxes.takeShown(), QStringList{});
}

void ConstructionTest::showsThePagesOfTheInstallation_data()
{
    QTest::addColumn<bool>("expertMode");
    QTest::addColumn<QStringList>("pages");
    QTest::addColumn<QStringList>("cameraPages");
    const QStringList pages{"Fusion: Fusion_tab", "Veltrix KR: Veltrix_KR_tab"};
    const QStringList cameraPages{"Image Processing: ImageProcSection", "LUT: LutSection",
                                  "Edge: EdgeSection"};
    QTest::newRow("with expert mode") << true << pages + QStringList{"Visible: Visible_tab"}
                                      << cameraPages + QStringList{"Expert: ExpertMode"};
    QTest::newRow("without expert mode") << false << pages << cameraPages;
}

void ConstructionTest::showsThePagesOfTheInstallation()
{
    QFETCH(bool, expertMode);
    QFETCH(QStringList, pages);
    QFETCH(QStringList, cameraPages);
    TestWindow test{[=](Simulator &simulator) {
        simulator.set("configuration.expertMode", expertMode);
    }};

    QCOMPARE(pagesOf(test, "Principal_tab"), pages);
    QCOMPARE(pagesOf(test, "KR_tab"), cameraPages);
    QCOMPARE(test.child<QTabWidget>("Principal_tab").currentIndex(), 0);
    QCOMPARE(test.child<QTabWidget>("KR_tab").currentIndex(), 0);
    for (const char *const hidden : hiddenInEveryInstallation) {
        QVERIFY2(test.child<QWidget>(hidden).isHidden(), hidden);
    }
    for (const char *const section : hiddenWithoutExpertMode) {
        QVERIFY2(test.child<QWidget>(section).isHidden() == !expertMode, section);
    }
}

void ConstructionTest::showsTheDefaultBaudRate_data()
{
    QTest::addColumn<int>("defaultBaudRate");
    QTest::addColumn<QString>("shown");
    QTest::newRow("115200") << 115200 << "115200";
    QTest::newRow("9600") << 9600 << "9600";
    for (const int other : {57600, 0, -1, 96, 1152000}) {
        QTest::addRow("%d is not offered", other) << other << "115200";
    }
}

void ConstructionTest::showsTheDefaultBaudRate()
{
    QFETCH(int, defaultBaudRate);
    QFETCH(QString, shown);
    TestWindow test{[=](Simulator &simulator) {
        simulator.set("configuration.defaultBaudRate", defaultBaudRate);
    }};

    QCOMPARE(test.child<QComboBox>("BaudRateConnectCB").currentText(), shown);
    QCOMPARE(test.child<QComboBox>("BaudRateConnectCB").count(), 2);
}

void ConstructionTest::letsTheOperatorScanOnly()
{
    TestWindow test;
    test.takeCalls();
    QCOMPARE(test.enabledOf(connectionControls()), enabledAtStart());
    QCOMPARE(test.child<QComboBox>("selectDeviceComboBox").count(), 0);

    // What must not work.
    for (const char *const control :
         {"connectDeviceButton", "disconnectDeviceButton", "resetParamButtonUser", "saveParamButtonUser",
          "readParamButtonUser", "BU_IR_MODE_PB", "FusionConfigureZoomPB", "startingModeCB"}) {
        pressMouseOn(test, control);
    }
    auto &tabs = test.child<QTabWidget>("Principal_tab");
    QTest::mouseClick(test.window().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      tabs.tabBar()->mapTo(&test.window(), tabs.tabBar()->tabRect(1).center()));
    QCOMPARE(tabs.currentIndex(), 0);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});

    // What must.
    pressMouseOn(test, "scanDeviceButton");
    QCOMPARE(test.child<QComboBox>("selectDeviceComboBox").count(), scannedPorts().size());
    QCOMPARE(test.enabledOf(connectionControls()), enabledWithPorts());
}

void ConstructionTest::warnsAboutTheZoomFactorsConnection()
{
    Simulator::instance().reset();
    WarningWatcher warnings;
    const MainWindow window;

    QStringList warned{warnings.take()};
    QCOMPARE(warned.size(), 3);
    // A debug build adds the place in the source.
    warned.first() = warned.first().section(" in ", 0, 0);
    const QStringList expected{
        "QObject::connect: No such signal QDoubleSpinBox::valueChanged(int)",
        "QObject::connect:  (sender name:   'factorZoomEdit')",
        "QObject::connect:  (receiver name: 'MainWindow')",
    };
    QCOMPARE(warned, expected);
}

void ConstructionTest::zoomFactorDoesNothing()
{
    TestWindow test;
    test.beConnected();
    auto &factor = test.child<QDoubleSpinBox>("factorZoomEdit");

    factor.setValue(2.5);
    QTest::keyClick(&factor, Qt::Key_Up);
    QTest::keyClick(&factor, Qt::Key_Return);

    QCOMPARE(factor.value(), 2.501);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void ConstructionTest::isCalledMainWindow()
{
    TestWindow test;
    QObject *const object{&test.window()};
    QCOMPARE(object->metaObject()->className(), "MainWindow");
    QVERIFY(object->inherits("MainWindow"));
    QVERIFY(object->inherits("QMainWindow"));
    QCOMPARE(qobject_cast<MainWindow *>(object), &test.window());
    QCOMPARE(qobject_cast<MainWindow *>(object->children().first()), nullptr);
}

void ConstructionTest::takesAParent()
{
    Simulator::instance().reset();
    WarningWatcher warnings;
    QWidget parent;
    auto child = std::make_unique<MainWindow>(&parent);
    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(child->isWindow());
    child.reset();
    QCOMPARE(warnings.take().size(), 3);

    const MainWindow alone;
    QCOMPARE(alone.parentWidget(), nullptr);
    QCOMPARE(warnings.take().size(), 3);
}

void ConstructionTest::hasTheFlagsOfAMainWindow_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::newRow("alone") << false;
    QTest::newRow("with a parent") << true;
}

void ConstructionTest::hasTheFlagsOfAMainWindow()
{
    QFETCH(const bool, withParent);
    Simulator::instance().reset();
    WarningWatcher warnings;
    QWidget parent;
    const MainWindow window{withParent ? &parent : nullptr};
    warnings.take();

    const Qt::WindowFlags flags{Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint |
                                Qt::WindowFullscreenButtonHint};
    QCOMPARE(window.windowFlags(), flags);
}

void ConstructionTest::handlersCanBeInvokedByName_data()
{
    QTest::addColumn<QByteArray>("signature");
    for (const char *const signature : {
             "createAboutWindow()",
             "appendLog(std::string)",
             "readTemp(int)",
             "scanDevice()",
             "connectDevice()",
             "disconnectDevice()",
             "ChangeBaudRate()",
             "openCommunication(std::string)",
             "targetChanged(int)",
             "readAllParameters()",
             "readParamsExpert()",
             "updateTabAvailability()",
             "readCameraParameters()",
             "GammaUserSliderChanged(int)",
             "GammaUserValueChanged(double)",
             "ClheUserSliderChanged(int)",
             "ClheUserValueChanged(double)",
             "SharpeningUserSliderChanged(int)",
             "SharpeningUserValueChanged(double)",
             "SharpeningTHSliderChanged(int)",
             "SharpeningTHValueChanged(double)",
             "AhcBlackGainlimSliderChanged(int)",
             "AhcBlackGainLimSpinValueChanged(int)",
             "AhcWhiteGainlimSliderChanged(int)",
             "AhcWhiteGainLimSpinValueChanged(int)",
             "TempoFilterSliderChanged(int)",
             "TempoFiltSpinValueChanged(int)",
             "GSKExpertSliderChanged(int)",
             "GSKExpertValueChanged(double)",
             "GFIDExpertSliderChanged(int)",
             "GFIDExpertValueChanged(double)",
             "GMSExpertSliderChanged(int)",
             "GMSExpertValueChanged(double)",
             "TINTExpertSliderChanged(int)",
             "TINTExpertValueChanged(double)",
             "videoOutputChanged()",
             "frameRateChanged()",
             "contrastTypeChanged()",
             "colorLutChanged()",
             "edgeCorrectionChanged()",
             "ReadKrParamsExpert()",
             "bprControlChanged()",
             "offsetControlChanged()",
             "gainControlChanged()",
             "roi1IncCheck()",
             "roi0ExcCheck()",
             "roi1ExcCheck()",
             "irModeClicked()",
             "visibleModeClicked()",
             "fusionModeClicked()",
             "readVideoMode()",
             "startingModeChanged()",
             "readStartingMode()",
             "readBlendUnitParameters()",
             "readZoom(int)",
             "configureZoomClicked()",
             "readFusionParamsExpert()",
             "fusionWarpClicked()",
             "readVisibleAgc()",
             "visibleAgcChanged()",
             "readVisibleClhe()",
             "visibleClheChanged()",
             "saveBlendUnitExpertClicked()",
             "saveBlendUnitUserClicked()",
         }) {
        QTest::newRow(signature) << QByteArray{signature};
    }
}

void ConstructionTest::handlersCanBeInvokedByName()
{
    QFETCH(QByteArray, signature);
    const QMetaObject &metaObject{MainWindow::staticMetaObject};
    QVERIFY(metaObject.indexOfSlot(signature.constData()) >= metaObject.methodOffset());
}

PILOTEL_TEST_CLASS(ConstructionTest)
#include "tst_construction.moc"
