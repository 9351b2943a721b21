// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every setting of the device: how it is written and read, what is accepted and what is refused.
#include "settings.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

using namespace veltrix_sdk;

namespace
{

using Numbers = std::vector<double>;
using Settings = std::vector<Setting>;
using Device = IDeviceControl;

constexpr double highest32{std::numeric_limits<std::uint32_t>::max()};

/// A setting that travels alone.
template <typename Sent, typename Received>
Setting plain(std::string name, bool (Device::*set)(Sent), Received (Device::*get)(), Numbers accepted,
              Numbers refused)
{
    return {std::move(name),
            [set](Device &device, double number) { return (device.*set)(static_cast<Sent>(number)); },
            [get](Device &device) { return static_cast<double>((device.*get)()); }, std::move(accepted),
            std::move(refused)};
}

Setting onOff(std::string name, bool (Device::*set)(bool), bool (Device::*get)())
{
    return plain(std::move(name), set, get, {1, 0, 1}, {});
}

/// A setting that is read through an out-parameter.
template <typename Sent>
Setting mode(std::string name, bool (Device::*set)(Sent), bool (Device::*get)(std::uint8_t *),
             Numbers accepted, Numbers refused)
{
    const auto read = [get](Device &device) {
        std::uint8_t number{99};
        return (device.*get)(&number) ? static_cast<double>(number) : -1.0;
    };
    return {std::move(name),
            [set](Device &device, double number) { return (device.*set)(static_cast<Sent>(number)); }, read,
            std::move(accepted), std::move(refused)};
}

/// One field of a record: the others are sent as they are read.
template <typename Record, typename T, typename Result>
Setting field(std::string name, T Record::*member, Result (Device::*get)(Record *),
              std::function<bool(Device &, const Record &)> set, Numbers accepted, Numbers refused)
{
    const auto read = [get](Device &device) {
        Record record{};
        (device.*get)(&record);
        return record;
    };
    const auto write = [=](Device &device, double number) {
        Record record = read(device);
        record.*member = static_cast<T>(number);
        return set(device, record);
    };
    return {std::move(name), write, [=](Device &device) { return static_cast<double>(read(device).*member); },
            std::move(accepted), std::move(refused)};
}

void appendPlainSettings(Settings &settings)
{
    using D = Device;
    settings.insert(
        settings.end(),
        {
            plain("gsk", &D::setGsk, &D::getGsk, {1, 3, 2}, {0, 4, highest32}),
            plain("gfid", &D::setGfid, &D::getGfid, {0, 1000, 500}, {1001, highest32}),
            plain("gms", &D::setGms, &D::getGms, {0, 4095, 7}, {4096, highest32}),
            plain("tint", &D::setTint, &D::getTint, {0, 20, 3}, {21, highest32}),
            plain("gamma", &D::setGamma, &D::getGamma, {32768, 163840, 144179},
                  {32767, 163841, 0, highest32}),
            plain("clhe", &D::setClhe, &D::getClhe, {0, 30000, 1}, {30001, highest32}),
            plain("frameRate", &D::setFrameRate, &D::getFrameRate, {9, 25, 30, 50, 60}, {0, 8, 10, 61, 255}),
            plain("videoOutput", &D::setVideoOutput, &D::getVideoOutput, {0, 8, 6}, {9, 255}),
            plain("contrastType", &D::configureContrastType, &D::getContrastType, {1, 0}, {2, 255}),
            plain("colorLut", &D::setColorLut, &D::getColorLut, {7, 0}, {8, 255}),
            plain("lutTemporalFilter", &D::setLutTemporalFilter, &D::getLutTemporalFilter, {0, 8}, {9, 255}),
            mode("videoMode", &D::setVideoMode, &D::getVideoMode, {0, 1, 2}, {3, 255}),
            mode("startingMode", &D::setStartingMode, &D::getStartingMode, {0, 1, 2, 3}, {4, 256, highest32}),
            onOff("bprEnable", &D::setBprEnable, &D::getBprEnable),
            onOff("offsetCorrection", &D::setOffsetCorrection, &D::getOffsetCorrection),
            onOff("gainCorrection", &D::setGainCorrection, &D::getGainCorrection),
            onOff("horizontalFlip", &D::setHorizontalFlip, &D::getHorizontalFlip),
            onOff("verticalFlip", &D::setVerticalFlip, &D::getVerticalFlip),
            onOff("vignettingCorrection", &D::setVignettingCorrection, &D::getVignettingCorrection),
            onOff("columnCorrection", &D::setColumnCorrection, &D::getColumnCorrection),
            onOff("sdiOutput", &D::setSdiOutput, &D::getSdiOutput),
            onOff("parallelOutput", &D::setParallelOutput, &D::getParallelOutput),
            onOff("mipiOutput", &D::setMipiOutput, &D::getMipiOutput),
            onOff("polarity", &D::setPolarity, &D::getPolarity),
        });
}

void appendRecordSettings(Settings &settings)
{
    constexpr double nan{std::numeric_limits<double>::quiet_NaN()};
    constexpr double infinity{std::numeric_limits<double>::infinity()};
    const auto zoom = [&](const char *name, auto member, Numbers accepted, Numbers refused) {
        settings.push_back(field<ZoomConfig>(
            name, member, &Device::getZoomConfig,
            [](Device &device, const ZoomConfig &sent) { return device.configureZoom(&sent); },
            std::move(accepted), std::move(refused)));
    };
    zoom("zoom.factor", &ZoomConfig::factor, {1, 8, 1.5}, {0.5, 8.5, -1, nan, infinity});
    zoom("zoom.xCenter", &ZoomConfig::xCenter, {0, 1280}, {1281, highest32});
    zoom("zoom.yCenter", &ZoomConfig::yCenter, {0, 1024}, {1025, highest32});
    zoom("zoom.method", &ZoomConfig::method, {1, 0}, {2, 255});

    const auto ahc = [&](const char *name, auto member) {
        settings.push_back(field<AhcGainLimitation>(name, member, &Device::getAhcGainLimitation,
                                                    [](Device &device, const AhcGainLimitation &sent) {
                                                        return device.setAhcGainLimitation(sent.black,
                                                                                           sent.white);
                                                    },
                                                    {0, 100, 50}, {101, 255}));
    };
    ahc("ahcGainLimitation.black", &AhcGainLimitation::black);
    ahc("ahcGainLimitation.white", &AhcGainLimitation::white);

    const auto agc = [&](const char *name, auto member) {
        settings.push_back(field<VisibleAgc>(name, member, &Device::getVisibleAgc,
                                             [](Device &device, const VisibleAgc &sent) {
                                                 return device.setVisibleAgc(sent.target, sent.threshold,
                                                                             sent.filterCoefficient);
                                             },
                                             {0, 100, 50}, {101, 255}));
    };
    agc("visibleAgc.target", &VisibleAgc::target);
    agc("visibleAgc.threshold", &VisibleAgc::threshold);
    agc("visibleAgc.filterCoefficient", &VisibleAgc::filterCoefficient);

    const auto clhe = [&](const char *name, auto member, Numbers accepted, Numbers refused) {
        settings.push_back(field<VisibleClhe>(
            name, member, &Device::getVisibleClhe,
            [](Device &device, const VisibleClhe &sent) {
                return device.setVisibleClhe(static_cast<std::int32_t>(sent.threshold),
                                             sent.filterCoefficient);
            },
            std::move(accepted), std::move(refused)));
    };
    clhe("visibleClhe.threshold", &VisibleClhe::threshold, {0, 65535}, {65536, highest32});
    clhe("visibleClhe.filterCoefficient", &VisibleClhe::filterCoefficient, {0, 100}, {101, 255});
}

/// Sends one field and the others as they are; the second threshold follows the first.
void appendEdgeSettings(Settings &settings)
{
    const auto edge = [&](const char *name, auto member, Numbers accepted, Numbers refused) {
        const auto write = [member](Device &device, double number) {
            EdgeCorrection sent = device.getEdgeCorrection();
            sent.*member = static_cast<std::decay_t<decltype(sent.*member)>>(number);
            return device.configureEdgeCorrection(sent.type, sent.gain, sent.firstThreshold);
        };
        settings.push_back(
            {name, write,
             [member](Device &device) { return static_cast<double>(device.getEdgeCorrection().*member); },
             std::move(accepted), std::move(refused)});
    };
    edge("edgeCorrection.type", &EdgeCorrection::type, {0, 1, 2}, {3, 255});
    edge("edgeCorrection.gain", &EdgeCorrection::gain, {0, 1024}, {1025, highest32});
    edge("edgeCorrection.firstThreshold", &EdgeCorrection::firstThreshold, {0, 255}, {256, highest32});
}

void appendRoiSettings(Settings &settings)
{
    using Setter = bool (Device::*)(std::uint32_t, std::int32_t, bool, bool, bool);
    using Getter = std::uint32_t (Device::*)(std::uint32_t);
    struct Coordinate
    {
        const char *name;
        Setter set;
        Getter get;
        double last;
    };
    const Coordinate coordinates[]{{"x1", &Device::setRoiX1, &Device::getRoiX1, 639},
                                   {"x2", &Device::setRoiX2, &Device::getRoiX2, 639},
                                   {"y1", &Device::setRoiY1, &Device::getRoiY1, 479},
                                   {"y2", &Device::setRoiY2, &Device::getRoiY2, 479}};
    for (std::uint32_t region{0}; region < 4; ++region) {
        for (const Coordinate &coordinate : coordinates) {
            const auto set = [=](Device &device, double number) {
                return (device.*coordinate.set)(static_cast<std::uint32_t>(number),
                                                static_cast<std::int32_t>(region), false, false, false);
            };
            const auto get = [=](Device &device) {
                return static_cast<double>((device.*coordinate.get)(region));
            };
            settings.push_back({"roi" + std::to_string(region) + '.' + coordinate.name,
                                set,
                                get,
                                {0, coordinate.last, 100},
                                {coordinate.last + 1, highest32}});
        }
    }
}

void appendWarpSettings(Settings &settings)
{
    struct Coefficient
    {
        const char *name;
        double Warp::*member;
    };
    const Coefficient coefficients[]{{"a11", &Warp::a11}, {"a21", &Warp::a21}, {"a12", &Warp::a12},
                                     {"a22", &Warp::a22}, {"a13", &Warp::a13}, {"a23", &Warp::a23}};
    for (std::uint8_t stream{0}; stream < 3; ++stream) {
        for (const Coefficient &coefficient : coefficients) {
            const auto read = [stream](Device &device) {
                Warp warp{};
                warp.stream = stream;
                device.getWarp(&warp);
                return warp;
            };
            const auto set = [=](Device &device, double number) {
                Warp warp = read(device);
                warp.*coefficient.member = number;
                const auto sent = [&](double Warp::*member) {
                    return static_cast<std::int32_t>(warp.*member);
                };
                return device.setWarp(stream, sent(&Warp::a11), sent(&Warp::a21), sent(&Warp::a12),
                                      sent(&Warp::a22), sent(&Warp::a13), sent(&Warp::a23));
            };
            settings.push_back({"warp" + std::to_string(stream) + '.' + coefficient.name,
                                set,
                                [=](Device &device) { return read(device).*coefficient.member; },
                                {-32768, 65536, 0},
                                {-32769, 65537, 2147483647, -2147483648.0}});
        }
    }
}

} // namespace

std::vector<Setting> everySetting()
{
    Settings settings;
    appendPlainSettings(settings);
    appendRecordSettings(settings);
    appendEdgeSettings(settings);
    appendRoiSettings(settings);
    appendWarpSettings(settings);
    return settings;
}
