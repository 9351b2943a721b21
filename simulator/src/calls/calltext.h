// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The parameters of an operation as the core sees them: shown, cleared and answered alike for all.
#pragma once

#include "units/recordfields.h"
#include "values/value.h"
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

/// Stands for an object of the contract where a call is shown.
struct ObjectName
{
    const char *text;
};

/// Hands a parameter or a result to the function as what is shown of it: a record, a number, a bool, a
/// text (std::string_view), an ObjectName, or nullptr for what is missing.
template <typename T, typename Function>
void show(const T &value, const Objects &objects, const Function &function)
{
    if constexpr (std::is_same_v<T, const char *>) {
        value != nullptr ? function(std::string_view{value}) : function(nullptr);
    } else if constexpr (std::is_pointer_v<std::remove_pointer_t<T>>) {
        value != nullptr ? show(*value, objects, function) : function(nullptr);
    } else if constexpr (std::is_pointer_v<T>) {
        value != nullptr ? function(ObjectName{nameOf(value, objects)}) : function(nullptr);
    } else {
        function(value);
    }
}

/// Walks through a call and hands a sink all that there is to show.
template <typename Sink>
class CallWalk
{
public:
    CallWalk(Sink &itsSink, const Objects &itsObjects) : sink{itsSink}, objects{itsObjects} {}

    /// What a parameter brings into the call. An out-parameter brings nothing, unless it is missing.
    template <typename T>
    void argument(const T &argument) const
    {
        show(argument, objects, [&](const auto &shown) { sink.argument(shown); });
    }

    template <typename T>
    void argument(const Out<T> &out) const
    {
        if (out.number == nullptr) {
            sink.argument(nullptr);
        }
    }

    template <typename Record>
    std::enable_if_t<isRecord<Record>> argument(Record *const &record) const
    {
        if (record == nullptr) {
            sink.argument(nullptr);
            return;
        }
        if constexpr (std::is_const_v<Record>) {
            sink.argument(*record);
        } else if constexpr (std::is_same_v<Record, veltrix_sdk::Warp>) {
            sink.argument(record->stream);
        }
    }

    /// An empty result is that of an operation that has none.
    template <typename Result>
    void result(const Result &result) const
    {
        sink.endArguments();
        if constexpr (!std::is_empty_v<Result>) {
            show(result, objects, [&](const auto &shown) { sink.result(shown); });
        }
    }

    /// What a parameter brings out of the call.
    template <typename T>
    void output(const T & /*input*/) const
    {}

    template <typename T>
    void output(const Out<T> &out) const
    {
        if (out.number != nullptr) {
            sink.output(out.name, *out.number);
        }
    }

    template <typename Record>
    std::enable_if_t<isRecord<Record>> output(Record *const &record) const
    {
        if constexpr (!std::is_const_v<Record>) {
            if (record != nullptr) {
                sink.output(*record);
            }
        }
    }

private:
    Sink &sink;
    const Objects &objects;
};

/// Shows a whole call to a sink: its arguments, its result and what it filled in.
template <typename Sink, typename Result, typename... Parameters>
void showCall(Sink &sink, const Objects &objects, const Result &result, const Parameters &...parameters)
{
    const CallWalk<Sink> walk{sink, objects};
    (walk.argument(parameters), ...);
    walk.result(result);
    (walk.output(parameters), ...);
}

/// Appends a number in the shortest form that reads back.
template <typename T>
void appendNumber(std::string &line, T number)
{
    // The longest is a negative double.
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    line.append(digits, end);
}

/// Sink that builds the journal's line of one call.
class CallText
{
public:
    explicit CallText(std::string &itsLine) : line{itsLine} {}

    void begin(bool reachable, std::string_view operation)
    {
        line.assign(reachable ? "" : "NOT OPEN: ").append(operation).push_back('(');
    }

    template <typename T>
    void argument(const T &value)
    {
        line.append(line.back() == '(' ? "" : ", ");
        append(value);
    }

    void endArguments() { line.push_back(')'); }

    template <typename T>
    void result(const T &value)
    {
        line.append(" -> ");
        append(value);
    }

    template <typename T>
    void output(const char *name, const T &value)
    {
        line.append(" {").append(name).push_back('=');
        append(value);
        line.push_back('}');
    }

    template <typename Record>
    void output(const Record &record)
    {
        line.push_back(' ');
        append(record);
    }

private:
    template <typename T>
    void append(const T &value)
    {
        if constexpr (isRecord<T>) {
            appendRecord(value);
        } else if constexpr (std::is_same_v<T, bool>) {
            line.append(value ? "true" : "false");
        } else if constexpr (std::is_arithmetic_v<T>) {
            appendNumber(line, value);
        } else if constexpr (std::is_null_pointer_v<T>) {
            line.append("null");
        } else if constexpr (std::is_same_v<T, ObjectName>) {
            line.append(value.text);
        } else {
            appendQuoted(value);
        }
    }

    template <typename Record>
    void appendRecord(const Record &record)
    {
        line.push_back('{');
        forEachField(record, [&](const char *name, const auto &field) {
            line.append(line.back() == '{' ? "" : ", ").append(name).push_back('=');
            append(field);
        });
        line.push_back('}');
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
};

} // namespace veltrix_simulator
