// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The fields of the contract's records by name, one list for each record.
#pragma once

#include "veltrix_sdk/records.h"

#include <cstddef>
#include <tuple>
#include <type_traits>

namespace veltrix_simulator
{

/// One member of a record under the name that the journal shows.
template <typename Record, typename T>
struct RecordField
{
    using Type = T;
    const char *name;
    T Record::*member;
};

template <typename Record, typename T>
RecordField(const char *, T Record::*) -> RecordField<Record, T>;

/// The fields that a device fills in, in the order of the record.
template <typename Record>
inline constexpr std::nullptr_t fieldsOf{};

/// Whether the contract exchanges this type as a record.
template <typename T>
inline constexpr bool isRecord =
    !std::is_same_v<decltype(fieldsOf<std::remove_const_t<T>>), const std::nullptr_t>;

template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::FirmwareVersions>{
    RecordField{"processor", &veltrix_sdk::FirmwareVersions::processor},
    RecordField{"fpga", &veltrix_sdk::FirmwareVersions::fpga},
};

template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::Temperatures>{
    RecordField{"sensorMillikelvin", &veltrix_sdk::Temperatures::sensorMillikelvin},
    RecordField{"fpgaMillikelvin", &veltrix_sdk::Temperatures::fpgaMillikelvin},
};

template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::OperatingInfo>{
    RecordField{"operatingMinutes", &veltrix_sdk::OperatingInfo::operatingMinutes},
    RecordField{"startupCount", &veltrix_sdk::OperatingInfo::startupCount},
};

template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::EdgeCorrection>{
    RecordField{"type", &veltrix_sdk::EdgeCorrection::type},
    RecordField{"gain", &veltrix_sdk::EdgeCorrection::gain},
    RecordField{"firstThreshold", &veltrix_sdk::EdgeCorrection::firstThreshold},
    RecordField{"secondThreshold", &veltrix_sdk::EdgeCorrection::secondThreshold},
};

template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::AhcGainLimitation>{
    RecordField{"black", &veltrix_sdk::AhcGainLimitation::black},
    RecordField{"white", &veltrix_sdk::AhcGainLimitation::white},
};

template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::ZoomConfig>{
    RecordField{"factor", &veltrix_sdk::ZoomConfig::factor},
    RecordField{"xCenter", &veltrix_sdk::ZoomConfig::xCenter},
    RecordField{"yCenter", &veltrix_sdk::ZoomConfig::yCenter},
    RecordField{"method", &veltrix_sdk::ZoomConfig::method},
};

template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::ZoomResolution>{
    RecordField{"x", &veltrix_sdk::ZoomResolution::x},
    RecordField{"y", &veltrix_sdk::ZoomResolution::y},
};

template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::VisibleAgc>{
    RecordField{"target", &veltrix_sdk::VisibleAgc::target},
    RecordField{"threshold", &veltrix_sdk::VisibleAgc::threshold},
    RecordField{"filterCoefficient", &veltrix_sdk::VisibleAgc::filterCoefficient},
};

template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::VisibleClhe>{
    RecordField{"threshold", &veltrix_sdk::VisibleClhe::threshold},
    RecordField{"filterCoefficient", &veltrix_sdk::VisibleClhe::filterCoefficient},
};

// The stream is not among them: the caller fills it in.
template <>
inline constexpr std::tuple fieldsOf<veltrix_sdk::Warp>{
    RecordField{"a11", &veltrix_sdk::Warp::a11}, RecordField{"a21", &veltrix_sdk::Warp::a21},
    RecordField{"a12", &veltrix_sdk::Warp::a12}, RecordField{"a22", &veltrix_sdk::Warp::a22},
    RecordField{"a13", &veltrix_sdk::Warp::a13}, RecordField{"a23", &veltrix_sdk::Warp::a23},
};

/// Calls function(name, value) for every field of a record.
template <typename Record, typename Function>
void forEachField(Record &record, const Function &function)
{
    std::apply([&](const auto &...field) { (function(field.name, record.*field.member), ...); },
               fieldsOf<std::remove_const_t<Record>>);
}

} // namespace veltrix_simulator
