// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Which parts of a call are written and in which order, in the journal and in the trace alike.
#pragma once

#include "calls/numbersat.h"
#include "calls/objects.h"
#include "calls/parameter.h"
#include "units/recordmembers.h"

#include <string_view>
#include <variant>

namespace veltrix_simulator
{

/// Name of an object of the contract.
struct ObjectName
{
    std::string_view text;
};

inline Number plainNumberAt(const NumbersToRead &numbers)
{
    const Member &member = *numbers.members().begin();
    return {member.kind, numbers.at(member)};
}

/// Goes through a call: what its parameters bring, its result, and what it filled in. The form, that of the
/// journal or of the trace, writes each of them. It is given nullptr for what is missing, a Number, a text,
/// an ObjectName, or NumbersToRead for a record.
template <typename Form>
class CallWriter
{
public:
    CallWriter(Form &itsForm, const Objects &itsObjects) : form{itsForm}, objects{itsObjects} {}

    void writeArguments(Parameters parameters) const
    {
        for (const Parameter &parameter : parameters) {
            writeArgument(parameter);
        }
        form.endArguments();
    }

    void write(Parameters parameters, const ResultPlace &result) const
    {
        writeArguments(parameters);
        writeResult(result);
        for (const Parameter &parameter : parameters) {
            writeOutput(parameter);
        }
    }

private:
    void writeArgument(const Parameter &parameter) const
    {
        const Parameter::Content &content = parameter.content();
        const NumbersToRead *const memory = parameter.memory();
        if (memory != nullptr && !memory->isThere()) {
            form.argument(nullptr);
        } else if (const auto *const number = std::get_if<Number>(&content)) {
            form.argument(*number);
        } else if (const auto *const text = std::get_if<OptionalText>(&content)) {
            *text ? form.argument(**text) : form.argument(nullptr);
        } else if (const auto *const object = std::get_if<ObjectPointer>(&content)) {
            object->isNull() ? form.argument(nullptr) : form.argument(ObjectName{object->nameAmong(objects)});
        } else if (const auto *const sent = std::get_if<SentRecord>(&content)) {
            form.argument(sent->record);
        } else if (const auto *const filled = std::get_if<FilledRecord>(&content);
                   filled != nullptr && filled->brought) {
            form.argument(*filled->brought);
        }
    }

    void writeResult(const ResultPlace &place) const
    {
        if (const auto *const numbers = std::get_if<NumbersToFill>(&place.content())) {
            numbers->isPlainNumber() ? form.result(plainNumberAt(*numbers)) : form.result(*numbers);
        } else if (const auto *const text = std::get_if<ResultPlace::Text>(&place.content())) {
            *text->place != nullptr ? form.result(std::string_view{*text->place}) : form.result(nullptr);
        } else if (const auto *const pointer = std::get_if<ResultPlace::Object>(&place.content())) {
            const ObjectPointer object = pointer->read(pointer->place);
            object.isNull() ? form.result(nullptr) : form.result(ObjectName{object.nameAmong(objects)});
        }
    }

    void writeOutput(const Parameter &parameter) const
    {
        const NumbersToFill *const filled = parameter.filledMemory();
        if (filled == nullptr || !filled->isThere()) {
            return;
        }
        if (const auto *const out = std::get_if<OutNumber>(&parameter.content())) {
            form.output(out->name, plainNumberAt(*filled));
        } else {
            form.output(*filled);
        }
    }

    Form &form;
    const Objects &objects;
};

} // namespace veltrix_simulator
