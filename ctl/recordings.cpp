// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Recorded sessions: what they show, without a device.
#include "recordings.h"

#include "escaped.h"
#include "filenames.h"
#include "input.h"
#include "messages.h"
#include "output/clock.h"
#include "profile.h"
#include "progress.h"
#include "recordedsettings.h"
#include "recordings/recordingreader.h"
#include "session.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <istream>
#include <optional>
#include <string_view>
#include <variant>

using sdk_check::escaped;
using veltrix_simulator::RecordedCall;
using veltrix_simulator::RecordedHeader;
using veltrix_simulator::RecordedLine;
using veltrix_simulator::RecordedWrite;
using veltrix_simulator::RecordingReader;

namespace ctl
{

namespace
{

/// A text of any length with every byte that is not printable ASCII escaped. Its backslashes are escaped
/// already.
std::string printable(std::string_view text)
{
    std::string shown;
    for (const char byte : text) {
        if (byte >= ' ' && byte <= '~') {
            shown += byte;
        } else {
            shown += escaped({&byte, 1});
        }
    }
    return shown;
}

/// How far the reading of a file is, for who waits for it and sees nothing else. Nobody knows it of a pipe,
/// whose size is 0, and a recording may grow while it is read.
class ReadMegabytes
{
public:
    explicit ReadMegabytes(std::int64_t size)
        : total{size == 0 ? 0 : megabytes(size) + 1}, progress{"Reading megabytes", total}
    {}

    void reached(std::int64_t place)
    {
        for (; read < std::min(megabytes(place), total); ++read) {
            progress.step();
        }
    }

private:
    static std::size_t megabytes(std::int64_t bytes) { return static_cast<std::size_t>(bytes / 1'000'000); }

    const std::size_t total;
    Progress progress;
    std::size_t read{0};
};

/// Goes through the lines of a file. A damaged one is a Failure, and a last line that was cut is told.
template <typename Function>
void readAll(const std::string &name, Function function, bool isShown)
{
    Input input{name};
    InputBuffer bytes{input};
    std::istream stream{&bytes};
    // What the input throws is passed on.
    stream.exceptions(std::ios::badbit);
    RecordingReader reader{stream, shownName(Input::nameOf(name))};
    ReadMegabytes progress{isShown ? 0 : input.size()};
    try {
        while (const std::optional<RecordedLine> line = reader.next()) {
            heedInterruption();
            std::visit(function, *line);
            if (!isShown) {
                progress.reached(bytes.taken());
            }
        }
    } catch (const veltrix_simulator::RecordingError &error) {
        // The name of the file is fit to be shown already.
        throw Failure{
            wrongUse,
            veltrix_simulator::RecordingError{error.file, error.line, printable(error.text)}.message()};
    }
    if (const std::optional<std::string> cut = reader.cut()) {
        tell(*cut);
    }
}

/// Writes the lines for people.
class Writer
{
public:
    void operator()(const RecordedHeader &header)
    {
        using std::chrono::system_clock;
        const system_clock::time_point time{std::chrono::duration_cast<system_clock::duration>(header.time)};
        begin = begin ? begin : header.time;
        std::cout << "Recorded with " << printable(header.origin) << ", from "
                  << formatTime(time, veltrix_simulator::Precision::Milliseconds) << " on\n";
    }

    void operator()(const RecordedCall &call)
    {
        beginLine(call.time, placeOf(call));
        std::cout << printable(callText(call) + answerText(call));
        if (!call.words.empty()) {
            std::cout << ' ' << wordsText(call.words);
        }
        const bool reached{call.missing == veltrix_simulator::Missing::Nothing};
        std::cout << (reached && !succeeded(call) ? "  (refused)\n" : "\n");
    }

    void operator()(const RecordedWrite &write)
    {
        beginLine(write.time, "configuration");
        std::cout << "words set in place " << wordsText(write.words) << '\n';
    }

private:
    /// The unit that a call of the device is made on, else the interface that it belongs to.
    static std::string placeOf(const RecordedCall &call)
    {
        if (call.operation->interface == veltrix_simulator::Interface::Device) {
            return veltrix_simulator::addressedName(call.target);
        }
        return std::string{
            veltrix_simulator::interfaceNames[static_cast<std::size_t>(call.operation->interface)]};
    }

    void beginLine(std::chrono::microseconds time, const std::string &place) const
    {
        constexpr double microsecondsPerSecond{1e6};
        const auto since = static_cast<double>((time - begin.value_or(time)).count());
        char text[64];
        std::snprintf(text, sizeof text, "%10.3f  %-13s  ", since / microsecondsPerSecond, place.c_str());
        std::cout << text;
    }

    std::optional<std::chrono::microseconds> begin;
};

/// Collects what the units held.
struct Collector
{
    void operator()(const RecordedHeader & /*header*/) const {}
    void operator()(const RecordedCall &call) { settings.note(call); }
    void operator()(const RecordedWrite &write) { settings.note(write.words); }

    RecordedSettings &settings;
};

} // namespace

ExitStatus showRecording(const std::string &file)
{
    readAll(file, Writer{}, true);
    std::cout << std::flush;
    return done;
}

ExitStatus saveRecordedProfile(const std::string &file, const std::string &profile)
{
    RecordedSettings settings;
    readAll(file, Collector{settings}, false);
    const std::vector<ProfileLine> lines{settings.lines()};
    if (lines.empty()) {
        throw Failure{wrongUse,
                      shownName(Input::nameOf(file)) + ": the recording shows no setting of either unit"};
    }
    return writeProfile(profile, settings.comment(), lines);
}

} // namespace ctl
