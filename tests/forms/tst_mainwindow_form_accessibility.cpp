// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a screen reader finds in the main window form, and how the Tab key goes through it.
#include "form_fixture.h"
#include "testclass.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QtTest>

namespace
{

/// What a control is called. On X11, Qt hands a screen reader the item that is chosen as the name of a combo
/// box, and what the box is as its description.
QString nameOf(QAccessibleInterface &control)
{
    const auto *const box = qobject_cast<QComboBox *>(control.object());
    const bool isDescribed{!control.text(QAccessible::Description).isEmpty()};
    if (box != nullptr) {
        return isDescribed ? box->accessibleName() : QString{};
    }
    return control.text(QAccessible::Name);
}

/// A control as a screen reader finds it.
struct Control
{
    QWidget *widget;
    QString name;
};

/// The controls below a widget that take the focus, shown or not. What a combo box or a spin box is made of,
/// and a widget that hands the focus on, are no controls of their own.
void collectControls(QAccessibleInterface &root, std::vector<Control> &controls)
{
    auto *const widget = qobject_cast<QWidget *>(root.object());
    if (widget != nullptr && root.state().focusable && widget->focusProxy() == nullptr) {
        controls.push_back({widget, nameOf(root)});
    }
    if (qobject_cast<QComboBox *>(widget) != nullptr || qobject_cast<QAbstractSpinBox *>(widget) != nullptr ||
        qobject_cast<QTabBar *>(widget) != nullptr) {
        return;
    }
    for (int index{0}; index < root.childCount(); ++index) {
        if (QAccessibleInterface *const child = root.child(index)) {
            collectControls(*child, controls);
        }
    }
}

std::vector<Control> controlsOf(QWidget &window)
{
    std::vector<Control> controls;
    collectControls(*QAccessible::queryAccessibleInterface(&window), controls);
    return controls;
}

QString objectNameOf(const Control &control)
{
    const bool isTabBar{qobject_cast<QTabBar *>(control.widget) != nullptr};
    return isTabBar ? control.widget->parentWidget()->objectName() : control.widget->objectName();
}

QStringList namelessControls(QWidget &window)
{
    QStringList nameless;
    for (const Control &control : controlsOf(window)) {
        if (control.name.trimmed().isEmpty()) {
            nameless.append(objectNameOf(control));
        }
    }
    return nameless;
}

/// The page that a widget is on, the innermost one; null for what is beside the pages.
const QWidget *pageOf(const QWidget &widget, const Ui_MainWindow &ui)
{
    for (const QWidget *parent{&widget}; parent != nullptr; parent = parent->parentWidget()) {
        if (ui.KR_tab->indexOf(const_cast<QWidget *>(parent)) >= 0 ||
            (parent != ui.Veltrix_KR_tab && ui.Principal_tab->indexOf(const_cast<QWidget *>(parent)) >= 0)) {
            return parent;
        }
    }
    return nullptr;
}

/// The form as it is used, with everything enabled.
struct AccessibleForm : MainForm
{
    AccessibleForm()
    {
        for (QWidget *const widget : window.findChildren<QWidget *>()) {
            widget->setEnabled(true);
        }
        window.show();
        window.activateWindow();
    }
};

} // namespace

class MainWindowFormAccessibilityTest : public QObject
{
    Q_OBJECT

private slots:
    void everyControlHasAName();
    void aMissingNameIsFound();
    void noTwoControlsOfAPageAreCalledAlike();
    void everyCaptionHasABuddyOnItsPage();
    void isCalledInPlainWords_data();
    void isCalledInPlainWords();
    void descriptionsAreTheToolTipsWithoutMarkup();
    void tabLeavesEveryTextBox_data();
    void tabLeavesEveryTextBox();
    void theTabKeyFollowsTheEye_data();
    void theTabKeyFollowsTheEye();
};

void MainWindowFormAccessibilityTest::everyControlHasAName()
{
    AccessibleForm form;
    QVERIFY(QTest::qWaitForWindowActive(&form.window));
    QCOMPARE(namelessControls(form.window).join(' '), QString{});
    // The walk has found them all, tab bars included.
    QCOMPARE(controlsOf(form.window).size(), std::size_t{118});
}

void MainWindowFormAccessibilityTest::aMissingNameIsFound()
{
    AccessibleForm form;
    form.ui.tintSlider->setAccessibleName({});
    form.ui.frameRateCB->setAccessibleName({});
    form.ui.logView->setAccessibleName({});
    QCOMPARE(namelessControls(form.window).join(' '), QString{"frameRateCB tintSlider logView"});
}

void MainWindowFormAccessibilityTest::noTwoControlsOfAPageAreCalledAlike()
{
    AccessibleForm form;
    const std::vector<Control> controls{controlsOf(form.window)};
    for (const Control &one : controls) {
        const QWidget *const page{pageOf(*one.widget, form.ui)};
        for (const Control &other : controls) {
            const QWidget *const otherPage{pageOf(*other.widget, form.ui)};
            const bool together{page == otherPage || page == nullptr || otherPage == nullptr};
            QVERIFY2(one.widget == other.widget || !together || one.name != other.name,
                     qPrintable(objectNameOf(one) + " and " + objectNameOf(other) + ": " + one.name));
        }
    }
}

void MainWindowFormAccessibilityTest::everyCaptionHasABuddyOnItsPage()
{
    AccessibleForm form;
    const QStringList pictures{"BULogo", "NTLogo"};
    int captions{0};
    for (const QLabel *const label : form.window.findChildren<QLabel *>()) {
        if (pictures.contains(label->objectName())) {
            continue;
        }
        ++captions;
        QVERIFY2(label->buddy() != nullptr, qPrintable(label->objectName()));
        QVERIFY2(pageOf(*label->buddy(), form.ui) == pageOf(*label, form.ui),
                 qPrintable(label->objectName()));
        QVERIFY2(label->buddy()->focusPolicy() != Qt::NoFocus, qPrintable(label->objectName()));
    }
    QVERIFY(captions > 50);
}

void MainWindowFormAccessibilityTest::isCalledInPlainWords_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *widget, const char *name) {
        QTest::newRow(widget) << widget << name;
    };
    row("selectDeviceComboBox", "Serial port");
    row("connectDeviceButton", "Connect");
    row("BU_IR_MODE_PB", "IR mode");
    row("ColumnCorrectionButton", "Column Correction: Deactivated");
    row("gammaSlider", "Gamma correction, slider");
    row("gammaEdit", "Gamma correction");
    row("Roi1ExcY2", "Region 1 exclusive, lower edge Y2");
    row("roi1ExcEnable", "Enable region 1 exclusive");
    row("removeBadPixelLineButton", "Undeclare line");
    row("gskEdit", "Expert value GSK");
    row("VisClheCoeffSB", "Visible contrast, filter coefficient");
    row("BitTextEdit", "Result of the built-in test");
    row("frameRateCB", "Frame rate");
    row("logView", "Log");
}

void MainWindowFormAccessibilityTest::isCalledInPlainWords()
{
    QFETCH(QString, widget);
    QFETCH(QString, name);
    AccessibleForm form;
    auto *const control = form.window.findChild<QWidget *>(widget);
    QVERIFY2(control != nullptr, noSuch<QWidget>(form.window, widget).constData());
    QCOMPARE(nameOf(*QAccessible::queryAccessibleInterface(control)), name);
}

void MainWindowFormAccessibilityTest::descriptionsAreTheToolTipsWithoutMarkup()
{
    AccessibleForm form;
    const auto description = [](QWidget *widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
    };
    QCOMPARE(description(form.ui.scanDeviceButton), QString{"Scan devices on Com port"});
    QCOMPARE(description(form.ui.logView), QString{"Log messages with camera"});
    for (QWidget *const widget : form.window.findChildren<QWidget *>()) {
        QVERIFY2(!description(widget).contains('<'), qPrintable(widget->objectName()));
    }
}

void MainWindowFormAccessibilityTest::tabLeavesEveryTextBox_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("next");
    const auto row = [](const char *box, const char *next) {
        QTest::newRow(box) << box << next;
    };
    row("BitTextEdit", "FusionFpgaTempTextEdit");
    row("FusionFpgaTempTextEdit", "FpgaTempTextEdit");
    row("FpgaTempTextEdit", "SensorTempTextEdit");
    row("SensorTempTextEdit", "logView");
    row("logView", "clearLogButton");
}

void MainWindowFormAccessibilityTest::tabLeavesEveryTextBox()
{
    QFETCH(QString, box);
    QFETCH(QString, next);
    AccessibleForm form;
    QVERIFY(QTest::qWaitForWindowActive(&form.window));
    auto *const text = form.window.findChild<QPlainTextEdit *>(box);
    text->setFocus();
    QTest::keyClick(form.window.windowHandle(), Qt::Key_Tab);
    QCOMPARE(form.window.focusWidget()->objectName(), next);
    QCOMPARE(text->toPlainText(), QString{});
    QTest::keyClick(form.window.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(form.window.focusWidget()->objectName(), box);
}

void MainWindowFormAccessibilityTest::theTabKeyFollowsTheEye_data()
{
    QTest::addColumn<QString>("page");
    for (const char *const page : {"Fusion_tab", "ImageProcSection", "LutSection", "ZoomSection",
                                   "EdgeSection", "BadPixelsSection", "ExpertMode", "Visible_tab"}) {
        QTest::newRow(page) << page;
    }
}

void MainWindowFormAccessibilityTest::theTabKeyFollowsTheEye()
{
    QFETCH(QString, page);
    AccessibleForm form;
    QVERIFY(QTest::qWaitForWindowActive(&form.window));
    QWidget *const shown{form.window.findChild<QWidget *>(page)};
    const bool isCamera{form.ui.KR_tab->indexOf(shown) >= 0};
    form.ui.Principal_tab->setCurrentWidget(isCamera ? form.ui.Veltrix_KR_tab : shown);
    if (isCamera) {
        form.ui.KR_tab->setCurrentWidget(shown);
    }
    QCoreApplication::processEvents();

    int reached{0};
    int reachedOnThePage{0};
    form.ui.scanDeviceButton->setFocus();
    for (const QWidget *before{form.ui.scanDeviceButton}; before != form.ui.AboutButton;) {
        QTest::keyClick(form.window.windowHandle(), Qt::Key_Tab);
        const QWidget *const now{form.window.focusWidget()};
        const QRect place{now->mapTo(&form.window, QPoint{}), now->size()};
        const QRect left{before->mapTo(&form.window, QPoint{}), before->size()};
        // To the right, as in a row or to the next column, or further down.
        QVERIFY2(place.left() > left.right() || place.top() > left.bottom() ||
                     place.center().y() > left.bottom(),
                 qPrintable(before->objectName() + " to " + now->objectName()));
        reachedOnThePage += shown->isAncestorOf(now) ? 1 : 0;
        ++reached;
        QVERIFY(reached < 100);
        before = now;
    }
    int wanted{0};
    for (const Control &control : controlsOf(form.window)) {
        wanted += shown->isAncestorOf(control.widget) ? 1 : 0;
    }
    QCOMPARE(reachedOnThePage, wanted);
}

PILOTEL_TEST_CLASS(MainWindowFormAccessibilityTest)
#include "tst_mainwindow_form_accessibility.moc"
