// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The tables of the SDK interfaces, place by place.
#include "slot_table.h"

#include "veltrix_sdk/sdk.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>

namespace
{

using namespace veltrix_sdk;

/// An interface with one more operation, which shows how many places come before it.
template <typename Interface>
class Extended : public Interface
{
public:
    virtual void appended() = 0;

protected:
    ~Extended() = default;
};

/// The Itanium ABI writes a pointer to a virtual member as the byte offset of its table entry, marked by
/// a lowest bit: of the offset itself, or on ARM of the word behind it.
template <typename Pointer>
std::optional<std::size_t> placeOf(Pointer pointer)
{
    struct
    {
        std::size_t function;
        std::size_t adjustment;
    } words{};
#if !defined(_MSC_VER)
    static_assert(sizeof pointer == sizeof words);
    std::memcpy(&words, &pointer, sizeof words);
#else
    static_cast<void>(pointer);
#endif
#if defined(__arm__) || defined(__aarch64__)
    const bool isVirtual{(words.adjustment & 1U) == 1U};
#else
    const bool isVirtual{(words.function & 1U) == 1U};
#endif
    return isVirtual ? std::optional{words.function / sizeof(void *)} : std::nullopt;
}

/// The signature is given, not deduced, so that an operation of another type does not compile.
template <typename Signature, typename Interface>
Operation entry(std::size_t place, const char *name, Signature Interface::*pointer)
{
    return {place, name, placeOf(pointer)};
}

template <typename Interface>
InterfaceTable table(const char *name, std::size_t places, std::vector<Operation> operations)
{
    return {name, places, placeOf(&Extended<Interface>::appended), std::move(operations)};
}

// What differs where the ABI is spelled out.
#if defined(VELTRIX_SDK_SPELLED_OUT)
Operation edgeCorrection()
{
    return entry<EdgeCorrection *(EdgeCorrection *)>(52, "getEdgeCorrectionInto",
                                                     &IDeviceControl::getEdgeCorrectionInto);
}

Operation insertionOfText()
{
    return entry<ILogger &(const MicrosoftString &)>(1, "insert", &ILogger::insert);
}
#else
Operation edgeCorrection()
{
    return entry<EdgeCorrection()>(52, "getEdgeCorrection", &IDeviceControl::getEdgeCorrection);
}

Operation insertionOfText()
{
    return entry<ILogger &(const std::string &)>(1, "operator<<(const std::string &)", &ILogger::operator<<);
}
#endif

std::vector<Operation> rootOperations()
{
    return {
        entry<bool()>(1, "initialize", &IVeltrixSdk::initialize),
        entry<ISdkConfiguration *()>(5, "getConfiguration", &IVeltrixSdk::getConfiguration),
        entry<IDeviceManager *()>(9, "getDeviceManager", &IVeltrixSdk::getDeviceManager),
        entry<void(IDeviceManager **)>(11, "releaseDeviceManager", &IVeltrixSdk::releaseDeviceManager),
    };
}

std::vector<Operation> configurationOperations()
{
    return {
        entry<std::int32_t()>(7, "getDefaultBaudRate", &ISdkConfiguration::getDefaultBaudRate),
        entry<const char *()>(13, "getCommunicationType", &ISdkConfiguration::getCommunicationType),
        entry<double()>(15, "getDefaultGamma", &ISdkConfiguration::getDefaultGamma),
        entry<double()>(16, "getDefaultClhe", &ISdkConfiguration::getDefaultClhe),
        entry<double()>(17, "getDefaultSharpeningGain", &ISdkConfiguration::getDefaultSharpeningGain),
        entry<std::int32_t()>(18, "getDefaultGsk", &ISdkConfiguration::getDefaultGsk),
        entry<std::int32_t()>(19, "getDefaultGfid", &ISdkConfiguration::getDefaultGfid),
        entry<std::int32_t()>(20, "getDefaultTint", &ISdkConfiguration::getDefaultTint),
        entry<std::int32_t()>(21, "getDefaultGms", &ISdkConfiguration::getDefaultGms),
        entry<double()>(22, "getDefaultRoi0IncX1", &ISdkConfiguration::getDefaultRoi0IncX1),
        entry<double()>(23, "getDefaultRoi0IncY1", &ISdkConfiguration::getDefaultRoi0IncY1),
        entry<double()>(24, "getDefaultRoi0IncX2", &ISdkConfiguration::getDefaultRoi0IncX2),
        entry<double()>(25, "getDefaultRoi0IncY2", &ISdkConfiguration::getDefaultRoi0IncY2),
        entry<std::uint8_t()>(26, "getDefaultContrastType", &ISdkConfiguration::getDefaultContrastType),
        entry<std::uint8_t()>(27, "getDefaultColorLut", &ISdkConfiguration::getDefaultColorLut),
        entry<bool()>(28, "getDefaultPolarity", &ISdkConfiguration::getDefaultPolarity),
        entry<bool()>(35, "getDefaultHorizontalFlip", &ISdkConfiguration::getDefaultHorizontalFlip),
        entry<bool()>(36, "getDefaultVerticalFlip", &ISdkConfiguration::getDefaultVerticalFlip),
        entry<bool()>(37, "getDefaultVignettingCorrection",
                      &ISdkConfiguration::getDefaultVignettingCorrection),
        entry<bool()>(38, "getDefaultColumnCorrection", &ISdkConfiguration::getDefaultColumnCorrection),
        entry<std::uint8_t()>(39, "getDefaultFrameRate", &ISdkConfiguration::getDefaultFrameRate),
        entry<std::uint8_t()>(40, "getDefaultEdgeCorrectionType",
                              &ISdkConfiguration::getDefaultEdgeCorrectionType),
        entry<std::uint32_t()>(41, "getDefaultSharpeningGainValue",
                               &ISdkConfiguration::getDefaultSharpeningGainValue),
        entry<std::uint32_t()>(42, "getDefaultSharpeningThreshold",
                               &ISdkConfiguration::getDefaultSharpeningThreshold),
        entry<std::uint8_t()>(44, "getDefaultVideoOutput", &ISdkConfiguration::getDefaultVideoOutput),
        entry<bool()>(45, "getDefaultSdiOutput", &ISdkConfiguration::getDefaultSdiOutput),
        entry<bool()>(46, "getDefaultParallelOutput", &ISdkConfiguration::getDefaultParallelOutput),
        entry<bool()>(47, "getDefaultMipiOutput", &ISdkConfiguration::getDefaultMipiOutput),
        entry<bool()>(49, "getDefaultRoi0ExcEnable", &ISdkConfiguration::getDefaultRoi0ExcEnable),
        entry<double()>(50, "getDefaultRoi0ExcX1", &ISdkConfiguration::getDefaultRoi0ExcX1),
        entry<double()>(51, "getDefaultRoi0ExcY1", &ISdkConfiguration::getDefaultRoi0ExcY1),
        entry<double()>(52, "getDefaultRoi0ExcX2", &ISdkConfiguration::getDefaultRoi0ExcX2),
        entry<double()>(53, "getDefaultRoi0ExcY2", &ISdkConfiguration::getDefaultRoi0ExcY2),
        entry<bool()>(54, "getDefaultRoi1IncEnable", &ISdkConfiguration::getDefaultRoi1IncEnable),
        entry<double()>(55, "getDefaultRoi1IncX1", &ISdkConfiguration::getDefaultRoi1IncX1),
        entry<double()>(56, "getDefaultRoi1IncY1", &ISdkConfiguration::getDefaultRoi1IncY1),
        entry<double()>(57, "getDefaultRoi1IncX2", &ISdkConfiguration::getDefaultRoi1IncX2),
        entry<double()>(58, "getDefaultRoi1IncY2", &ISdkConfiguration::getDefaultRoi1IncY2),
        entry<bool()>(59, "getDefaultRoi1ExcEnable", &ISdkConfiguration::getDefaultRoi1ExcEnable),
        entry<double()>(60, "getDefaultRoi1ExcX1", &ISdkConfiguration::getDefaultRoi1ExcX1),
        entry<double()>(61, "getDefaultRoi1ExcY1", &ISdkConfiguration::getDefaultRoi1ExcY1),
        entry<double()>(62, "getDefaultRoi1ExcX2", &ISdkConfiguration::getDefaultRoi1ExcX2),
        entry<double()>(63, "getDefaultRoi1ExcY2", &ISdkConfiguration::getDefaultRoi1ExcY2),
        entry<std::uint8_t()>(64, "getDefaultTempoFilter", &ISdkConfiguration::getDefaultTempoFilter),
        entry<std::uint8_t()>(65, "getDefaultAhcBlackGainLimit",
                              &ISdkConfiguration::getDefaultAhcBlackGainLimit),
        entry<std::uint8_t()>(66, "getDefaultAhcWhiteGainLimit",
                              &ISdkConfiguration::getDefaultAhcWhiteGainLimit),
        entry<bool()>(67, "isExpertMode", &ISdkConfiguration::isExpertMode),
        entry<void(std::int32_t)>(68, "setBaudRate", &ISdkConfiguration::setBaudRate),
    };
}

std::vector<Operation> managerOperations()
{
    return {
        entry<IDeviceControl *(const char *)>(15, "openDevice", &IDeviceManager::openDevice),
        entry<void(IDeviceControl *)>(16, "closeDevice", &IDeviceManager::closeDevice),
    };
}

std::vector<Operation> deviceOperations()
{
    return {
        entry<bool(FirmwareVersions *)>(3, "getFirmwareVersions", &IDeviceControl::getFirmwareVersions),
        entry<bool()>(4, "startReading", &IDeviceControl::startReading),
        entry<std::uint32_t(std::uint32_t)>(5, "getRoiX1", &IDeviceControl::getRoiX1),
        entry<std::uint32_t(std::uint32_t)>(6, "getRoiX2", &IDeviceControl::getRoiX2),
        entry<std::uint32_t(std::uint32_t)>(7, "getRoiY1", &IDeviceControl::getRoiY1),
        entry<std::uint32_t(std::uint32_t)>(8, "getRoiY2", &IDeviceControl::getRoiY2),
        entry<std::uint32_t()>(9, "getSerialNumber", &IDeviceControl::getSerialNumber),
        entry<std::uint32_t()>(10, "getSensorSerialNumber", &IDeviceControl::getSensorSerialNumber),
        entry<bool(Temperatures *)>(12, "getTemperatures", &IDeviceControl::getTemperatures),
        entry<bool(OperatingInfo *)>(13, "getOperatingInfo", &IDeviceControl::getOperatingInfo),
        entry<std::uint32_t()>(16, "getGsk", &IDeviceControl::getGsk),
        entry<bool(std::uint32_t)>(17, "setGsk", &IDeviceControl::setGsk),
        entry<bool(std::uint32_t)>(18, "setGfid", &IDeviceControl::setGfid),
        entry<bool(std::uint32_t)>(19, "setGms", &IDeviceControl::setGms),
        entry<std::uint32_t()>(20, "getGfid", &IDeviceControl::getGfid),
        entry<std::uint32_t()>(21, "getGms", &IDeviceControl::getGms),
        entry<std::uint32_t()>(22, "getTint", &IDeviceControl::getTint),
        entry<bool(std::uint32_t)>(23, "setTint", &IDeviceControl::setTint),
        entry<bool()>(24, "getBprEnable", &IDeviceControl::getBprEnable),
        entry<bool(bool)>(25, "setBprEnable", &IDeviceControl::setBprEnable),
        entry<bool()>(26, "getOffsetCorrection", &IDeviceControl::getOffsetCorrection),
        entry<bool(bool)>(27, "setOffsetCorrection", &IDeviceControl::setOffsetCorrection),
        entry<bool()>(28, "getGainCorrection", &IDeviceControl::getGainCorrection),
        entry<bool(bool)>(29, "setGainCorrection", &IDeviceControl::setGainCorrection),
        entry<bool()>(30, "getHorizontalFlip", &IDeviceControl::getHorizontalFlip),
        entry<bool(bool)>(31, "setHorizontalFlip", &IDeviceControl::setHorizontalFlip),
        entry<bool()>(32, "getVerticalFlip", &IDeviceControl::getVerticalFlip),
        entry<bool(bool)>(33, "setVerticalFlip", &IDeviceControl::setVerticalFlip),
        entry<bool()>(34, "getVignettingCorrection", &IDeviceControl::getVignettingCorrection),
        entry<bool(bool)>(35, "setVignettingCorrection", &IDeviceControl::setVignettingCorrection),
        entry<bool()>(36, "getColumnCorrection", &IDeviceControl::getColumnCorrection),
        entry<bool(bool)>(37, "setColumnCorrection", &IDeviceControl::setColumnCorrection),
        entry<bool(bool)>(40, "setSdiOutput", &IDeviceControl::setSdiOutput),
        entry<bool()>(41, "getSdiOutput", &IDeviceControl::getSdiOutput),
        entry<bool(bool)>(42, "setParallelOutput", &IDeviceControl::setParallelOutput),
        entry<bool()>(43, "getParallelOutput", &IDeviceControl::getParallelOutput),
        entry<bool(bool)>(44, "setMipiOutput", &IDeviceControl::setMipiOutput),
        entry<bool()>(45, "getMipiOutput", &IDeviceControl::getMipiOutput),
        entry<bool(std::uint8_t)>(46, "setFrameRate", &IDeviceControl::setFrameRate),
        entry<std::uint8_t()>(47, "getFrameRate", &IDeviceControl::getFrameRate),
        entry<bool(std::uint8_t)>(48, "setVideoOutput", &IDeviceControl::setVideoOutput),
        entry<std::uint8_t()>(49, "getVideoOutput", &IDeviceControl::getVideoOutput),
        entry<bool(std::int32_t, bool)>(50, "setMavlinkBaudRate", &IDeviceControl::setMavlinkBaudRate),
        entry<bool(std::uint8_t, std::uint32_t, std::uint32_t)>(51, "configureEdgeCorrection",
                                                                &IDeviceControl::configureEdgeCorrection),
        edgeCorrection(),
        entry<bool(const ZoomConfig *)>(55, "configureZoom", &IDeviceControl::configureZoom),
        entry<bool(ZoomConfig *)>(56, "getZoomConfig", &IDeviceControl::getZoomConfig),
        entry<bool(ZoomResolution *)>(57, "getZoomResolution", &IDeviceControl::getZoomResolution),
        entry<std::uint8_t()>(59, "getContrastType", &IDeviceControl::getContrastType),
        entry<bool(std::uint8_t)>(60, "configureContrastType", &IDeviceControl::configureContrastType),
        entry<bool(std::uint8_t)>(61, "setColorLut", &IDeviceControl::setColorLut),
        entry<std::uint8_t()>(62, "getColorLut", &IDeviceControl::getColorLut),
        entry<std::uint8_t(AhcGainLimitation *)>(63, "getAhcGainLimitation",
                                                 &IDeviceControl::getAhcGainLimitation),
        entry<bool(std::uint8_t, std::uint8_t)>(64, "setAhcGainLimitation",
                                                &IDeviceControl::setAhcGainLimitation),
        entry<std::uint8_t()>(65, "getLutTemporalFilter", &IDeviceControl::getLutTemporalFilter),
        entry<bool(std::uint8_t)>(66, "setLutTemporalFilter", &IDeviceControl::setLutTemporalFilter),
        entry<std::uint32_t()>(67, "getBitStatus", &IDeviceControl::getBitStatus),
        entry<std::uint8_t(std::uint8_t *)>(68, "connect", &IDeviceControl::connect),
        entry<bool(std::uint32_t, std::uint32_t, std::uint8_t)>(70, "readBprTable",
                                                                &IDeviceControl::readBprTable),
        entry<bool(std::uint32_t, std::uint32_t, std::uint8_t)>(71, "writeBprTable",
                                                                &IDeviceControl::writeBprTable),
        entry<bool(std::uint32_t, std::uint32_t)>(72, "addBadPixel", &IDeviceControl::addBadPixel),
        entry<bool(std::uint32_t, std::uint32_t)>(73, "removeBadPixel", &IDeviceControl::removeBadPixel),
        entry<bool(std::uint8_t)>(74, "setVideoMode", &IDeviceControl::setVideoMode),
        entry<bool(std::uint8_t *)>(75, "getVideoMode", &IDeviceControl::getVideoMode),
        entry<bool(std::int32_t)>(76, "setTarget", &IDeviceControl::setTarget),
        entry<bool(std::int32_t, std::uint8_t, std::uint8_t)>(77, "setVisibleAgc",
                                                              &IDeviceControl::setVisibleAgc),
        entry<bool(VisibleAgc *)>(78, "getVisibleAgc", &IDeviceControl::getVisibleAgc),
        entry<bool(std::int32_t, std::uint8_t)>(79, "setVisibleClhe", &IDeviceControl::setVisibleClhe),
        entry<bool(VisibleClhe *)>(80, "getVisibleClhe", &IDeviceControl::getVisibleClhe),
        entry<bool(std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                   std::int32_t)>(81, "setWarp", &IDeviceControl::setWarp),
        entry<bool(Warp *)>(82, "getWarp", &IDeviceControl::getWarp),
        entry<bool(std::uint8_t)>(83, "saveBlendUnitParameters", &IDeviceControl::saveBlendUnitParameters),
        entry<bool(std::uint32_t)>(84, "setStartingMode", &IDeviceControl::setStartingMode),
        entry<bool(std::uint8_t *)>(85, "getStartingMode", &IDeviceControl::getStartingMode),
        entry<std::uint32_t()>(86, "getGamma", &IDeviceControl::getGamma),
        entry<bool(std::uint32_t)>(87, "setGamma", &IDeviceControl::setGamma),
        entry<std::uint32_t()>(88, "getClhe", &IDeviceControl::getClhe),
        entry<bool(std::uint32_t)>(89, "setClhe", &IDeviceControl::setClhe),
        entry<bool()>(92, "getPolarity", &IDeviceControl::getPolarity),
        entry<bool(bool)>(93, "setPolarity", &IDeviceControl::setPolarity),
        entry<bool(std::uint32_t, std::int32_t, bool, bool, bool)>(94, "setRoiX1", &IDeviceControl::setRoiX1),
        entry<bool(std::uint32_t, std::int32_t, bool, bool, bool)>(95, "setRoiX2", &IDeviceControl::setRoiX2),
        entry<bool(std::uint32_t, std::int32_t, bool, bool, bool)>(96, "setRoiY1", &IDeviceControl::setRoiY1),
        entry<bool(std::uint32_t, std::int32_t, bool, bool, bool)>(97, "setRoiY2", &IDeviceControl::setRoiY2),
        entry<bool()>(98, "processNucRequest", &IDeviceControl::processNucRequest),
    };
}

std::vector<Operation> loggerOperations()
{
    return {
        insertionOfText(),
        entry<ILogger &(const char *)>(2, "operator<<(const char *)", &ILogger::operator<<),
    };
}

} // namespace

std::vector<InterfaceTable> contractTables()
{
    return {
        table<IVeltrixSdk>("IVeltrixSdk", 12, rootOperations()),
        table<ISdkConfiguration>("ISdkConfiguration", 69, configurationOperations()),
        table<IDeviceManager>("IDeviceManager", 17, managerOperations()),
        table<IDeviceControl>("IDeviceControl", 99, deviceOperations()),
        table<ILogger>("ILogger", 3, loggerOperations()),
    };
}
