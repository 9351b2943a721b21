// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The SDK's tables and words as other targets lay them out, above all those of the Microsoft ABI.
#include "slot_table.h"
#include "testclass.h"
#include "toolbox.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace
{

/// Makes the compiler lay out every table. The constructor of a derived class needs its base's table.
const char *const probe{R"(
#include "veltrix_sdk/sdk.h"
#include "veltrix_sdk/extensions.h"

namespace veltrix_sdk
{

template <typename Interface>
struct Derived : Interface
{
    Derived() {}
    virtual void appended() = 0;
};

template struct Derived<IVeltrixSdk>;
template struct Derived<ISdkConfiguration>;
template struct Derived<IDeviceManager>;
template struct Derived<IDeviceControl>;
template struct Derived<ILogger>;

struct Words : ISdkConfiguration
{
    static_assert(__builtin_offsetof(ISdkConfiguration, words) == sizeof(void *));
    static_assert(__builtin_offsetof(ISdkConfiguration, words.gskDefault) == 6 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.gmsDefault) == 7 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.gfidDefault) == 8 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.tintDefault) == 9 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.gskMinimum) == 15 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.gskMaximum) == 16 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.gfidMinimum) == 17 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.gfidMaximum) == 18 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.tintMinimum) == 19 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.tintMaximum) == 20 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.gmsMinimum) == 21 * 4);
    static_assert(__builtin_offsetof(ISdkConfiguration, words.gmsMaximum) == 22 * 4);
};

static_assert(sizeof(SDKLogger) >= 4 * sizeof(void *));

} // namespace veltrix_sdk
)"};

const char *const microsoft64{"x86_64-pc-windows-msvc"};
const char *const microsoft32{"i686-pc-windows-msvc"};
const char *const itanium64{"x86_64-pc-linux-gnu"};
const char *const itanium32{"i386-pc-linux-gnu"};

/// The operations of each interface in table order, without result type and namespace.
using Layout = QMap<QString, QStringList>;

/// Compiles the probe; tables are dumped when code is generated, not by a syntax check.
Compilation compileProbe(const QString &target, const QString &sdkDirectory)
{
    return compile(CLANGXX,
                   {"-target", target, "-std=c++17", "-nostdinc", "-I", STAND_IN_DIRECTORY, "-I",
                    sdkDirectory, "-Wall", "-Wextra", "-Wno-invalid-offsetof", "-Werror", "-Xclang",
                    "-fdump-vtable-layouts", "-S", "-emit-llvm", "-o", QProcess::nullDevice()},
                   probe);
}

Layout parseLayout(const QString &dump)
{
    static const QRegularExpression heading{R"(^VF?Table indices for 'veltrix_sdk::(\w+)')"};
    static const QRegularExpression entry{R"(^ *(\d+) \| (.*)$)"};
    Layout layout;
    QString interfaceName;
    for (const QString &line : dump.split('\n')) {
        const auto headingMatch = heading.match(line);
        const auto entryMatch = entry.match(line);
        if (headingMatch.hasMatch()) {
            interfaceName = headingMatch.captured(1);
        } else if (entryMatch.hasMatch() && !interfaceName.isEmpty()) {
            QStringList &operations = layout[interfaceName];
            // A dump leaves out what an interface has inherited.
            while (operations.size() < entryMatch.captured(1).toInt()) {
                operations.append(QString{});
            }
            operations.append(entryMatch.captured(2).section(interfaceName + "::", 1));
        } else {
            interfaceName.clear();
        }
    }
    return layout;
}

/// An overload is named with its parameters, any other operation without.
bool isNamed(const QString &operation, const QString &name)
{
    return operation == name || operation.startsWith(name + '(');
}

/// What stands elsewhere than the contract says; empty when the layout is right.
QStringList differences(const Layout &layout)
{
    QStringList found;
    for (const InterfaceTable &table : contractTables()) {
        const QStringList operations{layout.value(table.name)};
        if (operations.size() != static_cast<int>(table.places)) {
            found.append(
                QString{"%1 has %2 places, not %3"}.arg(table.name).arg(operations.size()).arg(table.places));
        }
        QStringList expected;
        for (int place{0}; place < static_cast<int>(table.places); ++place) {
            expected.append(QString{"kept%1"}.arg(place));
        }
        for (const Operation &operation : table.operations) {
            expected[static_cast<int>(operation.place)] = operation.name;
        }
        for (int place{0}; place < std::max(expected.size(), operations.size()); ++place) {
            const QString actual{operations.value(place, "nothing")};
            const QString wanted{expected.value(place, "nothing")};
            if (!isNamed(actual, wanted)) {
                found.append(
                    QString{"%1: at %2 stands %3, not %4"}.arg(table.name).arg(place).arg(actual, wanted));
            }
        }
    }
    return found;
}

void addTargets()
{
    QTest::addColumn<QString>("target");
    for (const char *const target : {microsoft64, microsoft32, itanium64, itanium32}) {
        QTest::newRow(target) << QString{target};
    }
}

} // namespace

class SdkLayoutsTest : public QObject
{
    Q_OBJECT

private slots:
    void tablesAreTheSameOnEveryTarget_data();
    void tablesAreTheSameOnEveryTarget();
    void textObjectIsInsertedAtPlaceOne_data();
    void textObjectIsInsertedAtPlaceOne();
    void noDestructorInTheTables_data();
    void noDestructorInTheTables();
    void brokenTableIsNoticed_data();
    void brokenTableIsNoticed();
    void brokenRecordDoesNotCompile_data();
    void brokenRecordDoesNotCompile();
};

void SdkLayoutsTest::tablesAreTheSameOnEveryTarget_data()
{
    addTargets();
}

void SdkLayoutsTest::tablesAreTheSameOnEveryTarget()
{
    QFETCH(const QString, target);
    const Compilation compilation{compileProbe(target, SDK_DIRECTORY)};
    QVERIFY2(compilation.succeeded, qPrintable(compilation.diagnostics));
    QCOMPARE(differences(parseLayout(compilation.output)).join('\n'), QString{});
}

void SdkLayoutsTest::textObjectIsInsertedAtPlaceOne_data()
{
    addTargets();
}

void SdkLayoutsTest::textObjectIsInsertedAtPlaceOne()
{
    QFETCH(const QString, target);
    const Compilation compilation{compileProbe(target, SDK_DIRECTORY)};
    QVERIFY2(compilation.succeeded, qPrintable(compilation.diagnostics));
    const QStringList expected{"kept0()", "operator<<(const std::string &)", "operator<<(const char *)"};
    QCOMPARE(parseLayout(compilation.output).value("ILogger"), expected);
}

void SdkLayoutsTest::noDestructorInTheTables_data()
{
    addTargets();
}

void SdkLayoutsTest::noDestructorInTheTables()
{
    QFETCH(const QString, target);
    const Compilation compilation{compileProbe(target, SDK_DIRECTORY)};
    QVERIFY2(compilation.succeeded, qPrintable(compilation.diagnostics));
    QVERIFY(compilation.output.contains("veltrix_sdk::ILogger::kept0()"));
    QVERIFY(!compilation.output.contains('~'));
    QVERIFY(!compilation.output.contains("deleting"));
}

void SdkLayoutsTest::brokenTableIsNoticed_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("header");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("difference");
    const auto row = [](const char *name, const char *header, const QByteArray &before,
                        const QByteArray &after, const char *difference) {
        for (const char *const target : {microsoft64, microsoft32, itanium64, itanium32}) {
            QTest::addRow("%s on %s", name, target)
                << QString{target} << QString{header} << before << after << QString{difference};
        }
    };
    row("insertion operators swapped", "logger.h", "#elif defined(_MSC_VER)", "#elif !defined(_MSC_VER)",
        "ILogger: at 1 stands operator<<(const char *), not operator<<(const std::string &)");
    row("kept place dropped", "device_control.h", "virtual void kept54() {}", "",
        "IDeviceControl: at 54 stands configureZoom(const veltrix_sdk::ZoomConfig *), not kept54");
    row("place inserted", "configuration.h", "virtual void kept43() {}",
        "virtual void kept43() {}\n    virtual void more() {}",
        "ISdkConfiguration: at 45 stands getDefaultVideoOutput(), not getDefaultSdiOutput");
    row("operation renamed", "device_manager.h", "virtual void closeDevice(IDeviceControl *device) = 0;",
        "virtual void closeDevices(IDeviceControl *device) = 0;",
        "IDeviceManager: at 16 stands closeDevices(veltrix_sdk::IDeviceControl *), not closeDevice");
    row("destructor in the table", "sdk.h", "    ~IVeltrixSdk() = default;",
        "    virtual ~IVeltrixSdk() = default;", "IVeltrixSdk: at 12 stands ~IVeltrixSdk()");
    row("table longer", "sdk.h", "virtual void releaseDeviceManager(IDeviceManager **manager) = 0;",
        "virtual void releaseDeviceManager(IDeviceManager **manager) = 0;\n    virtual void more() {}",
        "IVeltrixSdk has 13 places, not 12");
}

void SdkLayoutsTest::brokenTableIsNoticed()
{
    QFETCH(const QString, target);
    QFETCH(const QString, header);
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    QFETCH(const QString, difference);
    const QTemporaryDir copy;
    QVERIFY(copyHeaders(SDK_DIRECTORY, copy.path()));
    QVERIFY(replaceOnce(copy.filePath("veltrix_sdk/" + header), before, after));

    const Compilation compilation{compileProbe(target, copy.path())};
    QVERIFY2(compilation.succeeded, qPrintable(compilation.diagnostics));
    const QString found{differences(parseLayout(compilation.output)).join('\n')};
    QVERIFY2(found.contains(difference), qPrintable("found only:\n" + found));
}

void SdkLayoutsTest::brokenRecordDoesNotCompile_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *target, const QByteArray &before,
                        const QByteArray &after) {
        QTest::addRow("%s on %s", name, target) << QString{target} << before << after;
    };
    // Each is right where a pointer has the other width, or where a double is aligned by itself.
    const QByteArray leading{"keptBeforeDefaults[6 - tablePointerWords]"};
    row("words for 32 bits only", microsoft64, leading, "keptBeforeDefaults[5]");
    row("words for 64 bits only", microsoft32, leading, "keptBeforeDefaults[4]");
    row("words for 32 bits only", itanium64, leading, "keptBeforeDefaults[5]");
    row("words for 64 bits only", itanium32, leading, "keptBeforeDefaults[4]");
    row("warp not aligned", itanium32, "alignas(8) double a11", "double a11");
    row("field widened", microsoft64, "std::uint8_t white;", "std::uint32_t white;");
}

void SdkLayoutsTest::brokenRecordDoesNotCompile()
{
    QFETCH(const QString, target);
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    const QTemporaryDir copy;
    QVERIFY(copyHeaders(SDK_DIRECTORY, copy.path()));
    QVERIFY(compileProbe(target, copy.path()).succeeded);
    QVERIFY(replaceOnce(copy.filePath("veltrix_sdk/records.h"), before, after));

    const Compilation compilation{compileProbe(target, copy.path())};
    QVERIFY(!compilation.succeeded);
    QVERIFY2(compilation.diagnostics.contains("static_assert failed") ||
                 compilation.diagnostics.contains("static assertion failed"),
             qPrintable(compilation.diagnostics));
}

PILOTEL_TEST_CLASS(SdkLayoutsTest)
#include "tst_sdk_layouts.moc"
