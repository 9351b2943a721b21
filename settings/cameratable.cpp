// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The rows of the camera: its switches, numbers, records and regions.
#include "devicesettings.h"
#include "rows.h"
#include "tables.h"
#include "values.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"

#include <cstdint>
#include <string>

using namespace veltrix_sdk;

namespace device_settings
{

namespace
{

/// A setting of the camera that is on or off.
template <typename Get, typename Set>
Setting cameraSwitch(const char *key, Operation<Get> get, Operation<Set> set, const char *meaning)
{
    return number(key, onCamera, get, set, onOff(), meaning);
}

Rows cameraSwitches()
{
    return {
        cameraSwitch("vignettingCorrection", DEVICE_OPERATION(getVignettingCorrection),
                     DEVICE_OPERATION(setVignettingCorrection), "Correction of darker corners"),
        cameraSwitch("columnCorrection", DEVICE_OPERATION(getColumnCorrection),
                     DEVICE_OPERATION(setColumnCorrection),
                     "Correction of differences between the sensor's columns"),
        cameraSwitch("sdiOutput", DEVICE_OPERATION(getSdiOutput), DEVICE_OPERATION(setSdiOutput),
                     "SDI video output"),
        cameraSwitch("parallelOutput", DEVICE_OPERATION(getParallelOutput),
                     DEVICE_OPERATION(setParallelOutput), "Parallel video output"),
        cameraSwitch("mipiOutput", DEVICE_OPERATION(getMipiOutput), DEVICE_OPERATION(setMipiOutput),
                     "MIPI video output"),
        cameraSwitch("horizontalFlip", DEVICE_OPERATION(getHorizontalFlip),
                     DEVICE_OPERATION(setHorizontalFlip), "Picture with left and right exchanged"),
        cameraSwitch("polarity", DEVICE_OPERATION(getPolarity), DEVICE_OPERATION(setPolarity),
                     "Inverted grey levels"),
        cameraSwitch("bprEnable", DEVICE_OPERATION(getBprEnable), DEVICE_OPERATION(setBprEnable),
                     "Replacement of bad pixels"),
        cameraSwitch("offsetCorrection", DEVICE_OPERATION(getOffsetCorrection),
                     DEVICE_OPERATION(setOffsetCorrection), "Correction of each pixel's offset"),
        cameraSwitch("gainCorrection", DEVICE_OPERATION(getGainCorrection),
                     DEVICE_OPERATION(setGainCorrection), "Correction of each pixel's gain"),
        cameraSwitch("verticalFlip", DEVICE_OPERATION(getVerticalFlip), DEVICE_OPERATION(setVerticalFlip),
                     "Picture with top and bottom exchanged"),
    };
}

Rows cameraNumbers(const ConfigurationWords &words)
{
    return {
        called(number("videoOutput", onCamera, DEVICE_OPERATION(getVideoOutput),
                      DEVICE_OPERATION(setVideoOutput), within(videoOutputRange),
                      "Stage of the processing that is put out: 0 raw to 8 BT656"),
               {"raw", "nuc", "column-correction", "vignetting-correction", "edge-enhancement",
                "lut-correction", "reserved", "zoom", "bt656"}),
        number("frameRate", onCamera, DEVICE_OPERATION(getFrameRate), DEVICE_OPERATION(setFrameRate),
               oneOf(frameRatesHz), "Pictures a second", "Hz"),
        counted(number("gamma", onCamera, DEVICE_OPERATION(getGamma), DEVICE_OPERATION(setGamma),
                       within(gammaRange), "Gamma correction in 16.16 fixed point: 65536 is 1", "1/65536"),
                {fixedPointOne, 0, {}, 4, true}),
        number("clhe", onCamera, DEVICE_OPERATION(getClhe), DEVICE_OPERATION(setClhe), within(clheRange),
               "Mix of a linear table and histogram equalisation; low is linear"),
        called(number("colorLut", onCamera, DEVICE_OPERATION(getColorLut), DEVICE_OPERATION(setColorLut),
                      within(colorLutRange), "Colour table, by its place in the list"),
               {"greyscale", "iron", "hot", "rainbow", "ncar", "cubehelix", "coolwarm", "greyscale-ycbcr"}),
        called(number("contrastType", onCamera, DEVICE_OPERATION(getContrastType),
                      DEVICE_OPERATION(configureContrastType), within(contrastTypeRange),
                      "How contrast is found: 0 CLHE over the regions, 1 CLAHE locally"),
               {"clhe", "clahe"}),
        number("lutTemporalFilter", onCamera, DEVICE_OPERATION(getLutTemporalFilter),
               DEVICE_OPERATION(setLutTemporalFilter), within(lutTemporalFilterRange),
               "Strength of the temporal filter of the grey levels"),
        number("gsk", onCamera, DEVICE_OPERATION(getGsk), DEVICE_OPERATION(setGsk),
               between(words.gskMinimum, words.gskMaximum), "Expert value GSK"),
        number("gfid", onCamera, DEVICE_OPERATION(getGfid), DEVICE_OPERATION(setGfid),
               between(words.gfidMinimum, words.gfidMaximum), "Expert value GFID"),
        number("gms", onCamera, DEVICE_OPERATION(getGms), DEVICE_OPERATION(setGms),
               between(words.gmsMinimum, words.gmsMaximum), "Expert value GMS"),
        number("tint", onCamera, DEVICE_OPERATION(getTint), DEVICE_OPERATION(setTint),
               between(words.tintMinimum, words.tintMaximum), "Expert value TINT"),
    };
}

Rows cameraRecords()
{
    const Allowed percent{within(ahcGainLimitRange)};
    return {
        record("ahcGainLimitation", onCamera, DEVICE_OPERATION(getAhcGainLimitation),
               DEVICE_OPERATION(setAhcGainLimitation),
               {field<&AhcGainLimitation::black>("black", percent,
                                                 "Limit of the adaptive histogram's gain, black", "%"),
                field<&AhcGainLimitation::white>("white", percent,
                                                 "Limit of the adaptive histogram's gain, white", "%")}),
        record("edgeCorrection", onCamera, DEVICE_OPERATION(getEdgeCorrection),
               DEVICE_OPERATION(configureEdgeCorrection),
               {called(field<&EdgeCorrection::type>("type", within(edgeTypeRange),
                                                    "Edge correction: 0 none, 1 sharpening, 2 contouring"),
                       {"none", "sharpening", "contouring"}),
                field<&EdgeCorrection::gain>("gain", within(edgeGainRange), "Edge correction: gain"),
                field<&EdgeCorrection::firstThreshold>("firstThreshold", within(edgeThresholdRange),
                                                       "Edge correction: the threshold that is set"),
                // The window logs it less its distance from the first one, as a signed number: nothing is
                // held against the camera.
                field<&EdgeCorrection::secondThreshold>(
                    "secondThreshold", between(0, highestWord),
                    "Edge correction: the threshold that the camera makes of the first one")}),
    };
}

/// One coordinate of a region. The flags of the optional regions travel with it.
Setting coordinate(const char *name, std::uint32_t region,
                   Operation<std::uint32_t (Device::*)(std::uint32_t)> get,
                   Operation<bool (Device::*)(std::uint32_t, std::int32_t, bool, bool, bool)> set,
                   Range range, const char *meaning)
{
    const std::string digit{std::to_string(region)};
    Setting setting{"roi" + digit + '.' + name,
                    onCamera,
                    {{{}, Kind::Unsigned32, within(range), meaning, "pixels"}},
                    get.name,
                    '(' + digit + ')',
                    [get, region](Device &device, Values &answer) {
                        answer[0] = (device.*get.call)(region);
                        return std::uint8_t{1};
                    }};
    setting.set = set.name;
    setting.write = [set, region](Device &device, const Values &sent, RegionFlags flags) {
        return (device.*set.call)(as<std::uint32_t>(sent[0]), static_cast<std::int32_t>(region),
                                  flags.roi1Inclusive, flags.roi0Exclusive, flags.roi1Exclusive);
    };
    setting.sendsRegionFlags = true;
    return setting;
}

Rows regions()
{
    Rows rows;
    for (std::uint32_t region{0}; region < regionCount; ++region) {
        rows.push_back(coordinate("x1", region, DEVICE_OPERATION(getRoiX1), DEVICE_OPERATION(setRoiX1),
                                  regionColumnRange, "Region of interest: first column"));
        rows.push_back(coordinate("y1", region, DEVICE_OPERATION(getRoiY1), DEVICE_OPERATION(setRoiY1),
                                  regionRowRange, "Region of interest: first row"));
        rows.push_back(coordinate("x2", region, DEVICE_OPERATION(getRoiX2), DEVICE_OPERATION(setRoiX2),
                                  regionColumnRange, "Region of interest: last column"));
        rows.push_back(coordinate("y2", region, DEVICE_OPERATION(getRoiY2), DEVICE_OPERATION(setRoiY2),
                                  regionRowRange, "Region of interest: last row"));
    }
    return rows;
}

} // namespace

Rows cameraTable(const ConfigurationWords &words)
{
    Rows rows{cameraSwitches()};
    for (const Rows &part : {cameraNumbers(words), cameraRecords(), regions()}) {
        rows.insert(rows.end(), part.begin(), part.end());
    }
    return rows;
}

} // namespace device_settings
