// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the monkey is made of: lists that can be read back and shortened, what was reached, scenarios that can
// be played, lines of the log.
#include "action.h"
#include "loglines.h"
#include "misbehaviour.h"
#include "reach.h"
#include "shortest.h"
#include "testclass.h"
#include "veltrix_simulator/simulator.h"

#include <QFile>
#include <QIODevice>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <exception>
#include <vector>

class MonkeyListsTest : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenIsReadBack();
    void whatIsNotNeededIsLeftOut();
    void whatWasReachedLeastIsTold();
    void everySeedMakesAScenario();
    void theSameSeedMakesTheSameScenario();
    void linesOfTheProgramAreKnown();
};

void MonkeyListsTest::whatIsWrittenIsReadBack()
{
    std::vector<Action> actions;
    for (const QString &text : oddTexts()) {
        actions.push_back({QStringLiteral("type"), QStringLiteral("- %"), 0.25, 0.75, text,
                           QStringLiteral("within disconnectDevice()")});
    }
    actions.push_back({QStringLiteral("type"), {}, 0, 1, QStringLiteral("-"), {}});
    const Story story{QStringLiteral("shipped default"), actions};
    QStringList lines{story.toLines()};
    lines.append(QStringLiteral("# a remark"));
    const Story read{Story::fromLines(lines)};
    QCOMPARE(read.scenario, story.scenario);
    QCOMPARE(read.toLines(), story.toLines());
    for (std::size_t place{0}; place < actions.size(); ++place) {
        QCOMPARE(read.actions[place].text, actions[place].text);
        QCOMPARE(read.actions[place].target, actions[place].target);
        QCOMPARE(read.actions[place].box, actions[place].box);
    }
}

void MonkeyListsTest::whatIsNotNeededIsLeftOut()
{
    std::vector<Action> actions;
    for (int place{0}; place < 100; ++place) {
        actions.push_back({QString::number(place)});
    }
    const auto has = [](const std::vector<Action> &list, const char *verb) {
        return std::any_of(list.begin(), list.end(),
                           [&](const Action &action) { return action.verb == QLatin1String{verb}; });
    };
    const auto stillShows = [&](const std::vector<Action> &list) {
        return has(list, "3") && has(list, "50") && has(list, "99");
    };
    const std::vector<Action> shortest{shortestOf(actions, stillShows)};
    QCOMPARE(shortest.size(), std::size_t{3});
    QVERIFY(stillShows(shortest));
    const std::vector<Action> nothing{
        shortestOf(actions, [](const std::vector<Action> & /*list*/) { return true; })};
    QVERIFY(nothing.empty());
}

void MonkeyListsTest::whatWasReachedLeastIsTold()
{
    Reach reach;
    const QStringList names{"scanDevice()", "gammaEdit", "clheEdit"};
    QCOMPARE(reach.leastReached(names), names);
    reach.use("scanDevice()");
    reach.use("scanDevice()");
    reach.use("clheEdit");
    QCOMPARE(reach.leastReached(names), QStringList{"gammaEdit"});
    QCOMPARE(reach.leftOver(names), QStringList{"gammaEdit"});
    reach.use("gammaEdit");
    QCOMPARE(reach.leastReached(names), (QStringList{"gammaEdit", "clheEdit"}));
    QCOMPARE(reach.leftOver(names), QStringList{});
}

void MonkeyListsTest::everySeedMakesAScenario()
{
    const QTemporaryDir directory;
    const QString name{directory.filePath("scenario.toml")};
    for (quint32 seed{0}; seed < 500; ++seed) {
        QFile file{name};
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString text{generatedScenario(seed)};
        file.write(text.toUtf8());
        file.close();
        try {
            veltrix_simulator::Simulator::instance().loadScenario(name.toStdString());
        } catch (const std::exception &error) {
            QFAIL(qPrintable(QStringLiteral("seed %1: %2\n%3").arg(seed).arg(error.what(), text)));
        }
    }
    veltrix_simulator::Simulator::instance().reset();
    QVERIFY(shippedScenarios().size() > 10);
}

void MonkeyListsTest::theSameSeedMakesTheSameScenario()
{
    QCOMPARE(generatedScenario(4711), generatedScenario(4711));
    QVERIFY(generatedScenario(4711) != generatedScenario(4712));
}

void MonkeyListsTest::linesOfTheProgramAreKnown()
{
    const QStringList port{QStringLiteral("a port")};
    for (const char *const line :
         {"target correctly changed", "Set GAMMA value KO", "Gamma value = 2.2", "RISC-V version = 2.1.4",
          "FPGA version = 3.0.6 MIPI 60Hz", "Color Lut = a port",
          "BPR table correctly saved to bpr_SN2063.bin.", "First threshold = -30",
          "ROI0 exclusive Y2 value = 4294967295", "Operating time = 73415 min"}) {
        QVERIFY2(isLineOfTheProgram(QString::fromLatin1(line), port), line);
    }
    for (const char *const line : {"", "target wrongly changed", "Gamma value = much", "2.2", "a port",
                                   "Gamma value = 2.2 \x01", "Color Lut = another port"}) {
        QVERIFY2(!isLineOfTheProgram(QString::fromLatin1(line), port), line);
    }
}

PILOTEL_TEST_CLASS(MonkeyListsTest)
#include "tst_monkey_lists.moc"
