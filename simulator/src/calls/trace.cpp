// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file of all calls that VELTRIX_SIMULATOR_TRACE names.
#include "calls/trace.h"

#include "calls/traceline.h"
#include "output/clock.h"
#include "output/process.h"

#include <chrono>
#include <filesystem>
#include <ios>
#include <system_error>

namespace veltrix_simulator
{
namespace
{

constexpr std::string_view beginning{R"({"trace":1,)"};

/// Whether writing there destroys nothing but an earlier trace.
bool isTraceOrNothing(const std::filesystem::path &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return true;
    }
    std::ifstream existing{path, std::ios::binary};
    std::string bytes(beginning.size(), '\0');
    existing.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return existing.gcount() == 0 || bytes == beginning;
}

} // namespace

void Trace::start(std::string_view scenario, std::uint64_t seed)
{
    const std::string name{environmentVariable("VELTRIX_SIMULATOR_TRACE")};
    if (name != fileName) {
        open(name);
    }
    if (!isOn()) {
        return;
    }
    std::string header{beginning};
    header.append(R"("scenario":)");
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
    on = false;
    file.close();
    file.clear();
    if (name.empty()) {
        return;
    }
    const std::filesystem::path path{std::filesystem::u8path(name)};
    // Whoever mixes up two variables must not lose a scenario or a memory.
    if (!isTraceOrNothing(path)) {
        writeToStandardError(
            "veltrix.sdk: \"" + name +
            "\" is no trace, and is left as it is; set VELTRIX_SIMULATOR_TRACE to another file, or delete "
            "this one. The program goes on without a trace.\n");
        return;
    }
    file.open(path, std::ios::binary | std::ios::trunc);
    on = file.is_open();
    if (!on) {
        refuse();
    }
}

void Trace::refuse()
{
    on = false;
    file.close();
    writeToStandardError(
        "veltrix.sdk: cannot write the trace file \"" + fileName +
        "\"; set VELTRIX_SIMULATOR_TRACE to a file that can be written. The program goes on without "
        "a trace.\n");
}

} // namespace veltrix_simulator
