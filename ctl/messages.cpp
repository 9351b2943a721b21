// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines that several commands write.
#include "messages.h"

#include "fieldtext.h"
#include "progress.h"
#include "values.h"

#include <cstdlib>
#include <iostream>
#include <sstream>

namespace ctl
{

namespace
{

/// Whether the name of the program is red: on a terminal, unless its user wants no colours.
bool isColoured()
{
    const char *const noColour{std::getenv("NO_COLOR")};
    return errorsAreWatched() && (noColour == nullptr || *noColour == '\0');
}

} // namespace

void tell(const std::string &text)
{
    const char *const begin{isColoured() ? "\x1b[31mpilotel-ctl:\x1b[0m " : "pilotel-ctl: "};
    std::cout << std::flush;
    std::istringstream lines{text};
    for (std::string line; std::getline(lines, line);) {
        std::cerr << begin << line << '\n';
    }
    std::cerr << std::flush;
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
