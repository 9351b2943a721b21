// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How a process and a test come to their scenario.
#include "simulatedcamera.h"
#include "testclass.h"
#include "unreadablefile.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

namespace
{

/// What is said last of an unknown name.
QString cure()
{
    QStringList names;
    for (const QString &file : QDir{SCENARIOS}.entryList({"*.toml"})) {
        names.append('"' + file.chopped(5) + '"');
    }
    const QString last = names.takeLast();
    return " The simulator brings along " + names.join(", ") + " and " + last +
           "; a file of yours is named by a path that ends in .toml";
}

struct Output
{
    QString found;
    QString errors;
};

/// What the scenario player finds in the directory with VELTRIX_SIMULATOR_SCENARIO set so; null: not set.
Output play(const QString &variable, const QString &directory = QStringLiteral("."), const QString &log = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("VELTRIX_SIMULATOR_SCENARIO"));
    if (!variable.isNull()) {
        environment.insert(QStringLiteral("VELTRIX_SIMULATOR_SCENARIO"), variable);
    }
    environment.insert(QStringLiteral("VELTRIX_SIMULATOR_LOG"), log);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.start(QStringLiteral(SCENARIO_PLAYER), QStringList{});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        return {QStringLiteral("the scenario player failed: ") + process.errorString(),
                QString::fromLocal8Bit(process.readAllStandardError())};
    }
    return {QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

void write(const QString &name, const char *text)
{
    QFile file{name};
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

/// What loadScenario() throws; empty when it does not.
QString refusalOf(const QString &nameOrPath)
{
    try {
        Simulator::instance().loadScenario(nameOrPath.toStdString());
    } catch (const std::invalid_argument &error) {
        return QString::fromLocal8Bit(error.what());
    }
    return {};
}

} // namespace

class ScenarioChoiceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void processPlays_data();
    void processPlays();
    void refusalIsLoggedOnce();
    void shippedOnesArePlayed_data();
    void shippedOnesArePlayed();
    void defaultIsPowerOn();
    void loadedFileIsPlayed();
    void resetIsTheDefault();
    void refusedScenarioIsNamed_data();
    void refusedScenarioIsNamed();
    void refusedScenarioChangesNothing();

private:
    QTemporaryDir directory;
};

void ScenarioChoiceTest::init()
{
    Simulator::instance().reset();
    write(directory.filePath("mine.toml"),
          "configuration.expertMode = false\nport = [{ name = \"COM7\" }]\n");
    write(directory.filePath("forgetful.toml"), "memory.file = \"damaged.json\"\n");
    write(directory.filePath("damaged.json"), "[]");
    write(directory.filePath("wrong.toml"), "seed = 1\nlynk.kind = \"none\"\n");
}

void ScenarioChoiceTest::processPlays_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("errors");
    const auto plays = [](const char *row, const QString &variable, const char *found,
                          const QString &errors = {}) {
        QTest::newRow(row) << variable << QString{found} << errors;
    };
    const char *const healthy{"expert mode on, SIM1 opens"};
    const char *const broken{"expert mode on, SIM1 stays shut"};

    plays("not set", {}, healthy);
    plays("empty", "", healthy);
    plays("default", "default", healthy);
    plays("shipped name", "no-expert-mode", "expert mode off, SIM1 opens");
    plays("no ports", "no-ports", "expert mode on");
    plays("file in the working directory", "mine.toml", "expert mode off, COM7 opens");
    plays("path", directory.filePath("mine.toml"), "expert mode off, COM7 opens");
    plays("wrong file", "wrong.toml", broken,
          "veltrix.sdk: wrong.toml:2:1: \"lynk\" is unknown here; did you mean \"link\"?\n");
    plays("missing file", "./missing", broken,
          R"(veltrix.sdk: the scenario file "./missing" is no file or cannot be read; )"
          "name a file that can be, or a scenario that the simulator brings along, such as \"default\"\n");
    plays(
        "damaged memory", "forgetful.toml", broken,
        "veltrix.sdk: the memory file \"damaged.json\" cannot be used: it is no object; repair it, or delete it to begin with an empty memory.\n");
    plays("unknown name", "no-port", broken,
          R"(veltrix.sdk: there is no scenario "no-port"; did you mean "no-ports"?)" + cure() + '\n');
}

void ScenarioChoiceTest::processPlays()
{
    QFETCH(const QString, variable);
    QFETCH(const QString, found);
    QFETCH(const QString, errors);
    const Output output = play(variable, directory.path());
    QCOMPARE(output.found, found);
    QCOMPARE(output.errors, errors);
    QFile damaged{directory.filePath("damaged.json")};
    QVERIFY(damaged.open(QIODevice::ReadOnly));
    QCOMPARE(damaged.readAll(), QByteArray{"[]"});
}

void ScenarioChoiceTest::refusalIsLoggedOnce()
{
    const QString log = directory.filePath("records.log");
    play("wrong.toml", directory.path(), log);
    QFile file{log};
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString records = QString::fromUtf8(file.readAll());
    QCOMPARE(records.count('\n'), 1);
    QVERIFY2(records.endsWith(" error: wrong.toml:2:1: \"lynk\" is unknown here; did you mean \"link\"?\n"),
             qPrintable(records));
}

void ScenarioChoiceTest::shippedOnesArePlayed_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &file : QDir{SCENARIOS}.entryList({"*.toml"})) {
        QTest::newRow(qPrintable(file)) << file.chopped(5);
    }
}

void ScenarioChoiceTest::shippedOnesArePlayed()
{
    QFETCH(const QString, name);
    QCOMPARE(refusalOf(name), QString{});
    QFile file{QDir{SCENARIOS}.filePath(name + ".toml")};
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    QVERIFY2(lines.at(2).startsWith("# ") && lines.at(2).endsWith('.'), "the third line describes it");
}

void ScenarioChoiceTest::defaultIsPowerOn()
{
    Simulator &simulator = Simulator::instance();
    std::vector<Value> before;
    for (const std::string &key : simulator.keys()) {
        before.push_back(simulator.get(key));
    }
    simulator.loadScenario("default");
    std::size_t place{0};
    for (const std::string &key : simulator.keys()) {
        QVERIFY2(simulator.get(key) == before.at(place++), key.c_str());
    }
}

void ScenarioChoiceTest::loadedFileIsPlayed()
{
    Simulator::instance().loadScenario(directory.filePath("mine.toml").toStdString());
    QVERIFY(Simulator::instance().get("configuration.expertMode") == Value{false});
}

void ScenarioChoiceTest::resetIsTheDefault()
{
    Simulator::instance().loadScenario("no-expert-mode");
    QVERIFY(Simulator::instance().get("configuration.expertMode") == Value{false});
    Simulator::instance().reset();
    QVERIFY(Simulator::instance().get("configuration.expertMode") == Value{true});
}

void ScenarioChoiceTest::refusedScenarioIsNamed_data()
{
    QTest::addColumn<QString>("nameOrPath");
    QTest::addColumn<QString>("message");
    const QString unreadable =
        R"(" is no file or cannot be read; name a file that can be, or a scenario that the simulator brings along, such as "default")";
    const QString wrong = directory.filePath("wrong.toml");
    QTest::newRow("name") << "zzz"
                          << R"(there is no scenario "zzz".)" + cure();
    QTest::newRow("empty name") << ""
                                << R"(there is no scenario "".)" + cure();
    QTest::newRow("path") << "./zzz"
                          << R"(the scenario file "./zzz)" + unreadable;
    QTest::newRow("folder") << "./"
                            << R"(the scenario file "./)" + unreadable;
#ifdef Q_OS_UNIX
    // Nobody writes into it: whoever opens it waits.
    const QString pipe = directory.filePath("pipe.toml");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("pipe") << pipe << "the scenario file \"" + pipe + unreadable;
#endif
#ifdef Q_OS_LINUX
    for (const QString &file : {QStringLiteral("/proc/self/mem"), QString{unreadableFile}}) {
        QTest::addRow("cannot be read: %s", qPrintable(file))
            << file << "the scenario file \"" + file + unreadable;
    }
#endif
    QTest::newRow("file") << wrong << wrong + R"(:2:1: "lynk" is unknown here; did you mean "link"?)";
}

void ScenarioChoiceTest::refusedScenarioIsNamed()
{
    QFETCH(const QString, nameOrPath);
    QFETCH(const QString, message);
    QCOMPARE(refusalOf(nameOrPath), message);
}

void ScenarioChoiceTest::refusedScenarioChangesNothing()
{
    Simulator::instance().loadScenario("no-expert-mode");
    QVERIFY(!refusalOf(directory.filePath("wrong.toml")).isEmpty());
    QVERIFY(Simulator::instance().get("configuration.expertMode") == Value{false});
}

PILOTEL_TEST_CLASS(ScenarioChoiceTest)
#include "tst_scenario_choice.moc"
