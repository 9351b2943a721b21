// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Starting the program from an icon: with its device library, without it, and with one that is not whole.
#include "program.h"
#include "testclass.h"
#include "virtualscreen.h"

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QProcess>
#include <QRegularExpression>
#include <QSize>
#include <QTemporaryDir>
#include <QTest>

class LauncherTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void startsTheProgram();
    void windowsBelongToTheDesktopEntry_data();
    void windowsBelongToTheDesktopEntry();
    void tellsThatTheLibraryIsMissing();
    void tellsThatTheLibraryIsAnotherOne();
    void tellsThatTheLibraryCannotBeUsed_data();
    void tellsThatTheLibraryCannotBeUsed();
    void tellsThatTheProgramIsMissing();

private:
    QStringList report() const { return linesOf(fileName).filter(QRegularExpression{"^(window|text) "}); }

    QTemporaryDir directory;
    QString fileName;
    QProcessEnvironment environment;
};

void LauncherTest::init()
{
    fileName = directory.filePath(QString{"report of %1"}.arg(QTest::currentTestFunction()));
    environment = programEnvironment();
    environment.insert("PILOTEL_TEST_REPORT", fileName);
    environment.insert("QT_SCALE_FACTOR", "0.25"); // Room for the window's first size.
}

void LauncherTest::startsTheProgram()
{
    const Outcome outcome{run(LAUNCHER, {"-plugin", "closewhenshown"}, environment)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.output.startsWith("Start QT veltrix command application\n"));
    QCOMPARE(report(), QStringList{"window MainWindow Veltrix BU Pilotel"});
}

void LauncherTest::windowsBelongToTheDesktopEntry_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("library");
    QTest::addColumn<QString>("title");
    QTest::newRow("window of the program") << PROGRAM << ""
                                           << "Veltrix BU Pilotel";
    QTest::newRow("window of the program, started by the launcher") << LAUNCHER << ""
                                                                    << "Veltrix BU Pilotel";
    QTest::newRow("box of the launcher") << LAUNCHER << SDK_VARIANTS_DIRECTORY "/incomplete"
                                         << "Pilotel";
}

void LauncherTest::windowsBelongToTheDesktopEntry()
{
    QFETCH(QString, program);
    QFETCH(QString, library);
    QFETCH(QString, title);
    const QStringList entry{linesOf(DESKTOP_ENTRY).filter("StartupWMClass=")};
    QCOMPARE(entry, QStringList{"StartupWMClass=pilotel"});

    const VirtualScreen screen{QSize{1920, 1080}, 40};
    environment.insert("DISPLAY", screen.name());
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("LD_LIBRARY_PATH", library);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, QStringList{});
    QCOMPARE(screen.classOfWindow(title), QString{R"(WM_CLASS(STRING) = "pilotel", "pilotel")"});
    process.terminate();
    QVERIFY(process.waitForFinished());
}

void LauncherTest::tellsThatTheLibraryIsMissing()
{
    const QString alone{directory.filePath("pilotel-start")};
    QVERIFY(QFile::copy(LAUNCHER, alone));
    QVERIFY(QFile::copy(PROGRAM, directory.filePath("pilotel")));
    const Outcome outcome{run(alone, {"-plugin", "closewhenshown"}, environment)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.output, QString{});
    const QStringList box{
        "window QMessageBox Pilotel",
        "text Pilotel cannot start: the camera's library libveltrix.sdk.so was not found. Put it into the folder " +
            directory.path() + '.',
    };
    QCOMPARE(report(), box);
}

void LauncherTest::tellsThatTheLibraryIsAnotherOne()
{
    environment.insert("LD_LIBRARY_PATH", SDK_VARIANTS_DIRECTORY "/incomplete");
    const Outcome outcome{run(LAUNCHER, {"-plugin", "closewhenshown"}, environment)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 1);
    const QStringList box{
        "window QMessageBox Pilotel",
        "text Pilotel cannot start: libveltrix.sdk.so is not a delivery that this program was made for. Ask the maker "
        "for the one that belongs to the camera.",
    };
    QCOMPARE(report(), box);
}

void LauncherTest::tellsThatTheLibraryCannotBeUsed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    const QString notADelivery{
        "text Pilotel cannot start: libveltrix.sdk.so is not a delivery that this program was made for. Ask the maker "
        "for the one that belongs to the camera."};
    QTest::newRow("empty") << QByteArray{} << notADelivery;
    QTest::newRow("text") << QByteArray{"No library.\n"}.repeated(400) << notADelivery;
    const QString unknown{"text Pilotel cannot start: a library that it needs is missing or cannot be used."};
    QFile library{SDK_LIBRARY};
    QVERIFY(library.open(QIODevice::ReadOnly));
    QByteArray whole{library.readAll()};
    // The loader dies of it without a word, so nobody can tell which library it was.
    QTest::newRow("its first page") << whole.left(4096) << unknown;
    QTest::newRow("made for a newer system") << whole.replace("GLIBCXX_3.", "GLIBCXX_9.") << unknown;
}

void LauncherTest::tellsThatTheLibraryCannotBeUsed()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    const QTemporaryDir libraries;
    QFile library{libraries.filePath("libveltrix.sdk.so")};
    QVERIFY(library.open(QIODevice::WriteOnly));
    QCOMPARE(library.write(content), qint64{content.size()});
    library.close();
    environment.insert("LD_LIBRARY_PATH", libraries.path());
    fileName += QString{" with %1"}.arg(QTest::currentDataTag());
    environment.insert("PILOTEL_TEST_REPORT", fileName);

    const Outcome outcome{run(LAUNCHER, {"-plugin", "closewhenshown"}, environment)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 1);
    const QStringList box{"window QMessageBox Pilotel", text};
    QCOMPARE(report(), box);
}

void LauncherTest::tellsThatTheProgramIsMissing()
{
    const QTemporaryDir folder;
    const QString alone{folder.filePath("pilotel-start")};
    QVERIFY(QFile::copy(LAUNCHER, alone));
    const Outcome outcome{run(alone, {"-plugin", "closewhenshown"}, environment)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 1);
    const QStringList box{
        "window QMessageBox Pilotel",
        "text Pilotel cannot start: the program pilotel is not in the folder " + folder.path() +
            ", or may not be run.",
    };
    QCOMPARE(report(), box);
}

PILOTEL_TEST_CLASS(LauncherTest)
#include "tst_launcher.moc"
