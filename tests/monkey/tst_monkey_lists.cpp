// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the monkey is made of: lists that can be read back and shortened, turns, seeds, scenarios that can be
// played, lines of the log.
#include "action.h"
#include "course.h"
#include "loglines.h"
#include "misbehaviour.h"
#include "reach.h"
#include "sentby.h"
#include "shortest.h"
#include "testclass.h"
#include "veltrix_simulator/simulator.h"

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QLatin1Char>
#include <QObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <exception>
#include <optional>
#include <vector>

namespace
{

/// What a window may repeat in its log.
const LoggedTexts textsOfWindow{
    {QStringLiteral("a port"), QStringLiteral("SIM1")},
    {QStringLiteral("RAW"), QStringLiteral("BT656")},
    {QStringLiteral("9Hz"), QStringLiteral("60Hz")},
    {QStringLiteral("GREYSCALE")},
};

} // namespace

class MonkeyListsTest : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenIsReadBack();
    void whatIsNotNeededIsLeftOut();
    void everyoneHasATurn();
    void theSeedSaysWhoBegins();
    void aSeedIsAWholeNumber_data();
    void aSeedIsAWholeNumber();
    void whatIsNoNumberIsTold();
    void everySeedMakesAScenario();
    void theSameSeedMakesTheSameScenario();
    void linesOfTheProgramAreKnown_data();
    void linesOfTheProgramAreKnown();
    void everyLineOfTheTourIsKnown();
    void everyHandlerThatIsAskedExists();
    void whatIsMoreThanAskedIsTold();
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

void MonkeyListsTest::everyoneHasATurn()
{
    Turns turns{20261122};
    QStringList names;
    for (int number{0}; number < 50; ++number) {
        names.append(QString::number(number));
    }
    QStringList taken;
    for (int number{0}; number < 49; ++number) {
        taken.append(turns.next(names));
    }
    QCOMPARE(taken.removeDuplicates(), 0);
    // Whoever is not among the names waits.
    const QString left{turns.next(names)};
    QVERIFY(!taken.contains(left));
    QCOMPARE(turns.next({left, QStringLiteral("gammaEdit")}), QStringLiteral("gammaEdit"));
}

void MonkeyListsTest::theSeedSaysWhoBegins()
{
    const QStringList &names{handlers()};
    QStringList first;
    for (quint32 seed{0}; seed < static_cast<quint32>(names.size()); ++seed) {
        const QString begins{Turns{seed}.next(names)};
        QCOMPARE(Turns{seed}.next(names), begins);
        first.append(begins);
    }
    // A run from seed to seed begins with each of them once.
    first.sort();
    QStringList all{names};
    all.sort();
    QCOMPARE(first, all);
}

void MonkeyListsTest::aSeedIsAWholeNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<quint32>("number");
    QTest::newRow("zero") << "0" << true << quint32{0};
    QTest::newRow("above the greatest int") << "2147483648" << true << quint32{2147483648};
    QTest::newRow("the greatest") << "4294967295" << true << quint32{4294967295};
    QTest::newRow("one more") << "4294967296" << false << quint32{0};
    QTest::newRow("far more") << "99999999999999999999" << false << quint32{0};
    for (const char *const text : {"", "-1", "+1", " 1", "1 ", "1e3", "0x10", "1.5", "monkey"}) {
        QTest::addRow("'%s'", text) << text << false << quint32{0};
    }
}

void MonkeyListsTest::aSeedIsAWholeNumber()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isNumber);
    QFETCH(const quint32, number);
    const std::optional<quint32> read{plainNumberIn(text)};
    QCOMPARE(read.has_value(), isNumber);
    QCOMPARE(read.value_or(0), number);
}

void MonkeyListsTest::whatIsNoNumberIsTold()
{
    QString wrong;
    QVERIFY(qputenv("PILOTEL_MONKEY_SEED", "4294967295"));
    QCOMPARE(Course::fromEnvironment(wrong).seed, quint32{4294967295});
    QCOMPARE(wrong, QString{});
    QVERIFY(qputenv("PILOTEL_MONKEY_SEED", "monkey"));
    Course::fromEnvironment(wrong);
    QCOMPARE(wrong, QStringLiteral(
                        "PILOTEL_MONKEY_SEED is \"monkey\", and not a whole number from 0 to 4294967295"));
    QVERIFY(qunsetenv("PILOTEL_MONKEY_SEED"));
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

void MonkeyListsTest::linesOfTheProgramAreKnown_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<bool>("known");
    for (const char *const record : {
             "target correctly changed",
             "Set GAMMA value OK",
             "Set GAMMA value KO",
             "Set ROI 0 X1 value OK",
             "Set ROI -1 Y2 value OK",
             "Set ROI X1 value KO",
             "Gamma value = 2.2",
             "Gamma value = 6.1035e-05",
             "Fusion ZOOM factor value = inf",
             "CLHE value = 4.29497e+09",
             "RISC-V version = 1.3.0 Beta2\nFPGA version = 2.1.0.4",
             "RISC-V version = 2.1.4\nFPGA version = 3.0.6 MIPI 60Hz",
             "Correction type = 0\nCorrection gain = 64\nFirst threshold = -30\nSecond threshold = 10",
             "ROI0 exclusive Y2 value = 4294967295",
             "Operating time = 73415 min",
             "Color Lut = GREYSCALE",
             "Color Lut = ",
             "Video output = BT656",
             "Frame rate = 60Hz",
             "Polarity value = 1",
             "MIPI output value = Disabled",
             "BPR table correctly saved to bpr_SN2063.bin.",
             "Unable to add pixel X:639 Y: 479.",
             "ALTERNATIVE SERIAL PORT : a port",
         }) {
        QTest::newRow(QByteArray{record}.replace('\n', " / ").constData())
            << QString::fromLatin1(record) << true;
    }
    for (const char *const record : {
             "",
             "OK",
             "a port",
             "GREYSCALE",
             "60Hz",
             "2.2",
             "target wrongly changed",
             "target correctly changed ",
             "target correctly changed\n",
             " target correctly changed",
             "target correctly changedtarget correctly changed",
             "Set GAMMA value",
             "Set GAMMA value OK KO Disabled",
             "Set GAMMA value OK OK",
             "Set GAMMA value 2.2 OK",
             "Set ROI 0 X1 value KO",
             "Set ROI X1 value OK",
             "Set ROI 0 Z1 value OK",
             "Gamma value = much",
             "Gamma value = ",
             "Gamma value = 2.2 \x01",
             "Gamma value = 2.2 2.2",
             "Serial number = -1",
             "Serial number = 1.5",
             "RISC-V version = 2.1.4",
             "FPGA version = 3.0.6 MIPI 60Hz",
             "First threshold = -30",
             "Operating time = 73415",
             "Polarity value = Enabled",
             "MIPI output value = 1",
             "Color Lut = 60Hz",
             "Frame rate = ",
             "Video output = GREYSCALE",
             "ALTERNATIVE SERIAL PORT : another port",
             "BPR table correctly saved to bpr_SN2063.bin",
             "Unable to connect to SIM1",
             "BPR table not read correctly",
             "ROI 0 X1 must be lower than ROI X2",
             "Vignetting Correction: Activated",
         }) {
        QTest::newRow(QByteArray{record}.replace('\n', " / ").constData())
            << QString::fromLatin1(record) << false;
    }
}

void MonkeyListsTest::linesOfTheProgramAreKnown()
{
    QFETCH(const QString, record);
    QFETCH(const bool, known);
    QCOMPARE(isRecordOfTheProgram(record, textsOfWindow), known);
}

void MonkeyListsTest::everyLineOfTheTourIsKnown()
{
    QFile file{QStringLiteral(TOUR_LOG)};
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines{QString::fromUtf8(file.readAll()).trimmed().split(QLatin1Char{'\n'})};
    QVERIFY(lines.size() > 200);
    for (int place{0}; place < lines.size();) {
        // The versions and the edge correction are written at once.
        const int together{lines[place].startsWith(QStringLiteral("RISC-V"))            ? 2
                           : lines[place].startsWith(QStringLiteral("Correction type")) ? 4
                                                                                        : 1};
        const QString record{lines.mid(place, together).join(QLatin1Char{'\n'})};
        QVERIFY2(isRecordOfTheProgram(record, textsOfWindow), qPrintable(record));
        QVERIFY2(!isRecordOfTheProgram(record + QStringLiteral(" OK"), textsOfWindow), qPrintable(record));
        QVERIFY2(!isRecordOfTheProgram(record.chopped(1), textsOfWindow) ||
                     record.at(record.size() - 2).isDigit(),
                 qPrintable(record));
        place += together;
    }
}

void MonkeyListsTest::everyHandlerThatIsAskedExists()
{
    const QStringList &signatures{handlers()};
    for (const QString &handler : sendingHandlers()) {
        QVERIFY2(!signatures.filter(QRegularExpression{QStringLiteral("^%1\\(").arg(handler)}).isEmpty(),
                 qPrintable(handler));
    }
}

void MonkeyListsTest::whatIsMoreThanAskedIsTold()
{
    Asked asked{askedFromHandler(QStringLiteral("readParamsExpert"), 0)};
    const QString targets[]{QStringLiteral("setTarget(0)"), QStringLiteral("setTarget(1)"),
                            QStringLiteral("setTarget(2)")};
    QCOMPARE(asked.notAsked({targets[0], targets[1], targets[2]}), QString{});
    QCOMPARE(asked.notAsked({targets[2], targets[2]}), targets[2]);
    QCOMPARE(asked.notAsked({targets[1], targets[1], targets[1]}), targets[1]);
    QCOMPARE(asked.notAsked({QStringLiteral("setGamma(65536)")}), QStringLiteral("setGamma(65536)"));
    asked += askedFrom(QStringLiteral("gammaSlider"));
    QCOMPARE(asked.notAsked({QStringLiteral("setGamma(65536)")}), QString{});
    QCOMPARE(asked.notAsked({QStringLiteral("setGamma(1)"), QStringLiteral("setGamma(2)")}),
             QStringLiteral("setGamma(2)"));
    const Asked mode{askedFrom(QStringLiteral("BU_VISIBLE_MODE_PB"))};
    QCOMPARE(mode.notAsked({QStringLiteral("setVideoMode(1)")}), QString{});
    QCOMPARE(mode.notAsked({QStringLiteral("setVideoMode(2)")}), QStringLiteral("setVideoMode(2)"));
    QVERIFY(askedFrom(QStringLiteral("AboutButton")).isEmpty());
}

PILOTEL_TEST_CLASS(MonkeyListsTest)
#include "tst_monkey_lists.moc"
