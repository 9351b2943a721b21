// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A picture of what was read over a time.
#include "plot.h"

#include "failure.h"
#include "filenames.h"
#include "files.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <nlohmann/json.hpp>
#include <utility>

using Json = nlohmann::ordered_json;

namespace ctl
{

namespace
{

/// More than a picture has columns.
constexpr std::size_t mostReadings{20'000};

/// As it lies in a build and in an installation; empty when it is in neither.
QString drawingProgram()
{
    const QString folder{QCoreApplication::applicationDirPath()};
    return QStandardPaths::findExecutable(QStringLiteral("pilotel-curves"),
                                          {folder, folder + QStringLiteral("/" PILOTEL_TO_HELPERS)});
}

} // namespace

Plot::Plot(std::string itsFile) : file{std::move(itsFile)}, program{drawingProgram()}
{
    if (program.isEmpty()) {
        throw Failure{
            wrongUse,
            "--plot: this build has no pictures of curves; --csv writes the readings into a file instead."};
    }
    tryToWrite(file);
}

void Plot::add(std::int64_t milliseconds, const std::vector<std::optional<double>> &values)
{
    if (offered++ % stride != 0) {
        return;
    }
    if (readings.size() == mostReadings) {
        for (std::size_t place{1}; 2 * place < mostReadings; ++place) {
            readings[place] = std::move(readings[2 * place]);
        }
        readings.resize(mostReadings / 2);
        stride *= 2;
    }
    readings.push_back({milliseconds, values});
}

void Plot::write(const std::string &title, const std::string &quantity, const std::vector<std::string> &names)
{
    if (readings.empty()) {
        return;
    }
    Json document{
        {"title", title}, {"quantity", quantity}, {"times", Json::array()}, {"curves", Json::array()}};
    for (const Reading &reading : readings) {
        document["times"].push_back(reading.milliseconds);
    }
    for (std::size_t curve{0}; curve < names.size(); ++curve) {
        Json values = Json::array();
        for (const Reading &reading : readings) {
            values.push_back(reading.values[curve] ? Json(*reading.values[curve]) : Json(nullptr));
        }
        document["curves"].push_back({{"name", names[curve]}, {"values", std::move(values)}});
    }

    constexpr int mostMilliseconds{60'000};
    QProcess drawing;
    drawing.start(program, QStringList{});
    drawing.write(QByteArray::fromStdString(document.dump(-1, ' ', false, Json::error_handler_t::replace)));
    drawing.closeWriteChannel();
    if (!drawing.waitForFinished(mostMilliseconds) || drawing.exitStatus() != QProcess::NormalExit ||
        drawing.exitCode() != 0) {
        throw Failure{refused, shownName(file) + ": the curves could not be drawn"};
    }
    writeWhole(file, drawing.readAllStandardOutput(), refused);
}

} // namespace ctl
