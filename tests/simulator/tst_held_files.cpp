// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What may be in the way of the files that the simulator replaces: another program that has one open, which
// only Windows minds, and a folder of that name.
#include "contents.h"
#include "simulatedcamera.h"
#include "testclass.h"
#include "workingdirectory.h"

#include <QByteArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QObject>
#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

#include <chrono>
#include <cstdint>
#include <thread>

namespace
{

#if defined(Q_OS_WIN)
constexpr bool openFilesStay{true};
#else
constexpr bool openFilesStay{false};
#endif

/// A file that the simulator keeps: how it comes to be, and how it is replaced by another content.
struct KeptFile
{
    QString name;
    bool (*create)(const SimulatedCamera &c);
    bool (*replace)(const SimulatedCamera &c);
    QString refusal; ///< Begins the line of the log when it cannot be replaced.
};

bool save(const SimulatedCamera &c, std::uint32_t gamma)
{
    return c.device->setGamma(gamma) && c.device->saveBlendUnitParameters(0);
}

const KeptFile memoryFile{"memory.json", [](const SimulatedCamera &c) { return save(c, 50'000); },
                          [](const SimulatedCamera &c) { return save(c, 60'000); },
                          "The parameters are not saved: "};

const KeptFile pixelFile{"bpr_SN10417.bin",
                         [](const SimulatedCamera &c) { return c.device->readBprTable(4096, 16384, 9); },
                         [](const SimulatedCamera &c) {
                             return c.device->addBadPixel(1, 1) && c.device->writeBprTable(4096, 16384, 8);
                         },
                         "BPR file bpr_SN10417.bin cannot be written in this directory: "};

void addFiles()
{
    QTest::addColumn<const KeptFile *>("file");
    QTest::newRow("memory") << &memoryFile;
    QTest::newRow("bad pixels") << &pixelFile;
}

/// A camera with a memory file, and with its log in a file of the working directory.
class LoggingCamera : public SimulatedCamera
{
public:
    LoggingCamera()
    {
        QFile scenario{"scenario.toml"};
        if (scenario.open(QIODevice::WriteOnly)) {
            scenario.write("memory.file = \"memory.json\"\n");
            scenario.close();
        }
        simulator.loadScenario("./scenario.toml");
        manager = sdk.getDeviceManager();
        device = manager->openDevice("SIM1");
        device->setTarget(cameraTarget);
        qputenv("VELTRIX_SIMULATOR_LOG", QFile::encodeName(QDir::current().filePath("log.txt")));
    }
    ~LoggingCamera()
    {
        // A record for elsewhere closes the log before its folder goes.
        qputenv("VELTRIX_SIMULATOR_LOG", QProcess::nullDevice().toLocal8Bit());
        veltrix_sdk::SDKLogger{veltrix_sdk::severity_trace}.GetILogger() << "closed";
        qunsetenv("VELTRIX_SIMULATOR_LOG");
        simulator.reset();
    }
    LoggingCamera(const LoggingCamera &) = delete;
    LoggingCamera &operator=(const LoggingCamera &) = delete;

    /// The lines of the log, without times.
    static QStringList logged()
    {
        if (!QFile::exists("log.txt")) {
            return {};
        }
        QStringList lines{QString::fromUtf8(contentOf("log.txt")).split('\n')};
        // What stands behind the last line feed.
        lines.removeLast();
        for (QString &line : lines) {
            line = line.section(' ', 1);
        }
        return lines;
    }
};

/// Of the one line that tells of a file that stays, its reason is the system's.
bool tells(const QStringList &logged, const KeptFile &file, const char *hint = "")
{
    const QString known{"warning: " + file.refusal + "the file \"" + file.name + "\" cannot be replaced: "};
    const QRegularExpression line{'^' + QRegularExpression::escape(known) + "[^\\r:;]+" +
                                  QRegularExpression::escape(hint) + '$'};
    return logged.size() == 1 && line.match(logged.first()).hasMatch();
}

} // namespace

Q_DECLARE_METATYPE(const KeptFile *)

class HeldFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void fileHeldForAMomentIsReplaced_data() { addFiles(); }
    void fileHeldForAMomentIsReplaced();
    void fileHeldForGoodStays_data() { addFiles(); }
    void fileHeldForGoodStays();
    void folderInItsPlaceStays_data() { addFiles(); }
    void folderInItsPlaceStays();
};

void HeldFilesTest::fileHeldForAMomentIsReplaced()
{
    QFETCH(const KeptFile *const, file);
    const WorkingDirectory directory;
    const LoggingCamera c;
    QVERIFY(file->create(c));
    const QByteArray before{contentOf(file->name)};
    QVERIFY(before != "no file");

    // On Windows nobody deletes or replaces a file that Qt has open.
    QFile held{file->name};
    QVERIFY(held.open(QIODevice::ReadOnly));
    constexpr std::chrono::milliseconds moment{200};
    QElapsedTimer time;
    time.start();
    std::thread other{[&held, moment] {
        std::this_thread::sleep_for(moment);
        held.close();
    }};
    const bool replaced{file->replace(c)};
    const qint64 taken{time.elapsed()};
    other.join();

    QVERIFY(replaced);
    // Where it was in the way.
    const qint64 shortest{openFilesStay ? moment.count() : 0};
    QVERIFY(taken >= shortest);
    QVERIFY(contentOf(file->name) != before);
    QVERIFY(!QFile::exists(file->name + ".tmp"));
    QCOMPARE(LoggingCamera::logged(), QStringList{});
}

void HeldFilesTest::fileHeldForGoodStays()
{
    QFETCH(const KeptFile *const, file);
    const WorkingDirectory directory;
    const LoggingCamera c;
    QVERIFY(file->create(c));
    const QByteArray before{contentOf(file->name)};

    QFile held{file->name};
    QVERIFY(held.open(QIODevice::ReadOnly));
    QCOMPARE(file->replace(c), !openFilesStay);
    QVERIFY(!QFile::exists(file->name + ".tmp"));
    QCOMPARE(contentOf(file->name) == before, openFilesStay);
    const QStringList logged{LoggingCamera::logged()};
    QVERIFY2(openFilesStay ? tells(logged, *file, "; another program may have it open") : logged.isEmpty(),
             qPrintable(logged.join('\n')));

    // What was to be kept is not lost.
    held.close();
    QVERIFY(file->replace(c));
    QVERIFY(contentOf(file->name) != before);
    QCOMPARE(LoggingCamera::logged(), logged);
}

void HeldFilesTest::folderInItsPlaceStays()
{
    QFETCH(const KeptFile *const, file);
    const WorkingDirectory directory;
    const LoggingCamera c;
    QVERIFY(file->create(c));
    QVERIFY(QFile::remove(file->name));
    QVERIFY(QDir{}.mkpath(file->name + "/inside"));

    QVERIFY(!file->replace(c));
    QVERIFY(QFileInfo{file->name + "/inside"}.isDir());
    QVERIFY(!QFile::exists(file->name + ".tmp"));
    QVERIFY2(tells(LoggingCamera::logged(), *file), qPrintable(LoggingCamera::logged().join('\n')));
}

PILOTEL_TEST_CLASS(HeldFilesTest)
#include "tst_held_files.moc"
