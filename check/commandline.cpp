// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The command line of the check.
#include "commandline.h"

#include "wronguse.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <system_error>

namespace
{

constexpr int mostRounds{10000};

constexpr const char *description{
    "Checks the library veltrix.sdk that this program finds, on the device behind a port: what answers as the\n"
    "contract demands, what does not, and how long each operation takes. Without --port it lists the ports.\n"
    "\n"
    "Without --write it only reads; of the commands it calls setBaudRate with the default, setTarget and\n"
    "startReading. With --write it sets each setting to another value and back. It never calls what outlasts\n"
    "the power of the device: saveBlendUnitParameters, setMavlinkBaudRate, processNucRequest, readBprTable,\n"
    "writeBprTable, addBadPixel, removeBadPixel.\n"};
constexpr const char *footer{
    "Exit status: 0 all hold, 1 something does not or the check was interrupted, 2 wrong usage or no port."};

/// Empty for a number of rounds, else why it is none.
std::string whyNoRounds(const std::string &text)
{
    int rounds{0};
    const char *const end{text.data() + text.size()};
    const auto [stop, error] = std::from_chars(text.data(), end, rounds);
    const bool isRounds{error == std::errc{} && stop == end && rounds >= 1 && rounds <= mostRounds};
    if (isRounds) {
        return {};
    }
    return '"' + text + "\" is no number from 1 to " + std::to_string(mostRounds);
}

} // namespace

CommandLine parseCommandLine(const std::vector<std::string> &words)
{
    CommandLine line;
    CLI::App parser{description, "pilotel-sdk-check"};
    parser.footer(footer);
    parser.set_help_flag("-h,--help", "Shows this text");
    parser.add_option("--port", line.options.port, "The port of the device, such as COM3, ttyUSB0 or SIM1")
        ->type_name("NAME")
        ->take_last()
        ->check([](const std::string &port) { return port.empty() ? "a port has a name" : ""; });
    parser.add_flag(
        "--write", line.options.write,
        "Also sets each setting to another allowed value, reads it and puts back\nwhat was there, after Ctrl-C as well");
    parser
        .add_option("--repeat", line.options.rounds,
                    "Reads everything so many times, 1 to " + std::to_string(mostRounds) + "; 3 if not given")
        ->type_name("N")
        ->take_last()
        ->check(whyNoRounds);
    parser.add_flag("--json", line.options.json, "Writes one JSON document instead of lines");
    parser
        .add_option("--record", line.recording,
                    "Records every call to the library in this file; else PILOTEL_RECORD names one")
        ->type_name("FILE")
        ->take_last()
        ->check([](const std::string &file) { return file.empty() ? "a file has a name" : ""; });
    try {
        parser.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    } catch (const CLI::CallForHelp &) {
        line.help = parser.help();
    } catch (const CLI::ParseError &error) {
        line.error = sdk_check::wrongUseText(parser, error);
    }
    return line;
}
