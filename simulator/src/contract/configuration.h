// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated configuration: link, expert mode and defaults.
#pragma once

#include "calls/core.h"
#include "units/state.h"
#include "veltrix_sdk/configuration.h"

#include <cstdint>
#include <type_traits>

namespace veltrix_simulator
{

class SimulatedConfiguration final : public veltrix_sdk::ISdkConfiguration
{
public:
    SimulatedConfiguration(Core &itsCore, State &itsState) : core{itsCore}, state{itsState} {}

    std::int32_t getDefaultBaudRate() override { return get<ConfigurationField::defaultBaudRate>(__func__); }
    const char *getCommunicationType() override
    {
        return call(__func__, [&] { return state.communicationType.c_str(); });
    }
    double getDefaultGamma() override { return get<ConfigurationField::defaultGamma>(__func__); }
    double getDefaultClhe() override { return get<ConfigurationField::defaultClhe>(__func__); }
    double getDefaultSharpeningGain() override
    {
        return get<ConfigurationField::defaultSharpeningGain>(__func__);
    }
    std::int32_t getDefaultGsk() override
    {
        return call(__func__, [&] { return words.gskDefault; });
    }
    std::int32_t getDefaultGfid() override
    {
        return call(__func__, [&] { return words.gfidDefault; });
    }
    std::int32_t getDefaultTint() override
    {
        return call(__func__, [&] { return words.tintDefault; });
    }
    std::int32_t getDefaultGms() override
    {
        return call(__func__, [&] { return words.gmsDefault; });
    }
    double getDefaultRoi0IncX1() override { return get<ConfigurationField::defaultRoi0IncX1>(__func__); }
    double getDefaultRoi0IncY1() override { return get<ConfigurationField::defaultRoi0IncY1>(__func__); }
    double getDefaultRoi0IncX2() override { return get<ConfigurationField::defaultRoi0IncX2>(__func__); }
    double getDefaultRoi0IncY2() override { return get<ConfigurationField::defaultRoi0IncY2>(__func__); }
    std::uint8_t getDefaultContrastType() override
    {
        return get<ConfigurationField::defaultContrastType>(__func__);
    }
    std::uint8_t getDefaultColorLut() override { return get<ConfigurationField::defaultColorLut>(__func__); }
    bool getDefaultPolarity() override { return get<ConfigurationField::defaultPolarity>(__func__); }
    bool getDefaultHorizontalFlip() override
    {
        return get<ConfigurationField::defaultHorizontalFlip>(__func__);
    }
    bool getDefaultVerticalFlip() override { return get<ConfigurationField::defaultVerticalFlip>(__func__); }
    bool getDefaultVignettingCorrection() override
    {
        return get<ConfigurationField::defaultVignettingCorrection>(__func__);
    }
    bool getDefaultColumnCorrection() override
    {
        return get<ConfigurationField::defaultColumnCorrection>(__func__);
    }
    std::uint8_t getDefaultFrameRate() override
    {
        return get<ConfigurationField::defaultFrameRate>(__func__);
    }
    std::uint8_t getDefaultEdgeCorrectionType() override
    {
        return get<ConfigurationField::defaultEdgeCorrectionType>(__func__);
    }
    std::uint32_t getDefaultSharpeningGainValue() override
    {
        return get<ConfigurationField::defaultSharpeningGainValue>(__func__);
    }
    std::uint32_t getDefaultSharpeningThreshold() override
    {
        return get<ConfigurationField::defaultSharpeningThreshold>(__func__);
    }
    std::uint8_t getDefaultVideoOutput() override
    {
        return get<ConfigurationField::defaultVideoOutput>(__func__);
    }
    bool getDefaultSdiOutput() override { return get<ConfigurationField::defaultSdiOutput>(__func__); }
    bool getDefaultParallelOutput() override
    {
        return get<ConfigurationField::defaultParallelOutput>(__func__);
    }
    bool getDefaultMipiOutput() override { return get<ConfigurationField::defaultMipiOutput>(__func__); }
    bool getDefaultRoi0ExcEnable() override
    {
        return get<ConfigurationField::defaultRoi0ExcEnable>(__func__);
    }
    double getDefaultRoi0ExcX1() override { return get<ConfigurationField::defaultRoi0ExcX1>(__func__); }
    double getDefaultRoi0ExcY1() override { return get<ConfigurationField::defaultRoi0ExcY1>(__func__); }
    double getDefaultRoi0ExcX2() override { return get<ConfigurationField::defaultRoi0ExcX2>(__func__); }
    double getDefaultRoi0ExcY2() override { return get<ConfigurationField::defaultRoi0ExcY2>(__func__); }
    bool getDefaultRoi1IncEnable() override
    {
        return get<ConfigurationField::defaultRoi1IncEnable>(__func__);
    }
    double getDefaultRoi1IncX1() override { return get<ConfigurationField::defaultRoi1IncX1>(__func__); }
    double getDefaultRoi1IncY1() override { return get<ConfigurationField::defaultRoi1IncY1>(__func__); }
    double getDefaultRoi1IncX2() override { return get<ConfigurationField::defaultRoi1IncX2>(__func__); }
    double getDefaultRoi1IncY2() override { return get<ConfigurationField::defaultRoi1IncY2>(__func__); }
    bool getDefaultRoi1ExcEnable() override
    {
        return get<ConfigurationField::defaultRoi1ExcEnable>(__func__);
    }
    double getDefaultRoi1ExcX1() override { return get<ConfigurationField::defaultRoi1ExcX1>(__func__); }
    double getDefaultRoi1ExcY1() override { return get<ConfigurationField::defaultRoi1ExcY1>(__func__); }
    double getDefaultRoi1ExcX2() override { return get<ConfigurationField::defaultRoi1ExcX2>(__func__); }
    double getDefaultRoi1ExcY2() override { return get<ConfigurationField::defaultRoi1ExcY2>(__func__); }
    std::uint8_t getDefaultTempoFilter() override
    {
        return get<ConfigurationField::defaultTempoFilter>(__func__);
    }
    std::uint8_t getDefaultAhcBlackGainLimit() override
    {
        return get<ConfigurationField::defaultAhcBlackGainLimit>(__func__);
    }
    std::uint8_t getDefaultAhcWhiteGainLimit() override
    {
        return get<ConfigurationField::defaultAhcWhiteGainLimit>(__func__);
    }
    bool isExpertMode() override { return get<ConfigurationField::expertMode>(__func__); }
    void setBaudRate(std::int32_t baudRate) override
    {
        call(
            __func__, [&] { state.setBaudRate(baudRate); }, baudRate);
    }

private:
    template <typename Action, typename... Parameters>
    std::invoke_result_t<Action> call(const char *operation, const Action &action,
                                      const Parameters &...parameters)
    {
        return core.call(Interface::Configuration, operation, action, parameters...);
    }

    template <ConfigurationField field>
    TypeOf<rowOf(field).kind> get(const char *operation)
    {
        return call(operation, [&] { return static_cast<TypeOf<rowOf(field).kind>>(state[field]); });
    }

    Core &core;
    State &state;
};

} // namespace veltrix_simulator
