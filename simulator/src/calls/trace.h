// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file of all calls that VELTRIX_SIMULATOR_TRACE names.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// Writes each line out at once, so that the file is whole up to the last call when the program crashes. A
/// file that cannot be written is named once on standard error; then the trace is off.
class Trace
{
public:
    bool isOn() const { return on; }

    /// Power-on: writes a header. The first one, and the first after the variable has changed, begins the
    /// file anew; the variable is looked at only here.
    void start(std::string_view scenario, std::uint64_t seed);

    /// Appends a line, which ends with its line feed.
    void write(std::string_view line);

private:
    void open(const std::string &name);
    void refuse();

    std::string fileName;
    std::ofstream file;
    bool on{false};
};

} // namespace veltrix_simulator
