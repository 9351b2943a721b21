// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The parameters and the result of a call. They describe themselves, so that one function serves every
// operation.
#include "calls/parameter.h"

#include "units/recordmembers.h"

#include <limits>

namespace veltrix_simulator
{

void Parameter::appendNumbers(NumberList &numbers) const
{
    if (const auto *const number = std::get_if<Number>(&parameter)) {
        numbers.append(number->value);
    } else if (std::holds_alternative<OptionalText>(parameter)) {
        numbers.append(std::numeric_limits<double>::quiet_NaN());
    } else if (const auto *const sent = std::get_if<SentRecord>(&parameter)) {
        if (sent->record.isThere()) {
            for (const Member &member : sent->record.members()) {
                numbers.append(sent->record.at(member));
            }
        }
    } else if (const auto *const filled = std::get_if<FilledRecord>(&parameter)) {
        if (filled->brought) {
            numbers.append(filled->brought->value);
        }
    }
}

NumberList numbersOf(Parameters parameters)
{
    NumberList numbers;
    for (const Parameter &parameter : parameters) {
        parameter.appendNumbers(numbers);
    }
    return numbers;
}

} // namespace veltrix_simulator
