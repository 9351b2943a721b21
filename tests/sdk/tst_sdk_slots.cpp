// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The places of the SDK's operations on the Itanium ABI, by pointer to member.
#include "slot_table.h"
#include "testclass.h"
#include "veltrix_sdk/sdk.h"

#include <QLatin1String>
#include <QObject>
#include <QString>
#include <QTest>

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace
{

using namespace veltrix_sdk;

/// True when the interface's table holds operations only: objects belong to the SDK and nobody deletes
/// them through it.
template <typename Interface>
constexpr bool isOperationsOnly =
    std::is_abstract_v<Interface> && !std::has_virtual_destructor_v<Interface> &&
    !std::is_destructible_v<Interface>;

static_assert(isOperationsOnly<IVeltrixSdk>);
static_assert(isOperationsOnly<ISdkConfiguration>);
static_assert(isOperationsOnly<IDeviceManager>);
static_assert(isOperationsOnly<IDeviceControl>);
static_assert(isOperationsOnly<ILogger>);

// Apart from the configuration's words an object is its table pointer and nothing else.
static_assert(sizeof(IVeltrixSdk) == sizeof(void *));
static_assert(sizeof(IDeviceManager) == sizeof(void *));
static_assert(sizeof(IDeviceControl) == sizeof(void *));
static_assert(sizeof(ILogger) == sizeof(void *));

} // namespace

class SdkSlotsTest : public QObject
{
    Q_OBJECT

private slots:
    void operationStandsAtItsPlace_data();
    void operationStandsAtItsPlace();
    void tableHasItsPlaces_data();
    void tableHasItsPlaces();
    void tableNamesEachPlaceOnce_data();
    void tableNamesEachPlaceOnce();
};

void SdkSlotsTest::operationStandsAtItsPlace_data()
{
    QTest::addColumn<int>("builtPlace");
    QTest::addColumn<int>("place");
    for (const InterfaceTable &table : contractTables()) {
        for (const Operation &operation : table.operations) {
            const int builtPlace{operation.builtPlace ? static_cast<int>(*operation.builtPlace) : -1};
            QTest::addRow("%s::%s at %d", table.name, operation.name, static_cast<int>(operation.place))
                << builtPlace << static_cast<int>(operation.place);
        }
    }
}

void SdkSlotsTest::operationStandsAtItsPlace()
{
    QFETCH(const int, builtPlace);
    QFETCH(const int, place);
    QCOMPARE(builtPlace, place);
}

void SdkSlotsTest::tableHasItsPlaces_data()
{
    QTest::addColumn<int>("builtPlaces");
    QTest::addColumn<int>("places");
    for (const InterfaceTable &table : contractTables()) {
        const int builtPlaces{table.builtPlaces ? static_cast<int>(*table.builtPlaces) : -1};
        QTest::addRow("%s has %d places", table.name, static_cast<int>(table.places))
            << builtPlaces << static_cast<int>(table.places);
    }
}

void SdkSlotsTest::tableHasItsPlaces()
{
    QFETCH(const int, builtPlaces);
    QFETCH(const int, places);
    QCOMPARE(builtPlaces, places);
}

void SdkSlotsTest::tableNamesEachPlaceOnce_data()
{
    QTest::addColumn<QString>("interfaceName");
    QTest::addColumn<int>("operations");
    const auto row = [](const char *interfaceName, int operations) {
        QTest::addRow("%s has %d operations", interfaceName, operations)
            << QString::fromLatin1(interfaceName) << operations;
    };
    row("IVeltrixSdk", 4);
    row("ISdkConfiguration", 48);
    row("IDeviceManager", 2);
    row("IDeviceControl", 85);
    row("ILogger", 2);
}

void SdkSlotsTest::tableNamesEachPlaceOnce()
{
    QFETCH(const QString, interfaceName);
    QFETCH(const int, operations);
    const std::vector<InterfaceTable> tables{contractTables()};
    const auto table = std::find_if(tables.begin(), tables.end(), [&](const InterfaceTable &candidate) {
        return interfaceName == QLatin1String{candidate.name};
    });
    QVERIFY(table != tables.end());

    std::set<std::size_t> places;
    std::set<std::string> names;
    for (const Operation &operation : table->operations) {
        QVERIFY2(operation.place < table->places, operation.name);
        places.insert(operation.place);
        names.insert(operation.name);
    }
    QCOMPARE(static_cast<int>(places.size()), operations);
    QCOMPARE(static_cast<int>(names.size()), operations);
}

PILOTEL_TEST_CLASS(SdkSlotsTest)
#include "tst_sdk_slots.moc"
