// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The operations of the SDK interfaces with their places in the tables of virtual operations.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

/// One operation and its place.
struct Operation
{
    std::size_t place;
    /// An overloaded operation has its parameter types behind its name.
    const char *name;
    /// Place where this build found it; empty when it is not virtual. Only the Itanium ABI fills it.
    std::optional<std::size_t> builtPlace;
};

/// One interface: how many places its table has and what stands at those that the program uses.
struct InterfaceTable
{
    const char *name; ///< Without the namespace.
    std::size_t places;
    /// Place where this build puts an operation that a derived interface appends.
    std::optional<std::size_t> builtPlaces;
    std::vector<Operation> operations;
};

/// Every interface of the contract with every operation that has a fixed place. The signature of each
/// operation is checked when this is compiled.
std::vector<InterfaceTable> contractTables();
