// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What has to hold after each action of the monkey.
#include "promises.h"

#include "calltexts.h"
#include "loglines.h"
#include "oracle.h"
#include "panelpromises.h"

#include <QAbstractItemModel>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLatin1Char>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

using veltrix_simulator::Call;
using veltrix_simulator::Interface;

namespace
{

bool isRegionBox(const QString &control)
{
    return control.startsWith(QStringLiteral("Roi"));
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
    return firstOf({checkCalls(), checkWarnings(), checkLog(action), wronglyEnabled(panel, atStart, device),
                    wrongValue(panel, atStart, test.window()), checkAsked(), checkFinishedEdit(action),
                    checkSent(), compareWithOracle(action)});
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
    if (test.simulator.isDeviceOpen() != device.session.deviceOpen) {
        return QStringLiteral("device: it is not %1 as the calls say")
            .arg(device.session.deviceOpen ? QStringLiteral("open") : QStringLiteral("closed"));
    }
    return QTest::currentTestFailed() ? QStringLiteral("box or window: see above") : QString{};
}

QString Promises::checkWarnings() const
{
    for (const QString &warning : test.warnings.take()) {
        if (!isAboutPlatform(warning)) {
            return QStringLiteral("warning: ") + warning;
        }
    }
    return {};
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

QString Promises::checkLog(const Action &action) const
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
    for (const SentCommand &sent : sentCommands) {
        const QString wrong{wronglySent(sent, test.simulator.journal(), !shownBoxes.isEmpty())};
        if (!wrong.isEmpty()) {
            return QStringLiteral("value: ") + wrong;
        }
    }
    return {};
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
