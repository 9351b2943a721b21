// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines that the program can write into its log, each as a whole.
#include "loglines.h"

#include "controls.h"
#include "tables.h"

#include <QRegularExpression>
#include <QSet>

namespace
{

/// Lines without a number or a name in them.
const char *const fixedLines[]{
    "No camera connected",
    "target correctly changed",
    "Could not changed target",
    "Start reading Fusion parameters",
    "End reading Fusion parameters",
    "Could not read Fusion parameters",
    "Start reading camera parameters",
    "End reading camera parameters",
    "End Read camera parameters : COM Error",
    "Start reading camera expert parameters",
    "End reading camera expert parameters",
    "Start applying camera parameters",
    "End applying camera parameters",
    "Start applying camera expert parameters",
    "End applying camera expert parameters",
    "Contrast type = CLHE (ROI)",
    "Contrast type = CLAHE (LOCAL)",
    "AHC gain limitation read error",
    "Could not get current video mode",
    "Could not get visible AGC configuration",
    "Could not get visible CLHE configuration",
    "Could not read zoom config so configure Zoom KO",
    "Visible AGC configuration applied correctly",
    "Could not changed visisble AGC configuration",
    "Visible CLHE configuration applied correctly",
    "Could not changed visisble CLHE configuration",
    "Blend unit starting mode set",
    "Could not changed blend unit starting mode",
    "Warp configuration applied correctly",
    "Could not changed warp configuration",
    "Blend unit parameters have been saved",
    "Could not saved blend unit parameters",
    "Blend unit expert parameters have been saved",
    "Could not saved blend unit expert parameters",
};

/// What stands before a whole number that was read.
const char *const wholeLabels[]{
    "Serial number = ",
    "Sensor serial number = ",
    "Startup number = ",
    "Fusion X zoom resolution = ",
    "Fusion Y zoom resolution = ",
    "Fusion X zoom center = ",
    "Fusion Y zoom center = ",
    "IR X zoom resolution = ",
    "IR Y zoom resolution = ",
    "IR X zoom center = ",
    "IR Y zoom center = ",
    "Visible AGC target = ",
    "Visible AGC threshold = ",
    "Visible AGC filter coefficient = ",
    "Visible CLHE threshold = ",
    "Visible filter coefficient = ",
    "LUT temporal filter = ",
    "AHC black gain limitation = ",
    "AHC white gain limitation = ",
    "GSK value = ",
    "GFID value = ",
    "GMS value = ",
    "TINT value = ",
};

/// What stands before a number with six significant digits.
const char *const streamedLabels[]{
    "Fusion ZOOM factor value = ",
    "IR ZOOM factor value = ",
    "Gamma value = ",
    "CLHE value = ",
};

const QString wholeNumber{QStringLiteral("[0-9]+")};
const QString signedNumber{QStringLiteral("-?[0-9]+")};
const QString streamedNumber{QStringLiteral("(?:-?[0-9]+(?:\\.[0-9]+)?(?:e[+-][0-9]{2,3})?|-?inf|-?nan)")};
const QString hexDigit{QStringLiteral("[0-9a-f]")};

/// Patterns of whole records.
class Patterns
{
public:
    void add(const QString &text) { all.append(QRegularExpression::escape(text)); }
    /// The label, and behind it what the pattern describes.
    void add(const char *label, const QString &pattern)
    {
        all.append(QRegularExpression::escape(named(label)) + pattern);
    }
    void addPattern(const QString &pattern) { all.append(pattern); }
    /// Both outcomes of a command.
    void addAction(const char *action) { add(action, QStringLiteral(" (?:OK|KO)")); }

    QString joined() const { return all.join(QLatin1Char{'|'}); }

private:
    QStringList all;
};

void addReadings(Patterns &patterns)
{
    for (const char *const label : wholeLabels) {
        patterns.add(label, wholeNumber);
    }
    for (const char *const label : streamedLabels) {
        patterns.add(label, streamedNumber);
    }
    const QString states{QStringLiteral("(?:Enabled|Disabled)")};
    for (const ToggleRow &row : toggleRows) {
        patterns.add(row.label, row.asNumber ? QStringLiteral("[01]") : states);
    }
    for (const CorrectionRow &row : correctionRows) {
        patterns.add(row.label, states);
    }
    for (const RegionRow &row : regionRows) {
        patterns.add(row.label, QStringLiteral(" [XY][12] value = ") + wholeNumber);
    }
    patterns.add("Operating time = ", wholeNumber + QStringLiteral(" min"));
    const QString threeDigits{QStringLiteral("%1\\.%1\\.%1").arg(hexDigit)};
    patterns.addPattern(
        QStringLiteral("RISC-V version = %1 Beta%2\nFPGA version = %1\\.%2").arg(threeDigits, hexDigit));
    patterns.addPattern(
        QStringLiteral("RISC-V version = %1\nFPGA version = %1(?: MIPI)? (?:9|60)Hz").arg(threeDigits));
    patterns.addPattern(QStringLiteral("Correction type = %1\nCorrection gain = %1\nFirst threshold = "
                                       "%2\nSecond threshold = %1")
                            .arg(wholeNumber, signedNumber));
}

void addOutcomes(Patterns &patterns)
{
    for (const Pair &pair : pairs) {
        patterns.addAction(pair.action);
    }
    for (const ToggleRow &row : toggleRows) {
        patterns.addAction(row.action);
    }
    for (const ChoiceRow &row : choiceRows) {
        patterns.addAction(row.action);
    }
    for (const CorrectionRow &row : correctionRows) {
        patterns.addAction(row.action);
    }
    patterns.addAction("Configure Zoom");
    patterns.addAction("Set Mavlink baud rate value");
    for (const VideoModeRow &row : videoModeRows) {
        patterns.add(named(row.success));
        patterns.add(named(row.failure));
    }
    // A script may name any region; only the line of a success has its number.
    patterns.addPattern(QStringLiteral("Set ROI %1 [XY][12] value OK").arg(signedNumber));
    patterns.addPattern(QStringLiteral("Set ROI [XY][12] value KO"));
    const QString table{QStringLiteral("bpr_SN%1\\.bin").arg(wholeNumber)};
    patterns.addPattern(QStringLiteral("BPR table correctly saved to %1\\.").arg(table));
    patterns.addPattern(QStringLiteral("BPR table %1 correctly written\\.").arg(table));
    const QString pixel{QStringLiteral("X:%1 Y: %1").arg(wholeNumber)};
    patterns.addPattern(QStringLiteral("Pixel %1 correctly (?:added|removed)\\.").arg(pixel));
    patterns.addPattern(QStringLiteral("Unable to (?:add|remove) pixel %1\\.").arg(pixel));
}

const QRegularExpression &programRecords()
{
    static const QRegularExpression records{[] {
        Patterns patterns;
        for (const char *const line : fixedLines) {
            patterns.add(named(line));
        }
        addReadings(patterns);
        addOutcomes(patterns);
        QRegularExpression pattern{QRegularExpression::anchoredPattern(patterns.joined())};
        pattern.optimize();
        return pattern;
    }()};
    return records;
}

/// Whether it is the label, and behind it one of the texts.
bool isOneOf(const QString &record, const char *label, const QStringList &texts)
{
    return record.startsWith(named(label)) && texts.contains(record.mid(static_cast<int>(qstrlen(label))));
}

} // namespace

bool isRecordOfTheProgram(const QString &record, const LoggedTexts &texts)
{
    static QSet<QString> known;
    if (known.contains(record)) {
        return true;
    }
    if (programRecords().match(record).hasMatch()) {
        if (known.size() < 20000) {
            known.insert(record);
        }
        return true;
    }
    // A number that a box does not offer leaves it without a text; a rate that it does not offer is its first
    // one.
    return isOneOf(record, "ALTERNATIVE SERIAL PORT : ", texts.ports) ||
           isOneOf(record, "Frame rate = ", texts.frameRates) ||
           isOneOf(record, "Video output = ", texts.videoOutputs + QStringList{QString{}}) ||
           isOneOf(record, "Color Lut = ", texts.colorLuts + QStringList{QString{}});
}
