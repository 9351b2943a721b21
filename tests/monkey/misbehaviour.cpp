// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Scenarios that misbehave: those that ship, and others that a seed makes.
#include "misbehaviour.h"

#include <QDir>
#include <QFileInfo>
#include <QLatin1Char>
#include <QRandomGenerator>

#include <iterator>

namespace
{

template <typename T, std::size_t size>
const T &oneOf(QRandomGenerator &random, const T (&all)[size])
{
    return all[random.bounded(static_cast<int>(size))];
}

/// As the form of the file asks for it.
QString quoted(const QString &text)
{
    QString inside;
    for (const QChar character : text) {
        if (character == QLatin1Char{'"'} || character == QLatin1Char{'\\'}) {
            inside += QLatin1Char{'\\'} + QString{character};
        } else {
            inside += character;
        }
    }
    return QLatin1Char{'"'} + inside + QLatin1Char{'"'};
}

QString ports(QRandomGenerator &random)
{
    static const QString hostile[]{
        QStringLiteral("<b>COM7</b>"),
        QStringLiteral("COM%2"),
        QStringLiteral("%1%n%s%99"),
        QStringLiteral("../../dev/null"),
        QStringLiteral("  COM1  "),
        QStringLiteral("\\\\.\\COM12"),
        QStringLiteral("a \"port\" & another"),
        // Shown from right to left.
        QChar{0x202E} + QString::fromUtf8("backwards \xF0\x9F\x90\x92"),
        QString{200, QLatin1Char{'W'}},
    };
    static const char *const openings[]{"opens", "opens", "opens", "refused", "silent"};
    QStringList names{QStringLiteral("SIM1")};
    for (int count{random.bounded(3)}; count > 0; --count) {
        const QString name{oneOf(random, hostile)};
        if (!names.contains(name)) {
            names.append(name);
        }
    }
    QString text;
    for (const QString &name : qAsConst(names)) {
        const char *const opening{oneOf(random, openings)};
        text += QStringLiteral("[[port]]\nname = %1\nopening = \"%2\"\n")
                    .arg(quoted(name), QString::fromLatin1(opening));
    }
    return text;
}

QString units(QRandomGenerator &random)
{
    // The greatest values that the kinds of these keys can hold, and others that no control can show.
    static const char *const odd[]{
        "camera.gamma = 4294967295",
        "camera.gamma = 0",
        "camera.clhe = 4294967295",
        "camera.gms = 4294967295",
        "camera.gsk = 4294967295",
        "camera.tint = 0",
        "camera.frameRate = 15",
        "camera.videoOutput = 200",
        "camera.colorLut = 255",
        "camera.contrastType = 9",
        "camera.roi0.x1 = 4294967295",
        "camera.roi1.x1 = 700",
        "camera.roi2.y2 = 4294967295",
        "camera.roi3.x1 = 1",
        "camera.edgeCorrection.gain = 4294967295",
        "camera.edgeCorrection.secondThreshold = 10",
        "camera.lutTemporalFilter = 255",
        "camera.ahcGainLimitation.black = 255",
        "camera.temperatures.sensorMillikelvin = nan",
        "blendUnit.zoom.factor = inf",
        "blendUnit.zoom.method = 7",
        "blendUnit.warp0.a11 = nan",
        "blendUnit.warp0.a12 = -1e300",
        "blendUnit.videoMode = 77",
        "blendUnit.startingMode = 255",
        "blendUnit.visibleAgc.target = 255",
        "blendUnit.visibleClhe.threshold = 4294967295",
        "blendUnit.serialNumber = 4294967295",
        "configuration.defaultGamma = nan",
        "configuration.defaultClhe = 1e300",
        "configuration.defaultFrameRate = 15",
        "configuration.defaultRoi0IncX1 = 1e300",
        "configuration.defaultRoi1IncEnable = true",
        "configuration.defaultContrastType = 9",
        "configuration.gskMaximum = 2147483647",
        "configuration.tintMinimum = -5",
        "configuration.defaultBaudRate = 7",
    };
    QStringList lines;
    for (int count{random.bounded(6)}; count > 0; --count) {
        const QString line{QString::fromLatin1(oneOf(random, odd))};
        const QString key{line.section(QLatin1Char{'='}, 0, 0)};
        if (lines.filter(key).isEmpty()) {
            lines.append(line);
        }
    }
    if (random.bounded(6) == 0) {
        lines.append(QStringLiteral("configuration.expertMode = false"));
    }
    return lines.join(QLatin1Char{'\n'}) + QLatin1Char{'\n'};
}

QString fault(QRandomGenerator &random)
{
    static const char *const effects[]{
        "operation = \"*\"\neffect = \"refuse\"",
        "operation = \"get*\"\neffect = \"refuse\"",
        "operation = \"set*\"\neffect = \"refuse\"",
        "operation = \"*BadPixel\"\neffect = \"refuse\"",
        "operation = \"setTarget\"\neffect = \"refuse\"",
        "operation = \"connect\"\neffect = \"refuse\"",
        "operation = \"getFirmwareVersions\"\neffect = \"refuse\"",
        "operation = \"setMavlinkBaudRate\"\neffect = \"refuse\"",
        "operation = \"readBprTable\"\neffect = \"refuse\"",
        "operation = \"processNucRequest\"\neffect = \"refuse\"",
        "operation = \"getVideoMode\"\neffect = \"answer\"\nanswer = [true, 9]",
        "operation = \"getFrameRate\"\neffect = \"answer\"\nanswer = [15]",
        "operation = \"getTemperatures\"\neffect = \"answer\"\nanswer = [true, nan, inf]",
        "operation = \"getRoiX1\"\neffect = \"answer\"\nanswer = [4294967295]",
        "operation = \"getGms\"\neffect = \"answer\"\nanswer = [4294967295]",
        "operation = \"set*\"\neffect = \"stuck\"",
        "operation = \"get*\"\neffect = \"wrong\"",
        "operation = \"get*\"\neffect = \"garbage\"",
        "operation = \"*\"\neffect = \"late\"\ndelayMilliseconds = 1",
        "operation = \"set*\"\neffect = \"lostOnPowerCycle\"",
        "operation = \"*\"\neffect = \"cableOut\"",
        "operation = \"set*\"\neffect = \"cableOut\"",
        "operation = \"openDevice\"\neffect = \"refuse\"",
        "operation = \"getDeviceManager\"\neffect = \"refuse\"",
        "operation = \"getCommunicationType\"\neffect = \"refuse\"",
    };
    QString text{QStringLiteral("[[fault]]\n") + QString::fromLatin1(oneOf(random, effects)) +
                 QLatin1Char{'\n'}};
    switch (random.bounded(5)) {
    case 0:
        return text + QStringLiteral("onCall = %1\n").arg(1 + random.bounded(200));
    case 1:
        return text + QStringLiteral("fromCall = %1\ntimes = %2\n")
                          .arg(1 + random.bounded(50))
                          .arg(1 + random.bounded(5));
    case 2:
        return text + QStringLiteral("everyCall = %1\n").arg(2 + random.bounded(30));
    default:
        return text + QStringLiteral("probability = %1\n").arg((1 + random.bounded(10)) / 50.0);
    }
}

} // namespace

QStringList shippedScenarios()
{
    QStringList names;
    for (const QFileInfo &file : QDir{QStringLiteral(SCENARIOS)}.entryInfoList({QStringLiteral("*.toml")})) {
        names.append(file.completeBaseName());
    }
    return names;
}

QString generatedScenario(quint32 seed)
{
    QRandomGenerator random{seed};
    QString text{QStringLiteral("seed = %1\n").arg(seed)};
    text += units(random);
    if (random.bounded(4) == 0) {
        text += QStringLiteral(
            "[link]\nkind = \"fixed\"\nmillisecondsPerCall = 0.05\njitterMilliseconds = 0.1\n");
    }
    text += ports(random);
    for (int count{random.bounded(4)}; count > 0; --count) {
        text += fault(random);
    }
    return text;
}

const QStringList &oddTexts()
{
    static const QStringList texts{
        QString{},
        QStringLiteral("0"),
        QStringLiteral("7"),
        QStringLiteral("33"),
        QStringLiteral("2.25"),
        QStringLiteral("0.5"),
        QStringLiteral("-1"),
        QStringLiteral("123456"),
        QStringLiteral("4294967296"),
        QStringLiteral("99999999999999999999"),
        QStringLiteral("1e9"),
        QStringLiteral("nan"),
        QStringLiteral("1,5"),
        QStringLiteral("  5 "),
        QStringLiteral("+-+"),
        QStringLiteral("%1 %n <b>"),
        QString::fromUtf8("\xD9\xA3\xD9\xA4"),
        QString::fromUtf8("\xF0\x9F\x90\x92"),
        QStringLiteral("5\n6"),
        QString{300, QLatin1Char{'9'}},
    };
    return texts;
}
