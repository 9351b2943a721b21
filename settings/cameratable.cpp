// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The rows of the camera: its switches, numbers, records and regions.
#include "devicesettings.h"
#include "makers.h"
#include "tables.h"
#include "values.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"

#include <cstdint>
#include <string>
#include <vector>

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
        cameraSwitch("vignettingCorrection", OPERATION(getVignettingCorrection),
                     OPERATION(setVignettingCorrection), "Correction of darker corners"),
        cameraSwitch("columnCorrection", OPERATION(getColumnCorrection), OPERATION(setColumnCorrection),
                     "Correction of differences between the sensor's columns"),
        cameraSwitch("sdiOutput", OPERATION(getSdiOutput), OPERATION(setSdiOutput), "SDI video output"),
        cameraSwitch("parallelOutput", OPERATION(getParallelOutput), OPERATION(setParallelOutput),
                     "Parallel video output"),
        cameraSwitch("mipiOutput", OPERATION(getMipiOutput), OPERATION(setMipiOutput), "MIPI video output"),
        cameraSwitch("horizontalFlip", OPERATION(getHorizontalFlip), OPERATION(setHorizontalFlip),
                     "Picture with left and right exchanged"),
        cameraSwitch("polarity", OPERATION(getPolarity), OPERATION(setPolarity), "Inverted grey levels"),
        cameraSwitch("bprEnable", OPERATION(getBprEnable), OPERATION(setBprEnable),
                     "Replacement of bad pixels"),
        cameraSwitch("offsetCorrection", OPERATION(getOffsetCorrection), OPERATION(setOffsetCorrection),
                     "Correction of each pixel's offset"),
        cameraSwitch("gainCorrection", OPERATION(getGainCorrection), OPERATION(setGainCorrection),
                     "Correction of each pixel's gain"),
        cameraSwitch("verticalFlip", OPERATION(getVerticalFlip), OPERATION(setVerticalFlip),
                     "Picture with top and bottom exchanged"),
    };
}

Rows cameraNumbers(const ConfigurationWords &words)
{
    return {
        number("videoOutput", onCamera, OPERATION(getVideoOutput), OPERATION(setVideoOutput),
               within(videoOutputRange), "Stage of the processing that is put out: 0 raw to 8 BT656"),
        number("frameRate", onCamera, OPERATION(getFrameRate), OPERATION(setFrameRate), oneOf(frameRatesHz),
               "Pictures a second", "Hz"),
        number("gamma", onCamera, OPERATION(getGamma), OPERATION(setGamma), within(gammaRange),
               "Gamma correction in 16.16 fixed point: 65536 is 1", "1/65536"),
        number("clhe", onCamera, OPERATION(getClhe), OPERATION(setClhe), within(clheRange),
               "Mix of a linear table and histogram equalisation; low is linear"),
        number("colorLut", onCamera, OPERATION(getColorLut), OPERATION(setColorLut), within(colorLutRange),
               "Colour table, by its place in the list"),
        number("contrastType", onCamera, OPERATION(getContrastType), OPERATION(configureContrastType),
               within(contrastTypeRange), "How contrast is found: 0 CLHE over the regions, 1 CLAHE locally"),
        number("lutTemporalFilter", onCamera, OPERATION(getLutTemporalFilter),
               OPERATION(setLutTemporalFilter), within(lutTemporalFilterRange),
               "Strength of the temporal filter of the grey levels"),
        number("gsk", onCamera, OPERATION(getGsk), OPERATION(setGsk),
               between(words.gskMinimum, words.gskMaximum), "Expert value GSK"),
        number("gfid", onCamera, OPERATION(getGfid), OPERATION(setGfid),
               between(words.gfidMinimum, words.gfidMaximum), "Expert value GFID"),
        number("gms", onCamera, OPERATION(getGms), OPERATION(setGms),
               between(words.gmsMinimum, words.gmsMaximum), "Expert value GMS"),
        number("tint", onCamera, OPERATION(getTint), OPERATION(setTint),
               between(words.tintMinimum, words.tintMaximum), "Expert value TINT"),
    };
}

Rows cameraRecords()
{
    const Allowed percent{within(ahcGainLimitRange)};
    return {
        record("ahcGainLimitation", onCamera, OPERATION(getAhcGainLimitation),
               OPERATION(setAhcGainLimitation),
               {field<&AhcGainLimitation::black>("black", percent,
                                                 "Limit of the adaptive histogram's gain, black", "%"),
                field<&AhcGainLimitation::white>("white", percent,
                                                 "Limit of the adaptive histogram's gain, white", "%")}),
        record("edgeCorrection", onCamera, OPERATION(getEdgeCorrection), OPERATION(configureEdgeCorrection),
               {field<&EdgeCorrection::type>("type", within(edgeTypeRange),
                                             "Edge correction: 0 none, 1 sharpening, 2 contouring"),
                field<&EdgeCorrection::gain>("gain", within(edgeGainRange), "Edge correction: gain"),
                field<&EdgeCorrection::firstThreshold>("firstThreshold", within(edgeThresholdRange),
                                                       "Edge correction: the threshold that is set"),
                field<&EdgeCorrection::secondThreshold>(
                    "secondThreshold", between(edgeThresholdDistance, highestWord),
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
        rows.push_back(coordinate("x1", region, OPERATION(getRoiX1), OPERATION(setRoiX1), regionColumnRange,
                                  "Region of interest: first column"));
        rows.push_back(coordinate("y1", region, OPERATION(getRoiY1), OPERATION(setRoiY1), regionRowRange,
                                  "Region of interest: first row"));
        rows.push_back(coordinate("x2", region, OPERATION(getRoiX2), OPERATION(setRoiX2), regionColumnRange,
                                  "Region of interest: last column"));
        rows.push_back(coordinate("y2", region, OPERATION(getRoiY2), OPERATION(setRoiY2), regionRowRange,
                                  "Region of interest: last row"));
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
