// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Where log records go: standard error or a file, as VELTRIX_SIMULATOR_LOG says.
#include "output/logoutput.h"

#include "output/clock.h"
#include "output/process.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <ios>

namespace veltrix_simulator
{
namespace
{

std::string nameOf(veltrix_sdk::severity_level severity)
{
    constexpr std::array<const char *, 6> names{"trace", "debug", "info", "warning", "error", "fatal"};
    const auto level = static_cast<std::size_t>(severity);
    if (level < names.size()) {
        return names[level];
    }
    return "severity " + std::to_string(static_cast<int>(severity));
}

/// The record as a line; the lines of its text after the first are indented, so that every line that
/// begins with a time begins a record.
std::string format(veltrix_sdk::severity_level severity, std::string_view text)
{
    const auto now = std::chrono::system_clock::now();
    std::string line = formatTime(now, Precision::Milliseconds) + ' ' + nameOf(severity) + ": ";
    for (const char character : text) {
        line.append(line.back() == '\n' ? 4 : 0, ' ').push_back(character);
    }
    return line + '\n';
}

} // namespace

void LogOutput::write(veltrix_sdk::severity_level severity, std::string_view text)
{
    const std::string name{environmentVariable("VELTRIX_SIMULATOR_LOG")};
    if (name.empty()) {
        return;
    }
    if (name == "-") {
        writeToStandardError(format(severity, text));
        return;
    }
    if (fileName != name) {
        open(name);
    }
    file << format(severity, text) << std::flush;
}

void LogOutput::open(const std::string &name)
{
    fileName = name;
    file.close();
    file.clear();
    file.open(std::filesystem::u8path(name), std::ios::app | std::ios::binary);
    if (!file) {
        writeToStandardError(
            "veltrix.sdk: cannot write the log file \"" + name +
            "\"; set VELTRIX_SIMULATOR_LOG to a file that can be written, or to - for standard error.\n");
    }
}

} // namespace veltrix_simulator
