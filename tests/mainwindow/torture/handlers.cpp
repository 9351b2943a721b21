// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The oracle of the controls that do more than send one setting.
#include "oracle.h"
#include "tables.h"

#include <QLatin1Char>
#include <QString>
#include <QStringList>

#include <charconv>
#include <iterator>

namespace
{

/// A number in the shortest form that reads back, as the journal has it.
QString shortest(float number)
{
    char text[32];
    return QString::fromLatin1(text,
                               static_cast<int>(std::to_chars(text, std::end(text), number).ptr - text));
}

} // namespace

void Oracle::clickVideoMode(int mode)
{
    current.lastCommandOk = call(QStringLiteral("setVideoMode(%1)").arg(mode)).isOk();
    if (current.lastCommandOk) {
        showVideoMode(mode);
    } else {
        line(named(videoModeAt(mode).failure));
    }
}

void Oracle::checkCorrection(const QString &checkBox, bool checked)
{
    const bool changed{controls.check(checkBox, checked)};
    for (const CorrectionRow &row : correctionRows) {
        if (changed && row.slot != nullptr && checkBox == named(row.checkBox)) {
            call(QStringLiteral("set%1(%2)").arg(named(row.operation), boolText(checked)));
        }
    }
}

bool Oracle::sendCoordinate(const QString &coordinate, qint64 pixels, int number)
{
    const auto flag = [&](const char *checkBox) {
        return boolText(controls.isChecked(named(checkBox)));
    };
    const Answer answer{call(QStringLiteral("setRoi%1(%2, %3, %4, %5, %6)")
                                 .arg(coordinate)
                                 .arg(pixels)
                                 .arg(number)
                                 .arg(flag("roi1IncEnable"), flag("roi0ExcEnable"), flag("roi1ExcEnable")))};
    return answer.isOk();
}

void Oracle::checkRegion(const QString &checkBox, bool checked)
{
    if (!controls.check(checkBox, checked)) {
        return;
    }
    for (const RegionRow &row : regionRows) {
        if (checkBox != named(row.enable)) {
            continue;
        }
        current.lastCommandOk = true;
        for (const char *const coordinate : {"X1", "X2", "Y1", "Y2"}) {
            const QString spinBox{named(row.boxes) + named(coordinate)};
            controls.enable(spinBox, checked);
            const bool ok{
                sendCoordinate(named(coordinate), checked ? controls.whole(spinBox) : 0, row.number)};
            current.lastCommandOk = current.lastCommandOk && ok;
        }
    }
}

void Oracle::editRegion(int number, const QString &coordinate)
{
    for (const RegionRow &row : regionRows) {
        if (row.number != number) {
            continue;
        }
        const QString boxes{named(row.boxes)};
        const QString axis{coordinate.left(1)};
        const QString first{boxes + axis + QLatin1Char{'1'}};
        const QString second{boxes + axis + QLatin1Char{'2'}};
        const qint64 pixels{controls.whole(boxes + coordinate)};
        if (controls.whole(first) > controls.whole(second)) {
            controls.set(first, controls.value(second));
            box(QStringLiteral("ROI"), QStringLiteral("ROI %1 ").arg(number) + axis +
                                           QStringLiteral("1 must be lower than ROI ") + axis +
                                           QLatin1Char{'2'});
        }
        current.lastCommandOk = sendCoordinate(coordinate, pixels, number);
        line(current.lastCommandOk ? QStringLiteral("Set ROI %1 %2 value OK").arg(number).arg(coordinate)
                                   : QStringLiteral("Set ROI %1 value KO").arg(coordinate));
    }
}

void Oracle::configureZoom()
{
    const Answer zoom{call(QStringLiteral("getZoomConfig()"))};
    current.lastCommandOk = zoom.isOk();
    if (!zoom.isOk()) {
        line(QStringLiteral("Could not read zoom config so configure Zoom KO"));
        return;
    }
    const auto factor = static_cast<float>(controls.value(QStringLiteral("FusionZoomFactorSB")));
    const auto method = static_cast<quint8>(controls.index(QStringLiteral("FusionZoomMethod")));
    command(QStringLiteral("configureZoom({factor=%1, xCenter=%2, yCenter=%3, method=%4})")
                .arg(shortest(factor), ::whole(zoom["xCenter"]), ::whole(zoom["yCenter"]))
                .arg(method),
            QStringLiteral("Configure Zoom"));
}

void Oracle::setStartingMode()
{
    const auto mode = static_cast<quint32>(controls.index(QStringLiteral("startingModeCB")));
    outcome(QStringLiteral("setStartingMode(%1)").arg(mode), QStringLiteral("Blend unit starting mode set"),
            QStringLiteral("Could not changed blend unit starting mode"));
}

void Oracle::setWarp()
{
    QStringList arguments{QString::number(controls.index(QStringLiteral("FusionWarpCB")))};
    for (const char *const coefficient : {"11", "21", "12", "22", "13", "23"}) {
        arguments.append(
            QString::number(controls.whole(QStringLiteral("WarpA%1CoeffSB").arg(named(coefficient)))));
    }
    outcome(QStringLiteral("setWarp(%1)").arg(arguments.join(QStringLiteral(", "))),
            QStringLiteral("Warp configuration applied correctly"),
            QStringLiteral("Could not changed warp configuration"));
}

void Oracle::save(bool expert)
{
    const QString kind{expert ? QStringLiteral("blend unit expert parameters")
                              : QStringLiteral("blend unit parameters")};
    outcome(QStringLiteral("saveBlendUnitParameters(%1)").arg(expert ? 1 : 0),
            QLatin1Char{'B'} + kind.mid(1) + QStringLiteral(" have been saved"),
            QStringLiteral("Could not saved ") + kind);
}

void Oracle::krBaudRate()
{
    command(QStringLiteral("setMavlinkBaudRate(%1, %2)")
                .arg(controls.itemText(QStringLiteral("BaudRateCB")).toInt())
                .arg(boolText(controls.isChecked(QStringLiteral("PermanentButton")))),
            QStringLiteral("Set Mavlink baud rate value"));
    if (current.lastCommandOk) {
        fetchConfiguration();
    } else {
        warningBox(QStringLiteral("Problem transmitting expert parameters values\n"));
    }
}

void Oracle::requestNuc()
{
    if (!call(QStringLiteral("processNucRequest()")).isOk()) {
        warningBox(QStringLiteral("Error on processing the NUC request"));
    }
}

void Oracle::transferBprTable(bool read)
{
    const QString transfer{read ? QStringLiteral("readBprTable(4096, 16384, 9)")
                                : QStringLiteral("writeBprTable(4096, 16384, 8)")};
    if (!call(transfer).isOk()) {
        box(QStringLiteral("BPR table"), read ? QStringLiteral("BPR table not read correctly")
                                              : QStringLiteral("BPR table not write correctly"));
    }
    const QString file{
        QStringLiteral("bpr_SN%1.bin").arg(::whole(call(QStringLiteral("getSerialNumber()")).number()))};
    line(read ? QStringLiteral("BPR table correctly saved to %1.").arg(file)
              : QStringLiteral("BPR table %1 correctly written.").arg(file));
}

void Oracle::declarePixel(bool add, int column, int row)
{
    const QString verb{add ? QStringLiteral("add") : QStringLiteral("remove")};
    const bool ok{call(QStringLiteral("%1BadPixel(%2, %3)").arg(verb).arg(column).arg(row)).isOk()};
    const QString pixel{QStringLiteral("X:%1 Y: %2").arg(column).arg(row)};
    line(ok ? QStringLiteral("Pixel %1 correctly %2.")
                  .arg(pixel, add ? QStringLiteral("added") : QStringLiteral("removed"))
            : QStringLiteral("Unable to %1 pixel %2.").arg(verb, pixel));
}
