// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers of a parameter or a result where they lie in the caller's memory.
#pragma once

#include "units/recordmembers.h"
#include "values/value.h"

#include <cstdint>
#include <type_traits>

namespace veltrix_simulator
{

/// A number that is no member of a record.
template <Kind kind>
inline constexpr Member plainNumber{{}, kind, 0, sizeof(TypeOf<kind>), noRecord, {}};

/// Reads a number, or the members of a record, where the caller keeps it; the caller's pointer may be null.
/// Every number of the contract is exact in a double.
class NumbersToRead
{
public:
    template <typename T>
    explicit NumbersToRead(const T *memory) : bytes{reinterpret_cast<const char *>(memory)}
    {
        if constexpr (isRecord<T>) {
            // A constant: the search is done by the compiler and not in every call.
            constexpr Members found{membersOf<T>()};
            list = found;
        } else {
            list = {&plainNumber<kindOf<T>()>, 1};
        }
    }

    bool isThere() const { return bytes != nullptr; }
    /// The members of the record, or the one plain number.
    const Members &members() const { return list; }
    bool isPlainNumber() const { return list.first->record == noRecord; }

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

private:
    template <typename T>
    T read(const Member &member) const
    {
        return *reinterpret_cast<const T *>(bytes + member.offset);
    }

    const char *bytes;
    Members list{nullptr, 0};
};

/// Also writes there, for what a call fills in.
class NumbersToFill : public NumbersToRead
{
public:
    template <typename T>
    explicit NumbersToFill(T *memory) : NumbersToRead{memory}, writable{reinterpret_cast<char *>(memory)}
    {
        static_assert(!std::is_const_v<T>, "what is filled in can be written");
    }

    /// The member's kind has to be able to hold the number.
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
        for (const Member &member : members()) {
            set(member, 0);
        }
    }

private:
    template <typename T>
    void write(const Member &member, T number) const
    {
        *reinterpret_cast<T *>(writable + member.offset) = number;
    }

    char *writable;
};

} // namespace veltrix_simulator
