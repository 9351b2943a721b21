// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the libraries veltrix.sdk export, name by name, and what they are called inside.
#include "contents.h"
#include "testclass.h"

#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

namespace
{

/// The demangled names of a library's dynamic symbols without their parameters, sorted.
QStringList exportsOf(const QString &library)
{
    static const QRegularExpression decoration{QStringLiteral(R"((\[abi:\w+\])?(\(.*)?$)")};
    QStringList names;
    for (const QString &line : QString::fromLocal8Bit(outputOf(NM, {"-D", "-C", "--defined-only", library}))
                                   .split('\n', Qt::SkipEmptyParts)) {
        names.append(line.section(' ', 2).remove(decoration));
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

const QStringList contract{"veltrix_sdk::SDKLogger::GetILogger", "veltrix_sdk::SDKLogger::SDKLogger",
                           "veltrix_sdk::SDKLogger::~SDKLogger", "veltrix_sdk::VeltrixSdk::get_instance"};

} // namespace

class SimulatorExportsTest : public QObject
{
    Q_OBJECT

private slots:
    void exportsExactly_data();
    void exportsExactly();
    void isNamedWithoutVersion_data() { exportsExactly_data(); }
    void isNamedWithoutVersion();
};

void SimulatorExportsTest::exportsExactly_data()
{
    QTest::addColumn<QString>("library");
    QTest::addColumn<QStringList>("names");

    QStringList simulator = contract;
    simulator << "veltrix_sdk_additional_ports";
    for (const char *const function : {"addFault", "callsWhileNotOpen", "clearFaults", "clearJournal", "get",
                                       "instance", "isDeviceOpen", "journal", "keys", "loadScenario", "reset",
                                       "set", "setJournalEnabled", "setPorts", "unfiredFaults"}) {
        simulator << QStringLiteral("veltrix_simulator::Simulator::") + function;
    }
    simulator.sort();
    QTest::addRow("simulator") << SIMULATOR_LIBRARY << simulator;
    QTest::addRow("contract only") << CONTRACT_ONLY_LIBRARY << contract;
    QTest::addRow("incomplete") << INCOMPLETE_LIBRARY << QStringList{contract.mid(1)};
}

void SimulatorExportsTest::exportsExactly()
{
    QFETCH(const QString, library);
    QFETCH(const QStringList, names);
    QCOMPARE(exportsOf(library), names);
}

void SimulatorExportsTest::isNamedWithoutVersion()
{
    QFETCH(const QString, library);
    QVERIFY2(library.endsWith("/libveltrix.sdk.so"), qPrintable(library));
    static const QRegularExpression soname{QStringLiteral(R"(SONAME.*\[(.*)\])")};
    QCOMPARE(soname.match(QString::fromLocal8Bit(outputOf(READELF, {"-d", library}))).captured(1),
             QStringLiteral("libveltrix.sdk.so"));
}

PILOTEL_TEST_CLASS(SimulatorExportsTest)
#include "tst_simulator_exports.moc"
