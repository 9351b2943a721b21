// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What has to hold after each action of the monkey.
#include "promises.h"

#include "calltexts.h"
#include "controls.h"
#include "oracle.h"
#include "panelpromises.h"

#include <QAbstractItemModel>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLatin1Char>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QtGlobal>

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

QStringList itemsOf(const QComboBox &box)
{
    QStringList items;
    for (int index{0}; index < box.count(); ++index) {
        items.append(box.itemText(index));
    }
    return items;
}

} // namespace

Promises::Promises(OperatorWindow &itsTest) : test{itsTest}, atStart{panelOf(itsTest.window())}
{
    const QTextDocument &log{*test.child<QPlainTextEdit>("logView").document()};
    blocks = log.blockCount();
    characters = log.characterCount();
    watchLog();
    watchWindow();
    QObject::connect(test.child<QComboBox>("selectDeviceComboBox").model(), &QAbstractItemModel::rowsInserted,
                     &context, [this] { scans.push_back(test.simulator.journal().size()); });
}

/// Most commands write a line. It comes after the command, so the window shows what was sent.
void Promises::watchLog()
{
    const QTextDocument *const log{test.child<QPlainTextEdit>("logView").document()};
    QObject::connect(log, &QTextDocument::contentsChange, &context, [this, log] {
        lookAt();
        if (log->isEmpty()) {
            logWasCleared = true;
            clearedAt = test.simulator.journal().size();
        }
    });
}

/// These send without a line. The window was connected to them before, so it has sent when this runs.
void Promises::watchWindow()
{
    const auto watch = [this](const char *checkBox) {
        QObject::connect(&test.child<QCheckBox>(checkBox), &QCheckBox::stateChanged, &context,
                         [this] { lookAt(); });
    };
    for (const CorrectionRow &row : correctionRows) {
        watch(row.checkBox);
    }
    for (const RegionRow &row : regionRows) {
        if (row.enable != nullptr) {
            watch(row.enable);
        }
    }
    QObject::connect(&test.child<QComboBox>("BaudRateConnectCB"),
                     QOverload<int>::of(&QComboBox::currentIndexChanged), &context, [this] { lookAt(); });
}

void Promises::lookAt()
{
    const std::vector<Call> &journal{test.simulator.journal()};
    const std::size_t begin{pictures.empty() ? 0 : pictures.back().end};
    if (needPicture(journal, begin)) {
        pictures.push_back({begin, journal.size(), panelOf(test.window())});
    }
}

void Promises::before(const Action &action)
{
    test.simulator.clearJournal();
    test.boxes.takeShown();
    pictures.clear();
    scans.clear();
    logWasCleared = false;
    portsBefore = itemsOf(test.child<QComboBox>("selectDeviceComboBox"));
    device.begin();
    asked = askedBy(test, action);
    boxAnswer = action.box;
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
    lookAt();
    const Panel panel{panelOf(test.window())};
    const auto firstOf = [](std::initializer_list<QString> findings) {
        const auto found = std::find_if(findings.begin(), findings.end(),
                                        [](const QString &finding) { return !finding.isEmpty(); });
        return found != findings.end() ? *found : QString{};
    };
    return firstOf({checkCalls(), checkWarnings(), checkLog(action), wronglyEnabled(panel, atStart, device),
                    wrongValue(panel, atStart, test.window()), checkAsked(), checkFinishedEdit(action),
                    checkSent(action), compareWithOracle(action)});
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

LoggedTexts Promises::loggedTexts() const
{
    return {
        // Without a scan there is none to choose, and none is opened.
        portsBefore + itemsOf(test.child<QComboBox>("selectDeviceComboBox")) + QStringList{QString{}},
        itemsOf(test.child<QComboBox>("VideoOutputCB")),
        itemsOf(test.child<QComboBox>("frameRateCB")),
        itemsOf(test.child<QComboBox>("lutColorEdit")),
    };
}

QString Promises::checkLog(const Action &action)
{
    const QString wrong{checkView()};
    return wrong.isEmpty() ? checkRecords(action) : wrong;
}

QString Promises::checkRecords(const Action &action) const
{
    LoggedTexts texts{loggedTexts()};
    // A script may open a port by its name, and write a line of its own.
    if (action.target.startsWith(QStringLiteral("openCommunication("))) {
        texts.ports.append(action.text);
    }
    bool mayWrite{action.target.startsWith(QStringLiteral("appendLog("))};
    for (const Call &call : test.simulator.journal()) {
        if (call.interface != Interface::Log) {
            continue;
        }
        const QString record{recordIn(call)};
        if (mayWrite && record == action.text) {
            mayWrite = false;
        } else if (!isRecordOfTheProgram(record, texts)) {
            return QStringLiteral("log line: ") + record;
        }
    }
    return {};
}

/// The log view must show what was recorded, as many lines and as many characters, and nothing else.
QString Promises::checkView()
{
    QStringList added;
    const std::vector<Call> &journal{test.simulator.journal()};
    for (std::size_t place{logWasCleared ? clearedAt : 0}; place < journal.size(); ++place) {
        if (journal[place].interface == Interface::Log) {
            added += recordIn(journal[place]).split(QLatin1Char{'\n'});
        }
    }
    // An empty text has one block and one character. Each line has the character that ends it.
    int expectedBlocks{(logWasCleared ? 1 : blocks) + added.size()};
    int expectedCharacters{logWasCleared ? 1 : characters};
    for (const QString &line : qAsConst(added)) {
        expectedCharacters += line.size() + 1;
    }
    const QTextDocument &shown{*test.child<QPlainTextEdit>("logView").document()};
    blocks = shown.blockCount();
    characters = shown.characterCount();
    // The last block is the empty line behind the text.
    QTextBlock block{shown.lastBlock()};
    for (int place{added.size() - 1}; place >= 0; --place) {
        block = block.previous();
        if (block.text() != added[place]) {
            return QStringLiteral("log view: it shows %1 instead of %2").arg(block.text(), added[place]);
        }
    }
    return blocks == expectedBlocks && characters == expectedCharacters
               ? QString{}
               : QStringLiteral(
                     "log view: it has %1 lines and %2 characters instead of %3 and %4, at last %5")
                     .arg(blocks)
                     .arg(characters)
                     .arg(expectedBlocks)
                     .arg(expectedCharacters)
                     .arg(shown.lastBlock().previous().text() + shown.lastBlock().text());
}

/// As calls without their answers.
QStringList Promises::sentCommands() const
{
    QStringList commands;
    for (const Call &call : test.simulator.journal()) {
        if (call.interface != Interface::Log && isCommand(QString::fromStdString(call.operation))) {
            commands.append(textOf(call).section(QStringLiteral(" -> "), 0, 0));
        }
    }
    if (logWasCleared) {
        commands.append(logCleared);
    }
    return commands;
}

QString Promises::checkAsked() const
{
    const QStringList sent{sentCommands()};
    const QString tooMuch{asked.notAsked(sent)};
    return tooMuch.isEmpty() ? QString{}
                             : QStringLiteral("not asked for: %1; sent %2, asked for %3")
                                   .arg(tooMuch, sent.join(QLatin1Char{' '}),
                                        QStringList{asked.commands.keys()}.join(QLatin1Char{' '}));
}

bool Promises::scriptRanInBox(const Action &action) const
{
    return !shownBoxes.isEmpty() && action.box.startsWith(QStringLiteral("within"));
}

QString Promises::checkFinishedEdit(const Action &action) const
{
    const bool windowEnds{action.verb == QStringLiteral("close") ||
                          action.verb == QStringLiteral("destroy") || !test.window().isVisible()};
    // A read may switch a region off, with its coordinates; and a script may disconnect in the box about
    // their order, which is shown before they are sent.
    const bool mayStay{isRegionBox(leftBox) && (asked.reads || scriptRanInBox(action))};
    if (leftBox.isEmpty() || !wasOpen || windowEnds || mayStay) {
        return {};
    }
    const QWidget *const focused{test.window().focusWidget()};
    const bool isLeft{focused == nullptr || sendingControl(focused) != leftBox};
    const Asked ofTheBox{askedFrom(leftBox)};
    bool closed{false};
    for (const Call &call : test.simulator.journal()) {
        if (ofTheBox.has(QString::fromStdString(call.operation))) {
            return {};
        }
        closed = closed || call.operation == "closeDevice";
    }
    return isLeft || closed ? QStringLiteral("edit lost: %1 was left and sent nothing").arg(leftBox)
                            : QString{};
}

QString Promises::checkSent(const Action &action) const
{
    const std::vector<Call> &journal{test.simulator.journal()};
    const Circumstances circumstances{asked, !shownBoxes.isEmpty(), scriptRanInBox(action)};
    for (const Picture &picture : pictures) {
        const QString wrong{wronglySent(picture, journal, circumstances)};
        if (!wrong.isEmpty()) {
            return QStringLiteral("value: ") + wrong;
        }
    }
    const QString wrong{wronglyDeclared(journal, panelOf(test.window()), asked)};
    return wrong.isEmpty() ? QString{} : QStringLiteral("value: ") + wrong;
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
    // The hand answers a box as in its last action.
    Action disconnecting{QStringLiteral("invoke"), QStringLiteral("disconnectDevice()")};
    disconnecting.box = boxAnswer;
    before(disconnecting);
    if (QWidget *const focused{test.window().focusWidget()}) {
        focused->clearFocus();
    }
    test.invoke("disconnectDevice");
    test.invoke("scanDevice");
    byTheBook = false;
    QString wrong{after(disconnecting)};
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
