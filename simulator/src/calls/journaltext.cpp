// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One call as the journal's line.
#include "calls/journaltext.h"

#include "calls/callwriter.h"
#include "calls/numbersat.h"
#include "units/recordmembers.h"
#include "values/numbertext.h"

#include <array>
#include <cstddef>

namespace veltrix_simulator
{
namespace
{

/// The form of the journal.
class JournalForm
{
public:
    explicit JournalForm(std::string &itsLine) : line{itsLine} {}

    template <typename T>
    void argument(const T &value)
    {
        if (line.back() != '(') {
            line.push_back(',');
            line.push_back(' ');
        }
        append(value);
    }

    void endArguments() { line.push_back(')'); }

    template <typename T>
    void result(const T &value)
    {
        line.append(" -> ");
        append(value);
    }

    void output(std::string_view name, const Number &number)
    {
        line.append(" {").append(name).push_back('=');
        append(number);
        line.push_back('}');
    }

    void output(const NumbersToRead &record)
    {
        line.push_back(' ');
        append(record);
    }

private:
    void append(std::nullptr_t) { line.append("null"); }

    void append(const Number &number) { appendPlain(line, number.kind, number.value); }

    void append(std::string_view text) { appendQuoted(line, text); }

    void append(const ObjectName &object) { line.append(object.text); }

    void append(const NumbersToRead &record)
    {
        line.push_back('{');
        for (const Member &member : record.members()) {
            line.append(member.name).push_back('=');
            append(Number{member.kind, record.at(member)});
            line.push_back(',');
            line.push_back(' ');
        }
        line.pop_back();
        line.back() = '}';
    }

    std::string &line;
};

} // namespace

void writeJournalText(std::string &line, std::string_view operation, Missing missing, const Objects &objects,
                      Parameters parameters, const ResultPlace &result)
{
    line.assign(missingInWords[static_cast<std::size_t>(missing)]).append(operation).push_back('(');
    JournalForm form{line};
    CallWriter{form, objects}.write(parameters, result);
}

void writeCallText(std::string &line, std::string_view operation, const Objects &objects,
                   Parameters parameters)
{
    line.assign(operation).push_back('(');
    JournalForm form{line};
    CallWriter{form, objects}.writeArguments(parameters);
}

} // namespace veltrix_simulator
