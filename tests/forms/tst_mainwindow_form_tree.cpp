// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main window form's tree: which widgets there are, of which class, and on which page.

#include "form_fixture.h"
#include "testclass.h"

#include <QLatin1String>
#include <QMainWindow>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

#include <vector>

namespace
{

struct Family
{
    const char *parent;
    const char *className;
    QStringList names;
};

std::vector<Family> families()
{
    return {
        {"MainWindow", "QWidget", {"centralWidget"}},
        {"centralWidget",
         "QPushButton",
         {"scanDeviceButton", "connectDeviceButton", "disconnectDeviceButton", "resetParamButtonUser",
          "saveParamButtonUser", "readParamButtonUser", "clearLogButton", "AboutButton"}},
        {"centralWidget", "QComboBox", {"selectDeviceComboBox", "BaudRateConnectCB"}},
        {"centralWidget", "QWidget", {"paramSection"}},
        {"centralWidget", "QLabel", {"label_2", "label_9", "label_6", "label_12", "BULogo", "NTLogo"}},
        {"centralWidget",
         "QPlainTextEdit",
         {"BitTextEdit", "FusionFpgaTempTextEdit", "FpgaTempTextEdit", "SensorTempTextEdit", "logView"}},

        {"paramSection", "QTabWidget", {"Principal_tab"}},
        {"Principal_tab", "QWidget", {"Fusion_tab", "Veltrix_KR_tab", "Visible_tab"}},

        {"Fusion_tab", "QLabel", {"label_33", "label_5"}},
        {"Fusion_tab", "QPushButton", {"BU_IR_MODE_PB", "BU_VISIBLE_MODE_PB", "BU_FUSION_MODE_PB"}},
        {"Fusion_tab", "QComboBox", {"startingModeCB"}},
        {"Fusion_tab", "QWidget", {"FusionZoomGridLayout", "FusionAdministratorCommands"}},
        {"FusionZoomGridLayout", "QLabel", {"FusionZoomLabel", "ZoomFactorLabel"}},
        {"FusionZoomGridLayout", "QDoubleSpinBox", {"FusionZoomFactorSB"}},
        {"FusionZoomGridLayout", "QComboBox", {"FusionZoomMethod"}},
        {"FusionZoomGridLayout", "QPushButton", {"FusionConfigureZoomPB"}},
        {"FusionAdministratorCommands",
         "QLabel",
         {"label_34", "label_35", "label_38", "label_36", "label_39", "label_37", "label_40"}},
        {"FusionAdministratorCommands",
         "QDoubleSpinBox",
         {"WarpA11CoeffSB", "WarpA21CoeffSB", "WarpA12CoeffSB", "WarpA22CoeffSB", "WarpA13CoeffSB",
          "WarpA23CoeffSB"}},
        {"FusionAdministratorCommands", "QComboBox", {"FusionWarpCB"}},
        {"FusionAdministratorCommands", "QPushButton", {"FusionWarpPB", "saveParamFactoryPB"}},

        {"Veltrix_KR_tab", "QTabWidget", {"KR_tab"}},
        {"KR_tab",
         "QWidget",
         {"ImageProcSection", "LutSection", "ZoomSection", "EdgeSection", "BadPixelsSection", "ExpertMode"}},

        {"ImageProcSection", "QLabel", {"label_7"}},
        {"ImageProcSection", "QPushButton", {"ColumnCorrectionButton", "VignettingCorrectionButton"}},
        {"ImageProcSection", "QWidget", {"KrImageControlSection"}},
        {"KrImageControlSection", "QLabel", {"label_11", "label_10", "label_58"}},
        {"KrImageControlSection", "QComboBox", {"VideoOutputCB", "frameRateCB"}},
        {"KrImageControlSection",
         "QPushButton",
         {"sdiOutputButton", "parallelOutputButton", "mipiOutputButton", "horizontalFlipButton"}},

        {"LutSection",
         "QLabel",
         {"label_3", "label_4", "gammaLabel", "roiLabel", "label_20", "label_18", "label_19", "label_17",
          "label_16", "label_22", "label_21", "label_23", "LutLabel", "label_25", "label_26", "label_24"}},
        {"LutSection", "QPushButton", {"polarityButton"}},
        {"LutSection",
         "QSlider",
         {"gammaSlider", "clheSlider", "AhcBlackGainLimSlider", "AhcWhiteGainLimSlider",
          "TempoFilterSlider"}},
        {"LutSection", "QDoubleSpinBox", {"gammaEdit", "clheEdit"}},
        {"LutSection",
         "QSpinBox",
         {"Roi0IncX1", "Roi0IncX2", "Roi0IncY1", "Roi0IncY2", "Roi1IncX1", "Roi1IncX2", "Roi1IncY1",
          "Roi1IncY2", "Roi0ExcX1", "Roi0ExcX2", "Roi0ExcY1", "Roi0ExcY2", "Roi1ExcX1", "Roi1ExcX2",
          "Roi1ExcY1", "Roi1ExcY2", "AhcBlackGainLimSpin", "AhcWhiteGainLimSpin", "TempoFilterSpin"}},
        {"LutSection", "QCheckBox", {"checkBox", "roi1IncEnable", "roi0ExcEnable", "roi1ExcEnable"}},
        {"LutSection", "QComboBox", {"contrastTypeEdit", "lutColorEdit"}},

        {"ZoomSection",
         "QLabel",
         {"zoomLabel", "factorZoomLabel", "xCenterZoomLabel", "methodZoomLabel", "yCenterZoomLabel", "label",
          "xResolutionZoomLabel", "yResolutionZoomLabel"}},
        {"ZoomSection", "QDoubleSpinBox", {"factorZoomEdit"}},
        {"ZoomSection",
         "QSpinBox",
         {"xCenterZoomEdit", "yCenterZoomEdit", "xResolutionZoomEdit", "yResolutionZoomEdit"}},
        {"ZoomSection", "QComboBox", {"methodZoomEdit"}},
        {"ZoomSection", "QPushButton", {"configureZoomButton"}},

        {"EdgeSection", "QLabel", {"label_13", "label_14", "sharpeningGainLabel", "SharpeningTHLabel"}},
        {"EdgeSection", "QComboBox", {"EdgeCorrectionCB"}},
        {"EdgeSection", "QSlider", {"sharpeningGainSlider", "SharpeningTHSlider"}},
        {"EdgeSection", "QDoubleSpinBox", {"sharpeningGainEdit", "SharpeningTHEdit"}},

        {"BadPixelsSection",
         "QLabel",
         {"label_28", "label_29", "label_30", "label_27", "label_15", "label_31", "label_32"}},
        {"BadPixelsSection",
         "QPushButton",
         {"resetBPRTableButton", "readBPRTableButton", "writeBPRTableButton", "addBadPixelButton",
          "addBadPixelLineButton", "addBadPixelColumnButton", "removeBadPixelButton",
          "removeBadPixelLineButton", "removeBadPixelColumnButton", "bpGraphicEditorButton"}},
        {"BadPixelsSection", "QSpinBox", {"xBadPixelCoordinate", "yBadPixelCoordinate"}},

        {"ExpertMode", "QPushButton", {"readParamButtonExpert"}},
        {"ExpertMode", "QWidget", {"krBaudRateHLayout"}},
        {"krBaudRateHLayout", "QLabel", {"label_8"}},
        {"krBaudRateHLayout", "QComboBox", {"BaudRateCB"}},
        {"krBaudRateHLayout", "QPushButton", {"PermanentButton"}},
        {"ExpertMode", "QLabel", {"gskLabel", "gfidLabel", "gmsLabel", "tintLabel"}},
        {"ExpertMode", "QSlider", {"gskSlider", "gfidSlider", "gmsSlider", "tintSlider"}},
        {"ExpertMode", "QDoubleSpinBox", {"gskEdit", "gfidEdit", "gmsEdit", "tintEdit"}},
        {"ExpertMode",
         "QCheckBox",
         {"gainCheckBox", "BPRCheckBox", "offsetCheckBox", "verticalFlipCheckBox"}},

        {"Visible_tab",
         "QLabel",
         {"label_41", "label_43", "label_44", "label_45", "label_42", "label_46", "label_48"}},
        {"Visible_tab",
         "QSpinBox",
         {"VisAgcTargetSB", "VisAgcTHSB", "VisAgcCoeffSB", "VisClheTHSB", "VisClheCoeffSB"}},
    };
}

/// Qt puts widgets of its own between a tab widget and its pages.
QString namedAncestor(const QWidget &widget)
{
    const QWidget *ancestor{widget.parentWidget()};
    while (ancestor != nullptr && ancestor->objectName().startsWith(QLatin1String{"qt_"})) {
        ancestor = ancestor->parentWidget();
    }
    return ancestor != nullptr ? ancestor->objectName() : QString{};
}

class WindowWithNamedSlot : public QMainWindow
{
    Q_OBJECT

public:
    int clicks{0};

private slots:
    void on_clearLogButton_clicked() { ++clicks; }
};

} // namespace

class MainWindowFormTreeTest : public QObject
{
    Q_OBJECT

private slots:
    void widgetHasItsClassAndParent_data();
    void widgetHasItsClassAndParent();
    void namesNoOtherWidgets();
    void tabWidgetHasItsPages_data();
    void tabWidgetHasItsPages();
    void centralWidgetIsInPlace();
    void holderPointsAtNamedObjects();
    void connectsSlotsByName();
};

void MainWindowFormTreeTest::widgetHasItsClassAndParent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("parent");

    for (const Family &family : families()) {
        for (const QString &name : family.names) {
            QTest::addRow("%s is a %s in %s", qPrintable(name), family.className, family.parent)
                << name << family.className << family.parent;
        }
    }
}

void MainWindowFormTreeTest::widgetHasItsClassAndParent()
{
    QFETCH(QString, name);
    const MainForm form;

    const auto *widget = form.window.findChild<QWidget *>(name);
    QVERIFY2(widget, noSuch<QWidget>(form.window, name));
    QTEST(QString::fromLatin1(widget->metaObject()->className()), "className");
    QTEST(namedAncestor(*widget), "parent");
}

void MainWindowFormTreeTest::namesNoOtherWidgets()
{
    const MainForm form;

    QStringList expected;
    for (const Family &family : families()) {
        expected << family.names;
    }
    const QStringList actual{namesWhere(form.window, [](const QWidget &) { return true; })};
    QCOMPARE(difference(actual, expected), QString{});
}

void MainWindowFormTreeTest::tabWidgetHasItsPages_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("pages");

    QTest::addRow("Principal_tab: blend unit, camera, visible channel")
        << "Principal_tab" << QStringList{"Fusion_tab", "Veltrix_KR_tab", "Visible_tab"};
    QTest::addRow("KR_tab: from image processing to expert")
        << "KR_tab" << QStringList{"ImageProcSection", "LutSection",       "ZoomSection",
                                   "EdgeSection",      "BadPixelsSection", "ExpertMode"};
}

void MainWindowFormTreeTest::tabWidgetHasItsPages()
{
    QFETCH(QString, name);
    const MainForm form;

    const auto *tabs = form.window.findChild<QTabWidget *>(name);
    QVERIFY2(tabs, noSuch<QTabWidget>(form.window, name));
    QStringList actual;
    for (int i{0}; i < tabs->count(); ++i) {
        actual << tabs->widget(i)->objectName();
    }
    QTEST(actual, "pages");
}

void MainWindowFormTreeTest::centralWidgetIsInPlace()
{
    const MainForm form;

    QCOMPARE(form.window.objectName(), "MainWindow");
    QVERIFY(form.window.centralWidget() != nullptr);
    QCOMPARE(form.window.centralWidget()->objectName(), "centralWidget");
}

void MainWindowFormTreeTest::holderPointsAtNamedObjects()
{
    const MainForm form;

    const Ui_MainWindow &ui{form.ui};
    const QMap<QString, const QObject *> held{
        {"centralWidget", ui.centralWidget},
        {"paramSection", ui.paramSection},
        {"Principal_tab", ui.Principal_tab},
        {"KR_tab", ui.KR_tab},
        {"gammaEdit", ui.gammaEdit},
        {"Roi1ExcX2", ui.Roi1ExcX2},
        {"checkBox", ui.checkBox},
        {"label_58", ui.label_58},
        {"FusionZoomGridLayout", ui.FusionZoomGridLayout},
        {"krBaudRateHLayout", ui.krBaudRateHLayout},
        {"logView", ui.logView},
        {"horizontalLayout_13", ui.horizontalLayout_13},
    };
    for (auto entry = held.cbegin(); entry != held.cend(); ++entry) {
        QCOMPARE(entry.value(), form.window.findChild<QObject *>(entry.key()));
    }
}

void MainWindowFormTreeTest::connectsSlotsByName()
{
    WindowWithNamedSlot window;
    Ui_MainWindow ui{};
    setUpForm(ui, window);

    ui.clearLogButton->click();
    QCOMPARE(window.clicks, 1);
}

PILOTEL_TEST_CLASS(MainWindowFormTreeTest)
#include "tst_mainwindow_form_tree.moc"
