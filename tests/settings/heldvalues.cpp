// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers that the simulator holds behind a key, and those that the kind of a key can hold.
#include "heldvalues.h"

#include "veltrix_sdk/sdk.h"
#include "veltrix_simulator/simulator.h"

#include <cstdint>
#include <variant>

using namespace device_settings;
using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

std::vector<Setting> deviceTable()
{
    return deviceSettings(veltrix_sdk::VeltrixSdk::get_instance()->getConfiguration()->words);
}

std::vector<ConfigurationValue> configurationTable()
{
    return configurationValues(veltrix_sdk::VeltrixSdk::get_instance()->getConfiguration()->words);
}

double held(const std::string &key)
{
    const Value value{Simulator::instance().get(key)};
    if (const auto *const boolean = std::get_if<bool>(&value)) {
        return *boolean ? 1.0 : 0.0;
    }
    if (const auto *const integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    return std::get<double>(value);
}

bool isFloating(Kind kind)
{
    return kind == Kind::Float || kind == Kind::Double;
}

void hold(const std::string &key, Kind kind, double number)
{
    const auto integer = static_cast<std::int64_t>(number);
    Simulator::instance().set(key, isFloating(kind) ? Value{number} : Value{integer});
}

double another(Kind kind, double number)
{
    return kind == Kind::Boolean ? 1.0 - number : number + 1.0;
}

double greatest(Kind kind)
{
    switch (kind) {
    case Kind::Boolean:
        return 1;
    case Kind::Unsigned8:
        return 255;
    case Kind::Unsigned16:
        return 65535;
    case Kind::Signed32:
        return 2147483647;
    default:
        return 4294967295;
    }
}

double least(Kind kind)
{
    return kind == Kind::Signed32 || isFloating(kind) ? -2147483648.0 : 0;
}
