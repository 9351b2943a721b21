// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A monkey at the real window, in scenarios that misbehave. It sits in a process of its own: what ends that
// process, or holds it up, is a finding as well. A finding is shortened to what still shows it.
//
// PILOTEL_MONKEY_SECONDS, PILOTEL_MONKEY_ACTIONS, PILOTEL_MONKEY_SEED: how far it goes, and where it begins.
// PILOTEL_MONKEY_REPLAY: a list of actions to go through instead.
#include "action.h"
#include "course.h"
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
#include <QMap>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <limits>

namespace
{

/// A run of so many actions must have reached everything.
constexpr quint32 longRun{30'000};
/// In sessions of full length, as those of the two seeds before it are.
constexpr quint32 repeatedSeed{20261124};
/// In milliseconds; a process that does nothing for so long hangs.
constexpr int longestPause{60'000};

const char *const replayVariable{"PILOTEL_MONKEY_REPLAY"};
/// For the processes that the monkey sits in: the file that tells its parent what it does.
const char *const diaryVariable{"PILOTEL_MONKEY_DIARY"};
const QString findingMark{QStringLiteral("# finding: ")};
const QString seedMark{QStringLiteral("# seed of the session: ")};
/// How many actions the sessions before have had.
const QString beforeMark{QStringLiteral("# actions before it: ")};
const QString foundMark{QStringLiteral("# found after: ")};

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

/// What a process of the monkey came to.
struct Outcome
{
    Story story;
    QString seed;    ///< Of the session that it was in; empty for a list.
    int before{0};   ///< Actions of the sessions before.
    QString finding; ///< Empty when all was well.
    QString output;

    /// Findings of the same kind are taken for the same.
    QString kind() const { return finding.section(QLatin1Char{':'}, 0, 0); }
    int ownActions() const { return static_cast<int>(story.actions.size()); }

    /// What stands in the file of the finding behind the actions.
    QStringList remarks() const
    {
        QStringList lines{findingMark + finding};
        if (!seed.isEmpty()) {
            lines.append(seedMark + seed);
            lines.append(foundMark + QStringLiteral("%1 actions, %2 of them in this session")
                                         .arg(before + ownActions())
                                         .arg(ownActions()));
        }
        return lines;
    }
};

/// Runs this program again with these variables: to be at the window for a time, or to go through a list.
Outcome runMonkey(const QString &directory, const QMap<QString, QString> &variables)
{
    const QString diary{directory + QStringLiteral("/diary")};
    QFile::remove(diary);
    QProcessEnvironment environment{QProcessEnvironment::systemEnvironment()};
    environment.insert(QString::fromLatin1(diaryVariable), diary);
    environment.remove(QString::fromLatin1(replayVariable));
    for (auto variable = variables.begin(); variable != variables.end(); ++variable) {
        environment.insert(variable.key(), variable.value());
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
            } else if (line.startsWith(seedMark)) {
                outcome.seed = line.mid(seedMark.size());
            } else if (line.startsWith(beforeMark)) {
                outcome.before = line.midRef(beforeMark.size()).toInt();
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

void writeList(const QString &name, const Story &story, const QStringList &remarks)
{
    QFile file{name};
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("cannot write %s", qPrintable(name));
    }
    file.write((story.toLines() + remarks).join(QLatin1Char{'\n'}).toUtf8() + '\n');
}

/// `by hand 3 of 5 controls that a page shows (left: a b)`
QString told(const char *how, const Reach::Count &count, const char *what)
{
    const QString figures{
        QString::asprintf("%s %d of %d %s", how, count.all - count.left.size(), count.all, what)};
    return count.left.isEmpty()
               ? figures
               : figures + QStringLiteral(" (left: %1)").arg(count.left.join(QLatin1Char{' '}));
}

/// A run that is under way.
struct Run
{
    explicit Run(const Course &itsCourse, Diary &itsDiary) : course{itsCourse}, diary{itsDiary}
    {
        sinceStart.start();
    }

    bool goesOn() const
    {
        return acts < course.actions && sinceStart.elapsed() < qint64{1000} * course.seconds;
    }
    int left() const { return reach.hand().left.size() + reach.script().left.size(); }

    const Course course;
    Diary &diary;
    Reach reach{};
    quint32 acts{0};
    QElapsedTimer sinceStart{};
};

/// Plays the session of a seed; what is not as promised.
QString playSession(Run &run, quint32 seed)
{
    // No session finds a file of another one.
    const OwnDirectory directory;
    const QString scenario{scenarioOf(seed)};
    run.diary.begin(scenario);
    run.diary.add(seedMark + QString::number(seed));
    run.diary.add(beforeMark + QString::number(run.acts));
    MonkeySession session{scenario, run.reach};
    Monkey monkey{seed};
    for (int act{0}; act < actionsIn(scenario) && run.goesOn(); ++act) {
        const Action action{monkey.next(session.window())};
        run.diary.add(action.toLine());
        QString wrong{session.act(action)};
        ++run.acts;
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    return session.end();
}

/// Goes through a list; what is not as promised.
QString playList(Diary &diary, const Story &story)
{
    const OwnDirectory directory;
    Reach reach;
    diary.begin(story.scenario);
    MonkeySession session{story.scenario, reach};
    for (const Action &action : story.actions) {
        diary.add(action.toLine());
        QString wrong{session.act(action)};
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    return session.end();
}

} // namespace

class MonkeyTest : public QObject
{
    Q_OBJECT

private slots:
    void noPromiseIsBroken();
    void aSessionIsRepeatedByItsSeed();

private:
    static void sitAtTheWindow(Diary &diary);
    static void replay(Diary &diary, const QString &list);
    static void tell(Diary &diary, const QString &wrong);
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
    QString wrong;
    Run run{Course::fromEnvironment(wrong), diary};
    quint32 actsToTheLast{0};
    int sessions{0};
    int left{std::numeric_limits<int>::max()};
    for (quint32 seed{run.course.seed}; wrong.isEmpty() && run.goesOn(); ++seed) {
        wrong = playSession(run, seed);
        ++sessions;
        if (run.left() < left) {
            left = run.left();
            actsToTheLast = run.acts;
        }
    }
    const Reach::Count byHand{run.reach.hand()};
    const Reach::Count byName{run.reach.script()};
    qInfo("%u actions in %d sessions, %.0f a second; nothing new was reached after action %u", run.acts,
          sessions, run.acts * 1000.0 / static_cast<double>(std::max<qint64>(run.sinceStart.elapsed(), 1)),
          actsToTheLast);
    qInfo("reached %s, %s", qPrintable(told("by hand", byHand, "controls that a page shows")),
          qPrintable(told("by name", byName, "handlers and other controls, while connected")));
    if (wrong.isEmpty() && run.acts >= longRun && left > 0) {
        wrong = QStringLiteral("left over: so long a run has to reach everything");
    }
    tell(diary, wrong);
    // A monkey that does nothing proves nothing.
    QVERIFY(run.acts > 0);
}

void MonkeyTest::replay(Diary &diary, const QString &list)
{
    const Story story{Story::fromFile(list)};
    QVERIFY2(!story.scenario.isEmpty(), qPrintable(list + QStringLiteral(" is no list")));
    tell(diary, playList(diary, story));
}

void MonkeyTest::tell(Diary &diary, const QString &wrong)
{
    if (!wrong.isEmpty()) {
        diary.add(findingMark + wrong);
        QFAIL(qPrintable(wrong));
    }
}

void MonkeyTest::watch()
{
    QString wrong;
    Course::fromEnvironment(wrong);
    if (!wrong.isEmpty()) {
        QFAIL(qPrintable(wrong));
    }
    // Here, and so on the drive that the sources are on.
    const QTemporaryDir directory{QDir::currentPath() + QStringLiteral("/XXXXXX")};
    QVERIFY(directory.isValid());
    const QString replayName{QString::fromLatin1(replayVariable)};
    const QString replayed{qEnvironmentVariable(replayVariable)};
    const Outcome first{runMonkey(
        directory.path(),
        replayed.isEmpty() ? QMap<QString, QString>{}
                           : QMap<QString, QString>{{replayName, QFileInfo{replayed}.absoluteFilePath()}})};
    if (first.finding.isEmpty()) {
        for (const QString &line : first.output.split(QLatin1Char{'\n'})) {
            if (line.contains(QStringLiteral("actions in")) || line.contains(QStringLiteral("reached by"))) {
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
        writeList(list, {story.scenario, actions}, {});
        ++runs;
        return runMonkey(directory.path(), {{replayName, list}}).kind() == first.kind();
    };
    // One that depends on the time of day is told as it was found.
    if (stillShows(story.actions)) {
        story.actions = shortestOf(story.actions, stillShows, [&] { return sinceStart.elapsed() < 150'000; });
    }
    const QString kept{QFileInfo{QStringLiteral("monkey-finding.txt")}.absoluteFilePath()};
    writeList(kept, story, first.remarks());
    qInfo("%s", qPrintable(first.output.right(6000)));
    QFAIL(qPrintable(
        QStringLiteral("%1\n%2 of %3 actions still show it, found by %4 runs; they stand in %5:\n%6")
            .arg(first.remarks().join(QLatin1Char{'\n'}))
            .arg(story.actions.size())
            .arg(first.ownActions())
            .arg(runs)
            .arg(kept, story.toLines().join(QLatin1Char{'\n'}))));
}

void MonkeyTest::aSessionIsRepeatedByItsSeed()
{
    const QTemporaryDir directory{QDir::currentPath() + QStringLiteral("/XXXXXX")};
    QVERIFY(directory.isValid());
    // The diary has the session that a run ended with.
    const auto lastOf = [&](quint32 seed, int sessions) {
        return runMonkey(directory.path(),
                         {{QStringLiteral("PILOTEL_MONKEY_SEED"), QString::number(seed)},
                          {QStringLiteral("PILOTEL_MONKEY_SECONDS"), QStringLiteral("1000")},
                          {QStringLiteral("PILOTEL_MONKEY_ACTIONS"), QString::number(sessions * 120)}});
    };
    const Outcome alone{lastOf(repeatedSeed, 1)};
    const Outcome afterOthers{lastOf(repeatedSeed - 2, 3)};
    QCOMPARE(alone.finding, QString{});
    QCOMPARE(afterOthers.finding, QString{});
    QCOMPARE(alone.seed, QString::number(repeatedSeed));
    QCOMPARE(afterOthers.seed, alone.seed);
    QCOMPARE(afterOthers.before, 240);
    QCOMPARE(alone.ownActions(), 120);
    QCOMPARE(afterOthers.story.toLines(), alone.story.toLines());
}

PILOTEL_TEST_CLASS(MonkeyTest)
#include "tst_monkey.moc"
