// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program's own time for a command of each family, beside the bare call, and for a read, a reset and an
// apply. Its status is 1 when one takes longer than its bar.
#include "operatedwindow.h"
#include "operatorcommands.h"
#include "programwindow.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/device_manager.h"
#include "veltrix_sdk/sdk.h"
#include "veltrix_simulator/simulator.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QString>
#include <QTextStream>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <functional>
#include <limits>
#include <string>
#include <vector>

using veltrix_sdk::IDeviceControl;
using veltrix_simulator::Interface;
using veltrix_simulator::Simulator;

namespace
{

constexpr int actionsInBatch{200};
constexpr int commandBatches{20};
/// More of them: each is over before the processor has got used to it.
constexpr int runsOfSequence{100};
constexpr double longest{std::numeric_limits<double>::max()};
/// What a send may take, in microseconds.
constexpr double barOfSend{25};

struct Sequence
{
    const char *name;
    const char *handler;
    double bar; ///< What it may take, in milliseconds; 0: it has none.
};

constexpr Sequence sequences[]{
    {"a read of both units", "readAllParameters", 1.5},
    {"a read of the expert parameters", "readParamsExpert", 0},
    {"a reset", "ResetParamsUser", 2},
    {"an apply", "ApplyParamsUser", 0},
    {"an apply of the expert parameters", "ApplyParamsExpert", 0},
};

using Action = std::function<void(int turn)>;

/// What the device was called for, without the answers, and without the records of the log.
std::vector<std::string> callsDuring(const std::function<void()> &work)
{
    auto &simulator = Simulator::instance();
    simulator.setJournalEnabled(true);
    simulator.clearJournal();
    work();
    std::vector<std::string> calls;
    for (const veltrix_simulator::Call &call : simulator.journal()) {
        if (call.interface != Interface::Log) {
            calls.push_back(call.text.substr(0, call.text.find(" -> ")));
        }
    }
    simulator.setJournalEnabled(false);
    return calls;
}

/// The calls of both values of a command, the first one after the second one.
std::vector<std::string> callsOf(const Action &action)
{
    action(1);
    return callsDuring([&action] {
        action(0);
        action(1);
    });
}

/// What a command takes, in microseconds, and what it calls.
struct Measured
{
    double own{longest};   ///< With the calls, and nothing drawn.
    double drawn{longest}; ///< With the log's pixels moved as well.
    std::vector<std::string> calls;
};

class Session
{
public:
    explicit Session(MainWindow &itsWindow)
        : window{itsWindow}, operated{itsWindow}, log{operated.child<QPlainTextEdit>("logView")},
          commands{operatorCommands(itsWindow)}
    {
        out.setRealNumberNotation(QTextStream::FixedNotation);
        out.setRealNumberPrecision(2);
        operated.connectDevice();
        rest();
    }

    void compareSequences()
    {
        out << "ms                                    own time       bar   with the log's pixels moved   lines"
               "   calls\n";
        for (const Sequence &sequence : sequences) {
            const Action run{[this, &sequence](int /*turn*/) {
                operated.invoke(sequence.handler);
            }};
            Measured measured;
            for (int done{0}; done < runsOfSequence; ++done) {
                showOtherValues();
                measured.drawn = std::min(measured.drawn, microseconds(run, 1, 1));
                showOtherValues();
                measured.own = std::min(measured.own, microsecondsUndrawn(run, 1, 1));
            }
            const int lines{linesLogged};
            showOtherValues();
            measured.calls = callsDuring([&run] { run(0); });
            tellName(sequence.name);
            tellAndJudge(measured.own / 1000.0, sequence.bar);
            out << qSetFieldWidth(30) << measured.drawn / 1000.0 << qSetFieldWidth(8) << lines
                << measured.calls.size() << qSetFieldWidth(0) << Qt::endl;
        }
    }

    void compareCommands()
    {
        std::vector<Measured> all;
        for (const OperatorCommand &command : commands) {
            Measured measured;
            measured.calls = callsOf(command.operate);
            measured.drawn = microseconds(command.operate, actionsInBatch);
            const bool accepted{command.lines == 0 || window.wasLastCommandOk()};
            if (!accepted || linesLogged != command.lines * actionsInBatch) {
                qFatal("%s: %d lines for %d commands, the last one %s; the figures would mean nothing",
                       command.name, linesLogged, actionsInBatch, accepted ? "accepted" : "refused");
            }
            measured.own = microsecondsUndrawn(command.operate, actionsInBatch);
            all.push_back(measured);
        }

        // Taken from the window, for the calls without it.
        operated.press("disconnectDeviceButton");
        IDeviceControl *const device{
            veltrix_sdk::VeltrixSdk::get_instance()->getDeviceManager()->openDevice("SIM1")};
        if (device == nullptr) {
            qFatal("the device cannot be opened");
        }
        out << "\nus a command                          own time       bar   with the log's pixels moved   bare "
               "call\n";
        for (std::size_t place{0}; place < commands.size(); ++place) {
            const OperatorCommand &command{commands[place]};
            const Action call{[&command, device](int turn) {
                command.call(*device, turn);
            }};
            if (callsOf(call) != all[place].calls) {
                qFatal("%s: the bare calls are others than the program's; the figures would mean nothing",
                       command.name);
            }
            const double bare{microseconds(call, actionsInBatch)};
            tellName(command.name);
            tellAndJudge(all[place].own - bare, command.isOneSend ? barOfSend : 0);
            out << qSetFieldWidth(30) << all[place].drawn - bare << qSetFieldWidth(12) << bare
                << qSetFieldWidth(0) << Qt::endl;
        }
    }

    bool hasKeptItsBars() const { return keptItsBars; }

private:
    static void rest() { QCoreApplication::processEvents(); }

    static double microsecondsSince(std::clock_t start)
    {
        return 1e6 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    }
    /// Microseconds of the processor for an action, in the quickest of several batches; the log is emptied,
    /// and what is left to the event loop is done, between them.
    double microseconds(const Action &action, int actions, int batchCount = commandBatches)
    {
        double quickest{longest};
        for (int batch{0}; batch < batchCount; ++batch) {
            log.clear();
            rest();
            const std::clock_t start{std::clock()};
            for (int turn{0}; turn < actions; ++turn) {
                action(turn);
            }
            quickest = std::min(quickest, microsecondsSince(start) / actions);
            linesLogged = log.blockCount() - 1;
        }
        return quickest;
    }
    /// The same with nothing drawn: the pixels of the log are not moved up, nor is anything marked as to be
    /// painted.
    double microsecondsUndrawn(const Action &action, int actions, int batchCount = commandBatches)
    {
        window.setUpdatesEnabled(false);
        const double quickest{microseconds(action, actions, batchCount)};
        window.setUpdatesEnabled(true);
        return quickest;
    }
    /// So that a sequence has something to change.
    void showOtherValues() const
    {
        for (const OperatorCommand &command : commands) {
            command.operate(0);
            command.operate(1);
        }
    }

    void tellName(const char *name)
    {
        out << Qt::left << qSetFieldWidth(36) << name << Qt::right << qSetFieldWidth(10);
    }
    void tellAndJudge(double figure, double bar)
    {
        out << figure << (bar > 0 ? QString::number(bar) : QStringLiteral("none"));
        if (bar > 0 && figure > bar) {
            keptItsBars = false;
        }
    }

    MainWindow &window;
    OperatedWindow operated;
    QPlainTextEdit &log;
    std::vector<OperatorCommand> commands;
    QTextStream out{stdout};
    int linesLogged{0}; ///< By the latest batch.
    bool keptItsBars{true};
};

} // namespace

int main(int argc, char *argv[])
{
    bringUpProgram();
    const QApplication application{argc, argv};
    ProgramWindow program;
    program.window.show();
    Simulator::instance().setJournalEnabled(false);
    Session session{program.window};
    session.compareSequences();
    session.compareCommands();
    if (!session.hasKeptItsBars()) {
        QTextStream{stdout} << "a bar is not kept" << Qt::endl;
        return 1;
    }
    return 0;
}
