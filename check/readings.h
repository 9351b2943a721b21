// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What is read and written: the rows of the two tables.
#pragma once

#include "answers.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/device_control.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace sdk_check
{

/// A unit by the number that setTarget takes.
enum class Unit : std::int32_t
{
    BlendUnit = 0,
    Camera = 1,
};

inline constexpr std::array<Unit, 2> units{Unit::BlendUnit, Unit::Camera};

/// "Blend Unit" or "camera".
std::string nameOf(Unit unit);

/// On which unit the program uses an operation; on the other one a wrong answer harms nobody.
enum class UsedOn
{
    BlendUnit,
    Camera,
    Both,
};

bool isUsedOn(UsedOn usedOn, Unit unit);

/// What becomes of one number of an answer when its setting is written.
enum class Written
{
    Changed, ///< Another allowed value is tried.
    Kept,    ///< It is sent as it was found.
    Follows, ///< It is not sent; the device derives it.
};

/// One number of an answer.
struct Field
{
    std::string name; ///< Empty where the answer is this number alone.
    Allowed allowed;
    Written written{Written::Changed};
    /// The values to try, the second one where the first is what was found; empty: the ends of the range.
    Values tries{};
    /// The setter takes whole numbers only, so that a fraction could not be put back.
    bool sentWhole{false};
};

/// One operation that answers something, with the setter that changes it: one row of the device's table.
struct Reading
{
    std::string get;    ///< Name of the operation that reads.
    std::string detail; ///< What is asked for, such as "(2)" for the third region; empty where nothing is.
    UsedOn usedOn;
    std::vector<Field> fields;
    bool steady; ///< Answers the same as long as nothing is written.
    /// Reads into as many values as there are fields; the result counts only if it is 1.
    std::function<std::uint8_t(veltrix_sdk::IDeviceControl &, Values &)> read;
    std::string set{}; ///< Name of the operation that writes; empty where nothing is written.
    std::function<bool(veltrix_sdk::IDeviceControl &, const Values &)> write{};
    /// What is wrong with numbers that are allowed one by one; nothing when it returns an empty text.
    std::function<std::string(const Values &)> objection{};
};

/// Which of the optional regions are on. No operation reads it; the first column of a region that is off is
/// 0.
struct RegionFlags
{
    bool roi1Inclusive{false};
    bool roi0Exclusive{false};
    bool roi1Exclusive{false};
};

/// The flags of an open device, from the first columns of the regions under the setters' numbers.
RegionFlags readRegionFlags(veltrix_sdk::IDeviceControl &device);

/// Every operation of the device that the program reads with, in the program's order. The words give the
/// ranges of the expert values; the flags travel with every region that is written.
std::vector<Reading> deviceReadings(const veltrix_sdk::ConfigurationWords &words, RegionFlags flags);

/// One value of the configuration: an operation or a word.
struct ConfigurationReading
{
    std::string get;
    Allowed allowed;
    bool called; ///< An operation, whose time counts; else a word that is read in place.
    std::function<double(veltrix_sdk::ISdkConfiguration &)> read;
};

/// Every default and range of the configuration that the program uses.
std::vector<ConfigurationReading> configurationReadings(const veltrix_sdk::ConfigurationWords &words);

} // namespace sdk_check
