// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The records that cross the SDK boundary, with their sizes and offsets. Names of ranges are those of
// numbers.h.
#pragma once

#include <cstddef>
#include <cstdint>

namespace veltrix_sdk
{

// No member has a default initialiser: a record must stay trivial, so that every compiler passes and
// returns it the same way. Callers write `FirmwareVersions versions{};`.

/// Firmware versions of the unit that the target selects. In each word bits 8 to 11 are the major
/// number, bits 4 to 7 the minor number and bits 0 to 3 the patch. Both words 0: no answer.
struct FirmwareVersions
{
    std::uint16_t processor; ///< RISC-V firmware; the Blend Unit uses all four nibbles.
    std::uint16_t fpga;      ///< The camera marks a 9 Hz build with bit 12 and a MIPI build with bit 13.
};

static_assert(sizeof(FirmwareVersions) == 4 && offsetof(FirmwareVersions, fpga) == 2);

/// Temperatures of the unit that the target selects, in millikelvin.
struct Temperatures
{
    float sensorMillikelvin;
    float fpgaMillikelvin;
};

static_assert(sizeof(Temperatures) == 8 && offsetof(Temperatures, fpgaMillikelvin) == 4);

/// Life counters of the camera.
struct OperatingInfo
{
    std::uint32_t operatingMinutes;
    std::uint32_t startupCount;
};

static_assert(sizeof(OperatingInfo) == 8 && offsetof(OperatingInfo, startupCount) == 4);

/// Edge correction; the index is that of none, sharpening, contouring.
struct EdgeCorrection
{
    std::uint8_t type;
    std::uint32_t gain;
    std::uint32_t firstThreshold;
    std::uint32_t secondThreshold;
};

static_assert(sizeof(EdgeCorrection) == 16 && offsetof(EdgeCorrection, gain) == 4 &&
              offsetof(EdgeCorrection, firstThreshold) == 8 &&
              offsetof(EdgeCorrection, secondThreshold) == 12);

/// Limits of the adaptive histogram's gain: ahcGainLimitRange.
struct AhcGainLimitation
{
    std::uint8_t black;
    std::uint8_t white;
};

static_assert(sizeof(AhcGainLimitation) == 2 && offsetof(AhcGainLimitation, white) == 1);

/// Digital zoom; the method is 0 nearest neighbour, 1 bilinear.
struct ZoomConfig
{
    float factor;          ///< zoomFactorRange.
    std::uint32_t xCenter; ///< Pixels.
    std::uint32_t yCenter; ///< Pixels.
    std::uint8_t method;
};

static_assert(sizeof(ZoomConfig) == 16 && offsetof(ZoomConfig, xCenter) == 4 &&
              offsetof(ZoomConfig, yCenter) == 8 && offsetof(ZoomConfig, method) == 12);

/// Size of the zoomed picture in pixels.
struct ZoomResolution
{
    std::uint32_t x;
    std::uint32_t y;
};

static_assert(sizeof(ZoomResolution) == 8 && offsetof(ZoomResolution, y) == 4);

/// Automatic gain control of the visible channel.
struct VisibleAgc
{
    std::uint8_t target;
    std::uint8_t threshold;
    std::uint8_t filterCoefficient;
};

static_assert(sizeof(VisibleAgc) == 3 && offsetof(VisibleAgc, threshold) == 1 &&
              offsetof(VisibleAgc, filterCoefficient) == 2);

/// CLHE of the visible channel: a mix of a linear and a histogram-equalisation lookup table.
struct VisibleClhe
{
    std::uint32_t threshold;
    std::uint8_t filterCoefficient;
};

static_assert(sizeof(VisibleClhe) == 8 && offsetof(VisibleClhe, filterCoefficient) == 4);

/// The 2 x 3 warp matrix of one video stream, column by column.
struct Warp
{
    std::uint8_t stream;   ///< 0 fusion, 1 visible, 2 infrared; the caller fills it in.
    alignas(8) double a11; ///< 8-byte aligned on every target, also where a double alone is not.
    double a21;
    double a12;
    double a22;
    double a13;
    double a23;
};

static_assert(sizeof(Warp) == 56 && offsetof(Warp, a11) == 8 && offsetof(Warp, a21) == 16 &&
              offsetof(Warp, a12) == 24 && offsetof(Warp, a22) == 32 && offsetof(Warp, a13) == 40 &&
              offsetof(Warp, a23) == 48);

/// The plain words of the SDK configuration, which follow its table pointer. Words are counted in
/// 32 bits from the start of the object, table pointer included.
struct ConfigurationWords
{
    static constexpr std::size_t tablePointerWords = sizeof(void *) / sizeof(std::int32_t);

    /// Offset in bytes from the start of these words of the word with the given number.
    static constexpr std::size_t offsetOfWord(std::size_t word)
    {
        return (word - tablePointerWords) * sizeof(std::int32_t);
    }

    std::int32_t keptBeforeDefaults[6 - tablePointerWords];
    std::int32_t gskDefault;  ///< Word 6.
    std::int32_t gmsDefault;  ///< Word 7.
    std::int32_t gfidDefault; ///< Word 8.
    std::int32_t tintDefault; ///< Word 9.
    std::int32_t keptBeforeRanges[5];
    std::int32_t gskMinimum;  ///< Word 15.
    std::int32_t gskMaximum;  ///< Word 16.
    std::int32_t gfidMinimum; ///< Word 17.
    std::int32_t gfidMaximum; ///< Word 18.
    std::int32_t tintMinimum; ///< Word 19.
    std::int32_t tintMaximum; ///< Word 20.
    std::int32_t gmsMinimum;  ///< Word 21.
    std::int32_t gmsMaximum;  ///< Word 22.
};

static_assert(offsetof(ConfigurationWords, gskDefault) == ConfigurationWords::offsetOfWord(6));
static_assert(offsetof(ConfigurationWords, gmsDefault) == ConfigurationWords::offsetOfWord(7));
static_assert(offsetof(ConfigurationWords, gfidDefault) == ConfigurationWords::offsetOfWord(8));
static_assert(offsetof(ConfigurationWords, tintDefault) == ConfigurationWords::offsetOfWord(9));
static_assert(offsetof(ConfigurationWords, gskMinimum) == ConfigurationWords::offsetOfWord(15));
static_assert(offsetof(ConfigurationWords, gskMaximum) == ConfigurationWords::offsetOfWord(16));
static_assert(offsetof(ConfigurationWords, gfidMinimum) == ConfigurationWords::offsetOfWord(17));
static_assert(offsetof(ConfigurationWords, gfidMaximum) == ConfigurationWords::offsetOfWord(18));
static_assert(offsetof(ConfigurationWords, tintMinimum) == ConfigurationWords::offsetOfWord(19));
static_assert(offsetof(ConfigurationWords, tintMaximum) == ConfigurationWords::offsetOfWord(20));
static_assert(offsetof(ConfigurationWords, gmsMinimum) == ConfigurationWords::offsetOfWord(21));
static_assert(offsetof(ConfigurationWords, gmsMaximum) == ConfigurationWords::offsetOfWord(22));

} // namespace veltrix_sdk
