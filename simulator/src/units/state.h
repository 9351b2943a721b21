// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Everything that the simulated devices and the configuration hold.
#pragma once

#include "units/badpixels.h"
#include "units/configurationfields.h"
#include "units/port.h"
#include "units/unitfields.h"
#include "units/unitnames.h"
#include "values/value.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"
#include "veltrix_simulator/simulator.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
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

/// A value of a unit.
struct UnitPlace
{
    std::size_t target;
    Field field;
};

/// Who stores a value.
enum class StoredBy
{
    Program,   ///< No recording is played.
    Recording, ///< A call that the recording has: a device accepted the value, whatever it is.
    Beyond,    ///< A call that the recording does not have.
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

    /// Stores the numbers in the fields from `first` on, all or, when the addressed unit does not accept one,
    /// none.
    bool store(Field first, const double *begin, const double *end);

    double &operator[](ConfigurationField field) { return configuration[static_cast<std::size_t>(field)]; }

    /// Values by key, as Simulator::set(), get() and keys() have them.
    void set(std::string_view key, const Value &value);
    Value get(std::string_view key) const;
    static std::vector<std::string> keys();
    /// What the value of a key is; nothing when there is no such key.
    static std::optional<Kind> kindAt(std::string_view key);

    /// Where a unit holds the number of this key. Throws std::invalid_argument when no unit has it or it is
    /// a bool.
    static UnitPlace placeOfNumber(std::string_view key);
    double &operator[](const UnitPlace &place) { return units[place.target][place.field]; }

    /// Takes over values that a recording shows of the addressed unit, in the fields from `first` on. False
    /// when one of them was stored beyond the recording; then they stay as they are.
    bool learn(Field first, const std::vector<Value> &shown);

    /// Opens the device after a power cycle: the Blend Unit is addressed, and what a fault did not let the
    /// units keep is as before.
    void open(bool isSilent);

    /// Bits per second of the link: what was set last, else the default.
    std::int32_t linkBaudRate() const;
    void setBaudRate(std::int32_t baudRate);

    int target{veltrix_sdk::targetBlendUnit};
    /// The manager was fetched and is not released. No device is open without it.
    bool managerHeld{false};
    bool deviceOpen{false};
    bool silent{false};   ///< The device that is open never answers.
    bool cableOut{false}; ///< Nothing reaches the device until it is opened again.
    StoredBy storedBy{StoredBy::Program};
    bool storesAreLost{false}; ///< What is stored now lasts until the device is opened again.
    std::array<Unit, unitCount> units{};
    std::array<double, configurationFields.size()> configuration{};
    std::vector<Port> ports;
    std::string communicationType;
    veltrix_sdk::ConfigurationWords &words;

private:
    /// A value that comes back when the device is opened again, because a fault lost the store over it.
    struct Lost
    {
        UnitPlace place;
        double earlier;
    };

    /// Stores a number of the addressed unit; with storesAreLost only until the device is opened again.
    void put(Field field, double number)
    {
        const UnitPlace place{static_cast<std::size_t>(target), field};
        if (storesAreLost || !lost.empty()) {
            noteLost(place);
        }
        if (storedBy != StoredBy::Program) {
            beyond[place.target][static_cast<std::size_t>(field)] = storedBy == StoredBy::Beyond;
        }
        (*this)[place] = number;
    }
    /// Before a store: notes what the place holds if the store will be lost, else drops the note.
    void noteLost(const UnitPlace &place);
    std::vector<Lost>::iterator findLost(const UnitPlace &place);

    std::vector<Lost> lost;
    /// By target and field, what was stored beyond the recording that is played.
    std::array<std::bitset<unitFields.size()>, unitCount> beyond{};
    bool baudRateIsChosen{false};
};

} // namespace veltrix_simulator
