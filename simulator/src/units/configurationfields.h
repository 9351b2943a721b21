// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The values of the configuration: one table row for each, with key, kind and default.
#pragma once

#include "units/fieldtable.h"
#include "values/value.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace veltrix_simulator
{

/// The values of the configuration beside its words, in the order of configurationFields.
enum class ConfigurationField : std::size_t
{
    baudRate,
    defaultBaudRate,
    expertMode,
    defaultGamma,
    defaultClhe,
    defaultSharpeningGain,
    defaultRoi0IncX1,
    defaultRoi0IncY1,
    defaultRoi0IncX2,
    defaultRoi0IncY2,
    defaultContrastType,
    defaultColorLut,
    defaultPolarity,
    defaultHorizontalFlip,
    defaultVerticalFlip,
    defaultVignettingCorrection,
    defaultColumnCorrection,
    defaultFrameRate,
    defaultEdgeCorrectionType,
    defaultSharpeningGainValue,
    defaultSharpeningThreshold,
    defaultVideoOutput,
    defaultSdiOutput,
    defaultParallelOutput,
    defaultMipiOutput,
    defaultRoi0ExcEnable,
    defaultRoi0ExcX1,
    defaultRoi0ExcY1,
    defaultRoi0ExcX2,
    defaultRoi0ExcY2,
    defaultRoi1IncEnable,
    defaultRoi1IncX1,
    defaultRoi1IncY1,
    defaultRoi1IncX2,
    defaultRoi1IncY2,
    defaultRoi1ExcEnable,
    defaultRoi1ExcX1,
    defaultRoi1ExcY1,
    defaultRoi1ExcX2,
    defaultRoi1ExcY2,
    defaultTempoFilter,
    defaultAhcBlackGainLimit,
    defaultAhcWhiteGainLimit,
    count,
};

struct ConfigurationFieldRow
{
    ConfigurationField id;
    std::string_view key;
    Kind kind;
    double defaultValue;
};

struct WordRow
{
    std::string_view key;
    Word word;
    std::int32_t defaultValue;
};

inline constexpr std::array<ConfigurationFieldRow, static_cast<std::size_t>(ConfigurationField::count)>
    configurationFields{{
        {ConfigurationField::baudRate, "baudRate", Kind::Signed32, 115200},
        {ConfigurationField::defaultBaudRate, "defaultBaudRate", Kind::Signed32, 115200},
        {ConfigurationField::expertMode, "expertMode", Kind::Boolean, 1},
        {ConfigurationField::defaultGamma, "defaultGamma", Kind::Double, 1},
        {ConfigurationField::defaultClhe, "defaultClhe", Kind::Double, 2000},
        {ConfigurationField::defaultSharpeningGain, "defaultSharpeningGain", Kind::Double, 640},
        {ConfigurationField::defaultRoi0IncX1, "defaultRoi0IncX1", Kind::Double, 5},
        {ConfigurationField::defaultRoi0IncY1, "defaultRoi0IncY1", Kind::Double, 5},
        {ConfigurationField::defaultRoi0IncX2, "defaultRoi0IncX2", Kind::Double, 635},
        {ConfigurationField::defaultRoi0IncY2, "defaultRoi0IncY2", Kind::Double, 475},
        {ConfigurationField::defaultContrastType, "defaultContrastType", Kind::Unsigned8, 0},
        {ConfigurationField::defaultColorLut, "defaultColorLut", Kind::Unsigned8, 0},
        {ConfigurationField::defaultPolarity, "defaultPolarity", Kind::Boolean, 0},
        {ConfigurationField::defaultHorizontalFlip, "defaultHorizontalFlip", Kind::Boolean, 0},
        {ConfigurationField::defaultVerticalFlip, "defaultVerticalFlip", Kind::Boolean, 0},
        {ConfigurationField::defaultVignettingCorrection, "defaultVignettingCorrection", Kind::Boolean, 1},
        {ConfigurationField::defaultColumnCorrection, "defaultColumnCorrection", Kind::Boolean, 1},
        {ConfigurationField::defaultFrameRate, "defaultFrameRate", Kind::Unsigned8, 60},
        {ConfigurationField::defaultEdgeCorrectionType, "defaultEdgeCorrectionType", Kind::Unsigned8, 0},
        {ConfigurationField::defaultSharpeningGainValue, "defaultSharpeningGainValue", Kind::Unsigned32, 64},
        {ConfigurationField::defaultSharpeningThreshold, "defaultSharpeningThreshold", Kind::Unsigned32, 20},
        {ConfigurationField::defaultVideoOutput, "defaultVideoOutput", Kind::Unsigned8, 8},
        {ConfigurationField::defaultSdiOutput, "defaultSdiOutput", Kind::Boolean, 1},
        {ConfigurationField::defaultParallelOutput, "defaultParallelOutput", Kind::Boolean, 0},
        {ConfigurationField::defaultMipiOutput, "defaultMipiOutput", Kind::Boolean, 1},
        {ConfigurationField::defaultRoi0ExcEnable, "defaultRoi0ExcEnable", Kind::Boolean, 0},
        {ConfigurationField::defaultRoi0ExcX1, "defaultRoi0ExcX1", Kind::Double, 5},
        {ConfigurationField::defaultRoi0ExcY1, "defaultRoi0ExcY1", Kind::Double, 5},
        {ConfigurationField::defaultRoi0ExcX2, "defaultRoi0ExcX2", Kind::Double, 635},
        {ConfigurationField::defaultRoi0ExcY2, "defaultRoi0ExcY2", Kind::Double, 60},
        {ConfigurationField::defaultRoi1IncEnable, "defaultRoi1IncEnable", Kind::Boolean, 0},
        {ConfigurationField::defaultRoi1IncX1, "defaultRoi1IncX1", Kind::Double, 160},
        {ConfigurationField::defaultRoi1IncY1, "defaultRoi1IncY1", Kind::Double, 120},
        {ConfigurationField::defaultRoi1IncX2, "defaultRoi1IncX2", Kind::Double, 480},
        {ConfigurationField::defaultRoi1IncY2, "defaultRoi1IncY2", Kind::Double, 360},
        {ConfigurationField::defaultRoi1ExcEnable, "defaultRoi1ExcEnable", Kind::Boolean, 0},
        {ConfigurationField::defaultRoi1ExcX1, "defaultRoi1ExcX1", Kind::Double, 5},
        {ConfigurationField::defaultRoi1ExcY1, "defaultRoi1ExcY1", Kind::Double, 420},
        {ConfigurationField::defaultRoi1ExcX2, "defaultRoi1ExcX2", Kind::Double, 635},
        {ConfigurationField::defaultRoi1ExcY2, "defaultRoi1ExcY2", Kind::Double, 475},
        {ConfigurationField::defaultTempoFilter, "defaultTempoFilter", Kind::Unsigned8, 2},
        {ConfigurationField::defaultAhcBlackGainLimit, "defaultAhcBlackGainLimit", Kind::Unsigned8, 20},
        {ConfigurationField::defaultAhcWhiteGainLimit, "defaultAhcWhiteGainLimit", Kind::Unsigned8, 80},
    }};

static_assert(inOrder(configurationFields));

inline constexpr std::array<WordRow, 12> configurationWords{{
    {"gskDefault", &Words::gskDefault, 2},
    {"gmsDefault", &Words::gmsDefault, 1024},
    {"gfidDefault", &Words::gfidDefault, 250},
    {"tintDefault", &Words::tintDefault, 10},
    {"gskMinimum", &Words::gskMinimum, 1},
    {"gskMaximum", &Words::gskMaximum, 3},
    {"gfidMinimum", &Words::gfidMinimum, 0},
    {"gfidMaximum", &Words::gfidMaximum, 1000},
    {"tintMinimum", &Words::tintMinimum, 0},
    {"tintMaximum", &Words::tintMaximum, 20},
    {"gmsMinimum", &Words::gmsMinimum, 0},
    {"gmsMaximum", &Words::gmsMaximum, 4095},
}};

constexpr const ConfigurationFieldRow &rowOf(ConfigurationField field)
{
    return configurationFields[static_cast<std::size_t>(field)];
}

} // namespace veltrix_simulator
