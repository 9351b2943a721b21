// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The operations of the contract by name, with what each of them takes and answers.
#pragma once

#include "values/value.h"
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
    /// The numbers and texts that a call brings, the fields of a record in its place.
    std::vector<Kind> arguments{};
};

/// The operation of this name; null when there is none.
const Operation *findOperation(std::string_view name);

/// All operations, in the order of the contract.
const std::vector<Operation> &allOperations();

/// The operation of this name or, when it has a `*` for any characters, the device operations that fit; in
/// the order of the contract, empty when there are none.
std::vector<const Operation *> operationsMatching(std::string_view pattern);

/// Whether what it answers is read from a unit or from the configuration.
bool readsValues(const Operation &operation);
/// Whether it changes a unit or the local table of bad pixels, and answers only whether it did.
bool isCommand(const Operation &operation);
/// Whether it is a command that stores what it brings as values of the unit.
bool storesValues(const Operation &operation);

} // namespace veltrix_simulator
