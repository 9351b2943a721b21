// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The user guide against the window: no control, choice, range or box is missing from it or other than it
// says.
#include "guide.h"
#include "testclass.h"
#include "testwindow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLocale>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

#include <iterator>
#include <map>
#include <string>

using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

namespace
{

/// What the guide calls a control whose own text does not name it.
const std::map<QString, QString> &namesOfControls()
{
    static const std::map<QString, QString> names{
        {"selectDeviceComboBox", "Port"},
        {"BaudRateConnectCB", "Baud rate"},
        {"startingModeCB", "Set starting Mode"},
        {"FusionZoomFactorSB", "Factor"},
        {"FusionZoomMethod", "Zoom method"},
        {"VideoOutputCB", "Video Output Type"},
        {"frameRateCB", "Frame Rate"},
        {"gammaSlider", "Gamma Correction"},
        {"gammaEdit", "Gamma Correction"},
        {"Roi0IncX1", "X1"},
        {"Roi1IncX1", "X1"},
        {"Roi0ExcX1", "X1"},
        {"Roi1ExcX1", "X1"},
        {"Roi0IncX2", "X2"},
        {"Roi1IncX2", "X2"},
        {"Roi0ExcX2", "X2"},
        {"Roi1ExcX2", "X2"},
        {"Roi0IncY1", "Y1"},
        {"Roi1IncY1", "Y1"},
        {"Roi0ExcY1", "Y1"},
        {"Roi1ExcY1", "Y1"},
        {"Roi0IncY2", "Y2"},
        {"Roi1IncY2", "Y2"},
        {"Roi0ExcY2", "Y2"},
        {"Roi1ExcY2", "Y2"},
        {"contrastTypeEdit", "Lut Method"},
        {"lutColorEdit", "Colours"},
        {"clheSlider", "Contrast"},
        {"clheEdit", "Contrast"},
        {"AhcBlackGainLimSlider", "AHC gain black limitation"},
        {"AhcBlackGainLimSpin", "AHC gain black limitation"},
        {"AhcWhiteGainLimSlider", "AHC gain white limitation"},
        {"AhcWhiteGainLimSpin", "AHC gain white limitation"},
        {"TempoFilterSlider", "Temporal Filter"},
        {"TempoFilterSpin", "Temporal Filter"},
        {"EdgeCorrectionCB", "Edge Correction"},
        {"sharpeningGainSlider", "Sharpening Filter Gain"},
        {"sharpeningGainEdit", "Sharpening Filter Gain"},
        {"SharpeningTHSlider", "Sharpening Filter Threshold"},
        {"SharpeningTHEdit", "Sharpening Filter Threshold"},
        {"gskSlider", "GSK"},
        {"gskEdit", "GSK"},
        {"gfidSlider", "GFID"},
        {"gfidEdit", "GFID"},
        {"gmsSlider", "GMS"},
        {"gmsEdit", "GMS"},
        {"tintSlider", "TINT"},
        {"tintEdit", "TINT"},
        {"VisAgcTargetSB", "AGC target"},
        {"VisAgcTHSB", "AGC thresholds"},
        {"VisAgcCoeffSB", "AGC Filter coefficient"},
        {"VisClheTHSB", "CLHE threshold"},
        {"VisClheCoeffSB", "CLHE Filter coefficient"},
        {"BitTextEdit", "BIT"},
        {"FusionFpgaTempTextEdit", "Fusion FPGA temperature"},
        {"FpgaTempTextEdit", "IR FPGA temperature"},
        {"SensorTempTextEdit", "IR sensor temperature"},
        {"logView", "Log"},
    };
    return names;
}

/// A setting: its page, its control, and where the simulated units keep it.
struct Setting
{
    const char *page;
    const char *control;
    const char *key;
    Value other; ///< Neither what a unit starts with nor what a reset brings.
};

constexpr std::int64_t operator""_n(unsigned long long number)
{
    return static_cast<std::int64_t>(number);
}

const Setting settings[]{
    {"Fusion", "BU_IR_MODE_PB", "blendUnit.videoMode", 1_n},
    {"Fusion", "BU_VISIBLE_MODE_PB", "blendUnit.videoMode", 1_n},
    {"Fusion", "BU_FUSION_MODE_PB", "blendUnit.videoMode", 1_n},
    {"Fusion", "startingModeCB", "blendUnit.startingMode", 1_n},
    {"Fusion", "FusionZoomFactorSB", "blendUnit.zoom.factor", 2.0},
    {"Fusion", "FusionZoomMethod", "blendUnit.zoom.method", 1_n},
    {"Image Processing", "ColumnCorrectionButton", "camera.columnCorrection", false},
    {"Image Processing", "VignettingCorrectionButton", "camera.vignettingCorrection", false},
    {"Image Processing", "VideoOutputCB", "camera.videoOutput", 7_n},
    {"Image Processing", "sdiOutputButton", "camera.sdiOutput", false},
    {"Image Processing", "parallelOutputButton", "camera.parallelOutput", true},
    {"Image Processing", "mipiOutputButton", "camera.mipiOutput", false},
    {"Image Processing", "frameRateCB", "camera.frameRate", 50_n},
    {"Image Processing", "horizontalFlipButton", "camera.horizontalFlip", true},
    {"LUT", "polarityButton", "camera.polarity", true},
    {"LUT", "gammaEdit", "camera.gamma", 131072_n},
    {"LUT", "Roi0IncX1", "camera.roi0.x1", 11_n},
    {"LUT", "Roi0IncX2", "camera.roi0.x2", 600_n},
    {"LUT", "Roi0IncY1", "camera.roi0.y1", 12_n},
    {"LUT", "Roi0IncY2", "camera.roi0.y2", 400_n},
    {"LUT", "roi1ExcEnable", "camera.roi1ExcEnabled", true},
    {"LUT", "contrastTypeEdit", "camera.contrastType", 1_n},
    {"LUT", "lutColorEdit", "camera.colorLut", 3_n},
    {"LUT", "clheEdit", "camera.clhe", 3000_n},
    {"LUT", "AhcBlackGainLimSpin", "camera.ahcGainLimitation.black", 21_n},
    {"LUT", "AhcWhiteGainLimSpin", "camera.ahcGainLimitation.white", 81_n},
    {"LUT", "TempoFilterSpin", "camera.lutTemporalFilter", 3_n},
    {"Edge", "EdgeCorrectionCB", "camera.edgeCorrection.type", 1_n},
    {"Edge", "sharpeningGainEdit", "camera.edgeCorrection.gain", 65_n},
    {"Edge", "SharpeningTHEdit", "camera.edgeCorrection.firstThreshold", 21_n},
    {"Expert", "gskEdit", "camera.gsk", 3_n},
    {"Expert", "gfidEdit", "camera.gfid", 251_n},
    {"Expert", "gmsEdit", "camera.gms", 1025_n},
    {"Expert", "tintEdit", "camera.tint", 11_n},
    {"Expert", "gainCheckBox", "camera.gainCorrection", false},
    {"Expert", "BPRCheckBox", "camera.bprEnable", false},
    {"Expert", "offsetCheckBox", "camera.offsetCorrection", false},
    {"Visible", "VisAgcTargetSB", "blendUnit.visibleAgc.target", 51_n},
    {"Visible", "VisAgcTHSB", "blendUnit.visibleAgc.threshold", 11_n},
    {"Visible", "VisAgcCoeffSB", "blendUnit.visibleAgc.filterCoefficient", 21_n},
    {"Visible", "VisClheTHSB", "blendUnit.visibleClhe.threshold", 2001_n},
    {"Visible", "VisClheCoeffSB", "blendUnit.visibleClhe.filterCoefficient", 31_n},
};

/// The guide's name of a control; empty when it has none.
QString nameOf(const QWidget &control)
{
    const auto named = namesOfControls().find(control.objectName());
    if (named != namesOfControls().end()) {
        return named->second;
    }
    const auto *const button = qobject_cast<const QAbstractButton *>(&control);
    return button == nullptr ? QString{} : button->text().section(QLatin1Char{':'}, 0, 0);
}

bool isControl(const QWidget &widget)
{
    return !widget.objectName().isEmpty() && !widget.objectName().startsWith(QStringLiteral("qt_")) &&
           (qobject_cast<const QAbstractButton *>(&widget) != nullptr ||
            qobject_cast<const QComboBox *>(&widget) != nullptr ||
            qobject_cast<const QAbstractSpinBox *>(&widget) != nullptr ||
            qobject_cast<const QSlider *>(&widget) != nullptr ||
            qobject_cast<const QPlainTextEdit *>(&widget) != nullptr);
}

/// The controls of a page that can be seen when it is open.
QList<QWidget *> controlsOn(const QWidget &page)
{
    QList<QWidget *> controls;
    for (QWidget *const widget : page.findChildren<QWidget *>()) {
        if (isControl(*widget) && widget->isVisibleTo(&page)) {
            controls.append(widget);
        }
    }
    return controls;
}

/// The controls of the window by the heading under which the guide has them.
QMap<QString, QList<QWidget *>> controlsByHeading(const TestWindow &test)
{
    QMap<QString, QList<QWidget *>> controls;
    const auto &pages = test.child<QTabWidget>(QStringLiteral("Principal_tab"));
    const auto &cameraPages = test.child<QTabWidget>(QStringLiteral("KR_tab"));
    for (const QTabWidget *const tabs : {&pages, &cameraPages}) {
        for (int index{0}; index < tabs->count(); ++index) {
            if (!tabs->widget(index)->isAncestorOf(&cameraPages)) {
                controls.insert(tabs->tabText(index), controlsOn(*tabs->widget(index)));
            }
        }
    }
    const auto &window = test.child<QWidget>(QStringLiteral("centralWidget"));
    for (QWidget *const control : controlsOn(window)) {
        if (!pages.isAncestorOf(control)) {
            const bool above{control->mapTo(&window, QPoint{}).y() < pages.mapTo(&window, QPoint{}).y()};
            controls[above ? QStringLiteral("Above the pages") : QStringLiteral("Below the pages")].append(
                control);
        }
    }
    return controls;
}

QStringList sortedAndUnique(QStringList list)
{
    list.sort();
    list.removeDuplicates();
    return list;
}

/// What the guide says in that column of a control's row.
QString cellOf(const Guide &guide, const QString &heading, const QString &control, const QString &column)
{
    for (const GuideRow &row : guide.section(heading).rows) {
        if (controlOf(row) == control) {
            return row.value(column);
        }
    }
    return QStringLiteral("no row for ") + control;
}

QString numberText(double number)
{
    return QLocale::c().toString(number, 'g', 10);
}

/// The range that the operator has: where the slider beside the box ends, the box is taken back.
QString rangeOf(QAbstractSpinBox &spinBox)
{
    const auto reach = [](auto &box) {
        box.setValue(box.minimum());
        const double lowest{static_cast<double>(box.value())};
        box.setValue(box.maximum());
        return numberText(lowest) + QStringLiteral(" to ") + numberText(static_cast<double>(box.value()));
    };
    if (auto *const whole = qobject_cast<QSpinBox *>(&spinBox)) {
        return reach(*whole);
    }
    return reach(*qobject_cast<QDoubleSpinBox *>(&spinBox));
}

/// What a control shows, as text.
QString shownBy(const QWidget &control)
{
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&control)) {
        return QVariant{button->isChecked()}.toString();
    }
    if (const auto *const comboBox = qobject_cast<const QComboBox *>(&control)) {
        return comboBox->currentText();
    }
    return qobject_cast<const QAbstractSpinBox *>(&control)->text();
}

/// Neither unit holds a setting that it starts with or that a reset brings. A region is on.
void setEverythingElse(Simulator &simulator)
{
    for (const Setting &setting : settings) {
        simulator.set(setting.key, setting.other);
    }
    simulator.set("camera.roi3.x1", 100_n);
}

} // namespace

class UserGuideTest : public QObject
{
    Q_OBJECT

private slots:
    void hasARowForEveryControl();
    void hasEveryChoiceAndRange();
    void saysWhatResetDoes();
    void saysWhatSaveKeeps();
    void hasEveryBox();
    void hasContents();
    void hasLinksThatLead();

private:
    const Guide guide{QStringLiteral(DOCS "/user-guide.md")};
};

void UserGuideTest::hasARowForEveryControl()
{
    TestWindow test;
    test.beConnected();
    const auto controls = controlsByHeading(test);
    QCOMPARE(controls.size(), 8);
    for (auto page = controls.begin(); page != controls.end(); ++page) {
        QStringList expected;
        for (const QWidget *const control : page.value()) {
            const QString name{nameOf(*control)};
            QVERIFY2(!name.isEmpty(), qPrintable(control->objectName() + QStringLiteral(" has no name")));
            expected.append(name);
        }
        QStringList rows;
        for (const GuideRow &row : guide.section(page.key()).rows) {
            rows.append(controlOf(row));
        }
        for (const QString &name : sortedAndUnique(expected)) {
            QVERIFY2(rows.removeOne(name), qPrintable(page.key() + QStringLiteral(": no row for ") + name));
        }
        QVERIFY2(rows.isEmpty(), qPrintable(page.key() + QStringLiteral(": no control for ") +
                                            rows.join(QStringLiteral(", "))));
    }
}

void UserGuideTest::hasEveryChoiceAndRange()
{
    TestWindow test;
    test.beConnected();
    const auto controls = controlsByHeading(test);
    int compared{0};
    for (auto page = controls.begin(); page != controls.end(); ++page) {
        for (QWidget *const control : page.value()) {
            const bool above{page.key() == QStringLiteral("Above the pages")};
            const QString said{cellOf(guide, page.key(), nameOf(*control),
                                      above ? QStringLiteral("Choices") : QStringLiteral("Range"))};
            if (auto *const spinBox = qobject_cast<QAbstractSpinBox *>(control)) {
                const QString range{rangeOf(*spinBox)};
                const QRegularExpression beginning{
                    QStringLiteral("^%1\\b").arg(QRegularExpression::escape(range))};
                QVERIFY2(beginning.match(said).hasMatch(),
                         qPrintable(QStringLiteral("%1: the window has %2, the guide \"%3\"")
                                        .arg(control->objectName(), range, said)));
                ++compared;
            } else if (const auto *const comboBox = qobject_cast<const QComboBox *>(control)) {
                if (comboBox->objectName() == QStringLiteral("selectDeviceComboBox")) {
                    continue;
                }
                QStringList choices;
                for (int index{0}; index < comboBox->count(); ++index) {
                    choices.append(comboBox->itemText(index));
                }
                QCOMPARE(codeIn(said), choices);
                ++compared;
            } else if (const auto *const button = qobject_cast<const QAbstractButton *>(control)) {
                QCOMPARE(said == QStringLiteral("on, off"), button->isCheckable());
                ++compared;
            }
        }
    }
    QVERIFY2(compared > 60, qPrintable(QString::number(compared)));
}

void UserGuideTest::saysWhatResetDoes()
{
    TestWindow test{setEverythingElse};
    test.beConnected();
    test.showPage(QStringLiteral("Veltrix_KR_tab"));

    std::map<QString, QString> shown;
    std::map<QString, Value> held;
    for (const Setting &setting : settings) {
        shown[setting.control] = shownBy(test.child<QWidget>(QString::fromLatin1(setting.control)));
        held[setting.control] = test.simulator.get(setting.key);
    }
    test.click(QStringLiteral("resetParamButtonUser"));
    for (const Setting &setting : settings) {
        const auto &control = test.child<QWidget>(QString::fromLatin1(setting.control));
        const bool sent{test.simulator.get(setting.key) != held[setting.control]};
        const bool changed{shownBy(control) != shown[setting.control]};
        const QString done{sent ? "sent" : changed ? "shown" : "no"};
        const QString said{
            cellOf(guide, QString::fromLatin1(setting.page), nameOf(control), QStringLiteral("Reset"))};
        QVERIFY2(said.section(QRegularExpression{QStringLiteral("[ ,]")}, 0, 0) == done,
                 qPrintable(QStringLiteral("%1: Reset does \"%2\", the guide says \"%3\"")
                                .arg(QString::fromLatin1(setting.control), done, said)));
    }
}

void UserGuideTest::saysWhatSaveKeeps()
{
    const QString scenario{QDir::current().filePath(QStringLiteral("saving.toml"))};
    QFile::remove(QStringLiteral("saved.json"));
    QFile file{scenario};
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[memory]\nfile = \"saved.json\"\n");
    file.close();
    const auto load = [&](Simulator &simulator) {
        simulator.loadScenario(scenario.toStdString());
    };
    {
        TestWindow test{load};
        test.beConnected();
        setEverythingElse(test.simulator);
        for (const char *const page : {"Fusion_tab", "Veltrix_KR_tab"}) {
            test.showPage(QString::fromLatin1(page));
            test.click(QStringLiteral("saveParamButtonUser"));
        }
        test.click(QStringLiteral("disconnectDeviceButton"));
    }
    TestWindow test{load};
    std::map<QString, bool> kept;
    for (const Setting &setting : settings) {
        kept[setting.control] = test.simulator.get(setting.key) == setting.other;
    }
    // Some buttons have their names only once they show a camera.
    test.beConnected();
    for (const Setting &setting : settings) {
        const QString name{nameOf(test.child<QWidget>(QString::fromLatin1(setting.control)))};
        const QString found{kept[setting.control] ? "yes" : "no"};
        const QString said{cellOf(guide, QString::fromLatin1(setting.page), name, QStringLiteral("Save"))};
        QVERIFY2(said == found, qPrintable(QStringLiteral("%1: kept \"%2\", the guide says \"%3\"")
                                               .arg(QString::fromLatin1(setting.control), found, said)));
    }
}

void UserGuideTest::hasEveryBox()
{
    QStringList boxes;
    const auto collect = [&](const TestWindow::Preparation &prepare, const char *button) {
        TestWindow test{prepare};
        test.boxes.expect();
        if (qstrcmp(button, "scanDeviceButton") == 0) {
            test.click(QString::fromLatin1(button));
        } else {
            test.scanAndConnect();
        }
        boxes.append(test.boxes.takeShown());
    };
    collect([](Simulator &simulator) { simulator.setPorts({}); }, "scanDeviceButton");
    collect([](Simulator &simulator) { simulator.addFault({"openDevice"}); }, "connectDeviceButton");
    collect([](Simulator &simulator) { simulator.loadScenario("silent-camera"); }, "connectDeviceButton");
    {
        TestWindow test;
        test.beConnected();
        test.showPage(QStringLiteral("Veltrix_KR_tab"));
        test.showPage(QStringLiteral("LutSection"));
        test.boxes.expect();
        test.child<QSpinBox>(QStringLiteral("Roi0IncX2")).setValue(6);
        test.child<QSpinBox>(QStringLiteral("Roi0IncX1")).setValue(7);
        test.child<QSpinBox>(QStringLiteral("Roi0IncX1")).setFocus();
        QTest::keyClick(&test.child<QSpinBox>(QStringLiteral("Roi0IncX1")), Qt::Key_Return);
        boxes.append(test.boxes.takeShown());
    }
    QCOMPARE(boxes.size(), 4);

    QString said;
    for (const GuideRow &row : guide.section(QStringLiteral("Message boxes")).rows) {
        said += row.value(QStringLiteral("Title and text")) + QLatin1Char{'\n'};
    }
    for (const QString &box : boxes) {
        const QString title{box.section(QLatin1Char{'"'}, 1, 1)};
        QVERIFY2(title.isEmpty() || said.contains(QStringLiteral("**%1:**").arg(title)), qPrintable(box));
        for (const QString &line : box.section(QLatin1Char{'"'}, 3, 3).split(QLatin1Char{'\n'})) {
            const QString text{QString{line}.remove(QStringLiteral(" SIM1"))};
            QVERIFY2(codeIn(said).contains(text), qPrintable(box));
        }
    }
}

void UserGuideTest::hasContents()
{
    QStringList expected;
    for (const GuideSection &section : guide.sections()) {
        if (section.depth > 1 && section.heading != QStringLiteral("Contents")) {
            expected.append(QStringLiteral("%1- [%2](%3)")
                                .arg(QString{(section.depth - 2) * 2, QLatin1Char{' '}}, section.heading,
                                     anchorOf(section.heading)));
        }
    }
    const QString contents{
        guide.text().section(QStringLiteral("\n## Contents\n"), 1).section(QStringLiteral("\n\n"), 0, 0)};
    QCOMPARE(contents.split(QLatin1Char{'\n'}), expected);
}

void UserGuideTest::hasLinksThatLead()
{
    QStringList anchors;
    for (const GuideSection &section : guide.sections()) {
        anchors.append(anchorOf(section.heading));
    }
    QStringList pictures;
    for (const QString &target : guide.targets()) {
        if (target.startsWith(QLatin1Char{'#'})) {
            QVERIFY2(anchors.contains(target), qPrintable(target));
        } else {
            QVERIFY2(QFile::exists(QStringLiteral(DOCS "/") + target), qPrintable(target));
            pictures.append(target);
        }
    }
    QStringList files;
    QDirIterator file{QStringLiteral(DOCS "/pictures"), QDir::Files, QDirIterator::Subdirectories};
    while (file.hasNext()) {
        files.append(QDir{QStringLiteral(DOCS)}.relativeFilePath(file.next()));
    }
    pictures.sort();
    files.sort();
    QCOMPARE(pictures, files);
}

PILOTEL_TEST_CLASS(UserGuideTest)
#include "tst_user_guide.moc"
