// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The parameters and the result of a call. They describe themselves, so that one function serves every
// operation.
#pragma once

#include "calls/numbersat.h"
#include "calls/objects.h"
#include "units/recordmembers.h"
#include "values/numberlist.h"
#include "values/value.h"
#include "veltrix_sdk/records.h"

#include <initializer_list>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace veltrix_simulator
{

/// A number with its kind.
struct Number
{
    Number(Kind itsKind, double itsValue) : kind{itsKind}, value{itsValue} {}

    Kind kind;
    double value;
};

/// A text; nothing for a null pointer.
using OptionalText = std::optional<std::string_view>;

/// A record that the call reads.
struct SentRecord
{
    template <typename Record>
    explicit SentRecord(const Record *memory) : record{memory}
    {}

    NumbersToRead record;
};

/// A number that the call fills in, under the name that the journal shows.
struct OutNumber
{
    template <typename T>
    OutNumber(const char *itsName, T *memory) : name{itsName}, number{memory}
    {}

    std::string_view name;
    NumbersToFill number;
};

/// A record that the call fills in, with the member that the caller has set before, such as Warp's stream.
struct FilledRecord
{
    template <typename Record>
    explicit FilledRecord(Record *memory) : record{memory}
    {
        if constexpr (bringsMember<Record>) {
            if (memory != nullptr) {
                brought = Number{broughtKind<Record>(), static_cast<double>(memory->*broughtMember<Record>)};
            }
        }
    }

    NumbersToFill record;
    std::optional<Number> brought;
};

/// One parameter of a call.
class Parameter
{
public:
    using Content = std::variant<Number, OptionalText, ObjectPointer, SentRecord, OutNumber, FilledRecord>;

    // Each makes its content in place: copying it would cost as much as the rest of a short call.

    template <typename T, std::enable_if_t<std::is_arithmetic_v<T>, int> = 0>
    Parameter(T number) : parameter{std::in_place_type<Number>, kindOf<T>(), static_cast<double>(number)}
    {}

    Parameter(const char *text) : parameter{std::in_place_type<OptionalText>}
    {
        if (text != nullptr) {
            parameter = OptionalText{text};
        }
    }
    Parameter(std::string_view text) : parameter{std::in_place_type<OptionalText>, text} {}

    Parameter(ObjectPointer object) : parameter{std::in_place_type<ObjectPointer>, object} {}

    template <typename Record, std::enable_if_t<isRecord<Record>, int> = 0>
    Parameter(const Record *sent) : parameter{std::in_place_type<SentRecord>, sent}
    {}

    template <typename Record, std::enable_if_t<isRecord<Record>, int> = 0>
    Parameter(Record *filled) : parameter{std::in_place_type<FilledRecord>, filled}
    {}

    template <typename T>
    Parameter(const char *name, T *number) : parameter{std::in_place_type<OutNumber>, name, number}
    {}

    const Content &content() const { return parameter; }

    /// Where the call reads a record, or fills in a number or a record; null for what it brings by value.
    const NumbersToRead *memory() const
    {
        const auto *const sent = std::get_if<SentRecord>(&parameter);
        return sent != nullptr ? &sent->record : filledMemory();
    }

    /// Where the call fills something in; null for what it only brings.
    const NumbersToFill *filledMemory() const
    {
        if (const auto *const out = std::get_if<OutNumber>(&parameter)) {
            return &out->number;
        }
        const auto *const filled = std::get_if<FilledRecord>(&parameter);
        return filled != nullptr ? &filled->record : nullptr;
    }

    /// Appends the numbers that it brings, NaN for a text.
    void appendNumbers(NumberList &numbers) const;

private:
    Content parameter;
};

/// The parameters of a call, in their order. They live until the call returns: never keep or return them.
using Parameters = std::initializer_list<Parameter>;

/// The numbers that a call brings, NaN in the place of a text.
NumberList numbersOf(Parameters parameters);

/// Sets what the call fills in to zero, unless that is to stay. False when a pointer to what the call reads
/// or fills in is null.
inline bool prepare(Parameters parameters, bool leavesOutputs)
{
    bool isAllThere{true};
    for (const Parameter &parameter : parameters) {
        if (std::holds_alternative<Number>(parameter.content())) {
            continue;
        }
        const NumbersToRead *const memory = parameter.memory();
        const NumbersToFill *const filled = parameter.filledMemory();
        if (memory != nullptr && !memory->isThere()) {
            isAllThere = false;
        } else if (filled != nullptr && !leavesOutputs) {
            filled->clear();
        }
    }
    return isAllThere;
}

/// Where a call puts its result.
class ResultPlace
{
public:
    /// Where a text goes.
    struct Text
    {
        const char **place;
    };

    /// Where a pointer to an object of the contract goes.
    struct Object
    {
        void *place;
        ObjectPointer (*read)(const void *place);
        void (*write)(void *place, const Objects *objects);
    };

    using Content = std::variant<std::monostate, NumbersToFill, Text, Object>;

    /// An operation without a result.
    ResultPlace() = default;

    template <typename T, std::enable_if_t<!std::is_pointer_v<T>, int> = 0>
    explicit ResultPlace(T *result) : target{NumbersToFill{result}}
    {}
    explicit ResultPlace(const char **result) : target{Text{result}} {}
    template <typename T>
    explicit ResultPlace(T **result) : target{Object{result, readObject<T>, writeObject<T>}}
    {}

    const Content &content() const { return target; }

private:
    template <typename T>
    static ObjectPointer readObject(const void *place)
    {
        return *static_cast<T *const *>(place);
    }

    /// Null objects make a null pointer.
    template <typename T>
    static void writeObject(void *place, const Objects *objects)
    {
        *static_cast<T **>(place) = objects != nullptr ? objects->get<T>() : nullptr;
    }

    Content target{};
};

} // namespace veltrix_simulator
