// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Names of files and folders with spaces and with letters of several scripts, and paths of more letters than
// Windows once allowed: of the program, its library, its working directory, and of all that the library reads
// and writes.
#include "contents.h"
#include "simulatedcamera.h"
#include "testclass.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <cstdint>

namespace
{

const QString folderName{QStringLiteral("Wärme und Kälte, тепло 温度")};
const QString scenarioName{QStringLiteral("glühend heiß, жара 雪.toml")};
const QString memoryName{QStringLiteral("Gedächtnis, память 記憶.json")};
const QString logName{QStringLiteral("Aufzeichnung für später, запись 録.log")};
const QString traceName{QStringLiteral("Spur für später, след 跡.trace")};

/// The longest path that a program could use on Windows once, with what ends it.
constexpr int longestOnce{260};

/// Makes a folder below another until its path has more letters than that.
QString makeDeepFolder(QString folder)
{
    while (folder.size() <= longestOnce) {
        folder += '/' + folderName;
    }
    return QDir{}.mkpath(folder) ? folder : QString{};
}

/// Makes a folder whose path is that long.
QString makeFolderOfLength(const QString &above, int length)
{
    const QString folder{above + '/' + QString{length - above.size() - 1, 'x'}};
    return QDir{}.mkpath(folder) ? folder : QString{};
}

bool writeScenario(const QString &name, const QString &memoryFile)
{
    const QByteArray content{"port = [{ name = \"COM12\" }]\nmemory.file = \"" + memoryFile.toUtf8() +
                             "\"\n"};
    QFile scenario{name};
    return scenario.open(QIODevice::WriteOnly) && scenario.write(content) == content.size();
}

/// What the scenario player found and told.
struct Playing
{
    QString found;
    QString errors;
};

} // namespace

class FileNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void processPlaysScenario_data();
    void processPlaysScenario();
    void processWritesLogAndTrace();
    void missingFilesAreNamed();
    void parametersAndPixelsAreKept();
    void processUsesLongPaths();
    void longPathsAreKept();

private:
    Playing play(const QString &scenario, const QString &log = {}, const QString &trace = {}) const;

    const QTemporaryDir directory;
    QString folder;
    QString program; ///< A copy in that folder, beside a copy of the library.
};

void FileNamesTest::initTestCase()
{
    folder = directory.filePath(folderName);
    QVERIFY(QDir{}.mkpath(folder));
    program = folder + '/' + QFileInfo{SCENARIO_PLAYER}.fileName();
    QVERIFY(QFile::copy(SCENARIO_PLAYER, program));
    QVERIFY(QFile::copy(SIMULATOR_LIBRARY, folder + '/' + QFileInfo{SIMULATOR_LIBRARY}.fileName()));
    QVERIFY(writeScenario(folder + '/' + scenarioName, memoryName));
}

Playing FileNamesTest::play(const QString &scenario, const QString &log, const QString &trace) const
{
    QProcessEnvironment environment{QProcessEnvironment::systemEnvironment()};
    environment.insert("VELTRIX_SIMULATOR_SCENARIO", scenario);
    environment.insert("VELTRIX_SIMULATOR_LOG", log);
    environment.insert("VELTRIX_SIMULATOR_TRACE", trace);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, QStringList{});
    if (!process.waitForFinished() || process.exitCode() != 0) {
        return {"the scenario player failed: " + process.errorString(), {}};
    }
    return {QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void FileNamesTest::processPlaysScenario_data()
{
    QTest::addColumn<bool>("wholePath");
    QTest::newRow("by its name in the working directory") << false;
    QTest::newRow("by its path") << true;
}

void FileNamesTest::processPlaysScenario()
{
    QFETCH(const bool, wholePath);
    const Playing run{play(wholePath ? folder + '/' + scenarioName : scenarioName)};
    QCOMPARE(run.found, QStringLiteral("expert mode on, COM12 opens"));
    QCOMPARE(run.errors, QString{});
}

void FileNamesTest::processWritesLogAndTrace()
{
    // A scenario that does not exist is told in the log.
    const Playing run{play(memoryName + '/', logName, folder + '/' + traceName)};
    QCOMPARE(run.found, QStringLiteral("expert mode on, SIM1 stays shut"));
    const QByteArray log{contentOf(folder + '/' + logName)};
    QVERIFY2(log.contains(" error: the scenario file \"" + memoryName.toUtf8() + "/\" is no file"),
             log.constData());
    QCOMPARE(log.count('\n'), 1);
    QVERIFY(!log.contains('\r'));
    const QByteArray trace{contentOf(folder + '/' + traceName)};
    QVERIFY2(trace.startsWith(R"({"trace":1,"scenario":"refused",)"), trace.constData());
    QVERIFY2(trace.contains(R"("operation":"openDevice","arguments":["SIM1"])"), trace.constData());
    QVERIFY(!trace.contains('\r'));
}

void FileNamesTest::missingFilesAreNamed()
{
    const Playing run{play("./no " + scenarioName, folderName + '/' + logName)};
    QCOMPARE(run.errors.section('\n', 0, 0),
             "veltrix.sdk: cannot write the log file \"" + folderName + '/' + logName +
                 "\"; set VELTRIX_SIMULATOR_LOG to a file that can be written, or to - for standard error.");
    QVERIFY2(
        run.errors.section('\n', 1).startsWith("veltrix.sdk: the scenario file \"./no " + scenarioName + '"'),
        qPrintable(run.errors));
}

void FileNamesTest::parametersAndPixelsAreKept()
{
    const QString before{QDir::currentPath()};
    QVERIFY(QDir::setCurrent(folder));
    SimulatedCamera c;
    c.simulator.loadScenario(scenarioName.toStdString());
    c.device = c.sdk.getDeviceManager()->openDevice("COM12");
    c.device->setTarget(cameraTarget);
    const bool saved{c.device->setGamma(70'000) && c.device->saveBlendUnitParameters(0)};
    const bool read{c.device->readBprTable(4096, 16384, 9)};
    c.simulator.loadScenario((folder + '/' + scenarioName).toStdString());
    const QString gamma{toText(c.simulator.get("camera.gamma"))};
    c.simulator.reset();
    QDir::setCurrent(before);

    QVERIFY(saved);
    QVERIFY(read);
    QCOMPARE(gamma, QStringLiteral("70000"));
    const QByteArray memory{contentOf(folder + '/' + memoryName)};
    QVERIFY2(memory.contains(R"("gamma")"), memory.constData());
    QVERIFY(!memory.contains('\r'));
    QVERIFY(contentOf(folder + "/bpr_SN10417.bin").startsWith("VLTXBPR\n"));
}

void FileNamesTest::processUsesLongPaths()
{
    const QString deep{makeDeepFolder(folder)};
    QVERIFY(deep.size() > longestOnce);
    QVERIFY(writeScenario(deep + '/' + scenarioName, deep + '/' + memoryName));
    const Playing run{play(deep + '/' + scenarioName, deep + '/' + logName, deep + '/' + traceName)};
    QCOMPARE(run.found, QStringLiteral("expert mode on, COM12 opens"));
    QCOMPARE(run.errors, QString{});
    const QByteArray trace{contentOf(deep + '/' + traceName)};
    QVERIFY2(trace.contains(R"("operation":"openDevice","arguments":["COM12"])"), trace.constData());

    const Playing refused{play(deep + "/no " + scenarioName, deep + '/' + logName)};
    // Of a name so long the beginning is told.
    const QString reason{"the scenario file \"" + folder + '/'};
    QVERIFY2(refused.errors.startsWith("veltrix.sdk: " + reason), qPrintable(refused.errors));
    const QByteArray log{contentOf(deep + '/' + logName)};
    QVERIFY2(log.contains(" error: " + reason.toUtf8()), log.constData());
}

void FileNamesTest::longPathsAreKept()
{
    const QString deep{makeDeepFolder(folder)};
    const QString scenario{deep + '/' + scenarioName};
    const QString memory{deep + '/' + memoryName};
    QVERIFY(writeScenario(scenario, memory));
    // Windows has no longer working directory; the names of its files make the path too long.
    const QString workplace{makeFolderOfLength(folder, 245)};
    const QString pixels{workplace + "/bpr_SN10417.bin"};
    QVERIFY(pixels.size() > longestOnce);
    const QString before{QDir::currentPath()};
    QVERIFY(QDir::setCurrent(workplace));
    SimulatedCamera c;
    c.simulator.loadScenario(scenario.toStdString());
    c.device = c.sdk.getDeviceManager()->openDevice("COM12");
    c.device->setTarget(cameraTarget);
    // The second time each file is replaced.
    QStringList failed;
    for (const std::uint32_t gamma : {50'000U, 70'000U}) {
        if (!c.device->setGamma(gamma) || !c.device->saveBlendUnitParameters(0)) {
            failed.append("save");
        }
        if (!c.device->readBprTable(4096, 16384, 9)) {
            failed.append("read");
        }
    }
    if (!c.device->addBadPixel(1, 1) || !c.device->writeBprTable(4096, 16384, 8)) {
        failed.append("write");
    }
    c.simulator.loadScenario(scenario.toStdString());
    const QString gamma{toText(c.simulator.get("camera.gamma"))};
    c.simulator.reset();
    QDir::setCurrent(before);

    QCOMPARE(failed, QStringList{});
    QCOMPARE(gamma, QStringLiteral("70000"));
    QVERIFY2(contentOf(memory).contains(R"("gamma": 70000)"), contentOf(memory).constData());
    QVERIFY(contentOf(pixels).startsWith("VLTXBPR\n"));
    for (const QString &file : {memory, pixels}) {
        QVERIFY2(!QFile::exists(file + ".tmp"), qPrintable(file));
    }
}

PILOTEL_TEST_CLASS(FileNamesTest)
#include "tst_file_names.moc"
