// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The SDK's device interface: one connected camera with its Blend Unit. Names of numbers and of ranges are
// those of numbers.h.
#pragma once

#include "veltrix_sdk/export.h"
#include "veltrix_sdk/records.h"

#include <cstdint>

namespace veltrix_sdk
{

/// One connected camera, with its Blend Unit when fitted; commands go to the unit that setTarget chose.
/// Owned by the SDK; closed through the manager. The number behind an operation is its place in the
/// table. Every call blocks until the unit has answered or the SDK has given up. A bool result tells
/// whether the unit acknowledged; a failed read leaves zeros.
class IDeviceControl
{
private:
    virtual void kept0() {}
    virtual void kept1() {}
    virtual void kept2() {}

public:
    virtual bool getFirmwareVersions(FirmwareVersions *versions) = 0; ///< 3: Both words 0: no answer.
    virtual bool startReading() = 0; ///< 4: Once, after the version check, before the other reads.
    /// 5: Pixels; the region is one of getter_region.
    virtual std::uint32_t getRoiX1(std::uint32_t region) = 0;
    /// 6: Pixels; the region is one of getter_region.
    virtual std::uint32_t getRoiX2(std::uint32_t region) = 0;
    /// 7: Pixels; the region is one of getter_region.
    virtual std::uint32_t getRoiY1(std::uint32_t region) = 0;
    /// 8: Pixels; the region is one of getter_region.
    virtual std::uint32_t getRoiY2(std::uint32_t region) = 0;
    virtual std::uint32_t getSerialNumber() = 0;       ///< 9
    virtual std::uint32_t getSensorSerialNumber() = 0; ///< 10

private:
    virtual void kept11() {}

public:
    virtual bool getTemperatures(Temperatures *temperatures) = 0; ///< 12: Millikelvin, of the current target.
    virtual bool getOperatingInfo(OperatingInfo *info) = 0;       ///< 13

private:
    virtual void kept14() {}
    virtual void kept15() {}

public:
    virtual std::uint32_t getGsk() = 0;                     ///< 16
    virtual bool setGsk(std::uint32_t gsk) = 0;             ///< 17
    virtual bool setGfid(std::uint32_t gfid) = 0;           ///< 18
    virtual bool setGms(std::uint32_t gms) = 0;             ///< 19
    virtual std::uint32_t getGfid() = 0;                    ///< 20
    virtual std::uint32_t getGms() = 0;                     ///< 21
    virtual std::uint32_t getTint() = 0;                    ///< 22
    virtual bool setTint(std::uint32_t tint) = 0;           ///< 23
    virtual bool getBprEnable() = 0;                        ///< 24
    virtual bool setBprEnable(bool enabled) = 0;            ///< 25
    virtual bool getOffsetCorrection() = 0;                 ///< 26
    virtual bool setOffsetCorrection(bool enabled) = 0;     ///< 27
    virtual bool getGainCorrection() = 0;                   ///< 28
    virtual bool setGainCorrection(bool enabled) = 0;       ///< 29
    virtual bool getHorizontalFlip() = 0;                   ///< 30
    virtual bool setHorizontalFlip(bool enabled) = 0;       ///< 31
    virtual bool getVerticalFlip() = 0;                     ///< 32
    virtual bool setVerticalFlip(bool enabled) = 0;         ///< 33
    virtual bool getVignettingCorrection() = 0;             ///< 34
    virtual bool setVignettingCorrection(bool enabled) = 0; ///< 35
    virtual bool getColumnCorrection() = 0;                 ///< 36
    virtual bool setColumnCorrection(bool enabled) = 0;     ///< 37

private:
    virtual void kept38() {}
    virtual void kept39() {}

public:
    virtual bool setSdiOutput(bool enabled) = 0;          ///< 40
    virtual bool getSdiOutput() = 0;                      ///< 41
    virtual bool setParallelOutput(bool enabled) = 0;     ///< 42
    virtual bool getParallelOutput() = 0;                 ///< 43
    virtual bool setMipiOutput(bool enabled) = 0;         ///< 44
    virtual bool getMipiOutput() = 0;                     ///< 45
    virtual bool setFrameRate(std::uint8_t hertz) = 0;    ///< 46: One of frameRatesHz.
    virtual std::uint8_t getFrameRate() = 0;              ///< 47: Hertz.
    virtual bool setVideoOutput(std::uint8_t output) = 0; ///< 48: Processing stage: videoOutputRange.
    virtual std::uint8_t getVideoOutput() = 0;            ///< 49
    /// 50: One of mavlinkBaudRates. Permanent: kept over a power cycle.
    virtual bool setMavlinkBaudRate(std::int32_t baudRate, bool permanent) = 0;
    /// 51: edgeTypeRange, edgeGainRange, edgeThresholdRange; gain and threshold are unscaled.
    virtual bool configureEdgeCorrection(std::uint8_t type, std::uint32_t gain, std::uint32_t threshold) = 0;
#if !defined(VELTRIX_SDK_SPELLED_OUT)
    virtual EdgeCorrection getEdgeCorrection() = 0; ///< 52
#else
    /// 52: Microsoft's compiler passes the place of a result after the object, and returns that place.
    virtual EdgeCorrection *getEdgeCorrectionInto(EdgeCorrection *result) = 0;
    EdgeCorrection getEdgeCorrection()
    {
        EdgeCorrection result{};
        return *getEdgeCorrectionInto(&result);
    }
#endif

private:
    virtual void kept53() {}
    virtual void kept54() {}

public:
    virtual bool configureZoom(const ZoomConfig *zoom) = 0;         ///< 55
    virtual bool getZoomConfig(ZoomConfig *zoom) = 0;               ///< 56
    virtual bool getZoomResolution(ZoomResolution *resolution) = 0; ///< 57: Pixels.

private:
    virtual void kept58() {}

public:
    virtual std::uint8_t getContrastType() = 0;                ///< 59: contrastTypeClhe, or CLAHE.
    virtual bool configureContrastType(std::uint8_t type) = 0; ///< 60
    virtual bool setColorLut(std::uint8_t lut) = 0;            ///< 61: Colour table: colorLutRange.
    virtual std::uint8_t getColorLut() = 0;                    ///< 62
    virtual std::uint8_t getAhcGainLimitation(AhcGainLimitation *limitation) = 0;  ///< 63: Only 1 is success.
    virtual bool setAhcGainLimitation(std::uint8_t black, std::uint8_t white) = 0; ///< 64: ahcGainLimitRange.
    virtual std::uint8_t getLutTemporalFilter() = 0;                               ///< 65
    virtual bool setLutTemporalFilter(std::uint8_t filter) = 0; ///< 66: lutTemporalFilterRange.
    virtual std::uint32_t getBitStatus() = 0;                   ///< 67: Built-in test word.
    /// 68: Only 1 is success; a KR camera answers krIdentity.
    virtual std::uint8_t connect(std::uint8_t *identity) = 0;

private:
    virtual void kept69() {}

public:
    /// 70: Takes bprFirstNumber, bprSecondNumber and bprReadCode.
    virtual bool readBprTable(std::uint32_t first, std::uint32_t second, std::uint8_t code) = 0;
    /// 71: Takes bprFirstNumber, bprSecondNumber and bprWriteCode.
    virtual bool writeBprTable(std::uint32_t first, std::uint32_t second, std::uint8_t code) = 0;
    /// 72: Less than sensorColumns and sensorRows.
    virtual bool addBadPixel(std::uint32_t column, std::uint32_t row) = 0;
    /// 73: Less than sensorColumns and sensorRows.
    virtual bool removeBadPixel(std::uint32_t column, std::uint32_t row) = 0;
    virtual bool setVideoMode(std::uint8_t mode) = 0;  ///< 74: One of the video modes.
    virtual bool getVideoMode(std::uint8_t *mode) = 0; ///< 75
    virtual bool setTarget(std::int32_t target) = 0;   ///< 76: targetBlendUnit or targetCamera.
    /// 77: Percent each.
    virtual bool setVisibleAgc(std::int32_t target, std::uint8_t threshold,
                               std::uint8_t filterCoefficient) = 0;
    virtual bool getVisibleAgc(VisibleAgc *agc) = 0; ///< 78
    /// 79: visibleClheThresholdRange; the coefficient in percent.
    virtual bool setVisibleClhe(std::int32_t threshold, std::uint8_t filterCoefficient) = 0;
    virtual bool getVisibleClhe(VisibleClhe *clhe) = 0; ///< 80
    /// 81: The matrix column by column, in whole numbers; the stream as in Warp.
    virtual bool setWarp(std::int32_t stream, std::int32_t a11, std::int32_t a21, std::int32_t a12,
                         std::int32_t a22, std::int32_t a13, std::int32_t a23) = 0;
    virtual bool getWarp(Warp *warp) = 0; ///< 82: The caller fills in the stream.
    /// 83: saveUserParameters or saveExpertParameters.
    virtual bool saveBlendUnitParameters(std::uint8_t kind) = 0;
    virtual bool setStartingMode(std::uint32_t mode) = 0;     ///< 84: As the video mode; 3 the current mode.
    virtual bool getStartingMode(std::uint8_t *mode) = 0;     ///< 85
    virtual std::uint32_t getGamma() = 0;                     ///< 86: 16.16 fixed point.
    virtual bool setGamma(std::uint32_t gammaFixedPoint) = 0; ///< 87: 16.16 fixed point.
    virtual std::uint32_t getClhe() = 0;                      ///< 88: Unscaled.
    virtual bool setClhe(std::uint32_t clhe) = 0;             ///< 89

private:
    virtual void kept90() {}
    virtual void kept91() {}

public:
    virtual bool getPolarity() = 0;              ///< 92: True: inverted.
    virtual bool setPolarity(bool inverted) = 0; ///< 93
    /// 94: Pixels; the region is one of setter_region.
    virtual bool setRoiX1(std::uint32_t x1, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                          bool roi1ExcEnabled) = 0;
    /// 95: Pixels; the region is one of setter_region.
    virtual bool setRoiX2(std::uint32_t x2, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                          bool roi1ExcEnabled) = 0;
    /// 96: Pixels; the region is one of setter_region.
    virtual bool setRoiY1(std::uint32_t y1, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                          bool roi1ExcEnabled) = 0;
    /// 97: Pixels; the region is one of setter_region.
    virtual bool setRoiY2(std::uint32_t y2, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                          bool roi1ExcEnabled) = 0;
    virtual bool processNucRequest() = 0; ///< 98: Non-uniformity correction.

protected:
    ~IDeviceControl() = default;
};

} // namespace veltrix_sdk
