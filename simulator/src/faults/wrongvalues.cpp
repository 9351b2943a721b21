// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Wrong values that look like true ones.
#include "faults/wrongvalues.h"

#include "veltrix_sdk/records.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <vector>

namespace veltrix_simulator
{
namespace
{

/// Another number of the list or of the range; the actual number when there is no other.
double otherInRange(double actual, Kind kind, const Allowed &allowed, const Words &words, Random &random)
{
    if (allowed.listed != nullptr) {
        std::vector<double> others;
        std::copy_if(allowed.listed, allowed.listed + allowed.listLength, std::back_inserter(others),
                     [&](double each) { return each != actual; });
        return others[random.below(others.size())];
    }
    const auto [minimum, maximum] = allowed.interval(words);
    if (!(minimum < maximum)) {
        return actual;
    }
    if (hasFractions(kind)) {
        return fitted(minimum + random.share() * (maximum - minimum), kind);
    }
    const auto span = static_cast<std::uint64_t>(maximum - minimum);
    // The actual number is left out, so there is one less to choose from.
    const bool isInside{actual >= minimum && actual <= maximum};
    const double drawn = minimum + static_cast<double>(random.below(span + (isInside ? 0 : 1)));
    return isInside && drawn >= actual ? drawn + 1 : drawn;
}

/// A number that is at most a tenth larger or smaller.
double neighbour(double actual, Kind kind, Random &random)
{
    const double known = std::isfinite(actual) ? actual : 0;
    const double distance = std::max(1.0, std::fabs(known) / 10) * (0.5 + random.share() / 2);
    const double sign{random.coin() ? 1.0 : -1.0};
    const double drawn = fitted(known + sign * distance, kind);
    return drawn != actual && std::isfinite(drawn) ? drawn : fitted(known - sign * distance, kind);
}

} // namespace

double otherNumber(double actual, Kind kind, const Allowed &allowed, const Words &words, Random &random)
{
    if (kind == Kind::Boolean) {
        return actual == 0 ? 1 : 0;
    }
    const double other =
        allowed.anything ? actual : fitted(otherInRange(actual, kind, allowed, words, random), kind);
    return other != actual && !std::isnan(other) ? other : neighbour(actual, kind, random);
}

WrongValues::WrongValues(State &itsState, Random random)
    : state{itsState}, unitValues{state.addressed().values},
      configuration{state.configuration}, words{state.words}
{
    for (const UnitField &row : unitFields) {
        double &number = state.addressed()[row.id];
        number = otherNumber(number, row.kind, row.allowed, words, random);
    }
    for (const ConfigurationFieldRow &row : configurationFields) {
        double &number = state[row.id];
        number = otherNumber(number, row.kind, anything, words, random);
    }
    for (const WordRow &row : configurationWords) {
        std::int32_t &word = state.words.*row.word;
        word = static_cast<std::int32_t>(otherNumber(word, Kind::Signed32, anything, words, random));
    }
}

WrongValues::~WrongValues()
{
    state.addressed().values = unitValues;
    state.configuration = configuration;
    state.words = words;
}

} // namespace veltrix_simulator
