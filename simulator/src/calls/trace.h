// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file of all calls that VELTRIX_SIMULATOR_TRACE names.
#pragma once

#include "calls/tracefile.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// A file that cannot be written is named once on standard error; then the trace is off.
class Trace
{
public:
    bool isOn() const { return file.isOpen(); }

    /// Power-on: writes a header. The first one, and the first after the variable has changed, begins the
    /// file anew; the variable is looked at only here.
    void start(std::string_view scenario, std::uint64_t seed);

    /// Appends a line, which ends with its line feed.
    void write(std::string_view line);

private:
    void open(const std::string &name);
    void refuse();

    std::string fileName;
    TraceFile file;
};

} // namespace veltrix_simulator
