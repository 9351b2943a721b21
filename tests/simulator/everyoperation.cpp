// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every operation of the contract with a way to call it.
#include "everyoperation.h"

#include <cstring>
#include <tuple>
#include <type_traits>
#include <utility>

using namespace veltrix_sdk;
using veltrix_simulator::Interface;

namespace
{

/// One argument, with the memory behind it where it is a pointer.
template <typename T>
struct Argument
{
    T from(SimulatedCamera & /*camera*/) { return T{1}; }
};

template <>
struct Argument<const char *>
{
    const char *from(SimulatedCamera & /*camera*/) { return "SIM1"; }
};

template <>
struct Argument<IDeviceControl *>
{
    IDeviceControl *from(SimulatedCamera &camera) { return camera.device; }
};

template <>
struct Argument<IDeviceManager **>
{
    IDeviceManager **from(SimulatedCamera &camera) { return &camera.manager; }
};

template <>
struct Argument<const ZoomConfig *>
{
    const ZoomConfig *from(SimulatedCamera & /*camera*/) { return &zoom; }

    ZoomConfig zoom{1, 1, 1, 1};
};

template <typename T>
struct Argument<T *>
{
    T *from(SimulatedCamera & /*camera*/)
    {
        std::memset(&memory, 1, sizeof memory);
        return &memory;
    }

    T memory;
};

IVeltrixSdk &objectIn(SimulatedCamera &camera, const IVeltrixSdk * /*type*/)
{
    return camera.sdk;
}
ISdkConfiguration &objectIn(SimulatedCamera &camera, const ISdkConfiguration * /*type*/)
{
    return camera.configuration;
}
IDeviceManager &objectIn(SimulatedCamera &camera, const IDeviceManager * /*type*/)
{
    return *camera.manager;
}
IDeviceControl &objectIn(SimulatedCamera &camera, const IDeviceControl * /*type*/)
{
    return *camera.device;
}

template <typename Object>
constexpr Interface interfaceOf = std::is_same_v<Object, IVeltrixSdk>         ? Interface::Root
                                  : std::is_same_v<Object, ISdkConfiguration> ? Interface::Configuration
                                  : std::is_same_v<Object, IDeviceManager>    ? Interface::Manager
                                                                              : Interface::Device;

template <typename Result, typename Object, typename... Parameters>
OperationCall operation(const char *name, Result (Object::*member)(Parameters...))
{
    const auto call = [member](SimulatedCamera &camera) {
        std::tuple<Argument<Parameters>...> arguments{};
        Object &object = objectIn(camera, static_cast<const Object *>(nullptr));
        std::apply([&](auto &...argument) { (object.*member)(argument.from(camera)...); }, arguments);
    };
    return {name, interfaceOf<Object>, call};
}

} // namespace

const std::vector<OperationCall> &everyOperation()
{
    static const std::vector<OperationCall> operations{
        {"get_instance", Interface::Root,
         [](SimulatedCamera & /*camera*/) {
             VeltrixSdk::get_instance();
         }},
        {"log", Interface::Log,
         [](SimulatedCamera & /*camera*/) {
             const SDKLogger record{severity_info};
         }},
        operation("initialize", &IVeltrixSdk::initialize),
        operation("getConfiguration", &IVeltrixSdk::getConfiguration),
        operation("getDeviceManager", &IVeltrixSdk::getDeviceManager),
        operation("releaseDeviceManager", &IVeltrixSdk::releaseDeviceManager),
        operation("getDefaultBaudRate", &ISdkConfiguration::getDefaultBaudRate),
        operation("getCommunicationType", &ISdkConfiguration::getCommunicationType),
        operation("getDefaultGamma", &ISdkConfiguration::getDefaultGamma),
        operation("getDefaultClhe", &ISdkConfiguration::getDefaultClhe),
        operation("getDefaultSharpeningGain", &ISdkConfiguration::getDefaultSharpeningGain),
        operation("getDefaultGsk", &ISdkConfiguration::getDefaultGsk),
        operation("getDefaultGfid", &ISdkConfiguration::getDefaultGfid),
        operation("getDefaultTint", &ISdkConfiguration::getDefaultTint),
        operation("getDefaultGms", &ISdkConfiguration::getDefaultGms),
        operation("getDefaultRoi0IncX1", &ISdkConfiguration::getDefaultRoi0IncX1),
        operation("getDefaultRoi0IncY1", &ISdkConfiguration::getDefaultRoi0IncY1),
        operation("getDefaultRoi0IncX2", &ISdkConfiguration::getDefaultRoi0IncX2),
        operation("getDefaultRoi0IncY2", &ISdkConfiguration::getDefaultRoi0IncY2),
        operation("getDefaultContrastType", &ISdkConfiguration::getDefaultContrastType),
        operation("getDefaultColorLut", &ISdkConfiguration::getDefaultColorLut),
        operation("getDefaultPolarity", &ISdkConfiguration::getDefaultPolarity),
        operation("getDefaultHorizontalFlip", &ISdkConfiguration::getDefaultHorizontalFlip),
        operation("getDefaultVerticalFlip", &ISdkConfiguration::getDefaultVerticalFlip),
        operation("getDefaultVignettingCorrection", &ISdkConfiguration::getDefaultVignettingCorrection),
        operation("getDefaultColumnCorrection", &ISdkConfiguration::getDefaultColumnCorrection),
        operation("getDefaultFrameRate", &ISdkConfiguration::getDefaultFrameRate),
        operation("getDefaultEdgeCorrectionType", &ISdkConfiguration::getDefaultEdgeCorrectionType),
        operation("getDefaultSharpeningGainValue", &ISdkConfiguration::getDefaultSharpeningGainValue),
        operation("getDefaultSharpeningThreshold", &ISdkConfiguration::getDefaultSharpeningThreshold),
        operation("getDefaultVideoOutput", &ISdkConfiguration::getDefaultVideoOutput),
        operation("getDefaultSdiOutput", &ISdkConfiguration::getDefaultSdiOutput),
        operation("getDefaultParallelOutput", &ISdkConfiguration::getDefaultParallelOutput),
        operation("getDefaultMipiOutput", &ISdkConfiguration::getDefaultMipiOutput),
        operation("getDefaultRoi0ExcEnable", &ISdkConfiguration::getDefaultRoi0ExcEnable),
        operation("getDefaultRoi0ExcX1", &ISdkConfiguration::getDefaultRoi0ExcX1),
        operation("getDefaultRoi0ExcY1", &ISdkConfiguration::getDefaultRoi0ExcY1),
        operation("getDefaultRoi0ExcX2", &ISdkConfiguration::getDefaultRoi0ExcX2),
        operation("getDefaultRoi0ExcY2", &ISdkConfiguration::getDefaultRoi0ExcY2),
        operation("getDefaultRoi1IncEnable", &ISdkConfiguration::getDefaultRoi1IncEnable),
        operation("getDefaultRoi1IncX1", &ISdkConfiguration::getDefaultRoi1IncX1),
        operation("getDefaultRoi1IncY1", &ISdkConfiguration::getDefaultRoi1IncY1),
        operation("getDefaultRoi1IncX2", &ISdkConfiguration::getDefaultRoi1IncX2),
        operation("getDefaultRoi1IncY2", &ISdkConfiguration::getDefaultRoi1IncY2),
        operation("getDefaultRoi1ExcEnable", &ISdkConfiguration::getDefaultRoi1ExcEnable),
        operation("getDefaultRoi1ExcX1", &ISdkConfiguration::getDefaultRoi1ExcX1),
        operation("getDefaultRoi1ExcY1", &ISdkConfiguration::getDefaultRoi1ExcY1),
        operation("getDefaultRoi1ExcX2", &ISdkConfiguration::getDefaultRoi1ExcX2),
        operation("getDefaultRoi1ExcY2", &ISdkConfiguration::getDefaultRoi1ExcY2),
        operation("getDefaultTempoFilter", &ISdkConfiguration::getDefaultTempoFilter),
        operation("getDefaultAhcBlackGainLimit", &ISdkConfiguration::getDefaultAhcBlackGainLimit),
        operation("getDefaultAhcWhiteGainLimit", &ISdkConfiguration::getDefaultAhcWhiteGainLimit),
        operation("isExpertMode", &ISdkConfiguration::isExpertMode),
        operation("setBaudRate", &ISdkConfiguration::setBaudRate),
        operation("openDevice", &IDeviceManager::openDevice),
        operation("closeDevice", &IDeviceManager::closeDevice),
        operation("getFirmwareVersions", &IDeviceControl::getFirmwareVersions),
        operation("startReading", &IDeviceControl::startReading),
        operation("getRoiX1", &IDeviceControl::getRoiX1),
        operation("getRoiX2", &IDeviceControl::getRoiX2),
        operation("getRoiY1", &IDeviceControl::getRoiY1),
        operation("getRoiY2", &IDeviceControl::getRoiY2),
        operation("getSerialNumber", &IDeviceControl::getSerialNumber),
        operation("getSensorSerialNumber", &IDeviceControl::getSensorSerialNumber),
        operation("getTemperatures", &IDeviceControl::getTemperatures),
        operation("getOperatingInfo", &IDeviceControl::getOperatingInfo),
        operation("getGsk", &IDeviceControl::getGsk),
        operation("setGsk", &IDeviceControl::setGsk),
        operation("setGfid", &IDeviceControl::setGfid),
        operation("setGms", &IDeviceControl::setGms),
        operation("getGfid", &IDeviceControl::getGfid),
        operation("getGms", &IDeviceControl::getGms),
        operation("getTint", &IDeviceControl::getTint),
        operation("setTint", &IDeviceControl::setTint),
        operation("getBprEnable", &IDeviceControl::getBprEnable),
        operation("setBprEnable", &IDeviceControl::setBprEnable),
        operation("getOffsetCorrection", &IDeviceControl::getOffsetCorrection),
        operation("setOffsetCorrection", &IDeviceControl::setOffsetCorrection),
        operation("getGainCorrection", &IDeviceControl::getGainCorrection),
        operation("setGainCorrection", &IDeviceControl::setGainCorrection),
        operation("getHorizontalFlip", &IDeviceControl::getHorizontalFlip),
        operation("setHorizontalFlip", &IDeviceControl::setHorizontalFlip),
        operation("getVerticalFlip", &IDeviceControl::getVerticalFlip),
        operation("setVerticalFlip", &IDeviceControl::setVerticalFlip),
        operation("getVignettingCorrection", &IDeviceControl::getVignettingCorrection),
        operation("setVignettingCorrection", &IDeviceControl::setVignettingCorrection),
        operation("getColumnCorrection", &IDeviceControl::getColumnCorrection),
        operation("setColumnCorrection", &IDeviceControl::setColumnCorrection),
        operation("setSdiOutput", &IDeviceControl::setSdiOutput),
        operation("getSdiOutput", &IDeviceControl::getSdiOutput),
        operation("setParallelOutput", &IDeviceControl::setParallelOutput),
        operation("getParallelOutput", &IDeviceControl::getParallelOutput),
        operation("setMipiOutput", &IDeviceControl::setMipiOutput),
        operation("getMipiOutput", &IDeviceControl::getMipiOutput),
        operation("setFrameRate", &IDeviceControl::setFrameRate),
        operation("getFrameRate", &IDeviceControl::getFrameRate),
        operation("setVideoOutput", &IDeviceControl::setVideoOutput),
        operation("getVideoOutput", &IDeviceControl::getVideoOutput),
        operation("setMavlinkBaudRate", &IDeviceControl::setMavlinkBaudRate),
        operation("configureEdgeCorrection", &IDeviceControl::configureEdgeCorrection),
        operation("getEdgeCorrection", &IDeviceControl::getEdgeCorrection),
        operation("configureZoom", &IDeviceControl::configureZoom),
        operation("getZoomConfig", &IDeviceControl::getZoomConfig),
        operation("getZoomResolution", &IDeviceControl::getZoomResolution),
        operation("getContrastType", &IDeviceControl::getContrastType),
        operation("configureContrastType", &IDeviceControl::configureContrastType),
        operation("setColorLut", &IDeviceControl::setColorLut),
        operation("getColorLut", &IDeviceControl::getColorLut),
        operation("getAhcGainLimitation", &IDeviceControl::getAhcGainLimitation),
        operation("setAhcGainLimitation", &IDeviceControl::setAhcGainLimitation),
        operation("getLutTemporalFilter", &IDeviceControl::getLutTemporalFilter),
        operation("setLutTemporalFilter", &IDeviceControl::setLutTemporalFilter),
        operation("getBitStatus", &IDeviceControl::getBitStatus),
        operation("connect", &IDeviceControl::connect),
        operation("readBprTable", &IDeviceControl::readBprTable),
        operation("writeBprTable", &IDeviceControl::writeBprTable),
        operation("addBadPixel", &IDeviceControl::addBadPixel),
        operation("removeBadPixel", &IDeviceControl::removeBadPixel),
        operation("setVideoMode", &IDeviceControl::setVideoMode),
        operation("getVideoMode", &IDeviceControl::getVideoMode),
        operation("setTarget", &IDeviceControl::setTarget),
        operation("setVisibleAgc", &IDeviceControl::setVisibleAgc),
        operation("getVisibleAgc", &IDeviceControl::getVisibleAgc),
        operation("setVisibleClhe", &IDeviceControl::setVisibleClhe),
        operation("getVisibleClhe", &IDeviceControl::getVisibleClhe),
        operation("setWarp", &IDeviceControl::setWarp),
        operation("getWarp", &IDeviceControl::getWarp),
        operation("saveBlendUnitParameters", &IDeviceControl::saveBlendUnitParameters),
        operation("setStartingMode", &IDeviceControl::setStartingMode),
        operation("getStartingMode", &IDeviceControl::getStartingMode),
        operation("getGamma", &IDeviceControl::getGamma),
        operation("setGamma", &IDeviceControl::setGamma),
        operation("getClhe", &IDeviceControl::getClhe),
        operation("setClhe", &IDeviceControl::setClhe),
        operation("getPolarity", &IDeviceControl::getPolarity),
        operation("setPolarity", &IDeviceControl::setPolarity),
        operation("setRoiX1", &IDeviceControl::setRoiX1),
        operation("setRoiX2", &IDeviceControl::setRoiX2),
        operation("setRoiY1", &IDeviceControl::setRoiY1),
        operation("setRoiY2", &IDeviceControl::setRoiY2),
        operation("processNucRequest", &IDeviceControl::processNucRequest),
    };
    return operations;
}
