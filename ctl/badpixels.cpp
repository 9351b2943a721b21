// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The table of bad pixels: between unit and file, declared, listed.
#include "badpixels.h"

#include "escaped.h"
#include "filenames.h"
#include "files.h"
#include "interruption.h"
#include "messages.h"
#include "progress.h"
#include "units/bprfile.h"
#include "values.h"
#include "veltrix_sdk/numbers.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QImage>
#include <QString>

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <optional>
#include <system_error>
#include <utility>
#include <variant>

using namespace veltrix_sdk;
using sdk_check::escaped;

namespace ctl
{

namespace
{

using Pixel = std::pair<std::uint32_t, std::uint32_t>; ///< Column and row.

/// The library names the file after the serial number; a lost answer must not name another one.
std::string fileNameOf(Session &session, Unit unit)
{
    const auto place = device_settings::findSetting(session.settings(), keyOf(unit) + ".serialNumber");
    const Reading reading{session.readTwice(unit, *place->setting)};
    if (!reading.fault.empty()) {
        throw Failure{refused,
                      reading.fault + "\nSo it is not known which file belongs to " + nameOf(unit) + '.'};
    }
    return bprFileNameBegin + device_settings::numberText(reading.values[0]) + bprFileNameEnd;
}

std::string textOf(const Pixel &pixel)
{
    return std::to_string(pixel.first) + ',' + std::to_string(pixel.second);
}

std::optional<Pixel> pixelOf(const std::string &text)
{
    Pixel pixel;
    const char *const end{text.data() + text.size()};
    const auto column = std::from_chars(text.data(), end, pixel.first);
    if (column.ec != std::errc{} || column.ptr == end || *column.ptr != ',') {
        return std::nullopt;
    }
    const auto row = std::from_chars(column.ptr + 1, end, pixel.second);
    const bool isPixel{row.ec == std::errc{} && row.ptr == end && pixel.first < sensorColumns &&
                       pixel.second < sensorRows};
    return isPixel ? std::optional{pixel} : std::nullopt;
}

std::string allowedPixels()
{
    return "COLUMN,ROW from 0,0 to " + textOf({sensorColumns - 1, sensorRows - 1});
}

std::vector<Pixel> pixelsOf(const Pixels &pixels)
{
    std::vector<Pixel> all;
    for (const std::string &text : pixels.single) {
        const std::optional<Pixel> pixel{pixelOf(text)};
        if (!pixel) {
            throw Failure{wrongUse,
                          '"' + escaped(text) + "\" is no pixel: " + allowedPixels() + " is allowed"};
        }
        all.push_back(*pixel);
    }
    for (const unsigned row : pixels.rows) {
        for (std::uint32_t column{0}; column < sensorColumns; ++column) {
            all.emplace_back(column, row);
        }
    }
    for (const unsigned column : pixels.columns) {
        for (std::uint32_t row{0}; row < sensorRows; ++row) {
            all.emplace_back(column, row);
        }
    }
    if (all.empty()) {
        throw Failure{wrongUse, "Name pixels as " + allowedPixels() + ", or --row or --column."};
    }
    return all;
}

veltrix_simulator::BprTable tableIn(const std::string &name)
{
    QFile file{QString::fromStdString(name)};
    if (!file.open(QIODevice::ReadOnly)) {
        throw Failure{wrongUse, shownName(name) + ": " + escaped(file.errorString().toStdString()) +
                                    "; \"pilotel-ctl bad-pixels read\" fetches the table of a unit"};
    }
    constexpr qint64 most{1'000'000};
    const QByteArray bytes{file.read(most)};
    auto parsed =
        veltrix_simulator::parseBprFile({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (const auto *const reason = std::get_if<std::string>(&parsed)) {
        throw Failure{wrongUse, shownName(name) + ": " + escaped(*reason)};
    }
    return std::get<veltrix_simulator::BprFile>(parsed).table;
}

std::vector<Pixel> badOf(const veltrix_simulator::BprTable &table)
{
    std::vector<Pixel> bad;
    for (std::uint32_t row{0}; row < sensorRows; ++row) {
        for (std::uint32_t column{0}; column < sensorColumns; ++column) {
            if (table[std::size_t{row} * sensorColumns + column]) {
                bad.emplace_back(column, row);
            }
        }
    }
    return bad;
}

/// The sensor in dark grey, a bad pixel in red.
void paint(const std::vector<Pixel> &bad, const std::string &name)
{
    constexpr QRgb good{qRgb(40, 40, 40)};
    constexpr QRgb red{qRgb(255, 60, 60)};
    QImage picture{static_cast<int>(sensorColumns), static_cast<int>(sensorRows), QImage::Format_RGB32};
    picture.fill(good);
    for (const Pixel &pixel : bad) {
        picture.setPixel(static_cast<int>(pixel.first), static_cast<int>(pixel.second), red);
    }
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    picture.save(&png, "PNG");
    writeWhole(name, png.data(), wrongUse);
}

} // namespace

ExitStatus readBadPixels(Session &session, Unit unit)
{
    const std::string name{fileNameOf(session, unit)};
    tryToWrite(name);
    if (!session.on(unit).readBprTable(bprFirstNumber, bprSecondNumber, bprReadCode)) {
        throw Failure{refused, "The table of bad pixels could not be read from " + nameOf(unit) + '.'};
    }
    std::cout << "The table of bad pixels of " << nameOf(unit) << " is in " << name << std::endl;
    return done;
}

ExitStatus writeBadPixels(Session &session, Unit unit)
{
    const std::string name{fileNameOf(session, unit)};
    if (!session.on(unit).writeBprTable(bprFirstNumber, bprSecondNumber, bprWriteCode)) {
        throw Failure{refused, name + " could not be written to " + nameOf(unit) + '.'};
    }
    std::cout << name << " is now the table of bad pixels of " << nameOf(unit) << std::endl;
    return done;
}

ExitStatus declareBadPixels(Session &session, Unit unit, const Pixels &pixels, bool bad)
{
    const std::vector<Pixel> all{pixelsOf(pixels)};
    const std::string file{fileNameOf(session, unit)};
    const auto declare = bad ? &Device::addBadPixel : &Device::removeBadPixel;
    std::size_t declared{0};
    std::optional<Failure> gone;
    try {
        Progress progress{bad ? "Adding" : "Removing", all.size()};
        for (const Pixel &pixel : all) {
            if (wasInterrupted()) {
                break;
            }
            progress.step();
            if ((session.on(unit).*declare)(pixel.first, pixel.second)) {
                ++declared;
            } else {
                progress.clear();
                session.confirm();
                tell("Pixel " + textOf(pixel) + " is refused by " + nameOf(unit) + '.');
            }
        }
    } catch (const Failure &failure) {
        gone = failure;
    }
    // The library saves what was declared when the device is closed.
    session.close();
    std::cout << declared << " of " << all.size() << (all.size() == 1 ? " pixel " : " pixels ")
              << (bad ? "added to " : "removed from ") << file << std::endl;
    if (gone) {
        throw Failure{*gone};
    }
    heedInterruption();
    return declared == all.size() ? done : refused;
}

ExitStatus listBadPixels(Session &session, Unit unit, const std::string &file, const std::string &picture)
{
    if (!picture.empty()) {
        refuseRecording(picture, session.recording());
    }
    const std::vector<Pixel> bad{badOf(tableIn(file.empty() ? fileNameOf(session, unit) : file))};
    for (const Pixel &pixel : bad) {
        std::cout << textOf(pixel) << '\n';
    }
    std::cout << std::flush;
    if (!picture.empty()) {
        paint(bad, picture);
    }
    return done;
}

} // namespace ctl
