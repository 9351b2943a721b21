// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Where log records go: standard error or a file, as VELTRIX_SIMULATOR_LOG says.
#pragma once

#include "veltrix_sdk/logger.h"

#include <fstream>
#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// Writes each record at once, as a line with the time (UTC) and the severity. VELTRIX_SIMULATOR_LOG names
/// the file to append to; "-" is standard error; without it nothing is written.
class LogOutput
{
public:
    void write(veltrix_sdk::severity_level severity, std::string_view text);

private:
    void open(const std::string &name);

    std::string fileName;
    std::ofstream file;
};

} // namespace veltrix_simulator
