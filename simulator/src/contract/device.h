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
/// all have in common is the core's.
class SimulatedDevice final : public veltrix_sdk::IDeviceControl, private UnitAccess
{
public:
    using UnitAccess::UnitAccess;

    bool getFirmwareVersions(veltrix_sdk::FirmwareVersions *versions) override
    {
        return fill(__func__, Field::processorVersion, versions);
    }
    bool startReading() override
    {
        return call(__func__, [] { return true; });
    }
    std::uint32_t getRoiX1(std::uint32_t region) override
    {
        return getRoi(__func__, RoiCoordinate::x1, region);
    }
    std::uint32_t getRoiX2(std::uint32_t region) override
    {
        return getRoi(__func__, RoiCoordinate::x2, region);
    }
    std::uint32_t getRoiY1(std::uint32_t region) override
    {
        return getRoi(__func__, RoiCoordinate::y1, region);
    }
    std::uint32_t getRoiY2(std::uint32_t region) override
    {
        return getRoi(__func__, RoiCoordinate::y2, region);
    }
    std::uint32_t getSerialNumber() override { return get<Field::serialNumber>(__func__); }
    std::uint32_t getSensorSerialNumber() override { return get<Field::sensorSerialNumber>(__func__); }
    bool getTemperatures(veltrix_sdk::Temperatures *temperatures) override
    {
        return fill(__func__, Field::sensorMillikelvin, temperatures);
    }
    bool getOperatingInfo(veltrix_sdk::OperatingInfo *info) override
    {
        return fill(__func__, Field::operatingMinutes, info);
    }
    std::uint32_t getGsk() override { return get<Field::gsk>(__func__); }
    bool setGsk(std::uint32_t gsk) override { return set(__func__, Field::gsk, gsk); }
    bool setGfid(std::uint32_t gfid) override { return set(__func__, Field::gfid, gfid); }
    bool setGms(std::uint32_t gms) override { return set(__func__, Field::gms, gms); }
    std::uint32_t getGfid() override { return get<Field::gfid>(__func__); }
    std::uint32_t getGms() override { return get<Field::gms>(__func__); }
    std::uint32_t getTint() override { return get<Field::tint>(__func__); }
    bool setTint(std::uint32_t tint) override { return set(__func__, Field::tint, tint); }
    bool getBprEnable() override { return get<Field::bprEnable>(__func__); }
    bool setBprEnable(bool enabled) override { return set(__func__, Field::bprEnable, enabled); }
    bool getOffsetCorrection() override { return get<Field::offsetCorrection>(__func__); }
    bool setOffsetCorrection(bool enabled) override
    {
        return set(__func__, Field::offsetCorrection, enabled);
    }
    bool getGainCorrection() override { return get<Field::gainCorrection>(__func__); }
    bool setGainCorrection(bool enabled) override { return set(__func__, Field::gainCorrection, enabled); }
    bool getHorizontalFlip() override { return get<Field::horizontalFlip>(__func__); }
    bool setHorizontalFlip(bool enabled) override { return set(__func__, Field::horizontalFlip, enabled); }
    bool getVerticalFlip() override { return get<Field::verticalFlip>(__func__); }
    bool setVerticalFlip(bool enabled) override { return set(__func__, Field::verticalFlip, enabled); }
    bool getVignettingCorrection() override { return get<Field::vignettingCorrection>(__func__); }
    bool setVignettingCorrection(bool enabled) override
    {
        return set(__func__, Field::vignettingCorrection, enabled);
    }
    bool getColumnCorrection() override { return get<Field::columnCorrection>(__func__); }
    bool setColumnCorrection(bool enabled) override
    {
        return set(__func__, Field::columnCorrection, enabled);
    }
    bool setSdiOutput(bool enabled) override { return set(__func__, Field::sdiOutput, enabled); }
    bool getSdiOutput() override { return get<Field::sdiOutput>(__func__); }
    bool setParallelOutput(bool enabled) override { return set(__func__, Field::parallelOutput, enabled); }
    bool getParallelOutput() override { return get<Field::parallelOutput>(__func__); }
    bool setMipiOutput(bool enabled) override { return set(__func__, Field::mipiOutput, enabled); }
    bool getMipiOutput() override { return get<Field::mipiOutput>(__func__); }
    bool setFrameRate(std::uint8_t hertz) override { return set(__func__, Field::frameRate, hertz); }
    std::uint8_t getFrameRate() override { return get<Field::frameRate>(__func__); }
    bool setVideoOutput(std::uint8_t output) override { return set(__func__, Field::videoOutput, output); }
    std::uint8_t getVideoOutput() override { return get<Field::videoOutput>(__func__); }
    bool setMavlinkBaudRate(std::int32_t baudRate, bool permanent) override
    {
        return set(__func__, Field::mavlinkBaudRate, baudRate, permanent);
    }
    bool configureEdgeCorrection(std::uint8_t type, std::uint32_t gain, std::uint32_t threshold) override
    {
        return call(
            __func__,
            [&] {
                const double secondThreshold{threshold + secondThresholdDistance};
                return state.store(Field::edgeType, type, gain, threshold, secondThreshold);
            },
            type, gain, threshold);
    }
    veltrix_sdk::EdgeCorrection getEdgeCorrection() override
    {
        return call(__func__, [&] {
            veltrix_sdk::EdgeCorrection correction{};
            load(Field::edgeType, correction);
            return correction;
        });
    }
    bool configureZoom(const veltrix_sdk::ZoomConfig *zoom) override
    {
        return set(__func__, Field::zoomFactor, zoom);
    }
    bool getZoomConfig(veltrix_sdk::ZoomConfig *zoom) override
    {
        return fill(__func__, Field::zoomFactor, zoom);
    }
    bool getZoomResolution(veltrix_sdk::ZoomResolution *resolution) override
    {
        return fill(__func__, Field::zoomXResolution, resolution);
    }
    std::uint8_t getContrastType() override { return get<Field::contrastType>(__func__); }
    bool configureContrastType(std::uint8_t type) override
    {
        return set(__func__, Field::contrastType, type);
    }
    bool setColorLut(std::uint8_t lut) override { return set(__func__, Field::colorLut, lut); }
    std::uint8_t getColorLut() override { return get<Field::colorLut>(__func__); }
    std::uint8_t getAhcGainLimitation(veltrix_sdk::AhcGainLimitation *limitation) override
    {
        return fill<std::uint8_t>(__func__, Field::ahcBlack, limitation);
    }
    bool setAhcGainLimitation(std::uint8_t black, std::uint8_t white) override
    {
        return set(__func__, Field::ahcBlack, black, white);
    }
    std::uint8_t getLutTemporalFilter() override { return get<Field::lutTemporalFilter>(__func__); }
    bool setLutTemporalFilter(std::uint8_t filter) override
    {
        return set(__func__, Field::lutTemporalFilter, filter);
    }
    std::uint32_t getBitStatus() override { return get<Field::bitStatus>(__func__); }
    std::uint8_t connect(std::uint8_t *identity) override
    {
        return fill<std::uint8_t>(__func__, Field::identity, Out{"identity", identity});
    }
    bool readBprTable(std::uint32_t first, std::uint32_t second, std::uint8_t code) override
    {
        const auto transfer = [&] {
            return isBprTransfer(first, second) && code == readBprCode &&
                   badPixels().read(serialNumber(), log);
        };
        return call(__func__, transfer, first, second, code);
    }
    bool writeBprTable(std::uint32_t first, std::uint32_t second, std::uint8_t code) override
    {
        const auto transfer = [&] {
            return isBprTransfer(first, second) && code == writeBprCode &&
                   badPixels().write(serialNumber(), log);
        };
        return call(__func__, transfer, first, second, code);
    }
    bool addBadPixel(std::uint32_t column, std::uint32_t row) override
    {
        return declare(__func__, column, row, true);
    }
    bool removeBadPixel(std::uint32_t column, std::uint32_t row) override
    {
        return declare(__func__, column, row, false);
    }
    bool setVideoMode(std::uint8_t mode) override { return set(__func__, Field::videoMode, mode); }
    bool getVideoMode(std::uint8_t *mode) override
    {
        return fill(__func__, Field::videoMode, Out{"mode", mode});
    }
    bool setTarget(std::int32_t target) override
    {
        const auto select = [&] {
            const bool known{target == 0 || target == 1};
            state.target = known ? target : state.target;
            return known;
        };
        return call(__func__, select, target);
    }
    bool setVisibleAgc(std::int32_t target, std::uint8_t threshold, std::uint8_t filterCoefficient) override
    {
        return set(__func__, Field::visibleAgcTarget, target, threshold, filterCoefficient);
    }
    bool getVisibleAgc(veltrix_sdk::VisibleAgc *agc) override
    {
        return fill(__func__, Field::visibleAgcTarget, agc);
    }
    bool setVisibleClhe(std::int32_t threshold, std::uint8_t filterCoefficient) override
    {
        return set(__func__, Field::visibleClheThreshold, threshold, filterCoefficient);
    }
    bool getVisibleClhe(veltrix_sdk::VisibleClhe *clhe) override
    {
        return fill(__func__, Field::visibleClheThreshold, clhe);
    }
    bool setWarp(std::int32_t stream, std::int32_t a11, std::int32_t a21, std::int32_t a12, std::int32_t a22,
                 std::int32_t a13, std::int32_t a23) override
    {
        const auto store = [&] {
            return isWarpStream(stream) && state.store(warpField(stream), a11, a21, a12, a22, a13, a23);
        };
        return call(__func__, store, stream, a11, a21, a12, a22, a13, a23);
    }
    bool getWarp(veltrix_sdk::Warp *warp) override
    {
        const auto read = [&] {
            const bool known{isWarpStream(warp->stream)};
            if (known) {
                load(warpField(warp->stream), *warp);
            }
            return known;
        };
        return call(__func__, read, warp);
    }
    bool saveBlendUnitParameters(std::uint8_t kind) override
    {
        const auto save = [&] {
            return kind <= 1 && memory.save(state, kind == 0 ? Saved::User : Saved::Expert, log) &&
                   count(Field::userSaves + kind);
        };
        return call(__func__, save, kind);
    }
    bool setStartingMode(std::uint32_t mode) override { return set(__func__, Field::startingMode, mode); }
    bool getStartingMode(std::uint8_t *mode) override
    {
        return fill(__func__, Field::startingMode, Out{"mode", mode});
    }
    std::uint32_t getGamma() override { return get<Field::gamma>(__func__); }
    bool setGamma(std::uint32_t gammaFixedPoint) override
    {
        return set(__func__, Field::gamma, gammaFixedPoint);
    }
    std::uint32_t getClhe() override { return get<Field::clhe>(__func__); }
    bool setClhe(std::uint32_t clhe) override { return set(__func__, Field::clhe, clhe); }
    bool getPolarity() override { return get<Field::polarity>(__func__); }
    bool setPolarity(bool inverted) override { return set(__func__, Field::polarity, inverted); }
    bool setRoiX1(std::uint32_t x1, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return setRoi(__func__, RoiCoordinate::x1, x1, region, roi1IncEnabled, roi0ExcEnabled,
                      roi1ExcEnabled);
    }
    bool setRoiX2(std::uint32_t x2, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return setRoi(__func__, RoiCoordinate::x2, x2, region, roi1IncEnabled, roi0ExcEnabled,
                      roi1ExcEnabled);
    }
    bool setRoiY1(std::uint32_t y1, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return setRoi(__func__, RoiCoordinate::y1, y1, region, roi1IncEnabled, roi0ExcEnabled,
                      roi1ExcEnabled);
    }
    bool setRoiY2(std::uint32_t y2, std::int32_t region, bool roi1IncEnabled, bool roi0ExcEnabled,
                  bool roi1ExcEnabled) override
    {
        return setRoi(__func__, RoiCoordinate::y2, y2, region, roi1IncEnabled, roi0ExcEnabled,
                      roi1ExcEnabled);
    }
    bool processNucRequest() override
    {
        return call(__func__, [&] { return count(Field::nucRequests); });
    }
};

} // namespace veltrix_simulator
