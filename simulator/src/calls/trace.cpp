// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file of all calls that VELTRIX_SIMULATOR_TRACE names.
#include "calls/trace.h"

#include "calls/traceline.h"
#include "output/clock.h"
#include "output/process.h"

#include <chrono>
#include <filesystem>

namespace veltrix_simulator
{

void Trace::start(std::string_view scenario, std::uint64_t seed)
{
    const std::string name{environmentVariable("VELTRIX_SIMULATOR_TRACE")};
    if (name != fileName) {
        open(name);
    }
    if (!isOn()) {
        return;
    }
    std::string header{traceBeginning};
    header.append(R"("scenario":)");
    appendJsonText(header, scenario);
    header.append(R"(,"seed":)").append(std::to_string(seed)).append(R"(,"time":")");
    header.append(formatTime(std::chrono::system_clock::now(), Precision::Microseconds)).append("\"}\n");
    write(header);
}

void Trace::write(std::string_view line)
{
    if (!file.write(line)) {
        refuse();
    }
}

void Trace::open(const std::string &name)
{
    fileName = name;
    file.close();
    if (name.empty()) {
        return;
    }
    switch (file.open(std::filesystem::u8path(name), TraceFile::Earlier::Replaced)) {
    case TraceFile::Opening::Done:
        return;
    case TraceFile::Opening::OtherFile:
        writeToStandardError(
            "veltrix.sdk: \"" + name +
            "\" is no trace, and is left as it is; set VELTRIX_SIMULATOR_TRACE to another file, or delete "
            "this one. The program goes on without a trace.\n");
        return;
    case TraceFile::Opening::KeptTooOften:
    case TraceFile::Opening::Unwritable:
        refuse();
    }
}

void Trace::refuse()
{
    writeToStandardError(
        "veltrix.sdk: cannot write the trace file \"" + fileName +
        "\"; set VELTRIX_SIMULATOR_TRACE to a file that can be written. The program goes on without "
        "a trace.\n");
}

} // namespace veltrix_simulator
