// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The rows of what identifies the units and how they are, then those of the Blend Unit.
#include "devicesettings.h"
#include "rows.h"
#include "tables.h"
#include "values.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using namespace veltrix_sdk;

namespace device_settings
{

namespace
{

constexpr UsedOn onBlendUnit{UsedOn::BlendUnit};
constexpr UsedOn onBoth{UsedOn::Both};

// 200 to 400 kelvin, beyond what either unit survives; a failed read leaves 0.
const Allowed temperature{between(200'000, 400'000)};
const Allowed anyWord{between(0, highestWord)};
// A failed read leaves 0, which no unit has for a number of its own.
const Allowed notZero{between(1, highestWord)};
const Allowed versionWord{between(0, 65535)};
const Allowed outputPixels{between(1, 10000)};

// What the three pictures are called, those of the start with one more.
const std::vector<std::string> pictures{"infrared", "visible", "fusion"};
const std::vector<std::string> startingPictures{"infrared", "visible", "fusion", "current"};

const Scale hours{60, 0, "h", 1, true};
const Scale celsius{1000, 273.15, "degrees C", 2, true};

Rows identity()
{
    return {
        number("identity", onBoth, DEVICE_OPERATION(connect), oneOf({krIdentity}), "Kind of the device"),
        notExamined(record(
            "firmwareVersions", onBoth, DEVICE_OPERATION(getFirmwareVersions),
            {field<&FirmwareVersions::processor>("processor", versionWord,
                                                 "Version of the processor's firmware, a digit each nibble"),
             field<&FirmwareVersions::fpga>("fpga", versionWord,
                                            "Version of the FPGA, with bits for the 9 Hz and MIPI builds")})),
        number("serialNumber", onBoth, DEVICE_OPERATION(getSerialNumber), notZero,
               "Serial number of the unit"),
        number("sensorSerialNumber", onCamera, DEVICE_OPERATION(getSensorSerialNumber), notZero,
               "Serial number of the sensor"),
        moving(notExamined(record(
            "operatingInfo", onCamera, DEVICE_OPERATION(getOperatingInfo),
            {counted(field<&OperatingInfo::operatingMinutes>(
                         "operatingMinutes", anyWord, "How long the camera has run in its life", "minutes"),
                     hours),
             field<&OperatingInfo::startupCount>("startupCount", notZero, "How often the camera was started",
                                                 "starts")}))),
        moving(notExamined(
            record("temperatures", onBoth, DEVICE_OPERATION(getTemperatures),
                   {counted(field<&Temperatures::sensorMillikelvin>("sensorMillikelvin", temperature,
                                                                    "Temperature of the sensor", "mK"),
                            celsius),
                    counted(field<&Temperatures::fpgaMillikelvin>("fpgaMillikelvin", temperature,
                                                                  "Temperature of the FPGA", "mK"),
                            celsius)}))),
        moving(number("bitStatus", onBlendUnit, DEVICE_OPERATION(getBitStatus), anyWord,
                      "Result of the built-in test, one bit each")),
    };
}

Rows blendUnit()
{
    const Allowed percent{within(visibleAgcRange)};
    return {
        called(number("videoMode", onBlendUnit, DEVICE_OPERATION(getVideoMode),
                      DEVICE_OPERATION(setVideoMode), within(videoModeRange),
                      "Picture that is shown: 0 infrared, 1 visible, 2 fusion"),
               pictures),
        record(
            "zoom", onBoth, DEVICE_OPERATION(getZoomConfig), DEVICE_OPERATION(configureZoom),
            {field<&ZoomConfig::factor>("factor", within(zoomFactorRange), "Digital zoom factor"),
             field<&ZoomConfig::xCenter>("xCenter", within(zoomXCenterRange),
                                         "Column that the zoom is centred on", "pixels"),
             field<&ZoomConfig::yCenter>("yCenter", within(zoomYCenterRange),
                                         "Row that the zoom is centred on", "pixels"),
             called(field<&ZoomConfig::method>("method", within(zoomMethodRange),
                                               "Interpolation of the zoom: 0 nearest neighbour, 1 bilinear"),
                    {"nearest", "bilinear"})}),
        record("zoomResolution", onBlendUnit, DEVICE_OPERATION(getZoomResolution),
               {field<&ZoomResolution::x>("x", outputPixels, "Width of the zoomed picture", "pixels"),
                field<&ZoomResolution::y>("y", outputPixels, "Height of the zoomed picture", "pixels")}),
        record("visibleAgc", onBlendUnit, DEVICE_OPERATION(getVisibleAgc), DEVICE_OPERATION(setVisibleAgc),
               {field<&VisibleAgc::target>("target", percent, "Gain control, visible channel: target", "%"),
                field<&VisibleAgc::threshold>("threshold", percent,
                                              "Gain control, visible channel: threshold", "%"),
                field<&VisibleAgc::filterCoefficient>(
                    "filterCoefficient", percent, "Gain control, visible channel: filter coefficient", "%")}),
        record(
            "visibleClhe", onBlendUnit, DEVICE_OPERATION(getVisibleClhe), DEVICE_OPERATION(setVisibleClhe),
            {field<&VisibleClhe::threshold>(
                 "threshold", within(visibleClheThresholdRange),
                 "Visible channel: mix of a linear table and histogram equalisation; low is linear"),
             field<&VisibleClhe::filterCoefficient>("filterCoefficient", within(visibleClheFilterRange),
                                                    "Visible channel: filter coefficient of that mix", "%")}),
        called(number("startingMode", onBlendUnit, DEVICE_OPERATION(getStartingMode),
                      DEVICE_OPERATION(setStartingMode), within(startingModeRange),
                      "Picture after power-up: 0 infrared, 1 visible, 2 fusion, 3 the current one"),
               startingPictures),
    };
}

/// The matrix of one video stream. The stream goes into the record that is read and before what is written.
Setting warp(std::uint8_t stream)
{
    const auto get = DEVICE_OPERATION(getWarp);
    const auto set = DEVICE_OPERATION(setWarp);
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

} // namespace

Rows blendUnitTable()
{
    Rows rows{identity()};
    for (const Rows &part : {blendUnit(), warps()}) {
        rows.insert(rows.end(), part.begin(), part.end());
    }
    return rows;
}

} // namespace device_settings
