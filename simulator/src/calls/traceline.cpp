// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One call as a line of the trace.
#include "calls/traceline.h"

#include "calls/callwriter.h"
#include "calls/numbersat.h"
#include "operations/operations.h"
#include "output/clock.h"
#include "units/configurationfields.h"
#include "units/recordmembers.h"
#include "values/numbertext.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>

namespace veltrix_simulator
{
namespace
{

// In the order of Missing; after the name of the operation.
constexpr std::array<const char *, 3> missingKeys{R"(")", R"(","notOpen":true)", R"(","notHeld":true)"};

/// The form of the trace.
class TraceForm
{
public:
    explicit TraceForm(std::string &itsLine) : line{itsLine} {}

    template <typename T>
    void argument(const T &value)
    {
        if (line.back() != '[') {
            line.push_back(',');
        }
        append(value);
    }

    void endArguments() { line.push_back(']'); }

    template <typename T>
    void result(const T &value)
    {
        line.append(R"(,"result":)");
        append(value);
    }

    void output(std::string_view name, const Number &number)
    {
        line.append(hasOutputs ? "," : R"(,"outputs":{)");
        hasOutputs = true;
        appendMember(name, number);
    }

    void output(const NumbersToRead &record)
    {
        for (const Member &member : record.members()) {
            output(member.name, {member.kind, record.at(member)});
        }
    }

    void output(const Words &words)
    {
        // The operation that answers them fills in nothing else.
        line.append(R"(,"outputs":{"words":)");
        hasOutputs = true;
        append(words, nullptr);
    }

    /// The words that differ from before; all of them without.
    void append(const Words &words, const Words *before)
    {
        char separator{'{'};
        for (const WordRow &row : configurationWords) {
            if (before == nullptr || words.*row.word != before->*row.word) {
                line.push_back(separator);
                appendMember(row.key, {Kind::Signed32, static_cast<double>(words.*row.word)});
                separator = ',';
            }
        }
        line.push_back('}');
    }

    void end() { line.append(hasOutputs ? "}}\n" : "}\n"); }

private:
    void append(std::nullptr_t) { line.append("null"); }

    void append(const Number &number)
    {
        if (std::isfinite(number.value)) {
            appendPlain(line, number.kind, number.value);
        } else {
            line.append(std::isnan(number.value) ? R"("nan")" : number.value > 0 ? R"("inf")" : R"("-inf")");
        }
    }

    void append(std::string_view text) { appendJsonText(line, text); }

    void append(const ObjectName &object) { appendJsonText(line, object.text); }

    void append(const NumbersToRead &record)
    {
        char separator{'{'};
        for (const Member &member : record.members()) {
            line.push_back(separator);
            appendMember(member.name, {member.kind, record.at(member)});
            separator = ',';
        }
        line.push_back('}');
    }

    void appendMember(std::string_view name, const Number &number)
    {
        line.append(1, '"').append(name).append("\":");
        append(number);
    }

    std::string &line;
    bool hasOutputs{false};
};

void beginLine(std::string &line, std::chrono::system_clock::time_point time, std::int64_t microseconds,
               Interface interface)
{
    line.assign(R"({"time":")").append(formatTime(time, Precision::Microseconds));
    line.append(R"(","microseconds":)").append(std::to_string(microseconds));
    line.append(R"(,"interface":")").append(interfaceNames[static_cast<std::size_t>(interface)]);
}

} // namespace

void appendJsonText(std::string &line, std::string_view text)
{
    using nlohmann::json;
    line.append(json(text).dump(-1, ' ', false, json::error_handler_t::replace));
}

void writeTraceLine(std::string &line, const CallTime &begun, const CallOrigin &origin,
                    const Objects &objects, Parameters parameters, const ResultPlace &result,
                    const Words *words)
{
    using namespace std::chrono;
    const auto took = duration_cast<microseconds>(steady_clock::now() - begun.steady);
    beginLine(line, begun.timeOfDay, took.count(), origin.interface);
    line.append(R"(","target":)").append(std::to_string(origin.target));
    line.append(R"(,"operation":")").append(origin.operation);
    line.append(missingKeys[static_cast<std::size_t>(origin.missing)]).append(R"(,"arguments":[)");
    TraceForm form{line};
    CallWriter{form, objects}.write(parameters, result);
    if (words != nullptr) {
        form.output(*words);
    }
    form.end();
}

void writeWordsLine(std::string &line, const Words &words, const Words &before)
{
    beginLine(line, std::chrono::system_clock::now(), 0, Interface::Configuration);
    line.append(R"(","operation":"write","arguments":[)");
    TraceForm form{line};
    form.append(words, &before);
    form.endArguments();
    form.end();
}

} // namespace veltrix_simulator
