// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The values of a unit: one table row for each, with key, kind, range and defaults.
#pragma once

#include "units/fieldtable.h"
#include "values/value.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace veltrix_simulator
{

/// The values of one unit, in the order of unitFields. Values that travel together follow each other in
/// the order of their record.
enum class Field : std::size_t
{
    processorVersion,
    fpgaVersion,
    sensorMillikelvin,
    fpgaMillikelvin,
    operatingMinutes,
    startupCount,
    serialNumber,
    sensorSerialNumber,
    identity,
    bitStatus,
    gsk,
    gfid,
    gms,
    tint,
    bprEnable,
    offsetCorrection,
    gainCorrection,
    horizontalFlip,
    verticalFlip,
    vignettingCorrection,
    columnCorrection,
    sdiOutput,
    parallelOutput,
    mipiOutput,
    polarity,
    frameRate,
    videoOutput,
    mavlinkBaudRate,
    mavlinkPermanent,
    edgeType,
    edgeGain,
    edgeFirstThreshold,
    edgeSecondThreshold,
    zoomFactor,
    zoomXCenter,
    zoomYCenter,
    zoomMethod,
    zoomXResolution,
    zoomYResolution,
    contrastType,
    colorLut,
    ahcBlack,
    ahcWhite,
    lutTemporalFilter,
    gamma,
    clhe,
    videoMode,
    startingMode,
    visibleAgcTarget,
    visibleAgcThreshold,
    visibleAgcFilterCoefficient,
    visibleClheThreshold,
    visibleClheFilterCoefficient,
    roi0X1,
    roi0X2,
    roi0Y1,
    roi0Y2,
    roi1X1,
    roi1X2,
    roi1Y1,
    roi1Y2,
    roi2X1,
    roi2X2,
    roi2Y1,
    roi2Y2,
    roi3X1,
    roi3X2,
    roi3Y1,
    roi3Y2,
    roi1IncEnabled,
    roi0ExcEnabled,
    roi1ExcEnabled,
    warp0A11,
    warp0A21,
    warp0A12,
    warp0A22,
    warp0A13,
    warp0A23,
    warp1A11,
    warp1A21,
    warp1A12,
    warp1A22,
    warp1A13,
    warp1A23,
    warp2A11,
    warp2A21,
    warp2A12,
    warp2A22,
    warp2A13,
    warp2A23,
    userSaves,
    expertSaves,
    nucRequests,
    count,
};

/// The set of parameters that a value is saved with.
enum class Saved
{
    Never, ///< It is what the unit measures, counts or came with.
    User,
    Expert,
};

struct UnitField
{
    Field id;
    std::string_view key;
    Kind kind;
    Allowed allowed;
    double defaults[2]; ///< By target.
    Saved saved{Saved::Never};
};

inline constexpr std::array<std::int32_t, 5> frameRates{9, 25, 30, 50, 60};
inline constexpr std::array<std::int32_t, 5> mavlinkBaudRates{9600, 115200, 230400, 460800, 921600};

inline constexpr std::array<UnitField, static_cast<std::size_t>(Field::count)> unitFields{{
    {Field::processorVersion, "firmwareVersions.processor", Kind::Unsigned16, anything, {0x1302, 0x0214}},
    {Field::fpgaVersion, "firmwareVersions.fpga", Kind::Unsigned16, anything, {0x2104, 0x2306}},
    {Field::sensorMillikelvin, "temperatures.sensorMillikelvin", Kind::Float, anything, {300950, 296650}},
    {Field::fpgaMillikelvin, "temperatures.fpgaMillikelvin", Kind::Float, anything, {321550, 314250}},
    {Field::operatingMinutes, "operatingInfo.operatingMinutes", Kind::Unsigned32, anything, {20880, 73415}},
    {Field::startupCount, "operatingInfo.startupCount", Kind::Unsigned32, anything, {198, 412}},
    {Field::serialNumber, "serialNumber", Kind::Unsigned32, anything, {2063, 10417}},
    {Field::sensorSerialNumber, "sensorSerialNumber", Kind::Unsigned32, anything, {91324, 558201}},
    {Field::identity, "identity", Kind::Unsigned8, anything, {21, 21}},
    {Field::bitStatus, "bitStatus", Kind::Unsigned32, anything, {1, 3}},
    {Field::gsk,
     "gsk",
     Kind::Unsigned32,
     configured(&Words::gskMinimum, &Words::gskMaximum),
     {2, 2},
     Saved::Expert},
    {Field::gfid,
     "gfid",
     Kind::Unsigned32,
     configured(&Words::gfidMinimum, &Words::gfidMaximum),
     {250, 250},
     Saved::Expert},
    {Field::gms,
     "gms",
     Kind::Unsigned32,
     configured(&Words::gmsMinimum, &Words::gmsMaximum),
     {1024, 1024},
     Saved::Expert},
    {Field::tint,
     "tint",
     Kind::Unsigned32,
     configured(&Words::tintMinimum, &Words::tintMaximum),
     {10, 10},
     Saved::Expert},
    {Field::bprEnable, "bprEnable", Kind::Boolean, anything, {1, 1}, Saved::Expert},
    {Field::offsetCorrection, "offsetCorrection", Kind::Boolean, anything, {1, 1}, Saved::Expert},
    {Field::gainCorrection, "gainCorrection", Kind::Boolean, anything, {1, 1}, Saved::Expert},
    {Field::horizontalFlip, "horizontalFlip", Kind::Boolean, anything, {0, 0}, Saved::User},
    {Field::verticalFlip, "verticalFlip", Kind::Boolean, anything, {0, 0}, Saved::User},
    {Field::vignettingCorrection, "vignettingCorrection", Kind::Boolean, anything, {1, 1}, Saved::User},
    {Field::columnCorrection, "columnCorrection", Kind::Boolean, anything, {1, 1}, Saved::User},
    {Field::sdiOutput, "sdiOutput", Kind::Boolean, anything, {1, 1}, Saved::User},
    {Field::parallelOutput, "parallelOutput", Kind::Boolean, anything, {0, 0}, Saved::User},
    {Field::mipiOutput, "mipiOutput", Kind::Boolean, anything, {1, 1}, Saved::User},
    {Field::polarity, "polarity", Kind::Boolean, anything, {0, 0}, Saved::User},
    {Field::frameRate, "frameRate", Kind::Unsigned8, oneOf(frameRates), {60, 60}, Saved::User},
    {Field::videoOutput, "videoOutput", Kind::Unsigned8, between(0, 8), {8, 8}, Saved::User},
    {Field::mavlinkBaudRate,
     "mavlink.baudRate",
     Kind::Signed32,
     oneOf(mavlinkBaudRates),
     {115200, 115200},
     Saved::User},
    {Field::mavlinkPermanent, "mavlink.permanent", Kind::Boolean, anything, {0, 0}, Saved::User},
    {Field::edgeType, "edgeCorrection.type", Kind::Unsigned8, between(0, 2), {0, 0}, Saved::User},
    {Field::edgeGain, "edgeCorrection.gain", Kind::Unsigned32, between(0, 1024), {64, 64}, Saved::User},
    {Field::edgeFirstThreshold,
     "edgeCorrection.firstThreshold",
     Kind::Unsigned32,
     between(0, 255),
     {20, 20},
     Saved::User},
    {Field::edgeSecondThreshold,
     "edgeCorrection.secondThreshold",
     Kind::Unsigned32,
     between(40, 295),
     {60, 60},
     Saved::User},
    {Field::zoomFactor, "zoom.factor", Kind::Float, between(1, 8), {1, 1}, Saved::User},
    {Field::zoomXCenter, "zoom.xCenter", Kind::Unsigned32, between(0, 1280), {320, 320}, Saved::User},
    {Field::zoomYCenter, "zoom.yCenter", Kind::Unsigned32, between(0, 1024), {240, 240}, Saved::User},
    {Field::zoomMethod, "zoom.method", Kind::Unsigned8, between(0, 1), {0, 0}, Saved::User},
    {Field::zoomXResolution, "zoomResolution.x", Kind::Unsigned32, anything, {720, 640}},
    {Field::zoomYResolution, "zoomResolution.y", Kind::Unsigned32, anything, {576, 480}},
    {Field::contrastType, "contrastType", Kind::Unsigned8, between(0, 1), {0, 0}, Saved::User},
    {Field::colorLut, "colorLut", Kind::Unsigned8, between(0, 7), {0, 0}, Saved::User},
    {Field::ahcBlack, "ahcGainLimitation.black", Kind::Unsigned8, between(0, 100), {20, 20}, Saved::User},
    {Field::ahcWhite, "ahcGainLimitation.white", Kind::Unsigned8, between(0, 100), {80, 80}, Saved::User},
    {Field::lutTemporalFilter, "lutTemporalFilter", Kind::Unsigned8, between(0, 8), {2, 2}, Saved::User},
    {Field::gamma, "gamma", Kind::Unsigned32, between(32768, 163840), {65536, 65536}, Saved::User},
    {Field::clhe, "clhe", Kind::Unsigned32, between(0, 30000), {2000, 2000}, Saved::User},
    {Field::videoMode, "videoMode", Kind::Unsigned8, between(0, 2), {2, 0}, Saved::User},
    {Field::startingMode, "startingMode", Kind::Unsigned8, between(0, 3), {2, 0}, Saved::User},
    {Field::visibleAgcTarget, "visibleAgc.target", Kind::Unsigned8, between(0, 100), {50, 50}, Saved::Expert},
    {Field::visibleAgcThreshold,
     "visibleAgc.threshold",
     Kind::Unsigned8,
     between(0, 100),
     {10, 10},
     Saved::Expert},
    {Field::visibleAgcFilterCoefficient,
     "visibleAgc.filterCoefficient",
     Kind::Unsigned8,
     between(0, 100),
     {20, 20},
     Saved::Expert},
    {Field::visibleClheThreshold,
     "visibleClhe.threshold",
     Kind::Unsigned32,
     between(0, 65535),
     {2000, 2000},
     Saved::Expert},
    {Field::visibleClheFilterCoefficient,
     "visibleClhe.filterCoefficient",
     Kind::Unsigned8,
     between(0, 100),
     {30, 30},
     Saved::Expert},
    {Field::roi0X1, "roi0.x1", Kind::Unsigned32, between(0, 639), {5, 5}, Saved::User},
    {Field::roi0X2, "roi0.x2", Kind::Unsigned32, between(0, 639), {635, 635}, Saved::User},
    {Field::roi0Y1, "roi0.y1", Kind::Unsigned32, between(0, 479), {5, 5}, Saved::User},
    {Field::roi0Y2, "roi0.y2", Kind::Unsigned32, between(0, 479), {475, 475}, Saved::User},
    {Field::roi1X1, "roi1.x1", Kind::Unsigned32, between(0, 639), {0, 0}, Saved::User},
    {Field::roi1X2, "roi1.x2", Kind::Unsigned32, between(0, 639), {0, 0}, Saved::User},
    {Field::roi1Y1, "roi1.y1", Kind::Unsigned32, between(0, 479), {0, 0}, Saved::User},
    {Field::roi1Y2, "roi1.y2", Kind::Unsigned32, between(0, 479), {0, 0}, Saved::User},
    {Field::roi2X1, "roi2.x1", Kind::Unsigned32, between(0, 639), {0, 0}, Saved::User},
    {Field::roi2X2, "roi2.x2", Kind::Unsigned32, between(0, 639), {0, 0}, Saved::User},
    {Field::roi2Y1, "roi2.y1", Kind::Unsigned32, between(0, 479), {0, 0}, Saved::User},
    {Field::roi2Y2, "roi2.y2", Kind::Unsigned32, between(0, 479), {0, 0}, Saved::User},
    {Field::roi3X1, "roi3.x1", Kind::Unsigned32, between(0, 639), {0, 0}, Saved::User},
    {Field::roi3X2, "roi3.x2", Kind::Unsigned32, between(0, 639), {0, 0}, Saved::User},
    {Field::roi3Y1, "roi3.y1", Kind::Unsigned32, between(0, 479), {0, 0}, Saved::User},
    {Field::roi3Y2, "roi3.y2", Kind::Unsigned32, between(0, 479), {0, 0}, Saved::User},
    {Field::roi1IncEnabled, "roi1IncEnabled", Kind::Boolean, anything, {0, 0}, Saved::User},
    {Field::roi0ExcEnabled, "roi0ExcEnabled", Kind::Boolean, anything, {0, 0}, Saved::User},
    {Field::roi1ExcEnabled, "roi1ExcEnabled", Kind::Boolean, anything, {0, 0}, Saved::User},
    {Field::warp0A11, "warp0.a11", Kind::Double, between(-32768, 65536), {1, 1}, Saved::Expert},
    {Field::warp0A21, "warp0.a21", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp0A12, "warp0.a12", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp0A22, "warp0.a22", Kind::Double, between(-32768, 65536), {1, 1}, Saved::Expert},
    {Field::warp0A13, "warp0.a13", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp0A23, "warp0.a23", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp1A11, "warp1.a11", Kind::Double, between(-32768, 65536), {1, 1}, Saved::Expert},
    {Field::warp1A21, "warp1.a21", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp1A12, "warp1.a12", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp1A22, "warp1.a22", Kind::Double, between(-32768, 65536), {1, 1}, Saved::Expert},
    {Field::warp1A13, "warp1.a13", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp1A23, "warp1.a23", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp2A11, "warp2.a11", Kind::Double, between(-32768, 65536), {1, 1}, Saved::Expert},
    {Field::warp2A21, "warp2.a21", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp2A12, "warp2.a12", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp2A22, "warp2.a22", Kind::Double, between(-32768, 65536), {1, 1}, Saved::Expert},
    {Field::warp2A13, "warp2.a13", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::warp2A23, "warp2.a23", Kind::Double, between(-32768, 65536), {0, 0}, Saved::Expert},
    {Field::userSaves, "userSaves", Kind::Unsigned32, anything, {0, 0}},
    {Field::expertSaves, "expertSaves", Kind::Unsigned32, anything, {0, 0}},
    {Field::nucRequests, "nucRequests", Kind::Unsigned32, anything, {0, 0}},
}};

static_assert(inOrder(unitFields));

constexpr const UnitField &rowOf(Field field)
{
    return unitFields[static_cast<std::size_t>(field)];
}

/// How many places one field stands after another.
constexpr std::size_t operator-(Field later, Field earlier)
{
    return static_cast<std::size_t>(later) - static_cast<std::size_t>(earlier);
}

/// The field that stands `places` further in the table.
constexpr Field operator+(Field field, std::size_t places)
{
    return static_cast<Field>(static_cast<std::size_t>(field) + places);
}

} // namespace veltrix_simulator
