// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every value of the configuration by its key: the defaults, and the ranges of the expert values.
#include "configurationvalues.h"

#include "rows.h"
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

const char *const keyPrefix{"configuration."};

/// Name and call of an operation of the configuration.
#define CONFIGURATION_OPERATION(operation) (Operation{#operation, &Configuration::operation})

template <typename Number>
ConfigurationValue value(const std::string &key, Operation<Number (Configuration::*)()> get, Allowed allowed,
                         const std::string &meaning, const char *quantity = "")
{
    return {keyPrefix + key,
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
    return {keyPrefix + name,
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
    const Allowed gainSteps{
        between(edgeGainRange.minimum * sharpeningGainSteps, edgeGainRange.maximum * sharpeningGainSteps)};
    const Allowed percent{within(ahcGainLimitRange)};
    return {
        value("defaultBaudRate", CONFIGURATION_OPERATION(getDefaultBaudRate), oneOf(linkBaudRates),
              "Speed of the link", "bit/s"),
        flag("expertMode", CONFIGURATION_OPERATION(isExpertMode), "Whether expert mode is granted"),
        value("defaultGamma", CONFIGURATION_OPERATION(getDefaultGamma), gamma,
              "Default of the gamma correction"),
        value("defaultClhe", CONFIGURATION_OPERATION(getDefaultClhe), within(clheDefaultRange),
              "Default of CLHE"),
        value("defaultSharpeningGain", CONFIGURATION_OPERATION(getDefaultSharpeningGain), gainSteps,
              "Default of the edge correction's gain, in steps of its slider: tenths"),
        value("defaultContrastType", CONFIGURATION_OPERATION(getDefaultContrastType),
              within(contrastTypeRange), "Default of how contrast is found: 0 CLHE, 1 CLAHE"),
        value("defaultColorLut", CONFIGURATION_OPERATION(getDefaultColorLut), within(colorLutRange),
              "Default of the colour table, by its place in the list"),
        flag("defaultPolarity", CONFIGURATION_OPERATION(getDefaultPolarity),
             "Whether grey levels are inverted by default"),
        flag("defaultHorizontalFlip", CONFIGURATION_OPERATION(getDefaultHorizontalFlip),
             "Default of the horizontal flip"),
        flag("defaultVerticalFlip", CONFIGURATION_OPERATION(getDefaultVerticalFlip),
             "Default of the vertical flip"),
        flag("defaultVignettingCorrection", CONFIGURATION_OPERATION(getDefaultVignettingCorrection),
             "Default of the vignetting correction"),
        flag("defaultColumnCorrection", CONFIGURATION_OPERATION(getDefaultColumnCorrection),
             "Default of the column correction"),
        value("defaultFrameRate", CONFIGURATION_OPERATION(getDefaultFrameRate), oneOf(frameRatesHz),
              "Default of the frame rate", "Hz"),
        value("defaultEdgeCorrectionType", CONFIGURATION_OPERATION(getDefaultEdgeCorrectionType),
              within(edgeTypeRange), "Default of the edge correction: 0 none, 1 sharpening, 2 contouring"),
        value("defaultSharpeningGainValue", CONFIGURATION_OPERATION(getDefaultSharpeningGainValue),
              within(edgeGainRange), "Default of the edge correction's gain"),
        value("defaultSharpeningThreshold", CONFIGURATION_OPERATION(getDefaultSharpeningThreshold),
              within(edgeThresholdDefaultRange), "Default of the edge correction's threshold"),
        value("defaultVideoOutput", CONFIGURATION_OPERATION(getDefaultVideoOutput), within(videoOutputRange),
              "Default of the stage of the processing that is put out"),
        flag("defaultSdiOutput", CONFIGURATION_OPERATION(getDefaultSdiOutput),
             "Default of the SDI video output"),
        flag("defaultParallelOutput", CONFIGURATION_OPERATION(getDefaultParallelOutput),
             "Default of the parallel video output"),
        flag("defaultMipiOutput", CONFIGURATION_OPERATION(getDefaultMipiOutput),
             "Default of the MIPI video output"),
        value("defaultTempoFilter", CONFIGURATION_OPERATION(getDefaultTempoFilter),
              within(lutTemporalFilterRange), "Default of the temporal filter of the grey levels"),
        value("defaultAhcBlackGainLimit", CONFIGURATION_OPERATION(getDefaultAhcBlackGainLimit), percent,
              "Default of the limit of the adaptive histogram's gain, black", "%"),
        value("defaultAhcWhiteGainLimit", CONFIGURATION_OPERATION(getDefaultAhcWhiteGainLimit), percent,
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
        {"gsk", CONFIGURATION_OPERATION(getDefaultGsk), &W::gskMinimum, &W::gskMaximum, &W::gskDefault},
        {"gfid", CONFIGURATION_OPERATION(getDefaultGfid), &W::gfidMinimum, &W::gfidMaximum, &W::gfidDefault},
        {"gms", CONFIGURATION_OPERATION(getDefaultGms), &W::gmsMinimum, &W::gmsMaximum, &W::gmsDefault},
        {"tint", CONFIGURATION_OPERATION(getDefaultTint), &W::tintMinimum, &W::tintMaximum, &W::tintDefault},
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
        return value(key, get, within(regionDefaultColumnRange), meaning, "pixels");
    };
    const auto row = [](const char *key, Coordinate get, const char *meaning) {
        return value(key, get, within(regionDefaultRowRange), meaning, "pixels");
    };
    return {
        column("defaultRoi0IncX1", CONFIGURATION_OPERATION(getDefaultRoi0IncX1),
               "Default of the first column of ROI0 inclusive"),
        row("defaultRoi0IncY1", CONFIGURATION_OPERATION(getDefaultRoi0IncY1),
            "Default of the first row of ROI0 inclusive"),
        column("defaultRoi0IncX2", CONFIGURATION_OPERATION(getDefaultRoi0IncX2),
               "Default of the last column of ROI0 inclusive"),
        row("defaultRoi0IncY2", CONFIGURATION_OPERATION(getDefaultRoi0IncY2),
            "Default of the last row of ROI0 inclusive"),
        flag("defaultRoi0ExcEnable", CONFIGURATION_OPERATION(getDefaultRoi0ExcEnable),
             "Whether ROI0 exclusive is on by default"),
        column("defaultRoi0ExcX1", CONFIGURATION_OPERATION(getDefaultRoi0ExcX1),
               "Default of the first column of ROI0 exclusive"),
        row("defaultRoi0ExcY1", CONFIGURATION_OPERATION(getDefaultRoi0ExcY1),
            "Default of the first row of ROI0 exclusive"),
        column("defaultRoi0ExcX2", CONFIGURATION_OPERATION(getDefaultRoi0ExcX2),
               "Default of the last column of ROI0 exclusive"),
        row("defaultRoi0ExcY2", CONFIGURATION_OPERATION(getDefaultRoi0ExcY2),
            "Default of the last row of ROI0 exclusive"),
        flag("defaultRoi1IncEnable", CONFIGURATION_OPERATION(getDefaultRoi1IncEnable),
             "Whether ROI1 inclusive is on by default"),
        column("defaultRoi1IncX1", CONFIGURATION_OPERATION(getDefaultRoi1IncX1),
               "Default of the first column of ROI1 inclusive"),
        row("defaultRoi1IncY1", CONFIGURATION_OPERATION(getDefaultRoi1IncY1),
            "Default of the first row of ROI1 inclusive"),
        column("defaultRoi1IncX2", CONFIGURATION_OPERATION(getDefaultRoi1IncX2),
               "Default of the last column of ROI1 inclusive"),
        row("defaultRoi1IncY2", CONFIGURATION_OPERATION(getDefaultRoi1IncY2),
            "Default of the last row of ROI1 inclusive"),
        flag("defaultRoi1ExcEnable", CONFIGURATION_OPERATION(getDefaultRoi1ExcEnable),
             "Whether ROI1 exclusive is on by default"),
        column("defaultRoi1ExcX1", CONFIGURATION_OPERATION(getDefaultRoi1ExcX1),
               "Default of the first column of ROI1 exclusive"),
        row("defaultRoi1ExcY1", CONFIGURATION_OPERATION(getDefaultRoi1ExcY1),
            "Default of the first row of ROI1 exclusive"),
        column("defaultRoi1ExcX2", CONFIGURATION_OPERATION(getDefaultRoi1ExcX2),
               "Default of the last column of ROI1 exclusive"),
        row("defaultRoi1ExcY2", CONFIGURATION_OPERATION(getDefaultRoi1ExcY2),
            "Default of the last row of ROI1 exclusive"),
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
