// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program's ELF file: which libraries it asks for, where they are found, and what it takes from them.
#include "program.h"
#include "testclass.h"

#include <QObject>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

namespace
{

/// What follows a pattern in the lines of the dynamic section.
QStringList dynamicEntries(const QString &kind)
{
    const Outcome outcome{run(READELF, {"-d", "-W", PROGRAM}, QProcessEnvironment::systemEnvironment())};
    QStringList entries;
    const QRegularExpression pattern{R"(\()" + kind + R"(\).*\[(.*)\])"};
    for (auto match = pattern.globalMatch(outcome.output); match.hasNext();) {
        entries.append(match.next().captured(1));
    }
    return entries;
}

QStringList symbols(const QStringList &options, const char *file = PROGRAM)
{
    const Outcome outcome{
        run(NM, options + QStringList{"-C", file}, QProcessEnvironment::systemEnvironment())};
    return outcome.output.split('\n', Qt::SkipEmptyParts);
}

} // namespace

class ExecutableTest : public QObject
{
    Q_OBJECT

private slots:
    void asksForTheSdkByName();
    void findsLibrariesBesideItself();
    void takesTheContractsFourFunctions();
    void knowsNothingOfTheSimulator();
    void hasNoConsoleOnWindows();
};

void ExecutableTest::asksForTheSdkByName()
{
    const QStringList needed{dynamicEntries("NEEDED")};
    QCOMPARE(needed.filter("veltrix"), QStringList{"libveltrix.sdk.so"});
    QCOMPARE(needed.filter("simulator"), QStringList{});
}

void ExecutableTest::findsLibrariesBesideItself()
{
    // A RUNPATH comes after LD_LIBRARY_PATH, so that another library can take the simulated one's place.
    QCOMPARE(dynamicEntries("RPATH"), QStringList{});
    const QStringList places{
        "$ORIGIN:$ORIGIN/../local/lib/pilotel:$ORIGIN/../lib:$ORIGIN/../" INSTALLED_LIBDIR "/pilotel"};
    QCOMPARE(dynamicEntries("RUNPATH"), places);
}

void ExecutableTest::takesTheContractsFourFunctions()
{
    QStringList taken;
    for (const QString &symbol : symbols({"-D", "-u"}).filter("veltrix_sdk::")) {
        taken.append(symbol.trimmed().section(' ', 1));
    }
    taken.sort();
    const QStringList contract{
        "veltrix_sdk::SDKLogger::GetILogger()",
        "veltrix_sdk::SDKLogger::SDKLogger(veltrix_sdk::severity_level)",
        "veltrix_sdk::SDKLogger::~SDKLogger()",
        "veltrix_sdk::VeltrixSdk::get_instance()",
    };
    QCOMPARE(taken, contract);
}

void ExecutableTest::knowsNothingOfTheSimulator()
{
    // A recording has the form of the simulator's trace, so the program shares how a line of it is made.
    const QRegularExpression device{"veltrix_simulator::(CallPath|Player|Scenario|Simulation|Simulator)\\b"};
    QVERIFY(!symbols({}, SDK_LIBRARY).filter(device).isEmpty());
    QVERIFY(!symbols({}).isEmpty());
    QCOMPARE(symbols({}).filter(device), QStringList{});
    QCOMPARE(symbols({"-D"}).filter("veltrix_simulator"), QStringList{});
    QCOMPARE(symbols({"-D", "-u"}).filter("additional_ports"), QStringList{});
}

void ExecutableTest::hasNoConsoleOnWindows()
{
    QCOMPARE(QString{PROGRAM_IS_WINDOWED}, QStringLiteral("ON"));
    const QStringList resource{linesOf(WINDOWS_RESOURCE)};
    for (const char *const line : {"FILEOS VOS_NT_WINDOWS32", "FILETYPE VFT_APP", "FILEFLAGS 0",
                                   "IDI_ICON1 ICON \"../picture/camera.ico\""}) {
        QVERIFY2(resource.contains(line), line);
    }
    const QString numbers{QString{PROJECT_VERSION}.replace('.', ',') + ",0"};
    const QString text{'"' + QString{PROJECT_VERSION} + ".0\""};
    for (const QString &line :
         {"FILEVERSION " + numbers, "PRODUCTVERSION " + numbers, "            VALUE \"FileVersion\", " + text,
          "            VALUE \"ProductVersion\", " + text}) {
        QVERIFY2(resource.contains(line), qPrintable(line));
    }
}

PILOTEL_TEST_CLASS(ExecutableTest)
#include "tst_executable.moc"
