// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The parameters of an operation as the core sees them: shown, cleared and answered alike for all.
#pragma once

#include "recordfields.h"
#include "value.h"
#include "veltrix_sdk/sdk.h"

#include <charconv>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace veltrix_simulator
{

/// An out-parameter that is a single number, under the name that the journal shows.
template <typename T>
struct Out
{
    const char *name;
    T *number;
};

template <typename T>
Out(const char *, T *) -> Out<T>;

/// The objects of the contract, one of each.
using Objects = std::tuple<veltrix_sdk::IVeltrixSdk *, veltrix_sdk::ISdkConfiguration *,
                           veltrix_sdk::IDeviceManager *, veltrix_sdk::IDeviceControl *>;

template <typename Object>
constexpr const char *nameOf(const Object *object, const Objects &objects)
{
    constexpr std::tuple names{"sdk", "configuration", "manager", "device"};
    constexpr std::size_t place = std::is_same_v<Object, veltrix_sdk::IVeltrixSdk>         ? 0
                                  : std::is_same_v<Object, veltrix_sdk::ISdkConfiguration> ? 1
                                  : std::is_same_v<Object, veltrix_sdk::IDeviceManager>    ? 2
                                                                                           : 3;
    if (object == nullptr) {
        return "null";
    }
    return object == std::get<Object *>(objects) ? std::get<place>(names) : "unknown";
}

/// Sets what the call is to fill in to zero.
template <typename T>
void clear(const T & /*input*/)
{}

template <typename T>
void clear(const Out<T> &out)
{
    if (out.number != nullptr) {
        *out.number = T{};
    }
}

template <typename Record>
std::enable_if_t<isRecord<Record>> clear(Record *const &record)
{
    if constexpr (!std::is_const_v<Record>) {
        if (record != nullptr) {
            forEachField(*record, [](const char * /*name*/, auto &field) { field = {}; });
        }
    }
}

/// Whether what the call reads from or writes to is there.
template <typename T>
bool isPresent(const T & /*input*/)
{
    return true;
}

template <typename T>
bool isPresent(const Out<T> &out)
{
    return out.number != nullptr;
}

template <typename Record>
std::enable_if_t<isRecord<Record>, bool> isPresent(Record *const &record)
{
    return record != nullptr;
}

/// Appends the numbers that a parameter brings into the call, NaN in the place of a text.
template <typename T>
void appendNumbers(std::vector<double> &numbers, const T &input)
{
    if constexpr (std::is_arithmetic_v<T>) {
        numbers.push_back(static_cast<double>(input));
    } else if constexpr (std::is_same_v<T, const char *> || std::is_same_v<T, std::string_view>) {
        numbers.push_back(std::numeric_limits<double>::quiet_NaN());
    }
}

template <typename T>
void appendNumbers(std::vector<double> & /*numbers*/, const Out<T> & /*out*/)
{}

template <typename Record>
std::enable_if_t<isRecord<Record>> appendNumbers(std::vector<double> &numbers, Record *const &record)
{
    if (record == nullptr) {
        return;
    }
    if constexpr (std::is_const_v<Record>) {
        forEachField(*record,
                     [&](const char * /*name*/, const auto &field) { appendNumbers(numbers, field); });
    } else if constexpr (std::is_same_v<Record, veltrix_sdk::Warp>) {
        appendNumbers(numbers, record->stream);
    }
}

/// Hands the values of a fault's answer, converted when it was added, to what a call returns.
class AnswerReader
{
public:
    AnswerReader(const std::vector<Value> &itsAnswer, const Objects &itsObjects, std::string &itsText)
        : answer{itsAnswer}, objects{itsObjects}, heldText{itsText}
    {}

    template <typename Result>
    void takeResult(Result &result)
    {
        if constexpr (isRecord<Result>) {
            take(&result);
        } else if constexpr (std::is_same_v<Result, const char *>) {
            heldText = std::get<std::string>(answer[next++]);
            result = heldText.c_str();
        } else if constexpr (std::is_pointer_v<Result>) {
            result = std::get<bool>(answer[next++]) ? std::get<Result>(objects) : nullptr;
        } else if constexpr (std::is_arithmetic_v<Result>) {
            result = static_cast<Result>(toNumber(answer[next++]));
        }
    }

    template <typename T>
    void take(const T & /*input*/)
    {}

    template <typename T>
    void take(const Out<T> &out)
    {
        takeResult(*out.number);
    }

    template <typename Record>
    std::enable_if_t<isRecord<Record>> take(Record *const &record)
    {
        if constexpr (!std::is_const_v<Record>) {
            forEachField(*record, [&](const char * /*name*/, auto &field) { takeResult(field); });
        }
    }

private:
    const std::vector<Value> &answer;
    const Objects &objects;
    std::string &heldText;
    std::size_t next{0};
};

/// Builds the journal's line of one call.
class CallText
{
public:
    CallText(std::string &itsLine, const Objects &itsObjects) : line{itsLine}, objects{itsObjects} {}

    void begin(bool reachable, std::string_view operation)
    {
        line.assign(reachable ? "" : "NOT OPEN: ").append(operation).push_back('(');
    }

    /// What a parameter brings into the call. An out-parameter brings nothing, unless it is missing.
    template <typename T>
    void argument(const T &argument)
    {
        separate();
        append(argument);
    }

    template <typename T>
    void argument(const Out<T> &out)
    {
        if (out.number == nullptr) {
            argument(nullptr);
        }
    }

    template <typename Record>
    std::enable_if_t<isRecord<Record>> argument(Record *const &record)
    {
        if (record == nullptr) {
            argument(nullptr);
            return;
        }
        if constexpr (std::is_const_v<Record>) {
            separate();
            append(*record);
        } else if constexpr (std::is_same_v<Record, veltrix_sdk::Warp>) {
            argument(record->stream);
        }
    }

    template <typename Result>
    void result(const Result &result)
    {
        line.push_back(')');
        if constexpr (!std::is_empty_v<Result>) {
            line.append(" -> ");
            append(result);
        }
    }

    /// What a parameter brings out of the call.
    template <typename T>
    void output(const T & /*input*/)
    {}

    template <typename T>
    void output(const Out<T> &out)
    {
        if (out.number != nullptr) {
            line.append(" {").append(out.name).push_back('=');
            append(*out.number);
            line.push_back('}');
        }
    }

    template <typename Record>
    std::enable_if_t<isRecord<Record>> output(Record *const &record)
    {
        if constexpr (!std::is_const_v<Record>) {
            if (record != nullptr) {
                line.push_back(' ');
                append(*record);
            }
        }
    }

private:
    void separate()
    {
        if (line.back() != '(') {
            line.append(", ");
        }
    }

    template <typename T>
    void append(const T &value)
    {
        if constexpr (isRecord<T>) {
            appendRecord(value);
        } else if constexpr (std::is_same_v<T, bool>) {
            line.append(value ? "true" : "false");
        } else if constexpr (std::is_arithmetic_v<T>) {
            appendNumber(value);
        } else if constexpr (std::is_null_pointer_v<T>) {
            line.append("null");
        } else if constexpr (std::is_same_v<T, const char *>) {
            value != nullptr ? appendQuoted(value) : append(nullptr);
        } else if constexpr (std::is_same_v<T, std::string_view>) {
            appendQuoted(value);
        } else if constexpr (std::is_pointer_v<std::remove_pointer_t<T>>) {
            value != nullptr ? append(*value) : append(nullptr);
        } else {
            line.append(nameOf(value, objects));
        }
    }

    template <typename Record>
    void appendRecord(const Record &record)
    {
        line.push_back('{');
        forEachField(record, [&](const char *name, const auto &field) {
            if (line.back() != '{') {
                line.append(", ");
            }
            line.append(name).push_back('=');
            append(field);
        });
        line.push_back('}');
    }

    template <typename T>
    void appendNumber(T number)
    {
        // The longest number is a negative double in the shortest form that reads back.
        char digits[32];
        const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        line.append(digits, end);
    }

    void appendQuoted(std::string_view text)
    {
        line.push_back('"');
        for (const char character : text) {
            if (character == '"' || character == '\\' || character == '\n') {
                line.push_back('\\');
            }
            line.push_back(character == '\n' ? 'n' : character);
        }
        line.push_back('"');
    }

    std::string &line;
    const Objects &objects;
};

} // namespace veltrix_simulator
