// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every path of an operator with every call of it going wrong in every way. With PILOTEL_TORTURE_EVERY=5 in
// the environment one fault in five, each path beginning with another.
#include "boxpresser.h"
#include "faults.h"
#include "oracle.h"
#include "paths.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLatin1Char>
#include <QMetaMethod>
#include <QObject>
#include <QPlainTextEdit>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <optional>
#include <vector>

using veltrix_simulator::Call;
using veltrix_simulator::Simulator;

namespace
{

/// Names how many faults there are for one that is tried.
constexpr const char *oneOf{"PILOTEL_TORTURE_EVERY"};

/// What a window did and what it looks like afterwards.
struct Outcome
{
    std::vector<Call> journal;
    QStringList log;
    QStringList boxes;
    Panel panel;
    bool lastCommandOk;
};

/// Does something to the window and looks at what came of it.
Outcome observe(TestWindow &test, const std::function<void(TestWindow &)> &act)
{
    // Not by the mouse: that would take the focus from a spin box whose edit is pending.
    test.child<QAbstractButton>(QStringLiteral("clearLogButton")).click();
    test.simulator.clearJournal();
    act(test);
    const QString text{test.child<QPlainTextEdit>(QStringLiteral("logView")).toPlainText()};
    return {test.simulator.journal(), text.split(QLatin1Char{'\n'}).mid(0, text.count(QLatin1Char{'\n'})),
            test.boxes.takeShown(), panelOf(test.window()), test.lastCommandOk()};
}

/// What differs between what was promised and what came; empty when nothing does.
QString compare(Oracle &oracle, const Outcome &outcome)
{
    QString divergence{oracle.divergence()};
    if (!divergence.isEmpty()) {
        return divergence;
    }
    const QStringList unlike{differences(oracle.panel(), outcome.panel)};
    if (!unlike.isEmpty()) {
        return unlike.join(QStringLiteral("; "));
    }
    if (oracle.log() != outcome.log) {
        return QStringLiteral("the log view reads ") + outcome.log.join(QStringLiteral(" | "));
    }
    if (oracle.boxes() != outcome.boxes) {
        return QStringLiteral("the boxes are ") + outcome.boxes.join(QStringLiteral(" | "));
    }
    return oracle.session().lastCommandOk == outcome.lastCommandOk ? QString{}
                                                                   : QStringLiteral("lastCommandOk is wrong");
}

/// Whether the call answered false, zero or null.
bool isRefused(const Call &call)
{
    const QString answer{QString::fromStdString(call.text).section(QStringLiteral(") -> "), 1)};
    const QStringList nothing{QStringLiteral("false"), QStringLiteral("0"), QStringLiteral("null"),
                              QStringLiteral("\"\""), QStringLiteral("{type=0, gain=0,")};
    return std::any_of(nothing.begin(), nothing.end(),
                       [&](const QString &word) { return answer.startsWith(word); });
}

/// The faults that are tried on the path of that number.
std::vector<Strike> chosenOf(const std::vector<Strike> &strikes, int path)
{
    const int every{qEnvironmentVariableIsSet(oneOf) ? qEnvironmentVariableIntValue(oneOf) : 1};
    if (every < 1) {
        qFatal("%s is no number from 1 up", oneOf);
    }
    std::vector<Strike> chosen;
    int number{path};
    std::copy_if(strikes.begin(), strikes.end(), std::back_inserter(chosen),
                 [&number, every](const Strike & /*strike*/) { return number++ % every == 0; });
    return chosen;
}

/// A window at the start of a path. What it finds wrong is the result of its functions, empty when all is as
/// promised.
class Rehearsal
{
public:
    explicit Rehearsal(const Path &itsPath);

    /// Goes the path, with a fault in its way or without one.
    QString go(const Strike *strike);
    /// Whether the way up to the fault was the one without a fault, and whether the fault came.
    QString compareUpTo(const Strike &strike, const std::vector<Call> &faultless) const;
    /// Disconnects, where that is possible, and connects again.
    QString connectAgain();
    /// What the window called and logged on the path.
    const std::vector<Call> &journal() const { return taken; }

private:
    const Path &path;
    TestWindow test;
    const BoxPresser presser{test.boxes};
    Session session{};
    std::vector<Call> taken;
};

Rehearsal::Rehearsal(const Path &itsPath)
    : path{itsPath}, test{[&](Simulator &simulator) {
                              simulator.set("configuration.expertMode", path.expertMode);
                          },
                          TestWindow::Drawing::Off}
{
    if (path.startsConnected) {
        test.beConnected();
    } else {
        test.click(QStringLiteral("scanDeviceButton"));
        test.child<QComboBox>(QStringLiteral("selectDeviceComboBox")).setCurrentText(QStringLiteral("SIM1"));
    }
    session.managerHeld = path.startsConnected;
    session.deviceOpen = path.startsConnected;
    path.prepare(test);
}

QString Rehearsal::go(const Strike *strike)
{
    // A log that nobody sees does not lay out its lines, which takes half of a run with hundreds of them.
    test.window().setVisible(!path.isRepeatable);
    const Panel shown{panelOf(test.window())};
    session.lastCommandOk = test.lastCommandOk();
    if (strike != nullptr) {
        test.simulator.addFault(strike->fault);
    }
    const Outcome outcome{observe(test, path.act)};
    test.simulator.clearFaults();

    Oracle oracle{outcome.journal, shown, session};
    path.promise(oracle);
    session = oracle.session();
    taken = outcome.journal;
    return compare(oracle, outcome);
}

QString Rehearsal::compareUpTo(const Strike &strike, const std::vector<Call> &faultless) const
{
    if (taken.size() <= strike.step) {
        return QStringLiteral("the path ended before the fault");
    }
    for (std::size_t step{0}; step < strike.step; ++step) {
        if (taken[step].text != faultless[step].text) {
            return QStringLiteral("before the fault came ") + QString::fromStdString(taken[step].text);
        }
    }
    const Call &hit{taken[strike.step]};
    const bool isHit{hit.operation == faultless[strike.step].operation &&
                     (strike.fault.answer ? hit.text != faultless[strike.step].text : isRefused(hit))};
    return isHit ? QString{} : QStringLiteral("the fault did not come");
}

QString Rehearsal::connectAgain()
{
    test.window().show();
    const auto isEnabled = [&](const char *widget) {
        return test.child<QWidget>(widget).isEnabled();
    };
    if (isEnabled("disconnectDeviceButton")) {
        test.click(QStringLiteral("disconnectDeviceButton"));
        session.managerHeld = false;
        session.deviceOpen = false;
    }
    const Panel shown{panelOf(test.window())};
    session.lastCommandOk = test.lastCommandOk();
    const Outcome outcome{
        observe(test, [](TestWindow &window) { window.click(QStringLiteral("connectDeviceButton")); })};
    Oracle oracle{outcome.journal, shown, session};
    oracle.connectDevice();
    const QString wrong{compare(oracle, outcome)};
    if (!wrong.isEmpty()) {
        return QStringLiteral("connecting again: ") + wrong;
    }
    const QString end{path.expertMode ? QStringLiteral("End reading camera expert parameters")
                                      : QStringLiteral("End reading camera parameters")};
    const QString last{outcome.log.value(outcome.log.size() - 2)};
    return isEnabled("paramSection") && last == end ? QString{}
                                                    : QStringLiteral("connecting again ends with ") + last;
}

} // namespace

class TortureTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyPathHasItsRow();
    void sessionsBearEveryFault_data() { addPaths(Group::Sessions); }
    void sessionsBearEveryFault() { goThrough(); }
    void settingsBearEveryFault_data() { addPaths(Group::Settings); }
    void settingsBearEveryFault() { goThrough(); }
    void regionsBearEveryFault_data() { addPaths(Group::Regions); }
    void regionsBearEveryFault() { goThrough(); }
    void expertSettingsBearEveryFault_data() { addPaths(Group::ExpertSettings); }
    void expertSettingsBearEveryFault() { goThrough(); }
    void blendUnitBearsEveryFault_data() { addPaths(Group::BlendUnit); }
    void blendUnitBearsEveryFault() { goThrough(); }
    void badPixelsBearEveryFault_data() { addPaths(Group::BadPixels); }
    void badPixelsBearEveryFault() { goThrough(); }
    void addedLinesBearEveryFault_data() { addPaths(Group::AddedLines); }
    void addedLinesBearEveryFault() { goThrough(); }
    void removedLinesBearEveryFault_data() { addPaths(Group::RemovedLines); }
    void removedLinesBearEveryFault() { goThrough(); }
    void cleanupTestCase();

private:
    void addPaths(Group group);
    void goThrough();

    QTemporaryDir tables; ///< The files of bad pixels are written where the program runs.
    QElapsedTimer clock;
    int runs{0};
    int paths{0};
    /// Where addPaths counts the rows instead of adding them; null while Qt Test collects them.
    std::size_t *countedRows{nullptr};
};

void TortureTest::initTestCase()
{
    QVERIFY(tables.isValid());
    QVERIFY(QDir::setCurrent(tables.path()));
    clock.start();
}

void TortureTest::everyPathHasItsRow()
{
    std::size_t rows{0};
    countedRows = &rows;
    const QMetaObject &type{*metaObject()};
    for (int index{type.methodOffset()}; index < type.methodCount(); ++index) {
        const QMetaMethod method{type.method(index)};
        if (method.name().endsWith("_data")) {
            QVERIFY(method.invoke(this, Qt::DirectConnection));
        }
    }
    countedRows = nullptr;
    QCOMPARE(rows, operatorPaths().size());
}

void TortureTest::addPaths(Group group)
{
    if (countedRows != nullptr) {
        const std::vector<Path> &all{operatorPaths()};
        *countedRows += static_cast<std::size_t>(
            std::count_if(all.begin(), all.end(), [group](const Path &path) { return path.group == group; }));
        return;
    }
    QTest::addColumn<int>("place");
    int place{0};
    for (const Path &path : operatorPaths()) {
        if (path.group == group) {
            QTest::newRow(qPrintable(path.name)) << place;
        }
        ++place;
    }
}

void TortureTest::goThrough()
{
    QFETCH(int, place);
    const Path &path{operatorPaths()[static_cast<std::size_t>(place)]};
    std::vector<Call> faultless;
    {
        Rehearsal rehearsal{path};
        const QString wrong{rehearsal.go(nullptr)};
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
        faultless = rehearsal.journal();
        const QString wrongAfterwards{rehearsal.connectAgain()};
        QVERIFY2(wrongAfterwards.isEmpty(), qPrintable(wrongAfterwards));
    }

    const std::vector<Strike> strikes{chosenOf(strikesOn(faultless), place)};
    std::optional<Rehearsal> rehearsal;
    for (const Strike &strike : strikes) {
        if (!rehearsal || !path.isRepeatable) {
            rehearsal.emplace(path);
        }
        QString wrong{rehearsal->go(&strike)};
        if (wrong.isEmpty()) {
            wrong = rehearsal->compareUpTo(strike, faultless);
        }
        if (wrong.isEmpty() && (!path.isRepeatable || &strike == &strikes.back())) {
            wrong = rehearsal->connectAgain();
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(strike.name + QStringLiteral(": ") + wrong));
    }

    const auto isCall = [](const Call &call) {
        return call.interface != veltrix_simulator::Interface::Log;
    };
    const auto calls = std::count_if(faultless.begin(), faultless.end(), isCall);
    const auto failing = std::count_if(faultless.begin(), faultless.end(), canFail);
    const int pathRuns{static_cast<int>(strikes.size()) + 1};
    runs += pathRuns;
    ++paths;
    qInfo("%d calls, %d of them can fail; %d runs", static_cast<int>(calls), static_cast<int>(failing),
          pathRuns);
}

void TortureTest::cleanupTestCase()
{
    qInfo("%d runs of %d paths in %d s", runs, paths, static_cast<int>(clock.elapsed() / 1000));
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
}

PILOTEL_TEST_CLASS(TortureTest)
#include "tst_torture.moc"
