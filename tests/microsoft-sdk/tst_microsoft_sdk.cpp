// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The same programs with a library of Microsoft's ABI as with the simulated SDK.
#include "testclass.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

namespace
{

struct Result
{
    int exitCode;
    QString output;
};

/// Runs the program of that folder, which finds the library that lies beside it.
Result run(const QString &folder, const QString &program, const QStringList &arguments,
           const QString &recording = {})
{
    QProcess process;
    QProcessEnvironment environment{QProcessEnvironment::systemEnvironment()};
    environment.insert(QStringLiteral("PILOTEL_RECORD"), recording);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(folder + QLatin1Char{'/'} + program + QStringLiteral(".exe"), arguments);
    if (!process.waitForFinished(120'000)) {
        return {-1, process.errorString()};
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAll())};
}

/// The lines of the checks, without the times of the operations.
QStringList checksIn(const QString &output)
{
    return output.split(QLatin1Char{'\n'})
        .filter(QRegularExpression{QStringLiteral("^(ok|not ok|skip|[0-9]+ checks)")});
}

QByteArray contentOf(const QString &name)
{
    QFile file{name};
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray{};
}

/// The lines of a recording without their times.
QStringList callsIn(const QString &name)
{
    const QRegularExpression times{QStringLiteral("\"time\":\"[^\"]*\"(,\"microseconds\":\\d+,)?")};
    return QString::fromUtf8(contentOf(name)).remove(times).split(QLatin1Char{'\n'});
}

QByteArray sumOf(const QString &name)
{
    return QCryptographicHash::hash(contentOf(name), QCryptographicHash::Sha256).toHex();
}

} // namespace

class MicrosoftSdkTest : public QObject
{
    Q_OBJECT

private slots:
    void libraryIsAnotherOne();
    void programsAreTheSame_data();
    void programsAreTheSame();
    void everyCheckPasses();
    void tourIsTheSame();
    void recordingIsTheSame();
    void missingLibraryOfTheMakersIsTold();
};

void MicrosoftSdkTest::libraryIsAnotherOne()
{
    const QString library{QStringLiteral("/veltrix.sdk.dll")};
    QVERIFY(!contentOf(MICROSOFT_FOLDER + library).isEmpty());
    QVERIFY(sumOf(MICROSOFT_FOLDER + library) != sumOf(SIMULATED_FOLDER + library));
}

void MicrosoftSdkTest::programsAreTheSame_data()
{
    QTest::addColumn<QString>("program");
    for (const char *const program : {"pilotel", "pilotel-sdk-check", "pilotel-tour"}) {
        QTest::newRow(program) << QString{program};
    }
}

void MicrosoftSdkTest::programsAreTheSame()
{
    QFETCH(const QString, program);
    const QString file{QLatin1Char{'/'} + program + QStringLiteral(".exe")};
    QVERIFY(!contentOf(MICROSOFT_FOLDER + file).isEmpty());
    QCOMPARE(sumOf(MICROSOFT_FOLDER + file), sumOf(SIMULATED_FOLDER + file));
}

void MicrosoftSdkTest::everyCheckPasses()
{
    const QStringList arguments{QStringLiteral("--port"), QStringLiteral("SIM1"), QStringLiteral("--write")};
    const Result simulated{run(SIMULATED_FOLDER, QStringLiteral("pilotel-sdk-check"), arguments)};
    const Result microsoft{run(MICROSOFT_FOLDER, QStringLiteral("pilotel-sdk-check"), arguments)};
    QVERIFY2(microsoft.exitCode == 0, qPrintable(microsoft.output));
    const QStringList checks{checksIn(microsoft.output)};
    QCOMPARE(checks, checksIn(simulated.output));
    QCOMPARE(checks.last(), QStringLiteral("257 checks: 257 ok, 0 not ok, 0 skipped"));
    QCOMPARE(checks.filter(QRegularExpression{QStringLiteral("^ok ")}).size(), 257);
}

void MicrosoftSdkTest::tourIsTheSame()
{
    const QString name{QDir::tempPath() + QStringLiteral("/Führung 1, обход XXXXXX")};
    const QTemporaryDir simulatedPictures{name};
    const QTemporaryDir microsoftPictures{name};
    const Result simulated{run(SIMULATED_FOLDER, QStringLiteral("pilotel-tour"), {simulatedPictures.path()})};
    const Result microsoft{run(MICROSOFT_FOLDER, QStringLiteral("pilotel-tour"), {microsoftPictures.path()})};
    QVERIFY2(microsoft.exitCode == 0, qPrintable(microsoft.output));
    const QString microsoftOutput{
        QString{microsoft.output}.replace(microsoftPictures.path(), simulatedPictures.path())};
    QCOMPARE(microsoftOutput, simulated.output);
    const QStringList pictures{QDir{simulatedPictures.path()}.entryList(QDir::Files)};
    QVERIFY(!pictures.isEmpty());
    QCOMPARE(QDir{microsoftPictures.path()}.entryList(QDir::Files), pictures);
    // The one that Linux writes.
    const QByteArray log{contentOf(QStringLiteral(TOUR_LOG))};
    QCOMPARE(log.count('\n'), 259);
    QCOMPARE(contentOf(simulatedPictures.filePath(QStringLiteral("log.txt"))), log);
    QCOMPARE(contentOf(microsoftPictures.filePath(QStringLiteral("log.txt"))), log);
}

void MicrosoftSdkTest::recordingIsTheSame()
{
    const QTemporaryDir folder;
    const QString simulated{folder.filePath(QStringLiteral("simulated.recording"))};
    const QString microsoft{folder.filePath(QStringLiteral("microsoft.recording"))};
    const QString check{QStringLiteral("pilotel-sdk-check")};
    const QStringList arguments{QStringLiteral("--port"), QStringLiteral("SIM1"), QStringLiteral("--write"),
                                QStringLiteral("--repeat"), QStringLiteral("1")};
    QCOMPARE(run(SIMULATED_FOLDER, check, arguments, simulated).exitCode, 0);
    QCOMPARE(run(MICROSOFT_FOLDER, check, arguments, microsoft).exitCode, 0);
    const QStringList calls{callsIn(microsoft)};
    QCOMPARE(calls, callsIn(simulated));
    // The record that is a result, and a text that is an object.
    QVERIFY(!calls.filter(QStringLiteral(R"("operation":"getEdgeCorrection")")).isEmpty());
    QVERIFY(!calls.filter(QStringLiteral("Check of the SDK library on a port")).isEmpty());
    QVERIFY(calls.size() > 400);
}

void MicrosoftSdkTest::missingLibraryOfTheMakersIsTold()
{
    // The library alone, without the one behind it.
    const QTemporaryDir folder;
    for (const char *const file : {"/veltrix.sdk.dll", "/pilotel-sdk-check.exe"}) {
        QVERIFY(QFile::copy(QStringLiteral(MICROSOFT_FOLDER) + file, folder.path() + file));
    }
    const Result check{run(folder.path(), QStringLiteral("pilotel-sdk-check"),
                           {QStringLiteral("--port"), QStringLiteral("SIM1")})};
    QCOMPARE(check.exitCode, 1);
    QCOMPARE(check.output,
             QStringLiteral("The program cannot start: a library that veltrix.sdk.dll needs was not "
                            "found. Install what its maker ships with it.\n"));
}

PILOTEL_TEST_CLASS(MicrosoftSdkTest)
#include "tst_microsoft_sdk.moc"
