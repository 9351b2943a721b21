// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The table of the device: every operation that reads, what it may answer and what writes it.
#include "rowmakers.h"

using namespace veltrix_sdk;

namespace sdk_check
{

namespace
{

using Rows = std::vector<Reading>;
using D = Device;

// 200 to 400 kelvin, beyond what either unit survives; a failed read leaves 0.
const Allowed temperature{between(200'000, 400'000)};
const Allowed word{between(0, highestWord)};
// A failed read leaves 0, which no unit has for a number of its own.
const Allowed notZero{between(1, highestWord)};
const Allowed percent{between(0, 100)};

Allowed rangeOf(std::int32_t minimum, std::int32_t maximum)
{
    return between(minimum, maximum);
}

void appendIdentity(Rows &table)
{
    Reading versions = filledRecord<FirmwareVersions>(
        UsedOn::Both, "getFirmwareVersions", &D::getFirmwareVersions,
        {number<&FirmwareVersions::processor>({"processor", between(0, 65535)}),
         number<&FirmwareVersions::fpga>({"fpga", between(0, 65535)})});
    versions.objection = [](const Values &answer) -> std::string {
        return answer[0] == 0.0 && answer[1] == 0.0 ? "both words are 0, which means no answer" : "";
    };
    table.push_back(std::move(versions));
    table.push_back({"startReading", {}, UsedOn::Both, {}, true, [](Device &device, Values & /*answer*/) {
                         return static_cast<std::uint8_t>(device.startReading());
                     }});
    table.push_back(value(UsedOn::Both, "getSerialNumber", &D::getSerialNumber, notZero));
    table.push_back(value(UsedOn::Camera, "getSensorSerialNumber", &D::getSensorSerialNumber, notZero));
    table.push_back(
        filledRecord<OperatingInfo>(UsedOn::Camera, "getOperatingInfo", &D::getOperatingInfo,
                                    {number<&OperatingInfo::operatingMinutes>({"operatingMinutes", word}),
                                     number<&OperatingInfo::startupCount>({"startupCount", notZero})},
                                    false));
    table.push_back(
        filledRecord<Temperatures>(UsedOn::Both, "getTemperatures", &D::getTemperatures,
                                   {number<&Temperatures::sensorMillikelvin>({"sensor", temperature}),
                                    number<&Temperatures::fpgaMillikelvin>({"fpga", temperature})},
                                   false));
    table.push_back(value(UsedOn::BlendUnit, "getBitStatus", &D::getBitStatus, word, false));
}

void appendZoom(Rows &table)
{
    Reading zoom =
        filledRecord<ZoomConfig>(UsedOn::Both, "getZoomConfig", &D::getZoomConfig,
                                 {number<&ZoomConfig::factor>({"factor", between(1, 8)}),
                                  number<&ZoomConfig::xCenter>({"xCenter", between(0, 640), Written::Kept}),
                                  number<&ZoomConfig::yCenter>({"yCenter", between(0, 480), Written::Kept}),
                                  number<&ZoomConfig::method>({"method", between(0, 1)})});
    zoom.set = "configureZoom";
    zoom.write = [](Device &device, const Values &sent) {
        const ZoomConfig config{as<float>(sent[0]), as<std::uint32_t>(sent[1]), as<std::uint32_t>(sent[2]),
                                as<std::uint8_t>(sent[3])};
        return device.configureZoom(&config);
    };
    table.push_back(std::move(zoom));
    table.push_back(filledRecord<ZoomResolution>(UsedOn::BlendUnit, "getZoomResolution",
                                                 &D::getZoomResolution,
                                                 {number<&ZoomResolution::x>({"x", between(1, 10000)}),
                                                  number<&ZoomResolution::y>({"y", between(1, 10000)})}));
}

void appendVisibleChannel(Rows &table)
{
    Reading agc =
        filledRecord<VisibleAgc>(UsedOn::BlendUnit, "getVisibleAgc", &D::getVisibleAgc,
                                 {number<&VisibleAgc::target>({"target", percent}),
                                  number<&VisibleAgc::threshold>({"threshold", percent}),
                                  number<&VisibleAgc::filterCoefficient>({"filterCoefficient", percent})});
    agc.set = "setVisibleAgc";
    agc.write = [](Device &device, const Values &sent) {
        return device.setVisibleAgc(as<std::int32_t>(sent[0]), as<std::uint8_t>(sent[1]),
                                    as<std::uint8_t>(sent[2]));
    };
    table.push_back(std::move(agc));

    Reading clhe =
        filledRecord<VisibleClhe>(UsedOn::BlendUnit, "getVisibleClhe", &D::getVisibleClhe,
                                  {number<&VisibleClhe::threshold>({"threshold", between(0, 65535)}),
                                   number<&VisibleClhe::filterCoefficient>({"filterCoefficient", percent})});
    clhe.set = "setVisibleClhe";
    clhe.write = [](Device &device, const Values &sent) {
        return device.setVisibleClhe(as<std::int32_t>(sent[0]), as<std::uint8_t>(sent[1]));
    };
    table.push_back(std::move(clhe));
}

/// A coefficient; 2 or 1 is near what a picture needs, unlike the ends of the range.
Field coefficient(const char *name)
{
    return {name, between(-32768, 65536), Written::Changed, {2, 1}, true};
}

void appendWarps(Rows &table)
{
    for (std::uint8_t stream{0}; stream < 3; ++stream) {
        Reading warp =
            record<Warp>(UsedOn::BlendUnit, "getWarp",
                         {number<&Warp::a11>(coefficient("a11")), number<&Warp::a21>(coefficient("a21")),
                          number<&Warp::a12>(coefficient("a12")), number<&Warp::a22>(coefficient("a22")),
                          number<&Warp::a13>(coefficient("a13")), number<&Warp::a23>(coefficient("a23"))},
                         [stream](Device &device, Warp &filled) {
                             filled.stream = stream;
                             return device.getWarp(&filled);
                         });
        warp.detail = '(' + std::to_string(stream) + ')';
        warp.set = "setWarp";
        warp.write = [stream](Device &device, const Values &sent) {
            const auto whole = [&](std::size_t place) {
                return as<std::int32_t>(sent[place]);
            };
            return device.setWarp(stream, whole(0), whole(1), whole(2), whole(3), whole(4), whole(5));
        };
        table.push_back(std::move(warp));
    }
}

void appendCameraSwitches(Rows &table)
{
    const auto onOffSetting = [&](const char *get, bool (D::*read)(), const char *set,
                                  bool (D::*write)(bool)) {
        table.push_back(setting(UsedOn::Camera, get, read, set, write, onOff()));
    };
    onOffSetting("getVignettingCorrection", &D::getVignettingCorrection, "setVignettingCorrection",
                 &D::setVignettingCorrection);
    onOffSetting("getColumnCorrection", &D::getColumnCorrection, "setColumnCorrection",
                 &D::setColumnCorrection);
    onOffSetting("getSdiOutput", &D::getSdiOutput, "setSdiOutput", &D::setSdiOutput);
    onOffSetting("getParallelOutput", &D::getParallelOutput, "setParallelOutput", &D::setParallelOutput);
    onOffSetting("getMipiOutput", &D::getMipiOutput, "setMipiOutput", &D::setMipiOutput);
    onOffSetting("getHorizontalFlip", &D::getHorizontalFlip, "setHorizontalFlip", &D::setHorizontalFlip);
    onOffSetting("getPolarity", &D::getPolarity, "setPolarity", &D::setPolarity);
    onOffSetting("getBprEnable", &D::getBprEnable, "setBprEnable", &D::setBprEnable);
    onOffSetting("getOffsetCorrection", &D::getOffsetCorrection, "setOffsetCorrection",
                 &D::setOffsetCorrection);
    onOffSetting("getGainCorrection", &D::getGainCorrection, "setGainCorrection", &D::setGainCorrection);
    onOffSetting("getVerticalFlip", &D::getVerticalFlip, "setVerticalFlip", &D::setVerticalFlip);
}

void appendCameraNumbers(Rows &table, const ConfigurationWords &words)
{
    const auto append = [&](const char *get, auto read, const char *set, auto write, Allowed allowed) {
        table.push_back(setting(UsedOn::Camera, get, read, set, write, std::move(allowed)));
    };
    append("getVideoOutput", &D::getVideoOutput, "setVideoOutput", &D::setVideoOutput, between(0, 8));
    append("getFrameRate", &D::getFrameRate, "setFrameRate", &D::setFrameRate, oneOf({9, 25, 30, 50, 60}));
    append("getGamma", &D::getGamma, "setGamma", &D::setGamma, between(32768, 163840));
    append("getClhe", &D::getClhe, "setClhe", &D::setClhe, between(0, 30000));
    append("getColorLut", &D::getColorLut, "setColorLut", &D::setColorLut, between(0, 7));
    append("getContrastType", &D::getContrastType, "configureContrastType", &D::configureContrastType,
           between(0, 1));
    append("getLutTemporalFilter", &D::getLutTemporalFilter, "setLutTemporalFilter", &D::setLutTemporalFilter,
           between(0, 8));
    append("getGsk", &D::getGsk, "setGsk", &D::setGsk, rangeOf(words.gskMinimum, words.gskMaximum));
    append("getGfid", &D::getGfid, "setGfid", &D::setGfid, rangeOf(words.gfidMinimum, words.gfidMaximum));
    append("getGms", &D::getGms, "setGms", &D::setGms, rangeOf(words.gmsMinimum, words.gmsMaximum));
    append("getTint", &D::getTint, "setTint", &D::setTint, rangeOf(words.tintMinimum, words.tintMaximum));
}

void appendCameraRecords(Rows &table)
{
    Reading ahc =
        filledRecord<AhcGainLimitation>(UsedOn::Camera, "getAhcGainLimitation", &D::getAhcGainLimitation,
                                        {number<&AhcGainLimitation::black>({"black", percent}),
                                         number<&AhcGainLimitation::white>({"white", percent})});
    ahc.set = "setAhcGainLimitation";
    ahc.write = [](Device &device, const Values &sent) {
        return device.setAhcGainLimitation(as<std::uint8_t>(sent[0]), as<std::uint8_t>(sent[1]));
    };
    table.push_back(std::move(ahc));

    Reading edge =
        record<EdgeCorrection>(UsedOn::Camera, "getEdgeCorrection",
                               {number<&EdgeCorrection::type>({"type", between(0, 2)}),
                                number<&EdgeCorrection::gain>({"gain", between(0, 1024)}),
                                number<&EdgeCorrection::firstThreshold>({"firstThreshold", between(0, 255)}),
                                number<&EdgeCorrection::secondThreshold>(
                                    {"secondThreshold", between(40, highestWord), Written::Follows})},
                               [](Device &device, EdgeCorrection &filled) {
                                   filled = device.getEdgeCorrection();
                                   return true;
                               });
    edge.set = "configureEdgeCorrection";
    edge.write = [](Device &device, const Values &sent) {
        return device.configureEdgeCorrection(as<std::uint8_t>(sent[0]), as<std::uint32_t>(sent[1]),
                                              as<std::uint32_t>(sent[2]));
    };
    table.push_back(std::move(edge));
}

void appendRegions(Rows &table, RegionFlags flags)
{
    // What is written lies in the window's range, whose ends keep the first below the second.
    const struct
    {
        const char *get;
        std::uint32_t (D::*read)(std::uint32_t);
        const char *set;
        bool (D::*write)(std::uint32_t, std::int32_t, bool, bool, bool);
        double last;
        Values tries;
    } coordinates[]{
        {"getRoiX1", &D::getRoiX1, "setRoiX1", &D::setRoiX1, 639, {6, 5}},
        {"getRoiY1", &D::getRoiY1, "setRoiY1", &D::setRoiY1, 479, {6, 5}},
        {"getRoiX2", &D::getRoiX2, "setRoiX2", &D::setRoiX2, 639, {634, 635}},
        {"getRoiY2", &D::getRoiY2, "setRoiY2", &D::setRoiY2, 479, {474, 475}},
    };
    for (std::uint32_t region{0}; region < 4; ++region) {
        for (const auto &coordinate : coordinates) {
            const auto get = [region, read = coordinate.read](Device &device, Values &answer) {
                answer[0] = (device.*read)(region);
                return std::uint8_t{1};
            };
            const auto set = [region, flags, write = coordinate.write](Device &device, const Values &sent) {
                return (device.*write)(as<std::uint32_t>(sent[0]), static_cast<std::int32_t>(region),
                                       flags.roi1Inclusive, flags.roi0Exclusive, flags.roi1Exclusive);
            };
            table.push_back({coordinate.get,
                             '(' + std::to_string(region) + ')',
                             UsedOn::Camera,
                             {{{}, between(0, coordinate.last), Written::Changed, coordinate.tries}},
                             true,
                             get,
                             coordinate.set,
                             set});
        }
    }
}

} // namespace

std::string nameOf(Unit unit)
{
    return unit == Unit::Camera ? "camera" : "Blend Unit";
}

bool isUsedOn(UsedOn usedOn, Unit unit)
{
    return usedOn == UsedOn::Both || (usedOn == UsedOn::Camera) == (unit == Unit::Camera);
}

RegionFlags readRegionFlags(Device &device)
{
    return {device.getRoiX1(1) != 0, device.getRoiX1(2) != 0, device.getRoiX1(3) != 0};
}

std::vector<Reading> deviceReadings(const ConfigurationWords &words, RegionFlags flags)
{
    Rows table;
    appendIdentity(table);
    table.push_back(filledSetting(UsedOn::BlendUnit, "getVideoMode", &D::getVideoMode, "setVideoMode",
                                  &D::setVideoMode, between(0, 2)));
    appendZoom(table);
    appendVisibleChannel(table);
    table.push_back(filledSetting(UsedOn::BlendUnit, "getStartingMode", &D::getStartingMode,
                                  "setStartingMode", &D::setStartingMode, between(0, 3)));
    appendWarps(table);
    appendCameraSwitches(table);
    appendCameraNumbers(table, words);
    appendCameraRecords(table);
    appendRegions(table, flags);
    return table;
}

} // namespace sdk_check
