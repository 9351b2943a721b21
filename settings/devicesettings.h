// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every setting of the device that is read, by its key: where it belongs, what it may be, how it is read and
// written.
#pragma once

#include "optionalregions.h"
#include "values.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace device_settings
{

/// A unit by the number that setTarget takes.
enum class Unit : std::int32_t
{
    BlendUnit = veltrix_sdk::targetBlendUnit,
    Camera = veltrix_sdk::targetCamera,
};

inline constexpr std::array<Unit, 2> units{Unit::BlendUnit, Unit::Camera};

/// The unit that a setting belongs to. The other unit answers too; its answer means nothing.
enum class UsedOn
{
    BlendUnit,
    Camera,
    Both,
};

bool isUsedOn(UsedOn usedOn, Unit unit);

/// How operators count what the device counts in units of its own.
struct Scale
{
    double perUnit{1};   ///< So many of the device's are one of the operator's.
    double zero{0};      ///< Where the operator's count begins, in his units.
    std::string unit{};  ///< Such as "h"; empty for a mere number.
    int decimals{0};     ///< How many of them are shown at most.
    bool isGiven{false}; ///< Operators count as the device does where it is not.
};

/// One number of a setting.
struct Field
{
    std::string name; ///< Such as "threshold"; empty where the setting is this number alone.
    Kind kind;
    Allowed allowed;      ///< What the unit answers when all is well, and what it accepts.
    std::string meaning;  ///< One line in plain words.
    std::string quantity; ///< What it counts, such as "Hz" or "pixels"; empty for a mere number.
    bool derived{false};  ///< It is not sent; the device derives it from the others.
    /// It is sent as a whole number although it is read with a fraction.
    bool sentWhole{false};
    /// What the numbers from 0 on are called, in small letters and without blanks, such as "iron"; empty
    /// where a number speaks for itself.
    std::vector<std::string> words{};
    Scale scale{};
};

using Device = veltrix_sdk::IDeviceControl;

/// What is read by one operation and written by another, on the unit that is selected.
struct Setting
{
    std::string key; ///< Without the unit and the field, such as "gamma", "visibleAgc", "roi1.x1".
    UsedOn usedOn;
    std::vector<Field> fields;
    std::string get;    ///< Name of the operation that reads.
    std::string detail; ///< What is asked for, such as "(2)" for the third region; empty where nothing is.
    /// Reads into as many values as there are fields; the result is success only if it is 1, or always where
    /// it does not count.
    std::function<std::uint8_t(Device &, Values &)> read;
    std::string set{}; ///< Name of the operation that writes; empty where there is none.
    /// Sends one value for each field but the derived ones; what its type cannot hold becomes the nearest
    /// number that it can. The flags travel with a region. Returns whether the unit acknowledged.
    std::function<bool(Device &, const Values &, RegionFlags)> write{};
    bool sendsRegionFlags{false};
    bool steady{true}; ///< Answers the same as long as nothing is written.
    /// False where the contract says that the result is not examined: only the numbers tell.
    bool resultCounts{true};
};

/// Every setting and every other value that the device answers, in the order in which the program reads
/// them. The rate of the MAVLink port and the enables of the three optional regions are left out: no
/// operation reads them. The words give the ranges of the expert values.
std::vector<Setting> deviceSettings(const veltrix_sdk::ConfigurationWords &words);

/// Where a key leads.
struct Place
{
    Unit unit;
    const Setting *setting; ///< One of the table.
    std::size_t field;
};

/// All numbers of the settings, each on the units that it belongs to: first all of the Blend Unit. The table
/// outlives the places.
std::vector<Place> placesOf(const std::vector<Setting> &table);
std::vector<Place> placesOf(const std::vector<Setting> &&table) = delete;
/// Such as "camera.gamma" or "blendUnit.visibleAgc.threshold".
std::string keyOf(const Place &place);
/// The number behind a key; nothing when no setting that belongs to this unit has it. The table outlives the
/// place.
std::optional<Place> findSetting(const std::vector<Setting> &table, std::string_view key);
std::optional<Place> findSetting(const std::vector<Setting> &&table, std::string_view key) = delete;

/// The flags of an open device, from the first columns of the regions under the setters' numbers.
RegionFlags readRegionFlags(Device &device);

/// All numbers of a setting as the selected unit answers them; nothing when the unit does not acknowledge and
/// that counts.
std::optional<Values> readAll(Device &device, const Setting &setting);

/// The first field whose value would lose its fraction, because it is sent as a whole number; nothing when
/// all are sent as they are.
std::optional<std::size_t> firstFieldSentChanged(const Setting &setting, const Values &values);

/// How writing one number ended.
enum class Written
{
    Acknowledged,
    Refused,    ///< By the unit.
    NotAllowed, ///< The number is out of range, or has a fraction that cannot be sent; nothing was sent.
    NotSent,    ///< No operation sends this number; nothing was sent.
    NotRead,    ///< The other numbers of the setting could not be read; nothing was sent.
    NotKept,    ///< Another number of the setting has a fraction and would change; nothing was sent.
};

/// Sets one number of a setting on the selected unit and sends the others as they are read from it.
Written writeField(Device &device, const Setting &setting, std::size_t field, double number);

} // namespace device_settings
