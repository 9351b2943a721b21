// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The ways in which a call of the SDK can go wrong.
#include "faults.h"

#include <QMap>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <utility>
#include <variant>

using veltrix_simulator::Call;
using veltrix_simulator::Fault;
using veltrix_simulator::Interface;
using veltrix_simulator::Value;

namespace
{

constexpr std::int64_t largest{4294967295};

/// An answer that the contract does not foresee: a value other than 1 where only 1 means success, the index
/// of an item that does not exist, a number that no control can show.
struct OddAnswer
{
    const char *operation;
    std::vector<Value> answer;
};

const std::vector<OddAnswer> &oddAnswers()
{
    static const std::vector<OddAnswer> rows{
        {"connect", {2, 21}},
        {"connect", {255, 21}},
        {"connect", {1, 20}},
        {"connect", {1, 22}},
        {"getAhcGainLimitation", {2, 30, 40}},
        {"getAhcGainLimitation", {255, 30, 40}},
        {"getAhcGainLimitation", {1, 255, 101}},
        {"getCommunicationType", {"UART2"}},
        {"getCommunicationType", {"uart"}},
        {"getFirmwareVersions", {true, 0, 256}},
        {"getFirmwareVersions", {true, 65535, 65535}},
        {"getFirmwareVersions", {true, 0, 0}},
        {"getSerialNumber", {largest}},
        {"getSensorSerialNumber", {largest}},
        {"getOperatingInfo", {true, largest, largest}},
        {"getTemperatures", {false, 310150.0, 273000.0}},
        {"getTemperatures", {true, 1e30, -1e30}},
        {"getVideoOutput", {9}},
        {"getVideoOutput", {255}},
        {"getFrameRate", {15}},
        {"getFrameRate", {255}},
        {"getGamma", {largest}},
        {"getClhe", {30000}},
        {"getClhe", {largest}},
        {"getColorLut", {8}},
        {"getColorLut", {255}},
        {"getContrastType", {2}},
        {"getContrastType", {255}},
        {"getLutTemporalFilter", {255}},
        {"getEdgeCorrection", {3, largest, largest, largest}},
        {"getEdgeCorrection", {255, 1025, 256, 10}},
        {"getRoiX1", {640}},
        {"getRoiX1", {largest}},
        {"getRoiX2", {largest}},
        {"getRoiY1", {largest}},
        {"getRoiY2", {largest}},
        {"getGsk", {largest}},
        {"getGfid", {largest}},
        {"getGms", {largest}},
        {"getTint", {largest}},
        {"getVideoMode", {true, 3}},
        {"getVideoMode", {true, 255}},
        {"getVideoMode", {false, 1}},
        {"getStartingMode", {true, 4}},
        {"getStartingMode", {true, 99}},
        {"getStartingMode", {false, 1}},
        {"getZoomConfig", {true, 1e30, largest, largest, 2}},
        {"getZoomConfig", {true, -1.5, 1281, 1025, 255}},
        {"getZoomConfig", {false, 1.5, 10, 10, 1}},
        {"getZoomResolution", {false, largest, largest}},
        {"getVisibleAgc", {true, 255, 255, 255}},
        {"getVisibleAgc", {false, 1, 2, 3}},
        {"getVisibleClhe", {true, largest, 255}},
        {"getVisibleClhe", {false, 1, 2}},
        {"getWarp", {true, 1e30, -1e30, 65537.0, -32769.0, 0.1234567, 2.9}},
        {"getWarp", {false, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0}},
        {"getBitStatus", {largest}},
        {"getDefaultFrameRate", {15}},
        {"getDefaultFrameRate", {255}},
        {"getDefaultGamma", {1e30}},
        {"getDefaultGamma", {-1e30}},
        {"getDefaultClhe", {1e30}},
        {"getDefaultSharpeningGain", {1e30}},
        {"getDefaultGsk", {std::int64_t{-2147483647} - 1}},
        {"getDefaultGfid", {2147483647}},
        {"getDefaultTint", {2147483647}},
        {"getDefaultGms", {2147483647}},
        {"getDefaultContrastType", {255}},
        {"getDefaultColorLut", {255}},
        {"getDefaultEdgeCorrectionType", {255}},
        {"getDefaultVideoOutput", {255}},
        {"getDefaultSharpeningGainValue", {largest}},
        {"getDefaultSharpeningThreshold", {largest}},
        {"getDefaultTempoFilter", {255}},
        {"getDefaultAhcBlackGainLimit", {255}},
        {"getDefaultAhcWhiteGainLimit", {255}},
        {"getDefaultRoi0IncX1", {1e30}},
        {"getDefaultRoi0ExcY1", {-1e30}},
        {"getDefaultRoi1IncX2", {1e30}},
        {"getDefaultRoi1ExcY2", {475.9}},
    };
    return rows;
}

QString textOf(const Value &value)
{
    if (const auto *const truth = std::get_if<bool>(&value)) {
        return *truth ? QStringLiteral("true") : QStringLiteral("false");
    }
    if (const auto *const text = std::get_if<std::string>(&value)) {
        return QString::fromStdString(*text);
    }
    const auto *const integer = std::get_if<std::int64_t>(&value);
    return integer != nullptr ? QString::number(*integer) : QString::number(std::get<double>(value));
}

QString textOf(const std::vector<Value> &answer)
{
    QStringList values;
    for (const Value &value : answer) {
        values.append(textOf(value));
    }
    return QStringLiteral("answers ") + values.join(QStringLiteral(", "));
}

} // namespace

bool canFail(const Call &call)
{
    constexpr const char *certain[]{
        "get_instance", "initialize",           "getConfiguration",
        "closeDevice",  "releaseDeviceManager", "setBaudRate",
    };
    return call.interface != Interface::Log &&
           std::find(std::begin(certain), std::end(certain), call.operation) == std::end(certain);
}

std::vector<Strike> strikesOn(const std::vector<Call> &journal)
{
    std::vector<Strike> strikes;
    QMap<std::string, std::size_t> seen;
    std::size_t deviceCalls{0};
    int number{0};
    for (std::size_t step{0}; step < journal.size(); ++step) {
        const Call &call{journal[step]};
        if (!canFail(call)) {
            continue;
        }
        const std::size_t occurrence{++seen[call.operation]};
        const auto strike = [&](const QString &how, Fault fault) {
            const QString name{QString::fromStdString(call.operation)};
            strikes.push_back(
                {QStringLiteral("call %1, %2: %3").arg(number).arg(name, how), step, std::move(fault)});
        };
        ++number;
        strike(QStringLiteral("refused"), {call.operation, occurrence, 1});
        if (call.interface == Interface::Device) {
            strike(QStringLiteral("cable out"), {{}, ++deviceCalls});
        }
        for (const OddAnswer &odd : oddAnswers()) {
            if (call.operation == odd.operation) {
                strike(textOf(odd.answer), {call.operation, occurrence, 1, odd.answer});
            }
        }
    }
    return strikes;
}
