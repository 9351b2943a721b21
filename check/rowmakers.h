// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the rows of the device's table are made: operations of one number, records, settings.
#pragma once

#include "readings.h"

#include <cmath>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace sdk_check
{

using Device = veltrix_sdk::IDeviceControl;

/// The number as a type of the contract; what the type cannot hold becomes its nearest limit, a NaN 0.
template <typename Number>
Number as(double number)
{
    if constexpr (std::is_same_v<Number, bool>) {
        return number != 0.0;
    } else if constexpr (std::is_same_v<Number, double>) {
        return number;
    } else {
        using Limits = std::numeric_limits<Number>;
        if (number >= static_cast<double>(Limits::max())) {
            return Limits::max();
        }
        if (number <= static_cast<double>(Limits::lowest())) {
            return Limits::lowest();
        }
        return std::isnan(number) ? Number{} : static_cast<Number>(number);
    }
}

inline Allowed onOff()
{
    return {0, 1, {}, true};
}

/// An operation whose result is the answer.
template <typename Number>
Reading value(UsedOn usedOn, std::string get, Number (Device::*read)(), Allowed allowed, bool steady = true)
{
    return {std::move(get),
            {},
            usedOn,
            {{{}, std::move(allowed)}},
            steady,
            [read](Device &device, Values &answer) {
                answer[0] = static_cast<double>((device.*read)());
                return std::uint8_t{1};
            }};
}

/// Gives a row of one number its setter.
template <typename Sent>
Reading with(Reading row, std::string set, bool (Device::*write)(Sent))
{
    row.set = std::move(set);
    row.write = [write](Device &device, const Values &sent) {
        return (device.*write)(as<Sent>(sent[0]));
    };
    return row;
}

/// A setting of one number whose getter answers it as its result.
template <typename Number, typename Sent>
Reading setting(UsedOn usedOn, std::string get, Number (Device::*read)(), std::string set,
                bool (Device::*write)(Sent), Allowed allowed)
{
    return with(value(usedOn, std::move(get), read, std::move(allowed)), std::move(set), write);
}

/// A setting of one byte whose getter fills it in.
template <typename Sent>
Reading filledSetting(UsedOn usedOn, std::string get, bool (Device::*read)(std::uint8_t *), std::string set,
                      bool (Device::*write)(Sent), Allowed allowed)
{
    const auto fill = [read](Device &device, Values &answer) {
        std::uint8_t number{0};
        const bool acknowledged{(device.*read)(&number)};
        answer[0] = number;
        return static_cast<std::uint8_t>(acknowledged);
    };
    return with({std::move(get), {}, usedOn, {{{}, std::move(allowed)}}, true, fill}, std::move(set), write);
}

/// A number of a record, with its way out of the record and back into it.
template <typename Record>
struct RecordField
{
    Field field;
    double (*get)(const Record &);
    void (*set)(Record &, double);
};

template <typename Member>
struct MemberOf;

template <typename R, typename T>
struct MemberOf<T R::*>
{
    using Record = R;
    using Number = T;
};

template <auto Member>
RecordField<typename MemberOf<decltype(Member)>::Record> number(Field field)
{
    using Record = typename MemberOf<decltype(Member)>::Record;
    using Number = typename MemberOf<decltype(Member)>::Number;
    return {std::move(field), [](const Record &record) { return static_cast<double>(record.*Member); },
            [](Record &record, double value) {
                record.*Member = as<Number>(value);
            }};
}

/// An operation that answers a record. `read` takes the device and a zeroed record and returns the result.
template <typename Record, typename Read>
Reading record(UsedOn usedOn, std::string get, std::vector<RecordField<Record>> numbers, Read read,
               bool steady = true)
{
    std::vector<Field> fields;
    fields.reserve(numbers.size());
    for (const RecordField<Record> &entry : numbers) {
        fields.push_back(entry.field);
    }
    const auto fill = [numbers = std::move(numbers), read](Device &device, Values &answer) {
        Record filled{};
        const auto result = static_cast<std::uint8_t>(read(device, filled));
        for (std::size_t place{0}; place < numbers.size(); ++place) {
            answer[place] = numbers[place].get(filled);
        }
        return result;
    };
    return {std::move(get), {}, usedOn, std::move(fields), steady, fill};
}

/// An operation that fills a record in.
template <typename Record, typename Result>
Reading filledRecord(UsedOn usedOn, std::string get, Result (Device::*read)(Record *),
                     std::vector<RecordField<Record>> numbers, bool steady = true)
{
    return record<Record>(
        usedOn, std::move(get), std::move(numbers),
        [read](Device &device, Record &filled) { return (device.*read)(&filled); }, steady);
}

} // namespace sdk_check
