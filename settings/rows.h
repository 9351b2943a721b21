// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the rows of the device's table are made: values, settings of one number, records.
#pragma once

#include "devicesettings.h"
#include "values.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/kinds.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace device_settings
{

/// An operation of an interface with its name.
template <typename Call>
struct Operation
{
    const char *name;
    Call call;
};

template <typename Call>
Operation(const char *, Call) -> Operation<Call>;

/// Name and call of an operation of the device.
#define DEVICE_OPERATION(operation) (Operation{#operation, &veltrix_sdk::IDeviceControl::operation})

using veltrix_sdk::kindOf;

/// The number as a type of the contract; what the type cannot hold becomes its nearest limit, a NaN 0.
template <typename Number>
Number as(double number)
{
    if constexpr (std::is_same_v<Number, bool>) {
        return number != 0.0;
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
    return between(0, 1);
}

/// An operation that reads: as its result, or into what its caller provides.
template <typename Call>
struct Getter;

template <typename T>
struct Getter<T (Device::*)()>
{
    using Answer = T;

    static std::uint8_t read(Device &device, T (Device::*call)(), T &answer)
    {
        answer = (device.*call)();
        return 1;
    }
};

template <typename Result, typename T>
struct Getter<Result (Device::*)(T *)>
{
    using Answer = T;

    static std::uint8_t read(Device &device, Result (Device::*call)(T *), T &answer)
    {
        return static_cast<std::uint8_t>((device.*call)(&answer));
    }
};

/// An operation that takes its numbers one by one: as many first fields of a setting as it has arguments.
template <typename Call>
struct Setter;

template <typename... Sent>
struct Setter<bool (Device::*)(Sent...)>
{
    static constexpr std::size_t count{sizeof...(Sent)};
    /// Whether each of the numbers loses its fraction on the way.
    static constexpr bool whole[]{std::is_integral_v<Sent>...};

    static bool write(Device &device, bool (Device::*call)(Sent...), const Values &values)
    {
        return write(device, call, values, std::index_sequence_for<Sent...>{});
    }

private:
    template <std::size_t... place>
    static bool write(Device &device, bool (Device::*call)(Sent...), const Values &values,
                      std::index_sequence<place...> /*places*/)
    {
        return (device.*call)(as<Sent>(values[place])...);
    }
};

/// A setting whose setter takes its numbers one by one. What the setter does not take, the device derives.
template <typename Set>
Setting written(Setting setting, Operation<Set> set)
{
    for (std::size_t place{0}; place < setting.fields.size(); ++place) {
        Field &field = setting.fields[place];
        field.derived = place >= Setter<Set>::count;
        field.sentWhole =
            !field.derived && Setter<Set>::whole[place] && veltrix_sdk::hasFractions(field.kind);
    }
    setting.set = set.name;
    setting.write = [call = set.call](Device &device, const Values &sent, RegionFlags /*flags*/) {
        return Setter<Set>::write(device, call, sent);
    };
    return setting;
}

/// One number that the device answers and nobody writes.
template <typename Get>
Setting number(const char *key, UsedOn usedOn, Operation<Get> get, Allowed allowed, const char *meaning,
               const char *quantity = "")
{
    using Number = typename Getter<Get>::Answer;
    return {key,
            usedOn,
            {{{}, kindOf<Number>(), std::move(allowed), meaning, quantity}},
            get.name,
            {},
            [call = get.call](Device &device, Values &answer) {
                Number filled{};
                const std::uint8_t result{Getter<Get>::read(device, call, filled)};
                answer[0] = static_cast<double>(filled);
                return result;
            }};
}

/// A setting of one number.
template <typename Get, typename Set>
Setting number(const char *key, UsedOn usedOn, Operation<Get> get, Operation<Set> set, Allowed allowed,
               const char *meaning, const char *quantity = "")
{
    return written(number(key, usedOn, get, std::move(allowed), meaning, quantity), set);
}

/// A number of a record, with its way out of the record and back into it.
template <typename Record>
struct RecordField
{
    Field field;
    double (*get)(const Record &);
    void (*set)(Record &, double);
};

template <typename Record>
using RecordFields = std::vector<RecordField<Record>>;

template <typename Member>
struct MemberOf;

template <typename R, typename T>
struct MemberOf<T R::*>
{
    using Record = R;
    using Number = T;
};

template <auto Member>
using RecordOf = typename MemberOf<decltype(Member)>::Record;

/// One member of a record.
template <auto Member>
RecordField<RecordOf<Member>> field(const char *name, Allowed allowed, const char *meaning,
                                    const char *quantity = "")
{
    using Record = RecordOf<Member>;
    using Number = typename MemberOf<decltype(Member)>::Number;
    return {{name, kindOf<Number>(), std::move(allowed), meaning, quantity},
            [](const Record &record) { return static_cast<double>(record.*Member); },
            [](Record &record, double value) {
                record.*Member = as<Number>(value);
            }};
}

/// A record that `read` answers: it takes the device and a zeroed record and returns the result.
template <typename Record, typename Read>
Setting recordBy(Read read, std::string key, UsedOn usedOn, const char *get, RecordFields<Record> fields)
{
    std::vector<Field> plain;
    plain.reserve(fields.size());
    for (const RecordField<Record> &each : fields) {
        plain.push_back(each.field);
    }
    return {std::move(key),
            usedOn,
            std::move(plain),
            get,
            {},
            [fields = std::move(fields), read](Device &device, Values &answer) {
                Record filled{};
                const std::uint8_t result{read(device, filled)};
                for (std::size_t place{0}; place < fields.size(); ++place) {
                    answer[place] = fields[place].get(filled);
                }
                return result;
            }};
}

/// A record that the device answers and nobody writes.
template <typename Get>
Setting record(const char *key, UsedOn usedOn, Operation<Get> get,
               RecordFields<typename Getter<Get>::Answer> fields)
{
    using Record = typename Getter<Get>::Answer;
    const auto read = [call = get.call](Device &device, Record &filled) {
        return Getter<Get>::read(device, call, filled);
    };
    return recordBy<Record>(read, key, usedOn, get.name, std::move(fields));
}

/// A setting whose setter takes the record as a whole.
template <typename Record>
Setting writtenWhole(Setting setting, Operation<bool (Device::*)(const Record *)> set,
                     RecordFields<Record> fields)
{
    setting.set = set.name;
    setting.write = [call = set.call, fields = std::move(fields)](Device &device, const Values &sent,
                                                                  RegionFlags /*flags*/) {
        Record changed{};
        for (std::size_t place{0}; place < fields.size(); ++place) {
            fields[place].set(changed, sent[place]);
        }
        return (device.*call)(&changed);
    };
    return setting;
}

/// A record whose setter takes its numbers one by one or as a whole.
template <typename Get, typename Set>
Setting record(const char *key, UsedOn usedOn, Operation<Get> get, Operation<Set> set,
               RecordFields<typename Getter<Get>::Answer> fields)
{
    using Record = typename Getter<Get>::Answer;
    Setting setting = record(key, usedOn, get, fields);
    if constexpr (std::is_same_v<Set, bool (Device::*)(const Record *)>) {
        return writtenWhole<Record>(std::move(setting), set, std::move(fields));
    } else {
        return written(std::move(setting), set);
    }
}

/// A setting of one number whose numbers have names.
inline Setting called(Setting setting, const std::vector<std::string> &words)
{
    setting.fields.front().words = words;
    return setting;
}

/// The same of one number of a record.
template <typename Record>
RecordField<Record> called(RecordField<Record> number, const std::vector<std::string> &words)
{
    number.field.words = words;
    return number;
}

/// A setting of one number that operators count otherwise.
inline Setting counted(Setting setting, const Scale &scale)
{
    setting.fields.front().scale = scale;
    return setting;
}

/// The same of one number of a record.
template <typename Record>
RecordField<Record> counted(RecordField<Record> number, const Scale &scale)
{
    number.field.scale = scale;
    return number;
}

/// What is answered whatever the result says.
inline Setting notExamined(Setting setting)
{
    setting.resultCounts = false;
    return setting;
}

/// Marks a value that changes by itself, such as a temperature.
inline Setting moving(Setting setting)
{
    setting.steady = false;
    return setting;
}

} // namespace device_settings
