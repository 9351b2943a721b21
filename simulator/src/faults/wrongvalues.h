// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Values that are not the true ones and could be.
#pragma once

#include "units/state.h"
#include "values/randomness.h"

namespace veltrix_simulator
{

/// Another number that the kind holds: within the range if there is one that holds another, else in the
/// neighbourhood. A bool flips.
double otherNumber(double actual, Kind kind, const Allowed &allowed, const Words &words, Random &random);

/// While it lives, every value of the addressed unit and of the configuration is another one.
class WrongValues
{
public:
    WrongValues(State &itsState, Random random);
    ~WrongValues();
    WrongValues(const WrongValues &) = delete;
    WrongValues &operator=(const WrongValues &) = delete;

private:
    State &state;
    const std::array<double, unitFields.size()> unitValues;
    const std::array<double, configurationFields.size()> configuration;
    const Words words;
};

} // namespace veltrix_simulator
