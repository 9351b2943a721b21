// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Recorded sessions: what they show, without a device.
#include "recordings.h"

#include "escaped.h"
#include "filenames.h"
#include "messages.h"
#include "output/clock.h"
#include "profile.h"
#include "progress.h"
#include "recordedsettings.h"
#include "recordings/recordingreader.h"
#include "session.h"

#include <QFile>
#include <QIODevice>
#include <QString>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
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

/// How far the reading of a file is, for who waits for it and sees nothing else.
class ReadMegabytes
{
public:
    explicit ReadMegabytes(std::int64_t size) : progress{"Reading megabytes", megabytes(size) + 1} {}

    /// Behind the end of the file its place is -1.
    void reached(std::int64_t place)
    {
        for (; read < megabytes(place); ++read) {
            progress.step();
        }
    }

private:
    static std::size_t megabytes(std::int64_t bytes)
    {
        return bytes < 0 ? 0 : static_cast<std::size_t>(bytes / 1'000'000);
    }

    Progress progress;
    std::size_t read{0};
};

/// Goes through the lines of a file. A damaged one is a Failure, and a last line that was cut is told.
template <typename Function>
void readAll(const std::string &name, Function function, bool isShown)
{
    // Qt says best why a file cannot be read.
    QFile file{QString::fromStdString(name)};
    if (!file.open(QIODevice::ReadOnly)) {
        throw Failure{wrongUse, shownName(name) + ": " + escaped(file.errorString().toStdString())};
    }
    std::ifstream input{std::filesystem::u8path(name), std::ios::binary};
    RecordingReader reader{input, shownName(name)};
    ReadMegabytes progress{isShown ? 0 : file.size()};
    try {
        while (const std::optional<RecordedLine> line = reader.next()) {
            heedInterruption();
            std::visit(function, *line);
            if (!isShown) {
                progress.reached(input.tellg());
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
        throw Failure{wrongUse, shownName(file) + ": the recording shows no setting of either unit"};
    }
    return writeProfile(profile, settings.comment(), lines);
}

} // namespace ctl
