// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Wrong values that look like true ones.
#pragma once

#include "units/allowed.h"
#include "units/configurationfields.h"
#include "units/state.h"
#include "units/unitfields.h"
#include "values/randomness.h"
#include "values/value.h"

#include <array>

namespace veltrix_simulator
{

/// Another number of the same kind: one that is allowed if there is another one, else one close to the actual
/// number. A bool flips.
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
