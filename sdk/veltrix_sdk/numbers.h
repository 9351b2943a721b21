// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers that the contract fixes: identity, targets, rates, and the range of every setting.
#pragma once

#include <array>
#include <cstdint>

namespace veltrix_sdk
{

/// The whole numbers from minimum to maximum, both included.
struct Range
{
    std::int32_t minimum;
    std::int32_t maximum;
};

/// What a KR camera answers to connect; any other number is no camera of ours.
inline constexpr std::uint8_t krIdentity{21};

/// The units, as setTarget takes them.
inline constexpr std::int32_t targetBlendUnit{0};
inline constexpr std::int32_t targetCamera{1};

/// The only communication type that the program can use.
inline constexpr const char *uartCommunication{"UART"};

/// Bits per second of the link to the device.
inline constexpr std::array<std::int32_t, 2> linkBaudRates{9600, 115200};
/// Bits per second of the camera's own MAVLink port.
inline constexpr std::array<std::int32_t, 5> mavlinkBaudRates{9600, 115200, 230400, 460800, 921600};
/// Hertz.
inline constexpr std::array<std::uint8_t, 5> frameRatesHz{9, 25, 30, 50, 60};

/// 1 in 16.16 fixed point.
inline constexpr std::int32_t fixedPointOne{65536};

/// The sensor, in pixels.
inline constexpr std::uint32_t sensorColumns{640};
inline constexpr std::uint32_t sensorRows{480};

/// The regions of interest.
inline constexpr std::uint32_t regionCount{4};

/// The regions as getRoiX1, getRoiX2, getRoiY1 and getRoiY2 number them.
namespace getter_region
{
inline constexpr std::uint32_t roi0Inclusive{0};
inline constexpr std::uint32_t roi0Exclusive{1};
inline constexpr std::uint32_t roi1Inclusive{2};
inline constexpr std::uint32_t roi1Exclusive{3};
} // namespace getter_region

/// The regions as setRoiX1, setRoiX2, setRoiY1 and setRoiY2 number them: 1 and 2 are exchanged.
namespace setter_region
{
inline constexpr std::int32_t roi0Inclusive{0};
inline constexpr std::int32_t roi1Inclusive{1};
inline constexpr std::int32_t roi0Exclusive{2};
inline constexpr std::int32_t roi1Exclusive{3};
} // namespace setter_region

/// The video streams that have a warp matrix.
inline constexpr std::int32_t warpStreamCount{3};

/// The video modes: which picture is shown.
inline constexpr std::uint8_t videoModeInfrared{0};
inline constexpr std::uint8_t videoModeVisible{1};
inline constexpr std::uint8_t videoModeFusion{2};

/// Contrast by CLHE over the regions of interest; any other type is CLAHE.
inline constexpr std::uint8_t contrastTypeClhe{0};

// Indices of lists; the names above, device_control.h and records.h say what each stands for.
inline constexpr Range videoOutputRange{0, 8};
inline constexpr Range edgeTypeRange{0, 2};
inline constexpr Range zoomMethodRange{0, 1};
inline constexpr Range contrastTypeRange{0, 1};
inline constexpr Range colorLutRange{0, 7};
inline constexpr Range videoModeRange{0, 2};
inline constexpr Range startingModeRange{0, 3};

/// 16.16 fixed point: 0.5 to 2.5.
inline constexpr Range gammaRange{fixedPointOne / 2, fixedPointOne * 5 / 2};
inline constexpr Range clheRange{0, 30000};
/// The default of CLHE reaches less far than CLHE itself.
inline constexpr Range clheDefaultRange{0, 10000};
inline constexpr Range lutTemporalFilterRange{0, 8};
/// Percent.
inline constexpr Range ahcGainLimitRange{0, 100};

inline constexpr Range edgeGainRange{0, 1024};
/// Steps of the slider for 1 of the gain; getDefaultSharpeningGain counts in them.
inline constexpr std::int32_t sharpeningGainSteps{10};
inline constexpr Range edgeThresholdRange{0, 255};
/// The default of the threshold reaches less far than the threshold itself: as far as its slider, which pulls
/// the spin box back.
inline constexpr Range edgeThresholdDefaultRange{0, 200};
/// The second threshold is what the camera makes of the one that is set: so much more.
inline constexpr std::int32_t edgeThresholdDistance{40};

inline constexpr Range zoomFactorRange{1, 8};
/// Pixels of the output, which is larger than the sensor.
inline constexpr Range zoomXCenterRange{0, 1280};
inline constexpr Range zoomYCenterRange{0, 1024};

/// Pixels.
inline constexpr Range regionColumnRange{0, sensorColumns - 1};
inline constexpr Range regionRowRange{0, sensorRows - 1};
/// The defaults of the regions keep away from the sensor's edges, as their spin boxes do.
inline constexpr Range regionDefaultColumnRange{5, 635};
inline constexpr Range regionDefaultRowRange{5, 475};

/// Percent.
inline constexpr Range visibleAgcRange{0, 100};
inline constexpr Range visibleClheThresholdRange{0, 65535};
/// Percent.
inline constexpr Range visibleClheFilterRange{0, 100};

/// A coefficient of a warp matrix.
inline constexpr Range warpCoefficientRange{-32768, 65536};

/// The numbers that every transfer of the table of bad pixels takes, and the code of each direction.
inline constexpr std::uint32_t bprFirstNumber{4096};
inline constexpr std::uint32_t bprSecondNumber{16384};
inline constexpr std::uint8_t bprReadCode{9};
inline constexpr std::uint8_t bprWriteCode{8};

/// The file of a table of bad pixels has the unit's serial number between these in its name.
inline constexpr const char *bprFileNameBegin{"bpr_SN"};
inline constexpr const char *bprFileNameEnd{".bin"};

/// What saveBlendUnitParameters saves.
inline constexpr std::uint8_t saveUserParameters{0};
inline constexpr std::uint8_t saveExpertParameters{1};

} // namespace veltrix_sdk
