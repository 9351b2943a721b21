// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// An SDK configuration that answers nothing and is only there for its words.
#pragma once

#include "veltrix_sdk/configuration.h"

#include <cstdint>

/// Every operation answers zero.
class StillConfiguration final : public veltrix_sdk::ISdkConfiguration
{
public:
    std::int32_t getDefaultBaudRate() override { return {}; }
    const char *getCommunicationType() override { return ""; }
    double getDefaultGamma() override { return {}; }
    double getDefaultClhe() override { return {}; }
    double getDefaultSharpeningGain() override { return {}; }
    std::int32_t getDefaultGsk() override { return {}; }
    std::int32_t getDefaultGfid() override { return {}; }
    std::int32_t getDefaultTint() override { return {}; }
    std::int32_t getDefaultGms() override { return {}; }
    double getDefaultRoi0IncX1() override { return {}; }
    double getDefaultRoi0IncY1() override { return {}; }
    double getDefaultRoi0IncX2() override { return {}; }
    double getDefaultRoi0IncY2() override { return {}; }
    std::uint8_t getDefaultContrastType() override { return {}; }
    std::uint8_t getDefaultColorLut() override { return {}; }
    bool getDefaultPolarity() override { return {}; }
    bool getDefaultHorizontalFlip() override { return {}; }
    bool getDefaultVerticalFlip() override { return {}; }
    bool getDefaultVignettingCorrection() override { return {}; }
    bool getDefaultColumnCorrection() override { return {}; }
    std::uint8_t getDefaultFrameRate() override { return {}; }
    std::uint8_t getDefaultEdgeCorrectionType() override { return {}; }
    std::uint32_t getDefaultSharpeningGainValue() override { return {}; }
    std::uint32_t getDefaultSharpeningThreshold() override { return {}; }
    std::uint8_t getDefaultVideoOutput() override { return {}; }
    bool getDefaultSdiOutput() override { return {}; }
    bool getDefaultParallelOutput() override { return {}; }
    bool getDefaultMipiOutput() override { return {}; }
    bool getDefaultRoi0ExcEnable() override { return {}; }
    double getDefaultRoi0ExcX1() override { return {}; }
    double getDefaultRoi0ExcY1() override { return {}; }
    double getDefaultRoi0ExcX2() override { return {}; }
    double getDefaultRoi0ExcY2() override { return {}; }
    bool getDefaultRoi1IncEnable() override { return {}; }
    double getDefaultRoi1IncX1() override { return {}; }
    double getDefaultRoi1IncY1() override { return {}; }
    double getDefaultRoi1IncX2() override { return {}; }
    double getDefaultRoi1IncY2() override { return {}; }
    bool getDefaultRoi1ExcEnable() override { return {}; }
    double getDefaultRoi1ExcX1() override { return {}; }
    double getDefaultRoi1ExcY1() override { return {}; }
    double getDefaultRoi1ExcX2() override { return {}; }
    double getDefaultRoi1ExcY2() override { return {}; }
    std::uint8_t getDefaultTempoFilter() override { return {}; }
    std::uint8_t getDefaultAhcBlackGainLimit() override { return {}; }
    std::uint8_t getDefaultAhcWhiteGainLimit() override { return {}; }
    bool isExpertMode() override { return {}; }
    void setBaudRate(std::int32_t /*baudRate*/) override {}
};
