// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The table of the device: every operation that answers a value, with the one that writes it.
#include "devicesettings.h"
#include "makers.h"
#include "values.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

using namespace veltrix_sdk;

namespace device_settings
{

namespace
{

using Rows = std::vector<Setting>;

constexpr UsedOn onBlendUnit{UsedOn::BlendUnit};
constexpr UsedOn onCamera{UsedOn::Camera};
constexpr UsedOn onBoth{UsedOn::Both};

// 200 to 400 kelvin, beyond what either unit survives; a failed read leaves 0.
const Allowed temperature{between(200'000, 400'000)};
const Allowed word{between(0, highestWord)};
// A failed read leaves 0, which no unit has for a number of its own.
const Allowed notZero{between(1, highestWord)};
const Allowed versionWord{between(0, 65535)};
const Allowed outputPixels{between(1, 10000)};

/// A setting of the camera that is on or off.
template <typename Get, typename Set>
Setting cameraSwitch(const char *key, Operation<Get> get, Operation<Set> set, const char *meaning)
{
    return number(key, onCamera, get, set, onOff(), meaning);
}

Rows identity()
{
    return {
        number("identity", onBoth, OPERATION(connect), oneOf({krIdentity}), "Kind of the device"),
        record("firmwareVersions", onBoth, OPERATION(getFirmwareVersions),
               {field<&FirmwareVersions::processor>(
                    "processor", versionWord, "Version of the processor's firmware, a digit each nibble"),
                field<&FirmwareVersions::fpga>(
                    "fpga", versionWord, "Version of the FPGA, with bits for the 9 Hz and MIPI builds")}),
        number("serialNumber", onBoth, OPERATION(getSerialNumber), notZero, "Serial number of the unit"),
        number("sensorSerialNumber", onCamera, OPERATION(getSensorSerialNumber), notZero,
               "Serial number of the sensor"),
        moving(record("operatingInfo", onCamera, OPERATION(getOperatingInfo),
                      {field<&OperatingInfo::operatingMinutes>(
                           "operatingMinutes", word, "How long the camera has run in its life", "minutes"),
                       field<&OperatingInfo::startupCount>("startupCount", notZero,
                                                           "How often the camera was started", "starts")})),
        moving(record("temperatures", onBoth, OPERATION(getTemperatures),
                      {field<&Temperatures::sensorMillikelvin>("sensorMillikelvin", temperature,
                                                               "Temperature of the sensor", "mK"),
                       field<&Temperatures::fpgaMillikelvin>("fpgaMillikelvin", temperature,
                                                             "Temperature of the FPGA", "mK")})),
        moving(number("bitStatus", onBlendUnit, OPERATION(getBitStatus), word,
                      "Result of the built-in test, one bit each")),
    };
}

Rows blendUnit()
{
    const Allowed percent{within(visibleAgcRange)};
    return {
        number("videoMode", onBlendUnit, OPERATION(getVideoMode), OPERATION(setVideoMode),
               within(videoModeRange), "Picture that is shown: 0 infrared, 1 visible, 2 fusion"),
        record("zoom", onBoth, OPERATION(getZoomConfig), OPERATION(configureZoom),
               {field<&ZoomConfig::factor>("factor", within(zoomFactorRange), "Digital zoom factor"),
                field<&ZoomConfig::xCenter>("xCenter", within(zoomXCenterRange),
                                            "Column that the zoom is centred on", "pixels"),
                field<&ZoomConfig::yCenter>("yCenter", within(zoomYCenterRange),
                                            "Row that the zoom is centred on", "pixels"),
                field<&ZoomConfig::method>("method", within(zoomMethodRange),
                                           "Interpolation of the zoom: 0 nearest neighbour, 1 bilinear")}),
        record("zoomResolution", onBlendUnit, OPERATION(getZoomResolution),
               {field<&ZoomResolution::x>("x", outputPixels, "Width of the zoomed picture", "pixels"),
                field<&ZoomResolution::y>("y", outputPixels, "Height of the zoomed picture", "pixels")}),
        record("visibleAgc", onBlendUnit, OPERATION(getVisibleAgc), OPERATION(setVisibleAgc),
               {field<&VisibleAgc::target>("target", percent, "Gain control, visible channel: target", "%"),
                field<&VisibleAgc::threshold>("threshold", percent,
                                              "Gain control, visible channel: threshold", "%"),
                field<&VisibleAgc::filterCoefficient>(
                    "filterCoefficient", percent, "Gain control, visible channel: filter coefficient", "%")}),
        record(
            "visibleClhe", onBlendUnit, OPERATION(getVisibleClhe), OPERATION(setVisibleClhe),
            {field<&VisibleClhe::threshold>(
                 "threshold", within(visibleClheThresholdRange),
                 "Visible channel: mix of a linear table and histogram equalisation; low is linear"),
             field<&VisibleClhe::filterCoefficient>("filterCoefficient", within(visibleClheFilterRange),
                                                    "Visible channel: filter coefficient of that mix", "%")}),
        number("startingMode", onBlendUnit, OPERATION(getStartingMode), OPERATION(setStartingMode),
               within(startingModeRange),
               "Picture after power-up: 0 infrared, 1 visible, 2 fusion, 3 the current one"),
    };
}

/// The matrix of one video stream. The stream goes into the record that is read and before what is written.
Setting warp(std::uint8_t stream)
{
    const auto get = OPERATION(getWarp);
    const auto set = OPERATION(setWarp);
    const Allowed allowed{within(warpCoefficientRange)};
    Setting setting = recordBy<Warp>(
        [get, stream](Device &device, Warp &filled) {
            filled.stream = stream;
            return static_cast<std::uint8_t>((device.*get.call)(&filled));
        },
        "warp" + std::to_string(stream), onBlendUnit, get.name,
        {field<&Warp::a11>("a11", allowed, "Warp matrix of the stream: row 1, column 1"),
         field<&Warp::a21>("a21", allowed, "Warp matrix of the stream: row 2, column 1"),
         field<&Warp::a12>("a12", allowed, "Warp matrix of the stream: row 1, column 2"),
         field<&Warp::a22>("a22", allowed, "Warp matrix of the stream: row 2, column 2"),
         field<&Warp::a13>("a13", allowed, "Warp matrix of the stream: row 1, column 3"),
         field<&Warp::a23>("a23", allowed, "Warp matrix of the stream: row 2, column 3")});
    for (Field &coefficient : setting.fields) {
        coefficient.sentWhole = true;
    }
    setting.detail = '(' + std::to_string(stream) + ')';
    setting.set = set.name;
    setting.write = [set, stream](Device &device, const Values &sent, RegionFlags /*flags*/) {
        const auto whole = [&](std::size_t place) {
            return as<std::int32_t>(sent[place]);
        };
        return (device.*set.call)(stream, whole(0), whole(1), whole(2), whole(3), whole(4), whole(5));
    };
    return setting;
}

Rows warps()
{
    Rows rows;
    for (std::uint8_t stream{0}; stream < warpStreamCount; ++stream) {
        rows.push_back(warp(stream));
    }
    return rows;
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

std::vector<Setting> deviceSettings(const ConfigurationWords &words)
{
    Rows table;
    for (const Rows &rows : {identity(), blendUnit(), warps(), cameraSwitches(), cameraNumbers(words),
                             cameraRecords(), regions()}) {
        table.insert(table.end(), rows.begin(), rows.end());
    }
    return table;
}

} // namespace device_settings
