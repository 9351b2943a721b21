// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The operations of the contract, with what each of them takes and answers.
#pragma once

#include "units/recordmembers.h"
#include "values/value.h"
#include "veltrix_simulator/simulator.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace veltrix_sdk
{
class IDeviceControl;
class IDeviceManager;
class ISdkConfiguration;
class IVeltrixSdk;
} // namespace veltrix_sdk

namespace veltrix_simulator
{

/// The operations of the contract, in the order of operations.inc.
enum class OperationId : std::size_t
{
#define FUNCTION(name, ...) name,
#define OPERATION(object, name, role) name,
#include "operations/operations.inc"
    count,
};

/// The interface that a class of the contract is.
template <typename Object>
inline constexpr Interface interfaceOf = Interface::Root;
template <>
inline constexpr Interface interfaceOf<veltrix_sdk::ISdkConfiguration> = Interface::Configuration;
template <>
inline constexpr Interface interfaceOf<veltrix_sdk::IDeviceManager> = Interface::Manager;
template <>
inline constexpr Interface interfaceOf<veltrix_sdk::IDeviceControl> = Interface::Device;

/// The names of the interfaces in the trace, in the order of Interface.
inline constexpr std::string_view interfaceNames[]{"root", "configuration", "manager", "device", "log"};

/// What every call needs to know of its operation.
struct OperationName
{
    std::string_view name;
    Interface interface;
};

inline constexpr OperationName operationNames[]{
#define FUNCTION(name, interface, ...) {#name, Interface::interface},
#define OPERATION(object, name, role) {#name, interfaceOf<veltrix_sdk::object>},
#include "operations/operations.inc"
};

constexpr const OperationName &nameOf(OperationId id)
{
    return operationNames[static_cast<std::size_t>(id)];
}

/// The name of the plain number that an operation fills in; null for one that fills in none.
template <OperationId id>
inline constexpr const char *filledName{nullptr};
template <>
inline constexpr const char *filledName<OperationId::connect>{"identity"};
template <>
inline constexpr const char *filledName<OperationId::getVideoMode>{"mode"};
template <>
inline constexpr const char *filledName<OperationId::getStartingMode>{"mode"};

/// What an operation does to values.
enum class Role
{
    Reads,    ///< What it answers is a value of a unit or of the configuration.
    Stores,   ///< It stores what it brings as values of a unit, and answers only whether it did.
    Commands, ///< It changes a unit or the local table of bad pixels otherwise, and answers only whether it
              ///< did.
    Other,
};

/// A parameter or the result of an operation.
struct Passed
{
    enum class Shape
    {
        Nothing, ///< There is no result.
        Number,
        Text,
        Object, ///< An object of the contract.
        Record,
    };
    Shape shape{Shape::Nothing};
    bool isFilled{false};        ///< The call fills it in where it points to.
    Kind kind{};                 ///< Of a number.
    Members members{nullptr, 0}; ///< Of a record.
    /// Of a record that the call fills in, and that brings the number that says which.
    std::optional<Kind> brought{};
};

/// An operation with what it takes and answers.
struct Operation
{
    OperationId id;
    std::string_view name;
    Interface interface;
    Role role;
    /// Its result, if it has one, then the members of its out-parameters or of the record it returns.
    std::vector<Kind> answer;
    /// The numbers and texts that a call brings, the members of a record in its place.
    std::vector<Kind> arguments;
    std::vector<Passed> parameters;
    Passed result;
};

/// All operations, by their id.
const std::vector<Operation> &allOperations();

/// The operation of an id.
const Operation &operationOf(OperationId id);

/// The operation of this name; null when there is none.
const Operation *findOperation(std::string_view name);

/// The operation of this name or, when it has a `*` for any characters, the device operations that fit; in
/// the order of the contract, empty when there are none.
std::vector<const Operation *> operationsMatching(std::string_view pattern);

inline bool readsValues(const Operation &operation)
{
    return operation.role == Role::Reads;
}

inline bool storesValues(const Operation &operation)
{
    return operation.role == Role::Stores;
}

/// Whether it changes a unit or the local table of bad pixels, and answers only whether it did.
inline bool isCommand(const Operation &operation)
{
    return storesValues(operation) || operation.role == Role::Commands;
}

} // namespace veltrix_simulator
