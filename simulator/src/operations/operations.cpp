// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The operations of the contract by name, with what each of them takes and answers.
#include "operations/operations.h"

#include "units/recordfields.h"
#include "veltrix_sdk/sdk.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace veltrix_simulator
{
namespace
{

using veltrix_sdk::IDeviceControl;
using veltrix_sdk::IDeviceManager;
using veltrix_sdk::ISdkConfiguration;
using veltrix_sdk::IVeltrixSdk;

template <typename T>
void appendKinds(std::vector<Kind> &kinds)
{
    if constexpr (isRecord<T>) {
        const T record{};
        forEachField(record, [&](const char * /*name*/, const auto &field) {
            appendKinds<std::decay_t<decltype(field)>>(kinds);
        });
    } else if constexpr (!std::is_void_v<T>) {
        kinds.push_back(kindOf<T>());
    }
}

/// A parameter is filled in by the call when it points to a number or a record.
template <typename Parameter>
void appendParameterKinds(std::vector<Kind> &kinds)
{
    using Target = std::remove_pointer_t<Parameter>;
    if constexpr (std::is_pointer_v<Parameter> && !std::is_const_v<Target> &&
                  (std::is_arithmetic_v<Target> || isRecord<Target>)) {
        appendKinds<Target>(kinds);
    }
}

/// What a parameter brings into the call.
template <typename Parameter>
void appendArgumentKinds(std::vector<Kind> &kinds)
{
    using Target = std::remove_const_t<std::remove_pointer_t<Parameter>>;
    if constexpr (std::is_same_v<Parameter, veltrix_sdk::Warp *>) {
        appendKinds<decltype(veltrix_sdk::Warp::stream)>(kinds);
    } else if constexpr (std::is_same_v<Parameter, const Target *> && isRecord<Target>) {
        appendKinds<Target>(kinds);
    } else if constexpr (std::is_arithmetic_v<Parameter> || std::is_same_v<Parameter, const char *>) {
        appendKinds<Parameter>(kinds);
    }
}

template <typename Result, typename... Parameters>
Operation describeCall(std::string_view name, Interface interface)
{
    Operation operation{name, interface, {}};
    appendKinds<Result>(operation.answer);
    (appendParameterKinds<Parameters>(operation.answer), ...);
    (appendArgumentKinds<Parameters>(operation.arguments), ...);
    return operation;
}

template <typename Result, typename Object, typename... Parameters>
Operation describe(std::string_view name, Interface interface, Result (Object::* /*call*/)(Parameters...))
{
    return describeCall<Result, Parameters...>(name, interface);
}

bool beginsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

/// Whether the pattern, in which a `*` stands for any characters, covers the whole name.
bool fits(std::string_view pattern, std::string_view name)
{
    std::size_t inPattern{0};
    std::size_t inName{0};
    std::size_t afterStar{std::string_view::npos};
    std::size_t swallowed{0};
    // Only the latest star ever has to take more: what stands before it fits already.
    while (inName < name.size()) {
        if (inPattern < pattern.size() && pattern[inPattern] == '*') {
            afterStar = ++inPattern;
            swallowed = inName;
        } else if (inPattern < pattern.size() && pattern[inPattern] == name[inName]) {
            ++inPattern;
            ++inName;
        } else if (afterStar != std::string_view::npos) {
            inPattern = afterStar;
            inName = ++swallowed;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', inPattern) == std::string_view::npos;
}

} // namespace

const std::vector<Operation> &allOperations()
{
    static const std::vector<Operation> list{
        describeCall<IVeltrixSdk *>("get_instance", Interface::Root),
        describeCall<void, std::int32_t, const char *>("log", Interface::Log),
        describe("initialize", Interface::Root, &IVeltrixSdk::initialize),
        describe("getConfiguration", Interface::Root, &IVeltrixSdk::getConfiguration),
        describe("getDeviceManager", Interface::Root, &IVeltrixSdk::getDeviceManager),
        describe("releaseDeviceManager", Interface::Root, &IVeltrixSdk::releaseDeviceManager),
        describe("getDefaultBaudRate", Interface::Configuration, &ISdkConfiguration::getDefaultBaudRate),
        describe("getCommunicationType", Interface::Configuration, &ISdkConfiguration::getCommunicationType),
        describe("getDefaultGamma", Interface::Configuration, &ISdkConfiguration::getDefaultGamma),
        describe("getDefaultClhe", Interface::Configuration, &ISdkConfiguration::getDefaultClhe),
        describe("getDefaultSharpeningGain", Interface::Configuration,
                 &ISdkConfiguration::getDefaultSharpeningGain),
        describe("getDefaultGsk", Interface::Configuration, &ISdkConfiguration::getDefaultGsk),
        describe("getDefaultGfid", Interface::Configuration, &ISdkConfiguration::getDefaultGfid),
        describe("getDefaultTint", Interface::Configuration, &ISdkConfiguration::getDefaultTint),
        describe("getDefaultGms", Interface::Configuration, &ISdkConfiguration::getDefaultGms),
        describe("getDefaultRoi0IncX1", Interface::Configuration, &ISdkConfiguration::getDefaultRoi0IncX1),
        describe("getDefaultRoi0IncY1", Interface::Configuration, &ISdkConfiguration::getDefaultRoi0IncY1),
        describe("getDefaultRoi0IncX2", Interface::Configuration, &ISdkConfiguration::getDefaultRoi0IncX2),
        describe("getDefaultRoi0IncY2", Interface::Configuration, &ISdkConfiguration::getDefaultRoi0IncY2),
        describe("getDefaultContrastType", Interface::Configuration,
                 &ISdkConfiguration::getDefaultContrastType),
        describe("getDefaultColorLut", Interface::Configuration, &ISdkConfiguration::getDefaultColorLut),
        describe("getDefaultPolarity", Interface::Configuration, &ISdkConfiguration::getDefaultPolarity),
        describe("getDefaultHorizontalFlip", Interface::Configuration,
                 &ISdkConfiguration::getDefaultHorizontalFlip),
        describe("getDefaultVerticalFlip", Interface::Configuration,
                 &ISdkConfiguration::getDefaultVerticalFlip),
        describe("getDefaultVignettingCorrection", Interface::Configuration,
                 &ISdkConfiguration::getDefaultVignettingCorrection),
        describe("getDefaultColumnCorrection", Interface::Configuration,
                 &ISdkConfiguration::getDefaultColumnCorrection),
        describe("getDefaultFrameRate", Interface::Configuration, &ISdkConfiguration::getDefaultFrameRate),
        describe("getDefaultEdgeCorrectionType", Interface::Configuration,
                 &ISdkConfiguration::getDefaultEdgeCorrectionType),
        describe("getDefaultSharpeningGainValue", Interface::Configuration,
                 &ISdkConfiguration::getDefaultSharpeningGainValue),
        describe("getDefaultSharpeningThreshold", Interface::Configuration,
                 &ISdkConfiguration::getDefaultSharpeningThreshold),
        describe("getDefaultVideoOutput", Interface::Configuration,
                 &ISdkConfiguration::getDefaultVideoOutput),
        describe("getDefaultSdiOutput", Interface::Configuration, &ISdkConfiguration::getDefaultSdiOutput),
        describe("getDefaultParallelOutput", Interface::Configuration,
                 &ISdkConfiguration::getDefaultParallelOutput),
        describe("getDefaultMipiOutput", Interface::Configuration, &ISdkConfiguration::getDefaultMipiOutput),
        describe("getDefaultRoi0ExcEnable", Interface::Configuration,
                 &ISdkConfiguration::getDefaultRoi0ExcEnable),
        describe("getDefaultRoi0ExcX1", Interface::Configuration, &ISdkConfiguration::getDefaultRoi0ExcX1),
        describe("getDefaultRoi0ExcY1", Interface::Configuration, &ISdkConfiguration::getDefaultRoi0ExcY1),
        describe("getDefaultRoi0ExcX2", Interface::Configuration, &ISdkConfiguration::getDefaultRoi0ExcX2),
        describe("getDefaultRoi0ExcY2", Interface::Configuration, &ISdkConfiguration::getDefaultRoi0ExcY2),
        describe("getDefaultRoi1IncEnable", Interface::Configuration,
                 &ISdkConfiguration::getDefaultRoi1IncEnable),
        describe("getDefaultRoi1IncX1", Interface::Configuration, &ISdkConfiguration::getDefaultRoi1IncX1),
        describe("getDefaultRoi1IncY1", Interface::Configuration, &ISdkConfiguration::getDefaultRoi1IncY1),
        describe("getDefaultRoi1IncX2", Interface::Configuration, &ISdkConfiguration::getDefaultRoi1IncX2),
        describe("getDefaultRoi1IncY2", Interface::Configuration, &ISdkConfiguration::getDefaultRoi1IncY2),
        describe("getDefaultRoi1ExcEnable", Interface::Configuration,
                 &ISdkConfiguration::getDefaultRoi1ExcEnable),
        describe("getDefaultRoi1ExcX1", Interface::Configuration, &ISdkConfiguration::getDefaultRoi1ExcX1),
        describe("getDefaultRoi1ExcY1", Interface::Configuration, &ISdkConfiguration::getDefaultRoi1ExcY1),
        describe("getDefaultRoi1ExcX2", Interface::Configuration, &ISdkConfiguration::getDefaultRoi1ExcX2),
        describe("getDefaultRoi1ExcY2", Interface::Configuration, &ISdkConfiguration::getDefaultRoi1ExcY2),
        describe("getDefaultTempoFilter", Interface::Configuration,
                 &ISdkConfiguration::getDefaultTempoFilter),
        describe("getDefaultAhcBlackGainLimit", Interface::Configuration,
                 &ISdkConfiguration::getDefaultAhcBlackGainLimit),
        describe("getDefaultAhcWhiteGainLimit", Interface::Configuration,
                 &ISdkConfiguration::getDefaultAhcWhiteGainLimit),
        describe("isExpertMode", Interface::Configuration, &ISdkConfiguration::isExpertMode),
        describe("setBaudRate", Interface::Configuration, &ISdkConfiguration::setBaudRate),
        describe("openDevice", Interface::Manager, &IDeviceManager::openDevice),
        describe("closeDevice", Interface::Manager, &IDeviceManager::closeDevice),
        describe("getFirmwareVersions", Interface::Device, &IDeviceControl::getFirmwareVersions),
        describe("startReading", Interface::Device, &IDeviceControl::startReading),
        describe("getRoiX1", Interface::Device, &IDeviceControl::getRoiX1),
        describe("getRoiX2", Interface::Device, &IDeviceControl::getRoiX2),
        describe("getRoiY1", Interface::Device, &IDeviceControl::getRoiY1),
        describe("getRoiY2", Interface::Device, &IDeviceControl::getRoiY2),
        describe("getSerialNumber", Interface::Device, &IDeviceControl::getSerialNumber),
        describe("getSensorSerialNumber", Interface::Device, &IDeviceControl::getSensorSerialNumber),
        describe("getTemperatures", Interface::Device, &IDeviceControl::getTemperatures),
        describe("getOperatingInfo", Interface::Device, &IDeviceControl::getOperatingInfo),
        describe("getGsk", Interface::Device, &IDeviceControl::getGsk),
        describe("setGsk", Interface::Device, &IDeviceControl::setGsk),
        describe("setGfid", Interface::Device, &IDeviceControl::setGfid),
        describe("setGms", Interface::Device, &IDeviceControl::setGms),
        describe("getGfid", Interface::Device, &IDeviceControl::getGfid),
        describe("getGms", Interface::Device, &IDeviceControl::getGms),
        describe("getTint", Interface::Device, &IDeviceControl::getTint),
        describe("setTint", Interface::Device, &IDeviceControl::setTint),
        describe("getBprEnable", Interface::Device, &IDeviceControl::getBprEnable),
        describe("setBprEnable", Interface::Device, &IDeviceControl::setBprEnable),
        describe("getOffsetCorrection", Interface::Device, &IDeviceControl::getOffsetCorrection),
        describe("setOffsetCorrection", Interface::Device, &IDeviceControl::setOffsetCorrection),
        describe("getGainCorrection", Interface::Device, &IDeviceControl::getGainCorrection),
        describe("setGainCorrection", Interface::Device, &IDeviceControl::setGainCorrection),
        describe("getHorizontalFlip", Interface::Device, &IDeviceControl::getHorizontalFlip),
        describe("setHorizontalFlip", Interface::Device, &IDeviceControl::setHorizontalFlip),
        describe("getVerticalFlip", Interface::Device, &IDeviceControl::getVerticalFlip),
        describe("setVerticalFlip", Interface::Device, &IDeviceControl::setVerticalFlip),
        describe("getVignettingCorrection", Interface::Device, &IDeviceControl::getVignettingCorrection),
        describe("setVignettingCorrection", Interface::Device, &IDeviceControl::setVignettingCorrection),
        describe("getColumnCorrection", Interface::Device, &IDeviceControl::getColumnCorrection),
        describe("setColumnCorrection", Interface::Device, &IDeviceControl::setColumnCorrection),
        describe("setSdiOutput", Interface::Device, &IDeviceControl::setSdiOutput),
        describe("getSdiOutput", Interface::Device, &IDeviceControl::getSdiOutput),
        describe("setParallelOutput", Interface::Device, &IDeviceControl::setParallelOutput),
        describe("getParallelOutput", Interface::Device, &IDeviceControl::getParallelOutput),
        describe("setMipiOutput", Interface::Device, &IDeviceControl::setMipiOutput),
        describe("getMipiOutput", Interface::Device, &IDeviceControl::getMipiOutput),
        describe("setFrameRate", Interface::Device, &IDeviceControl::setFrameRate),
        describe("getFrameRate", Interface::Device, &IDeviceControl::getFrameRate),
        describe("setVideoOutput", Interface::Device, &IDeviceControl::setVideoOutput),
        describe("getVideoOutput", Interface::Device, &IDeviceControl::getVideoOutput),
        describe("setMavlinkBaudRate", Interface::Device, &IDeviceControl::setMavlinkBaudRate),
        describe("configureEdgeCorrection", Interface::Device, &IDeviceControl::configureEdgeCorrection),
        describe("getEdgeCorrection", Interface::Device, &IDeviceControl::getEdgeCorrection),
        describe("configureZoom", Interface::Device, &IDeviceControl::configureZoom),
        describe("getZoomConfig", Interface::Device, &IDeviceControl::getZoomConfig),
        describe("getZoomResolution", Interface::Device, &IDeviceControl::getZoomResolution),
        describe("getContrastType", Interface::Device, &IDeviceControl::getContrastType),
        describe("configureContrastType", Interface::Device, &IDeviceControl::configureContrastType),
        describe("setColorLut", Interface::Device, &IDeviceControl::setColorLut),
        describe("getColorLut", Interface::Device, &IDeviceControl::getColorLut),
        describe("getAhcGainLimitation", Interface::Device, &IDeviceControl::getAhcGainLimitation),
        describe("setAhcGainLimitation", Interface::Device, &IDeviceControl::setAhcGainLimitation),
        describe("getLutTemporalFilter", Interface::Device, &IDeviceControl::getLutTemporalFilter),
        describe("setLutTemporalFilter", Interface::Device, &IDeviceControl::setLutTemporalFilter),
        describe("getBitStatus", Interface::Device, &IDeviceControl::getBitStatus),
        describe("connect", Interface::Device, &IDeviceControl::connect),
        describe("readBprTable", Interface::Device, &IDeviceControl::readBprTable),
        describe("writeBprTable", Interface::Device, &IDeviceControl::writeBprTable),
        describe("addBadPixel", Interface::Device, &IDeviceControl::addBadPixel),
        describe("removeBadPixel", Interface::Device, &IDeviceControl::removeBadPixel),
        describe("setVideoMode", Interface::Device, &IDeviceControl::setVideoMode),
        describe("getVideoMode", Interface::Device, &IDeviceControl::getVideoMode),
        describe("setTarget", Interface::Device, &IDeviceControl::setTarget),
        describe("setVisibleAgc", Interface::Device, &IDeviceControl::setVisibleAgc),
        describe("getVisibleAgc", Interface::Device, &IDeviceControl::getVisibleAgc),
        describe("setVisibleClhe", Interface::Device, &IDeviceControl::setVisibleClhe),
        describe("getVisibleClhe", Interface::Device, &IDeviceControl::getVisibleClhe),
        describe("setWarp", Interface::Device, &IDeviceControl::setWarp),
        describe("getWarp", Interface::Device, &IDeviceControl::getWarp),
        describe("saveBlendUnitParameters", Interface::Device, &IDeviceControl::saveBlendUnitParameters),
        describe("setStartingMode", Interface::Device, &IDeviceControl::setStartingMode),
        describe("getStartingMode", Interface::Device, &IDeviceControl::getStartingMode),
        describe("getGamma", Interface::Device, &IDeviceControl::getGamma),
        describe("setGamma", Interface::Device, &IDeviceControl::setGamma),
        describe("getClhe", Interface::Device, &IDeviceControl::getClhe),
        describe("setClhe", Interface::Device, &IDeviceControl::setClhe),
        describe("getPolarity", Interface::Device, &IDeviceControl::getPolarity),
        describe("setPolarity", Interface::Device, &IDeviceControl::setPolarity),
        describe("setRoiX1", Interface::Device, &IDeviceControl::setRoiX1),
        describe("setRoiX2", Interface::Device, &IDeviceControl::setRoiX2),
        describe("setRoiY1", Interface::Device, &IDeviceControl::setRoiY1),
        describe("setRoiY2", Interface::Device, &IDeviceControl::setRoiY2),
        describe("processNucRequest", Interface::Device, &IDeviceControl::processNucRequest),
    };
    return list;
}

const Operation *findOperation(std::string_view name)
{
    const std::vector<Operation> &operations = allOperations();
    const auto found = std::find_if(operations.begin(), operations.end(),
                                    [&](const Operation &operation) { return operation.name == name; });
    return found == operations.end() ? nullptr : &*found;
}

std::vector<const Operation *> operationsMatching(std::string_view pattern)
{
    const bool isName{pattern.find('*') == std::string_view::npos};
    std::vector<const Operation *> matching;
    for (const Operation &operation : allOperations()) {
        if (isName ? operation.name == pattern
                   : operation.interface == Interface::Device && fits(pattern, operation.name)) {
            matching.push_back(&operation);
        }
    }
    return matching;
}

bool readsValues(const Operation &operation)
{
    if (operation.interface == Interface::Configuration) {
        return !operation.answer.empty();
    }
    return operation.interface == Interface::Device &&
           (beginsWith(operation.name, "get") || operation.name == "connect");
}

bool isCommand(const Operation &operation)
{
    return operation.interface == Interface::Device && !readsValues(operation) &&
           operation.name != "startReading";
}

bool storesValues(const Operation &operation)
{
    return isCommand(operation) && operation.name != "setTarget" &&
           (beginsWith(operation.name, "set") || beginsWith(operation.name, "configure"));
}

} // namespace veltrix_simulator
