// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The oracle of reading the two units.
#include "oracle.h"
#include "tables.h"

#include <QLatin1Char>
#include <QString>

#include <cmath>
#include <cstddef>

namespace
{

quint16 word(const Answer &versions, const char *field)
{
    return static_cast<quint16>(versions[field]);
}

/// One hexadecimal digit of a version word, the least significant at place 0.
QString digit(quint16 version, int place)
{
    return QString::number((version >> (4 * place)) & 0xF, 16);
}

/// Three digits from a place on, downwards.
QString digits(quint16 version, int place)
{
    return digit(version, place) + QLatin1Char{'.'} + digit(version, place - 1) + QLatin1Char{'.'} +
           digit(version, place - 2);
}

QString stateText(bool on, bool asNumber)
{
    if (asNumber) {
        return on ? QStringLiteral("1") : QStringLiteral("0");
    }
    return on ? QStringLiteral("Enabled") : QStringLiteral("Disabled");
}

} // namespace

bool Oracle::readBlendUnit()
{
    line(QStringLiteral("Start reading Fusion parameters"));
    const Answer versions{call(QStringLiteral("getFirmwareVersions()"))};
    const quint16 processor{word(versions, "processor")};
    const quint16 fpga{word(versions, "fpga")};
    if (processor == 0 && fpga == 0) {
        comError();
        return false;
    }
    call(QStringLiteral("startReading()"));
    line(QStringLiteral("RISC-V version = %1 Beta%2\nFPGA version = %3.%4")
             .arg(digits(processor, 3), digit(processor, 0), digits(fpga, 3), digit(fpga, 0)));
    line(QStringLiteral("Serial number = ") + whole(call(QStringLiteral("getSerialNumber()")).number()));
    readVideoMode();
    readZoom();
    readVisibleAgc();
    readVisibleClhe();
    readStartingMode();
    readTemperatures(0);
    line(QStringLiteral("End reading Fusion parameters"));
    const double bits{call(QStringLiteral("getBitStatus()")).number()};
    controls.show(QStringLiteral("BitTextEdit"),
                  QStringLiteral("0x") + QString::number(static_cast<quint32>(bits), 16));
    return true;
}

void Oracle::readVideoMode()
{
    const Answer mode{call(QStringLiteral("getVideoMode()"))};
    current.lastCommandOk = mode.isOk();
    if (mode.isOk() && mode["mode"] < 3) {
        showVideoMode(static_cast<int>(mode["mode"]));
    } else {
        line(QStringLiteral("Could not get current video mode"));
    }
}

void Oracle::showVideoMode(int mode)
{
    for (const VideoModeRow &row : videoModeRows) {
        controls.check(named(row.button), &row == &videoModeAt(mode));
    }
    line(named(videoModeAt(mode).success));
}

void Oracle::readZoom()
{
    const Answer zoom{call(QStringLiteral("getZoomConfig()"))};
    const Answer resolution{call(QStringLiteral("getZoomResolution()"))};
    controls.set(QStringLiteral("FusionZoomFactorSB"), zoom["factor"]);
    if (controls.choose(QStringLiteral("methodZoomEdit"), zoom["method"])) {
        configureZoom();
    }
    line(QStringLiteral("Fusion ZOOM factor value = ") + streamed(zoom["factor"]));
    line(QStringLiteral("Fusion X zoom resolution = ") + whole(resolution["x"]));
    line(QStringLiteral("Fusion Y zoom resolution = ") + whole(resolution["y"]));
    line(QStringLiteral("Fusion X zoom center = ") + whole(zoom["xCenter"]));
    line(QStringLiteral("Fusion Y zoom center = ") + whole(zoom["yCenter"]));
}

void Oracle::readVisibleAgc()
{
    const Answer agc{call(QStringLiteral("getVisibleAgc()"))};
    current.lastCommandOk = agc.isOk();
    if (!agc.isOk()) {
        line(QStringLiteral("Could not get visible AGC configuration"));
        return;
    }
    controls.set(QStringLiteral("VisAgcTargetSB"), agc["target"]);
    controls.set(QStringLiteral("VisAgcTHSB"), agc["threshold"]);
    controls.set(QStringLiteral("VisAgcCoeffSB"), agc["filterCoefficient"]);
    line(QStringLiteral("Visible AGC target = ") + whole(agc["target"]));
    line(QStringLiteral("Visible AGC threshold = ") + whole(agc["threshold"]));
    line(QStringLiteral("Visible AGC filter coefficient = ") + whole(agc["filterCoefficient"]));
}

void Oracle::readVisibleClhe()
{
    const Answer clhe{call(QStringLiteral("getVisibleClhe()"))};
    current.lastCommandOk = clhe.isOk();
    if (!clhe.isOk()) {
        line(QStringLiteral("Could not get visible CLHE configuration"));
        return;
    }
    controls.set(QStringLiteral("VisClheTHSB"), clhe["threshold"]);
    controls.set(QStringLiteral("VisClheCoeffSB"), clhe["filterCoefficient"]);
    line(QStringLiteral("Visible CLHE threshold = ") + whole(clhe["threshold"]));
    line(QStringLiteral("Visible filter coefficient = ") + whole(clhe["filterCoefficient"]));
}

void Oracle::readStartingMode()
{
    const Answer mode{call(QStringLiteral("getStartingMode()"))};
    current.lastCommandOk = mode.isOk();
    if (mode.isOk() && controls.choose(QStringLiteral("startingModeCB"), mode["mode"])) {
        setStartingMode();
    }
}

void Oracle::readWarp()
{
    const int stream{controls.index(QStringLiteral("FusionWarpCB"))};
    const Answer warp{call(QStringLiteral("getWarp(%1)").arg(stream))};
    current.lastCommandOk = warp.isOk();
    if (warp.isOk()) {
        for (const char *const coefficient : {"11", "21", "12", "22", "13", "23"}) {
            controls.set(QStringLiteral("WarpA%1CoeffSB").arg(named(coefficient)),
                         warp.fields.value(QLatin1Char{'a'} + named(coefficient)));
        }
    }
}

bool Oracle::readCamera()
{
    line(QStringLiteral("Start reading camera parameters"));
    const Answer versions{call(QStringLiteral("getFirmwareVersions()"))};
    const quint16 processor{word(versions, "processor")};
    const quint16 fpga{word(versions, "fpga")};
    if (processor == 0 && fpga == 0) {
        comError();
        return false;
    }
    call(QStringLiteral("startReading()"));
    const QString suffix{QString{(fpga & 0x2000) != 0 ? QStringLiteral(" MIPI") : QString{}} +
                         ((fpga & 0x1000) != 0 ? QStringLiteral(" 9Hz") : QStringLiteral(" 60Hz"))};
    line(QStringLiteral("RISC-V version = %1\nFPGA version = %2%3")
             .arg(digits(processor, 2), digits(fpga, 2), suffix));
    readIdentity();

    for (const ToggleRow &row : toggleRows) {
        if (!row.asNumber) {
            readToggle(row);
        }
    }
    const auto choice = [&](const char *comboBox, const char *operation, const char *label) {
        chooseAndSend(named(comboBox), call(named(operation)).number());
        line(named(label) + controls.itemText(named(comboBox)));
    };
    choice("VideoOutputCB", "getVideoOutput()", "Video output = ");
    const double hertz{call(QStringLiteral("getFrameRate()")).number()};
    chooseAndSend(QStringLiteral("frameRateCB"), frameRateItem(hertz, 0));
    line(QStringLiteral("Frame rate = ") + controls.itemText(QStringLiteral("frameRateCB")));
    for (const ToggleRow &row : toggleRows) {
        if (row.asNumber) {
            readToggle(row);
        }
    }

    // The window converts through a float, so the value is rounded to one here as well.
    const auto rawGamma = static_cast<float>(call(QStringLiteral("getGamma()")).number());
    const double gamma{static_cast<double>(rawGamma) / 65536};
    controls.set(QStringLiteral("gammaSlider"), std::round((gamma - 0.5) * 10));
    line(QStringLiteral("Gamma value = ") + streamed(gamma));
    readRegions();
    const double clhe{call(QStringLiteral("getClhe()")).number()};
    controls.set(QStringLiteral("clheSlider"), clhe);
    line(QStringLiteral("CLHE value = ") + streamed(clhe));

    choice("lutColorEdit", "getColorLut()", "Color Lut = ");
    const double contrast{call(QStringLiteral("getContrastType()")).number()};
    chooseAndSend(QStringLiteral("contrastTypeEdit"), contrast);
    line(contrast == 0 ? QStringLiteral("Contrast type = CLHE (ROI)")
                       : QStringLiteral("Contrast type = CLAHE (LOCAL)"));
    const double filter{call(QStringLiteral("getLutTemporalFilter()")).number()};
    controls.set(QStringLiteral("TempoFilterSpin"), filter);
    line(QStringLiteral("LUT temporal filter = ") + whole(filter));
    readAhc();
    readTemperatures(1);
    readEdge();
    line(QStringLiteral("End reading camera parameters"));
    return true;
}

void Oracle::readIdentity()
{
    line(QStringLiteral("Serial number = ") + whole(call(QStringLiteral("getSerialNumber()")).number()));
    line(QStringLiteral("Sensor serial number = ") +
         whole(call(QStringLiteral("getSensorSerialNumber()")).number()));
    const Answer info{call(QStringLiteral("getOperatingInfo()"))};
    line(QStringLiteral("Operating time = %1 min").arg(whole(info["operatingMinutes"])));
    line(QStringLiteral("Startup number = ") + whole(info["startupCount"]));
}

void Oracle::readToggle(const ToggleRow &row)
{
    const bool on{call(QStringLiteral("get%1()").arg(named(row.operation))).isOk()};
    controls.check(named(row.button), on);
    controls.write(named(row.button), captionOf(row, on));
    line(named(row.label) + stateText(on, row.asNumber));
}

void Oracle::readRegions()
{
    constexpr const char *coordinates[]{"X1", "Y1", "X2", "Y2"};
    constexpr int count{4};
    double pixels[count][count];
    for (int region{0}; region < count; ++region) {
        for (int coordinate{0}; coordinate < count; ++coordinate) {
            const Answer answer{
                call(QStringLiteral("getRoi%1(%2)").arg(named(coordinates[coordinate])).arg(region))};
            pixels[region][coordinate] = answer.number();
        }
    }
    for (int region{0}; region < count; ++region) {
        const RegionRow &row{regionRows.at(static_cast<std::size_t>(region))};
        if (row.enable != nullptr) {
            checkRegion(named(row.enable), pixels[region][0] != 0);
        }
        for (int coordinate{0}; coordinate < count; ++coordinate) {
            controls.set(named(row.boxes) + named(coordinates[coordinate]), pixels[region][coordinate]);
            line(QStringLiteral("%1 %2 value = %3")
                     .arg(named(row.label), named(coordinates[coordinate]),
                          whole(pixels[region][coordinate])));
        }
    }
}

void Oracle::readAhc()
{
    const Answer ahc{call(QStringLiteral("getAhcGainLimitation()"))};
    if (ahc.number() != 1) {
        line(QStringLiteral("AHC gain limitation read error"));
        return;
    }
    controls.set(QStringLiteral("AhcBlackGainLimSpin"), ahc["black"]);
    controls.set(QStringLiteral("AhcWhiteGainLimSpin"), ahc["white"]);
    line(QStringLiteral("AHC black gain limitation = ") + whole(ahc["black"]));
    line(QStringLiteral("AHC white gain limitation = ") + whole(ahc["white"]));
}

void Oracle::readEdge()
{
    const Answer edge{call(QStringLiteral("getEdgeCorrection()"))};
    chooseAndSend(QStringLiteral("EdgeCorrectionCB"), edge["type"]);
    controls.set(QStringLiteral("sharpeningGainSlider"), edge["gain"] * 10);
    controls.set(QStringLiteral("SharpeningTHSlider"), edge["firstThreshold"] * 10);
    line(QStringLiteral(
             "Correction type = %1\nCorrection gain = %2\nFirst threshold = %3\nSecond threshold = %4")
             .arg(whole(edge["type"]), whole(edge["gain"]), whole(edge["secondThreshold"] - 40),
                  whole(edge["secondThreshold"])));
}

void Oracle::readExpert()
{
    line(QStringLiteral("Start reading camera expert parameters"));
    for (const char *const name : {"gsk", "gfid", "gms", "tint"}) {
        const QString setting{named(name)};
        const QString operation{setting.left(1).toUpper() + setting.mid(1)};
        const double number{call(QStringLiteral("get%1()").arg(operation)).number()};
        controls.set(setting + QStringLiteral("Slider"), number);
        controls.set(setting + QStringLiteral("Edit"), number);
        line(QStringLiteral("%1 value = %2").arg(setting.toUpper(), whole(number)));
    }
    for (const CorrectionRow &row : correctionRows) {
        const bool on{call(QStringLiteral("get%1()").arg(named(row.operation))).isOk()};
        checkCorrection(named(row.checkBox), on);
        line(named(row.label) + stateText(on, false));
    }
    line(QStringLiteral("End reading camera expert parameters"));
}
