// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main window form's ranges, steps, sizes and initial states.

#include "form_fixture.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QMetaType>
#include <QObject>
#include <QPushButton>
#include <QSize>
#include <QSlider>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTest>
#include <QVariant>
#include <QVariantMap>
#include <QWidget>

#include <limits>

namespace
{

QString shown(const QVariant &value)
{
    if (value.userType() != QMetaType::QSize) {
        return value.toString();
    }
    const QSize size{value.toSize()};
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

/// An enumerator that keeps its name, for the rows to be read by.
template <typename Enumeration>
QVariant named(Enumeration value)
{
    return QVariant::fromValue(value);
}

bool isEnumeration(const QVariant &value)
{
    return QMetaType::typeFlags(value.userType()).testFlag(QMetaType::IsEnumeration);
}

QVariantMap withChanges(QVariantMap properties, const QVariantMap &changes)
{
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        properties.insert(change.key(), change.value());
    }
    return properties;
}

QStringList regionBoxes(const QString &region)
{
    return {region + "X1", region + "X2", region + "Y1", region + "Y2"};
}

} // namespace

class MainWindowFormValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void properties_data();
    void properties();
    void disabledWidgets();
    void checkedButtons();
    void checkableButtons();
    void freshFormShowsBaudRateAndFusionPage();
    void regionBoxKeepsToTheSensor_data();
    void regionBoxKeepsToTheSensor();
    void gskEditHoldsWholeNumbers_data();
    void gskEditHoldsWholeNumbers();
    void clheEditReachesBeyondItsSlider();
};

void MainWindowFormValuesTest::properties_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariantMap>("expected");

    const auto row = [](const QString &name, const QVariantMap &expected) {
        QStringList facts;
        for (auto fact = expected.cbegin(); fact != expected.cend(); ++fact) {
            facts << fact.key() + ' ' + shown(fact.value());
        }
        QTest::addRow("%s: %s", qPrintable(name), qPrintable(facts.join(", "))) << name << expected;
    };
    const auto rows = [row](const QStringList &names, const QVariantMap &expected) {
        for (const QString &name : names) {
            row(name, expected);
        }
    };
    // Properties that the form does not set keep Qt's own values.
    const auto slider = [row](const char *name, int minimum, int maximum, const QVariantMap &told) {
        row(name, withChanges({{"minimum", minimum},
                               {"maximum", maximum},
                               {"value", minimum},
                               {"singleStep", 1},
                               {"pageStep", 10},
                               {"orientation", named(Qt::Horizontal)},
                               {"tracking", true},
                               {"tickPosition", named(QSlider::NoTicks)},
                               {"tickInterval", 0}},
                              told));
    };
    const auto spin = [row](const QString &name, int minimum, int maximum, const QVariantMap &told = {}) {
        row(name,
            withChanges(
                {{"minimum", minimum}, {"maximum", maximum}, {"value", qMax(0, minimum)}, {"singleStep", 1}},
                told));
    };
    const auto doubleSpin = [row](const QString &name, double minimum, double maximum, double step,
                                  int decimals, const QVariantMap &told = {}) {
        row(name, withChanges({{"minimum", minimum},
                               {"maximum", maximum},
                               {"value", qMax(0.0, minimum)},
                               {"singleStep", step},
                               {"decimals", decimals},
                               {"stepType", named(QAbstractSpinBox::DefaultStepType)}},
                              told));
    };
    const auto ticksEvery = [](int interval) {
        return QVariantMap{{"tickPosition", named(QSlider::TicksBelow)}, {"tickInterval", interval}};
    };
    const QVariantMap ticksBelow{{"tickPosition", named(QSlider::TicksBelow)}};

    // Button rows.
    rows({"scanDeviceButton", "selectDeviceComboBox", "connectDeviceButton", "BaudRateConnectCB",
          "disconnectDeviceButton", "resetParamButtonUser", "saveParamButtonUser", "readParamButtonUser"},
         {{"minimumSize", QSize{150, 40}}});
    row("scanDeviceButton", {{"maximumSize", QSize{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX}},
                             {"layoutDirection", named(Qt::LeftToRight)}});
    row("selectDeviceComboBox", {{"count", 0}, {"currentIndex", -1}, {"currentText", ""}});
    row("BaudRateConnectCB", {{"count", 2}, {"currentIndex", 1}});

    // Tabs.
    row("Principal_tab", {{"count", 3}, {"currentIndex", 0}});
    row("KR_tab", {{"count", 6},
                   {"currentIndex", 0},
                   {"tabPosition", named(QTabWidget::North)},
                   {"tabShape", named(QTabWidget::Rounded)},
                   {"tabBarAutoHide", false},
                   {"minimumSize", QSize{0, 0}}});

    // Blend Unit.
    rows({"BU_IR_MODE_PB", "BU_VISIBLE_MODE_PB", "BU_FUSION_MODE_PB"}, {{"autoExclusive", false}});
    row("startingModeCB", {{"count", 4}, {"currentIndex", 0}});
    row("ZoomFactorLabel", {{"minimumWidth", 275}});
    doubleSpin("FusionZoomFactorSB", 1.0, 8.0, 0.001, 3);
    row("FusionZoomMethod", {{"count", 2}, {"currentIndex", 0}});
    row("label_34", {{"maximumHeight", 20}});
    rows({"label_35", "label_38", "label_36", "label_39", "label_37", "label_40"}, {{"maximumHeight", 15}});
    for (const char *coefficient : {"A11", "A21", "A12", "A22", "A13", "A23"}) {
        doubleSpin(QStringLiteral("Warp%1CoeffSB").arg(coefficient), -32768.0, 65536.0, 0.00015, 6);
    }
    row("FusionWarpCB", {{"count", 3}, {"currentIndex", 0}});

    // Image processing.
    row("VideoOutputCB", {{"count", 9},
                          {"currentIndex", 0},
                          {"minimumSize", QSize{100, 20}},
                          {"maxVisibleItems", 10},
                          {"sizeAdjustPolicy", named(QComboBox::AdjustToContents)}});
    row("frameRateCB", {{"count", 5},
                        {"currentIndex", 0},
                        {"minimumHeight", 20},
                        {"insertPolicy", named(QComboBox::InsertAtBottom)},
                        {"sizeAdjustPolicy", named(QComboBox::AdjustToContents)}});

    // LUT.
    row("gammaLabel", {{"minimumWidth", 150}});
    slider("gammaSlider", 0, 20,
           withChanges(ticksEvery(2), {{"singleStep", 2}, {"pageStep", 5}, {"minimumWidth", 200}}));
    doubleSpin("gammaEdit", 0.5, 2.5, 0.1, 1, {{"minimumWidth", 100}});
    rows({"label_20", "label_18", "label_19", "label_17"}, {{"minimumWidth", 100}});
    rows({"label_16", "label_22", "label_21", "label_23"}, {{"minimumWidth", 150}});
    rows({"checkBox", "roi1IncEnable", "roi0ExcEnable", "roi1ExcEnable"}, {{"minimumWidth", 90}});
    for (const QString region : {"Roi0Inc", "Roi1Inc", "Roi0Exc", "Roi1Exc"}) {
        for (const QString &name : regionBoxes(region)) {
            spin(name, 5, name.contains('X') ? 635 : 475, {{"minimumWidth", 100}});
        }
    }
    row("contrastTypeEdit", {{"count", 2},
                             {"currentIndex", 0},
                             {"minimumWidth", 150},
                             {"sizeAdjustPolicy", named(QComboBox::AdjustToContents)}});
    row("lutColorEdit", {{"count", 8}, {"currentIndex", 0}, {"minimumWidth", 150}});
    slider("clheSlider", 0, 10000,
           withChanges(ticksEvery(1000), {{"singleStep", 100}, {"pageStep", 1000}, {"minimumWidth", 200}}));
    doubleSpin("clheEdit", 0, 30000, 1.0, 0, {{"minimumWidth", 100}});
    rows({"label_25", "label_26"}, {{"minimumWidth", 90}});
    row("label_24", {{"minimumWidth", 150}});
    slider("AhcBlackGainLimSlider", 0, 100, ticksBelow);
    spin("AhcBlackGainLimSpin", 0, 100);
    slider("AhcWhiteGainLimSlider", 0, 100, ticksBelow);
    spin("AhcWhiteGainLimSpin", 0, 100);
    slider("TempoFilterSlider", 0, 8, withChanges(ticksEvery(1), {{"pageStep", 2}}));
    spin("TempoFilterSpin", 0, 8);

    // Zoom.
    rows({"factorZoomLabel", "methodZoomLabel"}, {{"minimumWidth", 100}});
    rows({"xCenterZoomLabel", "yCenterZoomLabel"}, {{"minimumWidth", 75}});
    doubleSpin("factorZoomEdit", 1.0, 8.0, 0.001, 3);
    row("methodZoomEdit", {{"count", 2}, {"currentIndex", 0}});
    spin("xCenterZoomEdit", 0, 640, {{"value", 320}});
    spin("yCenterZoomEdit", 0, 480, {{"value", 240}});
    row("xResolutionZoomLabel", {{"minimumWidth", 95}});
    spin("xResolutionZoomEdit", 0, 10000, {{"value", 720}, {"toolTipDuration", -1}});
    row("yResolutionZoomLabel", {{"minimumWidth", 95}, {"maximumWidth", 150}});
    spin("yResolutionZoomEdit", 0, 10000, {{"value", 576}});

    // Edge.
    row("EdgeCorrectionCB", {{"count", 3}, {"currentIndex", 0}});
    rows({"sharpeningGainLabel", "SharpeningTHLabel"}, {{"minimumWidth", 200}, {"maximumWidth", 200}});
    slider("sharpeningGainSlider", 0, 10240, withChanges(ticksEvery(1024), {{"singleStep", 1024}}));
    doubleSpin("sharpeningGainEdit", 0, 1024, 1.0, 1);
    slider("SharpeningTHSlider", 0, 2000, withChanges(ticksEvery(200), {{"singleStep", 200}}));
    doubleSpin("SharpeningTHEdit", 0, 255, 1.0, 1);

    // Bad pixels.
    spin("xBadPixelCoordinate", 0, 639);
    spin("yBadPixelCoordinate", 0, 479);

    // Expert.
    row("BaudRateCB",
        {{"count", 5}, {"currentIndex", 1}, {"maxVisibleItems", 10}, {"minimumContentsLength", 2}});
    rows({"gskLabel", "gfidLabel", "tintLabel"}, {{"minimumWidth", 50}});
    row("gmsLabel", {{"minimumWidth", 50}, {"maximumWidth", 150}});
    slider("gskSlider", 0, 20, {{"pageStep", 5}});
    doubleSpin("gskEdit", 1.0, 3.0, 0.01, 0);
    slider("gfidSlider", 0, 1000, {{"pageStep", 50}});
    doubleSpin("gfidEdit", 0, 1000, 0.01, 0);
    slider("gmsSlider", 0, 99, {});
    doubleSpin("gmsEdit", 0, 4294967296.0, 1.0, 0, {{"minimumWidth", 100}, {"maximumWidth", 100}});
    slider("tintSlider", 0, 20, {{"pageStep", 5}});
    doubleSpin("tintEdit", 0, 2.0, 0.01, 0);
    rows({"gainCheckBox", "BPRCheckBox", "offsetCheckBox"}, {{"minimumWidth", 120}});

    // Visible channel.
    rows({"label_41", "label_43", "label_44", "label_45", "label_42", "label_46", "label_48"},
         {{"maximumHeight", 20}});
    for (const char *name : {"VisAgcTargetSB", "VisAgcTHSB", "VisAgcCoeffSB", "VisClheCoeffSB"}) {
        spin(name, 0, 100);
    }
    spin("VisClheTHSB", 0, 65535, {{"singleStep", 100}});

    // Information bar.
    rows({"label_6", "label_12"}, {{"minimumWidth", 150}});
    // A minimum wider than the maximum: the order in which they are set keeps both.
    row("BitTextEdit", {{"readOnly", true},
                        {"overwriteMode", true},
                        {"minimumSize", QSize{150, 30}},
                        {"maximumSize", QSize{100, 30}},
                        {"verticalScrollBarPolicy", named(Qt::ScrollBarAlwaysOff)},
                        {"sizeAdjustPolicy", named(QAbstractScrollArea::AdjustToContentsOnFirstShow)}});
    const QVariantMap narrowBox{{"minimumSize", QSize{100, 30}}, {"maximumSize", QSize{150, 30}}};
    row("FusionFpgaTempTextEdit",
        withChanges(narrowBox, {{"readOnly", false},
                                {"verticalScrollBarPolicy", named(Qt::ScrollBarAsNeeded)},
                                {"horizontalScrollBarPolicy", named(Qt::ScrollBarAsNeeded)}}));
    rows({"FpgaTempTextEdit", "SensorTempTextEdit"},
         withChanges(narrowBox, {{"readOnly", true},
                                 {"overwriteMode", true},
                                 {"verticalScrollBarPolicy", named(Qt::ScrollBarAlwaysOff)},
                                 {"horizontalScrollBarPolicy", named(Qt::ScrollBarAlwaysOff)}}));
    row("logView", {{"readOnly", true},
                    {"verticalScrollBarPolicy", named(Qt::ScrollBarAlwaysOn)},
                    {"autoFillBackground", false}});
    row("clearLogButton", {{"minimumHeight", 30}});
    row("BULogo", {{"scaledContents", true}});
    row("NTLogo", {{"scaledContents", false}});
    row("AboutButton", {{"minimumHeight", 40}});
}

void MainWindowFormValuesTest::properties()
{
    QFETCH(QString, name);
    QFETCH(QVariantMap, expected);
    const MainForm form;

    const auto *widget = form.window.findChild<QWidget *>(name);
    QVERIFY2(widget, noSuch<QWidget>(form.window, name));
    QStringList wrong;
    for (auto fact = expected.cbegin(); fact != expected.cend(); ++fact) {
        QVariant actual{widget->property(qPrintable(fact.key()))};
        QVariant wanted{fact.value()};
        const bool comparable{isEnumeration(actual) == isEnumeration(wanted) &&
                              wanted.convert(actual.userType())};
        if (!comparable || actual != wanted) {
            wrong << QStringLiteral("%1 is %2, not %3").arg(fact.key(), shown(actual), shown(fact.value()));
        }
    }
    QCOMPARE(wrong.join("; "), QString{});
}

void MainWindowFormValuesTest::disabledWidgets()
{
    const MainForm form;

    const QStringList actual{namesWhere(
        form.window, [](const QWidget &widget) { return !widget.isEnabledTo(widget.parentWidget()); })};
    QStringList expected{"paramSection", "resetParamButtonUser", "saveParamButtonUser", "readParamButtonUser",
                         "checkBox"};
    for (const char *region : {"Roi1Inc", "Roi0Exc", "Roi1Exc"}) {
        expected << regionBoxes(region);
    }
    QCOMPARE(difference(actual, expected), QString{});
    QVERIFY(!form.ui.gammaEdit->isEnabled());
}

void MainWindowFormValuesTest::checkedButtons()
{
    const MainForm form;

    const QStringList actual{namesWhere(form.window, [](const QWidget &widget) {
        const auto *button = qobject_cast<const QAbstractButton *>(&widget);
        return button != nullptr && button->isChecked();
    })};
    QCOMPARE(difference(actual, {"checkBox", "gainCheckBox", "BPRCheckBox", "offsetCheckBox"}), QString{});
}

void MainWindowFormValuesTest::checkableButtons()
{
    const MainForm form;

    const QStringList actual{namesWhere(form.window, [](const QWidget &widget) {
        const auto *button = qobject_cast<const QPushButton *>(&widget);
        return button != nullptr && button->isCheckable();
    })};
    const QStringList expected{"BU_IR_MODE_PB",
                               "BU_VISIBLE_MODE_PB",
                               "BU_FUSION_MODE_PB",
                               "ColumnCorrectionButton",
                               "VignettingCorrectionButton",
                               "sdiOutputButton",
                               "parallelOutputButton",
                               "mipiOutputButton",
                               "horizontalFlipButton",
                               "polarityButton",
                               "PermanentButton"};
    QCOMPARE(difference(actual, expected), QString{});
}

void MainWindowFormValuesTest::freshFormShowsBaudRateAndFusionPage()
{
    const MainForm form;

    QCOMPARE(form.ui.BaudRateConnectCB->currentText(), "115200");
    QCOMPARE(form.ui.BaudRateCB->currentText(), "115200");
    QCOMPARE(form.ui.Principal_tab->currentWidget()->objectName(), "Fusion_tab");
}

void MainWindowFormValuesTest::regionBoxKeepsToTheSensor_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("largest");

    for (const QString region : {"Roi0Inc", "Roi1Inc", "Roi0Exc", "Roi1Exc"}) {
        for (const QString &name : regionBoxes(region)) {
            const int largest{name.contains('X') ? 635 : 475};
            QTest::addRow("%s stays within 5..%d", qPrintable(name), largest) << name << largest;
        }
    }
}

void MainWindowFormValuesTest::regionBoxKeepsToTheSensor()
{
    QFETCH(QString, name);
    const MainForm form;

    auto *box = form.window.findChild<QSpinBox *>(name);
    QVERIFY2(box, noSuch<QSpinBox>(form.window, name));
    QCOMPARE(box->value(), 5);
    box->setValue(std::numeric_limits<int>::max());
    QTEST(box->value(), "largest");
    box->setValue(4);
    QCOMPARE(box->value(), 5);
    box->setValue(std::numeric_limits<int>::min());
    QCOMPARE(box->value(), 5);
}

void MainWindowFormValuesTest::gskEditHoldsWholeNumbers_data()
{
    QTest::addColumn<double>("given");
    QTest::addColumn<double>("held");

    const auto row = [](double given, double held) {
        QTest::addRow("%.2f becomes %.0f", given, held) << given << held;
    };
    row(0.2, 1.0);
    row(1.4, 1.0);
    row(1.6, 2.0);
    row(2.49, 2.0);
    row(2.51, 3.0);
    row(3.7, 3.0);
}

void MainWindowFormValuesTest::gskEditHoldsWholeNumbers()
{
    QFETCH(double, given);
    const MainForm form;

    form.ui.gskEdit->setValue(given);
    QTEST(form.ui.gskEdit->value(), "held");
}

void MainWindowFormValuesTest::clheEditReachesBeyondItsSlider()
{
    const MainForm form;

    form.ui.clheEdit->setValue(30000.0);
    form.ui.clheSlider->setValue(30000);
    QCOMPARE(form.ui.clheEdit->value(), 30000.0);
    QCOMPARE(form.ui.clheSlider->value(), 10000);
    form.ui.clheEdit->setValue(30001.0);
    QCOMPARE(form.ui.clheEdit->value(), 30000.0);
}

PILOTEL_TEST_CLASS(MainWindowFormValuesTest)
#include "tst_mainwindow_form_values.moc"
