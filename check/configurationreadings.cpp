// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The table of the configuration: every default and range that the program uses.
#include "readings.h"

#include <cstddef>
#include <utility>

using namespace veltrix_sdk;

namespace sdk_check
{

namespace
{

using Configuration = ISdkConfiguration;
using Rows = std::vector<ConfigurationReading>;

const Allowed columns{between(0, 639)};
const Allowed rows{between(0, 479)};
const Allowed percent{between(0, 100)};

template <typename Number>
ConfigurationReading value(const char *get, Number (Configuration::*read)(), Allowed allowed)
{
    return {get, std::move(allowed), true, [read](Configuration &configuration) {
                return static_cast<double>((configuration.*read)());
            }};
}

ConfigurationReading flag(const char *get, bool (Configuration::*read)())
{
    return value(get, read, {0, 1, {}, true});
}

ConfigurationReading word(const char *name, std::int32_t ConfigurationWords::*member, Allowed allowed)
{
    return {name, std::move(allowed), false, [member](Configuration &configuration) {
                return static_cast<double>(configuration.words.*member);
            }};
}

/// The defaults of one expert value, by operation and by word, and the ends of its range.
void appendExpertValue(Rows &table, const ConfigurationReading &defaultValue, const char *name,
                       std::int32_t ConfigurationWords::*defaultWord,
                       std::int32_t ConfigurationWords::*minimum, std::int32_t ConfigurationWords::*maximum,
                       const ConfigurationWords &words)
{
    constexpr double highest{std::numeric_limits<std::int32_t>::max()};
    const double lowest = words.*minimum;
    const std::string prefix{name};
    table.push_back(defaultValue);
    table.push_back(word((prefix + "Minimum").c_str(), minimum, between(0, highest)));
    table.push_back(word((prefix + "Maximum").c_str(), maximum, between(lowest, highest)));
    table.push_back(word((prefix + "Default").c_str(), defaultWord, between(lowest, words.*maximum)));
}

void appendExpertValues(Rows &table, const ConfigurationWords &words)
{
    using C = Configuration;
    using W = ConfigurationWords;
    const auto append = [&](const char *get, std::int32_t (C::*read)(), const char *name,
                            std::int32_t W::*defaultWord, std::int32_t W::*minimum,
                            std::int32_t W::*maximum) {
        appendExpertValue(table, value(get, read, between(words.*minimum, words.*maximum)), name, defaultWord,
                          minimum, maximum, words);
    };
    append("getDefaultGsk", &C::getDefaultGsk, "gsk", &W::gskDefault, &W::gskMinimum, &W::gskMaximum);
    append("getDefaultGfid", &C::getDefaultGfid, "gfid", &W::gfidDefault, &W::gfidMinimum, &W::gfidMaximum);
    append("getDefaultGms", &C::getDefaultGms, "gms", &W::gmsDefault, &W::gmsMinimum, &W::gmsMaximum);
    append("getDefaultTint", &C::getDefaultTint, "tint", &W::tintDefault, &W::tintMinimum, &W::tintMaximum);
}

void appendImage(Rows &table)
{
    using C = Configuration;
    table.insert(
        table.end(),
        {
            value("getDefaultBaudRate", &C::getDefaultBaudRate, oneOf({9600, 115200})),
            flag("isExpertMode", &C::isExpertMode),
            value("getDefaultGamma", &C::getDefaultGamma, between(0.5, 2.5)),
            value("getDefaultClhe", &C::getDefaultClhe, between(0, 10000)),
            value("getDefaultSharpeningGain", &C::getDefaultSharpeningGain, between(0, 10240)),
            value("getDefaultContrastType", &C::getDefaultContrastType, between(0, 1)),
            value("getDefaultColorLut", &C::getDefaultColorLut, between(0, 7)),
            flag("getDefaultPolarity", &C::getDefaultPolarity),
            flag("getDefaultHorizontalFlip", &C::getDefaultHorizontalFlip),
            flag("getDefaultVerticalFlip", &C::getDefaultVerticalFlip),
            flag("getDefaultVignettingCorrection", &C::getDefaultVignettingCorrection),
            flag("getDefaultColumnCorrection", &C::getDefaultColumnCorrection),
            value("getDefaultFrameRate", &C::getDefaultFrameRate, oneOf({9, 25, 30, 50, 60})),
            value("getDefaultEdgeCorrectionType", &C::getDefaultEdgeCorrectionType, between(0, 2)),
            value("getDefaultSharpeningGainValue", &C::getDefaultSharpeningGainValue, between(0, 1024)),
            value("getDefaultSharpeningThreshold", &C::getDefaultSharpeningThreshold, between(0, 255)),
            value("getDefaultVideoOutput", &C::getDefaultVideoOutput, between(0, 8)),
            flag("getDefaultSdiOutput", &C::getDefaultSdiOutput),
            flag("getDefaultParallelOutput", &C::getDefaultParallelOutput),
            flag("getDefaultMipiOutput", &C::getDefaultMipiOutput),
            value("getDefaultTempoFilter", &C::getDefaultTempoFilter, between(0, 8)),
            value("getDefaultAhcBlackGainLimit", &C::getDefaultAhcBlackGainLimit, percent),
            value("getDefaultAhcWhiteGainLimit", &C::getDefaultAhcWhiteGainLimit, percent),
        });
}

void appendRegions(Rows &table)
{
    using C = Configuration;
    table.insert(table.end(), {
                                  value("getDefaultRoi0IncX1", &C::getDefaultRoi0IncX1, columns),
                                  value("getDefaultRoi0IncY1", &C::getDefaultRoi0IncY1, rows),
                                  value("getDefaultRoi0IncX2", &C::getDefaultRoi0IncX2, columns),
                                  value("getDefaultRoi0IncY2", &C::getDefaultRoi0IncY2, rows),
                                  flag("getDefaultRoi0ExcEnable", &C::getDefaultRoi0ExcEnable),
                                  value("getDefaultRoi0ExcX1", &C::getDefaultRoi0ExcX1, columns),
                                  value("getDefaultRoi0ExcY1", &C::getDefaultRoi0ExcY1, rows),
                                  value("getDefaultRoi0ExcX2", &C::getDefaultRoi0ExcX2, columns),
                                  value("getDefaultRoi0ExcY2", &C::getDefaultRoi0ExcY2, rows),
                                  flag("getDefaultRoi1IncEnable", &C::getDefaultRoi1IncEnable),
                                  value("getDefaultRoi1IncX1", &C::getDefaultRoi1IncX1, columns),
                                  value("getDefaultRoi1IncY1", &C::getDefaultRoi1IncY1, rows),
                                  value("getDefaultRoi1IncX2", &C::getDefaultRoi1IncX2, columns),
                                  value("getDefaultRoi1IncY2", &C::getDefaultRoi1IncY2, rows),
                                  flag("getDefaultRoi1ExcEnable", &C::getDefaultRoi1ExcEnable),
                                  value("getDefaultRoi1ExcX1", &C::getDefaultRoi1ExcX1, columns),
                                  value("getDefaultRoi1ExcY1", &C::getDefaultRoi1ExcY1, rows),
                                  value("getDefaultRoi1ExcX2", &C::getDefaultRoi1ExcX2, columns),
                                  value("getDefaultRoi1ExcY2", &C::getDefaultRoi1ExcY2, rows),
                              });
}

} // namespace

std::vector<ConfigurationReading> configurationReadings(const ConfigurationWords &words)
{
    Rows table;
    appendImage(table);
    appendExpertValues(table, words);
    appendRegions(table);
    return table;
}

} // namespace sdk_check
