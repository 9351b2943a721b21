// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main window form's layouts: what each holds in which order, in which cells and at which distances.

#include "form_fixture.h"
#include "layoutchildren.h"
#include "testclass.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLayout>
#include <QLayoutItem>
#include <QMap>
#include <QMargins>
#include <QObject>
#include <QRect>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <QWidget>

#include <array>
#include <cstddef>
#include <vector>

namespace
{

struct Cell
{
    const char *grid;
    const char *widget;
    int row;
    int column;
    int rowSpan;
    int columnSpan;
};

std::vector<Cell> cells()
{
    return {
        {"VideoModeGridLayout", "label_33", 0, 0, 1, 3},
        {"VideoModeGridLayout", "BU_IR_MODE_PB", 1, 0, 2, 1},
        {"VideoModeGridLayout", "BU_VISIBLE_MODE_PB", 1, 1, 2, 1},
        {"VideoModeGridLayout", "BU_FUSION_MODE_PB", 1, 2, 2, 1},
        {"VideoModeGridLayout", "label_5", 3, 0, 4, 1},
        {"VideoModeGridLayout", "startingModeCB", 3, 1, 4, 2},

        {"ZoomGridLayout", "FusionZoomLabel", 0, 0, 1, 3},
        {"ZoomGridLayout", "ZoomFactorLabel", 1, 0, 3, 1},
        {"ZoomGridLayout", "FusionZoomFactorSB", 1, 1, 3, 1},
        {"ZoomGridLayout", "FusionZoomMethod", 1, 2, 3, 1},
        {"ZoomGridLayout", "FusionConfigureZoomPB", 4, 0, 1, 3},

        {"FusionAdministratorMode", "label_34", 1, 0, 1, 6},
        {"FusionAdministratorMode", "label_35", 3, 0, 1, 1},
        {"FusionAdministratorMode", "label_38", 3, 1, 1, 1},
        {"FusionAdministratorMode", "label_36", 3, 2, 1, 1},
        {"FusionAdministratorMode", "label_39", 3, 3, 1, 1},
        {"FusionAdministratorMode", "label_37", 3, 4, 1, 1},
        {"FusionAdministratorMode", "label_40", 3, 5, 1, 1},
        {"FusionAdministratorMode", "WarpA11CoeffSB", 4, 0, 1, 1},
        {"FusionAdministratorMode", "WarpA21CoeffSB", 4, 1, 1, 1},
        {"FusionAdministratorMode", "WarpA12CoeffSB", 4, 2, 1, 1},
        {"FusionAdministratorMode", "WarpA22CoeffSB", 4, 3, 1, 1},
        {"FusionAdministratorMode", "WarpA13CoeffSB", 4, 4, 1, 1},
        {"FusionAdministratorMode", "WarpA23CoeffSB", 4, 5, 1, 1},
        {"FusionAdministratorMode", "FusionWarpCB", 5, 0, 1, 3},
        {"FusionAdministratorMode", "FusionWarpPB", 5, 3, 1, 3},
        {"FusionAdministratorMode", "saveParamFactoryPB", 6, 0, 1, 6},

        {"gridLayout", "contrastTypeEdit", 0, 0, 1, 1},
        {"gridLayout", "lutColorEdit", 0, 1, 1, 1},
        {"gridLayout", "clheSlider", 0, 2, 1, 1},
        {"gridLayout", "clheEdit", 0, 3, 1, 1},
        {"gridLayout", "label_25", 1, 0, 1, 1},
        {"gridLayout", "AhcBlackGainLimSlider", 1, 2, 1, 1},
        {"gridLayout", "AhcBlackGainLimSpin", 1, 3, 1, 1},
        {"gridLayout", "label_26", 3, 0, 1, 1},
        {"gridLayout", "AhcWhiteGainLimSlider", 3, 2, 1, 1},
        {"gridLayout", "AhcWhiteGainLimSpin", 3, 3, 1, 1},
        {"gridLayout", "label_24", 5, 0, 1, 1},
        {"gridLayout", "TempoFilterSlider", 5, 2, 1, 1},
        {"gridLayout", "TempoFilterSpin", 5, 3, 1, 1},

        {"gridLayout_3", "label_41", 0, 0, 1, 3},
        {"gridLayout_3", "label_43", 1, 0, 1, 1},
        {"gridLayout_3", "label_44", 1, 1, 1, 1},
        {"gridLayout_3", "label_45", 1, 2, 1, 1},
        {"gridLayout_3", "VisAgcTargetSB", 2, 0, 1, 1},
        {"gridLayout_3", "VisAgcTHSB", 2, 1, 1, 1},
        {"gridLayout_3", "VisAgcCoeffSB", 2, 2, 1, 1},
        {"gridLayout_3", "label_42", 3, 0, 1, 3},
        {"gridLayout_3", "label_46", 4, 0, 1, 1},
        {"gridLayout_3", "label_48", 4, 2, 1, 1},
        {"gridLayout_3", "VisClheTHSB", 5, 0, 1, 1},
        {"gridLayout_3", "VisClheCoeffSB", 5, 2, 1, 1},
    };
}

QStringList widgetsWithin(const QLayout &layout)
{
    QStringList widgets;
    for (int i{0}; i < layout.count(); ++i) {
        QLayoutItem *item{layout.itemAt(i)};
        if (item->widget() != nullptr) {
            widgets << item->widget()->objectName();
        } else if (item->layout() != nullptr) {
            widgets << widgetsWithin(*item->layout());
        }
    }
    return widgets;
}

} // namespace

class MainWindowFormLayoutsTest : public QObject
{
    Q_OBJECT

private slots:
    void layoutHoldsInOrder_data();
    void layoutHoldsInOrder();
    void layoutHasItsSpacing_data();
    void layoutHasItsSpacing();
    void gridCell_data();
    void gridCell();
    void gridsHoldNothingElse();
    void lutGridKeepsItsGapRows();
    void badPixelCoordinateRows();
    void zoomResolutionBlock();
};

void MainWindowFormLayoutsTest::layoutHoldsInOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QStringList>("children"); // each a name or a pattern of a spacer

    const auto add = [](const char *className, const char *name, const char *owner,
                        const QStringList &children) {
        QTest::addRow("%s is a %s in %s", name, className, owner) << name << className << owner << children;
    };
    const auto column = [add](const char *name, const char *owner, const QStringList &children) {
        add("QVBoxLayout", name, owner, children);
    };
    const auto row = [add](const char *name, const char *owner, const QStringList &children) {
        add("QHBoxLayout", name, owner, children);
    };
    const QStringList cellsOfItsOwn{".*"};
    const auto grid = [add, cellsOfItsOwn](const char *name, const char *owner) {
        add("QGridLayout", name, owner, cellsOfItsOwn);
    };

    const QString across{spacer("(20|40)x20", "Expanding", "Minimum")};
    const QString down{spacer("20x40", "Minimum", "Expanding")};

    row("horizontalLayout_3", "centralWidget", {"Main"});
    column("Main", "horizontalLayout_3", {"Buttons", "paramSection", "InfoBar"});

    column("Buttons", "Main", {"ScanButtons", "ConnectButtons", "CommandButtons"});
    row("ScanButtons", "Buttons", {across, "scanDeviceButton", across, "selectDeviceComboBox", across});
    row("ConnectButtons", "Buttons",
        {across, "connectDeviceButton", across, "BaudRateConnectCB", across, "disconnectDeviceButton",
         across});
    row("CommandButtons", "Buttons",
        {across, "resetParamButtonUser", across, "saveParamButtonUser", across, "readParamButtonUser",
         across});

    column("Params", "paramSection", {"Principal_tab"});

    column("verticalLayout_13", "Fusion_tab",
           {"VideoModeGridLayout", "FusionZoomGridLayout", down, "FusionAdministratorCommands", down});
    grid("VideoModeGridLayout", "verticalLayout_13");
    grid("ZoomGridLayout", "FusionZoomGridLayout");
    grid("FusionAdministratorMode", "FusionAdministratorCommands");

    column("verticalLayout_8", "Veltrix_KR_tab", {"KR_tab"});

    column("verticalLayout_3", "ImageProcSection",
           {"label_7", "horizontalLayout_6", spacer("20x10", "Minimum", "MinimumExpanding"),
            "KrImageControlSection"});
    row("horizontalLayout_6", "verticalLayout_3", {"ColumnCorrectionButton", "VignettingCorrectionButton"});
    column("verticalLayout_14", "KrImageControlSection", {"label_11", "verticalLayout"});
    column(
        "verticalLayout", "verticalLayout_14",
        {"VideoOutputCB", "horizontalLayout", "label_10", "frameRateCB", "label_58", "horizontalFlipButton"});
    row("horizontalLayout", "verticalLayout",
        {"sdiOutputButton", "parallelOutputButton", "mipiOutputButton"});

    column("verticalLayout_4", "LutSection", {"label_3", "polarityButton", "label_4", "Gamma", "Roi", "LUT"});
    row("Gamma", "verticalLayout_4", {"gammaLabel", across, "gammaSlider", across, "gammaEdit"});
    column("Roi", "verticalLayout_4", {"roiLabel", "Rois"});
    column("Rois", "Roi", {"LabelRoi", "Roi0IncCoord", "Roi1IncCoord", "Roi0ExcCoord", "Roi1ExcCoord"});

    const QString gap{spacer("40x20", "Fixed", "Minimum")};
    row("LabelRoi", "Rois",
        {spacer("150x20", "Preferred", "Minimum"), "label_20", gap, "label_18", gap, "label_19", gap,
         "label_17", spacer("90x20", "Minimum", "Minimum")});
    const auto region = [row, gap](const char *name, const char *caption, const QString &prefix,
                                   const char *enable) {
        row(name, "Rois",
            {caption, prefix + "X1", gap, prefix + "X2", gap, prefix + "Y1", gap, prefix + "Y2", enable});
    };
    region("Roi0IncCoord", "label_16", "Roi0Inc", "checkBox");
    region("Roi1IncCoord", "label_22", "Roi1Inc", "roi1IncEnable");
    region("Roi0ExcCoord", "label_21", "Roi0Exc", "roi0ExcEnable");
    region("Roi1ExcCoord", "label_23", "Roi1Exc", "roi1ExcEnable");

    column("LUT", "verticalLayout_4", {"LutLabel", "gridLayout"});
    grid("gridLayout", "LUT");

    column("verticalLayout_5", "ZoomSection",
           {"zoomLabel", "ZoomFactor", "ZoomCenter", "ZoomResolution", "configureZoomButton"});
    row("ZoomFactor", "verticalLayout_5",
        {"factorZoomLabel", "factorZoomEdit", "xCenterZoomLabel", "xCenterZoomEdit"});
    row("ZoomCenter", "verticalLayout_5",
        {"methodZoomLabel", "methodZoomEdit", "yCenterZoomLabel", "yCenterZoomEdit"});

    column("verticalLayout_6", "EdgeSection",
           {"label_13", "EdgeCorrectionCB", "label_14", "SharpeningGain", "SharpeningThreshold"});
    row("SharpeningGain", "verticalLayout_6",
        {"sharpeningGainLabel", "sharpeningGainSlider", "sharpeningGainEdit"});
    row("SharpeningThreshold", "verticalLayout_6",
        {"SharpeningTHLabel", "SharpeningTHSlider", "SharpeningTHEdit"});

    column("verticalLayout_2", "BadPixelsSection",
           {"label_28", "horizontalLayout_11", "label_29", "horizontalLayout_10"});
    row("horizontalLayout_11", "verticalLayout_2",
        {"resetBPRTableButton", "readBPRTableButton", "writeBPRTableButton"});
    row("horizontalLayout_10", "verticalLayout_2", {"verticalLayout_9"});
    column("verticalLayout_9", "horizontalLayout_10", {"horizontalLayout_12", "bpGraphicEditorButton"});
    row("horizontalLayout_12", "verticalLayout_9", {"verticalLayout_10", "horizontalLayout_13"});
    column("verticalLayout_10", "horizontalLayout_12", {"label_30", "formLayout"});
    row("horizontalLayout_13", "horizontalLayout_12", {"verticalLayout_11", "verticalLayout_12"});
    column("verticalLayout_11", "horizontalLayout_13",
           {"label_31", "addBadPixelButton", "addBadPixelLineButton", "addBadPixelColumnButton"});
    column("verticalLayout_12", "horizontalLayout_13",
           {"label_32", "removeBadPixelButton", "removeBadPixelLineButton", "removeBadPixelColumnButton"});

    column("verticalLayout_7", "ExpertMode",
           {"readParamButtonExpert", "krBaudRateHLayout", "GSK", "GFID", "GMS", "TINT", "CheckBoxes"});
    row("krBaudRateLayout", "krBaudRateHLayout", {"label_8", "BaudRateCB", "PermanentButton"});
    row("GSK", "verticalLayout_7", {"gskLabel", "gskSlider", "gskEdit"});
    row("GFID", "verticalLayout_7", {"gfidLabel", "gfidSlider", "gfidEdit"});
    row("GMS", "verticalLayout_7", {"gmsLabel", "gmsSlider", "gmsEdit"});
    row("TINT", "verticalLayout_7", {"tintLabel", "tintSlider", "tintEdit"});
    row("CheckBoxes", "verticalLayout_7",
        {"gainCheckBox", "BPRCheckBox", "offsetCheckBox", "verticalFlipCheckBox"});

    column("verticalLayout_15", "Visible_tab", {"gridLayout_3"});
    grid("gridLayout_3", "verticalLayout_15");

    const QString wide{spacer("40x20", "Expanding", "Minimum")};
    const QString narrow{spacer("20x20", "Expanding", "Minimum")};
    row("InfoBar", "Main", {wide, "SystemInfos", narrow, "Log", narrow, "About"});
    column("SystemInfos", "InfoBar",
           {down, "label_2", "BitTextEdit", down, "label_9", "FusionFpgaTempTextEdit", down, "label_6",
            "FpgaTempTextEdit", down, "label_12", "SensorTempTextEdit", down});
    const QString shallow{spacer("20x10", "Minimum", "Minimum")};
    column("Log", "InfoBar", {shallow, "logView", "clearLogButton", shallow});
    const QString stretching{spacer("20x10", "Minimum", "Expanding")};
    column("About", "InfoBar",
           {stretching, "BULogo", stretching, "NTLogo", stretching, "AboutButton", stretching});
}

void MainWindowFormLayoutsTest::layoutHoldsInOrder()
{
    QFETCH(QString, name);
    QFETCH(QStringList, children);
    const MainForm form;

    const auto *layout = form.window.findChild<QLayout *>(name);
    QVERIFY2(layout, noSuch<QLayout>(form.window, name));
    QTEST(QString::fromLatin1(layout->metaObject()->className()), "className");
    QTEST(layout->parent()->objectName(), "owner");
    const QString actual{childrenOf(*layout).join(", ")};
    const QString expected{children.join(", ")};
    const QRegularExpression pattern{QRegularExpression::anchoredPattern(expected)};
    QVERIFY2(pattern.match(actual).hasMatch(),
             qPrintable(QStringLiteral("holds:  %1\nwanted: %2").arg(actual, expected)));
}

void MainWindowFormLayoutsTest::layoutHasItsSpacing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<QVector<int>>("margins"); // left, top, right, bottom
    QTest::addColumn<bool>("holdsMinimumSize");

    constexpr int ofStyle{-1};
    const QVector<int> allOfStyle(4, ofStyle);
    const QVector<int> none(4, 0);
    const QVector<int> eleven(4, 11);
    const QVector<int> fiveAboveAndBelow{ofStyle, 5, ofStyle, 5};

    const auto row = [](const char *name, int spacing, const QVector<int> &margins,
                        bool holdsMinimumSize = false) {
        QTest::addRow("%s is spaced by %d", name, spacing) << name << spacing << margins << holdsMinimumSize;
    };
    row("horizontalLayout_3", 6, eleven);
    row("Main", 0, none, true);
    row("Buttons", 0, allOfStyle);
    row("ScanButtons", 0, fiveAboveAndBelow, true);
    row("ConnectButtons", 0, fiveAboveAndBelow, true);
    row("CommandButtons", 0, fiveAboveAndBelow, true);
    row("Params", 0, eleven, true);
    for (const char *page :
         {"verticalLayout_13", "verticalLayout_8", "verticalLayout_3", "verticalLayout_4", "verticalLayout_5",
          "verticalLayout_6", "verticalLayout_2", "verticalLayout_7", "verticalLayout_15"}) {
        row(page, 6, eleven);
    }
    row("VideoModeGridLayout", 6, allOfStyle, true);
    row("ZoomGridLayout", 6, eleven, true);
    row("FusionAdministratorMode", 6, eleven);
    row("Gamma", 0, {0, 5, 0, 5}, true);
    row("Roi", 0, fiveAboveAndBelow, true);
    row("Rois", 6, allOfStyle);
    row("Roi0IncCoord", 6, fiveAboveAndBelow);
    row("Roi1IncCoord", 6, allOfStyle);
    row("Roi0ExcCoord", 6, fiveAboveAndBelow);
    row("Roi1ExcCoord", 6, allOfStyle);
    row("gridLayout", 6, allOfStyle);
    row("formLayout", 6, allOfStyle);
    row("gridLayout_3", 6, allOfStyle);
}

void MainWindowFormLayoutsTest::layoutHasItsSpacing()
{
    QFETCH(QString, name);
    QFETCH(QVector<int>, margins);
    QFETCH(bool, holdsMinimumSize);
    const MainForm form;

    const auto *layout = form.window.findChild<QLayout *>(name);
    QVERIFY2(layout, noSuch<QLayout>(form.window, name));
    QTEST(layout->spacing(), "spacing");

    const QMargins actual{layout->contentsMargins()};
    const QVector<int> sides{actual.left(), actual.top(), actual.right(), actual.bottom()};
    for (int side{0}; side < sides.size(); ++side) {
        if (margins[side] >= 0) {
            QCOMPARE(sides[side], margins[side]);
        }
    }
    if (holdsMinimumSize) {
        QCOMPARE(layout->sizeConstraint(), QLayout::SetMinimumSize);
    }
}

void MainWindowFormLayoutsTest::gridCell_data()
{
    QTest::addColumn<QString>("grid");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QRect>("cell"); // x is the column, y the row

    for (const Cell &cell : cells()) {
        QTest::addRow("%s at row %d, column %d of %s", cell.widget, cell.row, cell.column, cell.grid)
            << cell.grid << cell.widget << QRect{cell.column, cell.row, cell.columnSpan, cell.rowSpan};
    }
}

void MainWindowFormLayoutsTest::gridCell()
{
    QFETCH(QString, grid);
    QFETCH(QString, widget);
    const MainForm form;

    const auto *layout = form.window.findChild<QGridLayout *>(grid);
    QVERIFY2(layout, noSuch<QGridLayout>(form.window, grid));
    auto *content = form.window.findChild<QWidget *>(widget);
    QVERIFY2(content, noSuch<QWidget>(form.window, widget));
    const int index{layout->indexOf(content)};
    QVERIFY2(index >= 0, qPrintable(grid + " holds " + childrenOf(*layout).join(", ")));
    int row{0};
    int column{0};
    int rowSpan{0};
    int columnSpan{0};
    layout->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
    QTEST((QRect{column, row, columnSpan, rowSpan}), "cell");
}

void MainWindowFormLayoutsTest::gridsHoldNothingElse()
{
    const MainForm form;

    const auto grids = form.window.findChildren<QGridLayout *>();
    QStringList inGrids;
    for (const auto *grid : grids) {
        // Qt lays out the inside of some of its widgets with unnamed grids.
        if (!grid->objectName().isEmpty()) {
            inGrids << childrenOf(*grid);
        }
    }
    QStringList expected;
    for (const Cell &cell : cells()) {
        expected << cell.widget;
    }
    QCOMPARE(difference(inGrids, expected), QString{});
}

void MainWindowFormLayoutsTest::lutGridKeepsItsGapRows()
{
    const MainForm form;

    for (const int row : {2, 4}) {
        for (int column{0}; column < form.ui.gridLayout->columnCount(); ++column) {
            QVERIFY(form.ui.gridLayout->itemAtPosition(row, column) == nullptr);
        }
    }
}

void MainWindowFormLayoutsTest::badPixelCoordinateRows()
{
    const MainForm form;

    const auto *lines = form.window.findChild<QFormLayout *>("formLayout");
    QVERIFY2(lines, noSuch<QFormLayout>(form.window, "formLayout"));
    QCOMPARE(lines->parent()->objectName(), "verticalLayout_10");
    const std::array<std::array<const char *, 2>, 2> wanted{
        {{"label_27", "xBadPixelCoordinate"}, {"label_15", "yBadPixelCoordinate"}}};
    QCOMPARE(lines->rowCount(), 2);
    for (int row{0}; row < lines->rowCount(); ++row) {
        auto *caption = lines->itemAt(row, QFormLayout::LabelRole);
        auto *field = lines->itemAt(row, QFormLayout::FieldRole);
        QVERIFY(caption != nullptr && field != nullptr);
        const auto &names = wanted.at(static_cast<std::size_t>(row));
        QCOMPARE(describe(*caption), names[0]);
        QCOMPARE(describe(*field), names[1]);
    }
}

void MainWindowFormLayoutsTest::zoomResolutionBlock()
{
    const MainForm form;

    const auto *block = form.window.findChild<QLayout *>("ZoomResolution");
    QVERIFY2(block, noSuch<QLayout>(form.window, "ZoomResolution"));
    QCOMPARE(block->parent()->objectName(), "verticalLayout_5");
    const QStringList inOrder{"label", "xResolutionZoomLabel", "xResolutionZoomEdit", "yResolutionZoomLabel",
                              "yResolutionZoomEdit"};
    QCOMPARE(widgetsWithin(*block), inOrder);

    const QMap<QString, QString> rowOfLabel{{"label", "horizontalLayout_5"},
                                            {"xResolutionZoomLabel", "horizontalLayout_2"},
                                            {"yResolutionZoomLabel", "horizontalLayout_4"}};
    for (auto entry = rowOfLabel.cbegin(); entry != rowOfLabel.cend(); ++entry) {
        const auto *row = block->findChild<QHBoxLayout *>(entry.value());
        QVERIFY2(row, noSuch<QHBoxLayout>(*block, entry.value()));
        QVERIFY2(childrenOf(*row).contains(entry.key()), qPrintable(childrenOf(*row).join(", ")));
    }
}

PILOTEL_TEST_CLASS(MainWindowFormLayoutsTest)
#include "tst_mainwindow_form_layouts.moc"
