// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A monkey at the real window, in scenarios that misbehave. It sits in a process of its own: what ends that
// process, or holds it up, is a finding as well. A finding is shortened to what still shows it.
//
// PILOTEL_MONKEY_SECONDS, PILOTEL_MONKEY_SEED: how long, and where it begins.
// PILOTEL_MONKEY_REPLAY: a list of actions to go through instead.
#include "action.h"
#include "misbehaviour.h"
#include "monkey.h"
#include "owndirectory.h"
#include "reach.h"
#include "session.h"
#include "shortest.h"
#include "testclass.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QLatin1Char>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <optional>

namespace
{

constexpr quint32 firstSeed{20261122};
constexpr int actionsInASession{120};
constexpr qint64 longestSession{10'000};
/// In milliseconds; a process that does nothing for so long hangs.
constexpr int longestPause{60'000};

const char *const secondsVariable{"PILOTEL_MONKEY_SECONDS"};
const char *const seedVariable{"PILOTEL_MONKEY_SEED"};
const char *const replayVariable{"PILOTEL_MONKEY_REPLAY"};
/// For the processes that the monkey sits in: the file that tells its parent what it does.
const char *const diaryVariable{"PILOTEL_MONKEY_DIARY"};
const QString findingMark{QStringLiteral("# finding: ")};
const QString sessionMark{QStringLiteral("# session: ")};

int numberFrom(const char *variable, int otherwise)
{
    bool given{false};
    const int number{qEnvironmentVariableIntValue(variable, &given)};
    return given ? number : otherwise;
}

/// What the monkey does, line by line before it does it, so that it stands there when the process ends.
class Diary
{
public:
    explicit Diary(const QString &name) : file{name}
    {
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            qFatal("cannot write %s", qPrintable(name));
        }
    }

    /// Forgets the session before.
    void begin(const QString &scenario)
    {
        file.resize(0);
        file.seek(0);
        add(scenario);
    }
    void add(const QString &line) { file.write(line.toUtf8() + '\n'); }

private:
    QFile file;
};

QString scenarioOf(quint32 seed, bool isLong)
{
    if (seed % 3 != 0) {
        return QStringLiteral("generated %1").arg(seed);
    }
    QStringList names{shippedScenarios()};
    if (!isLong) {
        // A read takes seconds there.
        names.removeAll(QStringLiteral("slow-link"));
    }
    return QStringLiteral("shipped ") + names.at(static_cast<int>(seed / 3) % names.size());
}

/// What a process of the monkey came to.
struct Outcome
{
    Story story;
    QString session; ///< Where it was; empty for a list.
    QString finding; ///< Empty when all was well.
    QString output;

    /// Findings of the same kind are taken for the same.
    QString kind() const { return finding.section(QLatin1Char{':'}, 0, 0); }
    /// The finding, and where it came.
    QString told() const
    {
        return session.isEmpty() ? finding
                                 : QStringLiteral("%1 (%2 and %3 in its own)")
                                       .arg(finding, session)
                                       .arg(story.actions.size());
    }
};

/// Runs this program again: to be at the window for a time, or to go through a list.
Outcome runMonkey(const QString &directory, const QString &listToReplay)
{
    const QString diary{directory + QStringLiteral("/diary")};
    QFile::remove(diary);
    QProcessEnvironment environment{QProcessEnvironment::systemEnvironment()};
    environment.insert(QString::fromLatin1(diaryVariable), diary);
    environment.remove(QString::fromLatin1(replayVariable));
    if (!listToReplay.isEmpty()) {
        environment.insert(QString::fromLatin1(replayVariable), listToReplay);
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("tst_monkey"), QStringLiteral("-nocrashhandler"),
                   QStringLiteral("noPromiseIsBroken")});
    Outcome outcome;
    QByteArray output;
    QElapsedTimer sinceProgress;
    sinceProgress.start();
    qint64 length{0};
    bool hangs{false};
    while (process.state() != QProcess::NotRunning) {
        process.waitForFinished(200);
        output += process.readAll();
        const qint64 nowLong{QFileInfo{diary}.size()};
        if (nowLong != length) {
            length = nowLong;
            sinceProgress.start();
        }
        if (sinceProgress.elapsed() > longestPause && !hangs) {
            hangs = true;
            process.kill();
        }
    }
    outcome.output = QString::fromUtf8(output + process.readAll());
    outcome.story = Story::fromFile(diary);
    QFile file{diary};
    if (file.open(QIODevice::ReadOnly)) {
        for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char{'\n'})) {
            if (line.startsWith(findingMark)) {
                outcome.finding = line.mid(findingMark.size());
            } else if (line.startsWith(sessionMark)) {
                outcome.session = line.mid(sessionMark.size());
            }
        }
    }
    if (hangs) {
        outcome.finding = QStringLiteral("it hangs: for more than a minute");
    } else if (outcome.finding.isEmpty() &&
               (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)) {
        outcome.finding = QStringLiteral("the process ends: with %1").arg(process.exitCode());
    }
    return outcome;
}

void writeList(const QString &name, const Story &story, const QString &finding)
{
    QFile file{name};
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("cannot write %s", qPrintable(name));
    }
    file.write(
        (story.toLines().join(QLatin1Char{'\n'}) + QLatin1Char{'\n'} + findingMark + finding).toUtf8());
    file.write("\n");
}

} // namespace

class MonkeyTest : public QObject
{
    Q_OBJECT

private slots:
    void noPromiseIsBroken();

private:
    static void sitAtTheWindow(Diary &diary);
    static void replay(Diary &diary, const QString &list);
    static void watch();
};

void MonkeyTest::noPromiseIsBroken()
{
    const QString diaryName{qEnvironmentVariable(diaryVariable)};
    if (diaryName.isEmpty()) {
        watch();
        return;
    }
    Diary diary{diaryName};
    const QString list{qEnvironmentVariable(replayVariable)};
    if (list.isEmpty()) {
        sitAtTheWindow(diary);
    } else {
        replay(diary, list);
    }
}

void MonkeyTest::sitAtTheWindow(Diary &diary)
{
    const int seconds{numberFrom(secondsVariable, 20)};
    const bool isLong{seconds > 60};
    // Left to itself it does the same on every machine, unless one is too slow for it.
    const int mostActs{qEnvironmentVariableIsSet(secondsVariable) ? std::numeric_limits<int>::max() : 400};
    const auto seedOfRun = static_cast<quint32>(numberFrom(seedVariable, firstSeed));
    const OwnDirectory directory;
    Reach reach;
    QStringList all;
    int acts{0};
    int sessions{0};
    QElapsedTimer sinceStart;
    sinceStart.start();
    for (quint32 seed{seedOfRun}; sinceStart.elapsed() < seconds * qint64{1000} && acts < mostActs; ++seed) {
        const QString scenario{scenarioOf(seed, isLong)};
        diary.begin(scenario);
        diary.add(sessionMark +
                  QStringLiteral("seed %1 of a run from seed %2, after %3 actions of earlier sessions")
                      .arg(seed)
                      .arg(seedOfRun)
                      .arg(acts));
        MonkeySession session{scenario, reach};
        Monkey monkey{seed, reach};
        QElapsedTimer inSession;
        inSession.start();
        all = namesOf(controlsOf(session.window().window())) + handlers();
        for (int act{0}; act < actionsInASession && inSession.elapsed() < longestSession &&
                         sinceStart.elapsed() < seconds * qint64{1000} && acts < mostActs;
             ++act) {
            const Action action{monkey.next(session.window())};
            diary.add(action.toLine());
            const QString wrong{session.act(action)};
            ++acts;
            if (!wrong.isEmpty()) {
                diary.add(findingMark + wrong);
                QFAIL(qPrintable(wrong));
            }
        }
        const QString wrong{session.end()};
        if (!wrong.isEmpty()) {
            diary.add(findingMark + wrong);
            QFAIL(qPrintable(wrong));
        }
        ++sessions;
    }
    const QStringList left{reach.leftOver(all)};
    qInfo("%d actions in %d sessions, %.0f a second; %d of %d controls and handlers not reached%s%s", acts,
          sessions, acts * 1000.0 / static_cast<double>(sinceStart.elapsed()), left.size(), all.size(),
          left.isEmpty() ? "" : ": ", qPrintable(left.join(QLatin1Char{' '})));
    // A monkey that reaches nothing proves nothing.
    QVERIFY(acts > 20);
    QVERIFY2(!isLong || seconds < 300 || left.isEmpty(), qPrintable(left.join(QLatin1Char{' '})));
}

void MonkeyTest::replay(Diary &diary, const QString &list)
{
    const Story story{Story::fromFile(list)};
    QVERIFY2(!story.scenario.isEmpty(), qPrintable(list + QStringLiteral(" is no list")));
    const OwnDirectory directory;
    Reach reach;
    diary.begin(story.scenario);
    MonkeySession session{story.scenario, reach};
    for (const Action &action : story.actions) {
        diary.add(action.toLine());
        const QString wrong{session.act(action)};
        if (!wrong.isEmpty()) {
            diary.add(findingMark + wrong);
            QFAIL(qPrintable(wrong));
        }
    }
    const QString wrong{session.end()};
    if (!wrong.isEmpty()) {
        diary.add(findingMark + wrong);
        QFAIL(qPrintable(wrong));
    }
}

void MonkeyTest::watch()
{
    // Here, and so on the drive that the sources are on.
    const QTemporaryDir directory{QDir::currentPath() + QStringLiteral("/XXXXXX")};
    QVERIFY(directory.isValid());
    const QString replayed{qEnvironmentVariable(replayVariable)};
    const Outcome first{
        runMonkey(directory.path(), replayed.isEmpty() ? QString{} : QFileInfo{replayed}.absoluteFilePath())};
    if (first.finding.isEmpty()) {
        for (const QString &line : first.output.split(QLatin1Char{'\n'})) {
            if (line.contains(QStringLiteral("actions in"))) {
                qInfo("%s", qPrintable(line.section(QStringLiteral(") "), 1)));
            }
        }
        return;
    }
    const QString list{directory.path() + QStringLiteral("/list")};
    QElapsedTimer sinceStart;
    sinceStart.start();
    Story story{first.story};
    int runs{0};
    const auto stillShows = [&](const std::vector<Action> &actions) {
        writeList(list, {story.scenario, actions}, first.finding);
        ++runs;
        return runMonkey(directory.path(), list).kind() == first.kind();
    };
    // One that depends on the time of day is told as it was found.
    if (stillShows(story.actions)) {
        story.actions = shortestOf(story.actions, stillShows, [&] { return sinceStart.elapsed() < 150'000; });
    }
    const QString kept{QFileInfo{QStringLiteral("monkey-finding.txt")}.absoluteFilePath()};
    writeList(kept, story, first.told());
    qInfo("%s", qPrintable(first.output.right(6000)));
    QFAIL(qPrintable(
        QStringLiteral("%1\n%2 of %3 actions still show it, found by %4 runs; they stand in %5:\n%6")
            .arg(first.told())
            .arg(story.actions.size())
            .arg(first.story.actions.size())
            .arg(runs)
            .arg(kept, story.toLines().join(QLatin1Char{'\n'}))));
}

PILOTEL_TEST_CLASS(MonkeyTest)
#include "tst_monkey.moc"
