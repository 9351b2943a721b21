// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated configuration: link, expert mode and defaults.
#pragma once

#include "calls/callpath.h"
#include "operations/operations.h"
#include "units/configurationfields.h"
#include "units/state.h"
#include "values/value.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_simulator/simulator.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace veltrix_simulator
{

/// The operations that answer a value are made from the rows of configurationfields.inc.
class SimulatedConfiguration final : public veltrix_sdk::ISdkConfiguration
{
public:
    SimulatedConfiguration(CallPath &itsPath, State &itsState) : path{itsPath}, state{itsState} {}

#define STORED(...)
#define VALUE(name, operation, ...)                                                                          \
    TypeOf<kindOfResult(&ISdkConfiguration::operation)> operation() override                                 \
    {                                                                                                        \
        return get<ConfigurationField::name>(OperationId::operation);                                        \
    }
#define WORD(...)
#define WORD_VALUE(operation, word)                                                                          \
    std::int32_t operation() override                                                                        \
    {                                                                                                        \
        return path.call(                                                                                    \
            OperationId::operation, {}, [&] { return words.word; },                                          \
            [&](const std::vector<Value> &shown) {                                                           \
                words.word = static_cast<std::int32_t>(toNumber(shown.front()));                             \
                return true;                                                                                 \
            });                                                                                              \
    }
#include "units/configurationfields.inc"

    const char *getCommunicationType() override
    {
        return path.call(
            OperationId::getCommunicationType, {}, [&] { return state.communicationType.c_str(); },
            [&](const std::vector<Value> &shown) {
                state.communicationType = std::get<std::string>(shown.front());
                return true;
            });
    }
    void setBaudRate(std::int32_t baudRate) override
    {
        path.call(OperationId::setBaudRate, {baudRate}, [&] { state.setBaudRate(baudRate); });
    }

private:
    template <ConfigurationField field>
    TypeOf<rowOf(field).kind> get(OperationId operation)
    {
        return path.call(
            operation, {}, [&] { return static_cast<TypeOf<rowOf(field).kind>>(state[field]); },
            [&](const std::vector<Value> &shown) {
                state[field] = toNumber(shown.front());
                return true;
            });
    }

    CallPath &path;
    State &state;
};

} // namespace veltrix_simulator
