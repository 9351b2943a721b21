// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What has to hold after each action of the monkey.
#include "promises.h"

#include "controls.h"
#include "loglines.h"
#include "oracle.h"
#include "tables.h"

#include <QAbstractItemModel>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLatin1Char>
#include <QLatin1String>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSlider>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

using veltrix_simulator::Call;
using veltrix_simulator::Interface;

namespace
{

QString textOf(const Call &call)
{
    return QString::fromStdString(call.text);
}

/// The text of a record, from `log(2, "text")`.
QString recordIn(const Call &call)
{
    const QString quoted{textOf(call).section(QLatin1Char{'"'}, 1).chopped(2)};
    QString text;
    for (int place{0}; place < quoted.size(); ++place) {
        if (quoted[place] != QLatin1Char{'\\'}) {
            text += quoted[place];
        } else if (++place < quoted.size()) {
            text += quoted[place] == QLatin1Char{'n'} ? QLatin1Char{'\n'} : quoted[place];
        }
    }
    return text;
}

/// The control that an operation sends, in the oracle's words; empty for the others.
QString controlOf(const QString &operation)
{
    for (const Pair &pair : pairs) {
        if (operation == QString{pair.call}.section('(', 0, 0)) {
            return QString{pair.box};
        }
    }
    for (const ChoiceRow &row : choiceRows) {
        if (operation == QLatin1String{row.operation}) {
            return QString{row.comboBox};
        }
    }
    if (operation == QStringLiteral("setVisibleAgc")) {
        return QStringLiteral("VisAgcTargetSB");
    }
    return operation == QStringLiteral("setVisibleClhe") ? QStringLiteral("VisClheTHSB") : QString{};
}

bool isRegionBox(const QString &control)
{
    return control.startsWith(QStringLiteral("Roi"));
}

double numberIn(const Panel &panel, const QString &property)
{
    return panel.value(property).toDouble();
}

/// Whether a slider stands where its box says.
bool standsAtItsBox(const Panel &panel, const Pair &pair)
{
    const QString slider{named(pair.slider)};
    const QString box{named(pair.box)};
    const double lowest{numberIn(panel, slider + QStringLiteral(".minimum"))};
    const double highest{std::max(lowest, numberIn(panel, slider + QStringLiteral(".maximum")))};
    const double value{numberIn(panel, box + QStringLiteral(".value"))};
    const double position{std::round((value - pair.lowest) * pair.stepsPerUnit)};
    const double expected{std::clamp(position, lowest, highest)};
    const double shown{numberIn(panel, slider + QStringLiteral(".value"))};
    // A box at its end has no change to tell, so a slider that reaches further stays where it was put.
    return (shown >= expected || value <= numberIn(panel, box + QStringLiteral(".minimum"))) &&
           (shown <= expected || value >= numberIn(panel, box + QStringLiteral(".maximum")));
}

/// What the off-screen platform says of menus and the lists of combo boxes; it is not about the program.
bool isAboutPlatform(const QString &warning)
{
    return warning.startsWith(QStringLiteral("This plugin does not support"));
}

} // namespace

Promises::Promises(OperatorWindow &itsTest) : test{itsTest}, atStart{panelOf(itsTest.window())}
{
    watchLog();
    QObject::connect(test.child<QComboBox>("selectDeviceComboBox").model(), &QAbstractItemModel::rowsInserted,
                     &context, [this] { scans.push_back(test.simulator.journal().size()); });
}

void Promises::watchLog()
{
    const QTextDocument *const log{test.child<QPlainTextEdit>("logView").document()};
    QObject::connect(log, &QTextDocument::contentsChange, &context, [this] {
        const std::vector<Call> &journal{test.simulator.journal()};
        if (journal.empty() || journal.back().interface != Interface::Device ||
            !isCommand(QString::fromStdString(journal.back().operation))) {
            return;
        }
        const std::size_t place{journal.size() - 1};
        if (sentCommands.empty() || sentCommands.back().place != place) {
            sentCommands.push_back({place, panelOf(test.window())});
        }
    });
}

void Promises::before(const Action &action)
{
    test.simulator.clearJournal();
    test.boxes.takeShown();
    sentCommands.clear();
    scans.clear();
    device.begin();
    asked = askedBy(test, action);
    const QWidget *const focused{test.window().focusWidget()};
    leftBox =
        qobject_cast<const QAbstractSpinBox *>(focused) != nullptr ? sendingControl(focused) : QString{};
    wasOpen = device.session.deviceOpen;
    logLinesBefore = test.child<QPlainTextEdit>("logView").document()->blockCount();
    byTheBook = isByTheBook(action);
    if (byTheBook) {
        shownBefore = panelOf(test.window());
        sessionBefore = device.session;
        sessionBefore.lastCommandOk = test.lastCommandOk();
    }
}

QString Promises::after(const Action &action)
{
    followDevice();
    shownBoxes = test.boxes.takeShown();
    asked += askedInBoxes(action, shownBoxes);
    const Panel panel{panelOf(test.window())};
    const auto firstOf = [](std::initializer_list<QString> findings) {
        const auto found = std::find_if(findings.begin(), findings.end(),
                                        [](const QString &finding) { return !finding.isEmpty(); });
        return found != findings.end() ? *found : QString{};
    };
    return firstOf({checkCalls(), checkLog(action), checkEnabled(panel), checkValues(panel), checkAsked(),
                    checkFinishedEdit(action), checkSent(), compareWithOracle(action)});
}

void Promises::followDevice()
{
    std::size_t place{0};
    auto scan = scans.begin();
    const auto takeScans = [&] {
        for (; scan != scans.end() && *scan <= place; ++scan) {
            device.offerPorts();
        }
    };
    for (const Call &call : test.simulator.journal()) {
        takeScans();
        device.take(call);
        ++place;
    }
    takeScans();
}

QString Promises::checkCalls() const
{
    if (test.simulator.callsWhileNotOpen() != 0) {
        for (const Call &call : test.simulator.journal()) {
            if (textOf(call).startsWith(QStringLiteral("NOT "))) {
                return QStringLiteral("not open: ") + textOf(call);
            }
        }
        return QStringLiteral("not open: a call before the action");
    }
    for (const QString &warning : test.warnings.take()) {
        if (!isAboutPlatform(warning)) {
            return QStringLiteral("warning: ") + warning;
        }
    }
    if (test.simulator.isDeviceOpen() != device.session.deviceOpen) {
        return QStringLiteral("device: it is not %1 as the calls say")
            .arg(device.session.deviceOpen ? QStringLiteral("open") : QStringLiteral("closed"));
    }
    return QTest::currentTestFailed() ? QStringLiteral("box or window: see above") : QString{};
}

QStringList Promises::knownValues(const Action &action) const
{
    QStringList values{action.text, device.port};
    for (const QComboBox *const box : test.window().findChildren<QComboBox *>()) {
        for (int index{0}; index < box->count(); ++index) {
            values.append(box->itemText(index));
        }
    }
    values.removeDuplicates();
    QStringList lines;
    for (const QString &value : qAsConst(values)) {
        lines += value.split(QLatin1Char{'\n'});
    }
    return lines;
}

QString Promises::checkLog(const Action &action)
{
    QStringList logged;
    for (const Call &call : test.simulator.journal()) {
        if (call.interface == Interface::Log) {
            logged += recordIn(call).split(QLatin1Char{'\n'});
        }
    }
    if (logged.isEmpty()) {
        return {};
    }
    const QStringList values{knownValues(action)};
    for (const QString &line : qAsConst(logged)) {
        if (!isLineOfTheProgram(line, values) && !values.contains(line)) {
            return QStringLiteral("log line: ") + line;
        }
    }
    const QTextDocument &shown{*test.child<QPlainTextEdit>("logView").document()};
    // The last block is the empty line behind the text; who clears the log meanwhile sees what came later.
    const int lines{std::min(logged.size(), shown.blockCount() - 1)};
    QTextBlock block{shown.lastBlock()};
    for (int place{1}; place <= lines; ++place) {
        block = block.previous();
        if (block.text() != logged[logged.size() - place]) {
            return QStringLiteral("log view: it shows %1 instead of %2")
                .arg(block.text(), logged[logged.size() - place]);
        }
    }
    return {};
}

QString Promises::checkEnabled(const Panel &panel) const
{
    QMap<QString, bool> expected{
        {QStringLiteral("scanDeviceButton"), device.canScan},
        {QStringLiteral("selectDeviceComboBox"), device.canChoosePort},
        {QStringLiteral("connectDeviceButton"), device.canConnect},
    };
    for (const char *const name : {"paramSection", "disconnectDeviceButton", "resetParamButtonUser",
                                   "readParamButtonUser", "saveParamButtonUser"}) {
        expected[QLatin1String{name}] = device.connected;
    }
    for (const RegionRow &row : regionRows) {
        for (const char *const coordinate : {"X1", "X2", "Y1", "Y2"}) {
            if (row.enable != nullptr) {
                expected[named(row.boxes) + named(coordinate)] =
                    panel.value(named(row.enable) + QStringLiteral(".checked")).toBool();
            }
        }
    }
    const QString suffix{QStringLiteral(".enabled")};
    for (auto state = panel.begin(); state != panel.end(); ++state) {
        if (!state.key().endsWith(suffix)) {
            continue;
        }
        const bool enabled{
            expected.value(state.key().chopped(suffix.size()), atStart.value(state.key(), true).toBool())};
        if (state.value().toBool() != enabled) {
            return QStringLiteral("enabled: %1 is %2").arg(state.key(), state.value().toString());
        }
    }
    return {};
}

QString Promises::checkValues(const Panel &panel) const
{
    for (auto state = panel.begin(); state != panel.end(); ++state) {
        if (!state.key().endsWith(QStringLiteral(".value"))) {
            continue;
        }
        const QString name{state.key().section(QLatin1Char{'.'}, 0, 0)};
        const double value{state.value().toDouble()};
        const double minimum{panel.value(name + QStringLiteral(".minimum")).toDouble()};
        const double maximum{panel.value(name + QStringLiteral(".maximum")).toDouble()};
        if (!(value >= minimum && value <= maximum)) {
            return QStringLiteral("range: %1 is %2").arg(name).arg(value);
        }
    }
    const QWidget *const focused{test.window().focusWidget()};
    for (const Pair &pair : pairs) {
        const QString slider{named(pair.slider)};
        const QString box{named(pair.box)};
        // The form's own values do not fit together, and what is typed pulls its box back when the edit ends.
        const auto isAsAtStart = [&](const QString &name) {
            return panel.value(name + QStringLiteral(".value")) ==
                   atStart.value(name + QStringLiteral(".value"));
        };
        if ((isAsAtStart(slider) && isAsAtStart(box)) ||
            (focused != nullptr && sendingControl(focused) == box)) {
            continue;
        }
        if (!standsAtItsBox(panel, pair)) {
            return QStringLiteral("coupling: %1 stands at %2 beside %3 in its box")
                .arg(slider)
                .arg(numberIn(panel, slider + QStringLiteral(".value")))
                .arg(numberIn(panel, box + QStringLiteral(".value")), 0, 'g', 12);
        }
    }
    for (const QSlider *const slider : test.window().findChildren<QSlider *>()) {
        if (slider->isSliderDown()) {
            return QStringLiteral("slider held: ") + slider->objectName();
        }
    }
    return {};
}

QStringList Promises::sentOperations() const
{
    QStringList operations;
    for (const Call &call : test.simulator.journal()) {
        const QString operation{QString::fromStdString(call.operation)};
        if (call.interface != Interface::Log && isCommand(operation)) {
            operations.append(operation);
        }
    }
    return operations;
}

QString Promises::checkAsked() const
{
    if (asked.anything) {
        return {};
    }
    const QStringList sent{sentOperations()};
    const bool allAsked{std::all_of(sent.begin(), sent.end(), [this](const QString &operation) {
        return asked.operations.contains(operation);
    })};
    return allAsked && sent.size() <= asked.count
               ? QString{}
               : QStringLiteral("not asked for: sent %1, asked for %2 of %3")
                     .arg(sent.join(QLatin1Char{' '}))
                     .arg(asked.count)
                     .arg(asked.operations.join(QLatin1Char{' '}));
}

QString Promises::checkFinishedEdit(const Action &action) const
{
    const bool windowEnds{action.verb == QStringLiteral("close") ||
                          action.verb == QStringLiteral("destroy") || !test.window().isVisible()};
    // A read may switch a region off, with its coordinates.
    if (leftBox.isEmpty() || !wasOpen || windowEnds || (asked.anything && isRegionBox(leftBox))) {
        return {};
    }
    const QWidget *const focused{test.window().focusWidget()};
    const bool isLeft{focused == nullptr || sendingControl(focused) != leftBox};
    const QStringList ofTheBox{askedFrom(leftBox).operations};
    bool closed{false};
    for (const Call &call : test.simulator.journal()) {
        if (ofTheBox.contains(QString::fromStdString(call.operation))) {
            return {};
        }
        closed = closed || call.operation == "closeDevice";
    }
    return isLeft || closed ? QStringLiteral("edit lost: %1 was left and sent nothing").arg(leftBox)
                            : QString{};
}

QString Promises::checkSent() const
{
    for (const Sent &sent : sentCommands) {
        const QString wrong{compareSent(sent)};
        if (!wrong.isEmpty()) {
            return QStringLiteral("value: ") + wrong;
        }
    }
    return {};
}

QString Promises::compareSent(const Sent &sent) const
{
    const std::vector<Call> &journal{test.simulator.journal()};
    const Call &call{journal[sent.place]};
    const QString operation{QString::fromStdString(call.operation)};
    const auto isOn = [&](const char *button) {
        return boolText(sent.panel.value(named(button) + QStringLiteral(".checked")).toBool());
    };
    const auto unless = [&](const QString &promised) {
        return textOf(call).startsWith(promised + QStringLiteral(" -> "))
                   ? QString{}
                   : QStringLiteral("%1 was promised, there came %2").arg(promised, textOf(call));
    };
    for (const ToggleRow &row : toggleRows) {
        if (operation == QStringLiteral("set") + named(row.operation)) {
            return unless(QStringLiteral("%1(%2)").arg(operation, isOn(row.button)));
        }
    }
    if (operation.startsWith(QStringLiteral("setRoi"))) {
        const QStringList arguments{textOf(call).section(QLatin1Char{'('}, 1).split(QStringLiteral(", "))};
        const int number{arguments.value(1).toInt()};
        // Only an edit has a line of its own; what a region sends when it is switched on or off has none. And
        // what raised the box about the order is sent as the operator left it.
        const bool isEdit{sent.place + 1 < journal.size() &&
                          recordIn(journal[sent.place + 1]).startsWith(QStringLiteral("Set ROI "))};
        if (!isEdit || !shownBoxes.isEmpty() || number < 0 || number > 3) {
            return {};
        }
        const QString box{named(regionOf(number).boxes) + operation.right(2)};
        return unless(QStringLiteral("%1(%2, %3, %4, %5, %6)")
                          .arg(operation)
                          .arg(sent.panel.value(box + QStringLiteral(".value")).toInt())
                          .arg(number)
                          .arg(isOn("roi1IncEnable"), isOn("roi0ExcEnable"), isOn("roi1ExcEnable")));
    }

    std::vector<Call> steps;
    // The rate that the camera has is asked for before another one is sent.
    const std::size_t from{operation == QStringLiteral("setFrameRate") && sent.place > 0 ? sent.place - 1
                                                                                         : sent.place};
    for (std::size_t place{from}; place < std::min(sent.place + 2, journal.size()); ++place) {
        steps.push_back(journal[place]);
    }
    Oracle oracle{steps, sent.panel, Session{}};
    if (operation == QStringLiteral("setWarp")) {
        oracle.setWarp();
    } else if (operation == QStringLiteral("setStartingMode")) {
        oracle.setStartingMode();
    } else if (!controlOf(operation).isEmpty()) {
        oracle.send(controlOf(operation));
    } else {
        return {};
    }
    return oracle.divergence();
}

bool Promises::isByTheBook(const Action &action) const
{
    static const QStringList withDevice{
        QStringLiteral("disconnectDevice()"), QStringLiteral("readAllParameters()"),
        QStringLiteral("readParamsExpert()"), QStringLiteral("ResetParamsUser()")};
    const QString shownPort{test.child<QComboBox>("selectDeviceComboBox").currentText()};
    const bool known{
        (action.target == QStringLiteral("connectDevice()") && shownPort == QStringLiteral("SIM1")) ||
        (withDevice.contains(action.target) && device.session.deviceOpen &&
         device.port == QStringLiteral("SIM1"))};
    // A spin box with the focus sends first, and a box may be answered in ways of its own.
    return action.verb == QStringLiteral("invoke") && known &&
           qobject_cast<const QAbstractSpinBox *>(test.window().focusWidget()) == nullptr &&
           action.box != QStringLiteral("window") && !action.box.startsWith(QStringLiteral("within"));
}

QString Promises::compareWithOracle(const Action &action)
{
    if (!byTheBook) {
        return {};
    }
    Oracle oracle{test.simulator.journal(), shownBefore, sessionBefore};
    if (action.target == QStringLiteral("connectDevice()")) {
        oracle.connectDevice();
    } else if (action.target == QStringLiteral("disconnectDevice()")) {
        oracle.disconnectDevice();
    } else if (action.target == QStringLiteral("readAllParameters()")) {
        oracle.readAllParameters();
    } else if (action.target == QStringLiteral("readParamsExpert()")) {
        oracle.readParamsExpert();
    } else {
        oracle.reset();
    }
    return compareAll(oracle);
}

QString Promises::compareAll(Oracle &oracle)
{
    const QString divergence{oracle.divergence()};
    if (!divergence.isEmpty()) {
        return QStringLiteral("oracle: ") + divergence;
    }
    const QStringList unlike{differences(oracle.panel(), panelOf(test.window()))};
    if (!unlike.isEmpty()) {
        return QStringLiteral("oracle: ") + unlike.join(QStringLiteral("; "));
    }
    if (shownBoxes != oracle.boxes()) {
        return QStringLiteral("oracle: the boxes are ") + shownBoxes.join(QStringLiteral(" | "));
    }
    return oracle.session().lastCommandOk == test.lastCommandOk()
               ? QString{}
               : QStringLiteral("oracle: lastCommandOk is wrong");
}

QString Promises::connectsAgain()
{
    test.simulator.clearFaults();
    test.simulator.setPorts({"SIM1"});
    for (const char *const unit : {"camera", "blendUnit"}) {
        test.simulator.set(std::string{unit} + ".identity", 21);
        test.simulator.set(std::string{unit} + ".firmwareVersions.fpga", 8452);
    }
    before({QStringLiteral("invoke"), QStringLiteral("disconnectDevice()")});
    if (QWidget *const focused{test.window().focusWidget()}) {
        focused->clearFocus();
    }
    test.invoke("disconnectDevice");
    test.invoke("scanDevice");
    byTheBook = false;
    QString wrong{after({QStringLiteral("invoke"), QStringLiteral("disconnectDevice()")})};
    if (!wrong.isEmpty()) {
        return wrong;
    }
    test.child<QComboBox>("selectDeviceComboBox").setCurrentText("SIM1");
    const Action connecting{QStringLiteral("invoke"), QStringLiteral("connectDevice()")};
    before(connecting);
    test.invoke("connectDevice");
    QString wrongAgain{after(connecting)};
    if (!wrongAgain.isEmpty()) {
        return wrongAgain;
    }
    return device.connected && byTheBook ? QString{}
                                         : QStringLiteral("connecting again: it does not connect");
}
