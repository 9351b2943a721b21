// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Start-up of the program: what it writes, what it asks the SDK for, and with which SDK it starts.
#include "program.h"
#include "testclass.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSerialPortInfo>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QVersionNumber>

#if defined(Q_OS_WIN)
// What Windows declares comes last.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

namespace
{

QString buildKind()
{
    return QLibraryInfo::isDebugBuild() ? "DEBUG" : "RELEASE";
}

QString banner()
{
    return "Start QT veltrix command application\n"
           "QT Version " +
           QLibraryInfo::version().toString() +
           "\n"
           "QT Built in " +
           buildKind() +
           "\n"
           "Test log in debug\n";
}

/// The program with a window that closes itself; the plugins write to files of a directory that goes away.
class Session
{
public:
    Outcome run(const QStringList &arguments = {}) const
    {
        return ::run(program, QStringList{"-plugin", "closewhenshown"} + arguments, environment,
                     directoryOfRun);
    }

    Outcome runTellingTheJournal() const { return run({"-plugin", "tellthejournal"}); }

    /// From now on the program finds the SDK library of that folder.
    void useLibrary(const QString &folder)
    {
        program = withLibrary(PROGRAM, folder, directory.path(), environment);
    }

    QString fileName(const QString &name) const { return directory.filePath(name); }
    QStringList report() const { return linesOf(fileName("report")); }
    QStringList journal() const { return linesOf(fileName("journal")); }

    QProcessEnvironment environment{programEnvironment()};
    QString directoryOfRun;

    Session()
    {
        environment.insert("PILOTEL_TEST_REPORT", fileName("report"));
        environment.insert("PILOTEL_TEST_JOURNAL", fileName("journal"));
    }

private:
    QTemporaryDir directory;
    QString program{PROGRAM};
};

QStringList scannedPorts(const QStringList &sdkPorts)
{
    QStringList lines;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        lines.append("port " + port.portName());
    }
    for (const QString &port : sdkPorts) {
        lines.append("port " + port);
    }
    return lines.isEmpty() ? QStringList{"box No COM port found!"} : lines;
}

} // namespace

class StartupTest : public QObject
{
    Q_OBJECT

private slots:
    void writesItsBanner();
    void writesEveryLineAtOnce();
    void showsOneMainWindow();
    void registersItsPictures();
    void callsTheSdkInOrder();
    void logsToTheSdk_data();
    void logsToTheSdk();
    void leavesUnknownArgumentsToQt();
    void scansThePortsOfTheHostThenThoseOfTheSimulator();
    void writesNoFileOfItsOwn();
    void startsInAFolderWithAnyLetters();
    void worksWithAnotherLibraryOfTheSameContract();
    void endsWhenItsWindowIsClosedAtOnce();
    void endsWithTheLoadersMessageWithoutALibrary();
    void endsWithTheLoadersMessageWithAnIncompleteLibrary();
#if defined(Q_OS_WIN)
    void scansPortsAboveNine();
    void tellsThatTheLibraryIsNone_data();
    void tellsThatTheLibraryIsNone();
    void tellsThatTheLibraryRefusesToBeLoaded();
    void tellsThatTheLibraryIsHeldByAnotherProgram();
#endif
};

void StartupTest::writesItsBanner()
{
    Session session;
    const Outcome outcome{session.run()};

    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, banner());
}

void StartupTest::writesEveryLineAtOnce()
{
    // A pipe is not a terminal: what is not flushed arrives when the program ends, and this one does not.
    QProcess process;
    process.setProcessEnvironment(programEnvironment());
    process.start(PROGRAM, QStringList{});
    QString output;
    while (output != banner() && process.waitForReadyRead(30000)) {
        output += QString::fromLocal8Bit(process.readAllStandardOutput());
    }
    QCOMPARE(output, banner());
    QCOMPARE(process.state(), QProcess::Running);
    process.kill();
    QVERIFY(process.waitForFinished());
}

void StartupTest::showsOneMainWindow()
{
    Session session;
    // On a small screen the window is within another; here a quarter of the scale gives it room in its first
    // size.
    session.environment.insert("QT_SCALE_FACTOR", "0.25");
    QCOMPARE(session.run().status, 0);
    QCOMPARE(session.report().filter(QRegularExpression{"^window "}),
             QStringList{"window MainWindow Veltrix BU Pilotel"});
}

void StartupTest::registersItsPictures()
{
    Session session;
    QCOMPARE(session.run().status, 0);
    const QStringList resources{
        "resource :/picture/Norvane Tech.png",
        "resource :/picture/VeltrixBU.png",
        "resource :/picture/assets/icons/material/add_material.svg",
        "resource :/picture/assets/icons/material/download_material.svg",
        "resource :/picture/assets/icons/material/remove_material.svg",
        "resource :/picture/assets/icons/material/reset_wrench_material.svg",
        "resource :/picture/assets/icons/material/upload_material.svg",
        "resource :/picture/camera.ico",
        "resource :/picture/connect.png",
        "resource :/picture/disconnect.png",
        "resource :/picture/read.png",
        "resource :/picture/reset.png",
        "resource :/picture/save.png",
        "resource :/picture/search.png",
        "resource :/picture/tool.png",
        "resource :/picture/write.png",
    };
    QCOMPARE(session.report().filter(QRegularExpression{"^resource "}), resources);
}

void StartupTest::callsTheSdkInOrder()
{
    Session session;
    QCOMPARE(session.runTellingTheJournal().status, 0);
    const QStringList journal{
        "get_instance() -> sdk",
        "initialize() -> true",
        "log(0, \"QT Version " + QLibraryInfo::version().toString() + "\")",
        "log(0, \"QT Built in " + buildKind() + "\")",
        "get_instance() -> sdk",
        "initialize() -> true",
        "getConfiguration() -> configuration",
        "isExpertMode() -> true",
        "getDefaultBaudRate() -> 115200",
    };
    QCOMPARE(session.journal(), journal);
}

void StartupTest::logsToTheSdk_data()
{
    QTest::addColumn<bool>("toFile");
    QTest::newRow("to a file") << true;
    QTest::newRow("to standard error") << false;
}

void StartupTest::logsToTheSdk()
{
    QFETCH(bool, toFile);
    Session session;
    session.environment.insert("VELTRIX_SIMULATOR_LOG", toFile ? session.fileName("log") : QString{"-"});
    const Outcome outcome{session.run()};
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, banner());

    const QStringList written{toFile ? linesOf(session.fileName("log")) : outcome.errors.split('\n')};
    const QString time{R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z )"};
    // The simulator has words of its own to say.
    const QStringList records{written.filter(QRegularExpression{time + ".*: QT "})};
    QCOMPARE(records.size(), 2);
    const QString version{QRegularExpression::escape(QLibraryInfo::version().toString())};
    QVERIFY(records.at(0).contains(QRegularExpression{time + "trace: QT Version " + version + "$"}));
    QVERIFY(records.at(1).contains(QRegularExpression{time + "trace: QT Built in " + buildKind() + "$"}));
}

void StartupTest::leavesUnknownArgumentsToQt()
{
    Session session;
    const Outcome outcome{session.run({"-style", "windows", "--nothing-of-ours", "file"})};
    QVERIFY(outcome.exited);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, banner());
}

void StartupTest::scansThePortsOfTheHostThenThoseOfTheSimulator()
{
    Session session;
    session.environment.insert("PILOTEL_TEST_SCAN", "1");
    QCOMPARE(session.run().status, 0);
    QCOMPARE(session.report().filter(QRegularExpression{"^(port|box) "}), scannedPorts({"SIM1"}));
}

void StartupTest::writesNoFileOfItsOwn()
{
    Session session;
    const QTemporaryDir surroundings;
    const QDir inside{surroundings.path()};
    for (const char *const name : {"home", "work", "temporary", "runtime"}) {
        QVERIFY(inside.mkdir(name));
    }
    QVERIFY(QFile::setPermissions(inside.filePath("runtime"),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    for (const char *const home : {"HOME", "USERPROFILE", "APPDATA", "LOCALAPPDATA"}) {
        session.environment.insert(home, inside.filePath("home"));
    }
    for (const char *const temporary : {"TMPDIR", "TEMP", "TMP"}) {
        session.environment.insert(temporary, inside.filePath("temporary"));
    }
    session.environment.insert("XDG_RUNTIME_DIR", inside.filePath("runtime"));
    for (const char *const elsewhere :
         {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
        session.environment.remove(elsewhere);
    }
    session.directoryOfRun = inside.filePath("work");
    session.environment.insert("PILOTEL_TEST_SCAN", "1");
    session.environment.insert("PILOTEL_TEST_SESSION", "1");

    const Outcome outcome{session.run()};

    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 0);
    // It was a session of every kind of work.
    const QStringList report{session.report()};
    for (const char *const line :
         {"line ALTERNATIVE SERIAL PORT : SIM1", "line End reading camera parameters",
          "line End applying camera parameters", "line Blend unit parameters have been saved",
          "line IR mode activated", "line End reading camera expert parameters"}) {
        QVERIFY2(report.contains(line), line);
    }
    QStringList left;
    QDirIterator entries{surroundings.path(),
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories};
    while (entries.hasNext()) {
        left.append(inside.relativeFilePath(entries.next()));
    }
    left.sort();
    const QStringList asBefore{"home", "runtime", "temporary", "work"};
    QCOMPARE(left, asBefore);
}

void StartupTest::startsInAFolderWithAnyLetters()
{
    const QTemporaryDir directory;
    const QDir folder{directory.filePath(QStringLiteral("Wärme und Kälte, тепло 温度"))};
    QVERIFY(folder.mkpath("."));
    const QString program{folder.filePath(QFileInfo{PROGRAM}.fileName())};
    QVERIFY(QFile::copy(PROGRAM, program));
    QVERIFY(QFile::copy(SDK_LIBRARY, folder.filePath(QFileInfo{SDK_LIBRARY}.fileName())));
    QProcessEnvironment environment{programEnvironment()};
    environment.insert("QT_SCALE_FACTOR", "0.25"); // Room for the window's first size.
    environment.insert("PILOTEL_TEST_REPORT", folder.filePath(QStringLiteral("für später")));
    environment.insert("VELTRIX_SIMULATOR_LOG", QStringLiteral("запись 録"));
    const Outcome outcome{run(program, {"-plugin", "closewhenshown"}, environment, folder.path())};

    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, banner());
    QVERIFY(linesOf(folder.filePath(QStringLiteral("für später")))
                .contains("window MainWindow Veltrix BU Pilotel"));
    const QStringList log{linesOf(folder.filePath(QStringLiteral("запись 録")))};
    QCOMPARE(log.filter("trace: QT Version ").size(), 1);
}

void StartupTest::worksWithAnotherLibraryOfTheSameContract()
{
#if defined(Q_OS_WIN)
    QSKIP("There the other library is one of Microsoft's ABI, in a test of its own.");
#endif
    Session session;
    session.useLibrary(SDK_VARIANTS_DIRECTORY "/contract-only");
    session.environment.insert("PILOTEL_TEST_SCAN", "1");
    const Outcome outcome{session.run()};

    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, banner());
    // It knows of no ports of its own.
    QCOMPARE(session.report().filter(QRegularExpression{"^(port|box) "}), scannedPorts({}));
}

void StartupTest::endsWhenItsWindowIsClosedAtOnce()
{
    Session session;
    session.environment.insert("PILOTEL_TEST_CLOSE_EARLY", "1");
    const Outcome outcome{session.run()};

    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, banner());
}

void StartupTest::endsWithTheLoadersMessageWithoutALibrary()
{
    QTemporaryDir directory;
    const QString alone{directory.filePath(QFileInfo{PROGRAM}.fileName())};
    QVERIFY(QFile::copy(PROGRAM, alone));
    const Outcome outcome{run(alone, {}, programEnvironment())};

    QVERIFY(outcome.exited);
    QVERIFY(outcome.status != 0);
#if defined(Q_OS_WIN)
    // The library is loaded by the first call, which follows the first line.
    QCOMPARE(outcome.output, banner().section('\n', 0, 0) + '\n');
    QCOMPARE(outcome.errors,
             "The program cannot start: the camera's library veltrix.sdk.dll was not found. Put it "
             "into the folder " +
                 QDir::toNativeSeparators(directory.path()) + ".\n");
#else
    QCOMPARE(outcome.output, QString{});
    QVERIFY2(outcome.errors.contains("libveltrix.sdk.so"), qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains("No such file or directory"), qPrintable(outcome.errors));
#endif
}

void StartupTest::endsWithTheLoadersMessageWithAnIncompleteLibrary()
{
    Session session;
    session.useLibrary(SDK_VARIANTS_DIRECTORY "/incomplete");
    const Outcome outcome{session.run()};

    QVERIFY(outcome.exited);
    QVERIFY(outcome.status != 0);
#if defined(Q_OS_WIN)
    const char *const lacking{"veltrix.sdk.dll is not a delivery that this program was made for."};
#else
    const char *const lacking{"undefined symbol"};
#endif
    QVERIFY2(outcome.errors.contains(lacking), qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains("GetILogger"), qPrintable(outcome.errors));
    QCOMPARE(session.report(), QStringList{});
}

#if defined(Q_OS_WIN)
void StartupTest::scansPortsAboveNine()
{
    // Where drivers tell Windows of their ports.
    QSettings ports{R"(HKEY_LOCAL_MACHINE\HARDWARE\DEVICEMAP\SERIALCOMM)", QSettings::NativeFormat};
    const QStringList names{"COM9", "COM10", "COM12", "COM256"};
    for (const QString &name : names) {
        ports.setValue("PilotelTest" + name, name);
    }
    ports.sync();
    const bool told{ports.status() == QSettings::NoError};
    Session session;
    session.environment.insert("PILOTEL_TEST_SCAN", "1");
    const Outcome outcome{session.run()};
    const QStringList expected{scannedPorts({"SIM1"})};
    for (const QString &name : names) {
        ports.remove("PilotelTest" + name);
    }
    ports.sync();

    if (!told) {
        QSKIP("It takes an administrator to tell Windows of a port.");
    }
    QCOMPARE(outcome.status, 0);
    QCOMPARE(session.report().filter(QRegularExpression{"^(port|box) "}), expected);
    // As Windows names them, and as the library is asked to open them.
    for (const QString &name : names) {
        QCOMPARE(session.report().count("port " + name), 1);
    }
}

void StartupTest::tellsThatTheLibraryIsNone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray{};
    QTest::newRow("text") << QByteArray{"No library.\n"}.repeated(400);
    QFile library{SDK_LIBRARY};
    QVERIFY(library.open(QIODevice::ReadOnly));
    QTest::newRow("its first page") << library.read(4096);
}

void StartupTest::tellsThatTheLibraryIsNone()
{
    QFETCH(const QByteArray, content);
    const QTemporaryDir folder;
    QFile library{folder.filePath("veltrix.sdk.dll")};
    QVERIFY(library.open(QIODevice::WriteOnly));
    QCOMPARE(library.write(content), qint64{content.size()});
    library.close();
    Session session;
    session.useLibrary(folder.path());
    const Outcome outcome{session.run()};

    QVERIFY(outcome.exited);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(
        outcome.errors,
        QString{
            "The program cannot start: veltrix.sdk.dll is not a delivery that this program was made for. Ask the maker for "
            "the one that belongs to the camera.\n\nIt is no library for 64-bit Windows, or not a whole one.\n"});
}

void StartupTest::tellsThatTheLibraryRefusesToBeLoaded()
{
    Session session;
    session.useLibrary(SDK_VARIANTS_DIRECTORY "/failing");
    const Outcome outcome{session.run()};

    QVERIFY(outcome.exited);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(
        outcome.errors,
        QString{
            "The program cannot start: veltrix.sdk.dll cannot get itself ready. Install it, and what its maker "
            "ships with it, once more.\n"});
}

void StartupTest::tellsThatTheLibraryIsHeldByAnotherProgram()
{
    Session session;
    session.useLibrary(QFileInfo{SDK_LIBRARY}.path());
    const QString library{session.fileName("veltrix.sdk.dll")};
    // Qt opens files so that others may read them; this lets nobody.
    const HANDLE holder{CreateFileW(qUtf16Printable(QDir::toNativeSeparators(library)), GENERIC_READ, 0,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)};
    QVERIFY(holder != INVALID_HANDLE_VALUE);
    const Outcome outcome{session.run()};
    CloseHandle(holder);

    QVERIFY(outcome.exited);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.errors,
             QString{"The program cannot start: veltrix.sdk.dll is held by another program. Close that "
                     "program and start again.\n"});
}
#endif

PILOTEL_TEST_CLASS(StartupTest)
#include "tst_startup.moc"
