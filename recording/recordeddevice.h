// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What stands before a device of the library: every call of it is handed on and written.
#pragma once

#include "forwarder.h"
#include "veltrix_sdk/device_control.h"

#include <cstdint>

namespace recording
{

class RecordedDevice final : public Forwarder<veltrix_sdk::IDeviceControl>
{
public:
    using Forwarder<IDeviceControl>::Forwarder;

    /// The unit that is addressed stands in the lines of the calls after this one.
    bool setTarget(std::int32_t target) override
    {
        const bool acknowledged{forward<&IDeviceControl::setTarget>(target)};
        if (acknowledged) {
            recorder.target = target;
        }
        return acknowledged;
    }

#if !defined(VELTRIX_SDK_SPELLED_OUT)
    veltrix_sdk::EdgeCorrection getEdgeCorrection() override
    {
        return forward<&IDeviceControl::getEdgeCorrection>();
    }
#else
    veltrix_sdk::EdgeCorrection *getEdgeCorrectionInto(veltrix_sdk::EdgeCorrection *result) override
    {
        *result = forward<&IDeviceControl::getEdgeCorrection>();
        return result;
    }
#endif

    bool getFirmwareVersions(veltrix_sdk::FirmwareVersions *versions) override
    {
        return forward<&IDeviceControl::getFirmwareVersions>(versions);
    }
    bool startReading() override
    {
        return forward<&IDeviceControl::startReading>();
    }
    std::uint32_t getRoiX1(std::uint32_t region) override
    {
        return forward<&IDeviceControl::getRoiX1>(region);
    }
    std::uint32_t getRoiX2(std::uint32_t region) override
    {
        return forward<&IDeviceControl::getRoiX2>(region);
    }
    std::uint32_t getRoiY1(std::uint32_t region) override
    {
        return forward<&IDeviceControl::getRoiY1>(region);
    }
    std::uint32_t getRoiY2(std::uint32_t region) override
    {
        return forward<&IDeviceControl::getRoiY2>(region);
    }
    std::uint32_t getSerialNumber() override
    {
        return forward<&IDeviceControl::getSerialNumber>();
    }
    std::uint32_t getSensorSerialNumber() override
    {
        return forward<&IDeviceControl::getSensorSerialNumber>();
    }
    bool getTemperatures(veltrix_sdk::Temperatures *temperatures) override
    {
        return forward<&IDeviceControl::getTemperatures>(temperatures);
    }
    bool getOperatingInfo(veltrix_sdk::OperatingInfo *info) override
    {
        return forward<&IDeviceControl::getOperatingInfo>(info);
    }
    std::uint32_t getGsk() override
    {
        return forward<&IDeviceControl::getGsk>();
    }
    bool setGsk(std::uint32_t gsk) override
    {
        return forward<&IDeviceControl::setGsk>(gsk);
    }
    bool setGfid(std::uint32_t gfid) override
    {
        return forward<&IDeviceControl::setGfid>(gfid);
    }
    bool setGms(std::uint32_t gms) override
    {
        return forward<&IDeviceControl::setGms>(gms);
    }
    std::uint32_t getGfid() override
    {
        return forward<&IDeviceControl::getGfid>();
    }
    std::uint32_t getGms() override
    {
        return forward<&IDeviceControl::getGms>();
    }
    std::uint32_t getTint() override
    {
        return forward<&IDeviceControl::getTint>();
    }
    bool setTint(std::uint32_t tint) override
    {
        return forward<&IDeviceControl::setTint>(tint);
    }
    bool getBprEnable() override
    {
        return forward<&IDeviceControl::getBprEnable>();
    }
    bool setBprEnable(bool enabled) override
    {
        return forward<&IDeviceControl::setBprEnable>(enabled);
    }
    bool getOffsetCorrection() override
    {
        return forward<&IDeviceControl::getOffsetCorrection>();
    }
    bool setOffsetCorrection(bool enabled) override
    {
        return forward<&IDeviceControl::setOffsetCorrection>(enabled);
    }
    bool getGainCorrection() override
    {
        return forward<&IDeviceControl::getGainCorrection>();
    }
    bool setGainCorrection(bool enabled) override
    {
        return forward<&IDeviceControl::setGainCorrection>(enabled);
    }
    bool getHorizontalFlip() override
    {
        return forward<&IDeviceControl::getHorizontalFlip>();
    }
    bool setHorizontalFlip(bool enabled) override
    {
        return forward<&IDeviceControl::setHorizontalFlip>(enabled);
    }
    bool getVerticalFlip() override
    {
        return forward<&IDeviceControl::getVerticalFlip>();
    }
    bool setVerticalFlip(bool enabled) override
    {
        return forward<&IDeviceControl::setVerticalFlip>(enabled);
    }
    bool getVignettingCorrection() override
    {
        return forward<&IDeviceControl::getVignettingCorrection>();
    }
    bool setVignettingCorrection(bool enabled) override
    {
        return forward<&IDeviceControl::setVignettingCorrection>(enabled);
    }
    bool getColumnCorrection() override
    {
        return forward<&IDeviceControl::getColumnCorrection>();
    }
    bool setColumnCorrection(bool enabled) override
    {
        return forward<&IDeviceControl::setColumnCorrection>(enabled);
    }
    bool setSdiOutput(bool enabled) override
    {
        return forward<&IDeviceControl::setSdiOutput>(enabled);
    }
    bool getSdiOutput() override
    {
        return forward<&IDeviceControl::getSdiOutput>();
    }
    bool setParallelOutput(bool enabled) override
    {
        return forward<&IDeviceControl::setParallelOutput>(enabled);
    }
    bool getParallelOutput() override
    {
        return forward<&IDeviceControl::getParallelOutput>();
    }
    bool setMipiOutput(bool enabled) override
    {
        return forward<&IDeviceControl::setMipiOutput>(enabled);
    }
    bool getMipiOutput() override
    {
        return forward<&IDeviceControl::getMipiOutput>();
    }
    bool setFrameRate(std::uint8_t hertz) override
    {
        return forward<&IDeviceControl::setFrameRate>(hertz);
    }
    std::uint8_t getFrameRate() override
    {
        return forward<&IDeviceControl::getFrameRate>();
    }
    bool setVideoOutput(std::uint8_t output) override
    {
        return forward<&IDeviceControl::setVideoOutput>(output);
    }
    std::uint8_t getVideoOutput() override
    {
        return forward<&IDeviceControl::getVideoOutput>();
    }
    bool setMavlinkBaudRate(std::int32_t baudRate, bool permanent) override
    {
        return forward<&IDeviceControl::setMavlinkBaudRate>(baudRate, permanent);
    }
    bool configureEdgeCorrection(std::uint8_t type, std::uint32_t gain, std::uint32_t threshold) override
    {
        return forward<&IDeviceControl::configureEdgeCorrection>(type, gain, threshold);
    }
    bool configureZoom(const veltrix_sdk::ZoomConfig *zoom) override
    {
        return forward<&IDeviceControl::configureZoom>(zoom);
    }
    bool getZoomConfig(veltrix_sdk::ZoomConfig *zoom) override
    {
        return forward<&IDeviceControl::getZoomConfig>(zoom);
    }
    bool getZoomResolution(veltrix_sdk::ZoomResolution *resolution) override
    {
        return forward<&IDeviceControl::getZoomResolution>(resolution);
    }
    std::uint8_t getContrastType() override
    {
        return forward<&IDeviceControl::getContrastType>();
    }
    bool configureContrastType(std::uint8_t type) override
    {
        return forward<&IDeviceControl::configureContrastType>(type);
    }
    bool setColorLut(std::uint8_t lut) override
    {
        return forward<&IDeviceControl::setColorLut>(lut);
    }
    std::uint8_t getColorLut() override
    {
        return forward<&IDeviceControl::getColorLut>();
    }
    std::uint8_t getAhcGainLimitation(veltrix_sdk::AhcGainLimitation *limitation) override
    {
        return forward<&IDeviceControl::getAhcGainLimitation>(limitation);
    }
    bool setAhcGainLimitation(std::uint8_t black, std::uint8_t white) override
    {
        return forward<&IDeviceControl::setAhcGainLimitation>(black, white);
    }
    std::uint8_t getLutTemporalFilter() override
    {
        return forward<&IDeviceControl::getLutTemporalFilter>();
    }
    bool setLutTemporalFilter(std::uint8_t filter) override
    {
        return forward<&IDeviceControl::setLutTemporalFilter>(filter);
    }
    std::uint32_t getBitStatus() override
    {
        return forward<&IDeviceControl::getBitStatus>();
    }
    std::uint8_t connect(std::uint8_t *identity) override
    {
        return forward<&IDeviceControl::connect>(identity);
    }
    bool readBprTable(std::uint32_t first, std::uint32_t second, std::uint8_t code) override
    {
        return forward<&IDeviceControl::readBprTable>(first, second, code);
    }
    bool writeBprTable(std::uint32_t first, std::uint32_t second, std::uint8_t code) override
    {
        return forward<&IDeviceControl::writeBprTable>(first, second, code);
    }
    bool addBadPixel(std::uint32_t column, std::uint32_t row) override
    {
        return forward<&IDeviceControl::addBadPixel>(column, row);
    }
    bool removeBadPixel(std::uint32_t column, std::uint32_t row) override
    {
        return forward<&IDeviceControl::removeBadPixel>(column, row);
    }
    bool setVideoMode(std::uint8_t mode) override
    {
        return forward<&IDeviceControl::setVideoMode>(mode);
    }
    bool getVideoMode(std::uint8_t *mode) override
    {
        return forward<&IDeviceControl::getVideoMode>(mode);
    }
    bool setVisibleAgc(std::int32_t target, std::uint8_t threshold, std::uint8_t filterCoefficient) override
    {
        return forward<&IDeviceControl::setVisibleAgc>(target, threshold, filterCoefficient);
    }
    bool getVisibleAgc(veltrix_sdk::VisibleAgc *agc) override
    {
        return forward<&IDeviceControl::getVisibleAgc>(agc);
    }
    bool setVisibleClhe(std::int32_t threshold, std::uint8_t filterCoefficient) override
    {
        return forward<&IDeviceControl::setVisibleClhe>(threshold, filterCoefficient);
    }
    bool getVisibleClhe(veltrix_sdk::VisibleClhe *clhe) override
    {
        return forward<&IDeviceControl::getVisibleClhe>(clhe);
    }
    bool setWarp(std::int32_t stream, std::int32_t a11, std::int32_t a21, std::int32_t a12, std::int32_t a22,
                 std::int32_t a13, std::int32_t a23) override
    {
        return forward<&IDeviceControl::setWarp>(stream, a11, a21, a12, a22, a13, a23);
    }
    bool getWarp(veltrix_sdk::Warp *warp) override
    {
        return forward<&IDeviceControl::getWarp>(warp);
    }
    bool saveBlendUnitParameters(std::uint8_t kind) override
    {
        return forward<&IDeviceControl::saveBlendUnitParameters>(kind);
    }
    bool setStartingMode(std::uint32_t mode) override
    {
        return forward<&IDeviceControl::setStartingMode>(mode);
    }
    bool getStartingMode(std::uint8_t *mode) override
    {
        return forward<&IDeviceControl::getStartingMode>(mode);
    }
    std::uint32_t getGamma() override
    {
        return forward<&IDeviceControl::getGamma>();
    }
    bool setGamma(std::uint32_t gammaFixedPoint) override
    {
        return forward<&IDeviceControl::setGamma>(gammaFixedPoint);
    }
    std::uint32_t getClhe() override
    {
        return forward<&IDeviceControl::getClhe>();
    }
    bool setClhe(std::uint32_t clhe) override
    {
        return forward<&IDeviceControl::setClhe>(clhe);
    }
    bool getPolarity() override
    {
        return forward<&IDeviceControl::getPolarity>();
    }
    bool setPolarity(bool inverted) override
    {
        return forward<&IDeviceControl::setPolarity>(inverted);
    }
    bool setRoiX1(std::uint32_t x1, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return forward<&IDeviceControl::setRoiX1>(x1, region, roi1IncEnabled, roi0ExcEnabled, roi1ExcEnabled);
    }
    bool setRoiX2(std::uint32_t x2, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return forward<&IDeviceControl::setRoiX2>(x2, region, roi1IncEnabled, roi0ExcEnabled, roi1ExcEnabled);
    }
    bool setRoiY1(std::uint32_t y1, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return forward<&IDeviceControl::setRoiY1>(y1, region, roi1IncEnabled, roi0ExcEnabled, roi1ExcEnabled);
    }
    bool setRoiY2(std::uint32_t y2, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return forward<&IDeviceControl::setRoiY2>(y2, region, roi1IncEnabled, roi0ExcEnabled, roi1ExcEnabled);
    }
    bool processNucRequest() override
    {
        return forward<&IDeviceControl::processNucRequest>();
    }
};

} // namespace recording
