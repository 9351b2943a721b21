// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Everything that the simulated devices and the configuration hold.
#pragma once

#include "badpixels.h"
#include "configurationfields.h"
#include "unitfields.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veltrix_simulator
{

/// One unit: its values, each exact in a double whatever its kind, and its bad pixels.
struct Unit
{
    std::array<double, unitFields.size()> values{};
    BadPixelMemory badPixels;

    double &operator[](Field field) { return values[static_cast<std::size_t>(field)]; }
    double operator[](Field field) const { return values[static_cast<std::size_t>(field)]; }
};

/// The state behind all objects of the contract.
class State
{
public:
    /// The words are a part of the configuration object, which the program writes in place.
    explicit State(veltrix_sdk::ConfigurationWords &itsWords) : words{itsWords} {}

    /// Power-on state.
    void reset();

    /// The unit that the current target selects.
    Unit &addressed() { return units[static_cast<std::size_t>(target)]; }

    /// Whether the addressed unit accepts the numbers for the fields from `first` on.
    template <typename... Numbers>
    bool accepts(Field first, Numbers... numbers) const
    {
        std::size_t place{0};
        return (rowOf(first + place++).allowed.accepts(static_cast<double>(numbers), words) && ...);
    }

    /// Stores the numbers in the fields from `first` on, all or, when one is out of range, none.
    template <typename... Numbers>
    bool store(Field first, Numbers... numbers)
    {
        if (!accepts(first, numbers...)) {
            return false;
        }
        std::size_t place{0};
        ((addressed()[first + place++] = static_cast<double>(numbers)), ...);
        return true;
    }

    double &operator[](ConfigurationField field) { return configuration[static_cast<std::size_t>(field)]; }

    /// Values by key, as Simulator::set(), get() and keys() have them.
    void set(std::string_view key, const Value &value);
    Value get(std::string_view key) const;
    static std::vector<std::string> keys();
    /// What the value of a key is; nothing when there is no such key.
    static std::optional<Kind> kindOf(std::string_view key);

    int target{0}; ///< 0 the Blend Unit, 1 the camera.
    bool deviceOpen{false};
    std::array<Unit, 2> units{};
    std::vector<std::string> ports;
    std::string communicationType;
    veltrix_sdk::ConfigurationWords &words;

private:
    std::array<double, configurationFields.size()> configuration{};
};

} // namespace veltrix_simulator
