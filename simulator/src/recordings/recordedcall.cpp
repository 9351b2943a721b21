// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the lines of a recording say.
#include "recordings/recordedcall.h"

#include "units/recordmembers.h"
#include "units/unitnames.h"
#include "values/numbertext.h"
#include "values/value.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace veltrix_simulator
{
namespace
{

using Shape = Passed::Shape;

bool hasResult(const RecordedCall &call)
{
    return call.operation->result.shape != Shape::Nothing;
}

/// How many values of the answer the result is.
std::size_t resultCount(const Operation &operation)
{
    switch (operation.result.shape) {
    case Shape::Nothing:
        return 0;
    case Shape::Record:
        return operation.result.members.count;
    default:
        return 1;
    }
}

/// Whether the result only says whether something was done.
bool acknowledges(const Operation &operation)
{
    return isCommand(operation) || resultCount(operation) < operation.answer.size() ||
           (operation.role == Role::Other && operation.result.shape != Shape::Nothing);
}

void appendRecord(std::string &text, const Members &members, const double *numbers)
{
    text.push_back('{');
    for (const Member &member : members) {
        text.append(member.name).push_back('=');
        appendPlain(text, member.kind, *numbers++);
        text.append(", ");
    }
    text.pop_back();
    text.back() = '}';
}

/// Goes through the arguments, which are as many as their shapes say.
class ArgumentWriter
{
public:
    ArgumentWriter(std::string &itsText, const RecordedCall &itsCall) : text{itsText}, call{itsCall} {}

    void write()
    {
        for (const Passed &parameter : call.operation->parameters) {
            if (place < call.arguments.size()) {
                write(parameter);
            }
        }
    }

private:
    void write(const Passed &parameter)
    {
        const RecordedArgument &argument = call.arguments[place];
        const bool isNull{std::holds_alternative<std::nullptr_t>(argument)};
        if (parameter.isFilled && !parameter.brought && !isNull) {
            return;
        }
        text.append(text.back() == '(' ? "" : ", ");
        if (isNull) {
            text.append("null");
            ++place;
        } else if (parameter.shape == Shape::Record && !parameter.isFilled) {
            std::vector<double> numbers;
            for (std::size_t member{0}; member < parameter.members.count; ++member) {
                numbers.push_back(std::get<double>(call.arguments[place++]));
            }
            appendRecord(text, parameter.members, numbers.data());
        } else {
            writeSingle(parameter, argument);
            ++place;
        }
    }

    void writeSingle(const Passed &parameter, const RecordedArgument &argument)
    {
        if (const auto *const number = std::get_if<double>(&argument)) {
            appendPlain(text, parameter.brought ? *parameter.brought : parameter.kind, *number);
        } else if (parameter.shape == Shape::Text) {
            appendQuoted(text, std::get<std::string>(argument));
        } else {
            text.append(std::get<std::string>(argument));
        }
    }

    std::string &text;
    const RecordedCall &call;
    std::size_t place{0};
};

std::vector<double> numbersFrom(const std::vector<Value> &values, std::size_t first, std::size_t count)
{
    std::vector<double> numbers;
    for (std::size_t place{first}; place < first + count; ++place) {
        numbers.push_back(toNumber(values[place]));
    }
    return numbers;
}

void appendResult(std::string &text, const RecordedCall &call)
{
    const Passed &result = call.operation->result;
    text.append(" -> ");
    switch (result.shape) {
    case Shape::Record:
        appendRecord(text, result.members, numbersFrom(call.answer, 0, result.members.count).data());
        return;
    case Shape::Text:
        appendQuoted(text, std::get<std::string>(call.answer.front()));
        return;
    case Shape::Object:
        text.append(std::get<bool>(call.answer.front()) ? std::string_view{call.name} : "null");
        return;
    default:
        appendPlain(text, result.kind, toNumber(call.answer.front()));
        return;
    }
}

void appendOutputs(std::string &text, const RecordedCall &call)
{
    const std::size_t first{resultCount(*call.operation)};
    for (const Passed &parameter : call.operation->parameters) {
        if (!parameter.isFilled) {
            continue;
        }
        text.push_back(' ');
        if (parameter.shape == Shape::Record) {
            appendRecord(text, parameter.members,
                         numbersFrom(call.answer, first, parameter.members.count).data());
        } else {
            text.append(1, '{').append(call.name).push_back('=');
            appendPlain(text, parameter.kind, toNumber(call.answer[first]));
            text.push_back('}');
        }
    }
}

} // namespace

std::string addressedName(std::int32_t target)
{
    if (isUnit(target)) {
        return std::string{unitName(target)};
    }
    return "unit " + std::to_string(target);
}

bool succeeded(const RecordedCall &call)
{
    if (!hasResult(call) || !acknowledges(*call.operation)) {
        return true;
    }
    const Value &result = call.answer.front();
    const auto *const flag = std::get_if<bool>(&result);
    return flag != nullptr ? *flag : toNumber(result) == 1.0;
}

std::vector<Value> readingsOf(const Operation &operation, const std::vector<Value> &answer)
{
    const std::size_t outputs{resultCount(operation)};
    const bool hasSome{outputs < operation.answer.size()};
    return {answer.begin() + static_cast<std::ptrdiff_t>(hasSome ? outputs : 0), answer.end()};
}

std::string callText(const RecordedCall &call)
{
    std::string text{missingInWords[static_cast<std::size_t>(call.missing)]};
    text.append(call.operation->name).push_back('(');
    ArgumentWriter{text, call}.write();
    text.push_back(')');
    return text;
}

std::string answerText(const RecordedCall &call)
{
    std::string text;
    if (hasResult(call)) {
        appendResult(text, call);
    }
    if (call.hasOutputs) {
        appendOutputs(text, call);
    }
    return text;
}

std::string wordsText(const std::vector<RecordedWord> &words)
{
    std::string text{"{"};
    for (const auto &[row, number] : words) {
        text.append(text.size() > 1 ? ", " : "")
            .append(row->key)
            .append(1, '=')
            .append(std::to_string(number));
    }
    return text + '}';
}

} // namespace veltrix_simulator
