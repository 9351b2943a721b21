// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The operations of the contract by name, with what each of them answers.
#pragma once

#include "value.h"
#include "veltrix_simulator/simulator.h"

#include <string_view>
#include <vector>

namespace veltrix_simulator
{

struct Operation
{
    std::string_view name;
    Interface interface;
    /// Its result, if it has one, then the fields of its out-parameters or of the record it returns.
    std::vector<Kind> answer;
};

/// The operation of this name; null when there is none.
const Operation *findOperation(std::string_view name);

} // namespace veltrix_simulator
