// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file of all calls that VELTRIX_SIMULATOR_TRACE names.
#include "trace.h"

#include "calljson.h"
#include "clock.h"

#include <chrono>
#include <cstdlib>
#include <iostream>

namespace veltrix_simulator
{

void Trace::start(std::string_view scenario, std::uint64_t seed)
{
    const char *const variable = std::getenv("VELTRIX_SIMULATOR_TRACE");
    const std::string name{variable != nullptr ? variable : ""};
    if (name != fileName) {
        open(name);
    }
    if (!isOn()) {
        return;
    }
    std::string header{R"({"trace":1,"scenario":)"};
    appendJsonText(header, scenario);
    header.append(R"(,"seed":)").append(std::to_string(seed)).append(R"(,"time":")");
    header.append(formatTime(std::chrono::system_clock::now(), Precision::Microseconds)).append("\"}\n");
    write(header);
}

void Trace::write(std::string_view line)
{
    file << line << std::flush;
    if (!file) {
        refuse();
    }
}

void Trace::open(const std::string &name)
{
    fileName = name;
    file.close();
    file.clear();
    if (name.empty()) {
        return;
    }
    file.open(name, std::ios::binary | std::ios::trunc);
    if (!file) {
        refuse();
    }
}

void Trace::refuse()
{
    file.close();
    std::cerr << "veltrix.sdk: cannot write the trace file \"" << fileName
              << "\"; set VELTRIX_SIMULATOR_TRACE to a file that can be written. The program goes on without "
                 "a trace.\n"
              << std::flush;
}

} // namespace veltrix_simulator
