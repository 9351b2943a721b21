// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One call of the contract as a line of the trace.
#include "calls/calljson.h"

#include "output/clock.h"

#include <array>
#include <cstddef>
#include <nlohmann/json.hpp>

namespace veltrix_simulator
{
namespace
{

// In the order of Interface.
constexpr std::array<const char *, 5> interfaceNames{"root", "configuration", "manager", "device", "log"};

} // namespace

void appendJsonText(std::string &line, std::string_view text)
{
    using nlohmann::json;
    line.append(json(text).dump(-1, ' ', false, json::error_handler_t::replace));
}

void CallJson::begin(const CallTime &begun, const CallOrigin &origin, bool reachable)
{
    using namespace std::chrono;
    const auto took = duration_cast<microseconds>(steady_clock::now() - begun.steady);
    line.assign(R"({"time":")").append(formatTime(begun.timeOfDay, Precision::Microseconds));
    line.append(R"(","microseconds":)");
    appendNumber(line, took.count());
    line.append(R"(,"interface":")").append(interfaceNames[static_cast<std::size_t>(origin.interface)]);
    line.append(R"(","target":)");
    appendNumber(line, origin.target);
    line.append(R"(,"operation":")").append(origin.operation);
    line.append(reachable ? R"(","arguments":[)" : R"(","notOpen":true,"arguments":[)");
}

} // namespace veltrix_simulator
