// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every value of the configuration by its key: the defaults, and the ranges of the expert values.
#include "configurationvalues.h"

#include "makers.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

using namespace veltrix_sdk;

namespace device_settings
{

namespace
{

using Configuration = ISdkConfiguration;
using ConfigurationRows = std::vector<ConfigurationValue>;

const char *const prefix{"configuration."};

/// The default of the edge correction's gain counts the steps of the window's slider, so many for each step
/// of the device.
constexpr std::int32_t stepsOfGain{10};

/// Name and call of an operation of the configuration.
#define ASKED(operation) (Operation{#operation, &Configuration::operation})

template <typename Number>
ConfigurationValue value(const std::string &key, Operation<Number (Configuration::*)()> get, Allowed allowed,
                         const std::string &meaning, const char *quantity = "")
{
    return {prefix + key,
            kindOf<Number>(),
            std::move(allowed),
            meaning,
            quantity,
            get.name,
            true,
            [call = get.call](Configuration &configuration) {
                return static_cast<double>((configuration.*call)());
            }};
}

ConfigurationValue flag(const char *key, Operation<bool (Configuration::*)()> get, const char *meaning)
{
    return value(key, get, onOff(), meaning);
}

/// A word has the same name as its key.
ConfigurationValue wordValue(const std::string &name, std::int32_t ConfigurationWords::*member,
                             Allowed allowed, const std::string &meaning)
{
    return {prefix + name,
            Kind::Signed32,
            std::move(allowed),
            meaning,
            "",
            name,
            false,
            [member](Configuration &configuration) {
                return static_cast<double>(configuration.words.*member);
            }};
}

ConfigurationRows image()
{
    const Allowed gamma{
        between(double{gammaRange.minimum} / fixedPointOne, double{gammaRange.maximum} / fixedPointOne)};
    const Allowed gain{between(edgeGainRange.minimum * stepsOfGain, edgeGainRange.maximum * stepsOfGain)};
    const Allowed percent{within(ahcGainLimitRange)};
    return {
        value("defaultBaudRate", ASKED(getDefaultBaudRate), oneOf(linkBaudRates), "Speed of the link",
              "bit/s"),
        flag("expertMode", ASKED(isExpertMode), "Whether expert mode is granted"),
        value("defaultGamma", ASKED(getDefaultGamma), gamma, "Default of the gamma correction"),
        value("defaultClhe", ASKED(getDefaultClhe), within(clheDefaultRange), "Default of CLHE"),
        value("defaultSharpeningGain", ASKED(getDefaultSharpeningGain), gain,
              "Default of the edge correction's gain, in steps of its slider: tenths"),
        value("defaultContrastType", ASKED(getDefaultContrastType), within(contrastTypeRange),
              "Default of how contrast is found: 0 CLHE, 1 CLAHE"),
        value("defaultColorLut", ASKED(getDefaultColorLut), within(colorLutRange),
              "Default of the colour table, by its place in the list"),
        flag("defaultPolarity", ASKED(getDefaultPolarity), "Whether grey levels are inverted by default"),
        flag("defaultHorizontalFlip", ASKED(getDefaultHorizontalFlip), "Default of the horizontal flip"),
        flag("defaultVerticalFlip", ASKED(getDefaultVerticalFlip), "Default of the vertical flip"),
        flag("defaultVignettingCorrection", ASKED(getDefaultVignettingCorrection),
             "Default of the vignetting correction"),
        flag("defaultColumnCorrection", ASKED(getDefaultColumnCorrection),
             "Default of the column correction"),
        value("defaultFrameRate", ASKED(getDefaultFrameRate), oneOf(frameRatesHz),
              "Default of the frame rate", "Hz"),
        value("defaultEdgeCorrectionType", ASKED(getDefaultEdgeCorrectionType), within(edgeTypeRange),
              "Default of the edge correction: 0 none, 1 sharpening, 2 contouring"),
        value("defaultSharpeningGainValue", ASKED(getDefaultSharpeningGainValue), within(edgeGainRange),
              "Default of the edge correction's gain"),
        value("defaultSharpeningThreshold", ASKED(getDefaultSharpeningThreshold), within(edgeThresholdRange),
              "Default of the edge correction's threshold"),
        value("defaultVideoOutput", ASKED(getDefaultVideoOutput), within(videoOutputRange),
              "Default of the stage of the processing that is put out"),
        flag("defaultSdiOutput", ASKED(getDefaultSdiOutput), "Default of the SDI video output"),
        flag("defaultParallelOutput", ASKED(getDefaultParallelOutput),
             "Default of the parallel video output"),
        flag("defaultMipiOutput", ASKED(getDefaultMipiOutput), "Default of the MIPI video output"),
        value("defaultTempoFilter", ASKED(getDefaultTempoFilter), within(lutTemporalFilterRange),
              "Default of the temporal filter of the grey levels"),
        value("defaultAhcBlackGainLimit", ASKED(getDefaultAhcBlackGainLimit), percent,
              "Default of the limit of the adaptive histogram's gain, black", "%"),
        value("defaultAhcWhiteGainLimit", ASKED(getDefaultAhcWhiteGainLimit), percent,
              "Default of the limit of the adaptive histogram's gain, white", "%"),
    };
}

/// An expert value: its default by operation, the ends of its range, and its default once more, as a word.
struct ExpertValue
{
    const char *name; ///< With which its keys and words begin.
    Operation<std::int32_t (Configuration::*)()> get;
    std::int32_t ConfigurationWords::*minimum;
    std::int32_t ConfigurationWords::*maximum;
    std::int32_t ConfigurationWords::*defaultWord;
};

ConfigurationRows expertValues(const ConfigurationWords &words)
{
    using W = ConfigurationWords;
    constexpr double highest{std::numeric_limits<std::int32_t>::max()};
    const ExpertValue values[]{
        {"gsk", ASKED(getDefaultGsk), &W::gskMinimum, &W::gskMaximum, &W::gskDefault},
        {"gfid", ASKED(getDefaultGfid), &W::gfidMinimum, &W::gfidMaximum, &W::gfidDefault},
        {"gms", ASKED(getDefaultGms), &W::gmsMinimum, &W::gmsMaximum, &W::gmsDefault},
        {"tint", ASKED(getDefaultTint), &W::tintMinimum, &W::tintMaximum, &W::tintDefault},
    };
    ConfigurationRows table;
    for (const ExpertValue &each : values) {
        const double lowest = words.*each.minimum;
        const Allowed allowed{between(lowest, words.*each.maximum)};
        const std::string name{each.name};
        table.push_back(value(name + "Default", each.get, allowed, "Default of " + name));
        table.push_back(
            wordValue(name + "Minimum", each.minimum, between(0, highest), "Least value of " + name));
        table.push_back(
            wordValue(name + "Maximum", each.maximum, between(lowest, highest), "Greatest value of " + name));
        table.push_back(wordValue(name + "Default", each.defaultWord, allowed, "Default of " + name));
    }
    return table;
}

ConfigurationRows defaultRegions()
{
    using Coordinate = Operation<double (Configuration::*)()>;
    const auto column = [](const char *key, Coordinate get, const char *meaning) {
        return value(key, get, within(regionColumnRange), meaning, "pixels");
    };
    const auto row = [](const char *key, Coordinate get, const char *meaning) {
        return value(key, get, within(regionRowRange), meaning, "pixels");
    };
    return {
        column("defaultRoi0IncX1", ASKED(getDefaultRoi0IncX1),
               "Default of the first column of ROI0 inclusive"),
        row("defaultRoi0IncY1", ASKED(getDefaultRoi0IncY1), "Default of the first row of ROI0 inclusive"),
        column("defaultRoi0IncX2", ASKED(getDefaultRoi0IncX2),
               "Default of the last column of ROI0 inclusive"),
        row("defaultRoi0IncY2", ASKED(getDefaultRoi0IncY2), "Default of the last row of ROI0 inclusive"),
        flag("defaultRoi0ExcEnable", ASKED(getDefaultRoi0ExcEnable),
             "Whether ROI0 exclusive is on by default"),
        column("defaultRoi0ExcX1", ASKED(getDefaultRoi0ExcX1),
               "Default of the first column of ROI0 exclusive"),
        row("defaultRoi0ExcY1", ASKED(getDefaultRoi0ExcY1), "Default of the first row of ROI0 exclusive"),
        column("defaultRoi0ExcX2", ASKED(getDefaultRoi0ExcX2),
               "Default of the last column of ROI0 exclusive"),
        row("defaultRoi0ExcY2", ASKED(getDefaultRoi0ExcY2), "Default of the last row of ROI0 exclusive"),
        flag("defaultRoi1IncEnable", ASKED(getDefaultRoi1IncEnable),
             "Whether ROI1 inclusive is on by default"),
        column("defaultRoi1IncX1", ASKED(getDefaultRoi1IncX1),
               "Default of the first column of ROI1 inclusive"),
        row("defaultRoi1IncY1", ASKED(getDefaultRoi1IncY1), "Default of the first row of ROI1 inclusive"),
        column("defaultRoi1IncX2", ASKED(getDefaultRoi1IncX2),
               "Default of the last column of ROI1 inclusive"),
        row("defaultRoi1IncY2", ASKED(getDefaultRoi1IncY2), "Default of the last row of ROI1 inclusive"),
        flag("defaultRoi1ExcEnable", ASKED(getDefaultRoi1ExcEnable),
             "Whether ROI1 exclusive is on by default"),
        column("defaultRoi1ExcX1", ASKED(getDefaultRoi1ExcX1),
               "Default of the first column of ROI1 exclusive"),
        row("defaultRoi1ExcY1", ASKED(getDefaultRoi1ExcY1), "Default of the first row of ROI1 exclusive"),
        column("defaultRoi1ExcX2", ASKED(getDefaultRoi1ExcX2),
               "Default of the last column of ROI1 exclusive"),
        row("defaultRoi1ExcY2", ASKED(getDefaultRoi1ExcY2), "Default of the last row of ROI1 exclusive"),
    };
}

} // namespace

std::vector<ConfigurationValue> configurationValues(const ConfigurationWords &words)
{
    ConfigurationRows table;
    for (const ConfigurationRows &rows : {image(), expertValues(words), defaultRegions()}) {
        table.insert(table.end(), rows.begin(), rows.end());
    }
    return table;
}

const ConfigurationValue *findConfigurationValue(const std::vector<ConfigurationValue> &table,
                                                 std::string_view key)
{
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&](const ConfigurationValue &each) { return each.key == key; });
    return found == table.end() ? nullptr : &*found;
}

} // namespace device_settings
