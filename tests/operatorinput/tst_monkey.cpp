// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A monkey at the connected window: it clicks, drags, types and turns the wheel, and every command that
// reaches the device must have been asked for by a finished edit, a click, a release or a choice.
#include "boxpresser.h"
#include "camerapage.h"
#include "controls.h"
#include "menuhand.h"
#include "operatorwindow.h"
#include "testclass.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QMap>
#include <QRandomGenerator>
#include <QRect>
#include <QSlider>
#include <QTabBar>
#include <QTest>

#include <algorithm>

namespace
{

/// What a control may send when it is clicked, chosen, let go or left, and how many commands that are at
/// most.
struct Asked
{
    QStringList operations;
    int count{0};

    Asked &operator+=(const Asked &other)
    {
        operations += other.operations;
        count += other.count;
        return *this;
    }
};

/// Reads and resets fill controls, and some of these send what they were filled with.
constexpr int anyNumber{1000};
const char *const anyCommand{"*"};

/// Every control of the window that sends, by its name.
QMap<QString, Asked> askingControls()
{
    QMap<QString, Asked> controls;
    for (const Pair &pair : pairs) {
        const Asked asked{{QString{pair.call}.section('(', 0, 0)}, 1};
        controls[pair.slider] = asked;
        controls[pair.box] = asked;
    }
    for (const ToggleRow &row : toggleRows) {
        controls[row.button] = {{QStringLiteral("set") + row.operation}, 1};
    }
    for (const ChoiceRow &row : choiceRows) {
        controls[row.comboBox] = {{row.operation}, 1};
    }
    for (const RegionRow &row : regionRows) {
        QStringList all;
        for (const char *const name : {"X1", "X2", "Y1", "Y2"}) {
            const QString operation{QStringLiteral("setRoi") + name};
            all.append(operation);
            controls[QString{row.boxes} + name] = {{operation}, 1};
        }
        if (row.enable != nullptr) {
            controls[row.enable] = {all, 4};
        }
    }
    for (const CorrectionRow &row : correctionRows) {
        controls[row.checkBox] = {{QStringLiteral("set") + row.operation}, 1};
    }
    for (const VideoModeRow &row : videoModeRows) {
        controls[row.button] = {{"setVideoMode"}, 1};
    }
    for (const char *const box : {"VisAgcTargetSB", "VisAgcTHSB", "VisAgcCoeffSB"}) {
        controls[box] = {{"setVisibleAgc"}, 1};
    }
    for (const char *const box : {"VisClheTHSB", "VisClheCoeffSB"}) {
        controls[box] = {{"setVisibleClhe"}, 1};
    }
    controls["startingModeCB"] = {{"setStartingMode"}, 1};
    controls["FusionConfigureZoomPB"] = {{"configureZoom"}, 1};
    controls["FusionWarpPB"] = {{"setWarp"}, 1};
    controls["saveParamButtonUser"] = {{"saveBlendUnitParameters"}, 1};
    controls["BaudRateConnectCB"] = {{"setBaudRate"}, 1};
    controls["Principal_tab"] = {{"setTarget"}, 1};
    for (const char *const button :
         {"connectDeviceButton", "readParamButtonUser", "readParamButtonExpert", "resetParamButtonUser"}) {
        controls[button] = {{anyCommand}, anyNumber};
    }
    return controls;
}

bool isCommand(const QString &operation)
{
    for (const char *const beginning : {"set", "configure", "save", "process", "add", "remove", "write"}) {
        if (operation.startsWith(beginning)) {
            return true;
        }
    }
    return false;
}

/// How long it is at the window: less in the tests of every day than when somebody wants to know.
qint64 millisecondsAtTheWindow()
{
    bool given{false};
    const int seconds{qEnvironmentVariableIntValue("PILOTEL_MONKEY_SECONDS", &given)};
    return (given ? seconds : 20) * qint64{1000};
}

class Monkey
{
public:
    Monkey(OperatorWindow &itsWindow, quint32 seed) : test{itsWindow}, random{seed} {}

    /// Does one thing and says what.
    QString act()
    {
        asked = {};
        // A list that is open takes every click and key.
        askFor(ownerOfPopup());
        switch (random.bounded(10)) {
        case 0:
        case 1:
        case 2:
            return click();
        case 3:
            return drag();
        case 4:
        case 5:
            return turnWheel();
        default:
            return type();
        }
    }

    Asked asked; ///< By what it has done last.

private:
    static QWidget *ownerOfPopup()
    {
        const QWidget *const popup{QApplication::activePopupWidget()};
        return popup != nullptr ? popup->parentWidget() : nullptr;
    }

    /// Where a key goes, also while the window is not active again after a box or a list.
    QWidget *focus()
    {
        const QWidget *const popup{QApplication::activePopupWidget()};
        return (popup != nullptr ? popup : &test.window())->focusWidget();
    }

    /// What the control around a widget may send.
    Asked askedFrom(const QWidget *widget) const
    {
        for (; widget != nullptr; widget = widget->parentWidget()) {
            if (controls.contains(widget->objectName()) && !qobject_cast<const QTabWidget *>(widget)) {
                return controls[widget->objectName()];
            }
            // Pages are chosen on their bar, which has no name of its own.
            if (qobject_cast<const QTabBar *>(widget) != nullptr) {
                return controls.value(widget->parentWidget()->objectName());
            }
        }
        return {};
    }

    void askFor(const QWidget *widget) { asked += askedFrom(widget); }

    /// A spin box that is left has finished its edit, and a slider is let go.
    void askForLeaving() { askFor(focus()); }

    QPoint somewhere()
    {
        const QWidgetList all{test.window().findChildren<QWidget *>()};
        QWidgetList visible;
        for (QWidget *const widget : all) {
            const bool taking{widget->focusPolicy() != Qt::NoFocus ||
                              qobject_cast<QTabBar *>(widget) != nullptr};
            // Without a device there is little to do, so it disconnects seldom.
            const bool avoided{widget->objectName() == "disconnectDeviceButton" && random.bounded(20) != 0};
            if (widget->isVisible() && widget->isEnabled() && taking && !avoided && !widget->isWindow()) {
                visible.append(widget);
            }
        }
        const QWidget &widget{*visible.at(random.bounded(visible.size()))};
        const QRect seen{widget.visibleRegion().boundingRect()};
        if (seen.isEmpty()) {
            return test.window().rect().center();
        }
        return widget.mapTo(&test.window(), QPoint{seen.left() + random.bounded(seen.width()),
                                                   seen.top() + random.bounded(seen.height())});
    }

    QWidget *widgetAt(const QPoint &place) { return test.window().childAt(place); }

    QString nameAt(const QPoint &place)
    {
        const QWidget *widget{widgetAt(place)};
        while (widget != nullptr &&
               (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"))) {
            widget = widget->parentWidget();
        }
        return widget != nullptr ? widget->objectName() : QStringLiteral("the window");
    }

    QString click()
    {
        const QPoint place{somewhere()};
        const QString name{nameAt(place)};
        if (random.bounded(4) == 0) {
            return rightClick(place, name);
        }
        askForLeaving();
        askFor(widgetAt(place));
        test.clickAt(place);
        return "click on " + name;
    }

    /// Moves the focus where it is elsewhere, opens a menu at most, and asks for nothing.
    QString rightClick(const QPoint &place, const QString &name)
    {
        QWidget *const left{focus()};
        const Asked byTheOneLeft{askedFrom(left)};
        QTest::mouseClick(&test.native(), Qt::RightButton, Qt::NoModifier, place);
        if (focus() != left) {
            asked += byTheOneLeft;
        }
        return "right click on " + name;
    }

    QString drag()
    {
        const QPoint place{somewhere()};
        const QPoint end{somewhere()};
        askForLeaving();
        askFor(widgetAt(place));
        const QString name{nameAt(place)};
        test.press(place);
        QTest::mouseMove(&test.native(), end);
        test.release(end);
        return "drag from " + name;
    }

    QString turnWheel()
    {
        const QPoint place{somewhere()};
        const QWidget *const focused{focus()};
        // Only a slider sends what the wheel does to it.
        if (qobject_cast<const QSlider *>(focused) != nullptr && widgetAt(place) == focused) {
            askFor(focused);
        }
        const QString name{nameAt(place)};
        test.turn(place, random.bounded(2) == 0 ? -1 : 1);
        if (focus() != focused) {
            QTest::qFail("the wheel has moved the focus", __FILE__, __LINE__);
        }
        return "wheel over " + name;
    }

    QString type()
    {
        static const Qt::Key keys[]{Qt::Key_0,        Qt::Key_1,      Qt::Key_2,         Qt::Key_5,
                                    Qt::Key_9,        Qt::Key_Period, Qt::Key_Backspace, Qt::Key_Up,
                                    Qt::Key_Down,     Qt::Key_Left,   Qt::Key_Right,     Qt::Key_PageUp,
                                    Qt::Key_PageDown, Qt::Key_Home,   Qt::Key_End,       Qt::Key_Space,
                                    Qt::Key_Return,   Qt::Key_Tab,    Qt::Key_Backtab,   Qt::Key_Escape};
        const Qt::Key key{keys[random.bounded(static_cast<int>(std::size(keys)))]};
        const QWidget *const focused{focus()};
        const bool leaves{key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Return};
        // What is typed into a spin box, or stepped there, is not finished.
        if (qobject_cast<const QAbstractSpinBox *>(focused) == nullptr || leaves) {
            askFor(focused);
        }
        const QString name{focused != nullptr ? focused->objectName() : "nothing"};
        QTest::keyClick(&test.native(), key);
        return QStringLiteral("key %1 in %2").arg(QKeySequence{key}.toString(), name);
    }

    OperatorWindow &test;
    QRandomGenerator random;
    const QMap<QString, Asked> controls{askingControls()};
};

} // namespace

class MonkeyTest : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandWasAskedFor();
};

void MonkeyTest::everyCommandWasAskedFor()
{
    constexpr quint32 seed{20261122};
    OperatorWindow test;
    BoxPresser presser{test.boxes};
    MenuHand menus;
    test.beConnected();
    test.showPage("Veltrix_KR_tab");
    test.takeCalls();
    Monkey monkey{test, seed};

    QElapsedTimer sinceStart;
    sinceStart.start();
    int acts{0};
    int commands{0};
    QStringList latest;
    // A monkey that reaches nothing proves nothing, so on a slow machine it stays until it has found a menu.
    while (sinceStart.elapsed() < millisecondsAtTheWindow() || menus.count == 0) {
        const QString act{monkey.act()};
        QCoreApplication::processEvents();
        ++acts;
        QStringList sent;
        for (const veltrix_simulator::Call &call : test.simulator.journal()) {
            const QString operation{QString::fromStdString(call.operation)};
            if (isCommand(operation)) {
                sent.append(operation);
            }
        }
        test.simulator.clearJournal();
        commands += sent.size();
        latest = (latest << act).mid(latest.size() < 6 ? 0 : 1);
        const QString story{QStringLiteral("act %1, %2: sent %3, asked for %4 of %5")
                                .arg(acts)
                                .arg(latest.join(" - "), sent.join(' '))
                                .arg(monkey.asked.count)
                                .arg(monkey.asked.operations.join(' '))};
        QVERIFY2(sent.size() <= monkey.asked.count, qPrintable(story));
        const QList<QSlider *> sliders{test.window().findChildren<QSlider *>()};
        QVERIFY2(std::none_of(sliders.begin(), sliders.end(),
                              [](const QSlider *slider) { return slider->isSliderDown(); }),
                 qPrintable(story));
        if (!monkey.asked.operations.contains(anyCommand)) {
            for (const QString &operation : qAsConst(sent)) {
                QVERIFY2(monkey.asked.operations.contains(operation), qPrintable(story));
            }
        }
        if (!test.child<QWidget>("paramSection").isEnabled()) {
            test.scanAndConnect();
            QCoreApplication::processEvents();
            test.simulator.clearJournal();
        }
        test.boxes.takeShown();
        // What the off-screen platform cannot do for menus and the lists of the combo boxes.
        test.warnings.take();
    }
    qInfo("%d acts, %d commands, %d menus", acts, commands, menus.count);
    QVERIFY(commands > acts / 20);
}

PILOTEL_TEST_CLASS(MonkeyTest)
#include "tst_monkey.moc"
