// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Throws bytes at the reader of profiles, and writes what it takes for one.
#include "devicesettings.h"
#include "failure.h"
#include "profile.h"
#include "veltrix_sdk/configuration.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace
{

const std::vector<ctl::Setting> &table()
{
    static const std::vector<ctl::Setting> settings = [] {
        constexpr std::int32_t greatest{4095};
        veltrix_sdk::ConfigurationWords words{};
        words.gskMaximum = greatest;
        words.gfidMaximum = greatest;
        words.gmsMaximum = greatest;
        words.tintMaximum = greatest;
        return device_settings::deviceSettings(words);
    }();
    return settings;
}

std::vector<ctl::ProfileLine> linesOf(const ctl::Profile &profile)
{
    std::vector<ctl::ProfileLine> lines;
    for (const std::vector<ctl::Change> &changes : {profile.settings, profile.derived}) {
        for (const ctl::Change &change : changes) {
            lines.push_back({change.place, change.number});
        }
    }
    return lines;
}

} // namespace

/// A refusal is one line that names the file; what is taken for a profile comes back the same from what it is
/// written as.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(data, data + size);
    try {
        const std::string written{
            ctl::profileText("fuzzed", linesOf(ctl::parseProfile("fuzzed.toml", text, table())))};
        const ctl::Profile again{ctl::parseProfile("fuzzed.toml", written, table())};
        if (ctl::profileText("fuzzed", linesOf(again)) != written) {
            std::abort();
        }
    } catch (const ctl::Failure &failure) {
        const std::string_view message{failure.what()};
        if (message.substr(0, 12) != "fuzzed.toml:" || message.find('\n') != std::string_view::npos) {
            std::abort();
        }
    }
    return 0;
}
