// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the device operations are made of: reads and writes of the addressed unit's state.
#include "contract/unitaccess.h"

#include "units/recordmembers.h"
#include "units/unitnames.h"
#include "values/numberlist.h"
#include "veltrix_sdk/numbers.h"

#include <string_view>

namespace veltrix_simulator
{
namespace
{

constexpr std::size_t fieldsOfRegion{Field::roi1X1 - Field::roi0X1};

/// Whether each coordinate of a region is found from that of the first one: their keys differ in the region's
/// digit, "roi0.x1" and "roi1.x1".
constexpr bool regionsAreAlike()
{
    constexpr std::string_view name{"roi"};
    for (std::size_t place{0}; place < veltrix_sdk::regionCount * fieldsOfRegion; ++place) {
        const std::string_view key = rowOf(Field::roi0X1 + place).key;
        const std::string_view first = rowOf(Field::roi0X1 + place % fieldsOfRegion).key;
        const auto digit = static_cast<char>('0' + place / fieldsOfRegion);
        if (key.substr(0, name.size()) != name || key[name.size()] != digit ||
            key.substr(name.size() + 1) != first.substr(name.size() + 1)) {
            return false;
        }
    }
    return true;
}

static_assert(regionsAreAlike());

// A call stores the numbers that it brings in fields that follow each other.
static_assert(Field::mavlinkPermanent - Field::mavlinkBaudRate == 1, "setMavlinkBaudRate brings both");
static_assert(Field::roi0ExcEnabled - Field::roi1IncEnabled == 1 &&
                  Field::roi1ExcEnabled - Field::roi1IncEnabled == 2,
              "a coordinate of a region is set with all three enables");

constexpr std::size_t fieldsOfWarp{membersOf<veltrix_sdk::Warp>().count};

bool isWarpStream(std::int32_t stream)
{
    return stream >= 0 && stream < veltrix_sdk::warpStreamCount;
}

Field warpField(std::int32_t stream)
{
    return Field::warp0A11 + static_cast<std::size_t>(stream) * fieldsOfWarp;
}

} // namespace

void UnitAccess::load(const NumbersToFill &record, std::size_t further)
{
    for (const Member &member : record.members()) {
        record.set(member, unit()[member.field + further]);
    }
}

bool UnitAccess::set(OperationId operation, Parameters sent)
{
    return set(operation, sent.begin()->memory()->members().begin()->field, sent);
}

bool UnitAccess::set(OperationId operation, Field first, Parameters parameters)
{
    return call(operation, parameters, [&] {
        const NumberList numbers = numbersOf(parameters);
        return state.store(first, numbers.begin(), numbers.end());
    });
}

bool UnitAccess::configureEdge(OperationId operation, Parameters parameters)
{
    return call(operation, parameters, [&] {
        NumberList numbers = numbersOf(parameters);
        // The camera derives the second threshold from the first, which is the last number of the call.
        numbers.append(numbers[numbers.size() - 1] + veltrix_sdk::edgeThresholdDistance);
        return state.store(Field::edgeType, numbers.begin(), numbers.end());
    });
}

veltrix_sdk::EdgeCorrection UnitAccess::getEdge(OperationId operation)
{
    return call(
        operation, {},
        [&] {
            veltrix_sdk::EdgeCorrection correction{};
            load(NumbersToFill{&correction});
            return correction;
        },
        [&](const std::vector<Value> &shown) { return state.learn(Field::edgeType, shown); });
}

std::uint32_t UnitAccess::getRoi(OperationId operation, Field coordinate, std::uint32_t region)
{
    const bool known{region < veltrix_sdk::regionCount};
    const Field field{known ? coordinate + region * fieldsOfRegion : coordinate};
    return call(
        operation, {region}, [&] { return known ? static_cast<std::uint32_t>(unit()[field]) : 0; },
        [&](const std::vector<Value> &shown) { return !known || state.learn(field, shown); });
}

bool UnitAccess::setRoi(OperationId operation, Field coordinate, std::int32_t region, Parameters parameters)
{
    return call(operation, parameters, [&] {
        const auto number = static_cast<std::uint32_t>(region);
        const NumberList numbers = numbersOf(parameters);
        return number < veltrix_sdk::regionCount &&
               state.store(coordinate + number * fieldsOfRegion, numbers.begin(), numbers.begin() + 1) &&
               state.store(Field::roi1IncEnabled, numbers.begin() + 2, numbers.end());
    });
}

bool UnitAccess::setWarpOf(OperationId operation, std::int32_t stream, Parameters parameters)
{
    return call(operation, parameters, [&] {
        const NumberList numbers = numbersOf(parameters);
        return isWarpStream(stream) && state.store(warpField(stream), numbers.begin() + 1, numbers.end());
    });
}

bool UnitAccess::getWarpOf(OperationId operation, veltrix_sdk::Warp *warp)
{
    return call(
        operation, {warp},
        [&] {
            const bool known{isWarpStream(warp->stream)};
            if (known) {
                load(NumbersToFill{warp}, warpField(warp->stream) - Field::warp0A11);
            }
            return known;
        },
        [&](const std::vector<Value> &shown) {
            return !isWarpStream(warp->stream) || state.learn(warpField(warp->stream), shown);
        });
}

bool UnitAccess::select(OperationId operation, std::int32_t target)
{
    return call(operation, {target}, [&] {
        const bool known{isUnit(target)};
        state.target = known ? target : state.target;
        return known;
    });
}

bool UnitAccess::transferBpr(OperationId operation, std::uint32_t first, std::uint32_t second,
                             std::uint8_t code, std::uint8_t expectedCode,
                             bool (BadPixelMemory::*transfer)(std::uint32_t, LogOutput &))
{
    return call(operation, {first, second, code}, [&] {
        return first == veltrix_sdk::bprFirstNumber && second == veltrix_sdk::bprSecondNumber &&
               code == expectedCode && (badPixels().*transfer)(serialNumber(), log);
    });
}

bool UnitAccess::declare(OperationId operation, std::uint32_t column, std::uint32_t row, bool bad)
{
    return call(operation, {column, row},
                [&] { return badPixels().declare(serialNumber(), column, row, bad, log); });
}

bool UnitAccess::save(OperationId operation, std::uint8_t kind)
{
    return call(operation, {kind}, [&] {
        switch (kind) {
        case veltrix_sdk::saveUserParameters:
            return memory.save(state, Saved::User, log) && count(Field::userSaves);
        case veltrix_sdk::saveExpertParameters:
            return memory.save(state, Saved::Expert, log) && count(Field::expertSaves);
        default:
            return false;
        }
    });
}

} // namespace veltrix_simulator
