// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The members of the contract's records: what each is called, what it is, and which field of a unit holds it.
#pragma once

#include "units/unitfields.h"
#include "values/value.h"
#include "veltrix_sdk/records.h"

#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace veltrix_simulator
{

namespace detail
{

template <typename T, typename... Types>
constexpr std::size_t placeIn(const std::tuple<Types...> * /*list*/)
{
    constexpr bool isSame[]{std::is_same_v<T, Types>...};
    std::size_t place{0};
    while (place < sizeof...(Types) && !isSame[place]) {
        ++place;
    }
    return place;
}

} // namespace detail

/// Where a type stands among those of a tuple; their count when it is not among them.
template <typename T, typename Tuple>
inline constexpr std::size_t placeAmong = detail::placeIn<T>(static_cast<const Tuple *>(nullptr));

/// The records that the contract exchanges.
using Records =
    std::tuple<veltrix_sdk::FirmwareVersions, veltrix_sdk::Temperatures, veltrix_sdk::OperatingInfo,
               veltrix_sdk::EdgeCorrection, veltrix_sdk::AhcGainLimitation, veltrix_sdk::ZoomConfig,
               veltrix_sdk::ZoomResolution, veltrix_sdk::VisibleAgc, veltrix_sdk::VisibleClhe,
               veltrix_sdk::Warp>;

/// Member::record of a number that belongs to no record.
inline constexpr std::size_t noRecord{std::tuple_size_v<Records>};

/// Whether the contract exchanges this type as a record.
template <typename T>
inline constexpr bool isRecord = placeAmong<T, Records> != noRecord;

/// The member of a record that the caller fills in before the call fills in the others; null where there is
/// none.
template <typename Record>
inline constexpr std::nullptr_t broughtMember{nullptr};
template <>
inline constexpr auto broughtMember<veltrix_sdk::Warp> = &veltrix_sdk::Warp::stream;

template <typename Record>
inline constexpr bool bringsMember =
    !std::is_null_pointer_v<std::remove_const_t<decltype(broughtMember<Record>)>>;

template <typename Record>
constexpr Kind broughtKind()
{
    return kindOf<std::decay_t<decltype(std::declval<Record>().*broughtMember<Record>)>>();
}

/// One member of a record; or a number that belongs to none, which has no name and no field.
struct Member
{
    std::string_view name; ///< As the journal shows it.
    Kind kind;
    std::size_t offset; ///< Bytes.
    std::size_t size;   ///< Bytes.
    std::size_t record; ///< Place of its record among Records, or noRecord.
    Field field;        ///< What holds it.
};

/// The members of all records, in the order of unitFields. Those of Warp stand there once for each stream.
inline constexpr Member recordMembers[]{
#define VALUE(...)
#define MEMBER(name, group, record, member, ...)                                                             \
    {#member,                                                                                                \
     kindOf<decltype(veltrix_sdk::record::member)>(),                                                        \
     offsetof(veltrix_sdk::record, member),                                                                  \
     sizeof(veltrix_sdk::record::member),                                                                    \
     placeAmong<veltrix_sdk::record, Records>,                                                               \
     Field::name},
#include "units/unitfields.inc"
};

/// Some members that follow each other.
struct Members
{
    const Member *first;
    std::size_t count;

    constexpr const Member *begin() const { return first; }
    constexpr const Member *end() const { return first + count; }
};

/// The members of a record; of Warp those of the first stream.
template <typename Record>
constexpr Members membersOf()
{
    Members members{nullptr, 0};
    for (const Member &member : recordMembers) {
        if (member.record == placeAmong<Record, Records>) {
            if (members.count > 0 && member.offset == members.first->offset) {
                return members;
            }
            members = {members.count == 0 ? &member : members.first, members.count + 1};
        }
    }
    return members;
}

/// Whether the members fill the record from an offset on without a gap, in its order, and their fields follow
/// each other.
template <typename Record>
constexpr bool holdsAllOf(std::size_t offset)
{
    const Members members = membersOf<Record>();
    Field next{members.first->field};
    for (const Member &member : members) {
        // The compiler aligns each number to its own size.
        offset = (offset + member.size - 1) / member.size * member.size;
        if (member.offset != offset || member.field != next) {
            return false;
        }
        offset += member.size;
        next = next + 1;
    }
    constexpr std::size_t alignment{alignof(Record)};
    return (offset + alignment - 1) / alignment * alignment == sizeof(Record);
}

/// Size in bytes of the member that the caller sets, the first of its record; 0 where there is none.
template <typename Record>
constexpr std::size_t broughtSize()
{
    if constexpr (bringsMember<Record>) {
        return sizeof(std::declval<Record>().*broughtMember<Record>);
    } else {
        return 0;
    }
}

template <typename... Each>
constexpr bool holdsAllOfEach(const std::tuple<Each...> * /*records*/)
{
    return (holdsAllOf<Each>(broughtSize<Each>()) && ...);
}

static_assert(holdsAllOfEach(static_cast<const Records *>(nullptr)));

/// Whether the members of each stream follow those of the stream before, in the same order, so that the
/// fields of a stream are those of the first one, so many places further.
constexpr bool warpStreamsAreAlike()
{
    const Members warp = membersOf<veltrix_sdk::Warp>();
    std::size_t place{0};
    for (const Member &member : recordMembers) {
        if (member.record == warp.first->record) {
            const Member &first = warp.first[place % warp.count];
            if (member.offset != first.offset || member.field != warp.first->field + place) {
                return false;
            }
            ++place;
        }
    }
    return place == warp.count * veltrix_sdk::warpStreamCount;
}

static_assert(warpStreamsAreAlike());

} // namespace veltrix_simulator
