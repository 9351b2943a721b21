// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A session of the monkey: a scenario, a window, and actions that are drawn or given.
#include "session.h"

#include "calltexts.h"
#include "misbehaviour.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QIODevice>
#include <QLatin1Char>
#include <QTest>

#include <limits>
#include <vector>

namespace
{

/// The name that the simulator takes it by. A generated one becomes a file in the working directory.
std::string playable(const QString &scenario)
{
    const QString name{scenario.section(QLatin1Char{' '}, 1)};
    if (!scenario.startsWith(QStringLiteral("generated"))) {
        return name.toStdString();
    }
    QFile file{QDir::current().filePath(QStringLiteral("generated.toml"))};
    if (!file.open(QIODevice::WriteOnly) || file.write(generatedScenario(name.toUInt()).toUtf8()) < 0) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return file.fileName().toStdString();
}

/// Drawing takes half of the time; most sessions do without it.
bool isDrawn(const QString &scenario)
{
    return !scenario.startsWith(QStringLiteral("generated")) || scenario.endsWith(QLatin1Char{'0'});
}

} // namespace

MonkeySession::MonkeySession(const QString &scenario, Reach &itsReach)
    : prepare{[name = playable(scenario)](veltrix_simulator::Simulator &simulator) {
          simulator.loadScenario(name);
      }},
      drawing{isDrawn(scenario) ? OperatorWindow::Drawing::On : OperatorWindow::Drawing::Off}, reach{itsReach}
{
    // Nothing of an earlier session, and no matter how fast the machine is: letters that are typed into a
    // list belong together.
    QGuiApplication::clipboard()->clear();
    QApplication::setKeyboardInputInterval(std::numeric_limits<int>::max());
    stage.emplace(prepare, drawing);
    reach.learn(stage->test.window());
}

QString MonkeySession::endWindow()
{
    stage->test.simulator.clearJournal();
    stage->test.destroyWindow();
    const std::vector<veltrix_simulator::Call> &calls{stage->test.simulator.journal()};
    const QString wrong{calls.empty() ? stage->promises.checkWarnings()
                                      : QStringLiteral("destruction: it calls ") + textOf(calls.front())};
    stage.reset();
    return !wrong.isEmpty() || !QTest::currentTestFailed() ? wrong
                                                           : QStringLiteral("end of a window: see above");
}

QString MonkeySession::act(const Action &action)
{
    stage->hand.comeBack();
    stage->promises.before(action);
    // Without a device most handlers return at once.
    const bool counts{isConnected(stage->test.window())};
    if (stage->hand.act(action) && counts &&
        (action.verb == QStringLiteral("invoke") || action.verb == QStringLiteral("work"))) {
        reach.useByName(action.target);
    }
    QString wrong{stage->promises.after(action)};
    // Destroyed as it is, with the focus where it is, or closed before.
    if (wrong.isEmpty() && (action.verb == QStringLiteral("destroy") || !stage->test.window().isVisible())) {
        wrong = endWindow();
        stage.emplace(prepare, drawing);
    }
    return wrong;
}

QString MonkeySession::end()
{
    stage->hand.comeBack();
    const QString wrong{stage->promises.connectsAgain()};
    return wrong.isEmpty() ? endWindow() : wrong;
}
