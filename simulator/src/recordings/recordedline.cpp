// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One line of a recording as JSON.
#include "recordings/recordedline.h"

#include "output/clock.h"
#include "output/wording.h"
#include "units/recordmembers.h"
#include "units/unitnames.h"
#include "values/jsonvalue.h"
#include "values/value.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace veltrix_simulator
{
namespace
{

using nlohmann::json;
using Shape = Passed::Shape;

constexpr int traceForm{1};
// Objects and lists inside each other: the line, its outputs, the words in them.
constexpr int deepestLine{3};
// A year; a call of the contract takes less.
constexpr std::int64_t longestMicroseconds{31'536'000'000'000};
constexpr std::string_view writeName{"write"};

[[noreturn]] void refuseLine(std::string reason)
{
    throw LineError{std::move(reason)};
}

bool isTooDeep(std::string_view text)
{
    int depth{0};
    bool inText{false};
    for (std::size_t place{0}; place < text.size(); ++place) {
        const char character{text[place]};
        if (inText) {
            inText = character != '"';
            place += character == '\\' ? 1 : 0;
        } else if (character == '{' || character == '[') {
            if (++depth > deepestLine) {
                return true;
            }
        } else if (character == '}' || character == ']') {
            --depth;
        } else {
            inText = character == '"';
        }
    }
    return false;
}

json parseJson(std::string_view text)
{
    if (isTooDeep(text)) {
        refuseLine("the line is nested too deep");
    }
    json line = json::parse(text, nullptr, false);
    if (line.is_discarded() || !line.is_object()) {
        refuseLine("the line is no object of JSON");
    }
    return line;
}

/// The value of a key, which has to be there.
const json &member(const json &object, const char *key)
{
    const auto found = object.find(key);
    if (found == object.end()) {
        refuseLine(inQuotes(key) + " is missing");
    }
    return *found;
}

std::string textOf(const json &object, const char *key)
{
    const json &value = member(object, key);
    if (!value.is_string()) {
        refuseLine(inQuotes(key) + " is no text");
    }
    return value.get<std::string>();
}

std::int64_t integerOf(const json &object, const char *key, std::int64_t least, std::int64_t greatest)
{
    const std::optional<Value> value = valueOf(member(object, key));
    const auto *const integer = value ? std::get_if<std::int64_t>(&*value) : nullptr;
    if (integer == nullptr || *integer < least || *integer > greatest) {
        refuseLine(inQuotes(key) + " is no integer from " + std::to_string(least) + " to " +
                   std::to_string(greatest));
    }
    return *integer;
}

std::chrono::microseconds timeOf(const json &object)
{
    const std::optional<std::chrono::microseconds> time = parseTime(textOf(object, "time"));
    if (!time) {
        refuseLine(R"("time" is no time such as 2026-03-14T09:26:53.589793Z)");
    }
    return *time;
}

RecordedHeader headerOf(const json &line)
{
    if (line["trace"] != traceForm) {
        refuseLine("its form is not " + std::to_string(traceForm) + ", the only one that this program knows");
    }
    const bool isOfProgram{line.contains("program")};
    const std::string name{textOf(line, isOfProgram ? "program" : "scenario")};
    return {isOfProgram ? name : "the scenario " + name, timeOf(line)};
}

void refuseOtherKeys(const json &line)
{
    constexpr std::string_view known[]{"time",    "microseconds", "interface", "target", "operation",
                                       "notOpen", "notHeld",      "arguments", "result", "outputs"};
    for (const auto &item : line.items()) {
        if (std::find(std::begin(known), std::end(known), item.key()) == std::end(known)) {
            refuseLine(inQuotes(item.key()) + " is unknown here");
        }
    }
}

std::vector<RecordedWord> wordsOf(const json &object)
{
    if (!object.is_object()) {
        refuseLine("the words of the configuration are no object");
    }
    std::vector<RecordedWord> words;
    for (const WordRow &row : configurationWords) {
        const auto found = object.find(row.key);
        if (found == object.end()) {
            continue;
        }
        const std::optional<Value> given = valueOf(*found);
        const std::optional<Value> value = given ? convert(*given, Kind::Signed32) : std::nullopt;
        if (!value) {
            refuseLine(inQuotes(row.key) + " takes " + std::string{describe(Kind::Signed32)});
        }
        words.emplace_back(&row, static_cast<std::int32_t>(std::get<std::int64_t>(*value)));
    }
    if (words.size() != object.size()) {
        refuseLine("the configuration has no such words");
    }
    return words;
}

RecordedWrite writeOf(const json &line)
{
    const json &arguments = member(line, "arguments");
    if (!arguments.is_array() || arguments.size() != 1) {
        refuseLine(R"("arguments" of "write" is no list of one object)");
    }
    return {timeOf(line), wordsOf(arguments.front())};
}

const Operation &operationNamed(const std::string &name)
{
    static const std::unordered_map<std::string_view, const Operation *> byName = [] {
        std::unordered_map<std::string_view, const Operation *> map;
        for (const Operation &operation : allOperations()) {
            map.emplace(operation.name, &operation);
        }
        return map;
    }();
    const auto found = byName.find(name);
    if (found == byName.end()) {
        refuseLine("there is no operation " + inQuotes(name));
    }
    return *found->second;
}

/// A number or a truth value of this kind. What JSON does not have is a text.
Value numberOf(const json &value, Kind kind, std::string_view name)
{
    std::optional<Value> given = valueOf(value);
    if (hasFractions(kind) && value.is_number_integer() && !value.is_number_unsigned() && value == 0) {
        // The parser takes "-0" for an integer, and then only its type tells the sign.
        given = -0.0;
    } else if (value.is_string()) {
        constexpr double infinity{std::numeric_limits<double>::infinity()};
        if (value == "nan") {
            given = std::numeric_limits<double>::quiet_NaN();
        } else if (value == "inf" || value == "-inf") {
            given = value == "inf" ? infinity : -infinity;
        }
    }
    std::optional<Value> converted = given ? convert(*given, kind) : std::nullopt;
    if (!converted) {
        refuseLine(inQuotes(name) + " takes " + std::string{describe(kind)});
    }
    return *std::move(converted);
}

/// The members of a record, in their order.
std::vector<Value> recordOf(const json &object, const Members &members, std::string_view name)
{
    if (!object.is_object() || object.size() != members.count) {
        refuseLine(inQuotes(name) + " has not the members of its record");
    }
    std::vector<Value> values;
    values.reserve(members.count);
    for (const Member &each : members) {
        const auto found = object.find(each.name);
        if (found == object.end()) {
            refuseLine(inQuotes(name) + " has no " + inQuotes(each.name));
        }
        values.push_back(numberOf(*found, each.kind, each.name));
    }
    return values;
}

/// The name of an object or of a number, which is a word; the text is what is said of another.
std::string nameIn(const std::string &name, const char *otherwise)
{
    constexpr std::size_t longestName{64};
    const bool isWord = std::all_of(name.begin(), name.end(), [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
               (letter >= '0' && letter <= '9');
    });
    if (name.empty() || name.size() > longestName || !isWord) {
        refuseLine(inQuotes(name) + otherwise);
    }
    return name;
}

/// Reads the arguments of a call.
class ArgumentReader
{
public:
    ArgumentReader(const json &itsList, RecordedCall &itsCall) : list{itsList}, call{itsCall} {}

    void read()
    {
        if (!list.is_array()) {
            refuseLine(R"("arguments" is no list)");
        }
        for (const Passed &parameter : call.operation->parameters) {
            read(parameter);
        }
        if (place != list.size()) {
            refuseLine(R"("arguments" are too many)");
        }
    }

private:
    void read(const Passed &parameter)
    {
        const bool isFilledAlone{parameter.isFilled && !parameter.brought};
        if (place == list.size()) {
            if (!isFilledAlone) {
                refuseLine(R"("arguments" are too few)");
            }
            return;
        }
        const json &value = list[place++];
        const bool canBeNull{parameter.shape != Shape::Number || parameter.isFilled};
        if (value.is_null() && canBeNull) {
            call.arguments.emplace_back(nullptr);
        } else if (isFilledAlone) {
            refuseLine(R"("arguments" are too many)");
        } else if (parameter.shape == Shape::Text || parameter.shape == Shape::Object) {
            if (!value.is_string()) {
                refuseLine("an argument is no text");
            }
            const std::string text{value.get<std::string>()};
            call.arguments.emplace_back(
                parameter.shape == Shape::Text ? text : nameIn(text, " is no object of the contract"));
        } else if (parameter.shape == Shape::Record && !parameter.isFilled) {
            for (const Value &number : recordOf(value, parameter.members, "arguments")) {
                call.arguments.emplace_back(toNumber(number));
            }
        } else {
            const Kind kind{parameter.brought ? *parameter.brought : parameter.kind};
            call.arguments.emplace_back(toNumber(numberOf(value, kind, "arguments")));
        }
    }

    const json &list;
    RecordedCall &call;
    std::size_t place{0};
};

void readResult(const json &line, RecordedCall &call)
{
    const Passed &result = call.operation->result;
    if (result.shape == Shape::Nothing) {
        if (line.contains("result")) {
            refuseLine(R"(the operation has no "result")");
        }
        return;
    }
    const json &value = member(line, "result");
    switch (result.shape) {
    case Shape::Record:
        call.answer = recordOf(value, result.members, "result");
        return;
    case Shape::Number:
        call.answer.push_back(numberOf(value, result.kind, "result"));
        return;
    default:
        break;
    }
    if (!value.is_null() && !value.is_string()) {
        refuseLine(R"("result" is no text)");
    }
    std::string text;
    if (!value.is_null()) {
        text = value.get<std::string>();
    }
    if (result.shape == Shape::Text) {
        call.answer.emplace_back(text);
        return;
    }
    call.answer.emplace_back(!value.is_null());
    if (!value.is_null()) {
        call.name = nameIn(text, " is no object of the contract");
    }
}

void readOutputs(const json &outputs, RecordedCall &call)
{
    if (!outputs.is_object()) {
        refuseLine(R"("outputs" is no object)");
    }
    if (call.operation->id == OperationId::getConfiguration) {
        if (outputs.size() != 1) {
            refuseLine(R"("outputs" has more than "words")");
        }
        call.words = wordsOf(member(outputs, "words"));
        return;
    }
    for (const Passed &parameter : call.operation->parameters) {
        if (!parameter.isFilled) {
            continue;
        }
        call.hasOutputs = true;
        if (parameter.shape == Shape::Record) {
            for (Value &value : recordOf(outputs, parameter.members, "outputs")) {
                call.answer.push_back(std::move(value));
            }
        } else {
            if (outputs.size() != 1) {
                refuseLine(R"("outputs" is not one number)");
            }
            call.name = nameIn(outputs.begin().key(), " is no name of an output");
            call.answer.push_back(numberOf(*outputs.begin(), parameter.kind, call.name));
        }
    }
    if (!call.hasOutputs) {
        refuseLine(R"(the operation has no "outputs")");
    }
}

bool isTrue(const json &line, const char *key)
{
    const auto found = line.find(key);
    if (found != line.end() && *found != true) {
        refuseLine(inQuotes(key) + " is not true");
    }
    return found != line.end();
}

RecordedCall callOf(const json &line)
{
    RecordedCall call;
    call.time = timeOf(line);
    call.took = std::chrono::microseconds{integerOf(line, "microseconds", 0, longestMicroseconds)};
    using Targets = std::numeric_limits<std::int32_t>;
    call.target = static_cast<std::int32_t>(integerOf(line, "target", Targets::min(), Targets::max()));
    call.operation = &operationNamed(textOf(line, "operation"));
    if (textOf(line, "interface") != interfaceNames[static_cast<std::size_t>(call.operation->interface)]) {
        refuseLine(inQuotes(call.operation->name) + R"( belongs to another "interface")");
    }
    if (isTrue(line, "notOpen")) {
        call.missing = Missing::Device;
    } else if (isTrue(line, "notHeld")) {
        call.missing = Missing::Manager;
    }
    ArgumentReader{member(line, "arguments"), call}.read();
    readResult(line, call);
    if (const auto outputs = line.find("outputs"); outputs != line.end()) {
        readOutputs(*outputs, call);
    }
    return call;
}

} // namespace

RecordedLine parseRecordedLine(std::string_view text)
{
    const json line = parseJson(text);
    if (line.contains("trace")) {
        return headerOf(line);
    }
    refuseOtherKeys(line);
    if (const auto name = line.find("operation"); name != line.end() && *name == writeName) {
        return writeOf(line);
    }
    return callOf(line);
}

} // namespace veltrix_simulator
