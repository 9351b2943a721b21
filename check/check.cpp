// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The check of an SDK library: runs every row of the tables on the device behind a port.
#include "check.h"

#include "configurationvalues.h"
#include "devicesettings.h"
#include "escaped.h"
#include "openeddevice.h"
#include "readings.h"
#include "report.h"
#include "rounds.h"
#include "sdkentry.h"
#include "values.h"
#include "veltrix_sdk/numbers.h"
#include "writing.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

using namespace device_settings;
using namespace veltrix_sdk;

namespace sdk_check
{

namespace
{

std::string inQuotes(const char *text)
{
    return '"' + escaped(text) + '"';
}

/// One run of the check.
class Run
{
public:
    Run(IVeltrixSdk &itsSdk, const Options &itsOptions, Report &itsReport, const Interrupted &itsInterrupted)
        : sdk{itsSdk}, options{itsOptions}, report{itsReport}, interrupted{itsInterrupted}
    {}

    void checkAll()
    {
        writeLogRecord();
        const bool up{report.timed("initialize", noUnit, [&] { return sdk.initialize(); })};
        say(true, "initialize", noUnit, up ? "true" : std::string{"false"} + notExamined);
        ISdkConfiguration *const configuration{
            report.timed("getConfiguration", noUnit, [&] { return sdk.getConfiguration(); })};
        say(configuration != nullptr, "getConfiguration", noUnit,
            configuration != nullptr ? "a configuration" : "answers null");
        if (configuration == nullptr) {
            return;
        }
        checkConfiguration(*configuration);
        if (checkLink(*configuration) && !stopped()) {
            checkDevice(configuration->words);
        }
    }

private:
    /// Inserts a text of each kind, as the program's log does. With a library that lacks the logger the
    /// process ends here, before anything is opened.
    void writeLogRecord()
    {
        recording::LogRecord(severity_info).stream()
            << std::string{"Check of the SDK library"} << " on a port";
        say(true, "SDKLogger", noUnit, "a record of two insertions");
    }

    /// The kind of the link must be right; its speed is set, and nothing tells whether that worked.
    bool checkLink(ISdkConfiguration &configuration)
    {
        const char *const type{report.timed("getCommunicationType", noUnit,
                                            [&] { return configuration.getCommunicationType(); })};
        const bool uart{type != nullptr && type == std::string_view{uartCommunication}};
        const std::string said{type == nullptr ? "null" : inQuotes(type)};
        say(uart, "getCommunicationType", noUnit,
            uart ? said : "answers " + said + "; " + inQuotes(uartCommunication) + " is allowed");
        const std::int32_t baudRate{
            report.timed("getDefaultBaudRate", noUnit, [&] { return configuration.getDefaultBaudRate(); })};
        report.timed("setBaudRate", noUnit, [&] { configuration.setBaudRate(baudRate); });
        say(true, "setBaudRate", noUnit, "called with " + std::to_string(baudRate));
        return uart;
    }

    void checkConfiguration(ISdkConfiguration &configuration)
    {
        for (const ConfigurationValue &row : configurationValues(configuration.words)) {
            if (stopped()) {
                return;
            }
            const auto read = [&] {
                return row.read(configuration);
            };
            const double number{row.isOperation ? report.timed(row.get, noUnit, read) : read()};
            const bool allowed{allows(row.allowed, number)};
            say(allowed, row.get, noUnit,
                allowed ? numberText(number, row.kind)
                        : "answers " + numberText(number) + "; " + describe(row.allowed));
        }
    }

    void checkDevice(const ConfigurationWords &words)
    {
        const std::vector<Setting> table{deviceSettings(words)};
        OpenedDevice device{sdk, report};
        if (!device.open(options.port, identityOf(table))) {
            return;
        }
        const std::vector<Setting> rows{readingsOf(table)};
        readRounds(device, rows);
        if (options.write) {
            writeEach(device, rows);
        }
    }

    void readRounds(OpenedDevice &device, const std::vector<Setting> &rows)
    {
        std::array<Rounds, units.size()> roundsOfUnits{Rounds{device, rows, Unit::BlendUnit, report},
                                                       Rounds{device, rows, Unit::Camera, report}};
        for (int round{0}; round < options.rounds; ++round) {
            for (const Unit unit : units) {
                if (!stopped()) {
                    roundsOfUnits[static_cast<std::size_t>(unit)].readOnce(interrupted);
                }
            }
        }
        for (Rounds &rounds : roundsOfUnits) {
            rounds.sum();
        }
    }

    void writeEach(OpenedDevice &device, const std::vector<Setting> &rows)
    {
        for (const Unit unit : units) {
            if (stopped() || !device.select(unit)) {
                continue;
            }
            if (unit == Unit::Camera) {
                device.noteRegionFlags();
            }
            for (const Setting &row : rows) {
                if (row.write && isUsedOn(row.usedOn, unit)) {
                    tryWriting(device, row, unit, report, interrupted);
                }
            }
        }
        stopped();
    }

    bool stopped()
    {
        if (interrupted()) {
            report.setInterrupted();
            return true;
        }
        return false;
    }

    void say(bool holds, std::string operation, std::string unit, std::string text)
    {
        report.add({holds ? Outcome::Holds : Outcome::Fails, std::move(operation), std::move(unit),
                    std::move(text)});
    }

    IVeltrixSdk &sdk;
    const Options &options;
    Report &report;
    const Interrupted &interrupted;
};

} // namespace

ExitStatus check(IVeltrixSdk *sdk, const Options &options, std::ostream &out, const Interrupted &interrupted)
{
    Report report{options.json ? nullptr : &out};
    const bool exists{sdk != nullptr};
    report.add({exists ? Outcome::Holds : Outcome::Fails, "get_instance", noUnit,
                exists ? "the root" : "answers null"});
    if (exists) {
        Run{*sdk, options, report, interrupted}.checkAll();
    }
    if (options.json) {
        report.writeJson(out, options.port, options.write, options.rounds);
    } else {
        report.writeEnd(out);
    }
    return report.allHold() ? allHold : somethingFails;
}

} // namespace sdk_check
