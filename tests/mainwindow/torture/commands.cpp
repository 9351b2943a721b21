// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The oracle of the settings that are sent, one by one and in bulk.
#include "oracle.h"
#include "tables.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <iterator>

namespace
{

/// What a control sends: the operation, its arguments as they stand, and the action before OK and KO.
struct SendRow
{
    std::initializer_list<const char *> controls;
    const char *operation;
    QString (*arguments)(const Controls &controls);
    const char *action;
};

/// The index of a box as the eight bits that travel.
template <const auto &name>
QString indexOf(const Controls &controls)
{
    return QString::number(static_cast<quint8>(controls.index(named(name))));
}

template <const auto &name>
QString wholeOf(const Controls &controls)
{
    return QString::number(controls.whole(named(name)));
}

template <const auto &first, const auto &second>
QString bothOf(const Controls &controls)
{
    return wholeOf<first>(controls) + QStringLiteral(", ") + wholeOf<second>(controls);
}

// Variables, because a template argument cannot be a string literal.
constexpr char videoOutput[]{"VideoOutputCB"};
constexpr char contrastType[]{"contrastTypeEdit"};
constexpr char colorLut[]{"lutColorEdit"};
constexpr char edgeType[]{"EdgeCorrectionCB"};
constexpr char edgeGain[]{"sharpeningGainEdit"};
constexpr char edgeThreshold[]{"SharpeningTHEdit"};
constexpr char clheBox[]{"clheEdit"};
constexpr char tempoFilter[]{"TempoFilterSpin"};
constexpr char ahcBlack[]{"AhcBlackGainLimSpin"};
constexpr char ahcWhite[]{"AhcWhiteGainLimSpin"};
constexpr char gsk[]{"gskEdit"};
constexpr char gfid[]{"gfidEdit"};
constexpr char gms[]{"gmsEdit"};
constexpr char tint[]{"tintEdit"};
constexpr char agcTarget[]{"VisAgcTargetSB"};
constexpr char agcThreshold[]{"VisAgcTHSB"};
constexpr char agcCoefficient[]{"VisAgcCoeffSB"};
constexpr char clheThreshold[]{"VisClheTHSB"};
constexpr char clheCoefficient[]{"VisClheCoeffSB"};

QString gammaFixedPoint(const Controls &controls)
{
    return QString::number(static_cast<quint32>(controls.value(QStringLiteral("gammaEdit")) * 65536));
}

QString edgeCorrection(const Controls &controls)
{
    return indexOf<edgeType>(controls) + QStringLiteral(", ") + bothOf<edgeGain, edgeThreshold>(controls);
}

QString visibleAgc(const Controls &controls)
{
    return wholeOf<agcTarget>(controls) + QStringLiteral(", ") +
           bothOf<agcThreshold, agcCoefficient>(controls);
}

/// The first eight are also sent in bulk, in this order, after the frame rate.
const SendRow sendRows[]{
    {{videoOutput}, "setVideoOutput", indexOf<videoOutput>, "Set VIDEO OUTPUT value"},
    {{"gammaSlider", "gammaEdit"}, "setGamma", gammaFixedPoint, "Set GAMMA value"},
    {{contrastType}, "configureContrastType", indexOf<contrastType>, "Configure contrast type"},
    {{colorLut}, "setColorLut", indexOf<colorLut>, "Set COLOR LUT value"},
    {{"clheSlider", clheBox}, "setClhe", wholeOf<clheBox>, "Set CLHE value"},
    {{"TempoFilterSlider", tempoFilter},
     "setLutTemporalFilter",
     wholeOf<tempoFilter>,
     "Set LUT TEMPORAL FILTER value"},
    {{"AhcBlackGainLimSlider", ahcBlack, "AhcWhiteGainLimSlider", ahcWhite},
     "setAhcGainLimitation",
     bothOf<ahcBlack, ahcWhite>,
     "Set AHC GAINS LIMITATION values"},
    {{edgeType, "sharpeningGainSlider", edgeGain, "SharpeningTHSlider", edgeThreshold},
     "configureEdgeCorrection",
     edgeCorrection,
     "Configure EDGE CORRECTION"},
    {{"gskSlider", gsk}, "setGsk", wholeOf<gsk>, "Set GSK value"},
    {{"gfidSlider", gfid}, "setGfid", wholeOf<gfid>, "Set GFID value"},
    {{"gmsSlider", gms}, "setGms", wholeOf<gms>, "Set GMS value"},
    {{"tintSlider", tint}, "setTint", wholeOf<tint>, "Set TINT value"},
};
constexpr int bulkRows{8};

QString callOf(const SendRow &row, const Controls &controls)
{
    return QStringLiteral("%1(%2)").arg(named(row.operation), row.arguments(controls));
}

} // namespace

void Oracle::command(const QString &text, const QString &action)
{
    outcome(text, action + QStringLiteral(" OK"), action + QStringLiteral(" KO"));
}

void Oracle::outcome(const QString &text, const QString &success, const QString &failure)
{
    current.lastCommandOk = call(text).isOk();
    line(current.lastCommandOk ? success : failure);
}

void Oracle::send(const QString &control)
{
    if (control == QStringLiteral("frameRateCB")) {
        frameRate();
    } else if (control.startsWith(QStringLiteral("VisAgc"))) {
        outcome(QStringLiteral("setVisibleAgc(%1)").arg(visibleAgc(controls)),
                QStringLiteral("Visible AGC configuration applied correctly"),
                QStringLiteral("Could not changed visisble AGC configuration"));
    } else if (control.startsWith(QStringLiteral("VisClhe"))) {
        outcome(QStringLiteral("setVisibleClhe(%1)").arg(bothOf<clheThreshold, clheCoefficient>(controls)),
                QStringLiteral("Visible CLHE configuration applied correctly"),
                QStringLiteral("Could not changed visisble CLHE configuration"));
    }
    for (const SendRow &row : sendRows) {
        if (std::find(row.controls.begin(), row.controls.end(), control) != row.controls.end()) {
            command(callOf(row, controls), named(row.action));
        }
    }
}

void Oracle::chooseAndSend(const QString &comboBox, double index)
{
    if (controls.choose(comboBox, index)) {
        send(comboBox);
    }
}

void Oracle::frameRate()
{
    const int index{controls.index(QStringLiteral("frameRateCB"))};
    const int hertz{index < 0 ? 0 : frameRatesHz.at(static_cast<std::size_t>(index))};
    if (static_cast<int>(call(QStringLiteral("getFrameRate()")).number()) != hertz) {
        command(QStringLiteral("setFrameRate(%1)").arg(hertz), QStringLiteral("Set FRAME RATE value"));
    }
}

void Oracle::clickToggle(const QString &button)
{
    for (const ToggleRow &row : toggleRows) {
        if (button == named(row.button)) {
            const bool on{!controls.isChecked(button)};
            controls.check(button, on);
            command(QStringLiteral("set%1(%2)").arg(named(row.operation), boolText(on)), named(row.action));
            if (current.lastCommandOk && controls.text(button) == captionOf(row, !on)) {
                controls.write(button, captionOf(row, on));
            }
        }
    }
}

void Oracle::applyUser()
{
    line(QStringLiteral("Start applying camera parameters"));
    frameRate();
    for (int place{0}; place < bulkRows; ++place) {
        command(callOf(sendRows[place], controls), named(sendRows[place].action));
    }
    fetchConfiguration();
    line(QStringLiteral("End applying camera parameters"));
}

void Oracle::applyExpert()
{
    line(QStringLiteral("Start applying camera expert parameters"));
    for (const char *const checkBox :
         {"verticalFlipCheckBox", "BPRCheckBox", "offsetCheckBox", "gainCheckBox"}) {
        for (const CorrectionRow &row : correctionRows) {
            if (named(checkBox) == named(row.checkBox)) {
                command(QStringLiteral("set%1(%2)")
                            .arg(named(row.operation), boolText(controls.isChecked(named(checkBox)))),
                        named(row.action));
            }
        }
    }
    krBaudRate();
    line(QStringLiteral("End applying camera expert parameters"));
}

void Oracle::reset()
{
    fetchConfiguration();
    const auto number = [&](const char *operation) {
        return byDefault(QStringLiteral("getDefault") + named(operation)).number();
    };
    const auto flag = [&](const char *operation) {
        return byDefault(QStringLiteral("getDefault") + named(operation)).isOk();
    };
    chooseAndSend(QStringLiteral("frameRateCB"), frameRateItem(number("FrameRate"), 1));
    controls.set(QStringLiteral("gammaSlider"), std::round((number("Gamma") - 0.5) * 10));
    controls.set(QStringLiteral("clheSlider"), std::round(number("Clhe")));
    controls.set(QStringLiteral("sharpeningGainSlider"), std::round(number("SharpeningGain")));
    for (const char *const setting : {"Gfid", "Gsk", "Tint", "Gms"}) {
        controls.set(named(setting).toLower() + QStringLiteral("Slider"), number(setting));
    }
    resetRegions();
    controls.check(QStringLiteral("polarityButton"), flag("Polarity"));
    chooseAndSend(named(contrastType), number("ContrastType"));
    chooseAndSend(named(contrastType), 0);
    chooseAndSend(named(colorLut), number("ColorLut"));
    controls.check(QStringLiteral("horizontalFlipButton"), flag("HorizontalFlip"));
    controls.check(QStringLiteral("verticalFlipCheckBox"), flag("VerticalFlip"));
    controls.check(QStringLiteral("VignettingCorrectionButton"), flag("VignettingCorrection"));
    controls.check(QStringLiteral("ColumnCorrectionButton"), flag("ColumnCorrection"));
    chooseAndSend(named(edgeType), number("EdgeCorrectionType"));
    controls.set(named(edgeGain), number("SharpeningGainValue"));
    controls.set(named(edgeThreshold), number("SharpeningThreshold"));
    chooseAndSend(named(videoOutput), number("VideoOutput"));
    controls.check(QStringLiteral("sdiOutputButton"), flag("SdiOutput"));
    controls.check(QStringLiteral("parallelOutputButton"), flag("ParallelOutput"));
    controls.check(QStringLiteral("mipiOutputButton"), flag("MipiOutput"));
    controls.set(named(tempoFilter), number("TempoFilter"));
    controls.set(named(ahcBlack), number("AhcBlackGainLimit"));
    controls.set(named(ahcWhite), number("AhcWhiteGainLimit"));
    applyUser();
}

void Oracle::resetRegions()
{
    for (const RegionRow &row : regionRows) {
        const QString boxes{named(row.boxes)};
        for (const char *const coordinate : {"X1", "Y1", "X2", "Y2"}) {
            const Answer answer{byDefault(QStringLiteral("getDefault") + boxes + named(coordinate))};
            controls.set(boxes + named(coordinate), std::trunc(answer.number()));
        }
        if (row.enable != nullptr) {
            checkRegion(named(row.enable), byDefault(QStringLiteral("getDefault%1Enable").arg(boxes)).isOk());
        }
    }
}
