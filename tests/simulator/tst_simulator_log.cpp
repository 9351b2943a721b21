// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Where log records go and what a line of them looks like.
#include "testclass.h"

#include <QDateTime>
#include <QFile>
#include <QIODevice>
#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#if defined(Q_OS_WIN)
#include <windows.h>
#endif

namespace
{

/// What the log writer leaves on standard error with VELTRIX_SIMULATOR_LOG set so; null: not set.
QString errorOutput(const QString &variable)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("VELTRIX_SIMULATOR_LOG"));
    if (!variable.isNull()) {
        environment.insert(QStringLiteral("VELTRIX_SIMULATOR_LOG"), variable);
    }
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(LOG_WRITER), QStringList{});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        return QStringLiteral("the log writer failed: ") + process.errorString();
    }
    return QString::fromLocal8Bit(process.readAllStandardError());
}

/// The lines with the times, which are checked, taken out.
QStringList withoutTimes(const QString &output)
{
    static const QRegularExpression time{QStringLiteral(R"(^(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z) )")};
    QStringList lines;
    for (const QString &line : output.split('\n', Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = time.match(line);
        const QDateTime written = QDateTime::fromString(match.captured(1), Qt::ISODateWithMs);
        const bool isNow{written.isValid() && qAbs(written.secsTo(QDateTime::currentDateTimeUtc())) < 60};
        lines.append(isNow ? line.mid(match.capturedLength()) : line);
    }
    return lines;
}

QStringList expectedLines()
{
    QStringList lines{"trace: Simulated SDK ready"};
    for (const char *const severity : {"trace", "debug", "info", "warning", "error", "fatal"}) {
        lines << QString{severity} + ": record"
              << "    in two lines";
    }
    return lines << "severity 6: above all"
                 << "error: late";
}

} // namespace

class SimulatorLogTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsWrittenUnasked();
    void dashIsStandardError();
    void fileIsAppendedTo();
    void unwritableFileIsNamedOnce();
#if defined(Q_OS_WIN)
    void debuggerIsToldWithoutAConsole();
#endif
};

void SimulatorLogTest::nothingIsWrittenUnasked()
{
    QCOMPARE(errorOutput({}), QString{});
    QCOMPARE(errorOutput(""), QString{});
}

void SimulatorLogTest::dashIsStandardError()
{
    QCOMPARE(withoutTimes(errorOutput("-")), expectedLines());
}

void SimulatorLogTest::fileIsAppendedTo()
{
    const QTemporaryDir directory;
    const QString name = directory.filePath("records.log");
    QCOMPARE(errorOutput(name), QString{});
    QCOMPARE(errorOutput(name), QString{});
    QFile file{name};
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(withoutTimes(QString::fromUtf8(file.readAll())), expectedLines() + expectedLines());
}

void SimulatorLogTest::unwritableFileIsNamedOnce()
{
    const QTemporaryDir directory;
    const QString name = directory.filePath("missing/records.log");
    QCOMPARE(
        errorOutput(name),
        "veltrix.sdk: cannot write the log file \"" + name +
            "\"; set VELTRIX_SIMULATOR_LOG to a file that can be written, or to - for standard error.\n");
}

#if defined(Q_OS_WIN)
void SimulatorLogTest::debuggerIsToldWithoutAConsole()
{
    // What listens to all processes of the session has a page, and two events that say whose turn it is.
    struct Page
    {
        DWORD process;
        char text[4096 - sizeof(DWORD)];
    };
    const HANDLE file{
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Page), L"DBWIN_BUFFER")};
    const HANDLE free{CreateEventW(nullptr, FALSE, TRUE, L"DBWIN_BUFFER_READY")};
    const HANDLE filled{CreateEventW(nullptr, FALSE, FALSE, L"DBWIN_DATA_READY")};
    const auto *const page =
        static_cast<const Page *>(MapViewOfFile(file, FILE_MAP_READ, 0, 0, sizeof(Page)));
    QVERIFY(page != nullptr);

    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VELTRIX_SIMULATOR_LOG"), QStringLiteral("-"));
    process.setProcessEnvironment(environment);
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments *arguments) {
        arguments->flags = (arguments->flags & ~DWORD{CREATE_NO_WINDOW}) | DETACHED_PROCESS;
    });
    process.start(QStringLiteral(LOG_WRITER), QStringList{});
    const DWORD number{static_cast<DWORD>(process.processId())};
    QString told;
    constexpr DWORD milliseconds{10'000};
    while (!told.contains("error: late") && WaitForSingleObject(filled, milliseconds) == WAIT_OBJECT_0) {
        if (page->process == number) {
            told += QString::fromLocal8Bit(page->text);
        }
        SetEvent(free);
    }
    QVERIFY(process.waitForFinished());
    UnmapViewOfFile(page);
    for (const HANDLE handle : {file, free, filled}) {
        CloseHandle(handle);
    }

    QCOMPARE(withoutTimes(told), expectedLines());
    QCOMPARE(withoutTimes(QString::fromUtf8(process.readAllStandardError())), expectedLines());
}
#endif

PILOTEL_TEST_CLASS(SimulatorLogTest)
#include "tst_simulator_log.moc"
