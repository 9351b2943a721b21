// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines that several commands write.
#include "messages.h"

#include "fieldtext.h"
#include "telling.h"
#include "values.h"

namespace ctl
{

void tell(const std::string &text)
{
    sdk_check::tell("pilotel-ctl", text);
}

void writeAssignment(std::ostream &out, const std::string &name, const device_settings::Field &field,
                     double number)
{
    const std::string words{device_settings::inWords(field, number)};
    out << name << " = " << device_settings::numberText(number, field.kind)
        << (words.empty() ? "" : "  # " + words) << '\n';
}

bool mayBeSent(const device_settings::Field &field, double number)
{
    const bool needsWhole{field.sentWhole || !veltrix_sdk::hasFractions(field.kind)};
    return device_settings::allows(field.allowed, number) &&
           (!needsWhole || device_settings::isWhole(number));
}

std::string wholeNumbers(const device_settings::Field &field)
{
    return (field.sentWhole ? ", without fractions, is allowed" : " is allowed");
}

} // namespace ctl
