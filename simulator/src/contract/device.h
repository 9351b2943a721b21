// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated camera with its Blend Unit: every operation of the device interface.
#pragma once

#include "contract/unitaccess.h"
#include "veltrix_sdk/device_control.h"

#include <cstdint>

namespace veltrix_simulator
{

/// Works on the unit that the current target selects. Each operation names the state it works on; what
/// all have in common is the way that every call goes.
class SimulatedDevice final : public veltrix_sdk::IDeviceControl, private UnitAccess
{
public:
    using UnitAccess::UnitAccess;

    bool getFirmwareVersions(veltrix_sdk::FirmwareVersions *versions) override
    {
        return fill(OperationId::getFirmwareVersions, {versions});
    }
    bool startReading() override
    {
        return call(OperationId::startReading, {}, [] { return true; });
    }
    std::uint32_t getRoiX1(std::uint32_t region) override
    {
        return getRoi(OperationId::getRoiX1, Field::roi0X1, region);
    }
    std::uint32_t getRoiX2(std::uint32_t region) override
    {
        return getRoi(OperationId::getRoiX2, Field::roi0X2, region);
    }
    std::uint32_t getRoiY1(std::uint32_t region) override
    {
        return getRoi(OperationId::getRoiY1, Field::roi0Y1, region);
    }
    std::uint32_t getRoiY2(std::uint32_t region) override
    {
        return getRoi(OperationId::getRoiY2, Field::roi0Y2, region);
    }
    std::uint32_t getSerialNumber() override
    {
        return get<Field::serialNumber>(OperationId::getSerialNumber);
    }
    std::uint32_t getSensorSerialNumber() override
    {
        return get<Field::sensorSerialNumber>(OperationId::getSensorSerialNumber);
    }
    bool getTemperatures(veltrix_sdk::Temperatures *temperatures) override
    {
        return fill(OperationId::getTemperatures, {temperatures});
    }
    bool getOperatingInfo(veltrix_sdk::OperatingInfo *info) override
    {
        return fill(OperationId::getOperatingInfo, {info});
    }
    std::uint32_t getGsk() override { return get<Field::gsk>(OperationId::getGsk); }
    bool setGsk(std::uint32_t gsk) override { return set(OperationId::setGsk, Field::gsk, {gsk}); }
    bool setGfid(std::uint32_t gfid) override { return set(OperationId::setGfid, Field::gfid, {gfid}); }
    bool setGms(std::uint32_t gms) override { return set(OperationId::setGms, Field::gms, {gms}); }
    std::uint32_t getGfid() override { return get<Field::gfid>(OperationId::getGfid); }
    std::uint32_t getGms() override { return get<Field::gms>(OperationId::getGms); }
    std::uint32_t getTint() override { return get<Field::tint>(OperationId::getTint); }
    bool setTint(std::uint32_t tint) override { return set(OperationId::setTint, Field::tint, {tint}); }
    bool getBprEnable() override { return get<Field::bprEnable>(OperationId::getBprEnable); }
    bool setBprEnable(bool enabled) override
    {
        return set(OperationId::setBprEnable, Field::bprEnable, {enabled});
    }
    bool getOffsetCorrection() override
    {
        return get<Field::offsetCorrection>(OperationId::getOffsetCorrection);
    }
    bool setOffsetCorrection(bool enabled) override
    {
        return set(OperationId::setOffsetCorrection, Field::offsetCorrection, {enabled});
    }
    bool getGainCorrection() override { return get<Field::gainCorrection>(OperationId::getGainCorrection); }
    bool setGainCorrection(bool enabled) override
    {
        return set(OperationId::setGainCorrection, Field::gainCorrection, {enabled});
    }
    bool getHorizontalFlip() override { return get<Field::horizontalFlip>(OperationId::getHorizontalFlip); }
    bool setHorizontalFlip(bool enabled) override
    {
        return set(OperationId::setHorizontalFlip, Field::horizontalFlip, {enabled});
    }
    bool getVerticalFlip() override { return get<Field::verticalFlip>(OperationId::getVerticalFlip); }
    bool setVerticalFlip(bool enabled) override
    {
        return set(OperationId::setVerticalFlip, Field::verticalFlip, {enabled});
    }
    bool getVignettingCorrection() override
    {
        return get<Field::vignettingCorrection>(OperationId::getVignettingCorrection);
    }
    bool setVignettingCorrection(bool enabled) override
    {
        return set(OperationId::setVignettingCorrection, Field::vignettingCorrection, {enabled});
    }
    bool getColumnCorrection() override
    {
        return get<Field::columnCorrection>(OperationId::getColumnCorrection);
    }
    bool setColumnCorrection(bool enabled) override
    {
        return set(OperationId::setColumnCorrection, Field::columnCorrection, {enabled});
    }
    bool setSdiOutput(bool enabled) override
    {
        return set(OperationId::setSdiOutput, Field::sdiOutput, {enabled});
    }
    bool getSdiOutput() override { return get<Field::sdiOutput>(OperationId::getSdiOutput); }
    bool setParallelOutput(bool enabled) override
    {
        return set(OperationId::setParallelOutput, Field::parallelOutput, {enabled});
    }
    bool getParallelOutput() override { return get<Field::parallelOutput>(OperationId::getParallelOutput); }
    bool setMipiOutput(bool enabled) override
    {
        return set(OperationId::setMipiOutput, Field::mipiOutput, {enabled});
    }
    bool getMipiOutput() override { return get<Field::mipiOutput>(OperationId::getMipiOutput); }
    bool setFrameRate(std::uint8_t hertz) override
    {
        return set(OperationId::setFrameRate, Field::frameRate, {hertz});
    }
    std::uint8_t getFrameRate() override { return get<Field::frameRate>(OperationId::getFrameRate); }
    bool setVideoOutput(std::uint8_t output) override
    {
        return set(OperationId::setVideoOutput, Field::videoOutput, {output});
    }
    std::uint8_t getVideoOutput() override { return get<Field::videoOutput>(OperationId::getVideoOutput); }
    bool setMavlinkBaudRate(std::int32_t baudRate, bool permanent) override
    {
        return set(OperationId::setMavlinkBaudRate, Field::mavlinkBaudRate, {baudRate, permanent});
    }
    bool configureEdgeCorrection(std::uint8_t type, std::uint32_t gain, std::uint32_t threshold) override
    {
        return configureEdge(OperationId::configureEdgeCorrection, {type, gain, threshold});
    }
    bool configureZoom(const veltrix_sdk::ZoomConfig *zoom) override
    {
        return set(OperationId::configureZoom, {zoom});
    }
    bool getZoomConfig(veltrix_sdk::ZoomConfig *zoom) override
    {
        return fill(OperationId::getZoomConfig, {zoom});
    }
    bool getZoomResolution(veltrix_sdk::ZoomResolution *resolution) override
    {
        return fill(OperationId::getZoomResolution, {resolution});
    }
    std::uint8_t getContrastType() override { return get<Field::contrastType>(OperationId::getContrastType); }
    bool configureContrastType(std::uint8_t type) override
    {
        return set(OperationId::configureContrastType, Field::contrastType, {type});
    }
    bool setColorLut(std::uint8_t lut) override
    {
        return set(OperationId::setColorLut, Field::colorLut, {lut});
    }
    std::uint8_t getColorLut() override { return get<Field::colorLut>(OperationId::getColorLut); }
    std::uint8_t getAhcGainLimitation(veltrix_sdk::AhcGainLimitation *limitation) override
    {
        return fill<std::uint8_t>(OperationId::getAhcGainLimitation, {limitation});
    }
    bool setAhcGainLimitation(std::uint8_t black, std::uint8_t white) override
    {
        return set(OperationId::setAhcGainLimitation, Field::ahcBlack, {black, white});
    }
    std::uint8_t getLutTemporalFilter() override
    {
        return get<Field::lutTemporalFilter>(OperationId::getLutTemporalFilter);
    }
    bool setLutTemporalFilter(std::uint8_t filter) override
    {
        return set(OperationId::setLutTemporalFilter, Field::lutTemporalFilter, {filter});
    }
    std::uint32_t getBitStatus() override { return get<Field::bitStatus>(OperationId::getBitStatus); }
    std::uint8_t connect(std::uint8_t *identity) override
    {
        return fill<std::uint8_t>(OperationId::connect, Field::identity,
                                  {{filledName<OperationId::connect>, identity}});
    }
    bool readBprTable(std::uint32_t first, std::uint32_t second, std::uint8_t code) override
    {
        return transferBpr(OperationId::readBprTable, first, second, code, veltrix_sdk::bprReadCode,
                           &BadPixelMemory::read);
    }
    bool writeBprTable(std::uint32_t first, std::uint32_t second, std::uint8_t code) override
    {
        return transferBpr(OperationId::writeBprTable, first, second, code, veltrix_sdk::bprWriteCode,
                           &BadPixelMemory::write);
    }
    bool addBadPixel(std::uint32_t column, std::uint32_t row) override
    {
        return declare(OperationId::addBadPixel, column, row, true);
    }
    bool removeBadPixel(std::uint32_t column, std::uint32_t row) override
    {
        return declare(OperationId::removeBadPixel, column, row, false);
    }
    bool setVideoMode(std::uint8_t mode) override
    {
        return set(OperationId::setVideoMode, Field::videoMode, {mode});
    }
    bool getVideoMode(std::uint8_t *mode) override
    {
        return fill(OperationId::getVideoMode, Field::videoMode,
                    {{filledName<OperationId::getVideoMode>, mode}});
    }
    bool setTarget(std::int32_t target) override { return select(OperationId::setTarget, target); }
    bool setVisibleAgc(std::int32_t target, std::uint8_t threshold, std::uint8_t filterCoefficient) override
    {
        return set(OperationId::setVisibleAgc, Field::visibleAgcTarget,
                   {target, threshold, filterCoefficient});
    }
    bool getVisibleAgc(veltrix_sdk::VisibleAgc *agc) override
    {
        return fill(OperationId::getVisibleAgc, {agc});
    }
    bool setVisibleClhe(std::int32_t threshold, std::uint8_t filterCoefficient) override
    {
        return set(OperationId::setVisibleClhe, Field::visibleClheThreshold, {threshold, filterCoefficient});
    }
    bool getVisibleClhe(veltrix_sdk::VisibleClhe *clhe) override
    {
        return fill(OperationId::getVisibleClhe, {clhe});
    }
    bool setWarp(std::int32_t stream, std::int32_t a11, std::int32_t a21, std::int32_t a12, std::int32_t a22,
                 std::int32_t a13, std::int32_t a23) override
    {
        return setWarpOf(OperationId::setWarp, stream, {stream, a11, a21, a12, a22, a13, a23});
    }
    bool getWarp(veltrix_sdk::Warp *warp) override { return getWarpOf(OperationId::getWarp, warp); }
    bool saveBlendUnitParameters(std::uint8_t kind) override
    {
        return save(OperationId::saveBlendUnitParameters, kind);
    }
    bool setStartingMode(std::uint32_t mode) override
    {
        return set(OperationId::setStartingMode, Field::startingMode, {mode});
    }
    bool getStartingMode(std::uint8_t *mode) override
    {
        return fill(OperationId::getStartingMode, Field::startingMode,
                    {{filledName<OperationId::getStartingMode>, mode}});
    }
    std::uint32_t getGamma() override { return get<Field::gamma>(OperationId::getGamma); }
    bool setGamma(std::uint32_t gammaFixedPoint) override
    {
        return set(OperationId::setGamma, Field::gamma, {gammaFixedPoint});
    }
    std::uint32_t getClhe() override { return get<Field::clhe>(OperationId::getClhe); }
    bool setClhe(std::uint32_t clhe) override { return set(OperationId::setClhe, Field::clhe, {clhe}); }
    bool getPolarity() override { return get<Field::polarity>(OperationId::getPolarity); }
    bool setPolarity(bool inverted) override
    {
        return set(OperationId::setPolarity, Field::polarity, {inverted});
    }
    bool setRoiX1(std::uint32_t x1, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return setRoi(OperationId::setRoiX1, Field::roi0X1, region,
                      {x1, region, roi1IncEnabled, roi0ExcEnabled, roi1ExcEnabled});
    }
    bool setRoiX2(std::uint32_t x2, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return setRoi(OperationId::setRoiX2, Field::roi0X2, region,
                      {x2, region, roi1IncEnabled, roi0ExcEnabled, roi1ExcEnabled});
    }
    bool setRoiY1(std::uint32_t y1, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return setRoi(OperationId::setRoiY1, Field::roi0Y1, region,
                      {y1, region, roi1IncEnabled, roi0ExcEnabled, roi1ExcEnabled});
    }
    bool setRoiY2(std::uint32_t y2, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return setRoi(OperationId::setRoiY2, Field::roi0Y2, region,
                      {y2, region, roi1IncEnabled, roi0ExcEnabled, roi1ExcEnabled});
    }
    bool processNucRequest() override
    {
        return call(OperationId::processNucRequest, {}, [&] { return count(Field::nucRequests); });
    }
#if !defined(VELTRIX_SDK_SPELLED_OUT)
    veltrix_sdk::EdgeCorrection getEdgeCorrection() override
    {
        return getEdge(OperationId::getEdgeCorrection);
    }
#else
    veltrix_sdk::EdgeCorrection *getEdgeCorrectionInto(veltrix_sdk::EdgeCorrection *result) override
    {
        *result = getEdge(OperationId::getEdgeCorrection);
        return result;
    }
#endif
};

} // namespace veltrix_simulator
