// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One call of the contract as a line of the trace.
#pragma once

#include "calls/calltext.h"
#include "veltrix_simulator/simulator.h"

#include <chrono>
#include <cmath>
#include <string>
#include <string_view>
#include <type_traits>

namespace veltrix_simulator
{

/// When a call began: the time of day, and a clock that never jumps for what it took.
struct CallTime
{
    std::chrono::system_clock::time_point timeOfDay;
    std::chrono::steady_clock::time_point steady;

    static CallTime now() { return {std::chrono::system_clock::now(), std::chrono::steady_clock::now()}; }
};

/// What a call was made on.
struct CallOrigin
{
    Interface interface;
    std::string_view operation;
    int target;
};

/// Appends a JSON string. What is no UTF-8 becomes the replacement character.
void appendJsonText(std::string &line, std::string_view text);

/// Sink that builds the trace's line of one call: an object of JSON, with a line feed. Numbers that JSON
/// does not have are the strings "nan", "inf" and "-inf".
class CallJson
{
public:
    explicit CallJson(std::string &itsLine) : line{itsLine} {}

    /// To be called when the call has been made: it settles how long the call took.
    void begin(const CallTime &begun, const CallOrigin &origin, bool reachable);
    void end() { line.append(hasOutputs ? "}}\n" : "}\n"); }

    template <typename T>
    void argument(const T &value)
    {
        line.append(line.back() == '[' ? "" : ",");
        append(value);
    }

    void endArguments() { line.push_back(']'); }

    template <typename T>
    void result(const T &value)
    {
        line.append(R"(,"result":)");
        append(value);
    }

    template <typename T>
    void output(const char *name, const T &value)
    {
        line.append(hasOutputs ? "," : R"(,"outputs":{)");
        hasOutputs = true;
        appendMember(name, value);
    }

    template <typename Record>
    void output(const Record &record)
    {
        forEachField(record, [&](const char *name, const auto &field) { output(name, field); });
    }

private:
    template <typename T>
    void append(const T &value)
    {
        if constexpr (isRecord<T>) {
            appendRecord(value);
        } else if constexpr (std::is_same_v<T, bool>) {
            line.append(value ? "true" : "false");
        } else if constexpr (std::is_floating_point_v<T>) {
            std::isfinite(value) ? appendNumber(line, value) : appendSpecial(static_cast<double>(value));
        } else if constexpr (std::is_arithmetic_v<T>) {
            appendNumber(line, value);
        } else if constexpr (std::is_null_pointer_v<T>) {
            line.append("null");
        } else if constexpr (std::is_same_v<T, ObjectName>) {
            append(std::string_view{value.text});
        } else {
            appendJsonText(line, value);
        }
    }

    template <typename Record>
    void appendRecord(const Record &record)
    {
        line.push_back('{');
        forEachField(record, [&](const char *name, const auto &field) {
            line.append(line.back() == '{' ? "" : ",");
            appendMember(name, field);
        });
        line.push_back('}');
    }

    template <typename T>
    void appendMember(const char *name, const T &value)
    {
        line.append(1, '"').append(name).append("\":");
        append(value);
    }

    void appendSpecial(double number)
    {
        line.append(std::isnan(number) ? R"("nan")" : number > 0 ? R"("inf")" : R"("-inf")");
    }

    std::string &line;
    bool hasOutputs{false};
};

} // namespace veltrix_simulator
