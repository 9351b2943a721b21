// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The SDK's configuration: link, expert mode and the default of every image parameter. Names of numbers and
// of ranges are those of numbers.h.
#pragma once

#include "veltrix_sdk/records.h"

#include <cstdint>

namespace veltrix_sdk
{

/// The SDK's configuration, owned by the SDK. An interface and a record at once: its plain words follow
/// the table pointer. The number behind an operation is its place in the table; places of operations
/// that the program never calls are kept.
class ISdkConfiguration
{
private:
    virtual void kept0() {}
    virtual void kept1() {}
    virtual void kept2() {}
    virtual void kept3() {}
    virtual void kept4() {}
    virtual void kept5() {}
    virtual void kept6() {}

public:
    virtual std::int32_t getDefaultBaudRate() = 0; ///< 7: Baud of the serial link: one of linkBaudRates.

private:
    virtual void kept8() {}
    virtual void kept9() {}
    virtual void kept10() {}
    virtual void kept11() {}
    virtual void kept12() {}

public:
    /// 13: Link kind, NUL-terminated, owned by the SDK, such as uartCommunication.
    virtual const char *getCommunicationType() = 0;

private:
    virtual void kept14() {}

public:
    virtual double getDefaultGamma() = 0;          ///< 15: Not in fixed point: gammaRange over fixedPointOne.
    virtual double getDefaultClhe() = 0;           ///< 16: clheDefaultRange.
    virtual double getDefaultSharpeningGain() = 0; ///< 17: In steps of the gain slider.
    virtual std::int32_t getDefaultGsk() = 0;      ///< 18
    virtual std::int32_t getDefaultGfid() = 0;     ///< 19
    virtual std::int32_t getDefaultTint() = 0;     ///< 20
    virtual std::int32_t getDefaultGms() = 0;      ///< 21
    virtual double getDefaultRoi0IncX1() = 0;      ///< 22: Pixels.
    virtual double getDefaultRoi0IncY1() = 0;      ///< 23: Pixels.
    virtual double getDefaultRoi0IncX2() = 0;      ///< 24: Pixels.
    virtual double getDefaultRoi0IncY2() = 0;      ///< 25: Pixels.
    virtual std::uint8_t getDefaultContrastType() = 0; ///< 26: contrastTypeClhe, or CLAHE.
    virtual std::uint8_t getDefaultColorLut() = 0;     ///< 27: Colour table: colorLutRange.
    virtual bool getDefaultPolarity() = 0;             ///< 28: True: inverted.

private:
    virtual void kept29() {}
    virtual void kept30() {}
    virtual void kept31() {}
    virtual void kept32() {}
    virtual void kept33() {}
    virtual void kept34() {}

public:
    virtual bool getDefaultHorizontalFlip() = 0;               ///< 35
    virtual bool getDefaultVerticalFlip() = 0;                 ///< 36
    virtual bool getDefaultVignettingCorrection() = 0;         ///< 37
    virtual bool getDefaultColumnCorrection() = 0;             ///< 38
    virtual std::uint8_t getDefaultFrameRate() = 0;            ///< 39: One of frameRatesHz.
    virtual std::uint8_t getDefaultEdgeCorrectionType() = 0;   ///< 40: Index: none, sharpening, contouring.
    virtual std::uint32_t getDefaultSharpeningGainValue() = 0; ///< 41: edgeGainRange.
    virtual std::uint32_t getDefaultSharpeningThreshold() = 0; ///< 42: edgeThresholdDefaultRange.

private:
    virtual void kept43() {}

public:
    virtual std::uint8_t getDefaultVideoOutput() = 0; ///< 44: Processing stage: videoOutputRange.
    virtual bool getDefaultSdiOutput() = 0;           ///< 45
    virtual bool getDefaultParallelOutput() = 0;      ///< 46
    virtual bool getDefaultMipiOutput() = 0;          ///< 47

private:
    virtual void kept48() {}

public:
    virtual bool getDefaultRoi0ExcEnable() = 0;             ///< 49
    virtual double getDefaultRoi0ExcX1() = 0;               ///< 50: Pixels.
    virtual double getDefaultRoi0ExcY1() = 0;               ///< 51: Pixels.
    virtual double getDefaultRoi0ExcX2() = 0;               ///< 52: Pixels.
    virtual double getDefaultRoi0ExcY2() = 0;               ///< 53: Pixels.
    virtual bool getDefaultRoi1IncEnable() = 0;             ///< 54
    virtual double getDefaultRoi1IncX1() = 0;               ///< 55: Pixels.
    virtual double getDefaultRoi1IncY1() = 0;               ///< 56: Pixels.
    virtual double getDefaultRoi1IncX2() = 0;               ///< 57: Pixels.
    virtual double getDefaultRoi1IncY2() = 0;               ///< 58: Pixels.
    virtual bool getDefaultRoi1ExcEnable() = 0;             ///< 59
    virtual double getDefaultRoi1ExcX1() = 0;               ///< 60: Pixels.
    virtual double getDefaultRoi1ExcY1() = 0;               ///< 61: Pixels.
    virtual double getDefaultRoi1ExcX2() = 0;               ///< 62: Pixels.
    virtual double getDefaultRoi1ExcY2() = 0;               ///< 63: Pixels.
    virtual std::uint8_t getDefaultTempoFilter() = 0;       ///< 64: lutTemporalFilterRange.
    virtual std::uint8_t getDefaultAhcBlackGainLimit() = 0; ///< 65: ahcGainLimitRange.
    virtual std::uint8_t getDefaultAhcWhiteGainLimit() = 0; ///< 66: ahcGainLimitRange.
    virtual bool isExpertMode() = 0;                        ///< 67: True: expert mode is granted.
    virtual void setBaudRate(std::int32_t baudRate) = 0; ///< 68: Baud that the SDK uses for the serial link.

    /// Defaults and ranges of the expert values.
    ConfigurationWords words;

protected:
    ~ISdkConfiguration() = default;
};

} // namespace veltrix_sdk
