// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers of a parameter or a result where they lie in the caller's memory.
#pragma once

#include "units/recordmembers.h"
#include "values/value.h"

#include <cstdint>
#include <cstring>
#include <tuple>
#include <type_traits>

namespace veltrix_simulator
{

/// A number that is no member of a record.
template <Kind kind>
inline constexpr Member plainNumber{{}, kind, 0, sizeof(TypeOf<kind>), std::tuple_size_v<Records>, Field{}};

/// A number or the members of a record in memory, which may be missing. Every number of the contract is exact
/// in a double. Who made it of a record that can only be read does not set it.
class NumbersAt
{
public:
    template <typename T>
    explicit NumbersAt(T *memory) : bytes{const_cast<char *>(reinterpret_cast<const char *>(memory))}
    {
        using Plain = std::remove_const_t<T>;
        if constexpr (isRecord<Plain>) {
            // Found by the compiler, not in every call.
            constexpr Members found{membersOf<Plain>()};
            list = found;
        } else {
            list = {&plainNumber<kindOf<Plain>()>, 1};
        }
    }

    bool isThere() const { return bytes != nullptr; }
    /// The members of the record, or the one plain number.
    const Members &members() const { return list; }
    bool isPlainNumber() const { return list.first->name.empty(); }

    double at(const Member &member) const
    {
        switch (member.kind) {
        case Kind::Boolean:
            return read<bool>(member) ? 1 : 0;
        case Kind::Unsigned8:
            return read<std::uint8_t>(member);
        case Kind::Unsigned16:
            return read<std::uint16_t>(member);
        case Kind::Unsigned32:
            return read<std::uint32_t>(member);
        case Kind::Signed32:
            return read<std::int32_t>(member);
        case Kind::Float:
            return static_cast<double>(read<float>(member));
        case Kind::Double:
        case Kind::Text:
        case Kind::Object:
            break;
        }
        return read<double>(member);
    }

    /// The number is one that the kind holds.
    void set(const Member &member, double number) const
    {
        switch (member.kind) {
        case Kind::Boolean:
            write(member, number != 0.0);
            return;
        case Kind::Unsigned8:
            write(member, static_cast<std::uint8_t>(number));
            return;
        case Kind::Unsigned16:
            write(member, static_cast<std::uint16_t>(number));
            return;
        case Kind::Unsigned32:
            write(member, static_cast<std::uint32_t>(number));
            return;
        case Kind::Signed32:
            write(member, static_cast<std::int32_t>(number));
            return;
        case Kind::Float:
            write(member, static_cast<float>(number));
            return;
        case Kind::Double:
        case Kind::Text:
        case Kind::Object:
            break;
        }
        write(member, number);
    }

    /// Sets all of them to zero.
    void clear() const
    {
        for (const Member &member : list) {
            set(member, 0);
        }
    }

private:
    template <typename T>
    T read(const Member &member) const
    {
        return *reinterpret_cast<const T *>(bytes + member.offset);
    }

    template <typename T>
    void write(const Member &member, T number) const
    {
        *reinterpret_cast<T *>(bytes + member.offset) = number;
    }

    char *bytes;
    Members list{nullptr, 0};
};

} // namespace veltrix_simulator
