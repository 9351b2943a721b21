// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Temperatures of both units again and again.
#include "watch.h"

#include "escaped.h"
#include "filenames.h"
#include "files.h"
#include "interruption.h"
#include "messages.h"
#include "plot.h"
#include "telling.h"
#include "values.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QString>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iomanip>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <vector>

using Clock = std::chrono::steady_clock;

namespace ctl
{

namespace
{

/// Two for each unit; nothing where the unit did not answer.
using Sample = std::vector<std::optional<double>>;

constexpr const char *heading{
    "TIME                      BLEND UNIT SENSOR    FPGA  CAMERA SENSOR    FPGA  (degrees C)"};
constexpr std::array widths{19, 8, 15, 8};
constexpr double zeroCelsius{273.15};

std::string textOf(const QDateTime &time)
{
    return time.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzzZ")).toStdString();
}

double celsius(double millikelvin)
{
    return millikelvin / 1000 - zeroCelsius;
}

std::vector<std::optional<double>> celsius(const Sample &sample)
{
    std::vector<std::optional<double>> values;
    for (const std::optional<double> &millikelvin : sample) {
        values.push_back(millikelvin ? std::optional{celsius(*millikelvin)} : std::nullopt);
    }
    return values;
}

const Setting &temperatures(Session &session)
{
    return *device_settings::findSetting(session.settings(), "camera.temperatures.sensorMillikelvin")
                ->setting;
}

std::string csvHeading(Session &session)
{
    std::string line{"time"};
    for (const Unit unit : device_settings::units) {
        const Setting &setting = temperatures(session);
        for (std::size_t field{0}; field < setting.fields.size(); ++field) {
            line += ',' + device_settings::keyOf({unit, &setting, field});
        }
    }
    return line + '\n';
}

std::string csvLine(const std::string &time, const Sample &sample)
{
    std::string line{time};
    for (const std::optional<double> &millikelvin : sample) {
        line += ',';
        if (millikelvin) {
            line += device_settings::numberText(*millikelvin);
        }
    }
    return line + '\n';
}

std::string tableLine(const std::string &time, const Sample &sample)
{
    std::ostringstream line;
    line << time << std::fixed << std::setprecision(2);
    for (std::size_t place{0}; place < sample.size(); ++place) {
        line << std::setw(widths[place]);
        if (sample[place]) {
            line << celsius(*sample[place]);
        } else {
            line << '?';
        }
    }
    return line.str() + '\n';
}

/// One run of the command.
class Watching
{
public:
    Watching(Session &itsSession, const Watch &itsWatch)
        : session{itsSession}, watch{itsWatch}, csv{QString::fromStdString(itsWatch.csvFile)}
    {}

    ExitStatus run()
    {
        if (!watch.csvFile.empty() && !csvAlone()) {
            refuseRecording(watch.csvFile, session.recording());
        }
        if (!watch.plotFile.empty()) {
            refuseRecording(watch.plotFile, session.recording());
            plot.emplace(watch.plotFile);
        }
        session.open();
        openCsv();
        try {
            takeSamples();
        } catch (const Failure &failure) {
            // What was seen before may tell why.
            if (const std::string lost{drawnOrWhyNot()}; !lost.empty()) {
                throw Failure{failure.status(), failure.what() + ('\n' + lost)};
            }
            throw;
        }
        draw();
        return allWell ? done : refused;
    }

private:
    bool csvAlone() const { return watch.csvFile == "-"; }

    /// False when nobody reads what is written any more, and when it cannot be written.
    static bool isWatched() { return sdk_check::outputUntilNow() == sdk_check::Output::Written; }

    void takeSamples()
    {
        if (!csvAlone()) {
            std::cout << heading << std::endl;
        }
        const Clock::time_point start{Clock::now()};
        std::int64_t tick{0};
        for (int taken{0}; isWatched() && (!watch.count || taken < *watch.count); ++taken) {
            if (!waitUntil(start + tick * watch.every)) {
                if (watch.count) {
                    heedInterruption();
                }
                return;
            }
            takeSample();
            const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
            tick = std::max<std::int64_t>(tick + 1, (passed + watch.every - std::chrono::milliseconds{1}) /
                                                        watch.every);
        }
    }

    void draw()
    {
        if (plot) {
            plot->write("Temperatures of the units on port " + sdk_check::escaped(session.port()),
                        "Temperature (\u00b0C)",
                        {"Blend Unit, sensor", "Blend Unit, FPGA", "Camera, sensor", "Camera, FPGA"});
        }
    }

    std::string drawnOrWhyNot()
    {
        try {
            draw();
            return {};
        } catch (const Failure &failure) {
            return failure.what();
        }
    }

    void openCsv()
    {
        if (watch.csvFile.empty()) {
            return;
        }
        if (!csvAlone()) {
            refuseRecording(watch.csvFile);
            if (!csv.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
                throw Failure{wrongUse, shownName(watch.csvFile) + ": " +
                                            sdk_check::escaped(csv.errorString().toStdString())};
            }
        }
        writeCsv(csvHeading(session));
    }

    /// Handed to the operating system at once, so that the file is whole up to the last reading.
    void writeCsv(const std::string &line)
    {
        if (csvAlone()) {
            std::cout << line << std::flush;
            return;
        }
        if (!csv.isOpen()) {
            return;
        }
        csv.write(QByteArray::fromStdString(line));
        if (!csv.flush()) {
            throw Failure{refused, shownName(watch.csvFile) + ": " +
                                       sdk_check::escaped(csv.errorString().toStdString())};
        }
    }

    /// False when the program is interrupted meanwhile.
    static bool waitUntil(Clock::time_point time)
    {
        constexpr std::chrono::milliseconds longestPause{50};
        while (!wasInterrupted() && Clock::now() < time) {
            std::this_thread::sleep_for(std::min<Clock::duration>(time - Clock::now(), longestPause));
        }
        return !wasInterrupted();
    }

    void takeSample()
    {
        const QDateTime now{QDateTime::currentDateTimeUtc()};
        const std::string time{textOf(now)};
        Sample sample;
        for (const Unit unit : device_settings::units) {
            const Reading reading{session.read(unit, temperatures(session))};
            for (const double value : reading.values) {
                sample.push_back(reading.fault.empty() ? std::optional{value} : std::nullopt);
            }
            if (!reading.fault.empty()) {
                tell(reading.fault);
                allWell = false;
            }
        }
        writeCsv(csvLine(time, sample));
        if (plot) {
            plot->add(now.toMSecsSinceEpoch(), celsius(sample));
        }
        if (!csvAlone()) {
            std::cout << tableLine(time, sample) << std::flush;
        }
    }

    Session &session;
    const Watch &watch;
    QFile csv;
    std::optional<Plot> plot{};
    bool allWell{true};
};

} // namespace

ExitStatus watchTemperatures(Session &session, const Watch &watch)
{
    return Watching{session, watch}.run();
}

std::optional<std::chrono::milliseconds> durationOf(const std::string &text)
{
    struct Factor
    {
        std::string_view unit;
        std::int64_t milliseconds;
    };
    constexpr std::array factors{Factor{"ms", 1}, Factor{"s", 1000}, Factor{"min", 60'000},
                                 Factor{"h", 3'600'000}};
    constexpr double longest{86'400'000};
    constexpr double shortest{10};
    double number{0};
    const char *const end{text.data() + text.size()};
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    for (const Factor &factor : factors) {
        if (error == std::errc{} &&
            std::string_view(stop, static_cast<std::size_t>(end - stop)) == factor.unit) {
            const double milliseconds{number * static_cast<double>(factor.milliseconds)};
            const bool isAllowed{milliseconds >= shortest && milliseconds <= longest};
            return isAllowed
                       ? std::optional{std::chrono::milliseconds{static_cast<std::int64_t>(milliseconds)}}
                       : std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace ctl
